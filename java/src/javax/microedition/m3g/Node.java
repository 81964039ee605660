package javax.microedition.m3g;

/** The base of everything that stands in the scene tree. */
public abstract class Node extends Transformable {
    public static final int NONE = 0;
    public static final int ORIGIN = 1;
    public static final int X_AXIS = 2;
    public static final int Y_AXIS = 3;
    public static final int Z_AXIS = 4;

    Node(long handle) {
        super(handle);
    }

    /**
     * Turns this node and those below it to their alignment targets. Where a node has no reference
     * of its own it takes the given one, or this node for null.
     *
     * @throws IllegalArgumentException if the reference is not in this node's tree
     * @throws IllegalStateException if a node to be turned has no parent or cannot be turned
     * @throws ArithmeticException if a reference does not serve
     */
    public final void align(Node reference) {
        boolean aligned = getAlignmentTarget(Z_AXIS) != NONE || getAlignmentTarget(Y_AXIS) != NONE;
        if (aligned && reference != null && !hasSameRoot(reference)) {
            throw new IllegalArgumentException(
                    "Node.align - z-axis reference is not in the same scene graph as this node");
        }
        alignN(handle, handleOf(reference));
    }

    /**
     * The reference of an axis, Y_AXIS or Z_AXIS, or null.
     *
     * @throws IllegalArgumentException for any other axis
     */
    public Node getAlignmentReference(int axis) {
        return getAlignmentReferenceN(handle, axis);
    }

    /**
     * The target of an axis, Y_AXIS or Z_AXIS.
     *
     * @throws IllegalArgumentException for any other axis
     */
    public int getAlignmentTarget(int axis) {
        return getAlignmentTargetN(handle, axis);
    }

    public float getAlphaFactor() {
        return getAlphaFactorN(handle);
    }

    /** The node above, or null. */
    public Node getParent() {
        return getParentN(handle);
    }

    public int getScope() {
        return getScopeN(handle);
    }

    /**
     * Writes the transform from this node's coordinates to the target's. Answers false, with
     * nothing written, if the two are in different trees.
     *
     * @throws ArithmeticException if the target's transform has no inverse
     */
    public boolean getTransformTo(Node target, Transform transform) {
        return getTransformToN(handle, target.handle, transform.handle);
    }

    public boolean isPickingEnabled() {
        return isPickingEnabledN(handle);
    }

    public boolean isRenderingEnabled() {
        return isRenderingEnabledN(handle);
    }

    /**
     * Sets what {@link #align} turns the axes to. A null reference stands for that of the call.
     *
     * @throws IllegalArgumentException if a reference is in another tree or below this node, or if
     *     both settings are the same
     */
    public void setAlignment(Node zReference, int zTarget, Node yReference, int yTarget) {
        setAlignmentN(handle, handleOf(zReference), zTarget, handleOf(yReference), yTarget);
    }

    /** @throws IllegalArgumentException outside 0 to 1 */
    public void setAlphaFactor(float alphaFactor) {
        setAlphaFactorN(handle, alphaFactor);
    }

    public void setPickingEnable(boolean enable) {
        setPickingEnableN(handle, enable);
    }

    public void setRenderingEnable(boolean enable) {
        setRenderingEnableN(handle, enable);
    }

    public void setScope(int scope) {
        setScopeN(handle, scope);
    }

    private boolean hasSameRoot(Node other) {
        return top(this) == top(other);
    }

    private static Node top(Node node) {
        Node top = node;
        for (Node above = top.getParent(); above != null; above = top.getParent()) {
            top = above;
        }
        return top;
    }

    native void alignN(long handle, long reference);

    native Node getAlignmentReferenceN(long handle, int axis);

    native int getAlignmentTargetN(long handle, int axis);

    native float getAlphaFactorN(long handle);

    native Node getParentN(long handle);

    native int getScopeN(long handle);

    native boolean getTransformToN(long handle, long target, long transform);

    native boolean isPickingEnabledN(long handle);

    native boolean isRenderingEnabledN(long handle);

    native void setAlignmentN(
            long handle, long zReference, int zTarget, long yReference, int yTarget);

    native void setAlphaFactorN(long handle, float alphaFactor);

    native void setPickingEnableN(long handle, boolean enable);

    native void setRenderingEnableN(long handle, boolean enable);

    native void setScopeN(long handle, int scope);
}
