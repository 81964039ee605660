package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** The natives of Background. */
public class BackgroundTest {
    private final Background background = new Background();

    private static void assertCrop(Background background, int... crop) {
        assertArrayEquals(crop, new int[] {
            background.getCropX(), background.getCropY(), background.getCropWidth(),
            background.getCropHeight()
        });
    }

    @Test
    public void startsWithBordersWithoutImageAndClearsBoth() {
        assertEquals(0, background.getColor());
        assertEquals(Background.BORDER, background.getImageModeX());
        assertEquals(Background.BORDER, background.getImageModeY());
        assertNull(background.getImage());
        assertCrop(background, 0, 0, 0, 0);
        assertTrue(background.isColorClearEnabled());
        assertTrue(background.isDepthClearEnabled());
    }

    @Test
    public void theColorReadsBackAsGiven() {
        for (int color : new int[] {0x80FF0000, -1, 0, Integer.MIN_VALUE}) {
            background.setColor(color);
            assertEquals(color, background.getColor());
        }
    }

    @Test
    public void theClearsAreSwitchedAlone() {
        background.setColorClearEnable(false);
        assertFalse(background.isColorClearEnabled());
        assertTrue(background.isDepthClearEnabled());
        background.setDepthClearEnable(false);
        background.setColorClearEnable(true);
        assertTrue(background.isColorClearEnabled());
        assertFalse(background.isDepthClearEnabled());
    }

    @Test
    public void everyImageModeIsStored() {
        background.setImageMode(Background.REPEAT, -9);
        assertEquals(Background.REPEAT, background.getImageModeX());
        assertEquals(-9, background.getImageModeY());
    }

    @Test
    public void onlyWidthAndHeightOfACropAreTested() {
        background.setCrop(-1, -1, 5, 5);
        assertCrop(background, -1, -1, 5, 5);
        assertIllegalArgument(
                "Background.setCrop negative width/height", () -> background.setCrop(0, 0, -1, 5));
        assertIllegalArgument(
                "Background.setCrop negative width/height", () -> background.setCrop(0, 0, 5, -1));
        assertCrop(background, -1, -1, 5, 5);
    }

    @Test
    public void aCropMayBeLargerThanTheImage() {
        background.setImage(new Image2D(Image2D.RGB, 4, 2));
        background.setCrop(0, 0, 400, 200);
        assertCrop(background, 0, 0, 400, 200);
    }

    @Test
    public void anImageWithoutColorFailsAndKeepsTheOldOne() {
        Image2D image = new Image2D(Image2D.RGBA, 4, 2);
        background.setImage(image);
        assertCrop(background, 0, 0, 4, 2);
        for (int format : new int[] {Image2D.ALPHA, Image2D.LUMINANCE, Image2D.LUMINANCE_ALPHA}) {
            Image2D other = new Image2D(format, 8, 8);
            assertIllegalArgument(
                    "image format must be one of Image2D.RGB or Image2D.RGBA",
                    () -> background.setImage(other));
            assertSame(image, background.getImage());
            assertCrop(background, 0, 0, 4, 2);
        }
    }

    @Test
    public void aNullImageSetsTheCropToZero() {
        background.setImage(new Image2D(Image2D.RGB, 4, 2));
        background.setImage(null);
        assertNull(background.getImage());
        assertCrop(background, 0, 0, 0, 0);
    }

    @Test
    public void aDuplicateSharesTheImageAndTakesItsWholeCrop() {
        Image2D image = new Image2D(Image2D.RGB, 4, 2);
        background.setImage(image);
        background.setCrop(1, 1, 2, 1);
        background.setColor(0x11223344);
        background.setImageMode(Background.REPEAT, Background.REPEAT);
        background.setDepthClearEnable(false);
        Background copy = (Background) background.duplicate();
        assertSame(image, copy.getImage());
        assertCrop(copy, 0, 0, 4, 2);
        assertEquals(0x11223344, copy.getColor());
        assertEquals(Background.REPEAT, copy.getImageModeX());
        assertFalse(copy.isDepthClearEnabled());
        copy.setColor(0);
        assertEquals(0x11223344, background.getColor());
        assertCrop(background, 1, 1, 2, 1);
    }
}
