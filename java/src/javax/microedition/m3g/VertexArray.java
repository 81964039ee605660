package javax.microedition.m3g;

import java.util.Objects;

/** The values of one vertex attribute. */
public class VertexArray extends Object3D {
    /**
     * An array of zeros.
     *
     * @param numVertices 1 to 65535
     * @param numComponents 2 to 4
     * @param componentSize 1 or 2 bytes
     * @throws IllegalArgumentException if an argument is out of range
     */
    public VertexArray(int numVertices, int numComponents, int componentSize) {
        this(createVertexArrayN(numVertices, numComponents, componentSize));
    }

    VertexArray(long handle) {
        super(handle);
    }

    /**
     * Reads vertices of an 8-bit array.
     *
     * @throws IllegalArgumentException if the values do not fit, or the count is negative
     * @throws IllegalStateException if this is not an 8-bit array
     * @throws IndexOutOfBoundsException if the range is not inside this array
     */
    public void get(int firstVertex, int numVertices, byte[] values) {
        getN(handle, firstVertex, numVertices, Objects.requireNonNull(values));
    }

    /** Reads vertices of a 16-bit array; throws as the other form does. */
    public void get(int firstVertex, int numVertices, short[] values) {
        getN(handle, firstVertex, numVertices, Objects.requireNonNull(values));
    }

    public int getComponentCount() {
        return getComponentCountN(handle);
    }

    /** Bytes per component. */
    public int getComponentType() {
        return getComponentTypeN(handle);
    }

    public int getVertexCount() {
        return getVertexCountN(handle);
    }

    /**
     * Writes vertices of an 8-bit array.
     *
     * @throws IllegalArgumentException if there are too few values, or the count is negative
     * @throws IllegalStateException if this is not an 8-bit array
     * @throws IndexOutOfBoundsException if the range is not inside this array
     */
    public void set(int firstVertex, int numVertices, byte[] values) {
        setN(handle, firstVertex, numVertices, Objects.requireNonNull(values));
    }

    /** Writes vertices of a 16-bit array; throws as the other form does. */
    public void set(int firstVertex, int numVertices, short[] values) {
        setN(handle, firstVertex, numVertices, Objects.requireNonNull(values));
    }

    static native long createVertexArrayN(int numVertices, int numComponents, int componentSize);

    native int getComponentCountN(long handle);

    native int getComponentTypeN(long handle);

    native void getN(long handle, int firstVertex, int numVertices, byte[] values);

    native void getN(long handle, int firstVertex, int numVertices, short[] values);

    native int getVertexCountN(long handle);

    native void setN(long handle, int firstVertex, int numVertices, byte[] values);

    native void setN(long handle, int firstVertex, int numVertices, short[] values);
}
