package javax.microedition.m3g;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.util.Arrays;
import org.junit.Test;

/** Matrices through the natives. */
public class TransformTest {
    private static final float[] IDENTITY = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    private static Transform transformOf(float... rows) {
        Transform transform = new Transform();
        transform.set(rows);
        return transform;
    }

    private static float[] rows(Transform transform) {
        float[] rows = new float[16];
        transform.get(rows);
        return rows;
    }

    private static void assertRows(Transform transform, double tolerance, float... rows) {
        assertArrayEquals(rows, rows(transform), (float) tolerance);
    }

    @Test
    public void aNewTransformIsTheIdentity() {
        assertRows(new Transform(), 0, IDENTITY);
    }

    @Test
    public void aCopyHasItsOwnElements() {
        Transform transform = new Transform();
        transform.postTranslate(1, 2, 3);
        Transform copy = new Transform(transform);
        transform.setIdentity();
        assertRows(copy, 0, 1, 0, 0, 1, 0, 1, 0, 2, 0, 0, 1, 3, 0, 0, 0, 1);
        transform.set(copy);
        assertArrayEquals(rows(copy), rows(transform), 0);
    }

    @Test
    public void destroyingACopyLeavesItsSource() {
        Transform source = new Transform();
        source.postTranslate(1, 2, 3);
        long copy = Transform.createTransformN(source.handle);
        float[] elements = new float[16];
        source.getN(copy, elements);
        assertArrayEquals(Shapes.translation(1, 2, 3), elements, 0);
        Transform.destroyTransformN(copy);
        assertArrayEquals(Shapes.translation(1, 2, 3), Shapes.elements(source), 0);
        Transform.destroyTransformN(0);
    }

