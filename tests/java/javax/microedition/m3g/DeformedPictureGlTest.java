package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;

import java.awt.image.BufferedImage;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** The window shows morphing and skinned meshes where their deformed vertices stand. */
public class DeformedPictureGlTest {
    private static final float VIEW_HEIGHT = 2;
    /** Units of the scene to one of the vertex arrays. */
    private static final float SCALE = 0.125f;
    private static final int BACKGROUND = 0x0A141E;
    private static final int WHITE = 0xFFFFFF;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private static short[] corners(int left, int bottom, int size) {
        short l = (short) left;
        short b = (short) bottom;
        short r = (short) (left + size);
        short t = (short) (bottom + size);
        return new short[] {l, b, 0, r, b, 0, l, t, 0, r, t, 0};
    }

    private static VertexBuffer square(int left, int bottom, int size) {
        VertexArray positions = new VertexArray(4, 3, 2);
        positions.set(0, 4, corners(left, bottom, size));
        VertexBuffer vertices = new VertexBuffer();
        vertices.setPositions(positions, SCALE, null);
        return vertices;
    }

    /** Bytes that are alike for each vertex of a square. */
    private static VertexArray alike(int... record) {
        VertexArray array = new VertexArray(4, record.length, 1);
        byte[] values = new byte[record.length];
        for (int i = 0; i < values.length; i++) {
            values[i] = (byte) record[i];
        }
        for (int vertex = 0; vertex < 4; vertex++) {
            array.set(vertex, 1, values);
        }
        return array;
    }

    private static MorphingMesh morphing(VertexBuffer base, VertexBuffer... targets) {
        return new MorphingMesh(base, targets, new IndexBuffer[] {Shapes.quadStrip()},
                new Appearance[] {new Appearance()});
    }

    private static SkinnedMesh skinned(VertexBuffer vertices, Group skeleton) {
        return new SkinnedMesh(vertices, Shapes.quadStrip(), new Appearance(), skeleton);
    }

