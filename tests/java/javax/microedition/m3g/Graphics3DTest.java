package javax.microedition.m3g;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.util.Hashtable;
import java.util.Map;
import java.util.Set;
import org.junit.After;
import org.junit.Test;

/** Graphics3D without a target. */
public class Graphics3DTest {
    private final Graphics3D graphics = Graphics3D.getInstance();

    @After
    public void forget() {
        graphics.setCamera(null, null);
        graphics.resetLights();
    }

    @Test
    public void thePropertiesAreThereBeforeTheFirstBind() {
        Map<String, Object> properties = Graphics3D.getProperties();
        assertEquals(
                Set.of("supportAntialiasing", "supportTrueColor", "supportDithering",
                        "supportMipmapping", "supportPerspectiveCorrection",
                        "supportLocalCameraLighting", "maxLights", "maxViewportWidth",
                        "maxViewportHeight", "maxViewportDimension", "maxTextureDimension",
                        "maxSpriteCropDimension", "maxTransformsPerVertex", "maxTextureUnits"),
                properties.keySet());
        for (Map.Entry<String, Object> entry : properties.entrySet()) {
            Class<?> kind = entry.getKey().startsWith("support") ? Boolean.class : Integer.class;
            assertSame(entry.getKey(), kind, entry.getValue().getClass());
        }
    }

    @Test
    public void theFixedProperties() {
        Map<String, Object> properties = Graphics3D.getProperties();
        for (String name : new String[] {"Antialiasing", "TrueColor", "Dithering", "Mipmapping",
            "PerspectiveCorrection"}) {
            assertEquals(name, true, properties.get("support" + name));
        }
        assertEquals(false, properties.get("supportLocalCameraLighting"));
        assertEquals(256, properties.get("maxSpriteCropDimension"));
        assertEquals(4, properties.get("maxTransformsPerVertex"));
    }

    @Test
    public void theLargestTextureMayBeTheHeightOfTheViewport() {
        Map<String, Object> properties = Graphics3D.getProperties();
        int width = (Integer) properties.get("maxViewportWidth");
        int height = (Integer) properties.get("maxViewportHeight");
        assertEquals(Math.max(width, height), properties.get("maxViewportDimension"));
        assertTrue((Integer) properties.get("maxTextureDimension") >= height);
        assertTrue((Integer) properties.get("maxLights") >= 8);
        assertTrue((Integer) properties.get("maxTextureUnits") >= 2);
    }

    @Test
    public void theTableIsTheCallersOwn() {
        Hashtable<String, Object> properties = Graphics3D.getProperties();
        properties.clear();
        assertNotSame(properties, Graphics3D.getProperties());
        assertFalse(Graphics3D.getProperties().isEmpty());
    }

    @Test
    public void readingThePropertiesAgainChangesNothing() {
        Map<String, Object> before = Graphics3D.getProperties();
        Graphics3D.initPropsN();
        assertEquals(before, Graphics3D.getProperties());
    }

    @Test
    public void thereIsOneInstance() {
        assertSame(Graphics3D.getInstance(), Graphics3D.getInstance());
        assertSame(Graphics3D.getInstanceN(), Graphics3D.getInstance());
    }

    @Test
    public void theStateAtTheStart() {
        assertNull(graphics.getTarget());
        assertEquals(0, graphics.getTargetN(graphics.handle));
        assertNull(graphics.getCamera(null));
        assertEquals(0, graphics.getLightCount());
        assertEquals(0.0f, graphics.getDepthRangeNear(), 0);
        assertEquals(1.0f, graphics.getDepthRangeFar(), 0);
    }

    @Test
    public void theCameraComesBackWithItsTransform() {
        Camera camera = new Camera();
        Transform set = new Transform();
        set.postTranslate(1, 2, 3);
        set.postRotate(90, 0, 0, 1);
        graphics.setCamera(camera, set);
        Transform got = new Transform();
        assertSame(camera, graphics.getCamera(got));
        float[] expected = new float[16];
        float[] actual = new float[16];
        set.get(expected);
        got.get(actual);
        assertArrayEquals(expected, actual, 1e-6f);
    }

    @Test
    public void aCameraWithoutATransformHasTheIdentity() {
        Transform other = new Transform();
        other.postTranslate(1, 2, 3);
        graphics.setCamera(new Camera(), other);
        graphics.setCamera(new Camera(), null);
        Transform got = new Transform();
        got.postScale(2, 2, 2);
        graphics.getCamera(got);
        float[] actual = new float[16];
        got.get(actual);
        assertArrayEquals(
                new float[] {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, actual, 0);
    }

    @Test
    public void lightsAreKeptInOrder() {
        Light first = new Light();
        Light second = new Light();
        assertEquals(0, graphics.addLight(first, null));
        assertEquals(1, graphics.addLight(second, new Transform()));
        assertEquals(2, graphics.getLightCount());
        assertSame(second, graphics.getLight(1, null));
        graphics.setLight(0, null, null);
        assertEquals(1, graphics.getLightCount());
        assertSame(second, graphics.getLight(0, null));
        graphics.resetLights();
        assertEquals(0, graphics.getLightCount());
    }

    @Test
    public void moreLightsThanUnitsAreTaken() {
        int max = (Integer) Graphics3D.getProperties().get("maxLights");
        for (int i = 0; i <= max; i++) {
            assertEquals(i, graphics.addLight(new Light(), null));
        }
    }

    @Test
    public void nullArgumentsAreRefused() {
        assertThrows(NullPointerException.class, () -> graphics.addLight(null, null));
        assertThrows(NullPointerException.class, () -> graphics.bindTarget(null));
        assertThrows(NullPointerException.class, () -> graphics.bindTarget(null, true, 0));
        assertThrows(NullPointerException.class, () -> graphics.render((World) null));
        assertThrows(NullPointerException.class, () -> graphics.render(null, new Transform()));
        assertThrows(NullPointerException.class, () -> graphics.render(null, null, null, null));
    }

    /** Adds a light by a null handle. */
    static final class AddsNoLight {
        public static void main(String[] arguments) {
            Graphics3D graphics = Graphics3D.getInstance();
            graphics.addLightN(graphics.handle, 0, 0);
        }
    }

    @Test
    public void aNullHandleOfALightMeetsTheAssertion() throws Exception {
        ChildJvm.Result result = ChildJvm.run(AddsNoLight.class);
        assertTrue(result.toString(), result.exitCode != 0);
        assertTrue(result.toString(), result.err.contains("px != 0"));
    }
}
