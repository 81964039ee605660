package javax.microedition.m3g;

/** How polygons are culled, shaded and lit. */
public class PolygonMode extends Object3D {
    public static final int CULL_BACK = 160;
    public static final int CULL_FRONT = 161;
    public static final int CULL_NONE = 162;
    public static final int SHADE_FLAT = 164;
    public static final int SHADE_SMOOTH = 165;
    public static final int WINDING_CCW = 168;
    public static final int WINDING_CW = 169;

    public PolygonMode() {
        this(createPolygonModeN());
    }

    PolygonMode(long handle) {
        super(handle);
    }

    public int getCulling() {
        return getCullingN(handle);
    }

    public int getShading() {
        return getShadingN(handle);
    }

    public int getWinding() {
        return getWindingN(handle);
    }

    public boolean isLocalCameraLightingEnabled() {
        return isLocalCameraLightingEnabledN(handle);
    }

    public boolean isPerspectiveCorrectionEnabled() {
        return isPerspectiveCorrectionEnabledN(handle);
    }

    public boolean isTwoSidedLightingEnabled() {
        return isTwoSidedLightingEnabledN(handle);
    }

    public void setCulling(int mode) {
        setCullingN(handle, mode);
    }

    public void setLocalCameraLightingEnable(boolean enable) {
        setLocalCameraLightingEnableN(handle, enable);
    }

    public void setPerspectiveCorrectionEnable(boolean enable) {
        setPerspectiveCorrectionEnableN(handle, enable);
    }

    public void setShading(int mode) {
        setShadingN(handle, mode);
    }

    public void setTwoSidedLightingEnable(boolean enable) {
        setTwoSidedLightingEnableN(handle, enable);
    }

    public void setWinding(int mode) {
        setWindingN(handle, mode);
    }

    static native long createPolygonModeN();

    native int getCullingN(long handle);

    native int getShadingN(long handle);

    native int getWindingN(long handle);

    native boolean isLocalCameraLightingEnabledN(long handle);

    native boolean isPerspectiveCorrectionEnabledN(long handle);

    native boolean isTwoSidedLightingEnabledN(long handle);

    native void setCullingN(long handle, int mode);

    native void setLocalCameraLightingEnableN(long handle, boolean enable);

    native void setPerspectiveCorrectionEnableN(long handle, boolean enable);

    native void setShadingN(long handle, int mode);

    native void setTwoSidedLightingEnableN(long handle, boolean enable);

    native void setWindingN(long handle, int mode);
}
