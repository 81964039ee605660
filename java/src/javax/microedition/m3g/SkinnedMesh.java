package javax.microedition.m3g;

/** A mesh whose vertices follow the bones of a skeleton. */
public class SkinnedMesh extends Mesh {
    /**
     * Makes a mesh of one submesh.
     *
     * @param appearance may be null
     * @throws NullPointerException if another argument is null, or the skeleton is a World or has a
     *     parent
     */
    public SkinnedMesh(VertexBuffer vertices, IndexBuffer submesh, Appearance appearance,
            Group skeleton) {
        this(createSkinnedMeshN(handleOf(vertices), handleOf(submesh), handleOf(appearance),
                handleOf(skeleton)));
    }

    /**
     * Makes a mesh of several submeshes.
     *
     * @param appearances may be null and have null entries
     * @throws NullPointerException if another argument is null
     * @throws IllegalArgumentException if there is no submesh or fewer appearances than submeshes,
     *     if a submesh is null, or if the skeleton is a World or has a parent
     */
    public SkinnedMesh(VertexBuffer vertices, IndexBuffer[] submeshes, Appearance[] appearances,
            Group skeleton) {
        this(createSkinnedMeshN(vertices.handle, handlesOf(submeshes),
                appearanceHandles(submeshes, appearances), skeleton.handle));
    }

    SkinnedMesh(long handle) {
        super(handle);
    }

    /**
     * Lets a run of vertices follow a bone.
     *
     * @throws NullPointerException if the bone is null
     * @throws IllegalArgumentException if the weight or the number of vertices is below 1, or the
     *     bone is not in the skeleton
     * @throws IndexOutOfBoundsException if the run does not lie within 0 to 65534
     * @throws ArithmeticException if the bone's transform cannot be inverted
     */
    public void addTransform(Node bone, int weight, int firstVertex, int numVertices) {
        addTransformN(handle, bone.handle, weight, firstVertex, numVertices);
    }

    /**
     * Writes the transform from this mesh to the bone, as it was when the bone was last given
     * vertices.
     *
     * @throws NullPointerException if an argument is null
     * @throws IllegalArgumentException if the bone is not in the skeleton
     */
    public void getBoneTransform(Node bone, Transform transform) {
        getBoneTransformN(handle, bone.handle, transform.handle);
    }

    /**
     * Writes the vertices that follow a bone and their weights, and returns their number. Both
     * arrays may be null.
     *
     * @throws NullPointerException if the bone is null
     * @throws IllegalArgumentException if an array is too short
     */
    public int getBoneVertices(Node bone, int[] indices, float[] weights) {
        return getBoneVerticesN(handle, bone.handle, indices, weights);
    }

    public Group getSkeleton() {
        return getSkeletonN(handle);
    }

    native void addTransformN(long handle, long bone, int weight, int firstVertex,
            int numVertices);

    static native long createSkinnedMeshN(long vertices, long submesh, long appearance,
            long skeleton);

    static native long createSkinnedMeshN(long vertices, long[] submeshes, long[] appearances,
            long skeleton);

    native void getBoneTransformN(long handle, long bone, long transform);

    native int getBoneVerticesN(long handle, long bone, int[] indices, float[] weights);

    native Group getSkeletonN(long handle);
}
