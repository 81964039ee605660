package javax.microedition.m3g;

/** The root of a scene, with its active camera and background. */
public class World extends Group {
    public World() {
        this(createWorld());
    }

    World(long handle) {
        super(handle);
    }

    public Camera getActiveCamera() {
        return getActiveCameraN(handle);
    }

    public Background getBackground() {
        return getBackgroundN(handle);
    }

    /** @throws NullPointerException if the camera is null */
    public void setActiveCamera(Camera camera) {
        setActiveCameraN(handle, handleOf(camera));
    }

    /** Null stands for the default background. */
    public void setBackground(Background background) {
        setBackgroundN(handle, handleOf(background));
    }

    static native long createWorld();

    native Camera getActiveCameraN(long handle);

    native Background getBackgroundN(long handle);

    native void setActiveCameraN(long handle, long camera);

    native void setBackgroundN(long handle, long background);
}
