package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Shapes.elements;
import static javax.microedition.m3g.Shapes.translation;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import org.junit.Before;
import org.junit.Test;

/** The natives of Node, on a tree of a root, two branches and a leaf below the first. */
public class NodeTest {
    private final Group root = new Group();
    private final Group a = new Group();
    private final Group b = new Group();
    private final Group leaf = new Group();
    private final Transform out = new Transform();

    @Before
    public void buildTree() {
        root.addChild(a);
        a.addChild(leaf);
        root.addChild(b);
    }

    @Test
    public void startsWithItsDefaults() {
        Group node = new Group();
        assertNull(node.getParent());
        assertTrue(node.isPickingEnabled());
        assertTrue(node.isRenderingEnabled());
        assertEquals(1f, node.getAlphaFactor(), 0f);
        assertEquals(-1, node.getScope());
        assertEquals(Node.NONE, node.getAlignmentTarget(Node.Z_AXIS));
        assertEquals(Node.NONE, node.getAlignmentTarget(Node.Y_AXIS));
        assertNull(node.getAlignmentReference(Node.Z_AXIS));
    }

    @Test
    public void settersAreReadBack() {
        leaf.setPickingEnable(false);
        leaf.setRenderingEnable(false);
        leaf.setAlphaFactor(0.5f);
        leaf.setScope(6);
        assertFalse(leaf.isPickingEnabled());
        assertFalse(leaf.isRenderingEnabled());
        assertEquals(0.5f, leaf.getAlphaFactor(), 0f);
        assertEquals(6, leaf.getScope());
    }

    @Test
    public void plainSettersKeepTheWorldTransforms() {
        // A root that had to be brought up to date anew would show by its own matrix twice.
        root.setTranslation(1, 0, 0);
        leaf.getTransformTo(root, out);
        float[] before = elements(out);
        leaf.setScope(3);
        leaf.setAlphaFactor(0.25f);
        leaf.setPickingEnable(false);
        leaf.setRenderingEnable(false);
        leaf.getTransformTo(root, out);
        assertArrayEquals(before, elements(out), 0f);
    }

    @Test
    public void aRootThatChangesAgainAccumulates() {
        root.setTranslation(1, 0, 0);
        leaf.getTransformTo(root, out);
        assertArrayEquals(translation(1, 0, 0), elements(out), 0f);
        root.setTranslation(1, 0, 0);
        leaf.getTransformTo(root, out);
        assertArrayEquals(translation(2, 0, 0), elements(out), 0f);
    }

    @Test
    public void alphaFactorsOutsideZeroToOneFail() {
        for (float alpha : new float[] {-0.001f, 1.001f}) {
            assertIllegalArgument("Node.setAlphaFactor  invalid value for alphaFactor arg.",
                    () -> leaf.setAlphaFactor(alpha));
        }
        leaf.setAlphaFactor(Float.NaN);
        assertTrue(Float.isNaN(leaf.getAlphaFactor()));
    }

    @Test
    public void transformsGoUpDownAndAcross() {
        a.setTranslation(1, 0, 0);
        leaf.setTranslation(0, 2, 0);
        b.setTranslation(0, 0, 4);
        assertTrue(leaf.getTransformTo(root, out));
        assertArrayEquals(translation(1, 2, 0), elements(out), 0f);
        assertTrue(root.getTransformTo(leaf, out));
        assertArrayEquals(translation(-1, -2, 0), elements(out), 0f);
        assertTrue(leaf.getTransformTo(b, out));
        assertArrayEquals(translation(1, 2, -4), elements(out), 0f);
        assertTrue(leaf.getTransformTo(leaf, out));
        assertArrayEquals(translation(0, 0, 0), elements(out), 0f);
    }

    @Test
    public void aChangeOfALeafReachesTheNextQuery() {
        leaf.getTransformTo(root, out);
        leaf.translate(3, 0, 0);
        leaf.getTransformTo(root, out);
        assertArrayEquals(translation(3, 0, 0), elements(out), 0f);
        b.getTransformTo(root, out);
        assertArrayEquals(translation(0, 0, 0), elements(out), 0f);
    }

    @Test
    public void unrelatedTreesAnswerFalse() {
        out.postTranslate(7, 8, 9);
        assertFalse(leaf.getTransformTo(new Group(), out));
        assertArrayEquals(translation(7, 8, 9), elements(out), 0f);
    }

    @Test
    public void aDetachedNodeIsItsOwnRoot() {
        root.setTranslation(5, 0, 0);
        leaf.setTranslation(1, 0, 0);
        root.removeChild(a);
        assertNull(a.getParent());
        assertFalse(leaf.getTransformTo(root, out));
        assertTrue(leaf.getTransformTo(a, out));
        assertArrayEquals(translation(1, 0, 0), elements(out), 0f);
    }

    @Test
    public void aTargetWithoutAnInverseFails() {
        b.setScale(0, 1, 1);
        Failures.assertFails(ArithmeticException.class,
                "Unable to invert matrix -- singularity encountered in the matrix",
                () -> leaf.getTransformTo(b, out));
    }

    @Test
    public void aNullTargetReachesAClassThatDoesNotExist() {
        Throwable thrown = assertThrows(NoClassDefFoundError.class,
                () -> leaf.getTransformToN(leaf.handle, 0, out.handle));
        assertEquals("java/lang/InvalidArgument", thrown.getMessage());
        assertThrows(NullPointerException.class, () -> leaf.getTransformTo(null, out));
    }

    @Test
    public void theParentIsTheSameObject() {
        assertSame(a, leaf.getParent());
    }

    @Test
    public void duplicatesCopyTheSubtree() {
        a.setTranslation(1, 2, 3);
        leaf.setUserID(44);
        root.setScope(8);
        Group copy = (Group) root.duplicate();
        assertEquals(2, copy.getChildCount());
        assertEquals(8, copy.getScope());
        assertNull(copy.getParent());
        Group copiedA = (Group) copy.getChild(0);
        float[] xyz = new float[3];
        copiedA.getTranslation(xyz);
        assertArrayEquals(new float[] {1, 2, 3}, xyz, 0f);
        assertEquals(44, copiedA.getChild(0).getUserID());
        assertSame(copiedA, copiedA.getChild(0).getParent());
        assertSame(copiedA.getChild(0), copy.find(44));
    }
}
