package javax.microedition.m3g;

/** Says when, how fast and how strongly the tracks that share it play. Times are milliseconds. */
public class AnimationController extends Object3D {
    AnimationController(long handle) {
        super(handle);
    }

    public AnimationController() {
        this(createAnimationControllerN());
    }

    public int getActiveIntervalEnd() {
        return getActiveIntervalEndN(handle);
    }

    public int getActiveIntervalStart() {
        return getActiveIntervalStartN(handle);
    }

    /** The sequence time at this world time. */
    public float getPosition(int worldTime) {
        return getPositionN(handle, worldTime);
    }

    public int getRefWorldTime() {
        return getRefWorldTimeN(handle);
    }

    public float getSpeed() {
        return getSpeedN(handle);
    }

    public float getWeight() {
        return getWeightN(handle);
    }

    /**
     * Plays from {@code start} on and before {@code end}; always when both are equal.
     *
     * @throws IllegalArgumentException if start exceeds end
     */
    public void setActiveInterval(int start, int end) {
        if (start > end) {
            throw new IllegalArgumentException("Invalid active interval");
        }
        setActiveIntervalN(handle, start, end);
    }

    public void setPosition(float sequenceTime, int worldTime) {
        setPositionN(handle, sequenceTime, worldTime);
    }

    public void setSpeed(float speed, int worldTime) {
        setSpeedN(handle, speed, worldTime);
    }

    /** @throws IllegalArgumentException if the weight is negative */
    public void setWeight(float weight) {
        if (weight < 0) {
            throw new IllegalArgumentException("Invalid blending weight");
        }
        setWeightN(handle, weight);
    }

    static native long createAnimationControllerN();

    native int getActiveIntervalEndN(long handle);

    native int getActiveIntervalStartN(long handle);

    native float getPositionN(long handle, int worldTime);

    native int getRefWorldTimeN(long handle);

    native float getSpeedN(long handle);

    native float getWeightN(long handle);

    native void setActiveIntervalN(long handle, int start, int end);

    native void setPositionN(long handle, float sequenceTime, int worldTime);

    native void setSpeedN(long handle, float speed, int worldTime);

    native void setWeightN(long handle, float weight);
}
