package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertIllegalState;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertThrows;

import org.junit.Test;

/** The natives of VertexArray. */
public class VertexArrayTest {
    private static final String NEGATIVE_COUNT = "negative number of vertices to be set";
    private static final String NEGATIVE_INDEX = "negative index for first vertex";
    private static final String BEYOND = "Index out of range on values[firstVertex + numComponents";
    private static final String NOT_16_BIT = " this is not a 16-bit VertexArray";
    private static final String NOT_8_BIT = " this is not an 8-bit VertexArray";
    private static final String FEW_TO_SET = "Insufficient data to VertexArray";
    private static final String FEW_TO_GET = "Values array is too short";
    private static final String NULL_VALUES = "values array is null";

    private final VertexArray bytes = new VertexArray(4, 3, 1);
    private final VertexArray shorts = new VertexArray(4, 3, 2);

    private static byte[] allBytes(VertexArray array) {
        byte[] values = new byte[array.getVertexCount() * array.getComponentCount()];
        array.get(0, array.getVertexCount(), values);
        return values;
    }

    private static short[] allShorts(VertexArray array) {
        short[] values = new short[array.getVertexCount() * array.getComponentCount()];
        array.get(0, array.getVertexCount(), values);
        return values;
    }

    @Test
    public void hasTheShapeThatItWasMadeWith() {
        for (int[] shape : new int[][] {{65535, 4, 2}, {1, 2, 1}, {9, 3, 2}}) {
            VertexArray array = new VertexArray(shape[0], shape[1], shape[2]);
            assertEquals(shape[0], array.getVertexCount());
            assertEquals(shape[1], array.getComponentCount());
            assertEquals(shape[2], array.getComponentType());
        }
    }

    @Test
    public void everyBadShapeFailsWithTheSameText() {
        int[][] shapes = {
            {65536, 3, 2}, {0, 3, 2}, {-1, 3, 2}, {1, 1, 2}, {1, 5, 2}, {1, 3, 0}, {1, 3, 3},
            {Integer.MAX_VALUE, Integer.MAX_VALUE, Integer.MAX_VALUE}
        };
        for (int[] shape : shapes) {
            assertIllegalArgument(
                    "Bad values to VertexArray constructor",
                    () -> new VertexArray(shape[0], shape[1], shape[2]));
        }
    }

    @Test
    public void writesAndReadsRanges() {
        bytes.set(1, 2, new byte[] {1, -2, 3, 127, -128, 6, 99});
        assertArrayEquals(
                new byte[] {0, 0, 0, 1, -2, 3, 127, -128, 6, 0, 0, 0}, allBytes(bytes));
        byte[] read = new byte[7];
        bytes.get(2, 2, read);
        assertArrayEquals(new byte[] {127, -128, 6, 0, 0, 0, 0}, read);
        shorts.set(3, 1, new short[] {32767, -32768, -1});
        assertArrayEquals(
                new short[] {0, 0, 0, 0, 0, 0, 0, 0, 0, 32767, -32768, -1}, allShorts(shorts));
    }

    @Test
    public void aRangeThatEndsAtTheLastVertexIsAcceptedAndOneMoreIsNot() {
        bytes.set(1, 3, new byte[9]);
        bytes.get(4, 0, new byte[0]);
        shorts.get(1, 3, new short[9]);
        assertOutOfBounds(BEYOND, () -> bytes.set(2, 3, new byte[9]));
        assertOutOfBounds(BEYOND, () -> bytes.get(1, 4, new byte[12]));
        assertOutOfBounds(BEYOND, () -> shorts.set(4, 1, new short[12]));
        assertOutOfBounds(BEYOND, () -> shorts.get(Integer.MAX_VALUE, 1, new short[12]));
    }

    @Test
    public void aNegativeCountIsReportedForGetToo() {
        assertIllegalArgument(NEGATIVE_COUNT, () -> bytes.get(0, -1, new byte[12]));
        assertIllegalArgument(NEGATIVE_COUNT, () -> bytes.set(-1, -1, new byte[12]));
        assertIllegalArgument(NEGATIVE_COUNT, () -> shorts.get(0, -1, new short[12]));
        assertIllegalArgument(
                NEGATIVE_COUNT, () -> shorts.set(0, Integer.MIN_VALUE, new short[12]));
    }

