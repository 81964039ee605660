package javax.microedition.m3g;

/** The colours of a lit surface. */
public class Material extends Object3D {
    public static final int AMBIENT = 1024;
    public static final int DIFFUSE = 2048;
    public static final int EMISSIVE = 4096;
    public static final int SPECULAR = 8192;

    public Material() {
        this(createMaterialN());
    }

    Material(long handle) {
        super(handle);
    }

    /** @throws IllegalArgumentException if the target is not exactly one of the four */
    public int getColor(int target) {
        return getColorN(handle, target);
    }

    public float getShininess() {
        return getShininessN(handle);
    }

    public boolean isVertexColorTrackingEnabled() {
        return isVertexColorTrackingEnabledN(handle);
    }

    /**
     * Sets the colours of all targets that the bit mask holds.
     *
     * @throws IllegalArgumentException if the mask holds any other bit
     */
    public void setColor(int target, int ARGB) {
        setColorN(handle, target, ARGB);
    }

    public void setShininess(float shininess) {
        setShininessN(handle, shininess);
    }

    public void setVertexColorTrackingEnable(boolean enable) {
        setVertexColorTrackingEnableN(handle, enable);
    }

    static native long createMaterialN();

    native int getColorN(long handle, int target);

    native float getShininessN(long handle);

    native boolean isVertexColorTrackingEnabledN(long handle);

    native void setColorN(long handle, int target, int color);

    native void setShininessN(long handle, float shininess);

    native void setVertexColorTrackingEnableN(long handle, boolean enable);
}
