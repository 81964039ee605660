package javax.microedition.m3g;

/** A node that holds other nodes as its children. */
public class Group extends Node {
    public Group() {
        this(createGroupN());
    }

    Group(long handle) {
        super(handle);
    }

    /**
     * Appends a child; one that is there already is left where it is.
     *
     * @throws NullPointerException if the child is null
     * @throws IllegalArgumentException if the child is this group, a World, a child of another node
     *     or above this group
     */
    public void addChild(Node child) {
        addChildN(handle, child.handle);
    }

    /** @throws IndexOutOfBoundsException if there is no such child */
    public Node getChild(int index) {
        return getChildN(handle, index);
    }

    public int getChildCount() {
        return getChildCountN(handle);
    }

    /**
     * Picks the nearest mesh on the ray from (ox, oy, oz) through the point (dx, dy, dz).
     *
     * @param ri receives the hit; may be null
     * @throws IllegalArgumentException if the second point is the origin
     */
    public boolean pick(int scope, float ox, float oy, float oz, float dx, float dy, float dz,
            RayIntersection ri) {
        return pickN(handle, scope, ox, oy, oz, dx, dy, dz, RayIntersection.handleOf(ri));
    }

    /**
     * Picks the nearest mesh at a point of a camera's picture, (0, 0) being its upper left corner
     * and (1, 1) its lower right one.
     *
     * @param ri receives the hit; may be null
     * @throws NullPointerException if the camera is null
     * @throws ArithmeticException if the projection has no inverse
     */
    public boolean pick(int scope, float x, float y, Camera camera, RayIntersection ri) {
        return pickN(handle, scope, x, y, camera.handle, RayIntersection.handleOf(ri));
    }

    /** Takes a child out; other nodes and null are ignored. */
    public void removeChild(Node child) {
        removeChildN(handle, handleOf(child));
    }

    static native long createGroupN();

    native void addChildN(long handle, long child);

    native int getChildCountN(long handle);

    native Node getChildN(long handle, int index);

    native boolean pickN(long handle, int scope, float ox, float oy, float oz, float dx, float dy,
            float dz, long ri);

    native boolean pickN(long handle, int scope, float x, float y, long camera, long ri);

    native void removeChildN(long handle, long child);
}
