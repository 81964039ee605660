package javax.microedition.m3g;

/** A node that looks at the scene through a projection. */
public class Camera extends Node {
    public static final int GENERIC = 48;
    public static final int PARALLEL = 49;
    public static final int PERSPECTIVE = 50;

    private static final int PARAMETERS = 4;

    public Camera() {
        this(createCamera());
    }

    Camera(long handle) {
        super(handle);
    }

    /** Writes the projection matrix, unless the argument is null, and answers the type. */
    public int getProjection(Transform transform) {
        return getProjectionN(handle, Transform.handleOf(transform));
    }

    /**
     * Writes fovy, aspect ratio, near and far of a parallel or perspective projection, unless the
     * argument is null, and answers the type.
     *
     * @throws IllegalArgumentException if the array is too short
     */
    public int getProjection(float[] params) {
        if (params != null && params.length < PARAMETERS) {
            throw new IllegalArgumentException("A projection has 4 parameters");
        }
        return getProjectionN(handle, params);
    }

    public void setGeneric(Transform transform) {
        setGenericN(handle, transform.handle);
    }

    /** @throws IllegalArgumentException unless fovy and the aspect ratio are above 0 */
    public void setParallel(float fovy, float aspectRatio, float near, float far) {
        setParallelN(handle, fovy, aspectRatio, near, far);
    }

    /**
     * @throws IllegalArgumentException unless 0 &lt; fovy &lt; 180, 0 &lt; near &lt; far and the
     *     aspect ratio is not negative
     */
    public void setPerspective(float fovy, float aspectRatio, float near, float far) {
        setPerspectiveN(handle, fovy, aspectRatio, near, far);
    }

    static native long createCamera();

    native int getProjectionN(long handle, long transform);

    native int getProjectionN(long handle, float[] params);

    native void setGenericN(long handle, long transform);

    native void setParallelN(long handle, float fovy, float aspectRatio, float near, float far);

    native void setPerspectiveN(long handle, float fovy, float aspectRatio, float near, float far);
}
