package javax.microedition.m3g;

/** The fog of an appearance. */
public class Fog extends Object3D {
    public static final int EXPONENTIAL = 80;
    public static final int LINEAR = 81;

    public Fog() {
        this(createFogN());
    }

    Fog(long handle) {
        super(handle);
    }

    public int getColor() {
        return getColorN(handle);
    }

    public float getDensity() {
        return getDensityN(handle);
    }

    public float getFarDistance() {
        return getFarDistanceN(handle);
    }

    public int getMode() {
        return getModeN(handle);
    }

    public float getNearDistance() {
        return getNearDistanceN(handle);
    }

    public void setColor(int RGB) {
        setColorN(handle, RGB);
    }

    /** @throws IllegalArgumentException if the density is negative */
    public void setDensity(float density) {
        setDensityN(handle, density);
    }

    public void setLinear(float near, float far) {
        setLinearN(handle, near, far);
    }

    public void setMode(int mode) {
        setModeN(handle, mode);
    }

    static native long createFogN();

    native int getColorN(long handle);

    native float getDensityN(long handle);

    native float getFarDistanceN(long handle);

    native int getModeN(long handle);

    native float getNearDistanceN(long handle);

    native void setColorN(long handle, int color);

    native void setDensityN(long handle, float density);

    native void setLinearN(long handle, float near, float far);

    native void setModeN(long handle, int mode);
}
