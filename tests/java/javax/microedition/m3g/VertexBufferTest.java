package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;

import org.junit.Test;

/** The natives of VertexBuffer. */
public class VertexBufferTest {
    private static final String NO_SUCH_UNIT =
            "VertexBuffer.setTexCoords() -- Texture unit index exceeds system limits";

    private final VertexBuffer buffer = new VertexBuffer();

    private static VertexArray newArray(int vertices, int components) {
        return new VertexArray(vertices, components, 2);
    }

    private static VertexArray newBytes(int vertices, int components) {
        return new VertexArray(vertices, components, 1);
    }

    private static void assertScaleBias(float[] actual, float... expected) {
        assertArrayEquals(expected, actual, 0f);
    }

    private float[] positionScaleBias() {
        float[] scaleBias = {9, 9, 9, 9};
        buffer.getPositions(scaleBias);
        return scaleBias;
    }

    private float[] texCoordScaleBias() {
        float[] scaleBias = {9, 9, 9, 9};
        buffer.getTexCoords(0, scaleBias);
        return scaleBias;
    }

    /** The first unit that the engine does not have. */
    private int units() {
        int unit = 0;
        while (true) {
            try {
                buffer.getTexCoords(unit, null);
            } catch (IndexOutOfBoundsException e) {
                return unit;
            }
            unit++;
        }
    }

    @Test
    public void startsEmptyAndWhite() {
        assertNull(buffer.getPositions(null));
        assertScaleBias(positionScaleBias(), 1, 0, 0, 0);
        assertNull(buffer.getNormals());
        assertNull(buffer.getColors());
        assertEquals(0, buffer.getVertexCount());
        assertEquals(-1, buffer.getDefaultColor());
    }

    @Test
    public void texCoordsOfAFreshBufferAreEmptyWithScaleOneAndNoBias() {
        assertNull(buffer.getTexCoords(0, null));
        assertScaleBias(texCoordScaleBias(), 1, 0, 0, 0);
    }

    @Test
    public void theDefaultColorReadsBackAsGiven() {
        for (int color : new int[] {0x80102030, 0, -1, Integer.MIN_VALUE, 0x7FFFFFFF}) {
            buffer.setDefaultColor(color);
            assertEquals(color, buffer.getDefaultColor());
        }
    }

    @Test
    public void positionsAreSharedWithScaleAndBias() {
        VertexArray positions = newArray(4, 3);
        buffer.setPositions(positions, -0.5f, new float[] {1, 2, 3, 4});
        assertSame(positions, buffer.getPositions(null));
        assertScaleBias(positionScaleBias(), -0.5f, 1, 2, 3);
        assertEquals(4, buffer.getVertexCount());
        float[] longer = new float[6];
        buffer.getPositions(longer);
        assertScaleBias(longer, -0.5f, 1, 2, 3, 0, 0);
        buffer.setPositions(positions, Float.NaN, new float[] {Float.NaN, 0, 0});
        assertScaleBias(positionScaleBias(), Float.NaN, Float.NaN, 0, 0);
    }

    @Test
    public void aNullBiasKeepsTheBiasOfThePositions() {
        VertexArray positions = newArray(4, 3);
        buffer.setPositions(positions, 2f, new float[] {1, 2, 3});
        buffer.setPositions(positions, 3f, null);
        assertScaleBias(positionScaleBias(), 3, 1, 2, 3);
    }

    @Test
    public void withoutPositionsAnyLengthPassesAgain() {
        buffer.setPositions(newArray(4, 3), 2f, new float[] {1, 2, 3});
        buffer.setNormals(newArray(4, 3));
        buffer.setPositions(null, 9f, new float[] {7, 8, 9});
        assertNull(buffer.getPositions(null));
        assertScaleBias(positionScaleBias(), 2, 1, 2, 3);
        assertEquals(0, buffer.getVertexCount());
        buffer.setNormals(newArray(5, 3));
        buffer.setColors(newBytes(6, 3));
        buffer.setTexCoords(0, newArray(7, 2), 1f, null);
        buffer.setPositions(newArray(8, 3), 1f, null);
        assertEquals(8, buffer.getVertexCount());
    }

