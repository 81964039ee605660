package javax.microedition.m3g;

import static javax.microedition.m3g.Animated.sequence;
import static javax.microedition.m3g.Animated.track;
import static javax.microedition.m3g.Animated.valueAt;
import static javax.microedition.m3g.Failures.assertFails;
import static javax.microedition.m3g.KeyframeSequence.CONSTANT;
import static javax.microedition.m3g.KeyframeSequence.LINEAR;
import static javax.microedition.m3g.KeyframeSequence.LOOP;
import static javax.microedition.m3g.KeyframeSequence.SLERP;
import static javax.microedition.m3g.KeyframeSequence.SPLINE;
import static javax.microedition.m3g.KeyframeSequence.SQUAD;
import static javax.microedition.m3g.KeyframeSequence.STEP;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import org.junit.Test;

/** Keyframe sequences through their natives; values show on an animated object. */
public class KeyframeSequenceTest {
    private static KeyframeSequence twoKeyframes(int interpolation, int repeatMode) {
        return sequence(interpolation, repeatMode, 20, new int[] {0, 10}, new float[] {0},
                new float[] {10});
    }

    @Test
    public void keepsWhatItIsMadeWith() {
        KeyframeSequence sequence = new KeyframeSequence(3, 2, SPLINE);
        assertEquals(3, sequence.getKeyframeCount());
        assertEquals(2, sequence.getComponentCount());
        assertEquals(SPLINE, sequence.getInterpolationType());
        assertEquals(CONSTANT, sequence.getRepeatMode());
        assertEquals(0, sequence.getDuration());
        assertEquals(0, sequence.getValidRangeFirst());
        assertEquals(2, sequence.getValidRangeLast());
        sequence.setRepeatMode(LOOP);
        sequence.setDuration(40);
        sequence.setValidRange(2, 1);
        assertEquals(LOOP, sequence.getRepeatMode());
        assertEquals(40, sequence.getDuration());
        assertEquals(2, sequence.getValidRangeFirst());
        assertEquals(1, sequence.getValidRangeLast());
    }

    @Test
    public void refusesWhatNoSequenceCanBe() {
        Class<IllegalArgumentException> refused = IllegalArgumentException.class;
        assertFails(refused, "Invalid interpolation mode in KeyframeSequence constructor",
                () -> KeyframeSequence.createKeyframeSequence(0, 0, 175));
        assertFails(refused, "Invalid interpolation mode in KeyframeSequence constructor",
                () -> KeyframeSequence.createKeyframeSequence(1, 1, 181));
        assertFails(refused, "Number of keyframes < 1",
                () -> KeyframeSequence.createKeyframeSequence(0, 0, SLERP));
        assertFails(refused, "Number of components < 1",
                () -> KeyframeSequence.createKeyframeSequence(1, 0, SLERP));
        assertFails(refused, "SLERP & SQUAD require 4 components",
                () -> KeyframeSequence.createKeyframeSequence(1, 3, SQUAD));
    }

    @Test
    public void refusesBadKeyframes() {
        KeyframeSequence sequence = new KeyframeSequence(2, 3, LINEAR);
        long handle = sequence.handle;
        assertFails(NullPointerException.class, "null value array to setKeyframe",
                () -> sequence.setKeyframeN(handle, 9, -1, null));
        assertFails(IllegalArgumentException.class, "Value array to setKeyframe is too short.",
                () -> sequence.setKeyframeN(handle, 9, -1, new float[2]));
        assertFails(IllegalArgumentException.class, "Invalid keyframe index",
                () -> sequence.setKeyframeN(handle, 2, -1, new float[3]));
        assertFails(IllegalArgumentException.class, "Keyframe time < 0",
                () -> sequence.setKeyframeN(handle, 1, -1, new float[3]));
        assertFails(IllegalArgumentException.class, "Keyframe too short",
                () -> sequence.getKeyframeN(handle, 9, new float[2]));
        assertFails(IndexOutOfBoundsException.class, "Invalid keyframe index",
                () -> sequence.getKeyframeN(handle, 2, new float[3]));
        assertFails(IndexOutOfBoundsException.class, "Invalid keyframe index",
                () -> sequence.getKeyframeN(handle, -1, null));
    }

    @Test
    public void givesKeyframesBack() {
        KeyframeSequence sequence = new KeyframeSequence(2, 3, LINEAR);
        sequence.setKeyframe(1, 77, new float[] {1, 2, 3, 4});
        float[] value = {9, 9, 9, 9};
        assertEquals(77, sequence.getKeyframe(1, value));
        assertArrayEquals(new float[] {1, 2, 3, 9}, value, 0);
        assertEquals(77, sequence.getKeyframe(1, null));
    }

    @Test
    public void refusesBadSettings() {
        KeyframeSequence sequence = new KeyframeSequence(2, 1, LINEAR);
        long handle = sequence.handle;
        assertFails(IllegalArgumentException.class, "Bad repeat mode for setRepeatMode",
                () -> sequence.setRepeatModeN(handle, 191));
        assertFails(IllegalArgumentException.class, "Bad repeat mode for setRepeatMode",
                () -> sequence.setRepeatModeN(handle, 194));
        assertFails(IllegalArgumentException.class, "Negative duration",
                () -> sequence.setDurationN(handle, -1));
        assertFails(IndexOutOfBoundsException.class, "Invalid keyframe range",
                () -> sequence.setValidRangeN(handle, 0, 2));
        assertFails(IndexOutOfBoundsException.class, "Invalid keyframe range",
                () -> sequence.setValidRangeN(handle, -1, 0));
    }

