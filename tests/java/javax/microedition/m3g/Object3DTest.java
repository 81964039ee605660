package javax.microedition.m3g;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.lang.ref.WeakReference;
import java.nio.file.Path;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** What every object can do, and what its natives do with bad handles. */
public class Object3DTest {
    private static final int FOG = 7;
    private static final int EXPONENTIAL = 80;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private static AnimationTrack newTrack() {
        return new AnimationTrack(
                new KeyframeSequence(1, 1, KeyframeSequence.LINEAR), AnimationTrack.ALPHA);
    }

    /** Runs main of this class, which must end the process with this text. */
    private static void assertEnds(Class<?> main, String text) throws Exception {
        ChildJvm.Result result = ChildJvm.run(main);
        assertTrue(result.toString(), result.err.contains(text));
        assertTrue(result.toString(), result.out.contains("before"));
        assertTrue(result.toString(), !result.out.contains("after"));
        assertTrue(result.toString(), result.exitCode != 0);
    }

    @Test
    public void destroyingAZeroHandleDoesNothing() {
        new Fog().destroyObject3DN(0);
    }

    @Test
    public void userIDIsZeroAtFirstAndStored() {
        Fog fog = new Fog();
        assertEquals(0, fog.getUserID());
        fog.setUserID(-5);
        assertEquals(-5, fog.getUserID());
    }

    @Test
    public void userObjectComesBackAsTheSameObject() {
        Fog fog = new Fog();
        assertNull(fog.getUserObject());
        Object first = new Object();
        fog.setUserObject(first);
        assertSame(first, fog.getUserObject());
        Object second = new Object();
        fog.setUserObject(second);
        assertSame(second, fog.getUserObject());
        System.gc();
        assertSame(second, fog.getUserObject());
    }

    @Test
    public void aNullUserObjectReplacesTheFormerOne() {
        Fog fog = new Fog();
        fog.setUserObject("text");
        fog.setUserObjectN(fog.handle, null);
        assertNull(fog.getUserObjectN(fog.handle));
    }

    @Test
    public void aFogLoadedWithUserParametersHasNoUserObject() throws Exception {
        M3gBytes.Fields fog = new M3gBytes.Fields().int32(42).int32(0).int32(1).int32(7).int32(2)
                .bytes('h', 'i').bytes(1, 2, 3).bytes(EXPONENTIAL).float32(0.5f);
        Path file = folder.getRoot().toPath().resolve("fog.m3g");
        Object3D[] objects = Loader.load(new M3gBytes().object(FOG, fog).write(file));
        assertEquals(2, objects.length);
        Fog loaded = (Fog) objects[1];
        assertEquals(42, loaded.getUserID());
        assertEquals(0.5f, loaded.getDensity(), 0);
        assertNull(loaded.getUserObjectN(loaded.handle));
    }

    @Test
    public void tracksKeepTheirOrderAndIdentity() {
        Fog fog = new Fog();
        AnimationTrack a = newTrack();
        AnimationTrack b = newTrack();
        fog.addAnimationTrack(a);
        fog.addAnimationTrack(b);
        assertEquals(2, fog.getAnimationTrackCount());
        assertSame(a, fog.getAnimationTrack(0));
        assertSame(b, fog.getAnimationTrack(1));
        fog.removeAnimationTrack(a);
        assertEquals(1, fog.getAnimationTrackCount());
        assertSame(b, fog.getAnimationTrack(0));
    }

    @Test
    public void removingATrackThatWasNeverAddedChangesNothing() {
        Fog fog = new Fog();
        fog.removeAnimationTrackN(fog.handle, newTrack().handle);
        fog.addAnimationTrack(newTrack());
        fog.removeAnimationTrackN(fog.handle, newTrack().handle);
        fog.removeAnimationTrackN(fog.handle, 0);
        assertEquals(1, fog.getAnimationTrackCount());
    }