    @Test
    public void positionsOfAWrongShapeFailAndChangeNothing() {
        VertexArray positions = newArray(4, 3);
        buffer.setPositions(positions, 2f, new float[] {1, 2, 3});
        float[] other = {7, 8, 9};
        VertexArray wide = newArray(5, 4);
        assertIllegalArgument(
                "input vertex array must have 3 components",
                () -> buffer.setPositions(wide, 5f, other));
        VertexArray longer = newArray(5, 3);
        assertIllegalArgument(
                "input vertex array length doesn't match existing vertexCount",
                () -> buffer.setPositions(longer, 5f, other));
        assertSame(positions, buffer.getPositions(null));
        assertScaleBias(positionScaleBias(), 2, 1, 2, 3);
    }

    @Test
    public void normalsOfFourComponentsFail() {
        VertexArray normals = newArray(4, 3);
        buffer.setPositions(newArray(4, 3), 1f, null);
        buffer.setNormals(normals);
        VertexArray wide = newArray(4, 4);
        assertIllegalArgument(
                "normals array component size incorrect", () -> buffer.setNormals(wide));
        VertexArray longer = newArray(5, 3);
        assertIllegalArgument(
                "normals array size doesn't match vertex array", () -> buffer.setNormals(longer));
        assertSame(normals, buffer.getNormals());
        buffer.setNormals(null);
        assertNull(buffer.getNormals());
    }

    @Test
    public void colorsOfTwoBytesOrTwoComponentsFail() {
        VertexArray colors = newBytes(4, 4);
        buffer.setPositions(newArray(4, 3), 1f, null);
        buffer.setColors(colors);
        VertexArray wide = newArray(4, 4);
        VertexArray narrow = newBytes(4, 2);
        VertexArray longer = newBytes(5, 3);
        assertIllegalArgument(
                "color array component size incorrect", () -> buffer.setColors(wide));
        assertIllegalArgument(
                "color array component size incorrect", () -> buffer.setColors(narrow));
        assertIllegalArgument(
                "color array size doesn't match vertex array", () -> buffer.setColors(longer));
        assertSame(colors, buffer.getColors());
        buffer.setColors(newBytes(4, 3));
        buffer.setColors(null);
        assertNull(buffer.getColors());
    }

    @Test
    public void texCoordsAreSharedWithScaleAndBias() {
        VertexArray coords = newBytes(4, 2);
        buffer.setTexCoords(0, coords, 0.25f, new float[] {1, 2, 3});
        assertSame(coords, buffer.getTexCoords(0, null));
        assertScaleBias(texCoordScaleBias(), 0.25f, 1, 2, 3);
        buffer.setTexCoords(0, newArray(5, 3), 4f, null);
        assertScaleBias(texCoordScaleBias(), 4, 1, 2, 3);
        buffer.setTexCoords(0, null, 8f, new float[] {7, 8, 9});
        assertNull(buffer.getTexCoords(0, null));
        assertScaleBias(texCoordScaleBias(), 4, 1, 2, 3);
    }

    @Test
    public void aBiasOfTwoElementsServesTwoComponents() {
        buffer.setTexCoords(0, newBytes(4, 2), 1f, new float[] {1, 2});
        assertScaleBias(texCoordScaleBias(), 1, 1, 2, 0);
    }

    @Test
    public void theFirstUnitBeyondTheLimitsFails() {
        int units = units();
        VertexArray coords = newBytes(4, 2);
        for (int unit : new int[] {units, -1, Integer.MAX_VALUE, Integer.MIN_VALUE}) {
            assertIllegalArgument(NO_SUCH_UNIT, () -> buffer.setTexCoords(unit, coords, 1f, null));
            assertOutOfBounds(
                    "Texture index is out of range", () -> buffer.getTexCoords(unit, null));
        }
        assertNull(buffer.getTexCoords(units - 1, null));
    }

