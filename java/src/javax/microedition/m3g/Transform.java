package javax.microedition.m3g;

/** A 4 x 4 matrix, in row-major order where it is an array. */
public class Transform {
    static {
        Engine.start();
    }

    private static final int ELEMENTS = 16;

    /** Names the native matrix, which belongs to this object. */
    final long handle;

    /** The identity. */
    public Transform() {
        this(createTransformN());
    }

    /** A copy. */
    public Transform(Transform transform) {
        this(createTransformN(transform.handle));
    }

    private Transform(long handle) {
        this.handle = handle;
        Disposer.register(this, handle, Transform::destroyTransformN);
    }

    /** The handle of a transform, 0 for null. */
    static long handleOf(Transform transform) {
        return transform == null ? 0 : transform.handle;
    }

    public void get(float[] matrix) {
        requireLength(matrix);
        getN(handle, matrix);
    }

    public void invert() {
        invertN(handle);
    }

    public void postMultiply(Transform transform) {
        postMultiplyN(handle, transform.handle);
    }

    /**
     * Rotates by an angle in degrees.
     *
     * @throws IllegalArgumentException if the axis is zero and the angle is not
     */
    public void postRotate(float angle, float ax, float ay, float az) {
        if (angle != 0 && ax == 0 && ay == 0 && az == 0) {
            throw new IllegalArgumentException(
                    "Transform.postRotate rotation axis is zero vector ");
        }
        postRotateN(handle, angle, ax, ay, az);
    }

    /**
     * Rotates by a quaternion, which is used as it is.
     *
     * @throws IllegalArgumentException if all of it is zero
     */
    public void postRotateQuat(float qx, float qy, float qz, float qw) {
        if (qx == 0 && qy == 0 && qz == 0 && qw == 0) {
            throw new IllegalArgumentException("Transform.postRotateQuat quaternion is all zero");
        }
        postRotateQuatN(handle, qx, qy, qz, qw);
    }

    public void postScale(float sx, float sy, float sz) {
        postScaleN(handle, sx, sy, sz);
    }

    /** Adds a translation that the present transform neither rotates nor scales. */
    public void postTranslate(float tx, float ty, float tz) {
        postTranslateN(handle, tx, ty, tz);
    }

    public void set(float[] matrix) {
        requireLength(matrix);
        setN(handle, matrix);
    }

    public void set(Transform transform) {
        setN(handle, transform.handle);
    }

    public void setIdentity() {
        setIdentityN(handle);
    }

    /**
     * Transforms vectors of four elements in place.
     *
     * @throws IllegalArgumentException if the length is no multiple of 4
     */
    public void transform(float[] vectors) {
        if (vectors.length % 4 != 0) {
            throw new IllegalArgumentException(
                    "Transform.transform called with vertex array of improper length."
                            + "  Must be multiple of 3");
        }
        transformN(handle, vectors);
    }

    public void transform(VertexArray in, float[] out, boolean w) {
        if (out == null) {
            throw new NullPointerException();
        }
        transformN(handle, in.handle, out, w);
    }

    public void transpose() {
        transposeN(handle);
    }

    private static void requireLength(float[] matrix) {
        if (matrix.length < ELEMENTS) {
            throw new IllegalArgumentException("A matrix has 16 elements");
        }
    }

    static native long createTransformN();

    static native long createTransformN(long transform);

    static native void destroyTransformN(long handle);

    native void getN(long handle, float[] matrix);

    native void invertN(long handle);

    native void postMultiplyN(long handle, long transform);

    native void postRotateN(long handle, float angle, float ax, float ay, float az);

    native void postRotateQuatN(long handle, float qx, float qy, float qz, float qw);

    native void postScaleN(long handle, float sx, float sy, float sz);

    native void postTranslateN(long handle, float tx, float ty, float tz);

    native void setIdentityN(long handle);

    native void setN(long handle, long transform);

    native void setN(long handle, float[] matrix);

    native void transformN(long handle, long in, float[] out, boolean w);

    native void transformN(long handle, float[] vectors);

    native void transposeN(long handle);
}
