package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertIllegalState;
import static javax.microedition.m3g.Failures.assertNullPointer;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.image.BufferedImage;
import org.junit.Test;

/** The natives of Image2D. */
public class Image2DTest {
    private static final int[] FORMATS = {
        Image2D.ALPHA, Image2D.LUMINANCE, Image2D.LUMINANCE_ALPHA, Image2D.RGB, Image2D.RGBA
    };
    private static final int[] BYTES_PER_PIXEL = {1, 1, 2, 3, 4};
    private static final String FEW_PIXELS = "Insufficient image data for Image2D construction";
    private static final String FEW_COLORS = "Insufficient palette data for Image2D construction";
    private static final String BAD_SIZE = "Bad dimension for Image2D";
    private static final String BAD_FORMAT = "Invalid format for Image2D";

    @Test
    public void mutableImagesOfEachFormat() {
        for (int format : FORMATS) {
            Image2D image = new Image2D(format, 6, 4);
            assertEquals(format, image.getFormat());
            assertEquals(6, image.getWidth());
            assertEquals(4, image.getHeight());
            assertTrue(image.isMutable());
        }
    }

    @Test
    public void anUnknownFormatReachesAClassThatDoesNotExist() {
        for (int format : new int[] {95, 101, 0, -1, Integer.MAX_VALUE}) {
            NoClassDefFoundError error = assertThrows(
                    NoClassDefFoundError.class, () -> Image2D.createImage2DN(format, 1, 1));
            assertEquals("java/lang/IllegalException", error.getMessage());
        }
    }

    @Test
    public void dimensionsThatNoMemoryHoldsFail() {
        int most = Integer.MAX_VALUE;
        for (int[] size : new int[][] {{-1, 1}, {1, -1}, {most, most}}) {
            assertIllegalArgument(
                    BAD_SIZE, () -> Image2D.createImage2DN(Image2D.RGBA, size[0], size[1]));
        }
    }

    @Test
    public void imagesWithPixelsAreImmutable() {
        for (int i = 0; i < FORMATS.length; i++) {
            Image2D image = new Image2D(FORMATS[i], 3, 2, new byte[6 * BYTES_PER_PIXEL[i]]);
            assertEquals(FORMATS[i], image.getFormat());
            assertEquals(3, image.getWidth());
            assertEquals(2, image.getHeight());
            assertFalse(image.isMutable());
        }
    }

    @Test
    public void pixelsAreTestedNullThenSizeThenFormatThenLength() {
        assertNullPointer(
                "Null image for Image2D", () -> Image2D.createImage2DN(95, 0, 0, null));
        byte[] none = new byte[0];
        for (int[] size : new int[][] {{0, 1}, {1, 0}, {-1, -1}}) {
            assertIllegalArgument(
                    BAD_SIZE, () -> Image2D.createImage2DN(95, size[0], size[1], none));
        }
        assertIllegalArgument(BAD_FORMAT, () -> Image2D.createImage2DN(95, 1, 1, none));
        assertIllegalArgument(BAD_FORMAT, () -> Image2D.createImage2DN(101, 1, 1, new byte[9]));
        for (int i = 0; i < FORMATS.length; i++) {
            int format = FORMATS[i];
            byte[] oneLess = new byte[6 * BYTES_PER_PIXEL[i] - 1];
            assertIllegalArgument(
                    FEW_PIXELS, () -> Image2D.createImage2DN(format, 3, 2, oneLess));
        }
    }

    @Test
    public void productsBeyondThirtyTwoBitsAreTooLongForAnyArray() {
        byte[] some = new byte[16];
        for (int side : new int[] {65536, Integer.MAX_VALUE}) {
            assertIllegalArgument(
                    FEW_PIXELS, () -> Image2D.createImage2DN(Image2D.RGBA, side, side, some));
            assertIllegalArgument(
                    FEW_PIXELS,
                    () -> Image2D.createImage2DN(Image2D.RGBA, side, side, some, new byte[1024]));
        }
    }

    @Test
    public void palettesAreTestedInTheirOrder() {
        byte[] none = new byte[0];
        byte[] one = new byte[1];
        assertNullPointer(
                "Null image for Image2D", () -> Image2D.createImage2DN(95, 0, 0, null, null));
        assertNullPointer(
                "Null palette for Image2D", () -> Image2D.createImage2DN(95, 0, 0, none, null));
        assertIllegalArgument(BAD_SIZE, () -> Image2D.createImage2DN(95, 0, 1, none, none));
        assertIllegalArgument(BAD_SIZE, () -> Image2D.createImage2DN(95, 1, -1, none, none));
        assertIllegalArgument(FEW_PIXELS, () -> Image2D.createImage2DN(95, 1, 1, none, none));
        assertIllegalArgument(BAD_FORMAT, () -> Image2D.createImage2DN(95, 1, 1, one, none));
        assertIllegalArgument(FEW_COLORS, () -> Image2D.createImage2DN(99, 1, 1, one, none));
    }

