package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertFails;
import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static javax.microedition.m3g.Shapes.quad;
import static javax.microedition.m3g.Shapes.quadStrip;
import static javax.microedition.m3g.Shapes.quadVertices;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import org.junit.Before;
import org.junit.Test;

/** The natives of picking and of RayIntersection, on a quad at z = 0 below a group. */
public class PickTest {
    private final Group group = new Group();
    private final Mesh mesh = quad(new Appearance());
    private final RayIntersection hit = new RayIntersection();

    @Before
    public void buildScene() {
        group.addChild(mesh);
    }

    private boolean pick(RayIntersection result) {
        return group.pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, result);
    }

    @Test
    public void aHitFillsTheResult() {
        assertTrue(pick(hit));
        assertSame(mesh, hit.getIntersected());
        assertEquals(5f, hit.getDistance(), 1e-5f);
        assertEquals(0, hit.getSubmeshIndex());
        float[] ray = new float[6];
        hit.getRay(ray);
        assertArrayEquals(new float[] {0.2f, 0.4f, 5, 0.2f, 0.4f, 4}, ray, 0f);
    }

    @Test
    public void theResultMayBeNull() {
        assertTrue(pick(null));
    }

    @Test
    public void aNewResultHasNoHit() {
        assertNull(hit.getIntersected());
        assertEquals(0f, hit.getDistance(), 0f);
        assertEquals(0, hit.getSubmeshIndex());
        assertEquals(0f, hit.getNormalX(), 0f);
        assertEquals(0f, hit.getNormalY(), 0f);
        assertEquals(1f, hit.getNormalZ(), 0f);
        float[] ray = new float[6];
        hit.getRay(ray);
        assertArrayEquals(new float[] {0, 0, 0, 0, 0, 1}, ray, 0f);
    }

    @Test
    public void aResultIsDestroyedByItself() {
        assertTrue(pick(hit));
        long other = RayIntersection.createRayIntersectionN();
        assertEquals(0f, hit.getDistanceN(other), 0f);
        RayIntersection.destroyRayIntersectionN(other);
        assertEquals(5f, hit.getDistance(), 1e-5f);
        RayIntersection.destroyRayIntersectionN(0);
    }

    @Test
    public void anUnpickableGroupHidesItsChildren() {
        group.setPickingEnable(false);
        assertFalse(pick(hit));
    }

    @Test
    public void theScopeArgumentIsNotReadButTheGroupsOwnIs() {
        assertTrue(group.pick(0, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, null));
        group.setScope(0);
        assertFalse(pick(null));
    }

    @Test
    public void aRayInThePlaneMisses() {
        assertFalse(group.pick(-1, -5, 0.3f, 0, -4, 0.3f, 0, hit));
    }

    @Test
    public void aReusedResultTakesNearerHitsOnly() {
        assertTrue(pick(hit));
        Mesh farther = quad(new Appearance());
        farther.setTranslation(0, 0, -1);
        group.addChild(farther);
        group.removeChild(mesh);
        assertTrue(pick(hit));
        assertSame(mesh, hit.getIntersected());
        farther.setTranslation(0, 0, 1);
        assertTrue(pick(hit));
        assertSame(farther, hit.getIntersected());
        assertEquals(4f, hit.getDistance(), 1e-5f);
    }

    @Test
    public void aMeshWithoutAppearanceIsSkipped() {
        mesh.setAppearance(0, null);
        assertFalse(pick(hit));
    }

    @Test
    public void ofCoincidentTrianglesTheFirstWins() {
        Group other = new Group();
        other.addChild(new Mesh(quadVertices(), new IndexBuffer[] {quadStrip(), quadStrip()},
                new Appearance[] {new Appearance(), new Appearance()}));
        assertTrue(other.pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, hit));
        assertEquals(0, hit.getSubmeshIndex());
    }

    @Test
    public void aMissLeavesTheNode() {
        assertFalse(group.pick(-1, 9, 9, 5, 9, 9, 4, hit));
        assertNull(hit.getIntersected());
    }

    @Test
    public void aZeroSecondPointFails() {
        assertIllegalArgument("No direction vector specified!",
                () -> group.pick(-1, 0, 0, 5, 0, 0, 0, hit));
    }

    @Test
    public void aGroupWithoutAnInverseFails() {
        Group root = new Group();
        root.addChild(group);
        group.setScale(0, 1, 1);
        assertFails(ArithmeticException.class,
                "Unable to invert matrix -- singularity encountered in the matrix",
                () -> pick(hit));
    }

    @Test
    public void theNumberOfTextureUnitsPassesAsAnIndex() {
        int units = (Integer) Graphics3D.getProperties().get("maxTextureUnits");
        assertEquals(0f, hit.getTextureS(units), 0f);
        assertEquals(0f, hit.getTextureT(units), 0f);
        for (int index : new int[] {-1, units + 1}) {
            assertOutOfBounds("RayIntersection::getTextureS called with invalid index",
                    () -> hit.getTextureS(index));
            assertOutOfBounds("RayIntersection::getTextureT called with invalid index",
                    () -> hit.getTextureT(index));
        }
    }

    @Test
    public void normalsAndTextureCoordinatesAreInterpolated() {
        VertexArray normals = new VertexArray(4, 3, 1);
        normals.set(0, 4, new byte[] {127, 0, 0, 0, 127, 0, 0, 0, 127, 0, 0, 127});
        mesh.getVertexBuffer().setNormals(normals);
        VertexArray coords = new VertexArray(4, 2, 2);
        coords.set(0, 4, new short[] {0, 0, 10, 0, 0, 10, 10, 10});
        mesh.getVertexBuffer().setTexCoords(0, coords, 0.1f, null);
        assertTrue(group.pick(-1, 0.2f, -0.4f, 5, 0.2f, -0.4f, 4, hit));
        float length = (float) Math.sqrt(0.01 + 0.36 + 0.09);
        assertEquals(0.1f / length, hit.getNormalX(), 1e-4f);
        assertEquals(0.6f / length, hit.getNormalY(), 1e-4f);
        assertEquals(0.3f / length, hit.getNormalZ(), 1e-4f);
        assertEquals(0.6f, hit.getTextureS(0), 1e-4f);
        assertEquals(0.3f, hit.getTextureT(0), 1e-4f);
    }

    @Test
    public void aCameraPicksThroughItsPicture() {
        Camera camera = new Camera();
        camera.setPerspective(90, 1, 1, 100);
        camera.setTranslation(0, 0, 10);
        group.addChild(camera);
        mesh.setScale(4, 4, 1);
        assertTrue(group.pick(-1, 0.55f, 0.45f, camera, hit));
        float[] ray = new float[6];
        hit.getRay(ray);
        assertArrayEquals(new float[] {0, 0, 10, 0.2f, 0.2f, 9}, ray, 1e-4f);
        assertFalse(group.pick(-1, 0.95f, 0.5f, camera, null));
    }

    @Test
    public void picksNeedACameraThatCanBeInverted() {
        assertIllegalArgument("Group.pick called with null camera argument ",
                () -> group.pickN(group.handle, -1, 0.5f, 0.5f, 0, 0));
        assertThrows(NullPointerException.class, () -> group.pick(-1, 0.5f, 0.5f, null, hit));
        Camera camera = new Camera();
        Transform zero = new Transform();
        zero.set(new float[16]);
        camera.setGeneric(zero);
        assertFails(ArithmeticException.class,
                "Unable to invert matrix -- singularity encountered in the matrix",
                () -> group.pick(-1, 0.5f, 0.5f, camera, hit));
    }

    @Test
    public void aSpriteIsNeverPicked() {
        group.removeChild(mesh);
        group.addChild(new Sprite3D(true, new Image2D(Image2D.RGB, 4, 4), new Appearance()));
        assertFalse(pick(hit));
    }
}