    @Test
    public void oneKeyframeAnswersAnyTime() {
        for (int mode : new int[] {CONSTANT, LOOP}) {
            KeyframeSequence sequence =
                    sequence(LINEAR, mode, 10, new int[] {5}, new float[] {3});
            for (int time : new int[] {-7, 0, 5, 9, 10, 1000}) {
                assertEquals(3, valueAt(sequence, time), 0);
            }
        }
    }

    @Test
    public void linearConstantHoldsItsEnds() {
        KeyframeSequence sequence = twoKeyframes(LINEAR, CONSTANT);
        assertEquals(0, valueAt(sequence, -1), 0);
        assertEquals(5, valueAt(sequence, 5), 0);
        assertEquals(10, valueAt(sequence, 10), 0);
        assertEquals(10, valueAt(sequence, 1000), 0);
    }

    @Test
    public void linearLoopBlendsFromTheLastKeyframeToTheFirst() {
        KeyframeSequence sequence = twoKeyframes(LINEAR, LOOP);
        assertEquals(5, valueAt(sequence, 15), 0);
        assertEquals(5, valueAt(sequence, 25), 0);
        assertEquals(valueAt(sequence, 5), valueAt(sequence, 25), 0);
    }

    @Test
    public void stepAtAKeyframesTimeYieldsThatKeyframe() {
        KeyframeSequence sequence = sequence(STEP, CONSTANT, 20, new int[] {0, 10, 20},
                new float[] {1}, new float[] {2}, new float[] {3});
        assertEquals(1, valueAt(sequence, 0), 0);
        assertEquals(1, valueAt(sequence, 9), 0);
        assertEquals(2, valueAt(sequence, 10), 0);
        assertEquals(3, valueAt(sequence, 20), 0);
    }

    @Test
    public void slerpTakesTheShortWay() {
        // The opposite of a turn by 60 degrees about z: half way stand 30 degrees.
        KeyframeSequence sequence = sequence(SLERP, CONSTANT, 10, new int[] {0, 10},
                new float[] {0, 0, 0, 1}, new float[] {0, 0, -0.5f, -0.8660254f});
        Group group = new Group();
        group.addAnimationTrack(track(sequence, AnimationTrack.ORIENTATION));
        group.animate(5);
        float[] orientation = new float[4];
        group.getOrientation(orientation);
        assertArrayEquals(new float[] {30, 0, 0, 1}, orientation, 1e-3f);
    }

    @Test
    public void decreasingTimesAreAcceptedAndFailAtEvaluation() {
        KeyframeSequence sequence = sequence(LINEAR, CONSTANT, 20, new int[] {10, 5},
                new float[] {0}, new float[] {1});
        assertFails(IllegalStateException.class, "Keyframe times in decreasing order",
                () -> valueAt(sequence, 0));
    }

    @Test
    public void aShortDurationIsAcceptedAndFailsAtEvaluation() {
        KeyframeSequence sequence = twoKeyframes(LINEAR, CONSTANT);
        sequence.setDuration(5);
        assertFails(IllegalStateException.class, "Duration less than time of last keyframe",
                () -> valueAt(sequence, 0));
    }

    @Test
    public void aLaterRangeTakesItsValuesFromKeyframesCountedFromZero() {
        KeyframeSequence sequence = sequence(LINEAR, CONSTANT, 30, new int[] {0, 10, 20},
                new float[] {0}, new float[] {100}, new float[] {1000});
        sequence.setValidRange(1, 2);
        assertEquals(50, valueAt(sequence, 15), 0);
    }

    @Test
    public void aLoopWithoutLengthEnds() {
        KeyframeSequence sequence =
                sequence(STEP, LOOP, 0, new int[] {0, 0}, new float[] {4}, new float[] {4});
        assertEquals(4, valueAt(sequence, 12), 0);
        assertEquals(4, valueAt(sequence, Integer.MAX_VALUE), 0);
    }

    @Test
    public void splineAndSquadPassTheirKeyframes() {
        KeyframeSequence spline = sequence(SPLINE, CONSTANT, 20, new int[] {0, 10, 20},
                new float[] {1}, new float[] {5}, new float[] {2});
        assertEquals(5, valueAt(spline, 10), 0);
        KeyframeSequence squad = sequence(SQUAD, CONSTANT, 20, new int[] {0, 10, 20},
                new float[] {0, 0, 0, 1}, new float[] {0, 0, 0.5f, 0.8660254f},
                new float[] {0, 0, 0.8660254f, 0.5f});
        Group group = new Group();
        group.addAnimationTrack(track(squad, AnimationTrack.ORIENTATION));
        group.animate(10);
        float[] orientation = new float[4];
        group.getOrientation(orientation);
        assertArrayEquals(new float[] {60, 0, 0, 1}, orientation, 1e-2f);
    }

    @Test
    public void storesQuaternionsOfLengthOne() {
        KeyframeSequence sequence = new KeyframeSequence(1, 4, SQUAD);
        sequence.setKeyframe(0, 0, new float[] {0, 3, 0, 4});
        float[] value = new float[4];
        sequence.getKeyframe(0, value);
        assertArrayEquals(new float[] {0, 0.6f, 0, 0.8f}, value, 0);
    }
}
