package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import org.junit.Test;

/** The natives of Appearance. */
public class AppearanceTest {
    private final Appearance appearance = new Appearance();

    private static Texture2D newTexture() {
        return new Texture2D(new Image2D(Image2D.RGB, 1, 1));
    }

    /** How many units the appearance has: one more than that is the first index to fail. */
    private static int unitsOf(Appearance appearance) {
        int index = 0;
        while (true) {
            try {
                appearance.getTexture(index);
            } catch (IndexOutOfBoundsException e) {
                return index - 1;
            }
            index++;
        }
    }

    @Test
    public void startsEmptyInLayerZero() {
        assertEquals(0, appearance.getLayer());
        assertNull(appearance.getCompositingMode());
        assertNull(appearance.getFog());
        assertNull(appearance.getMaterial());
        assertNull(appearance.getPolygonMode());
        assertNull(appearance.getTexture(0));
        assertEquals(0, appearance.getReferences(null));
    }

    @Test
    public void attributesAreSharedAndMayBeNullTwice() {
        CompositingMode compositingMode = new CompositingMode();
        Fog fog = new Fog();
        Material material = new Material();
        PolygonMode polygonMode = new PolygonMode();
        appearance.setCompositingMode(compositingMode);
        appearance.setFog(fog);
        appearance.setMaterial(material);
        appearance.setPolygonMode(polygonMode);
        assertSame(compositingMode, appearance.getCompositingMode());
        assertSame(fog, appearance.getFog());
        assertSame(material, appearance.getMaterial());
        assertSame(polygonMode, appearance.getPolygonMode());
        for (int i = 0; i < 2; i++) {
            appearance.setCompositingMode(null);
            appearance.setFog(null);
            appearance.setMaterial(null);
            appearance.setPolygonMode(null);
            assertNull(appearance.getCompositingMode());
            assertNull(appearance.getFog());
            assertNull(appearance.getMaterial());
            assertNull(appearance.getPolygonMode());
        }
    }

    @Test
    public void layersGoFromMinus63To63() {
        for (int layer : new int[] {-63, 63}) {
            appearance.setLayer(layer);
            assertEquals(layer, appearance.getLayer());
        }
        for (int layer : new int[] {64, -64, Integer.MIN_VALUE}) {
            assertOutOfBounds("Invalid layer value", () -> appearance.setLayer(layer));
            assertEquals(63, appearance.getLayer());
        }
    }

    @Test
    public void theUnitCountItselfIsNoFailureAndHoldsNothing() {
        int units = unitsOf(appearance);
        assertNull(appearance.getTexture(units));
        appearance.setTexture(units, newTexture());
        assertNull(appearance.getTexture(units));
        appearance.setTexture(-1, newTexture());
        assertNull(appearance.getTexture(-1));
        assertEquals(0, appearance.getReferences(null));
    }

    @Test
    public void anIndexAboveTheUnitCountFailsWithBothNumbers() {
        int units = unitsOf(appearance);
        String text = "Index out texture units boundary: " + (units + 1) + " " + units;
        assertOutOfBounds(text, () -> appearance.getTexture(units + 1));
        Texture2D texture = newTexture();
        assertOutOfBounds(text, () -> appearance.setTexture(units + 1, texture));
    }

    @Test
    public void texturesAreSharedPerUnit() {
        Texture2D texture = newTexture();
        appearance.setTexture(0, texture);
        assertSame(texture, appearance.getTexture(0));
        appearance.setTexture(0, null);
        assertNull(appearance.getTexture(0));
    }

    @Test
    public void aDuplicateSharesTheAttributes() {
        appearance.setCompositingMode(new CompositingMode());
        appearance.setFog(new Fog());
        appearance.setMaterial(new Material());
        appearance.setPolygonMode(new PolygonMode());
        appearance.setTexture(0, newTexture());
        appearance.setLayer(-5);
        Appearance copy = (Appearance) appearance.duplicate();
        assertEquals(-5, copy.getLayer());
        Object3D[] expected = {
            appearance.getMaterial(), appearance.getPolygonMode(), appearance.getCompositingMode(),
            appearance.getFog(), appearance.getTexture(0)
        };
        Object3D[] references = new Object3D[5];
        assertEquals(5, copy.getReferences(references));
        assertArrayEquals(expected, references);
        copy.setFog(null);
        copy.setTexture(0, null);
        copy.setLayer(1);
        assertSame(expected[3], appearance.getFog());
        assertSame(expected[4], appearance.getTexture(0));
        assertEquals(-5, appearance.getLayer());
    }
}
