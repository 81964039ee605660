package javax.microedition.m3g;

/** A node that lights the scene. A spot light shines along its positive z axis. */
public class Light extends Node {
    public static final int AMBIENT = 128;
    public static final int DIRECTIONAL = 129;
    public static final int OMNI = 130;
    public static final int SPOT = 131;

    public Light() {
        this(createLightN());
    }

    Light(long handle) {
        super(handle);
    }

    public int getColor() {
        return getColorN(handle);
    }

    public float getConstantAttenuation() {
        return getConstantAttenuationN(handle);
    }

    public float getIntensity() {
        return getIntensityN(handle);
    }

    public float getLinearAttenuation() {
        return getLinearAttenuationN(handle);
    }

    public int getMode() {
        return getModeN(handle);
    }

    public float getQuadraticAttenuation() {
        return getQuadraticAttenuationN(handle);
    }

    public float getSpotAngle() {
        return getSpotAngleN(handle);
    }

    public float getSpotExponent() {
        return getSpotExponentN(handle);
    }

    /** @throws IllegalArgumentException if a value is negative or all are 0 */
    public void setAttenuation(float constant, float linear, float quadratic) {
        setAttenuationN(handle, constant, linear, quadratic);
    }

    /** 0xRRGGBB. */
    public void setColor(int rgb) {
        setColorN(handle, rgb);
    }

    public void setIntensity(float intensity) {
        setIntensityN(handle, intensity);
    }

    /** A value that is none of the modes lights nothing. */
    public void setMode(int mode) {
        setModeN(handle, mode);
    }

    /** @throws IllegalArgumentException outside 0 to 90 */
    public void setSpotAngle(float angle) {
        setSpotAngleN(handle, angle);
    }

    /** @throws IllegalArgumentException outside 0 to 128 */
    public void setSpotExponent(float exponent) {
        setSpotExponentN(handle, exponent);
    }

    static native long createLightN();

    native int getColorN(long handle);

    native float getConstantAttenuationN(long handle);

    native float getIntensityN(long handle);

    native float getLinearAttenuationN(long handle);

    native int getModeN(long handle);

    native float getQuadraticAttenuationN(long handle);

    native float getSpotAngleN(long handle);

    native float getSpotExponentN(long handle);

    native void setAttenuationN(long handle, float constant, float linear, float quadratic);

    native void setColorN(long handle, int rgb);

    native void setIntensityN(long handle, float intensity);

    native void setModeN(long handle, int mode);

    native void setSpotAngleN(long handle, float angle);

    native void setSpotExponentN(long handle, float exponent);
}
