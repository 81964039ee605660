package javax.microedition.m3g;

import java.util.Hashtable;

/**
 * The renderer. There is one, and the one target that it draws to is a window of its own, whatever
 * object is bound.
 */
public class Graphics3D {
    public static final int ANTIALIAS = 2;
    public static final int DITHER = 4;
    public static final int TRUE_COLOR = 8;
    public static final int OVERWRITE = 16;

    // The engine fills the table when it starts. This class has no static initialiser that starts
    // it: the engine's own makes this class's peer, and the two must not wait for each other.
    private static final Hashtable<String, Object> PROPERTIES = new Hashtable<>();

    /** Names the native singleton. */
    final long handle;

    /** What the application has bound; the native side knows only that something is. */
    private Object target;

    /** Becomes the peer of the singleton, which registers it. */
    Graphics3D(long handle) {
        this.handle = handle;
    }

    public static final Graphics3D getInstance() {
        Engine.start();
        return getInstanceN();
    }

    /** What the implementation can do, as Boolean and Integer values by name. */
    public static final Hashtable<String, Object> getProperties() {
        Engine.start();
        return new Hashtable<>(PROPERTIES);
    }

    /** Called by the engine for each property. */
    static void addProp(String name, int value) {
        PROPERTIES.put(name, value);
    }

    static void addProp(String name, boolean value) {
        PROPERTIES.put(name, value);
    }

    public void bindTarget(Object target) {
        requireNonNull(target, "target");
        bindTargetN(handle, target);
        this.target = target;
    }

    /**
     * Binds the window for drawing.
     *
     * @throws IllegalStateException if a target is bound
     * @throws IllegalArgumentException if the hints are not valid or the window cannot be drawn to
     */
    public void bindTarget(Object target, boolean depthBuffer, int hints) {
        requireNonNull(target, "target");
        bindTargetN(handle, target, depthBuffer, hints);
        this.target = target;
    }

    /** Ends the drawing and shows the picture. */
    public void releaseTarget() {
        target = null;
        releaseTargetN(handle);
    }

    public Object getTarget() {
        return getTargetN(handle) == 0 ? null : target;
    }

    public int addLight(Light light, Transform transform) {
        requireNonNull(light, "light");
        return addLightN(handle, light.handle, Transform.handleOf(transform));
    }

    /** A null background clears to transparent black. */
    public void clear(Background background) {
        clearN(handle, Object3D.handleOf(background));
    }

    /** The current camera; the transform, unless null, receives the one set with it. */
    public Camera getCamera(Transform transform) {
        return getCameraN(handle, Transform.handleOf(transform));
    }

    public float getDepthRangeFar() {
        return getDepthRangeFarN(handle);
    }

    public float getDepthRangeNear() {
        return getDepthRangeNearN(handle);
    }

    public int getHints() {
        return getHintsN(handle);
    }

    public Light getLight(int index, Transform transform) {
        return getLightN(handle, index, Transform.handleOf(transform));
    }

    public int getLightCount() {
        return getLightCountN(handle);
    }

    public int getViewportHeight() {
        return getViewportHeightN(handle);
    }

    public int getViewportWidth() {
        return getViewportWidthN(handle);
    }

    public int getViewportX() {
        return getViewportXN(handle);
    }

    public int getViewportY() {
        return getViewportYN(handle);
    }

    public boolean isDepthBufferEnabled() {
        return isDepthBufferEnabledN(handle);
    }

    public void render(Node node, Transform transform) {
        requireNonNull(node, "node");
        renderN(handle, node.handle, Transform.handleOf(transform));
    }

    public void render(
            VertexBuffer vertices,
            IndexBuffer triangles,
            Appearance appearance,
            Transform transform) {
        requireNonNull(vertices, "vertices");
        requireNonNull(triangles, "triangles");
        requireNonNull(appearance, "appearance");
        renderN(
                handle,
                vertices.handle,
                triangles.handle,
                appearance.handle,
                Transform.handleOf(transform));
    }

    public void render(
            VertexBuffer vertices,
            IndexBuffer triangles,
            Appearance appearance,
            Transform transform,
            int scope) {
        requireNonNull(vertices, "vertices");
        requireNonNull(triangles, "triangles");
        requireNonNull(appearance, "appearance");
        renderN(
                handle,
                vertices.handle,
                triangles.handle,
                appearance.handle,
                Transform.handleOf(transform),
                scope);
    }

    public void render(World world) {
        requireNonNull(world, "world");
        renderN(handle, world.handle);
    }

    public void resetLights() {
        resetLightsN(handle);
    }

    public void setCamera(Camera camera, Transform transform) {
        setCameraN(handle, Object3D.handleOf(camera), Transform.handleOf(transform));
    }

    public void setDepthRange(float near, float far) {
        setDepthRangeN(handle, near, far);
    }

    /** A null light removes the one at the index. */
    public void setLight(int index, Light light, Transform transform) {
        setLightN(handle, index, Object3D.handleOf(light), Transform.handleOf(transform));
    }

    /** Sets the part of the target that is drawn to, from the next clear on. */
    public void setViewport(int x, int y, int width, int height) {
        setViewportN(handle, x, y, width, height);
    }

    private static void requireNonNull(Object argument, String name) {
        if (argument == null) {
            throw new NullPointerException(name);
        }
    }

    static native Graphics3D getInstanceN();

    static native void initPropsN();

    native int addLightN(long handle, long light, long transform);

    native void bindTargetN(long handle, Object target);

    native void bindTargetN(long handle, Object target, boolean depthBuffer, int hints);

    native void clearN(long handle, long background);

    native Camera getCameraN(long handle, long transform);

    native float getDepthRangeFarN(long handle);

    native float getDepthRangeNearN(long handle);

    native int getHintsN(long handle);

    native int getLightCountN(long handle);

    native Light getLightN(long handle, int index, long transform);

    native long getTargetN(long handle);

    native int getViewportHeightN(long handle);

    native int getViewportWidthN(long handle);

    native int getViewportXN(long handle);

    native int getViewportYN(long handle);

    native boolean isDepthBufferEnabledN(long handle);

    native void releaseTargetN(long handle);

    native void renderN(long handle, long world);

    native void renderN(long handle, long node, long transform);

    native void renderN(long handle, long vertices, long triangles, long appearance, long transform);

    native void renderN(
            long handle, long vertices, long triangles, long appearance, long transform, int scope);

    native void resetLightsN(long handle);

    native void setCameraN(long handle, long camera, long transform);

    native void setDepthRangeN(long handle, float near, float far);

    native void setLightN(long handle, int index, long light, long transform);

    native void setViewportN(long handle, int x, int y, int width, int height);
}