    @Test
    public void theJavaSideRefusesATrackTwice() {
        Fog fog = new Fog();
        AnimationTrack track = newTrack();
        fog.addAnimationTrack(track);
        IllegalArgumentException e = assertThrows(
                IllegalArgumentException.class, () -> fog.addAnimationTrack(track));
        assertEquals("attempt to add an AnimationTrack multiple times", e.getMessage());
    }

    /** Adds one track two times, past the test of the Java side. */
    static final class AddTwice {
        public static void main(String[] args) {
            Fog fog = new Fog();
            AnimationTrack track = newTrack();
            fog.addAnimationTrackN(fog.handle, track.handle);
            System.out.println("before");
            fog.addAnimationTrackN(fog.handle, track.handle);
            System.out.println("after");
        }
    }

    @Test
    public void aTrackAddedTwicePastTheJavaSideEndsTheProcess() throws Exception {
        assertEnds(AddTwice.class, "attempt to add an AnimationTrack multiple times");
    }

    /** Adds no track. */
    static final class AddNull {
        public static void main(String[] args) {
            Fog fog = new Fog();
            System.out.println("before");
            fog.addAnimationTrackN(fog.handle, 0);
            System.out.println("after");
        }
    }

    @Test
    public void aNullTrackPastTheJavaSideEndsTheProcess() throws Exception {
        assertEnds(AddNull.class, "attempt to add null AnimationTrack");
    }

    /** Asks an object without tracks for one. */
    static final class TrackOfNone {
        public static void main(String[] args) {
            Fog fog = new Fog();
            System.out.println("before");
            fog.getAnimationTrackN(fog.handle, 0);
            System.out.println("after");
        }
    }

    @Test
    public void aTrackOfAnObjectWithoutTracksEndsTheProcess() throws Exception {
        assertEnds(TrackOfNone.class, "px != 0");
    }

    /** Asks for the track after the last. */
    static final class TrackOutOfRange {
        public static void main(String[] args) {
            Fog fog = new Fog();
            fog.addAnimationTrack(newTrack());
            System.out.println("before");
            fog.getAnimationTrackN(fog.handle, 1);
            System.out.println("after");
        }
    }

    @Test
    public void aTrackAfterTheLastEndsTheProcess() throws Exception {
        assertEnds(TrackOutOfRange.class, "Object3D::getAnimationTrack index out of range.");
    }

    /** Looks for a user ID that nothing has. */
    static final class FindNothing {
        public static void main(String[] args) {
            Fog fog = new Fog();
            System.out.println("before");
            fog.find(77);
            System.out.println("after");
        }
    }

    @Test
    public void aSearchThatFindsNothingEndsTheProcess() throws Exception {
        assertEnds(FindNothing.class, "px != 0");
    }

    /** Hands a handle to a native of another class. */
    static final class WrongClass {
        public static void main(String[] args) {
            Fog fog = new Fog();
            Material material = new Material();
            System.out.println("before");
            fog.getDensityN(material.handle);
            System.out.println("after");
        }
    }

    @Test
    public void aHandleOfAnotherClassEndsTheProcessWithoutAnException() throws Exception {
        assertEnds(WrongClass.class, "px != 0");
    }

    /** Hands no handle to a native that needs one. */
    static final class ZeroHandle {
        public static void main(String[] args) {
            Fog fog = new Fog();
            System.out.println("before");
            fog.getDensityN(0);
            System.out.println("after");
        }
    }

    @Test
    public void aZeroHandleEndsTheProcess() throws Exception {
        assertEnds(ZeroHandle.class, "px != 0");
    }

    @Test
    public void aHandleOfAnotherClassStandsForNullWhereNullIsAllowed() {
        Appearance appearance = new Appearance();
        appearance.setFog(new Fog());
        appearance.setFogN(appearance.handle, new Material().handle);
        assertNull(appearance.getFog());
    }

