package javax.microedition.m3g;

import java.io.IOException;

/** Reads .m3g, PNG and JPEG files into objects. */
public class Loader {
    static {
        Engine.start();
    }

    private Loader() {}

    /**
     * Reads a file of the local file system; the name is taken relative to the current folder.
     *
     * @return all objects of an .m3g file in file order, after one null; of an image file its Image2D
     *     alone
     * @throws NullPointerException if the name is null, or an object in the file has a value that its
     *     class refuses
     * @throws IOException if the file cannot be read or is damaged
     */
    public static Object3D[] load(String name) throws IOException {
        if (name == null) {
            throw new NullPointerException("name is null");
        }
        return loadN(name);
    }

    /**
     * Loading from memory is not available.
     *
     * @throws NullPointerException if the data is null
     * @throws IndexOutOfBoundsException if the offset lies outside the data
     * @throws IOException always otherwise
     */
    public static Object3D[] load(byte[] data, int offset) throws IOException {
        if (data == null) {
            throw new NullPointerException("data is null");
        }
        if (offset < 0 || offset >= data.length) {
            throw new IndexOutOfBoundsException("offset is outside the data");
        }
        return loadN(data, offset);
    }

    static native Object3D[] loadN(String name) throws IOException;

    static native Object3D[] loadN(byte[] data, int offset) throws IOException;
}
