package javax.microedition.m3g;

/** An image with its filter, wrap and blend settings; the transform is that of the texture. */
public class Texture2D extends Transformable {
    public static final int FILTER_BASE_LEVEL = 208;
    public static final int FILTER_LINEAR = 209;
    public static final int FILTER_NEAREST = 210;
    public static final int FUNC_ADD = 224;
    public static final int FUNC_BLEND = 225;
    public static final int FUNC_DECAL = 226;
    public static final int FUNC_MODULATE = 227;
    public static final int FUNC_REPLACE = 228;
    public static final int WRAP_CLAMP = 240;
    public static final int WRAP_REPEAT = 241;

    /** @throws NullPointerException if the image is null */
    public Texture2D(Image2D image) {
        this(createTexture2DN(image.handle));
    }

    Texture2D(long handle) {
        super(handle);
    }

    public int getBlendColor() {
        return getBlendColorN(handle);
    }

    public int getBlending() {
        return getBlendingN(handle);
    }

    public Image2D getImage() {
        return getImageN(handle);
    }

    public int getImageFilter() {
        return getImageFilterN(handle);
    }

    public int getLevelFilter() {
        return getLevelFilterN(handle);
    }

    public int getWrappingS() {
        return getWrappingS(handle);
    }

    public int getWrappingT() {
        return getWrappingT(handle);
    }

    public void setBlendColor(int RGB) {
        setBlendColorN(handle, RGB);
    }

    public void setBlending(int func) {
        setBlendingN(handle, func);
    }

    /** @throws IllegalArgumentException if the image filter is not linear or nearest */
    public void setFiltering(int levelFilter, int imageFilter) {
        setFilteringN(handle, levelFilter, imageFilter);
    }

    /** @throws NullPointerException if the image is null */
    public void setImage(Image2D image) {
        setImageN(handle, image.handle);
    }

    public void setWrapping(int wrapS, int wrapT) {
        setWrappingN(handle, wrapS, wrapT);
    }

    static native long createTexture2DN(long image);

    native int getBlendColorN(long handle);

    native int getBlendingN(long handle);

    native int getImageFilterN(long handle);

    native Image2D getImageN(long handle);

    native int getLevelFilterN(long handle);

    native int getWrappingS(long handle);

    native int getWrappingT(long handle);

    native void setBlendColorN(long handle, int color);

    native void setBlendingN(long handle, int func);

    native void setFilteringN(long handle, int levelFilter, int imageFilter);

    native void setImageN(long handle, long image);

    native void setWrappingN(long handle, int wrapS, int wrapT);
}
