package javax.microedition.m3g;

/** Ties a keyframe sequence to one property of the objects that it is added to. */
public class AnimationTrack extends Object3D {
    public static final int ALPHA = 256;
    public static final int AMBIENT_COLOR = 257;
    public static final int COLOR = 258;
    public static final int CROP = 259;
    public static final int DENSITY = 260;
    public static final int DIFFUSE_COLOR = 261;
    public static final int EMISSIVE_COLOR = 262;
    public static final int FAR_DISTANCE = 263;
    public static final int FIELD_OF_VIEW = 264;
    public static final int INTENSITY = 265;
    public static final int MORPH_WEIGHTS = 266;
    public static final int NEAR_DISTANCE = 267;
    public static final int ORIENTATION = 268;
    public static final int PICKABILITY = 269;
    public static final int SCALE = 270;
    public static final int SHININESS = 271;
    public static final int SPECULAR_COLOR = 272;
    public static final int SPOT_ANGLE = 273;
    public static final int SPOT_EXPONENT = 274;
    public static final int TRANSLATION = 275;
    public static final int VISIBILITY = 276;

    AnimationTrack(long handle) {
        super(handle);
    }

    /**
     * A sequence that does not suit the property is taken all the same; it has a reduced effect or
     * none.
     *
     * @throws IllegalArgumentException if the property is none of the constants
     */
    public AnimationTrack(KeyframeSequence sequence, int property) {
        this(createAnimationTrackN(sequence.handle, requireProperty(property)));
    }

    public AnimationController getController() {
        return getControllerN(handle);
    }

    public KeyframeSequence getKeyframeSequence() {
        return getKeyframeSequenceN(handle);
    }

    public int getTargetProperty() {
        return getTargetPropertyN(handle);
    }

    /** Null silences the track. */
    public void setController(AnimationController controller) {
        setControllerN(handle, handleOf(controller));
    }

    private static int requireProperty(int property) {
        if (property < ALPHA || property > VISIBILITY) {
            throw new IllegalArgumentException("Invalid property");
        }
        return property;
    }

    static native long createAnimationTrackN(long sequence, int property);

    native AnimationController getControllerN(long handle);

    native KeyframeSequence getKeyframeSequenceN(long handle);

    native int getTargetPropertyN(long handle);

    native void setControllerN(long handle, long controller);
}
