package javax.microedition.m3g;

/** The base of all objects that can be part of a 3D world. */
public abstract class Object3D {
    static {
        Engine.start();
    }

    /** Names a cell of the native object; it belongs to this peer. */
    final long handle;

    /** Becomes the peer of the native object behind this handle. */
    Object3D(long handle) {
        this.handle = handle;
        setBackReference(handle);
    }

    /** The handle of an object, 0 for null. */
    static long handleOf(Object3D object) {
        return object == null ? 0 : object.handle;
    }

    /** @throws IllegalArgumentException if the track has been added before */
    public void addAnimationTrack(AnimationTrack track) {
        for (int i = getAnimationTrackCount() - 1; i >= 0; i--) {
            if (getAnimationTrack(i) == track) {
                throw new IllegalArgumentException(
                        "attempt to add an AnimationTrack multiple times");
            }
        }
        addAnimationTrackN(handle, track.handle);
    }

    public final int animate(int time) {
        return animateN(handle, time);
    }

    public final Object3D duplicate() {
        return duplicateN(handle);
    }

    /**
     * Finds the first object with this user ID among this one and those that can be reached from it.
     * There must be one: a search that finds nothing ends the process.
     */
    public Object3D find(int userID) {
        return findN(handle, userID);
    }

    /**
     * Stores the objects that this one refers to, unless the array is null, and returns their number.
     *
     * @throws IllegalArgumentException if the array is too short
     */
    public int getReferences(Object3D[] references) {
        int count = getReferencesN(handle, null);
        if (references == null) {
            return count;
        }
        if (references.length < count) {
            throw new IllegalArgumentException("Reference count from getReferences exceeds max");
        }
        return getReferencesN(handle, references);
    }

    /** @throws IndexOutOfBoundsException if there is no such track */
    public AnimationTrack getAnimationTrack(int index) {
        if (index < 0 || index >= getAnimationTrackCount()) {
            throw new IndexOutOfBoundsException("Object3D::getAnimationTrack index out of range.");
        }
        return getAnimationTrackN(handle, index);
    }

    public int getAnimationTrackCount() {
        return getAnimationTrackCountN(handle);
    }

    public int getUserID() {
        return getUserIDN(handle);
    }

    public Object getUserObject() {
        return getUserObjectN(handle);
    }

    /** A track that is not there, or null, is ignored. */
    public void removeAnimationTrack(AnimationTrack track) {
        removeAnimationTrackN(handle, handleOf(track));
    }

    public void setUserID(int userID) {
        setUserIDN(handle, userID);
    }

    public void setUserObject(Object userObject) {
        setUserObjectN(handle, userObject);
    }

    native void addAnimationTrackN(long handle, long track);

    native int animateN(long handle, int time);

    native void destroyObject3DN(long handle);

    native Object3D duplicateN(long handle);

    native Object3D findN(long handle, int userID);

    native int getAnimationTrackCountN(long handle);

    native AnimationTrack getAnimationTrackN(long handle, int index);

    native int getReferencesN(long handle, Object3D[] references);

    native int getUserIDN(long handle);

    native Object getUserObjectN(long handle);

    native void removeAnimationTrackN(long handle, long track);

    native void setBackReference(long handle);

    native void setUserIDN(long handle, int userID);

    native void setUserObjectN(long handle, Object userObject);
}
