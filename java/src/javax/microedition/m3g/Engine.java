package javax.microedition.m3g;

/**
 * Loads the native engine, once, before any of its natives is called, and has it read the limits of
 * OpenGL ES, which size the objects that are made from then on.
 */
final class Engine {
    static {
        System.loadLibrary("varneljni");
        Graphics3D.getInstanceN();
        Graphics3D.initPropsN();
    }

    private Engine() {}

    /** Returns when the engine is loaded. */
    static void start() {}
}
