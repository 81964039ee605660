package javax.microedition.m3g;

/** The attributes that a submesh or a sprite is drawn with. */
public class Appearance extends Object3D {
    public Appearance() {
        this(createAppearance());
    }

    Appearance(long handle) {
        super(handle);
    }

    public CompositingMode getCompositingMode() {
        return getCompositingModeN(handle);
    }

    public Fog getFog() {
        return getFogN(handle);
    }

    public int getLayer() {
        return getLayerN(handle);
    }

    public Material getMaterial() {
        return getMaterialN(handle);
    }

    public PolygonMode getPolygonMode() {
        return getPolygonModeN(handle);
    }

    /** @throws IndexOutOfBoundsException if the index is beyond the texture units */
    public Texture2D getTexture(int index) {
        return getTextureN(handle, index);
    }

    public void setCompositingMode(CompositingMode compositingMode) {
        setCompositingModeN(handle, handleOf(compositingMode));
    }

    public void setFog(Fog fog) {
        setFogN(handle, handleOf(fog));
    }

    /** @throws IndexOutOfBoundsException if the layer is outside -63 to 63 */
    public void setLayer(int layer) {
        setLayerN(handle, layer);
    }

    public void setMaterial(Material material) {
        setMaterialN(handle, handleOf(material));
    }

    public void setPolygonMode(PolygonMode polygonMode) {
        setPolygonModeN(handle, handleOf(polygonMode));
    }

    /** @throws IndexOutOfBoundsException if the index is beyond the texture units */
    public void setTexture(int index, Texture2D texture) {
        setTextureN(handle, index, handleOf(texture));
    }

    static native long createAppearance();

    native CompositingMode getCompositingModeN(long handle);

    native Fog getFogN(long handle);

    native int getLayerN(long handle);

    native Material getMaterialN(long handle);

    native PolygonMode getPolygonModeN(long handle);

    native Texture2D getTextureN(long handle, int index);

    native void setCompositingModeN(long handle, long compositingMode);

    native void setFogN(long handle, long fog);

    native void setLayerN(long handle, int layer);

    native void setMaterialN(long handle, long material);

    native void setPolygonModeN(long handle, long polygonMode);

    native void setTextureN(long handle, int index, long texture);
}
