package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;

import org.junit.Test;

/** The natives of Texture2D. */
public class Texture2DTest {
    private static final String NULL_IMAGE =
            "Texture2D.setImage() -- NULL image passed to Texture2D";

    private final Image2D image = new Image2D(Image2D.RGB, 4, 4);
    private final Texture2D texture = new Texture2D(image);

    @Test
    public void startsRepeatingNearestModulating() {
        assertSame(image, texture.getImage());
        assertEquals(Texture2D.WRAP_REPEAT, texture.getWrappingS());
        assertEquals(Texture2D.WRAP_REPEAT, texture.getWrappingT());
        assertEquals(Texture2D.FILTER_BASE_LEVEL, texture.getLevelFilter());
        assertEquals(Texture2D.FILTER_NEAREST, texture.getImageFilter());
        assertEquals(Texture2D.FUNC_MODULATE, texture.getBlending());
        assertEquals(0, texture.getBlendColor());
    }

    @Test
    public void aNullImageFails() {
        assertIllegalArgument(NULL_IMAGE, () -> Texture2D.createTexture2DN(0));
        assertIllegalArgument(NULL_IMAGE, () -> texture.setImageN(texture.handle, 0));
        assertSame(image, texture.getImage());
        assertThrows(NullPointerException.class, () -> new Texture2D(null));
        assertThrows(NullPointerException.class, () -> texture.setImage(null));
    }

    @Test
    public void anUnknownLevelFilterIsStored() {
        texture.setFiltering(999, Texture2D.FILTER_NEAREST);
        assertEquals(999, texture.getLevelFilter());
        assertEquals(Texture2D.FILTER_NEAREST, texture.getImageFilter());
    }

    @Test
    public void anUnknownImageFilterFailsAndChangesNothing() {
        for (int filter : new int[] {Texture2D.FILTER_BASE_LEVEL, 0, -1}) {
            assertIllegalArgument(
                    "Texture2D.setFiltering .. invalid imageFilter argument",
                    () -> texture.setFiltering(Texture2D.FILTER_LINEAR, filter));
            assertEquals(Texture2D.FILTER_BASE_LEVEL, texture.getLevelFilter());
            assertEquals(Texture2D.FILTER_NEAREST, texture.getImageFilter());
        }
    }

    /** Gives a texture an image of odd size. */
    static final class OddImage {
        private OddImage() {}

        public static void main(String[] arguments) {
            Image2D odd = new Image2D(Image2D.RGB, 3, 5);
            Texture2D texture = new Texture2D(new Image2D(Image2D.RGB, 4, 4));
            System.err.println("before");
            texture.setImage(odd);
            System.err.println(texture.getImage() == odd ? "accepted" : "refused");
        }
    }

    @Test
    public void anImageOfOddSizeIsAcceptedWithALineOnTheErrorStream() throws Exception {
        ChildJvm.Result result = ChildJvm.run(OddImage.class);
        assertEquals(result.toString(), 0, result.exitCode);
        String lines = result.err.substring(result.err.indexOf("before"));
        assertEquals("before\nIgnoring image validation\naccepted\n", lines);
    }

    @Test
    public void wrappingBlendingAndColorAreStoredUnchecked() {
        texture.setWrapping(999, 998);
        assertEquals(999, texture.getWrappingS());
        assertEquals(998, texture.getWrappingT());
        for (int value : new int[] {Texture2D.FUNC_ADD, 0, -1, Integer.MAX_VALUE}) {
            texture.setBlending(value);
            assertEquals(value, texture.getBlending());
            texture.setBlendColor(value);
            assertEquals(value, texture.getBlendColor());
        }
    }

    @Test
    public void aTransformThatIsNotAffineIsAccepted() {
        float[] matrix = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2};
        Transform transform = new Transform();
        transform.set(matrix);
        texture.setTransform(transform);
        Transform stored = new Transform();
        texture.getTransform(stored);
        float[] read = new float[16];
        stored.get(read);
        assertEquals(2f, read[15], 0f);
    }

    @Test
    public void aDuplicateSharesTheImage() {
        texture.setWrapping(Texture2D.WRAP_CLAMP, Texture2D.WRAP_CLAMP);
        texture.setFiltering(Texture2D.FILTER_LINEAR, Texture2D.FILTER_LINEAR);
        texture.setBlending(Texture2D.FUNC_DECAL);
        texture.setBlendColor(0x123456);
        texture.setTranslation(1, 2, 3);
        Texture2D copy = (Texture2D) texture.duplicate();
        assertSame(image, copy.getImage());
        assertEquals(Texture2D.WRAP_CLAMP, copy.getWrappingS());
        assertEquals(Texture2D.WRAP_CLAMP, copy.getWrappingT());
        assertEquals(Texture2D.FILTER_LINEAR, copy.getLevelFilter());
        assertEquals(Texture2D.FILTER_LINEAR, copy.getImageFilter());
        assertEquals(Texture2D.FUNC_DECAL, copy.getBlending());
        assertEquals(0x123456, copy.getBlendColor());
        float[] translation = new float[3];
        copy.getTranslation(translation);
        assertEquals(3f, translation[2], 0f);
        copy.setBlendColor(0);
        copy.setImage(new Image2D(Image2D.RGB, 1, 1));
        assertEquals(0x123456, texture.getBlendColor());
        assertSame(image, texture.getImage());
    }
}
