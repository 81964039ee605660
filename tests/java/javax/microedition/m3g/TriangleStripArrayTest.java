package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertThrows;

import org.junit.Test;

/** The natives of IndexBuffer and TriangleStripArray. */
public class TriangleStripArrayTest {
    private static final String NO_INDICES =
            "TriangleStripArray constructor.  Null or empty indices array passed in";
    private static final String NULL_LENGTHS =
            "TriangleStripArray constructor.  Null stripLengths array passed in";
    private static final String NO_LENGTHS =
            "TriangleStripArray constructor.  stripLengths array is empty (length = 0)";
    private static final String SHORT_STRIP =
            "TriangleStripArray constructor.   strip length less than 3 elements -- can't make a"
                    + " triangle";
    private static final String FEW_INDICES =
            "TriangleStripArray constructor.   indices array out of bounds error";
    private static final String LARGE_INDEX =
            "TriangleStripArray constructor.   index greater than 65535 -- exceeds 16 bit capacity";
    private static final String SHORT_ARRAY = "Array passed to getIndices is too short.";

    private static int[] ints(int... values) {
        return values;
    }

    private static int[] indicesOf(IndexBuffer buffer) {
        int[] indices = new int[Math.max(buffer.getIndexCount(), 0)];
        buffer.getIndices(indices);
        return indices;
    }

    @Test
    public void aStripOfThreeGivesThreeIndicesOfFourSix() {
        assertArrayEquals(ints(0, 1, 2), indicesOf(new TriangleStripArray(0, ints(3))));
        assertArrayEquals(
                ints(0, 1, 2, 2, 1, 3), indicesOf(new TriangleStripArray(0, ints(4))));
        assertArrayEquals(
                ints(7, 5, 9, 9, 5, 1),
                indicesOf(new TriangleStripArray(ints(7, 5, 9, 1), ints(4))));
    }

    @Test
    public void implicitStripsFollowEachOther() {
        assertArrayEquals(
                ints(10, 11, 12, 13, 14, 15, 15, 14, 16),
                indicesOf(new TriangleStripArray(10, ints(3, 4))));
    }

    @Test
    public void anExplicitStripOfTwoFails() {
        assertIllegalArgument(
                SHORT_STRIP, () -> new TriangleStripArray(ints(0, 1, 2, 3), ints(2)));
        assertIllegalArgument(
                SHORT_STRIP, () -> new TriangleStripArray(ints(0, 1, 2, 3), ints(3, 0)));
    }

    @Test
    public void fewerIndicesThanTheLengthsFailAndMoreAreIgnored() {
        assertIllegalArgument(
                FEW_INDICES, () -> new TriangleStripArray(ints(0, 1, 2, 3), ints(5)));
        assertIllegalArgument(
                FEW_INDICES,
                () -> new TriangleStripArray(ints(0, 1, 2, 3), ints(Integer.MAX_VALUE)));
        assertIllegalArgument(
                FEW_INDICES, () -> new TriangleStripArray(ints(0, 1, 2, 3), ints(-1)));
        assertArrayEquals(
                ints(0, 1, 2), indicesOf(new TriangleStripArray(ints(0, 1, 2, -1), ints(3))));
    }

    @Test
    public void indicesOutsideSixteenBitsFailNegativeOnesToo() {
        for (int index : new int[] {-1, 65536, Integer.MIN_VALUE, Integer.MAX_VALUE}) {
            assertOutOfBounds(
                    LARGE_INDEX, () -> new TriangleStripArray(ints(0, 1, index), ints(3)));
        }
        assertArrayEquals(
                ints(0, 1, 65535),
                indicesOf(new TriangleStripArray(ints(0, 1, 65535), ints(3))));
    }

    @Test
    public void emptyArraysFail() {
        assertIllegalArgument(NO_INDICES, () -> new TriangleStripArray(ints(), ints()));
        assertIllegalArgument(NO_LENGTHS, () -> new TriangleStripArray(ints(1), ints()));
        assertIllegalArgument(NO_LENGTHS, () -> new TriangleStripArray(0, ints()));
    }

    @Test
    public void nullArraysFailWithTheEnginesText() {
        assertIllegalArgument(
                NO_INDICES, () -> TriangleStripArray.createTriangleStripArrayN(null, null));
        assertIllegalArgument(
                NULL_LENGTHS,
                () -> TriangleStripArray.createTriangleStripArrayN(ints(0, 1, 2), null));
        assertIllegalArgument(
                NULL_LENGTHS, () -> TriangleStripArray.createTriangleStripArrayN(0, null));
        assertThrows(NullPointerException.class, () -> new TriangleStripArray(0, null));
        assertThrows(NullPointerException.class, () -> new TriangleStripArray(null, ints(3)));
        assertThrows(NullPointerException.class, () -> new TriangleStripArray(ints(0), null));
    }

    @Test
    public void implicitStripsShorterThanThreeAreAcceptedAndCounted() {
        assertEquals(0, new TriangleStripArray(0, ints(2)).getIndexCount());
        assertEquals(-3, new TriangleStripArray(0, ints(1)).getIndexCount());
        assertEquals(3, new TriangleStripArray(0, ints(1, 4)).getIndexCount());
        assertArrayEquals(ints(1, 2, 3), indicesOf(new TriangleStripArray(0, ints(1, 4))));
        indicesOf(new TriangleStripArray(0, ints(1)));
    }

    @Test
    public void anArrayShorterThanTheListFails() {
        TriangleStripArray strips = new TriangleStripArray(0, ints(4));
        int[] five = {9, 9, 9, 9, 9};
        assertIllegalArgument(SHORT_ARRAY, () -> strips.getIndices(five));
        assertArrayEquals(ints(9, 9, 9, 9, 9), five);
        assertIllegalArgument(SHORT_ARRAY, () -> strips.getIndicesN(strips.handle, null));
        assertThrows(NullPointerException.class, () -> strips.getIndices(null));
        int[] seven = new int[7];
        seven[6] = 9;
        strips.getIndices(seven);
        assertArrayEquals(ints(0, 1, 2, 2, 1, 3, 9), seven);
    }

    @Test
    public void aDuplicateHasTheSameTriangles() {
        TriangleStripArray implicit = new TriangleStripArray(10, ints(3, 4));
        implicit.setUserID(3);
        TriangleStripArray copy = (TriangleStripArray) implicit.duplicate();
        assertNotSame(implicit, copy);
        assertEquals(3, copy.getUserID());
        assertArrayEquals(indicesOf(implicit), indicesOf(copy));
        TriangleStripArray listed =
                new TriangleStripArray(ints(5, 6, 7, 8, 1, 2, 3), ints(4, 3));
        assertArrayEquals(indicesOf(listed), indicesOf((TriangleStripArray) listed.duplicate()));
    }
}
