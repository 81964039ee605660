package javax.microedition.m3g;

/** A node that holds an image; it is kept as data and not drawn. */
public class Sprite3D extends Node {
    /**
     * @param appearance may be null
     * @throws NullPointerException if the image is null
     */
    public Sprite3D(boolean scaled, Image2D image, Appearance appearance) {
        this(createSprite3DN(scaled, handleOf(image), handleOf(appearance)));
    }

    Sprite3D(long handle) {
        super(handle);
    }

    public Appearance getAppearance() {
        return getAppearanceN(handle);
    }

    public int getCropHeight() {
        return getCropHeightN(handle);
    }

    public int getCropWidth() {
        return getCropWidthN(handle);
    }

    public int getCropX() {
        return getCropXN(handle);
    }

    public int getCropY() {
        return getCropYN(handle);
    }

    public Image2D getImage() {
        return getImageN(handle);
    }

    public boolean isScaled() {
        return isScaledN(handle);
    }

    /** Null removes the appearance. */
    public void setAppearance(Appearance appearance) {
        setAppearanceN(handle, handleOf(appearance));
    }

    /** @throws IllegalArgumentException unless width and height are 0; x and y change all the same */
    public void setCrop(int cropX, int cropY, int width, int height) {
        setCropN(handle, cropX, cropY, width, height);
    }

    /** @throws NullPointerException if the image is null */
    public void setImage(Image2D image) {
        setImageN(handle, handleOf(image));
    }

    static native long createSprite3DN(boolean scaled, long image, long appearance);

    native Appearance getAppearanceN(long handle);

    native int getCropHeightN(long handle);

    native int getCropWidthN(long handle);

    native int getCropXN(long handle);

    native int getCropYN(long handle);

    native Image2D getImageN(long handle);

    native boolean isScaledN(long handle);

    native void setAppearanceN(long handle, long appearance);

    native void setCropN(long handle, int cropX, int cropY, int width, int height);

    native void setImageN(long handle, long image);
}
