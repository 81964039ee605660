package javax.microedition.m3g;

import static javax.microedition.m3g.Animated.track;
import static javax.microedition.m3g.Failures.assertFails;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Tracks through their natives, and those of files. */
public class AnimationTrackTest {
    private static final int CONTROLLER_TYPE = 1;
    private static final int TRACK_TYPE = 2;
    private static final int SEQUENCE_TYPE = 19;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private static M3gBytes.Fields object3D() {
        return new M3gBytes.Fields().int32(0).int32(0).int32(0);
    }

    /** Loads a file with one sequence, one controller and one track. */
    private Object3D[] load(int property, int components, int interpolation) throws Exception {
        M3gBytes.Fields sequence = object3D().bytes(interpolation, KeyframeSequence.CONSTANT, 0)
                .int32(10).int32(0).int32(0).int32(components).int32(1).int32(0);
        for (int i = 0; i < components; i++) {
            sequence.float32(i == 3 ? 1 : 0);
        }
        M3gBytes.Fields controller = object3D().float32(1).float32(1).int32(0).int32(0).float32(0)
                .int32(0);
        M3gBytes.Fields track = object3D().int32(2).int32(3).int32(property);
        return Loader.load(new M3gBytes().object(SEQUENCE_TYPE, sequence)
                .object(CONTROLLER_TYPE, controller).object(TRACK_TYPE, track)
                .write(folder.getRoot().toPath().resolve("track.m3g")));
    }

    @Test
    public void keepsItsSequenceAndProperty() {
        KeyframeSequence sequence = new KeyframeSequence(1, 3, KeyframeSequence.LINEAR);
        AnimationTrack track = new AnimationTrack(sequence, AnimationTrack.CROP);
        assertSame(sequence, track.getKeyframeSequence());
        assertEquals(AnimationTrack.CROP, track.getTargetProperty());
        assertNull(track.getController());
        AnimationController controller = new AnimationController();
        track.setController(controller);
        assertSame(controller, track.getController());
        track.setController(null);
        assertNull(track.getController());
    }

    @Test
    public void theClassLibraryTakesTheKnownPropertiesOnly() {
        KeyframeSequence sequence = new KeyframeSequence(1, 3, KeyframeSequence.LINEAR);
        assertFails(IllegalArgumentException.class, "Invalid property",
                () -> new AnimationTrack(sequence, 255));
        assertFails(IllegalArgumentException.class, "Invalid property",
                () -> new AnimationTrack(sequence, 277));
        new AnimationTrack(AnimationTrack.createAnimationTrackN(sequence.handle, 277));
    }

    @Test
    public void aLoadedTrackMayNotAnimateMorphWeights() {
        assertFails(NullPointerException.class, "AnimationTrack:  Invalid property",
                () -> load(AnimationTrack.MORPH_WEIGHTS, 1, KeyframeSequence.LINEAR));
    }

    @Test
    public void aLoadedSlerpSequenceSuitsOrientationsAndNoCrop() throws Exception {
        AnimationTrack track =
                (AnimationTrack) load(AnimationTrack.ORIENTATION, 4, KeyframeSequence.SLERP)[3];
        assertEquals(AnimationTrack.ORIENTATION, track.getTargetProperty());
        assertFails(NullPointerException.class,
                "KeyframeSequence componentCount is not compatible with CROP property",
                () -> load(AnimationTrack.CROP, 4, KeyframeSequence.SLERP));
    }

    @Test
    public void aLoadedScaleTrackHasOneOrThreeComponents() {
        assertFails(NullPointerException.class,
                "KeyframeSequence componentCount is not compatible with SCALE property",
                () -> load(AnimationTrack.SCALE, 2, KeyframeSequence.LINEAR));
    }

    @Test
    public void aTrackWithAWrongCountRaisesNothingAndHasAReducedEffect() {
        Group group = new Group();
        group.addAnimationTrack(track(AnimationTrack.TRANSLATION, 1, 2));
        group.addAnimationTrack(track(AnimationTrack.SCALE, 2, 3));
        group.animate(0);
        float[] values = new float[3];
        group.getTranslation(values);
        assertArrayEquals(new float[] {0, 0, 0}, values, 0);
        group.getScale(values);
        assertArrayEquals(new float[] {1, 1, 1}, values, 0);
        group.addAnimationTrack(track(AnimationTrack.TRANSLATION, 1, 2, 3, 4));
        group.removeAnimationTrack(group.getAnimationTrack(0));
        group.animate(0);
        group.getTranslation(values);
        assertArrayEquals("the first three serve", new float[] {1, 2, 3}, values, 0);
    }

    @Test
    public void reportsItsReferencesWithinTheArray() {
        AnimationTrack track = track(AnimationTrack.DENSITY, 1);
        Object3D[] references = new Object3D[2];
        assertEquals(2, track.getReferences(references));
        assertSame(track.getController(), references[0]);
        assertSame(track.getKeyframeSequence(), references[1]);
        assertFails(IllegalArgumentException.class,
                "Appearance::getReferences: reference count exceeded.",
                () -> track.getReferencesN(track.handle, new Object3D[1]));
    }

    @Test
    public void tracksAreAddedReadAndRemoved() {
        Fog fog = new Fog();
        AnimationTrack first = track(AnimationTrack.DENSITY, 1);
        AnimationTrack second = track(AnimationTrack.DENSITY, 1);
        fog.addAnimationTrack(first);
        fog.addAnimationTrack(second);
        assertEquals(2, fog.getAnimationTrackCount());
        assertSame(second, fog.getAnimationTrack(1));
        fog.removeAnimationTrack(first);
        assertSame(second, fog.getAnimationTrack(0));
        assertFails(IllegalArgumentException.class,
                "attempt to add an AnimationTrack multiple times",
                () -> fog.addAnimationTrack(second));
    }

    @Test
    public void aDuplicateSharesSequenceAndController() {
        AnimationTrack track = track(AnimationTrack.DENSITY, 1);
        AnimationTrack copy = (AnimationTrack) track.duplicate();
        assertSame(track.getController(), copy.getController());
        assertSame(track.getKeyframeSequence(), copy.getKeyframeSequence());
    }
}
