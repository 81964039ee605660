package javax.microedition.m3g;

/** How fragments are combined with the frame buffer. */
public class CompositingMode extends Object3D {
    public static final int ALPHA = 64;
    public static final int ALPHA_ADD = 65;
    public static final int MODULATE = 66;
    public static final int MODULATE_X2 = 67;
    public static final int REPLACE = 68;

    public CompositingMode() {
        this(createCompositingModeN());
    }

    CompositingMode(long handle) {
        super(handle);
    }

    public float getAlphaThreshold() {
        return getAlphaThresholdN(handle);
    }

    public int getBlending() {
        return getBlendingN(handle);
    }

    public float getDepthOffsetFactor() {
        return getDepthOffsetFactorN(handle);
    }

    public float getDepthOffsetUnits() {
        return getDepthOffsetUnitsN(handle);
    }

    public boolean isAlphaWriteEnabled() {
        return isAlphaWriteEnabledN(handle);
    }

    public boolean isColorWriteEnabled() {
        return isColorWriteEnabledN(handle);
    }

    public boolean isDepthTestEnabled() {
        return isDepthTestEnabledN(handle);
    }

    public boolean isDepthWriteEnabled() {
        return isDepthWriteEnabledN(handle);
    }

    /** @throws IllegalArgumentException if the threshold is outside 0 to 1 */
    public void setAlphaThreshold(float threshold) {
        setAlphaThresholdN(handle, threshold);
    }

    public void setAlphaWriteEnable(boolean enable) {
        setAlphaWriteEnableN(handle, enable);
    }

    public void setBlending(int mode) {
        setBlendingN(handle, mode);
    }

    public void setColorWriteEnable(boolean enable) {
        setColorWriteEnableN(handle, enable);
    }

    public void setDepthOffset(float factor, float units) {
        setDepthOffsetN(handle, factor, units);
    }

    public void setDepthTestEnable(boolean enable) {
        setDepthTestEnableN(handle, enable);
    }

    public void setDepthWriteEnable(boolean enable) {
        setDepthWriteEnableN(handle, enable);
    }

    static native long createCompositingModeN();

    native float getAlphaThresholdN(long handle);

    native int getBlendingN(long handle);

    native float getDepthOffsetFactorN(long handle);

    native float getDepthOffsetUnitsN(long handle);

    native boolean isAlphaWriteEnabledN(long handle);

    native boolean isColorWriteEnabledN(long handle);

    native boolean isDepthTestEnabledN(long handle);

    native boolean isDepthWriteEnabledN(long handle);

    native void setAlphaThresholdN(long handle, float threshold);

    native void setAlphaWriteEnableN(long handle, boolean enable);

    native void setBlendingN(long handle, int mode);

    native void setColorWriteEnableN(long handle, boolean enable);

    native void setDepthOffsetN(long handle, float factor, float units);

    native void setDepthTestEnableN(long handle, boolean enable);

    native void setDepthWriteEnableN(long handle, boolean enable);
}
