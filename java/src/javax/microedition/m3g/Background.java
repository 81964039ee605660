package javax.microedition.m3g;

/** What the target is cleared with. */
public class Background extends Object3D {
    public static final int BORDER = 32;
    public static final int REPEAT = 33;

    public Background() {
        this(createBackgroundN());
    }

    Background(long handle) {
        super(handle);
    }

    public int getColor() {
        return getColorN(handle);
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

    public int getImageModeX() {
        return getImageModeXN(handle);
    }

    public int getImageModeY() {
        return getImageModeYN(handle);
    }

    public boolean isColorClearEnabled() {
        return isColorClearEnabledN(handle);
    }

    public boolean isDepthClearEnabled() {
        return isDepthClearEnabledN(handle);
    }

    public void setColor(int ARGB) {
        setColorN(handle, ARGB);
    }

    public void setColorClearEnable(boolean enable) {
        setColorClearEnableN(handle, enable);
    }

    /** @throws IllegalArgumentException if the width or the height is negative */
    public void setCrop(int cropX, int cropY, int width, int height) {
        setCropN(handle, cropX, cropY, width, height);
    }

    public void setDepthClearEnable(boolean enable) {
        setDepthClearEnableN(handle, enable);
    }

    /**
     * Sets the image, null for none, and the crop to the whole of it.
     *
     * @throws IllegalArgumentException if the format is neither RGB nor RGBA
     */
    public void setImage(Image2D image) {
        setImageN(handle, handleOf(image));
    }

    public void setImageMode(int modeX, int modeY) {
        setImageModeN(handle, modeX, modeY);
    }

    static native long createBackgroundN();

    native int getColorN(long handle);

    native int getCropHeightN(long handle);

    native int getCropWidthN(long handle);

    native int getCropXN(long handle);

    native int getCropYN(long handle);

    native int getImageModeXN(long handle);

    native int getImageModeYN(long handle);

    native Image2D getImageN(long handle);

    native boolean isColorClearEnabledN(long handle);

    native boolean isDepthClearEnabledN(long handle);

    native void setColorClearEnableN(long handle, boolean enable);

    native void setColorN(long handle, int color);

    native void setCropN(long handle, int x, int y, int width, int height);

    native void setDepthClearEnableN(long handle, boolean enable);

    native void setImageModeN(long handle, int modeX, int modeY);

    native void setImageN(long handle, long image);
}
