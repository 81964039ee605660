package javax.microedition.m3g;

/** The vertex attributes of a mesh. */
public class VertexBuffer extends Object3D {
    private static final int BIAS_LENGTH = 3;
    private static final int SCALE_BIAS_LENGTH = 4;

    public VertexBuffer() {
        this(createVertexBufferN());
    }

    VertexBuffer(long handle) {
        super(handle);
    }

    public VertexArray getColors() {
        return getColorsN(handle);
    }

    public int getDefaultColor() {
        return getDefaultColorN(handle);
    }

    public VertexArray getNormals() {
        return getNormalsN(handle);
    }

    /**
     * The positions, or null.
     *
     * @param scaleBias receives the scale and the three bias values; may be null
     */
    public VertexArray getPositions(float[] scaleBias) {
        requireLength(scaleBias, SCALE_BIAS_LENGTH);
        return getPositionsN(handle, scaleBias);
    }

    /**
     * The texture coordinates of a unit, or null.
     *
     * @param scaleBias receives the scale and the three bias values; may be null
     * @throws IndexOutOfBoundsException if there is no such unit
     */
    public VertexArray getTexCoords(int index, float[] scaleBias) {
        requireLength(scaleBias, SCALE_BIAS_LENGTH);
        return getTexCoordsN(handle, index, scaleBias);
    }

    public int getVertexCount() {
        return getVertexCountN(handle);
    }

    /** @throws IllegalArgumentException if the array has the wrong shape */
    public void setColors(VertexArray colors) {
        setColorsN(handle, handleOf(colors));
    }

    public void setDefaultColor(int ARGB) {
        setDefaultColorN(handle, ARGB);
    }

    /** @throws IllegalArgumentException if the array has the wrong shape */
    public void setNormals(VertexArray normals) {
        setNormalsN(handle, handleOf(normals));
    }

    /**
     * Sets or, with null, removes the positions.
     *
     * @param bias three values; null keeps the present bias
     * @throws IllegalArgumentException if the array has the wrong shape
     */
    public void setPositions(VertexArray positions, float scale, float[] bias) {
        requireLength(bias, BIAS_LENGTH);
        setPositionsN(handle, handleOf(positions), scale, bias);
    }

    /**
     * Sets or, with null, removes the texture coordinates of a unit.
     *
     * @param bias three values, the third unused with two components; null keeps the present bias
     * @throws IllegalArgumentException if the array has the wrong shape or there is no such unit
     */
    public void setTexCoords(int index, VertexArray texCoords, float scale, float[] bias) {
        if (texCoords != null) {
            requireLength(bias, texCoords.getComponentCount());
        }
        setTexCoordsN(handle, index, handleOf(texCoords), scale, bias);
    }

    private static void requireLength(float[] array, int length) {
        if (array != null && array.length < length) {
            throw new IllegalArgumentException("The array must hold " + length + " elements");
        }
    }

    static native long createVertexBufferN();

    native VertexArray getColorsN(long handle);

    native int getDefaultColorN(long handle);

    native VertexArray getNormalsN(long handle);

    native VertexArray getPositionsN(long handle, float[] scaleBias);

    native VertexArray getTexCoordsN(long handle, int index, float[] scaleBias);

    native int getVertexCountN(long handle);

    native void setColorsN(long handle, long colors);

    native void setDefaultColorN(long handle, int color);

    native void setNormalsN(long handle, long normals);

    native void setPositionsN(long handle, long positions, float scale, float[] bias);

    native void setTexCoordsN(long handle, int index, long texCoords, float scale, float[] bias);
}
