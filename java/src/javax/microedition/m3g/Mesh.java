package javax.microedition.m3g;

/** A node with a shape: vertices, and submeshes each with its own appearance. */
public class Mesh extends Node {
    /**
     * Makes a mesh of one submesh.
     *
     * @param appearance may be null; the mesh is then neither drawn nor picked
     * @throws NullPointerException if another argument is null
     */
    public Mesh(VertexBuffer vertices, IndexBuffer submesh, Appearance appearance) {
        this(createMeshN(handleOf(vertices), handleOf(submesh), handleOf(appearance)));
    }

    /**
     * Makes a mesh of several submeshes.
     *
     * @param appearances may be null and have null entries
     * @throws NullPointerException if another argument is null
     * @throws IllegalArgumentException if there is no submesh or fewer appearances than submeshes,
     *     or if a submesh is null
     */
    public Mesh(VertexBuffer vertices, IndexBuffer[] submeshes, Appearance[] appearances) {
        this(createMeshN(vertices.handle, handlesOf(submeshes),
                appearanceHandles(submeshes, appearances)));
    }

    Mesh(long handle) {
        super(handle);
    }

    /** The handles of an array's objects, 0 for null ones. */
    static long[] handlesOf(Object3D[] objects) {
        long[] handles = new long[objects.length];
        for (int i = 0; i < handles.length; ++i) {
            handles[i] = handleOf(objects[i]);
        }
        return handles;
    }

    /** The handles of the appearances that go with the submeshes; null for null. */
    static long[] appearanceHandles(IndexBuffer[] submeshes, Appearance[] appearances) {
        if (appearances == null) {
            return null;
        }
        if (appearances.length < submeshes.length) {
            throw new IllegalArgumentException("There are fewer appearances than submeshes");
        }
        return handlesOf(appearances);
    }

    /** @throws IndexOutOfBoundsException if there is no such submesh */
    public Appearance getAppearance(int index) {
        requireSubmesh(index);
        return getAppearanceN(handle, index);
    }

    /** @throws IndexOutOfBoundsException if there is no such submesh */
    public IndexBuffer getIndexBuffer(int index) {
        requireSubmesh(index);
        return getIndexBufferN(handle, index);
    }

    public int getSubmeshCount() {
        return getSubmeshCountN(handle);
    }

    public VertexBuffer getVertexBuffer() {
        return getVertexBufferN(handle);
    }

    /**
     * Sets the appearance of a submesh; null keeps it from being drawn and picked.
     *
     * @throws IndexOutOfBoundsException if there is no such submesh
     */
    public void setAppearance(int index, Appearance appearance) {
        requireSubmesh(index);
        setAppearanceN(handle, index, handleOf(appearance));
    }

    /** The natives let the number of submeshes itself pass as an index. */
    private void requireSubmesh(int index) {
        if (index == getSubmeshCountN(handle)) {
            throw new IndexOutOfBoundsException("There is no submesh " + index);
        }
    }

    static native long createMeshN(long vertices, long submesh, long appearance);

    static native long createMeshN(long vertices, long[] submeshes, long[] appearances);

    native Appearance getAppearanceN(long handle, int index);

    native IndexBuffer getIndexBufferN(long handle, int index);

    native int getSubmeshCountN(long handle);

    native VertexBuffer getVertexBufferN(long handle);

    native void setAppearanceN(long handle, int index, long appearance);
}
