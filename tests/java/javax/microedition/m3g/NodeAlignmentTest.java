package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertFails;
import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertIllegalState;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import org.junit.Before;
import org.junit.Test;

/** The alignment natives of Node. */
public class NodeAlignmentTest {
    private final Group root = new Group();
    private final Group node = new Group();
    private final Group reference = new Group();

    @Before
    public void buildTree() {
        root.addChild(node);
        root.addChild(reference);
    }

    private void align(Node with) {
        node.getTransformTo(root, new Transform());
        node.align(with);
    }

    private void assertOrientation(float angle, float x, float y, float z) {
        float[] orientation = new float[4];
        node.getOrientation(orientation);
        assertArrayEquals(new float[] {angle, x, y, z}, orientation, 0.01f);
    }

    /** What the node's composite makes of a direction. */
    private float[] turned(float x, float y, float z) {
        Transform composite = new Transform();
        node.getCompositeTransform(composite);
        float[] v = {x, y, z, 0};
        composite.transform(v);
        return v;
    }

    @Test
    public void settingsAreReadBack() {
        node.setAlignment(reference, Node.ORIGIN, root, Node.Y_AXIS);
        assertEquals(Node.ORIGIN, node.getAlignmentTarget(Node.Z_AXIS));
        assertEquals(Node.Y_AXIS, node.getAlignmentTarget(Node.Y_AXIS));
        assertSame(reference, node.getAlignmentReference(Node.Z_AXIS));
        assertSame(root, node.getAlignmentReference(Node.Y_AXIS));
        node.setAlignment(null, Node.ORIGIN, null, Node.NONE);
        assertNull(node.getAlignmentReference(Node.Z_AXIS));
    }

    @Test
    public void otherAxesFail() {
        assertIllegalArgument("Node.getAlignment( )  -- axis not valid. ",
                () -> node.getAlignmentTarget(Node.X_AXIS));
        assertIllegalArgument("Node.getAlignment( )  -- axis not valid. ",
                () -> node.getAlignmentReference(Node.NONE));
    }

    @Test
    public void badReferencesFail() {
        Group below = new Group();
        node.addChild(below);
        assertIllegalArgument("Node.setAlignment -- no common ancestors between this node and zRef",
                () -> node.setAlignment(new Group(), Node.ORIGIN, null, Node.NONE));
        assertIllegalArgument("Node.setAlignment -- no common ancestors between this node and yRef",
                () -> node.setAlignment(null, Node.NONE, new Group(), Node.ORIGIN));
        assertIllegalArgument(" zRef is this node or a descendant of this node",
                () -> node.setAlignment(below, Node.ORIGIN, null, Node.NONE));
        assertIllegalArgument(" yRef is this node or a descendant of this node",
                () -> node.setAlignment(null, Node.NONE, node, Node.ORIGIN));
    }

    @Test
    public void twoEmptyReferencesWithOneTargetFail() {
        assertIllegalArgument(
                "Invalid configuration of alignment.  zRef == yRef and zTarget == yTarget != NONE",
                () -> node.setAlignment(null, Node.ORIGIN, null, Node.ORIGIN));
        node.setAlignment(null, Node.NONE, null, Node.NONE);
    }

    @Test
    public void withoutTargetsNothingTurnsNotEvenTheChildren() {
        Group child = new Group();
        node.addChild(child);
        child.setAlignment(reference, Node.X_AXIS, null, Node.NONE);
        node.setOrientation(30, 0, 0, 1);
        align(new Group());
        assertOrientation(30, 0, 0, 1);
        float[] orientation = new float[4];
        child.getOrientation(orientation);
        assertArrayEquals(new float[4], orientation, 0f);
    }

    @Test
    public void theAxesTurnToTheirTargets() {
        reference.setTranslation(5, 0, 0);
        node.setAlignment(reference, Node.ORIGIN, root, Node.Z_AXIS);
        align(null);
        assertArrayEquals(new float[] {1, 0, 0, 0}, turned(0, 0, 1), 1e-4f);
        assertArrayEquals(new float[] {0, 0, 1, 0}, turned(0, 1, 0), 1e-4f);
    }