    @Test
    public void aNegativeFirstVertexIsOutOfBounds() {
        assertOutOfBounds(NEGATIVE_INDEX, () -> bytes.get(-1, 1, new byte[12]));
        assertOutOfBounds(NEGATIVE_INDEX, () -> bytes.set(-1, 4, new byte[12]));
        assertOutOfBounds(NEGATIVE_INDEX, () -> shorts.get(-1, 1, new short[12]));
        assertOutOfBounds(
                NEGATIVE_INDEX, () -> shorts.set(Integer.MIN_VALUE, 1, new short[12]));
    }

    @Test
    public void theOtherComponentSizeIsAnIllegalState() {
        assertIllegalState(NOT_16_BIT, () -> bytes.set(0, 1, new short[3]));
        assertIllegalState(NOT_8_BIT, () -> shorts.set(0, 1, new byte[3]));
        assertIllegalState(NOT_8_BIT, () -> shorts.get(0, 1, new byte[3]));
    }

    @Test
    public void readingShortsFromAnEightBitArraySaysThatItIsNotOne() {
        assertIllegalState(NOT_8_BIT, () -> bytes.get(0, 1, new short[3]));
    }

    @Test
    public void theLengthOfTheArrayIsTestedFirst() {
        assertIllegalArgument(FEW_TO_SET, () -> bytes.set(-1, 2, new byte[5]));
        assertIllegalArgument(FEW_TO_SET, () -> shorts.set(0, 9, new short[26]));
        assertIllegalArgument(FEW_TO_SET, () -> bytes.set(0, 1, new short[2]));
        assertIllegalArgument(
                FEW_TO_SET, () -> bytes.set(0, Integer.MAX_VALUE, new byte[12]));
        assertIllegalArgument(FEW_TO_GET, () -> bytes.get(-1, 2, new byte[5]));
        assertIllegalArgument(FEW_TO_GET, () -> shorts.get(0, 9, new short[26]));
        assertIllegalArgument(FEW_TO_GET, () -> shorts.get(0, 1, new byte[2]));
        assertIllegalArgument(
                FEW_TO_GET, () -> shorts.get(0, Integer.MAX_VALUE, new short[12]));
    }

    @Test
    public void nullArraysFailWithTheEnginesText() {
        long b = bytes.handle;
        long s = shorts.handle;
        assertIllegalArgument(NULL_VALUES, () -> bytes.setN(b, 0, 1, (byte[]) null));
        assertIllegalArgument(NULL_VALUES, () -> bytes.getN(b, 0, 1, (byte[]) null));
        assertIllegalArgument(NULL_VALUES, () -> shorts.setN(s, 0, 1, (short[]) null));
        assertIllegalArgument(NULL_VALUES, () -> shorts.getN(s, 0, 1, (short[]) null));
        assertThrows(NullPointerException.class, () -> bytes.set(0, 1, (byte[]) null));
        assertThrows(NullPointerException.class, () -> bytes.get(0, 1, (byte[]) null));
        assertThrows(NullPointerException.class, () -> shorts.set(0, 1, (short[]) null));
        assertThrows(NullPointerException.class, () -> shorts.get(0, 1, (short[]) null));
    }

    @Test
    public void aFailedAccessWritesNothing() {
        bytes.set(0, 4, new byte[] {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
        byte[] before = allBytes(bytes);
        assertOutOfBounds(BEYOND, () -> bytes.set(3, 2, new byte[6]));
        assertArrayEquals(before, allBytes(bytes));
        byte[] untouched = {7, 7, 7, 7, 7, 7};
        assertOutOfBounds(BEYOND, () -> bytes.get(3, 2, untouched));
        assertArrayEquals(new byte[] {7, 7, 7, 7, 7, 7}, untouched);
    }

    @Test
    public void aDuplicateHasValuesOfItsOwn() {
        shorts.set(0, 1, new short[] {1, 2, 3});
        shorts.setUserID(8);
        VertexArray copy = (VertexArray) shorts.duplicate();
        assertEquals(8, copy.getUserID());
        assertArrayEquals(allShorts(shorts), allShorts(copy));
        copy.set(0, 1, new short[] {7, 8, 9});
        assertEquals(1, allShorts(shorts)[0]);
    }
}
