package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import org.junit.After;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;

/** Which Java exception, with which text, the natives of Graphics3D raise. */
public class MappingGlTest {
    private static final String SINGULAR =
            "Unable to invert matrix -- singularity encountered in the matrix";
    private static final String NO_TARGET = "no rendering target currently defined";

    private final Graphics3D graphics = Graphics3D.getInstance();
    private final Object canvas = new Object();
    private final Camera camera = new Camera();
    private final Transform transform = new Transform();
    private final VertexBuffer vertices = new VertexBuffer();
    private final TriangleStripArray strips = new TriangleStripArray(0, new int[] {3});
    private final Appearance appearance = new Appearance();
    private final World world = new World();

    @After
    public void release() {
        graphics.releaseTargetN(graphics.handle);
        graphics.setCameraN(graphics.handle, 0, 0);
        graphics.resetLightsN(graphics.handle);
    }

    private void bind() {
        graphics.bindTargetN(graphics.handle, canvas);
    }

    private static void assertRaises(
            Class<? extends Throwable> expected, String message, ThrowingRunnable call) {
        Throwable raised = assertThrows(message, Throwable.class, call);
        assertSame(raised.toString(), expected, raised.getClass());
        assertEquals(message, raised.getMessage());
    }

    private static void illegalArgument(String message, ThrowingRunnable call) {
        assertRaises(IllegalArgumentException.class, message, call);
    }

    private static void illegalState(String message, ThrowingRunnable call) {
        assertRaises(IllegalStateException.class, message, call);
    }

    private static void arithmetic(String message, ThrowingRunnable call) {
        assertRaises(ArithmeticException.class, message, call);
    }

    @Test
    public void thereIsOneGraphics3D() {
        assertSame(Graphics3D.getInstanceN(), Graphics3D.getInstanceN());
        assertSame(graphics, Graphics3D.getInstance());
    }

    @Test
    public void bindingTwiceRaisesIllegalState() {
        String text = "Exception: GLDrawable already bound.  releaseTarget must be called first";
        bind();
        illegalState(text, this::bind);
        illegalState(text, () -> graphics.bindTargetN(graphics.handle, canvas, true, 0));
    }

    @Test
    public void bindingWithUnknownHintsRaisesIllegalArgument() {
        for (int hints : new int[] {-1, 31}) {
            illegalArgument("Exception: invalid hints argument.",
                    () -> graphics.bindTargetN(graphics.handle, canvas, true, hints));
        }
    }

    /** Binds where no window can be made, in both ways. */
    static final class NoDisplay {
        public static void main(String[] args) {
            Graphics3D graphics = Graphics3D.getInstance();
            for (int i = 0; i < 2; i++) {
                try {
                    graphics.bindTargetN(graphics.handle, "canvas");
                } catch (IllegalArgumentException e) {
                    System.out.println("short: <" + e.getMessage() + ">");
                }
            }
            try {
                graphics.bindTargetN(graphics.handle, "canvas", true, 0);
            } catch (IllegalArgumentException e) {
                System.out.println("long: <" + e.getMessage() + ">");
            }
        }
    }

    @Test
    public void bindingWithoutADisplayRaisesIllegalArgument() throws Exception {
        ChildJvm.Result result = ChildJvm.runWithoutDisplay(NoDisplay.class);
        assertTrue(result.toString(),
                result.out.contains("short: <Failed to get display>")
                        || result.out.contains("short: <Failed to initialize display>"));
        assertTrue(result.toString(),
                result.out.contains("long: <Couldn't initialize surface>"));
    }

    @Test
    public void theViewportRaisesIllegalStateThenIllegalArgument() {
        illegalState("setViewport called when renderingTarget has not been set.",
                () -> graphics.setViewportN(graphics.handle, 0, 0, 0, 1));
        bind();
        illegalArgument("setViewport called with width or height =< 0.",
                () -> graphics.setViewportN(graphics.handle, 0, 0, 0, 1));
    }

