package javax.microedition.m3g;

import static javax.microedition.m3g.Animated.track;
import static javax.microedition.m3g.Failures.assertFails;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotEquals;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** Controllers and the animate pass through their natives. */
public class AnimationControllerTest {
    private static final int NEVER = Integer.MAX_VALUE;

    private static boolean isActive(AnimationController controller, int time) {
        Fog fog = new Fog();
        AnimationTrack track = track(AnimationTrack.DENSITY, 5);
        track.setController(controller);
        fog.addAnimationTrack(track);
        fog.animate(time);
        return fog.getDensity() != 1;
    }

    private static float[] translationOf(Group group) {
        float[] translation = new float[3];
        group.getTranslation(translation);
        return translation;
    }

    @Test
    public void aNewControllerHasWeightOneAndIsAlwaysActive() {
        AnimationController controller = new AnimationController();
        assertEquals(1, controller.getWeight(), 0);
        assertEquals(1, controller.getSpeed(), 0);
        assertEquals(0, controller.getActiveIntervalStart());
        assertEquals(0, controller.getActiveIntervalEnd());
        assertEquals(0, controller.getRefWorldTime());
        assertEquals(0, controller.getPosition(0), 0);
        assertTrue(isActive(controller, -100));
    }

    @Test
    public void anEmptyIntervalIsAlwaysActive() {
        AnimationController controller = new AnimationController();
        controller.setActiveInterval(5, 5);
        assertEquals(5, controller.getActiveIntervalStart());
        assertEquals(5, controller.getActiveIntervalEnd());
        for (int time : new int[] {-1, 4, 5, 6}) {
            assertTrue(isActive(controller, time));
        }
    }

    /** Hands the natives what only they would let through. */
    static final class BackwardInterval {
        public static void main(String[] args) {
            AnimationController controller = new AnimationController();
            System.out.println("before");
            controller.setActiveIntervalN(controller.handle, 5, 4);
            System.out.println("after");
        }
    }

    /** The same for a weight. */
    static final class NegativeWeight {
        public static void main(String[] args) {
            AnimationController controller = new AnimationController();
            System.out.println("before");
            controller.setWeightN(controller.handle, -1);
            System.out.println("after");
        }
    }

    private static void assertEnds(Class<?> main, String text) throws Exception {
        ChildJvm.Result result = ChildJvm.run(main);
        assertTrue(result.toString(), result.err.contains(text));
        assertTrue(result.toString(), result.out.contains("before"));
        assertFalse(result.toString(), result.out.contains("after"));
        assertNotEquals(result.toString(), 0, result.exitCode);
    }

    @Test
    public void anIntervalThatEndsBeforeItStartsFails() throws Exception {
        assertFails(IllegalArgumentException.class, "Invalid active interval",
                () -> new AnimationController().setActiveInterval(5, 4));
        assertEnds(BackwardInterval.class, "Invalid active interval");
    }

    @Test
    public void aNegativeWeightFails() throws Exception {
        assertFails(IllegalArgumentException.class, "Invalid blending weight",
                () -> new AnimationController().setWeight(-0.5f));
        assertEnds(NegativeWeight.class, "Invalid blending weight");
    }

    @Test
    public void theIntervalIncludesItsStartAndNotItsEnd() {
        AnimationController controller = new AnimationController();
        controller.setActiveInterval(10, 20);
        assertFalse(isActive(controller, 9));
        assertTrue(isActive(controller, 10));
        assertTrue(isActive(controller, 19));
        assertFalse(isActive(controller, 20));
    }

    @Test
    public void aWeightOfZeroIsInactive() {
        Fog fog = new Fog();
        AnimationTrack track = track(AnimationTrack.DENSITY, 5);
        fog.addAnimationTrack(track);
        assertEquals(0, fog.animate(0));
        track.getController().setWeight(0);
        assertEquals(NEVER, fog.animate(0));
        fog.addAnimationTrack(track(AnimationTrack.FAR_DISTANCE, 9));
        assertEquals("another one is active", 0, fog.animate(0));
    }

    @Test
    public void thePositionRunsFromItsReference() {
        AnimationController controller = new AnimationController();
        controller.setSpeed(2, 10);
        controller.setPosition(100, 10);
        assertEquals(110, controller.getPosition(15), 0);
        assertEquals(10, controller.getRefWorldTime());
        assertEquals(2, controller.getSpeed(), 0);
    }

    @Test
    public void aChangeOfSpeedDoesNotCarryThePositionOver() {
        AnimationController controller = new AnimationController();
        controller.setSpeed(2, 50);
        assertEquals(0, controller.getPosition(50), 0);
    }

    @Test
    public void twoTracksOnOnePropertyAreSummedWithoutADivision() {
        Group group = new Group();
        AnimationTrack quarter = track(AnimationTrack.TRANSLATION, 4, 8, 12);
        quarter.getController().setWeight(0.25f);
        AnimationTrack half = track(AnimationTrack.TRANSLATION, 2, 4, 6);
        half.getController().setWeight(0.5f);
        group.addAnimationTrack(quarter);
        group.addAnimationTrack(half);
        group.animate(0);
        assertArrayEquals(new float[] {2, 4, 6}, translationOf(group), 0);
    }

    @Test
    public void anObjectWithNothingIsValidForever() {
        assertEquals(NEVER, new Fog().animate(0));
    }

    @Test
    public void tracksOfDifferentCountsSumOverTheSmaller() {
        Group group = new Group();
        group.addAnimationTrack(track(AnimationTrack.SCALE, 2, 3, 4));
        group.addAnimationTrack(track(AnimationTrack.SCALE, 5));
        group.animate(0);
        float[] scale = new float[3];
        group.getScale(scale);
        assertArrayEquals(new float[] {7, 7, 7}, scale, 0);
    }

    @Test
    public void anAnimatedColourIsATruthValue() {
        Material material = new Material();
        material.addAnimationTrack(track(AnimationTrack.DIFFUSE_COLOR, 0, 0, 0));
        material.addAnimationTrack(track(AnimationTrack.ALPHA, 1));
        material.animate(0);
        assertEquals(1, material.getColor(Material.DIFFUSE));
        Material black = new Material();
        black.addAnimationTrack(track(AnimationTrack.DIFFUSE_COLOR, 0, 0, 0));
        black.addAnimationTrack(track(AnimationTrack.ALPHA, 0));
        black.animate(0);
        assertEquals(0, black.getColor(Material.DIFFUSE));
    }

    @Test
    public void aVisibilityOfOneHalfEnables() {
        Group group = new Group();
        group.addAnimationTrack(track(AnimationTrack.VISIBILITY, 0.49f));
        group.animate(0);
        assertFalse(group.isRenderingEnabled());
        group.removeAnimationTrack(group.getAnimationTrack(0));
        group.addAnimationTrack(track(AnimationTrack.VISIBILITY, 0.5f));
        group.animate(0);
        assertTrue(group.isRenderingEnabled());
    }

    @Test
    public void failuresOfThePassAreIllegalStates() {
        Group group = new Group();
        group.addAnimationTrack(track(AnimationTrack.ALPHA, 2));
        assertFails(IllegalStateException.class,
                "Node.setAlphaFactor  invalid value for alphaFactor arg.", () -> group.animate(0));
    }

    @Test
    public void aTrackWithoutAControllerIsNotActive() {
        Fog fog = new Fog();
        AnimationTrack track = track(AnimationTrack.DENSITY, 5);
        track.setController(null);
        fog.addAnimationTrack(track);
        assertEquals(NEVER, fog.animate(0));
        assertEquals(1, fog.getDensity(), 0);
    }
}
