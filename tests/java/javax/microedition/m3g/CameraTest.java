package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Shapes.elements;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;

import org.junit.Test;

/** The natives of Camera. */
public class CameraTest {
    private final Camera camera = new Camera();
    private final Transform out = new Transform();

    private int type() {
        return camera.getProjection((float[]) null);
    }

    @Test
    public void startsGenericWithTheIdentity() {
        assertEquals(Camera.GENERIC, camera.getProjection(out));
        assertArrayEquals(elements(new Transform()), elements(out), 0f);
    }

    @Test
    public void aNearOfZeroFailsAndTheTypeChanges() {
        assertIllegalArgument("Camera.setPerspective - near argument must be >= 0.0",
                () -> camera.setPerspective(60, 1, 0, 10));
        assertEquals(Camera.PERSPECTIVE, type());
        camera.getProjection(out);
        assertArrayEquals(elements(new Transform()), elements(out), 0f);
    }

    @Test
    public void nearEqualToFarFailsWithATextOnFar() {
        assertIllegalArgument("Camera.setPerspective - far argument must be >= 0.0",
                () -> camera.setPerspective(60, 1, 5, 5));
    }

    @Test
    public void badPerspectivesFailInTheirOrder() {
        assertIllegalArgument(
                "Camera.setPerspective - fovy argument must be less than 180 degrees",
                () -> camera.setPerspective(180, -1, 0, 0));
        assertIllegalArgument("Camera.setPerspective - fovy argument must be >= 0.0",
                () -> camera.setPerspective(0, -1, 0, 0));
        assertIllegalArgument("Camera.setPerspective - aspectRatio argument must be >= 0.0",
                () -> camera.setPerspective(60, -1, 5, 5));
    }

    @Test
    public void aParallelViewOfNoDepthIsNotFinite() {
        camera.setParallel(2, 1, 5, 5);
        camera.getProjection(out);
        float[] rows = elements(out);
        assertFalse(Float.isFinite(rows[10]));
        assertFalse(Float.isFinite(rows[11]));
    }

    @Test
    public void badParallelViewsFail() {
        assertIllegalArgument("Camera.setParallel - fovy argument must be >= 0.0",
                () -> camera.setParallel(0, 1, 1, 2));
        assertIllegalArgument("Camera.setParallel - aspectRatio argument must be >= 0.0",
                () -> camera.setParallel(1, 0, 1, 2));
        assertEquals(Camera.GENERIC, type());
    }

    @Test
    public void parallelAfterPerspectiveStartsAnew() {
        camera.setPerspective(60, 1, 1, 10);
        camera.getProjection(out);
        assertEquals(-1f, elements(out)[14], 0f);
        camera.setParallel(4, 2, -1, 3);
        camera.getProjection(out);
        assertArrayEquals(new float[] {0.25f, 0, 0, 0, 0, 0.5f, 0, 0, 0, 0, -0.5f, -0.5f, 0, 0, 0, 1},
                elements(out), 0f);
    }

    @Test
    public void aSecondParallelViewReplacesTheFirst() {
        camera.setParallel(7, 3, 2, 90);
        camera.setParallel(4, 2, -1, 3);
        camera.getProjection(out);
        assertArrayEquals(new float[] {0.25f, 0, 0, 0, 0, 0.5f, 0, 0, 0, 0, -0.5f, -0.5f, 0, 0, 0, 1},
                elements(out), 0f);
    }

    @Test
    public void parametersAreReadBack() {
        camera.setPerspective(60, 1.5f, 1, 10);
        float[] params = new float[4];
        assertEquals(Camera.PERSPECTIVE, camera.getProjection(params));
        assertArrayEquals(new float[] {60, 1.5f, 1, 10}, params, 0f);
        assertEquals(Camera.PERSPECTIVE, type());
        assertEquals(Camera.PERSPECTIVE, camera.getProjection((Transform) null));
    }

    @Test
    public void aGenericCameraHasNoParameters() {
        float[] params = {9, 9, 9, 9};
        assertEquals(Camera.GENERIC, camera.getProjection(params));
        assertArrayEquals(new float[] {9, 9, 9, 9}, params, 0f);
    }

    @Test
    public void aGenericProjectionIsReadBack() {
        float[] rows = new float[16];
        for (int i = 0; i < 16; ++i) {
            rows[i] = i + 1;
        }
        Transform transform = new Transform();
        transform.set(rows);
        camera.setGeneric(transform);
        assertEquals(Camera.GENERIC, camera.getProjection(out));
        assertArrayEquals(rows, elements(out), 0f);
    }

    @Test
    public void aNewTransformStillCountsAsTheIdentity() {
        camera.setParallel(4, 2, -1, 3);
        camera.getProjection(out);
        float[] v = {1, 2, 3, 1};
        out.transform(v);
        assertArrayEquals(new float[] {1, 2, 3, 1}, v, 0f);
    }

    @Test
    public void aDuplicateHasTheSameProjection() {
        camera.setPerspective(60, 1, 1, 10);
        Camera copy = (Camera) camera.duplicate();
        float[] params = new float[4];
        assertEquals(Camera.PERSPECTIVE, copy.getProjection(params));
        assertArrayEquals(new float[] {60, 1, 1, 10}, params, 0f);
        Transform other = new Transform();
        camera.getProjection(out);
        copy.getProjection(other);
        assertArrayEquals(elements(out), elements(other), 0f);
    }
}