    @Test
    public void aPaletteOf255EntriesIsRejected() {
        byte[] indices = new byte[6];
        for (int i = 0; i < FORMATS.length; i++) {
            int format = FORMATS[i];
            byte[] entries255 = new byte[255 * BYTES_PER_PIXEL[i]];
            assertIllegalArgument(
                    FEW_COLORS, () -> new Image2D(format, 3, 2, indices, entries255));
            Image2D image =
                    new Image2D(format, 3, 2, indices, new byte[256 * BYTES_PER_PIXEL[i]]);
            assertFalse(image.isMutable());
            assertEquals(format, image.getFormat());
        }
    }

    @Test
    public void setOnAnImmutableImageFailsFirstEvenWithANullArray() {
        Image2D image = new Image2D(Image2D.ALPHA, 2, 2, new byte[4]);
        String text = "Image2D.set(x, y, w, h, byteImage ) -- This Image2D is immutable";
        assertIllegalState(text, () -> image.set(0, 0, 2, 2, new byte[4]));
        assertIllegalState(text, () -> image.setN(image.handle, 0, 0, 2, 2, null));
        assertIllegalState(text, () -> image.set(9, 9, 1, 1, new byte[4]));
    }

    @Test
    public void theArrayOfSetIsMeasuredBeforeTheImageIsAsked() {
        Image2D image = new Image2D(Image2D.ALPHA, 2, 2, new byte[4]);
        assertIllegalArgument(
                "Insufficient data to set image", () -> image.set(0, 0, 2, 2, new byte[3]));
        Image2D mutable = new Image2D(Image2D.RGB, 2, 2);
        assertIllegalArgument(
                "Insufficient data to set image", () -> mutable.set(0, 0, 2, 2, new byte[11]));
        assertIllegalArgument(
                "Insufficient data to set image",
                () -> mutable.set(0, 0, Integer.MAX_VALUE, Integer.MAX_VALUE, new byte[11]));
        mutable.set(0, 0, 2, 2, new byte[12]);
    }

    @Test
    public void setWithANullArrayFails() {
        Image2D image = new Image2D(Image2D.RGB, 2, 2);
        assertIllegalArgument(
                "Image2D.set(x, y, w, h, byteImage ) --Null image reference",
                () -> image.setN(image.handle, 0, 0, 1, 1, null));
        assertThrows(NullPointerException.class, () -> image.set(0, 0, 1, 1, null));
    }

    @Test
    public void setOutsideTheImageFails() {
        Image2D image = new Image2D(Image2D.RGBA, 2, 2);
        int most = Integer.MAX_VALUE;
        int[][] rectangles = {
            {1, 1, 2, 2}, {-1, 0, 1, 1}, {0, -1, 1, 1}, {0, 0, 3, 1}, {0, 0, -1, -1},
            {most, most, 1, 1}, {0, 0, -1, 2}
        };
        for (int[] r : rectangles) {
            assertIllegalArgument(
                    "Image2D.set(x, y, w, h, byteImage ) -- supplied image does not fit within"
                            + " this image",
                    () -> image.set(r[0], r[1], r[2], r[3], new byte[64]));
        }
    }

    @Test
    public void anImageOfOtherThanPowersOfTwoIsAccepted() {
        Image2D image = new Image2D(Image2D.RGB, 6, 4);
        new Texture2D(image);
        new Background().setImage(image);
        image.set(0, 0, 6, 4, new byte[72]);
    }

    @Test
    public void aBufferedImageGivesItsPixels() {
        BufferedImage source = new BufferedImage(3, 2, BufferedImage.TYPE_INT_ARGB);
        for (int format : FORMATS) {
            Image2D image = new Image2D(format, source);
            assertEquals(format, image.getFormat());
            assertEquals(3, image.getWidth());
            assertEquals(2, image.getHeight());
            assertFalse(image.isMutable());
        }
        assertThrows(NullPointerException.class, () -> new Image2D(Image2D.RGB, null));
        assertThrows(IllegalArgumentException.class, () -> new Image2D(Image2D.RGB, "text"));
        assertThrows(IllegalArgumentException.class, () -> new Image2D(95, source));
    }

    @Test
    public void aDuplicateIsAnImageOfItsOwn() {
        Image2D image = new Image2D(Image2D.LUMINANCE_ALPHA, 5, 3);
        image.setUserID(4);
        Image2D copy = (Image2D) image.duplicate();
        assertNotSame(image, copy);
        assertEquals(4, copy.getUserID());
        assertEquals(Image2D.LUMINANCE_ALPHA, copy.getFormat());
        assertEquals(5, copy.getWidth());
        assertEquals(3, copy.getHeight());
        assertTrue(copy.isMutable());
        copy.set(0, 0, 1, 1, new byte[2]);
        assertFalse(((Image2D) new Image2D(Image2D.ALPHA, 1, 1, new byte[1]).duplicate())
                .isMutable());
    }
}
