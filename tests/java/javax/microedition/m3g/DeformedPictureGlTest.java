package javax.microedition.m3g;

import static org.junit.Assert.assertNull;

import java.awt.image.BufferedImage;
import org.junit.Test;

/** The window shows morphing and skinned meshes where their deformed vertices stand. */
public class DeformedPictureGlTest {
    private static final float VIEW_HEIGHT = 2;
    /** Units of the scene to one of the vertex arrays. */
    private static final float SCALE = 0.125f;
    private static final int BACKGROUND = 0x0A141E;
    private static final int WHITE = 0xFFFFFF;

    private static VertexBuffer square(int left, int bottom, int size) {
        VertexArray positions = new VertexArray(4, 3, 2);
        short l = (short) left;
        short b = (short) bottom;
        short r = (short) (left + size);
        short t = (short) (bottom + size);
        positions.set(0, 4, new short[] {l, b, 0, r, b, 0, l, t, 0, r, t, 0});
        VertexBuffer vertices = new VertexBuffer();
        vertices.setPositions(positions, SCALE, null);
        return vertices;
    }

    private static void render(Node mesh) {
        World world = new World();
        world.addChild(mesh);
        Camera camera = new Camera();
        camera.setParallel(VIEW_HEIGHT, (float) WindowCapture.WIDTH / WindowCapture.HEIGHT, 0, 10);
        camera.setTranslation(0, 0, 5);
        world.addChild(camera);
        world.setActiveCamera(camera);
        Background background = new Background();
        background.setColor(BACKGROUND);
        world.setBackground(background);
        Graphics3D graphics = Graphics3D.getInstance();
        graphics.bindTarget(mesh);
        try {
            graphics.render(world);
        } finally {
            graphics.releaseTarget();
        }
    }

    /** Compares the whole window with a square, in units of the vertex arrays. */
    private static void assertShows(float left, float bottom, float size) throws Exception {
        BufferedImage image = WindowCapture.take();
        double pixels = WindowCapture.HEIGHT / VIEW_HEIGHT * SCALE;
        long x0 = Math.round(WindowCapture.WIDTH / 2.0 + left * pixels);
        long x1 = Math.round(WindowCapture.WIDTH / 2.0 + (left + size) * pixels);
        long y0 = Math.round(WindowCapture.HEIGHT / 2.0 - (bottom + size) * pixels);
        long y1 = Math.round(WindowCapture.HEIGHT / 2.0 - bottom * pixels);
        for (int y = 0; y < WindowCapture.HEIGHT; y++) {
            for (int x = 0; x < WindowCapture.WIDTH; x++) {
                boolean inside = x >= x0 && x < x1 && y >= y0 && y < y1;
                assertNull(WindowCapture.difference(image, x, y, inside ? WHITE : BACKGROUND, 0));
            }
        }
    }

    @Test
    public void aMorphingMeshStandsBetweenItsBaseAndItsTarget() throws Exception {
        MorphingMesh mesh = new MorphingMesh(square(-2, -2, 2),
                new VertexBuffer[] {square(2, 0, 4)}, new IndexBuffer[] {Shapes.quadStrip()},
                new Appearance[] {new Appearance()});
        render(mesh);
        assertShows(-2, -2, 2);
        ((Group) mesh.getParent()).removeChild(mesh);
        mesh.setWeights(new float[] {0.5f});
        render(mesh);
        assertShows(0, -1, 3);
    }

    @Test
    public void aSkinnedMeshFollowsTheScaleOfItsBone() throws Exception {
        Group skeleton = new Group();
        Group bone = new Group();
        skeleton.addChild(bone);
        SkinnedMesh mesh = new SkinnedMesh(square(1, 1, 2), Shapes.quadStrip(), new Appearance(),
                skeleton);
        mesh.addTransform(bone, 3, 0, 4);
        render(mesh);
        assertShows(1, 1, 2);
        ((Group) mesh.getParent()).removeChild(mesh);
        bone.setScale(-2, -2, 1);
        bone.setTranslation(50, 50, 50);
        render(mesh);
        assertShows(-6, -6, 4);
    }
}
