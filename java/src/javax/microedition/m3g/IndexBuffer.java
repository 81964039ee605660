package javax.microedition.m3g;

import java.util.Objects;

/** How the vertices of a submesh are connected. */
public abstract class IndexBuffer extends Object3D {
    IndexBuffer(long handle) {
        super(handle);
    }

    /** The length of the triangle list. */
    public int getIndexCount() {
        return getIndexCountN(handle);
    }

    /**
     * Writes the triangle list, three indices for each triangle.
     *
     * @throws IllegalArgumentException if the array is too short
     */
    public void getIndices(int[] indices) {
        getIndicesN(handle, Objects.requireNonNull(indices));
    }

    native int getIndexCountN(long handle);

    native void getIndicesN(long handle, int[] indices);
}