    @Test
    public void aTargetStraightBehindTurnsByHalfACircleAboutY() {
        reference.setTranslation(0, 0, -4);
        node.setAlignment(reference, Node.ORIGIN, null, Node.NONE);
        align(null);
        assertArrayEquals(new float[] {0, 0, -1, 0}, turned(0, 0, 1), 1e-4f);
        assertArrayEquals(new float[] {0, 1, 0, 0}, turned(0, 1, 0), 1e-4f);
    }

    @Test
    public void aTargetStraightAheadKeepsTheOldOrientation() {
        reference.setTranslation(5, 0, 0);
        node.setAlignment(reference, Node.ORIGIN, null, Node.NONE);
        align(null);
        assertOrientation(90, 0, 1, 0);
        reference.setTranslation(0, 0, 5);
        align(null);
        assertOrientation(90, 0, 1, 0);
    }

    @Test
    public void anUnknownTargetIsStoredAndFailsAtTheAlignment() {
        node.setAlignment(reference, 144, null, Node.NONE);
        assertEquals(144, node.getAlignmentTarget(Node.Z_AXIS));
        assertFails(ArithmeticException.class,
                "Node.align -- internal error encountered. Invalid zTarget", () -> align(null));
        node.setAlignment(null, Node.NONE, reference, 144);
        assertFails(ArithmeticException.class,
                "Node.align -- internal error encountered. Invalid yTarget", () -> align(null));
    }

    @Test
    public void aNodeIsNotAlignedToItself() {
        node.setAlignment(null, Node.ORIGIN, null, Node.NONE);
        assertFails(ArithmeticException.class,
                "Node.align - z-axis reference is aligned to itself or a decendent",
                () -> align(null));
        node.setAlignment(null, Node.NONE, null, Node.ORIGIN);
        assertFails(ArithmeticException.class,
                "Node.align - y-axis reference is aligned to itself or a decendent",
                () -> align(null));
    }

    @Test
    public void aReferenceThatHasLeftTheTreeFails() {
        node.setAlignment(reference, Node.ORIGIN, null, Node.NONE);
        root.removeChild(reference);
        assertFails(ArithmeticException.class,
                "Node.align - z-axis reference is not in the same scene graph as this node",
                () -> align(null));
    }

    @Test
    public void anArgumentOfAnotherTreeFailsBeforeTheNative() {
        node.setAlignment(reference, Node.ORIGIN, null, Node.NONE);
        assertIllegalArgument(
                "Node.align - z-axis reference is not in the same scene graph as this node",
                () -> align(new Group()));
    }

    @Test
    public void otherFailuresAreIllegalStates() {
        Group child = new Group();
        node.addChild(child);
        node.setScale(0, 1, 1);
        child.setAlignment(reference, Node.ORIGIN, null, Node.NONE);
        child.getTransformTo(root, new Transform());
        assertIllegalState("Unable to invert matrix -- singularity encountered in the matrix",
                () -> child.align(null));
        root.setAlignment(null, Node.ORIGIN, null, Node.NONE);
        assertIllegalState("A node without a parent cannot be aligned",
                () -> root.align(reference));
    }

    @Test
    public void anAlignedNodeDoesNotDuplicateWithoutItsReference() throws Exception {
        ChildJvm.Result result = ChildJvm.run(DuplicateAligned.class);
        assertEquals(result.toString(), true, result.exitCode != 0);
        assertEquals(result.toString(), true, result.err.contains(
                "Node.setAlignment -- no common ancestors between this node and zRef"));
    }

    /** The native of duplicate lets the failure pass, which ends the process. */
    static final class DuplicateAligned {
        public static void main(String[] arguments) {
            Group root = new Group();
            Group node = new Group();
            Group reference = new Group();
            root.addChild(node);
            root.addChild(reference);
            node.setAlignment(reference, Node.ORIGIN, null, Node.NONE);
            node.duplicate();
        }
    }
}
