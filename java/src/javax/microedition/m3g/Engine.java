package javax.microedition.m3g;

/** Loads the native engine, once, before any of its natives is called. */
final class Engine {
    static {
        System.loadLibrary("varneljni");
    }

    private Engine() {}

    /** Returns when the engine is loaded. */
    static void start() {}
}
