package javax.microedition.m3g;

import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import java.awt.image.BufferedImage;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** The whole road: a file is loaded and animated, and the window shows what its scene demands. */
public class PictureGlTest {
    // The scene: a square that moves along x, and a light from 60 degrees aside that grows.
    private static final float HALF = 0.25f;
    private static final float VIEW_HEIGHT = 2;
    private static final float FIRST_X = -0.5f;
    private static final float LAST_X = 0.5f;
    private static final int DURATION = 1000;
    private static final int[] AMBIENT = {0x40, 0x80, 0x20};
    private static final int[] EMISSIVE = {0, 0x10, 0x30};
    private static final int[] DIFFUSE = {0xFF, 0xA0, 0x40};
    private static final float FIRST_INTENSITY = 0.25f;
    private static final float LAST_INTENSITY = 1.25f;
    private static final int[] BACKGROUND = {10, 20, 30};
    private static final double LIGHT_ANGLE = 60;

    /** Of OpenGL: the ambient light of every scene. */
    private static final double SCENE_AMBIENT = 0.2;

    /**
     * Steps of a channel: the light equation is computed in single precision and the frame buffer
     * rounds to eight bits.
     */
    private static final int TOLERANCE = 2;

    private static final int NONE = 0;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private static M3gBytes.Fields object(int... tracks) {
        M3gBytes.Fields fields = new M3gBytes.Fields().int32(0).int32(tracks.length);
        for (int track : tracks) {
            fields.int32(track);
        }
        return fields.int32(0);
    }

    /** The sections up to that of a node without a transform of its own. */
    private static M3gBytes.Fields node(int... tracks) {
        return nodeFlags(object(tracks).bytes(0, 0));
    }

    /** The same for a node that stands at a place and is turned about y. */
    private static M3gBytes.Fields placed(
            float[] translation, double angle, int... tracks) {
        return nodeFlags(floats(floats(floats(object(tracks).bytes(1), translation), 1, 1, 1),
                (float) angle, 0, 1, 0).bytes(0));
    }

    private static M3gBytes.Fields nodeFlags(M3gBytes.Fields fields) {
        return fields.bytes(1, 1, 255).int32(-1).bytes(0);
    }

    private static M3gBytes.Fields floats(M3gBytes.Fields fields, float... values) {
        for (float value : values) {
            fields.float32(value);
        }
        return fields;
    }

    private static float[] values(float... values) {
        return values;
    }

    private static M3gBytes.Fields sequence(float[] first, float[] last) {
        M3gBytes.Fields fields = object()
                .bytes(KeyframeSequence.LINEAR, KeyframeSequence.CONSTANT, 0)
                .int32(DURATION).int32(0).int32(1).int32(first.length).int32(2);
        return floats(floats(fields.int32(0), first).int32(DURATION), last);
    }