    @Test
    public void arraysAreRowByRow() {
        float[] rows = new float[16];
        for (int i = 0; i < 16; i++) {
            rows[i] = i;
        }
        Transform transform = transformOf(rows);
        assertArrayEquals(rows, rows(transform), 0);
        transform.transpose();
        assertRows(transform, 0, 0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
    }

    @Test
    public void longerArraysAreTaken() {
        float[] rows = Arrays.copyOf(IDENTITY, 20);
        transformOf(rows).get(rows);
        assertThrows(IllegalArgumentException.class, () -> new Transform().get(new float[15]));
        assertThrows(IllegalArgumentException.class, () -> new Transform().set(new float[15]));
        assertThrows(NullPointerException.class, () -> new Transform().set((float[]) null));
    }

    @Test
    public void theIdentityThatWasSetCanBeInverted() {
        Transform transform = transformOf(IDENTITY);
        transform.invert();
        assertRows(transform, 0, IDENTITY);
    }

    @Test
    public void aZeroColumnCannotBeInverted() {
        float[] singular = {1, 0, 2, 3, 4, 0, 5, 6, 7, 0, 8, 9, 1, 0, 2, 5};
        Transform transform = transformOf(singular);
        ArithmeticException e = assertThrows(ArithmeticException.class, transform::invert);
        assertEquals("Unable to invert matrix", e.getMessage());
        assertRows(transform, 0, singular);
    }

    @Test
    public void aZeroRowIsInvertedToHugeValues() {
        Transform transform = transformOf(1, 2, 3, 4, 5, 6, 7, 9, 2, 1, 3, 1, 0, 0, 0, 0);
        transform.invert();
        float largest = 0;
        for (float element : rows(transform)) {
            largest = Math.max(largest, Math.abs(element));
        }
        assertTrue(largest > 1e30f);
    }

    @Test
    public void multiplyingByItselfIsNotTheSquare() {
        Transform transform = transformOf(1, 2, 0, 0, 3, 4, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
        Transform square = new Transform(transform);
        square.postMultiply(new Transform(transform));
        assertRows(square, 0, 7, 10, 0, 0, 15, 22, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
        transform.postMultiply(transform);
        assertFalse(Arrays.equals(rows(square), rows(transform)));
        Transform identity = new Transform();
        identity.postMultiply(identity);
        assertRows(identity, 0, IDENTITY);
    }

    @Test
    public void aTranslationIsNotTurnedByTheRotationBefore() {
        Transform transform = new Transform();
        transform.postRotate(90, 0, 0, 1);
        transform.postTranslate(1, 0, 0);
        assertRows(transform, 1e-7, 0, -1, 0, 1, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
    }

    @Test
    public void aRealQuaternionRotatesNothing() {
        Transform transform = new Transform();
        transform.postRotateQuat(0, 0, 0, 2);
        assertRows(transform, 0, IDENTITY);
    }

    @Test
    public void quaternionsAreNotNormalised() {
        Transform one = new Transform();
        one.postRotateQuat(1, 0, 0, 0);
        Transform two = new Transform();
        two.postRotateQuat(2, 0, 0, 0);
        assertRows(one, 0, 1, 0, 0, 0, 0, -1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 1);
        assertRows(two, 0, 1, 0, 0, 0, 0, -7, 0, 0, 0, 0, -7, 0, 0, 0, 0, 1);
    }

    @Test
    public void rotationsNeedAnAxis() {
        Transform transform = new Transform();
        assertThrows(IllegalArgumentException.class, () -> transform.postRotate(1, 0, 0, 0));
        transform.postRotate(0, 0, 0, 0);
        assertThrows(IllegalArgumentException.class, () -> transform.postRotateQuat(0, 0, 0, 0));
        assertRows(transform, 0, IDENTITY);
    }

    @Test
    public void scalesMultiplyColumns() {
        Transform transform = transformOf(1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 1);
        transform.postScale(2, 3, 4);
        assertRows(transform, 0, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 0, 0, 0, 1);
    }

    @Test
    public void vectorsAreTransformedInGroupsOfFour() {
        Transform transform = new Transform();
        transform.postTranslate(10, 20, 30);
        float[] vectors = {1, 2, 3, 1, 1, 2, 3, 0};
        transform.transform(vectors);
        assertArrayEquals(new float[] {11, 22, 33, 1, 1, 2, 3, 0}, vectors, 0);
        assertThrows(IllegalArgumentException.class, () -> transform.transform(new float[6]));
    }

    /** Transforms six floats past the test of the Java side. */
    static final class SixFloats {
        public static void main(String[] args) {
            Transform transform = new Transform();
            transform.transformN(transform.handle, new float[8]);
            System.out.println("before");
            transform.transformN(transform.handle, new float[6]);
            System.out.println("after");
        }
    }

    @Test
    public void sixFloatsPastTheJavaSideEndTheProcess() throws Exception {
        ChildJvm.Result result = ChildJvm.run(SixFloats.class);
        assertTrue(result.toString(), result.err.contains("Transform.transform called with vertex"
                + " array of improper length.  Must be multiple of 3"));
        assertTrue(result.toString(), result.out.contains("before"));
        assertFalse(result.toString(), result.out.contains("after"));
    }

    @Test
    public void everyVertexBecomesTheFirstOne() {
        VertexArray vertices = new VertexArray(5, 3, 1);
        vertices.set(0, 5, new byte[] {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
        Transform transform = new Transform();
        transform.postTranslate(10, 20, 30);
        float[] out = new float[21];
        out[20] = -1;
        transform.transform(vertices, out, true);
        for (int i = 0; i < 20; i += 4) {
            assertArrayEquals(new float[] {11, 22, 33, 1}, Arrays.copyOfRange(out, i, i + 4), 0);
        }
        assertEquals(-1, out[20], 0);
        transform.transform(vertices, out, false);
        assertArrayEquals(new float[] {1, 2, 3, 0}, Arrays.copyOfRange(out, 16, 20), 0);
    }

    @Test
    public void verticesNeedRoom() {
        VertexArray vertices = new VertexArray(5, 4, 1);
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                () -> new Transform().transform(vertices, new float[19], true));
        assertEquals("Array length too short in transform method", e.getMessage());
    }

    @Test
    public void verticesHaveAtMostThreeComponents() {
        VertexArray vertices = new VertexArray(5, 4, 1);
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                () -> new Transform().transform(vertices, new float[20], true));
        assertEquals("May only transform 2 or 3 dimensional vertex arrays.", e.getMessage());
    }
}
