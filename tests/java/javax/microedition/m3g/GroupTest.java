package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;

import org.junit.Test;

/** The tree natives of Group. */
public class GroupTest {
    private static final String BAD_INDEX =
            "child index must be non-negative and less than the size of the child array";

    private final Group group = new Group();
    private final Group child = new Group();

    @Test
    public void childrenKeepTheirOrderAndIdentity() {
        Light light = new Light();
        group.addChild(child);
        group.addChild(light);
        assertEquals(2, group.getChildCount());
        assertSame(child, group.getChild(0));
        assertSame(light, group.getChild(1));
        assertSame(group, light.getParent());
    }

    @Test
    public void addingTwiceLeavesOneEntry() {
        group.addChild(child);
        group.addChild(child);
        assertEquals(1, group.getChildCount());
    }

    @Test
    public void badChildrenFailWithTheirTexts() {
        Group other = new Group();
        other.addChild(child);
        assertIllegalArgument("child is null.", () -> group.addChildN(group.handle, 0));
        assertThrows(NullPointerException.class, () -> group.addChild(null));
        assertIllegalArgument("Attempt to add this Node as own child",
                () -> group.addChild(group));
        assertIllegalArgument("Child is a instance of World and must remain the root of the scene.",
                () -> group.addChild(new World()));
        assertIllegalArgument("Attempt to add a child that already has a parent",
                () -> group.addChild(child));
        assertIllegalArgument("child is an ancestor of this Patch", () -> child.addChild(other));
        assertEquals(0, group.getChildCount());
    }

    @Test
    public void removingAStrangerDoesNothing() {
        group.addChild(child);
        group.removeChild(new Group());
        group.removeChild(group);
        group.removeChild(null);
        assertEquals(1, group.getChildCount());
        assertSame(group, child.getParent());
    }

    @Test
    public void aRemovedChildCanBeAddedElsewhere() {
        Group other = new Group();
        group.addChild(child);
        group.removeChild(child);
        other.addChild(child);
        assertEquals(0, group.getChildCount());
        assertSame(other, child.getParent());
    }

    @Test
    public void indicesOutsideTheChildrenFail() {
        group.addChild(child);
        for (int index : new int[] {-1, 1, Integer.MIN_VALUE}) {
            assertOutOfBounds(BAD_INDEX, () -> group.getChild(index));
        }
    }

    @Test
    public void referencesAreTheChildren() {
        group.addChild(child);
        Object3D[] references = new Object3D[1];
        assertEquals(1, group.getReferences(references));
        assertSame(child, references[0]);
        assertIllegalArgument("Node::getReferences: maxReferences exceeded.",
                () -> group.getReferencesN(group.handle, new Object3D[0]));
    }

    @Test
    public void aDeepTreeIsBuiltSearchedDuplicatedAndDropped() throws Exception {
        Throwable[] failure = new Throwable[1];
        Thread thread = new Thread(null, () -> {
            try {
                Group top = new Group();
                Group lowest = top;
                for (int i = 0; i < 100_000; ++i) {
                    Group next = new Group();
                    lowest.addChild(next);
                    lowest = next;
                }
                lowest.setUserID(9);
                assertSame(lowest, top.find(9));
                assertEquals(true, lowest.getTransformTo(top, new Transform()));
                Group copy = (Group) top.duplicate();
                assertNotNull(copy.find(9));
                top.removeChild(top.getChild(0));
            } catch (Throwable t) {
                failure[0] = t;
            }
        }, "small stack", 1 << 20);
        thread.start();
        thread.join();
        if (failure[0] != null) {
            throw new AssertionError(failure[0]);
        }
    }
}
