package javax.microedition.m3g;

/** Small things that tests of the animation classes share. */
final class Animated {
    private Animated() {}

    /** A sequence with these times and values. */
    static KeyframeSequence sequence(int interpolation, int repeatMode, int duration, int[] times,
            float[]... values) {
        KeyframeSequence sequence =
                new KeyframeSequence(times.length, values[0].length, interpolation);
        for (int i = 0; i < times.length; i++) {
            sequence.setKeyframe(i, times[i], values[i]);
        }
        sequence.setRepeatMode(repeatMode);
        sequence.setDuration(duration);
        return sequence;
    }

    /** A track with a controller of its own. */
    static AnimationTrack track(KeyframeSequence sequence, int property) {
        AnimationTrack track = new AnimationTrack(sequence, property);
        track.setController(new AnimationController());
        return track;
    }

    /** A track that gives these values at any time. */
    static AnimationTrack track(int property, float... values) {
        return track(sequence(KeyframeSequence.STEP, KeyframeSequence.CONSTANT, 0, new int[] {0},
                values), property);
    }

    /** The value of a sequence of one component at a time, as it reaches a fog. */
    static float valueAt(KeyframeSequence sequence, int time) {
        Fog fog = new Fog();
        fog.addAnimationTrack(track(sequence, AnimationTrack.NEAR_DISTANCE));
        fog.animate(time);
        return fog.getNearDistance();
    }
}
