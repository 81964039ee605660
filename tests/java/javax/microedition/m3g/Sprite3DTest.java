package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertNullPointer;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** Sprites through their natives. */
public class Sprite3DTest {
    private static final String LIMITS = "m3g.Sprite3D.setCrop .. width and/or height exceed limits";

    private final Image2D image = new Image2D(Image2D.RGB, 64, 32);
    private final Appearance appearance = new Appearance();
    private final Sprite3D sprite = new Sprite3D(true, image, appearance);

    @Test
    public void keepsWhatItIsMadeWith() {
        assertTrue(sprite.isScaled());
        assertSame(image, sprite.getImage());
        assertSame(appearance, sprite.getAppearance());
        assertFalse(new Sprite3D(false, image, null).isScaled());
        assertNull(new Sprite3D(false, image, null).getAppearance());
    }

    @Test
    public void needsAnImage() {
        assertNullPointer("Sprite.setImage() called with null image",
                () -> Sprite3D.createSprite3DN(false, 0, 0));
        assertNullPointer("Sprite.setImage() called with null image",
                () -> sprite.setImageN(sprite.handle, 0));
    }

    @Test
    public void anyImageIsCroppedToNothing() {
        Image2D other = new Image2D(Image2D.RGBA, 8, 8);
        sprite.setImage(other);
        assertSame(other, sprite.getImage());
        assertEquals(0, sprite.getCropWidth());
        assertEquals(0, sprite.getCropHeight());
    }

    @Test
    public void aCropOfNoSizePasses() {
        sprite.setCrop(5, 6, 0, 0);
        assertEquals(5, sprite.getCropX());
        assertEquals(6, sprite.getCropY());
    }

    @Test
    public void aCropOfAnySizeFailsAndKeepsThePosition() {
        assertIllegalArgument(LIMITS, () -> sprite.setCrop(5, 6, 1, 1));
        assertEquals(5, sprite.getCropX());
        assertEquals(0, sprite.getCropWidth());
    }

    @Test
    public void aNegativeWidthFailsByItsAbsoluteValue() {
        assertIllegalArgument(LIMITS, () -> sprite.setCrop(0, 0, -1, 0));
        assertIllegalArgument(LIMITS, () -> sprite.setCrop(0, 0, 0, -1));
    }

    @Test
    public void aNullAppearanceRemovesTheOneItHas() {
        sprite.setAppearance(null);
        assertNull(sprite.getAppearance());
        sprite.setAppearance(appearance);
        assertSame(appearance, sprite.getAppearance());
    }

    @Test
    public void reportsItsReferencesWithinTheArray() {
        Object3D[] references = new Object3D[2];
        assertEquals(2, sprite.getReferences(references));
        assertSame(appearance, references[0]);
        assertSame(image, references[1]);
        assertIllegalArgument("Cannot add appearance in Sprite3D::getReferences",
                () -> sprite.getReferencesN(sprite.handle, new Object3D[0]));
        assertIllegalArgument("Cannot add image in Sprite3D::getReferences",
                () -> sprite.getReferencesN(sprite.handle, new Object3D[1]));
    }

    @Test
    public void aDuplicateSharesImageAndAppearance() {
        sprite.setCrop(5, 6, 0, 0);
        Sprite3D copy = (Sprite3D) sprite.duplicate();
        assertTrue(copy.isScaled());
        assertSame(image, copy.getImage());
        assertSame(appearance, copy.getAppearance());
        assertEquals(5, copy.getCropX());
    }

    @Test
    public void aCropTrackHasNoEffect() {
        sprite.setCrop(5, 6, 0, 0);
        sprite.addAnimationTrack(Animated.track(AnimationTrack.CROP, 1, 2));
        sprite.animate(0);
        assertEquals(5, sprite.getCropX());
        assertEquals(6, sprite.getCropY());
    }
}