    @Test
    public void referencesAreCountedAndListed() {
        Fog fog = new Fog();
        AnimationTrack a = newTrack();
        AnimationTrack b = newTrack();
        fog.addAnimationTrack(a);
        fog.addAnimationTrack(b);
        assertEquals(2, fog.getReferences(null));
        Object3D[] references = new Object3D[3];
        assertEquals(2, fog.getReferences(references));
        assertArrayEquals(new Object3D[] {a, b, null}, references);
    }

    @Test
    public void anArrayThatIsTooShortForTheReferencesIsRefused() {
        Fog fog = new Fog();
        fog.addAnimationTrack(newTrack());
        fog.addAnimationTrack(newTrack());
        Object3D[] references = new Object3D[1];
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                () -> fog.getReferencesN(fog.handle, references));
        assertEquals("Reference count from getReferences exceeds max", e.getMessage());
        assertNull(references[0]);
        assertThrows(IllegalArgumentException.class, () -> fog.getReferences(references));
    }

    @Test
    public void findPrefersTheObjectItself() {
        Group group = new Group();
        Group child = new Group();
        group.setUserID(6);
        child.setUserID(6);
        group.addChild(child);
        assertSame(group, group.find(6));
    }

    @Test
    public void findGoesDepthFirst() {
        Group group = new Group();
        Group first = new Group();
        Group below = new Group();
        Group second = new Group();
        group.addChild(first);
        group.addChild(second);
        first.addChild(below);
        below.setUserID(3);
        second.setUserID(3);
        assertSame(below, group.find(3));
    }

    @Test
    public void deepTreesAreSearchedAnimatedAndDuplicatedOnASmallStack() throws Exception {
        int depth = 100_000;
        Throwable[] failure = new Throwable[1];
        Runnable work = () -> {
            Group root = new Group();
            Group last = root;
            for (int i = 0; i < depth; i++) {
                Group next = new Group();
                last.addChild(next);
                last = next;
            }
            last.setUserID(depth);
            assertSame(last, root.find(depth));
            assertEquals(Integer.MAX_VALUE, root.animate(0));
            Group copy = (Group) root.duplicate();
            Object3D found = copy.find(depth);
            assertNotSame(last, found);
            assertEquals(depth, found.getUserID());
        };
        Thread thread = new Thread(null, work, "small stack", 1 << 20);
        thread.setUncaughtExceptionHandler((ended, e) -> failure[0] = e);
        thread.start();
        thread.join();
        if (failure[0] != null) {
            throw new AssertionError(failure[0]);
        }
    }

    @Test
    public void aDuplicateSharesTracksAndUserObject() {
        Fog fog = new Fog();
        AnimationTrack track = newTrack();
        Object userObject = new Object();
        fog.setUserID(1);
        fog.setUserObject(userObject);
        fog.addAnimationTrack(track);
        Fog copy = (Fog) fog.duplicate();
        assertNotSame(fog, copy);
        assertEquals(1, copy.getUserID());
        assertSame(userObject, copy.getUserObject());
        assertSame(track, copy.getAnimationTrack(0));
        copy.setUserID(2);
        assertEquals(1, fog.getUserID());
    }

    /** Whether the peer of an ended handle can be collected, which the native object decides. */
    private static boolean isCollected(WeakReference<?> peer) throws InterruptedException {
        for (int i = 0; i < 10 && peer.get() != null; i++) {
            System.gc();
            Thread.sleep(10);
        }
        return peer.get() == null;
    }

    private static WeakReference<Object3D> ended(Object3D object) {
        object.destroyObject3DN(object.handle);
        return new WeakReference<>(object);
    }

    @Test
    public void aDuplicateOutlivesTheHandleOfItsPeer() throws Exception {
        Fog fog = new Fog();
        WeakReference<Object3D> copy = ended(fog.duplicate());
        assertTrue(isCollected(ended(new Fog())));
        assertFalse(isCollected(copy));
    }

    @Test
    public void animatingWithoutTracksIsValidForEver() {
        assertEquals(Integer.MAX_VALUE, new Fog().animate(0));
    }
}
