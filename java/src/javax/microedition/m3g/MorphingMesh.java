package javax.microedition.m3g;

/** A mesh that draws the weighted sum of a base shape and its morph targets. */
public class MorphingMesh extends Mesh {
    /**
     * Makes a mesh of one submesh. It counts no morph targets and shows its base shape.
     *
     * @param appearance may be null
     * @throws NullPointerException if another argument or a target is null, or there is no target
     */
    public MorphingMesh(VertexBuffer base, VertexBuffer[] targets, IndexBuffer submesh,
            Appearance appearance) {
        this(createMorphingMeshN(handleOf(base), handlesOf(targets), handleOf(submesh),
                handleOf(appearance)));
    }

    /**
     * Makes a mesh of several submeshes.
     *
     * @param appearances may be null and have null entries
     * @throws NullPointerException if another argument is null
     * @throws IllegalArgumentException if there is no target, no submesh or fewer appearances than
     *     submeshes, or if a target or a submesh is null
     */
    public MorphingMesh(VertexBuffer base, VertexBuffer[] targets, IndexBuffer[] submeshes,
            Appearance[] appearances) {
        this(createMorphingMeshN(base.handle, handlesOf(targets), handlesOf(submeshes),
                appearanceHandles(submeshes, appearances)));
    }

    MorphingMesh(long handle) {
        super(handle);
    }

    /** @throws IndexOutOfBoundsException if there is no such target */
    public VertexBuffer getMorphTarget(int index) {
        if (index < 0) {
            throw new IndexOutOfBoundsException("Given index " + index
                    + "; number of targets: " + getMorphTargetCount());
        }
        return getMorphTargetN(handle, index);
    }

    public int getMorphTargetCount() {
        return getMorphTargetCountN(handle);
    }

    /**
     * Writes one weight for each target.
     *
     * @throws NullPointerException if the array is null
     * @throws IllegalArgumentException if the array is too short
     */
    public void getWeights(float[] weights) {
        getWeightsN(handle, weights);
    }

    /**
     * Sets one weight for each target, of any value; they need not add up to 1.
     *
     * @throws NullPointerException if the array is null
     * @throws IllegalArgumentException if the array is too short
     */
    public void setWeights(float[] weights) {
        setWeightsN(handle, weights);
    }

    static native long createMorphingMeshN(long base, long[] targets, long submesh,
            long appearance);

    static native long createMorphingMeshN(long base, long[] targets, long[] submeshes,
            long[] appearances);

    native int getMorphTargetCountN(long handle);

    native VertexBuffer getMorphTargetN(long handle, int index);

    native void getWeightsN(long handle, float[] weights);

    native void setWeightsN(long handle, float[] weights);
}
