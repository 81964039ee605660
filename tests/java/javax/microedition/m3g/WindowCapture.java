package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;

import java.awt.image.BufferedImage;
import java.io.File;
import java.io.IOException;
import java.nio.file.Path;
import javax.imageio.ImageIO;

/** Takes what this process's window shows, as the X server has it. */
final class WindowCapture {
    static final int WIDTH = 640;
    static final int HEIGHT = 480;

    private WindowCapture() {}

    static BufferedImage take() throws IOException, InterruptedException {
        File file = File.createTempFile("window", ".png");
        try {
            String program = Path.of(System.getProperty("varnel.build"), "varnel-capture").toString();
            String process = Long.toString(ProcessHandle.current().pid());
            int status = new ProcessBuilder(program, "--pid", process, file.getPath())
                    .inheritIO().start().waitFor();
            assertEquals("exit code of " + program, 0, status);
            BufferedImage image = ImageIO.read(file);
            assertNotNull(image);
            assertEquals(WIDTH, image.getWidth());
            assertEquals(HEIGHT, image.getHeight());
            return image;
        } finally {
            file.delete();
        }
    }

    /** Compares the channels of 0xRRGGBB; null if they are near, and otherwise what is wrong. */
    static String difference(BufferedImage image, int x, int y, int rgb, int tolerance) {
        int actual = image.getRGB(x, y);
        for (int shift = 16; shift >= 0; shift -= 8) {
            if (Math.abs((actual >> shift & 255) - (rgb >> shift & 255)) > tolerance) {
                return String.format("(%d, %d) is %06x, not %06x", x, y, actual & 0xFFFFFF, rgb);
            }
        }
        return null;
    }
}