    /** Draws a world of this node, which it takes out of the world of an earlier picture. */
    private static void render(Node mesh) {
        if (mesh.getParent() != null) {
            ((Group) mesh.getParent()).removeChild(mesh);
        }
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

    /** Compares the whole window with a white square, in units of the vertex arrays. */
    private static void assertShows(float left, float bottom, float size) throws Exception {
        assertShows(left, bottom, size, size, WHITE, 0);
    }

    private static void assertShows(float left, float bottom, float width, float height, int color,
            int tolerance) throws Exception {
        BufferedImage image = WindowCapture.take();
        double pixels = WindowCapture.HEIGHT / VIEW_HEIGHT * SCALE;
        long x0 = Math.round(WindowCapture.WIDTH / 2.0 + left * pixels);
        long x1 = Math.round(WindowCapture.WIDTH / 2.0 + (left + width) * pixels);
        long y0 = Math.round(WindowCapture.HEIGHT / 2.0 - (bottom + height) * pixels);
        long y1 = Math.round(WindowCapture.HEIGHT / 2.0 - bottom * pixels);
        for (int y = 0; y < WindowCapture.HEIGHT; y++) {
            for (int x = 0; x < WindowCapture.WIDTH; x++) {
                boolean inside = x >= x0 && x < x1 && y >= y0 && y < y1;
                assertNull(WindowCapture.difference(image, x, y, inside ? color : BACKGROUND,
                        tolerance));
            }
        }
    }

    @Test
    public void aMorphingMeshStandsBetweenItsBaseAndItsTarget() throws Exception {
        MorphingMesh mesh = morphing(square(-2, -2, 2), square(2, 0, 4));
        render(mesh);
        assertShows(-2, -2, 2);
        mesh.setWeights(new float[] {0.5f});
        render(mesh);
        assertShows(0, -1, 3);
    }

    @Test
    public void twoPicturesWithoutASettingOfWeightsBlendOnce() throws Exception {
        VertexBuffer target = square(2, 0, 2);
        MorphingMesh mesh = morphing(square(-2, -2, 2), target);
        mesh.setWeights(new float[] {1});
        render(mesh);
        target.getPositions(null).set(0, 4, corners(-6, -6, 2));
        render(mesh);
        assertShows(2, 0, 2);
    }

    @Test
    public void settingTheSameWeightsBlendsAgain() throws Exception {
        VertexBuffer target = square(2, 0, 2);
        MorphingMesh mesh = morphing(square(-2, -2, 2), target);
        mesh.setWeights(new float[] {1});
        render(mesh);
        target.getPositions(null).set(0, 4, corners(-6, -6, 2));
        mesh.setWeights(new float[] {1});
        render(mesh);
        assertShows(-6, -6, 2);
    }

    @Test
    public void normalsThatOneTargetLacksAreThoseOfTheBase() throws Exception {
        VertexBuffer base = square(-2, -2, 4);
        base.setNormals(alike(0, 0, 127));
        VertexBuffer turned = square(-2, -2, 4);
        turned.setNormals(alike(0, 0, -127));
        MorphingMesh mesh = morphing(base, turned, square(-2, -2, 4));
        mesh.getAppearance(0).setMaterial(new Material());
        mesh.setWeights(new float[] {1, 0});
        Group group = new Group();
        group.addChild(mesh);
        group.addChild(new Light());
        render(group);
        // The light on a diffuse 204, and a fifth of an ambient 51. Turned away from the
        // light only the latter would be left.
        assertShows(-2, -2, 4, 4, 0xD6D6D6, 1);
    }

    @Test
    public void oppositeTargetsOfEqualWeightYieldTheBase() throws Exception {
        MorphingMesh mesh = morphing(square(1, 2, 3), square(11, 12, 3), square(-9, -8, 3));
        mesh.setWeights(new float[] {0.5f, 0.5f});
        render(mesh);
        assertShows(1, 2, 3);
    }

    @Test
    public void colourBytesClampAfterTheSum() throws Exception {
        VertexBuffer base = square(-2, -2, 4);
        base.setColors(alike(1, 10, 0));
        VertexBuffer target = square(-2, -2, 4);
        target.setColors(alike(86, 5, 0));
        MorphingMesh mesh = morphing(base, target);
        mesh.setWeights(new float[] {3});
        render(mesh);
        // 256 and -5, of which any byte above 0 is drawn in full.
        assertShows(-2, -2, 4, 4, 0xFF0000, 0);
    }

    @Test
    public void positionBytesWrapAfterTheSum() throws Exception {
        VertexArray near = new VertexArray(4, 3, 1);
        near.set(0, 4, new byte[] {-2, -2, 0, 0, -2, 0, -2, 0, 0, 0, 0, 0});
        VertexArray far = new VertexArray(4, 3, 1);
        far.set(0, 4, new byte[] {63, 63, 0, 65, 63, 0, 63, 65, 0, 65, 65, 0});
        VertexBuffer base = new VertexBuffer();
        base.setPositions(near, SCALE, null);
        VertexBuffer target = new VertexBuffer();
        target.setPositions(far, SCALE, null);
        MorphingMesh mesh = morphing(base, target);
        mesh.setWeights(new float[] {4});
        render(mesh);
        // -2 + 4 * 65 is 258 and 0 + 4 * 65 is 260.
        assertShows(2, 2, 2);
    }

    @Test
    public void aMorphingMeshOfAFileShowsItsBase() throws Exception {
        M3gBytes file = new M3gBytes();
        for (int left : new int[] {1, -6}) {
            M3gBytes.Fields positions = object3D().bytes(1, 3, 0, 4, 0);
            for (short corner : corners(left, 1, 2)) {
                positions.bytes(corner & 255);
            }
            int index = left == 1 ? 2 : 4;
            file.object(20, positions).object(21, object3D().bytes(255, 255, 255, 255)
                    .int32(index).float32(0).float32(0).float32(0).float32(SCALE)
                    .int32(0).int32(0).int32(0));
        }
        Object3D[] objects = Loader.load(file
                .object(11, object3D().bytes(0).int32(0).int32(1).int32(4))
                .object(15, object3D().bytes(0, 0).bytes(1, 1, 255).int32(-1).bytes(0)
                        .int32(3).int32(1).int32(6).int32(0)
                        .int32(1).int32(5).float32(1))
                .write(folder.getRoot().toPath().resolve("morph.m3g")));
        MorphingMesh mesh = (MorphingMesh) objects[6];
        assertEquals(0, mesh.getMorphTargetCount());
        mesh.setAppearance(0, new Appearance());
        render(mesh);
        assertShows(1, 1, 2);
    }

    private static M3gBytes.Fields object3D() {
        return new M3gBytes.Fields().int32(0).int32(0).int32(0);
    }

    @Test
    public void aSkinnedMeshFollowsTheScaleOfItsBone() throws Exception {
        Group skeleton = new Group();
        Group bone = new Group();
        skeleton.addChild(bone);
        SkinnedMesh mesh = skinned(square(1, 1, 2), skeleton);
        mesh.addTransform(bone, 3, 0, 4);
        render(mesh);
        assertShows(1, 1, 2);
        bone.setScale(-2, -2, 1);
        bone.setTranslation(50, 50, 50);
        render(mesh);
        assertShows(-6, -6, 4);
    }

    @Test
    public void aVertexWithoutABindingIsDrawnAtItsSource() throws Exception {
        Group skeleton = new Group();
        SkinnedMesh mesh = skinned(square(1, 1, 2), skeleton);
        mesh.addTransform(skeleton, 1, 2, 2);
        skeleton.setScale(1, 2, 1);
        render(mesh);
        assertShows(1, 1, 2, 5, WHITE, 0);
    }

    @Test
    public void eachBonesPartOfAnIdentityIsTruncated() throws Exception {
        SkinnedMesh mesh = skinned(square(1, 1, 2), withBones(3));
        for (int i = 0; i < 3; i++) {
            mesh.addTransform(mesh.getSkeleton().getChild(i), 1, 0, 4);
        }
        render(mesh);
        // A third of 1 is nothing, three times; a third of 3 is 1.
        assertShows(0, 0, 3);
    }

    private static Group withBones(int count) {
        Group skeleton = new Group();
        for (int i = 0; i < count; i++) {
            skeleton.addChild(new Group());
        }
        return skeleton;
    }

    @Test
    public void aBoneThatOnlyMovesLeavesTheVerticesWhereTheyWere() throws Exception {
        Group skeleton = withBones(1);
        SkinnedMesh mesh = skinned(square(1, 1, 2), skeleton);
        mesh.addTransform(skeleton.getChild(0), 1, 0, 4);
        skeleton.getChild(0).setTranslation(3, -4, 0);
        render(mesh);
        assertShows(1, 1, 2);
    }
}
