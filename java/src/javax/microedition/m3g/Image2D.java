package javax.microedition.m3g;

import java.awt.image.BufferedImage;
import java.util.Objects;

/** A block of pixels. Images made with pixels are immutable. */
public class Image2D extends Object3D {
    public static final int ALPHA = 96;
    public static final int LUMINANCE = 97;
    public static final int LUMINANCE_ALPHA = 98;
    public static final int RGB = 99;
    public static final int RGBA = 100;

    /**
     * An immutable image with the pixels of a {@link BufferedImage}.
     *
     * @throws IllegalArgumentException if the format is unknown or the image of another class
     */
    public Image2D(int format, Object image) {
        this(pixelsOf(format, image));
    }

    /** A mutable image, opaque white. */
    public Image2D(int format, int width, int height) {
        this(createImage2DN(format, width, height));
    }

    /**
     * An immutable image.
     *
     * @throws IllegalArgumentException if the format is unknown, a dimension is not positive or the
     *     array is too short
     */
    public Image2D(int format, int width, int height, byte[] image) {
        this(createImage2DN(format, width, height, image));
    }

    /**
     * An immutable image of palette indices; the palette has 256 entries.
     *
     * @throws IllegalArgumentException if the format is unknown, a dimension is not positive or an
     *     array is too short
     */
    public Image2D(int format, int width, int height, byte[] image, byte[] palette) {
        this(createImage2DN(format, width, height, image, palette));
    }

    Image2D(long handle) {
        super(handle);
    }

    public int getFormat() {
        return getFormatN(handle);
    }

    public int getHeight() {
        return getHeightN(handle);
    }

    public int getWidth() {
        return getWidthN(handle);
    }

    public boolean isMutable() {
        return isMutableN(handle);
    }

    /**
     * Replaces a rectangle of pixels.
     *
     * @throws IllegalArgumentException if the array is too short or the rectangle not inside
     * @throws IllegalStateException if the image is immutable
     */
    public void set(int x, int y, int width, int height, byte[] image) {
        setN(handle, x, y, width, height, Objects.requireNonNull(image));
    }

    private static long pixelsOf(int format, Object image) {
        Objects.requireNonNull(image);
        if (format < ALPHA || format > RGBA || !(image instanceof BufferedImage)) {
            throw new IllegalArgumentException("Not an image, or no such format");
        }
        BufferedImage source = (BufferedImage) image;
        int width = source.getWidth();
        int height = source.getHeight();
        byte[] pixels = new byte[width * height * 4];
        int length = 0;
        for (int argb : source.getRGB(0, 0, width, height, null, 0, width)) {
            int red = argb >> 16 & 255;
            int green = argb >> 8 & 255;
            int blue = argb & 255;
            if (format == RGB || format == RGBA) {
                pixels[length++] = (byte) red;
                pixels[length++] = (byte) green;
                pixels[length++] = (byte) blue;
            } else if (format != ALPHA) {
                pixels[length++] = (byte) ((red + green + blue) / 3);
            }
            if (format != RGB && format != LUMINANCE) {
                pixels[length++] = (byte) (argb >>> 24);
            }
        }
        return createImage2DN(format, width, height, pixels);
    }

    static native long createImage2DN(int format, int width, int height);

    static native long createImage2DN(int format, int width, int height, byte[] image);

    static native long createImage2DN(
            int format, int width, int height, byte[] image, byte[] palette);

    native int getFormatN(long handle);

    native int getHeightN(long handle);

    native int getWidthN(long handle);

    native boolean isMutableN(long handle);

    native void setN(long handle, int x, int y, int width, int height, byte[] image);
}
