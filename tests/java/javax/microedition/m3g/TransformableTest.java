package javax.microedition.m3g;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** Translation, scale, orientation and general matrix through the natives. */
public class TransformableTest {
    private static float[] orientation(Transformable object) {
        float[] angleAxis = {-1, -1, -1, -1};
        object.getOrientation(angleAxis);
        return angleAxis;
    }

    private static float[] composite(Transformable object) {
        Transform transform = new Transform();
        object.getCompositeTransform(transform);
        float[] rows = new float[16];
        transform.get(rows);
        return rows;
    }

    private static Transform nonAffine() {
        Transform transform = new Transform();
        transform.set(new float[] {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2});
        return transform;
    }

    @Test
    public void aNewObjectHasTheIdentityAndNoOrientation() {
        Group group = new Group();
        assertArrayEquals(new float[] {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1},
                composite(group), 0);
        assertArrayEquals(new float[4], orientation(group), 0);
    }

    @Test
    public void anOrientationNeedsAnAxis() {
        Group group = new Group();
        IllegalArgumentException e = assertThrows(
                IllegalArgumentException.class, () -> group.setOrientation(90, 0, 0, 0));
        assertEquals("setOrientation called with zero length rotation vector. ", e.getMessage());
        e = assertThrows(IllegalArgumentException.class, () -> group.preRotate(90, 0, 0, 0));
        assertEquals("preRotate called with zero length rotation vector. ", e.getMessage());
        e = assertThrows(IllegalArgumentException.class, () -> group.postRotate(90, 0, 0, 0));
        assertEquals("postRotate called with zero length rotation vector. ", e.getMessage());
        group.setOrientation(0, 0, 0, 0);
    }

    @Test
    public void aNegativeAngleComesBackReversed() {
        Group group = new Group();
        group.setOrientation(-90, 0, 0, 1);
        assertArrayEquals(new float[] {90, 0, 0, -1}, orientation(group), 1e-4f);
    }

    @Test
    public void theAxisKeepsItsLengthAndTheCompositeIgnoresIt() {
        Group group = new Group();
        group.setOrientation(90, 0, 0, 2);
        assertArrayEquals(new float[] {90, 0, 0, 2}, orientation(group), 1e-4f);
        assertArrayEquals(new float[] {0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1},
                composite(group), 1e-6f);
    }

    @Test
    public void rotationsBeforeAndAfterDiffer() {
        Group pre = new Group();
        pre.setOrientation(90, 1, 0, 0);
        pre.preRotate(90, 0, 0, 1);
        Group post = new Group();
        post.setOrientation(90, 1, 0, 0);
        post.postRotate(90, 0, 0, 1);
        Transform z = new Transform();
        z.postRotate(90, 0, 0, 1);
        z.postRotate(90, 1, 0, 0);
        float[] rows = new float[16];
        z.get(rows);
        assertArrayEquals(rows, composite(pre), 1e-6f);
        Transform x = new Transform();
        x.postRotate(90, 1, 0, 0);
        x.postRotate(90, 0, 0, 1);
        x.get(rows);
        assertArrayEquals(rows, composite(post), 1e-6f);
    }

    @Test
    public void translationAndScaleAreStored() {
        Group group = new Group();
        group.setTranslation(1, 2, 3);
        group.translate(1, 1, 1);
        group.setScale(1, 2, 3);
        group.scale(2, 2, 2);
        float[] xyz = new float[3];
        group.getTranslation(xyz);
        assertArrayEquals(new float[] {2, 3, 4}, xyz, 0);
        group.getScale(xyz);
        assertArrayEquals(new float[] {2, 4, 6}, xyz, 0);
        assertArrayEquals(new float[] {2, 0, 0, 2, 0, 4, 0, 3, 0, 0, 6, 4, 0, 0, 0, 1},
                composite(group), 0);
    }

    @Test
    public void theGeneralTransformComesBackAndNullIsTheIdentity() {
        Group group = new Group();
        Transform transform = new Transform();
        transform.postTranslate(1, 2, 3);
        group.setTransform(transform);
        Transform out = new Transform();
        group.getTransform(out);
        float[] rows = new float[16];
        out.get(rows);
        assertArrayEquals(new float[] {1, 0, 0, 1, 0, 1, 0, 2, 0, 0, 1, 3, 0, 0, 0, 1}, rows, 0);
        group.setTransform(null);
        group.getTransform(out);
        out.get(rows);
        assertArrayEquals(new float[] {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, rows, 0);
    }

    @Test
    public void aNodeRefusesANonAffineTransform() {
        Group group = new Group();
        IllegalArgumentException e = assertThrows(
                IllegalArgumentException.class, () -> group.setTransform(nonAffine()));
        assertEquals("Non-affine transform applied to Node", e.getMessage());
    }

    /** Gives a node a non-affine transform past the test of the Java side. */
    static final class NonAffine {
        public static void main(String[] args) {
            Group group = new Group();
            System.out.println("before");
            group.setTransformN(group.handle, nonAffine().handle);
            System.out.println("after");
        }
    }

    @Test
    public void aNonAffineTransformPastTheJavaSideEndsTheProcess() throws Exception {
        ChildJvm.Result result = ChildJvm.run(NonAffine.class);
        assertTrue(result.toString(),
                result.err.contains("Non-affine transform applied to Node"));
        assertTrue(result.toString(), result.out.contains("before"));
        assertFalse(result.toString(), result.out.contains("after"));
    }

    @Test
    public void aTextureTakesAnyTransform() {
        Texture2D texture = new Texture2D(new Image2D(Image2D.RGB, 4, 4));
        texture.setTransform(nonAffine());
        assertEquals(2, composite(texture)[15], 0);
    }

    @Test
    public void aScaleOfZeroMakesTheCompositeSingular() {
        Group group = new Group();
        group.scale(0, 0, 0);
        assertArrayEquals(new float[] {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1},
                composite(group), 0);
    }

    @Test
    public void shortArraysAreRefused() {
        Group group = new Group();
        assertThrows(IllegalArgumentException.class, () -> group.getOrientation(new float[3]));
        assertThrows(IllegalArgumentException.class, () -> group.getScale(new float[2]));
        assertThrows(IllegalArgumentException.class, () -> group.getTranslation(new float[2]));
        assertThrows(NullPointerException.class, () -> group.getScale(null));
    }
}