    @Test
    public void theDepthRangeRaisesIllegalStateThenIllegalArgument() {
        illegalState("setDepthRange called when renderingTarget has not been set.",
                () -> graphics.setDepthRangeN(graphics.handle, 2, 0));
        bind();
        illegalArgument("near must be in interval 0 <= near <= 1",
                () -> graphics.setDepthRangeN(graphics.handle, 2, 0));
        illegalArgument("far must be in interval 0 <= far <= 1",
                () -> graphics.setDepthRangeN(graphics.handle, 0, -1));
    }

    @Test
    public void clearingWithoutATargetRaisesIllegalState() {
        illegalState(NO_TARGET, () -> graphics.clearN(graphics.handle, 0));
    }

    @Test
    public void renderingAWorldRaisesAllThreeKinds() {
        illegalArgument("Graphics3D.render(world) -- world is null ",
                () -> graphics.renderN(graphics.handle, 0));
        illegalState("Graphics3D.render(world) -- RenderTarget is null",
                () -> graphics.renderN(graphics.handle, world.handle));
        bind();
        illegalState("Graphics3D.render(world) -- World has null active camera.",
                () -> graphics.renderN(graphics.handle, world.handle));
        Group flat = new Group();
        flat.setScale(0, 0, 0);
        flat.addChild(camera);
        world.addChild(flat);
        world.setActiveCamera(camera);
        arithmetic(SINGULAR, () -> graphics.renderN(graphics.handle, world.handle));
    }

    @Test
    public void renderingANodeRaisesAllThreeKinds() {
        illegalArgument("Render called for a null node",
                () -> graphics.renderN(graphics.handle, 0, 0));
        illegalArgument(
                "m3g.Graphics3D.render(node, transform)  called on illegal Node subclass",
                () -> graphics.renderN(graphics.handle, camera.handle, 0));
        Group group = new Group();
        illegalState(NO_TARGET, () -> graphics.renderN(graphics.handle, group.handle, 0));
        bind();
        illegalState("Render called when no currentCamera defined.",
                () -> graphics.renderN(graphics.handle, group.handle, 0));
        graphics.setCameraN(graphics.handle, new Camera().handle, 0);
        Group flat = new Group();
        flat.setScale(0, 0, 0);
        flat.addChild(camera);
        world.addChild(flat);
        world.setActiveCamera(camera);
        arithmetic(SINGULAR, () -> graphics.renderN(graphics.handle, world.handle, 0));
    }

    @Test
    public void renderingASubmeshRaisesIllegalArgumentAndIllegalState() {
        illegalArgument("Render called with invalid vertex buffer", () -> graphics.renderN(
                graphics.handle, 0, strips.handle, appearance.handle, 0));
        illegalArgument("Render called with invalid index buffer", () -> graphics.renderN(
                graphics.handle, vertices.handle, 0, appearance.handle, 0, -1));
        illegalArgument("Render called with invalid appearance", () -> graphics.renderN(
                graphics.handle, vertices.handle, strips.handle, 0, 0, -1));
        illegalState(NO_TARGET, () -> graphics.renderN(graphics.handle, vertices.handle,
                strips.handle, appearance.handle, 0));
        illegalState(NO_TARGET, () -> graphics.renderN(graphics.handle, vertices.handle,
                strips.handle, appearance.handle, 0, -1));
    }

    @Test
    public void aSingularCameraTransformRaisesArithmetic() {
        transform.set(new float[16]);
        arithmetic(SINGULAR,
                () -> graphics.setCameraN(graphics.handle, camera.handle, transform.handle));
    }

    @Test
    public void lightsOutsideTheListRaiseOutOfBounds() {
        assertRaises(IndexOutOfBoundsException.class,
                "Graphics3D.getLight() index out of range",
                () -> graphics.getLightN(graphics.handle, 0, 0));
        assertRaises(IndexOutOfBoundsException.class, "index out of range",
                () -> graphics.setLightN(graphics.handle, 0, new Light().handle, 0));
    }
}
