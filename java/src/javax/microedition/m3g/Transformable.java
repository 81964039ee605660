package javax.microedition.m3g;

/** An object with a translation, a scale, an orientation and a general matrix. */
public abstract class Transformable extends Object3D {
    Transformable(long handle) {
        super(handle);
    }

    public void getCompositeTransform(Transform transform) {
        getCompositeTransformN(handle, transform.handle);
    }

    /** Writes the angle in degrees and the axis. */
    public void getOrientation(float[] angleAxis) {
        requireLength(angleAxis, 4);
        getOrientationN(handle, angleAxis);
    }

    public void getScale(float[] xyz) {
        requireLength(xyz, 3);
        getScaleN(handle, xyz);
    }

    public void getTransform(Transform transform) {
        getTransformN(handle, transform.handle);
    }

    public void getTranslation(float[] xyz) {
        requireLength(xyz, 3);
        getTranslationN(handle, xyz);
    }

    /** @throws IllegalArgumentException if the axis is zero and the angle is not */
    public void postRotate(float angle, float ax, float ay, float az) {
        requireAxis(angle, ax, ay, az, "postRotate");
        postRotateN(handle, angle, ax, ay, az);
    }

    /** @throws IllegalArgumentException if the axis is zero and the angle is not */
    public void preRotate(float angle, float ax, float ay, float az) {
        requireAxis(angle, ax, ay, az, "preRotate");
        preRotateN(handle, angle, ax, ay, az);
    }

    public void scale(float sx, float sy, float sz) {
        scaleN(handle, sx, sy, sz);
    }

    /** @throws IllegalArgumentException if the axis is zero and the angle is not */
    public void setOrientation(float angle, float ax, float ay, float az) {
        requireAxis(angle, ax, ay, az, "setOrientation");
        setOrientationN(handle, angle, ax, ay, az);
    }

    public void setScale(float sx, float sy, float sz) {
        setScaleN(handle, sx, sy, sz);
    }

    /**
     * Sets the general matrix; null stands for the identity.
     *
     * @throws IllegalArgumentException if this is a node and the matrix is not affine
     */
    public void setTransform(Transform transform) {
        if (transform != null && this instanceof Node) {
            float[] matrix = new float[16];
            transform.get(matrix);
            if (matrix[12] != 0 || matrix[13] != 0 || matrix[14] != 0 || matrix[15] != 1) {
                throw new IllegalArgumentException("Non-affine transform applied to Node");
            }
        }
        setTransformN(handle, Transform.handleOf(transform));
    }

    public void setTranslation(float tx, float ty, float tz) {
        setTranslationN(handle, tx, ty, tz);
    }

    public void translate(float tx, float ty, float tz) {
        translateN(handle, tx, ty, tz);
    }

    private static void requireLength(float[] array, int length) {
        if (array.length < length) {
            throw new IllegalArgumentException("The array must hold " + length + " elements");
        }
    }

    private static void requireAxis(float angle, float ax, float ay, float az, String method) {
        if (angle != 0 && ax == 0 && ay == 0 && az == 0) {
            throw new IllegalArgumentException(
                    method + " called with zero length rotation vector. ");
        }
    }

    native void getCompositeTransformN(long handle, long transform);

    native void getOrientationN(long handle, float[] angleAxis);

    native void getScaleN(long handle, float[] xyz);

    native void getTransformN(long handle, long transform);

    native void getTranslationN(long handle, float[] xyz);

    native void postRotateN(long handle, float angle, float ax, float ay, float az);

    native void preRotateN(long handle, float angle, float ax, float ay, float az);

    native void scaleN(long handle, float sx, float sy, float sz);

    native void setOrientationN(long handle, float angle, float ax, float ay, float az);

    native void setScaleN(long handle, float sx, float sy, float sz);

    native void setTransformN(long handle, long transform);

    native void setTranslationN(long handle, float tx, float ty, float tz);

    native void translateN(long handle, float tx, float ty, float tz);
}
