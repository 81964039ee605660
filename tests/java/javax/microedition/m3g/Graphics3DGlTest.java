package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.image.BufferedImage;
import org.junit.After;
import org.junit.Before;
import org.junit.Test;

/** Graphics3D with its window. */
public class Graphics3DGlTest {
    private static final int BLUE = 0x0000FF;
    private static final int RED = 0xFF0000;

    private final Graphics3D graphics = Graphics3D.getInstance();
    private final Object canvas = new Object();
    private final Background background = new Background();

    @Before
    public void setBackground() {
        background.setColor(0xFF000000 | BLUE);
    }

    @After
    public void release() {
        graphics.releaseTarget();
        graphics.setCamera(null, null);
    }

    private static VertexBuffer redQuad() {
        VertexArray positions = new VertexArray(4, 3, 1);
        positions.set(0, 4, new byte[] {-1, -1, 0, 1, -1, 0, -1, 1, 0, 1, 1, 0});
        VertexBuffer buffer = new VertexBuffer();
        buffer.setPositions(positions, 1, null);
        buffer.setDefaultColor(0xFF000000 | RED);
        return buffer;
    }

    private static void assertColors(BufferedImage image, int left, int top, int right, int bottom) {
        for (int y = 0; y < WindowCapture.HEIGHT; y++) {
            for (int x = 0; x < WindowCapture.WIDTH; x++) {
                boolean inside = x >= left && x < right && y >= top && y < bottom;
                assertNull(WindowCapture.difference(image, x, y, inside ? RED : BLUE, 0));
            }
        }
    }

    @Test
    public void theWindowIsTheTargetWhateverIsBound() {
        graphics.bindTarget(canvas);
        assertSame(canvas, graphics.getTarget());
        assertEquals(0, graphics.getViewportX());
        assertEquals(0, graphics.getViewportY());
        assertEquals(WindowCapture.WIDTH, graphics.getViewportWidth());
        assertEquals(WindowCapture.HEIGHT, graphics.getViewportHeight());
        assertTrue(graphics.isDepthBufferEnabled());
        assertEquals(0, graphics.getHints());
        graphics.releaseTarget();
        assertNull(graphics.getTarget());
    }

    @Test
    public void theLongBindStoresItsArguments() {
        graphics.bindTarget(canvas, false, 30);
        assertFalse(graphics.isDepthBufferEnabled());
        assertEquals(30, graphics.getHints());
    }

    @Test
    public void aSecondBindLeavesTheFirstInForce() {
        graphics.bindTarget(canvas, false, 1);
        assertThrows(IllegalStateException.class, () -> graphics.bindTarget("other"));
        assertSame(canvas, graphics.getTarget());
        assertFalse(graphics.isDepthBufferEnabled());
    }

    @Test
    public void depthRangesMayBeReversed() {
        graphics.bindTarget(canvas);
        graphics.setDepthRange(0.9f, 0.1f);
        assertEquals(0.9f, graphics.getDepthRangeNear(), 0);
        assertEquals(0.1f, graphics.getDepthRangeFar(), 0);
        graphics.setDepthRange(0, 1);
    }

    @Test
    public void aReleaseShowsThePictureAndSoDoesOneWithoutATarget() throws Exception {
        graphics.bindTarget(canvas);
        graphics.clear(background);
        graphics.releaseTarget();
        assertColors(WindowCapture.take(), 0, 0, 0, 0);
        graphics.releaseTarget();
        graphics.releaseTarget();
    }

    @Test
    public void theViewportIsCountedFromTheTopOfTheWindow() throws Exception {
        graphics.bindTarget(canvas);
        graphics.setViewport(20, 10, 50, 30);
        graphics.clear(background);
        graphics.setCamera(new Camera(), null);
        Appearance appearance = new Appearance();
        graphics.render(redQuad(), new TriangleStripArray(0, new int[] {4}), appearance, null);
        graphics.releaseTarget();
        assertColors(WindowCapture.take(), 20, 10, 70, 40);
    }

    @Test
    public void aSpriteLeavesThePictureAsItIs() throws Exception {
        Sprite3D sprite = new Sprite3D(true, new Image2D(Image2D.RGB, 8, 8), new Appearance());
        graphics.bindTarget(canvas);
        graphics.clear(background);
        assertThrows(IllegalStateException.class, () -> graphics.render(sprite, null));
        graphics.setCamera(new Camera(), null);
        graphics.render(sprite, null);
        graphics.releaseTarget();
        assertColors(WindowCapture.take(), 0, 0, 0, 0);
    }

    @Test
    public void aScopeOfZeroDrawsNothing() throws Exception {
        graphics.bindTarget(canvas);
        graphics.clear(background);
        graphics.setCamera(new Camera(), null);
        TriangleStripArray strip = new TriangleStripArray(0, new int[] {4});
        graphics.render(redQuad(), strip, new Appearance(), null, 0);
        graphics.releaseTarget();
        assertColors(WindowCapture.take(), 0, 0, 0, 0);
        graphics.bindTarget(canvas);
        graphics.clear(background);
        graphics.render(redQuad(), strip, new Appearance(), null, 1);
        graphics.releaseTarget();
        assertColors(WindowCapture.take(), 0, 0, WindowCapture.WIDTH, WindowCapture.HEIGHT);
    }

    @Test
    public void aWorldIsDrawnWithoutACurrentCamera() throws Exception {
        World world = new World();
        Camera camera = new Camera();
        world.addChild(camera);
        world.setActiveCamera(camera);
        world.setBackground(background);
        world.addChild(new Mesh(redQuad(), new TriangleStripArray(0, new int[] {4}),
                new Appearance()));
        graphics.bindTarget(canvas);
        graphics.setViewport(100, 100, 200, 100);
        graphics.render(world);
        graphics.releaseTarget();
        assertSame(camera, graphics.getCamera(null));
        assertColors(WindowCapture.take(), 100, 100, 300, 200);
    }
}
