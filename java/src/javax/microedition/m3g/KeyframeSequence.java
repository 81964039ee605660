package javax.microedition.m3g;

/** Time-stamped value vectors and the way of interpolating between them. */
public class KeyframeSequence extends Object3D {
    public static final int LINEAR = 176;
    public static final int SLERP = 177;
    public static final int SPLINE = 178;
    public static final int SQUAD = 179;
    public static final int STEP = 180;
    public static final int CONSTANT = 192;
    public static final int LOOP = 193;

    KeyframeSequence(long handle) {
        super(handle);
    }

    /**
     * @throws IllegalArgumentException for an unknown interpolation, fewer than one keyframe or
     *     component, or a spherical interpolation of fewer than four components
     */
    public KeyframeSequence(int numKeyframes, int numComponents, int interpolation) {
        this(createKeyframeSequence(numKeyframes, numComponents, interpolation));
    }

    public int getComponentCount() {
        return getComponentCountN(handle);
    }

    public int getDuration() {
        return getDurationN(handle);
    }

    public int getInterpolationType() {
        return getInterpolationTypeN(handle);
    }

    /**
     * Returns the keyframe's time and writes its value unless the array is null.
     *
     * @throws IndexOutOfBoundsException if there is no such keyframe
     * @throws IllegalArgumentException if the array is too short
     */
    public int getKeyframe(int index, float[] value) {
        return getKeyframeN(handle, index, value);
    }

    public int getKeyframeCount() {
        return getKeyframeCountN(handle);
    }

    public int getRepeatMode() {
        return getRepeatModeN(handle);
    }

    public int getValidRangeFirst() {
        return getValidRangeFirstN(handle);
    }

    public int getValidRangeLast() {
        return getValidRangeLastN(handle);
    }

    /** @throws IllegalArgumentException if the duration is negative */
    public void setDuration(int duration) {
        setDurationN(handle, duration);
    }

    /**
     * Copies the value. The order of the times is looked at when the sequence is animated.
     *
     * @throws NullPointerException if the value is null
     * @throws IllegalArgumentException if there is no such keyframe, the time is negative or the
     *     array is too short
     */
    public void setKeyframe(int index, int time, float[] value) {
        setKeyframeN(handle, index, time, value);
    }

    /** @throws IllegalArgumentException if the mode is neither CONSTANT nor LOOP */
    public void setRepeatMode(int mode) {
        setRepeatModeN(handle, mode);
    }

    /** @throws IndexOutOfBoundsException unless both are keyframes */
    public void setValidRange(int first, int last) {
        setValidRangeN(handle, first, last);
    }

    static native long createKeyframeSequence(int keyframes, int components, int interpolation);

    native int getComponentCountN(long handle);

    native int getDurationN(long handle);

    native int getInterpolationTypeN(long handle);

    native int getKeyframeCountN(long handle);

    native int getKeyframeN(long handle, int index, float[] value);

    native int getRepeatModeN(long handle);

    native int getValidRangeFirstN(long handle);

    native int getValidRangeLastN(long handle);

    native void setDurationN(long handle, int duration);

    native void setKeyframeN(long handle, int index, int time, float[] value);

    native void setRepeatModeN(long handle, int mode);

    native void setValidRangeN(long handle, int first, int last);
}
