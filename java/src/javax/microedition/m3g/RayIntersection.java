package javax.microedition.m3g;

/** What a pick found. */
public class RayIntersection {
    static {
        Engine.start();
    }

    private static final int RAY_ELEMENTS = 6;

    /** Names the native object, which belongs to this one. */
    final long handle;

    public RayIntersection() {
        handle = createRayIntersectionN();
        Disposer.register(this, handle, RayIntersection::destroyRayIntersectionN);
    }

    /** The handle of an intersection, 0 for null. */
    static long handleOf(RayIntersection intersection) {
        return intersection == null ? 0 : intersection.handle;
    }

    /** In multiples of the distance between the two points of the ray; 0 if there was no hit. */
    public float getDistance() {
        return getDistanceN(handle);
    }

    /** The mesh that was hit, or null. */
    public Node getIntersected() {
        return getIntersectedN(handle);
    }

    public float getNormalX() {
        return getNormalXN(handle);
    }

    public float getNormalY() {
        return getNormalYN(handle);
    }

    public float getNormalZ() {
        return getNormalZN(handle);
    }

    /**
     * Writes the two points of the ray.
     *
     * @throws IllegalArgumentException if the array is too short
     */
    public void getRay(float[] ray) {
        if (ray.length < RAY_ELEMENTS) {
            throw new IllegalArgumentException("A ray has 6 elements");
        }
        getRayN(handle, ray);
    }

    public int getSubmeshIndex() {
        return getSubmeshIndexN(handle);
    }

    /** @throws IndexOutOfBoundsException if there is no such texture unit */
    public float getTextureS(int index) {
        return getTextureSN(handle, index);
    }

    /** @throws IndexOutOfBoundsException if there is no such texture unit */
    public float getTextureT(int index) {
        return getTextureTN(handle, index);
    }

    static native long createRayIntersectionN();

    static native void destroyRayIntersectionN(long handle);

    native float getDistanceN(long handle);

    native Node getIntersectedN(long handle);

    native float getNormalXN(long handle);

    native float getNormalYN(long handle);

    native float getNormalZN(long handle);

    native void getRayN(long handle, float[] ray);

    native int getSubmeshIndexN(long handle);

    native float getTextureSN(long handle, int index);

    native float getTextureTN(long handle, int index);
}