    @Test
    public void texCoordsOfAWrongShapeFailAndChangeNothing() {
        VertexArray coords = newBytes(4, 2);
        buffer.setPositions(newArray(4, 3), 1f, null);
        buffer.setTexCoords(0, coords, 2f, new float[] {1, 2, 3});
        float[] other = {7, 8, 9, 10};
        VertexArray wide = newArray(5, 4);
        assertIllegalArgument(
                "VertexBuffer.setTexCoords() -- input texture coord array must have 2 or 3"
                        + " components",
                () -> buffer.setTexCoords(0, wide, 5f, other));
        VertexArray longer = newArray(5, 3);
        assertIllegalArgument(
                "VertexBuffer.setTexCoords() -- input texture coord array length doesn't match"
                        + " existing vertexCount",
                () -> buffer.setTexCoords(0, longer, 5f, other));
        assertSame(coords, buffer.getTexCoords(0, null));
        assertScaleBias(texCoordScaleBias(), 2, 1, 2, 3);
    }

    @Test
    public void arraysTooShortForScaleAndBiasAreRefusedInJavaAndHarmlessInTheNatives() {
        VertexArray array = newArray(4, 3);
        assertThrows(
                IllegalArgumentException.class,
                () -> buffer.setPositions(array, 1f, new float[2]));
        assertThrows(IllegalArgumentException.class, () -> buffer.getPositions(new float[3]));
        assertThrows(IllegalArgumentException.class, () -> buffer.getTexCoords(0, new float[3]));
        buffer.setPositionsN(buffer.handle, array.handle, 2f, new float[] {5});
        assertScaleBias(positionScaleBias(), 2, 5, 0, 0);
        float[] two = new float[2];
        buffer.getPositionsN(buffer.handle, two);
        assertScaleBias(two, 2, 5);
        buffer.getTexCoordsN(buffer.handle, 0, new float[0]);
    }

    @Test
    public void refersToTexCoordsColorsNormalsPositions() {
        VertexArray positions = newArray(4, 3);
        VertexArray normals = newArray(4, 3);
        VertexArray colors = newBytes(4, 4);
        VertexArray coords = newArray(4, 2);
        buffer.setPositions(positions, 1f, null);
        buffer.setNormals(normals);
        buffer.setColors(colors);
        buffer.setTexCoords(0, coords, 1f, null);
        Object3D[] references = new Object3D[4];
        assertEquals(4, buffer.getReferences(references));
        assertArrayEquals(new Object3D[] {coords, colors, normals, positions}, references);
        assertIllegalArgument(
                "VertexBuffer::getReferences maxReferences too small",
                () -> buffer.getReferencesN(buffer.handle, new Object3D[3]));
    }

    @Test
    public void aDuplicateSharesTheArrays() {
        VertexArray positions = newArray(4, 3);
        VertexArray coords = newArray(4, 2);
        buffer.setPositions(positions, 2f, new float[] {1, 2, 3});
        buffer.setTexCoords(0, coords, 3f, new float[] {4, 5, 6});
        buffer.setDefaultColor(0x01020304);
        VertexBuffer copy = (VertexBuffer) buffer.duplicate();
        assertNotSame(buffer, copy);
        float[] scaleBias = new float[4];
        assertSame(positions, copy.getPositions(scaleBias));
        assertScaleBias(scaleBias, 2, 1, 2, 3);
        assertSame(coords, copy.getTexCoords(0, scaleBias));
        assertScaleBias(scaleBias, 3, 4, 5, 6);
        assertEquals(0x01020304, copy.getDefaultColor());
        copy.setPositions(newArray(4, 3), 9f, new float[] {9, 9, 9});
        copy.setDefaultColor(0);
        assertSame(positions, buffer.getPositions(null));
        assertScaleBias(positionScaleBias(), 2, 1, 2, 3);
        assertEquals(0x01020304, buffer.getDefaultColor());
    }
}
