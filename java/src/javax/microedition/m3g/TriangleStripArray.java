package javax.microedition.m3g;

import java.util.Objects;

/** A set of triangle strips. */
public class TriangleStripArray extends IndexBuffer {
    /**
     * Strips of consecutive vertices.
     *
     * @throws IllegalArgumentException if there are no strips
     */
    public TriangleStripArray(int firstIndex, int[] stripLengths) {
        this(createTriangleStripArrayN(firstIndex, Objects.requireNonNull(stripLengths)));
    }

    /**
     * Strips of listed vertices; indices beyond the last strip are ignored.
     *
     * @throws IllegalArgumentException if an array is empty, a strip is shorter than 3 or there are
     *     fewer indices than the strips need
     * @throws IndexOutOfBoundsException if an index is outside 0 to 65535
     */
    public TriangleStripArray(int[] indices, int[] stripLengths) {
        this(createTriangleStripArrayN(
                Objects.requireNonNull(indices), Objects.requireNonNull(stripLengths)));
    }

    TriangleStripArray(long handle) {
        super(handle);
    }

    static native long createTriangleStripArrayN(int firstIndex, int[] stripLengths);

    static native long createTriangleStripArrayN(int[] indices, int[] stripLengths);
}