    /** Writes the scene; references are numbers of objects, the first of which is 2. */
    private String writeScene() throws Exception {
        M3gBytes file = new M3gBytes();
        file.object(19, sequence(values(FIRST_X, 0, 0), values(LAST_X, 0, 0))); // 2
        file.object(1, floats(object(), 1, 1).int32(0).int32(0).float32(0).int32(0)); // 3
        file.object(2, object().int32(2).int32(3).int32(AnimationTrack.TRANSLATION)); // 4
        file.object(19, sequence(values(FIRST_INTENSITY), values(LAST_INTENSITY))); // 5
        file.object(2, object().int32(5).int32(3).int32(AnimationTrack.INTENSITY)); // 6
        file.object(13, object().bytes(AMBIENT).bytes(DIFFUSE).bytes(255).bytes(EMISSIVE)
                .bytes(0, 0, 0).float32(0).bytes(0)); // 7
        file.object(3, object().bytes(0).int32(NONE).int32(NONE).int32(NONE).int32(7)
                .int32(0)); // 8
        file.object(20, object().bytes(1, 3, 0, 4, 0)
                .bytes(-1, -1, 0, 1, -1, 0, -1, 1, 0, 1, 1, 0)); // 9
        file.object(20, object().bytes(1, 3, 0, 4, 0)
                .bytes(0, 0, 127, 0, 0, 127, 0, 0, 127, 0, 0, 127)); // 10
        file.object(21, floats(object().bytes(255, 255, 255, 255).int32(9), 0, 0, 0, HALF)
                .int32(10).int32(NONE).int32(0)); // 11
        file.object(11, object().bytes(0).int32(0).int32(1).int32(4)); // 12
        file.object(14, node(4).int32(11).int32(1).int32(12).int32(8)); // 13
        float aspect = (float) WindowCapture.WIDTH / WindowCapture.HEIGHT;
        file.object(5, floats(placed(values(0, 0, 5), 0).bytes(Camera.PARALLEL),
                VIEW_HEIGHT, aspect, 0, 10)); // 14
        file.object(12, floats(floats(placed(values(0, 0, 0), LIGHT_ANGLE, 6), 1, 0, 0)
                .bytes(255, 255, 255, Light.DIRECTIONAL), 1, 45, 0)); // 15
        file.object(4, object().bytes(BACKGROUND).bytes(255).int32(NONE)
                .bytes(Background.BORDER, Background.BORDER)
                .int32(0).int32(0).int32(0).int32(0).bytes(1, 1)); // 16
        file.object(22, node().int32(3).int32(13).int32(14).int32(15).int32(14).int32(16)); // 17
        return file.write(folder.newFile("scene.m3g").toPath());
    }

    private static int packed(double red, double green, double blue) {
        return channel(red) << 16 | channel(green) << 8 | channel(blue);
    }

    private static int channel(double value) {
        return (int) Math.round(Math.min(1, Math.max(0, value)) * 255);
    }

    /** The light equation for the square at a time. */
    private static int expectedColor(double progress) {
        double[] rgb = new double[3];
        double intensity = FIRST_INTENSITY + progress * (LAST_INTENSITY - FIRST_INTENSITY);
        double incidence = Math.cos(Math.toRadians(LIGHT_ANGLE));
        for (int i = 0; i < 3; i++) {
            rgb[i] = (EMISSIVE[i] + SCENE_AMBIENT * AMBIENT[i] + incidence * intensity * DIFFUSE[i])
                    / 255.0;
        }
        return packed(rgb[0], rgb[1], rgb[2]);
    }

    private static void assertShows(BufferedImage image, double progress) {
        // Both axes have as many pixels to a unit.
        double scale = WindowCapture.HEIGHT / VIEW_HEIGHT;
        double centre = WindowCapture.WIDTH / 2.0 + (FIRST_X + progress * (LAST_X - FIRST_X)) * scale;
        long left = Math.round(centre - HALF * scale);
        long right = Math.round(centre + HALF * scale);
        long top = Math.round(WindowCapture.HEIGHT / 2.0 - HALF * scale);
        long bottom = Math.round(WindowCapture.HEIGHT / 2.0 + HALF * scale);
        int square = expectedColor(progress);
        int around = BACKGROUND[0] << 16 | BACKGROUND[1] << 8 | BACKGROUND[2];
        for (int y = 0; y < WindowCapture.HEIGHT; y++) {
            for (int x = 0; x < WindowCapture.WIDTH; x++) {
                boolean inside = x >= left && x < right && y >= top && y < bottom;
                assertNull(WindowCapture.difference(
                        image, x, y, inside ? square : around, inside ? TOLERANCE : 0));
            }
        }
    }

    @Test
    public void aLoadedSceneIsDrawnAtTwoTimes() throws Exception {
        Object3D[] objects = Loader.load(writeScene());
        World world = (World) objects[objects.length - 1];
        Graphics3D graphics = Graphics3D.getInstance();
        for (int time : new int[] {250, 750}) {
            world.animate(time);
            graphics.bindTarget(this);
            assertSame(this, graphics.getTarget());
            try {
                graphics.render(world);
            } finally {
                graphics.releaseTarget();
            }
            assertShows(WindowCapture.take(), (double) time / DURATION);
        }
    }
}
