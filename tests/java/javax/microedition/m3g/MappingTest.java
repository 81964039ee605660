package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Random;
import org.junit.Rule;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;
import org.junit.rules.TemporaryFolder;

/** Which Java exception, with which text, each native raises for a failure of the engine. */
public class MappingTest {
    private static final int NO_AXIS = 1;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private final Appearance appearance = new Appearance();
    private final Background background = new Background();
    private final Camera camera = new Camera();
    private final CompositingMode compositingMode = new CompositingMode();
    private final Fog fog = new Fog();
    private final Group group = new Group();
    private final Image2D mutableImage = new Image2D(Image2D.RGB, 4, 4);
    private final Image2D luminance = new Image2D(Image2D.LUMINANCE, 4, 4);
    private final KeyframeSequence sequence =
            new KeyframeSequence(3, 4, KeyframeSequence.LINEAR);
    private final Light light = new Light();
    private final Material material = new Material();
    private final VertexArray bytes = new VertexArray(3, 3, 1);
    private final VertexArray shorts = new VertexArray(3, 3, 2);
    private final VertexBuffer vertices = vertexBuffer();
    private final TriangleStripArray strips = new TriangleStripArray(0, new int[] {3});
    private final Mesh mesh = new Mesh(vertices, strips, null);
    private final Texture2D texture = new Texture2D(mutableImage);
    private final World world = new World();
    private final RayIntersection intersection = new RayIntersection();
    private final Transform transform = new Transform();

    private VertexBuffer vertexBuffer() {
        VertexBuffer buffer = new VertexBuffer();
        VertexArray positions = new VertexArray(3, 3, 1);
        positions.set(0, 3, new byte[] {0, 0, 0, 1, 0, 0, 0, 1, 0});
        buffer.setPositions(positions, 1, null);
        return buffer;
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

    private static void outOfBounds(String message, ThrowingRunnable call) {
        assertRaises(IndexOutOfBoundsException.class, message, call);
    }

    private static void nullPointer(String message, ThrowingRunnable call) {
        assertRaises(NullPointerException.class, message, call);
    }

    private static void arithmetic(String message, ThrowingRunnable call) {
        assertRaises(ArithmeticException.class, message, call);
    }

    @Test
    public void backgroundsRaiseIllegalArgument() {
        illegalArgument("Background.setCrop negative width/height",
                () -> background.setCropN(background.handle, 0, 0, -1, 1));
        illegalArgument("image format must be one of Image2D.RGB or Image2D.RGBA",
                () -> background.setImageN(background.handle, luminance.handle));
    }

    @Test
    public void camerasRaiseIllegalArgument() {
        illegalArgument("Camera.setParallel - fovy argument must be >= 0.0",
                () -> camera.setParallelN(camera.handle, 0, 1, 1, 2));
        illegalArgument("Camera.setPerspective - fovy argument must be less than 180 degrees",
                () -> camera.setPerspectiveN(camera.handle, 180, 1, 1, 2));
    }

    @Test
    public void attributesRaiseIllegalArgument() {
        illegalArgument("CompositingMode.setAlphaThreshold -- threshold value out of range [0  1]",
                () -> compositingMode.setAlphaThresholdN(compositingMode.handle, 1.5f));
        illegalArgument("Fog.setDensity -- density < 0", () -> fog.setDensityN(fog.handle, -0.5f));
        fog.setDensityN(fog.handle, 0);
        illegalArgument("Invalid target argument.", () -> material.getColorN(material.handle, 1));
        illegalArgument("Invalid target argument.  Value is out of expected range",
                () -> material.setColorN(material.handle, 1, 0));
    }

    @Test
    public void groupsRaiseIllegalArgumentAndOutOfBounds() {
        illegalArgument("child is null.", () -> group.addChildN(group.handle, 0));
        outOfBounds("child index must be non-negative and less than the size of the child array",
                () -> group.getChildN(group.handle, 0));
    }

    @Test
    public void imagesRaiseIllegalArgument() {
        illegalArgument("Bad dimension for Image2D",
                () -> Image2D.createImage2DN(Image2D.RGB, -1, 1));
        illegalArgument("Bad dimension for Image2D",
                () -> Image2D.createImage2DN(Image2D.RGB, 0, 1, new byte[3]));
        illegalArgument("Invalid format for Image2D",
                () -> Image2D.createImage2DN(95, 1, 1, new byte[4]));
        illegalArgument("Insufficient palette data for Image2D construction",
                () -> Image2D.createImage2DN(Image2D.RGB, 1, 1, new byte[1], new byte[767]));
        illegalArgument("Invalid format for Image2D",
                () -> Image2D.createImage2DN(101, 1, 1, new byte[1], new byte[768]));
    }

    @Test
    public void settingAnImageRaisesIllegalArgumentOrIllegalState() {
        illegalArgument(
                "Image2D.set(x, y, w, h, byteImage ) -- supplied image does not fit within this"
                        + " image",
                () -> mutableImage.setN(mutableImage.handle, 1, 0, 4, 4, new byte[64]));
        Image2D immutable = new Image2D(Image2D.RGB, 1, 1, new byte[3]);
        illegalState("Image2D.set(x, y, w, h, byteImage ) -- This Image2D is immutable",
                () -> immutable.setN(immutable.handle, 0, 0, 1, 1, new byte[4]));
    }

    @Test
    public void keyframeSequencesRaiseByTheNative() {
        illegalArgument("Number of keyframes < 1",
                () -> KeyframeSequence.createKeyframeSequence(0, 1, KeyframeSequence.LINEAR));
        illegalArgument("Negative duration",
                () -> sequence.setDurationN(sequence.handle, -1));
        outOfBounds("Invalid keyframe index",
                () -> sequence.getKeyframeN(sequence.handle, 3, new float[4]));
        outOfBounds("Invalid keyframe range",
                () -> sequence.setValidRangeN(sequence.handle, 0, 3));
        illegalArgument("Keyframe time < 0",
                () -> sequence.setKeyframeN(sequence.handle, 0, -1, new float[4]));
        // The index is refused with the same type as the time.
        illegalArgument("Invalid keyframe index",
                () -> sequence.setKeyframeN(sequence.handle, 3, 0, new float[4]));
    }

    @Test
    public void lightsRaiseIllegalArgument() {
        illegalArgument("Invalid Attenuation value - negative values not allowed.",
                () -> light.setAttenuationN(light.handle, -1, 0, 0));
        illegalArgument("Invalid spotlight angle -- value out of range.",
                () -> light.setSpotAngleN(light.handle, 91));
        illegalArgument("Invalid spotlight exponent -- value out of range.",
                () -> light.setSpotExponentN(light.handle, 129));
    }

    @Test
    public void meshesOfOneSubmeshRaiseNullPointerAndOfManyIllegalArgument() {
        nullPointer("Mesh constructor called with vertices = null",
                () -> Mesh.createMeshN(0, strips.handle, 0));
        illegalArgument("Mesh constructor called with empty submesh array",
                () -> Mesh.createMeshN(vertices.handle, new long[0], new long[0]));
        nullPointer("NULL targets[0] for MorphingMesh", () -> MorphingMesh.createMorphingMeshN(
                vertices.handle, new long[] {0}, strips.handle, 0));
        illegalArgument("NULL targets[0] for MorphingMesh", () -> MorphingMesh.createMorphingMeshN(
                vertices.handle, new long[] {0}, new long[] {strips.handle}, new long[] {0}));
        nullPointer("Null Skeleton",
                () -> SkinnedMesh.createSkinnedMeshN(vertices.handle, strips.handle, 0, 0));
        illegalArgument("Null Skeleton", () -> SkinnedMesh.createSkinnedMeshN(
                vertices.handle, new long[] {strips.handle}, new long[] {0}, 0));
    }

    @Test
    public void meshesRaiseOutOfBounds() {
        outOfBounds("Mesh.getAppearance() the index is out of bounds",
                () -> mesh.getAppearanceN(mesh.handle, -1));
        outOfBounds("Mesh.getIndexBuffer() the index is out of bounds",
                () -> mesh.getIndexBufferN(mesh.handle, -1));
        outOfBounds("Mesh.setAppearance() the index is out of bounds",
                () -> mesh.setAppearanceN(mesh.handle, -1, 0));
    }

    @Test
    public void morphingMeshesRaiseNullPointerAndOutOfBounds() {
        MorphingMesh morphing = new MorphingMesh(vertices, new VertexBuffer[] {vertexBuffer()},
                new IndexBuffer[] {strips}, null);
        outOfBounds("Given index 1; number of targets: 1",
                () -> morphing.getMorphTargetN(morphing.handle, 1));
        nullPointer("MorphMesh::setWeight called with null weights array",
                () -> morphing.setWeightsN(morphing.handle, null));
        nullPointer("MorphMesh::getWeight called with null weights array",
                () -> morphing.getWeightsN(morphing.handle, null));
    }

    @Test
    public void nodesRaiseIllegalArgument() {
        illegalArgument("Node.getAlignment( )  -- axis not valid. ",
                () -> group.getAlignmentReferenceN(group.handle, NO_AXIS));
        illegalArgument("Node.getAlignment( )  -- axis not valid. ",
                () -> group.getAlignmentTargetN(group.handle, NO_AXIS));
        illegalArgument("Node.setAlignment -- no common ancestors between this node and zRef",
                () -> group.setAlignmentN(group.handle, new Group().handle, Node.ORIGIN, 0,
                        Node.NONE));
        illegalArgument("Node.setAlphaFactor  invalid value for alphaFactor arg.",
                () -> group.setAlphaFactorN(group.handle, 2));
    }

    @Test
    public void aligningRaisesArithmeticForItsOwnTextsAndIllegalStateForOthers() {
        Group root = new Group();
        Group lone = new Group();
        lone.setAlignmentN(lone.handle, 0, Node.ORIGIN, 0, Node.NONE);
        illegalState("A node without a parent cannot be aligned",
                () -> lone.alignN(lone.handle, lone.handle));
        Group self = new Group();
        root.addChild(self);
        self.setAlignmentN(self.handle, 0, Node.ORIGIN, 0, Node.NONE);
        arithmetic("Node.align - z-axis reference is aligned to itself or a decendent",
                () -> self.alignN(self.handle, self.handle));
    }

    @Test
    public void transformsBetweenNodesRaiseArithmetic() {
        Group from = new Group();
        Group flat = new Group();
        group.addChild(from);
        group.addChild(flat);
        flat.setScale(0, 0, 0);
        arithmetic("Unable to invert matrix -- singularity encountered in the matrix",
                () -> from.getTransformToN(from.handle, flat.handle, transform.handle));
    }

    @Test
    public void transformsToNoNodeLeaveTheFailedSearchForTheirClass() {
        NoClassDefFoundError e = assertThrows(NoClassDefFoundError.class,
                () -> group.getTransformToN(group.handle, 0, transform.handle));
        assertEquals("java/lang/InvalidArgument", e.getMessage());
    }

    @Test
    public void imagesOfOtherFormatsLeaveTheFailedSearchForTheirClass() {
        for (int format : new int[] {95, 101, 0, -1}) {
            NoClassDefFoundError e = assertThrows(NoClassDefFoundError.class,
                    () -> Image2D.createImage2DN(format, 1, 1));
            assertEquals("java/lang/IllegalException", e.getMessage());
        }
        for (int format = 96; format <= 100; format++) {
            long handle = Image2D.createImage2DN(format, 1, 1);
            assertTrue(handle != 0);
            fog.destroyObject3DN(handle);
        }
    }

    @Test
    public void referencesRaiseIllegalArgument() {
        fog.addAnimationTrack(new AnimationTrack(
                new KeyframeSequence(1, 1, KeyframeSequence.LINEAR), AnimationTrack.DENSITY));
        illegalArgument("Reference count from getReferences exceeds max",
                () -> fog.getReferencesN(fog.handle, new Object3D[0]));
    }

    @Test
    public void animatingRaisesIllegalStateForBothKinds() {
        KeyframeSequence backwards = new KeyframeSequence(2, 1, KeyframeSequence.LINEAR);
        backwards.setKeyframe(0, 10, new float[1]);
        backwards.setKeyframe(1, 5, new float[1]);
        backwards.setDuration(20);
        AnimationTrack track = new AnimationTrack(backwards, AnimationTrack.DENSITY);
        track.setController(new AnimationController());
        fog.addAnimationTrack(track);
        illegalState("Keyframe times in decreasing order", () -> fog.animateN(fog.handle, 0));

        KeyframeSequence angle = new KeyframeSequence(1, 1, KeyframeSequence.LINEAR);
        angle.setKeyframe(0, 0, new float[] {200});
        angle.setDuration(20);
        AnimationTrack tooWide = new AnimationTrack(angle, AnimationTrack.FIELD_OF_VIEW);
        tooWide.setController(new AnimationController());
        camera.setPerspective(60, 1, 1, 2);
        camera.addAnimationTrack(tooWide);
        illegalState("Camera.setPerspective - fovy argument must be less than 180 degrees",
                () -> camera.animateN(camera.handle, 0));
    }

    @Test
    public void skinnedMeshesRaiseByTheNative() {
        Group skeleton = new Group();
        Group bone = new Group();
        skeleton.addChild(bone);
        SkinnedMesh skinned = new SkinnedMesh(vertices, strips, null, skeleton);
        outOfBounds("firstVertex < 0",
                () -> skinned.addTransformN(skinned.handle, bone.handle, 1, -1, 1));
        illegalArgument("NULL bone", () -> skinned.addTransformN(skinned.handle, 0, 1, 0, 1));
        illegalArgument("getBone called with a null bone instance as an argument",
                () -> skinned.getBoneTransformN(skinned.handle, 0, transform.handle));
        skinned.addTransformN(skinned.handle, bone.handle, 1, 0, 3);
        illegalArgument("Too small a value for nVertices in getBoneVertices",
                () -> skinned.getBoneVerticesN(skinned.handle, bone.handle, new int[1],
                        new float[1]));
        bone.setScale(0, 0, 0);
        arithmetic("Unable to invert matrix -- singularity encountered in the matrix",
                () -> skinned.addTransformN(skinned.handle, bone.handle, 1, 0, 1));
    }

    @Test
    public void spritesRaiseIllegalArgumentAndNullPointer() {
        nullPointer("Sprite.setImage() called with null image",
                () -> Sprite3D.createSprite3DN(true, 0, 0));
        Sprite3D sprite = new Sprite3D(true, mutableImage, null);
        nullPointer("Sprite.setImage() called with null image",
                () -> sprite.setImageN(sprite.handle, 0));
        illegalArgument("m3g.Sprite3D.setCrop .. width and/or height exceed limits",
                () -> sprite.setCropN(sprite.handle, 0, 0, 257, 1));
    }

    @Test
    public void texturesRaiseIllegalArgument() {
        illegalArgument("Texture2D.setImage() -- NULL image passed to Texture2D",
                () -> Texture2D.createTexture2DN(0));
        illegalArgument("Texture2D.setImage() -- NULL image passed to Texture2D",
                () -> texture.setImageN(texture.handle, 0));
        illegalArgument("Texture2D.setFiltering .. invalid imageFilter argument",
                () -> texture.setFilteringN(texture.handle, Texture2D.FILTER_BASE_LEVEL, 0));
    }

    @Test
    public void vertexBuffersRaiseByTheNative() {
        VertexArray two = new VertexArray(3, 2, 1);
        illegalArgument("color array component size incorrect",
                () -> vertices.setColorsN(vertices.handle, two.handle));
        illegalArgument("normals array component size incorrect",
                () -> vertices.setNormalsN(vertices.handle, two.handle));
        illegalArgument("input vertex array must have 3 components",
                () -> vertices.setPositionsN(vertices.handle, two.handle, 1, null));
        outOfBounds("Texture index is out of range",
                () -> vertices.getTexCoordsN(vertices.handle, -1, null));
        illegalArgument("VertexBuffer.setTexCoords() -- Texture unit index exceeds system limits",
                () -> vertices.setTexCoordsN(vertices.handle, -1, two.handle, 1, null));
    }

    @Test
    public void vertexArraysRaiseOneTextFromTheirConstructor() {
        String text = "Bad values to VertexArray constructor";
        illegalArgument(text, () -> VertexArray.createVertexArrayN(0, 3, 1));
        illegalArgument(text, () -> VertexArray.createVertexArrayN(1, 5, 1));
        illegalArgument(text, () -> VertexArray.createVertexArrayN(1, 3, 3));
    }

    @Test
    public void vertexArraysRaiseThreeKindsFromEachOfTheirFourCopies() {
        String negative = "negative number of vertices to be set";
        String first = "negative index for first vertex";
        illegalArgument(negative, () -> bytes.setN(bytes.handle, 0, -1, new byte[9]));
        illegalArgument(negative, () -> bytes.getN(bytes.handle, 0, -1, new byte[9]));
        illegalArgument(negative, () -> shorts.setN(shorts.handle, 0, -1, new short[9]));
        illegalArgument(negative, () -> shorts.getN(shorts.handle, 0, -1, new short[9]));
        outOfBounds(first, () -> bytes.setN(bytes.handle, -1, 1, new byte[9]));
        outOfBounds(first, () -> bytes.getN(bytes.handle, -1, 1, new byte[9]));
        outOfBounds(first, () -> shorts.setN(shorts.handle, -1, 1, new short[9]));
        outOfBounds(first, () -> shorts.getN(shorts.handle, -1, 1, new short[9]));
        illegalState(" this is not an 8-bit VertexArray",
                () -> shorts.setN(shorts.handle, 0, 1, new byte[9]));
        illegalState(" this is not an 8-bit VertexArray",
                () -> shorts.getN(shorts.handle, 0, 1, new byte[9]));
        illegalState(" this is not a 16-bit VertexArray",
                () -> bytes.setN(bytes.handle, 0, 1, new short[9]));
        // Reading shorts complains of bytes.
        illegalState(" this is not an 8-bit VertexArray",
                () -> bytes.getN(bytes.handle, 0, 1, new short[9]));
    }

    @Test
    public void stripsRaiseIllegalArgumentAndOutOfBounds() {
        illegalArgument("TriangleStripArray constructor.  stripLengths array is empty (length = 0)",
                () -> TriangleStripArray.createTriangleStripArrayN(0, new int[0]));
        illegalArgument("TriangleStripArray constructor.   indices array out of bounds error",
                () -> TriangleStripArray.createTriangleStripArrayN(new int[] {0, 1},
                        new int[] {3}));
        outOfBounds("TriangleStripArray constructor.   index greater than 65535 -- exceeds 16 bit"
                        + " capacity",
                () -> TriangleStripArray.createTriangleStripArrayN(new int[] {0, 1, 65536},
                        new int[] {3}));
    }

    @Test
    public void appearancesRaiseOutOfBounds() {
        outOfBounds("Invalid layer value", () -> appearance.setLayerN(appearance.handle, 64));
        String text = "Index out texture units boundary: 1000 "
                + Graphics3D.getProperties().get("maxTextureUnits");
        outOfBounds(text, () -> appearance.getTextureN(appearance.handle, 1000));
        outOfBounds(text, () -> appearance.setTextureN(appearance.handle, 1000, texture.handle));
    }

    @Test
    public void worldsRaiseNullPointer() {
        nullPointer("trying to setActiveCamera to null",
                () -> world.setActiveCameraN(world.handle, 0));
    }

    @Test
    public void intersectionsRaiseOutOfBoundsAndNullPointer() {
        outOfBounds("RayIntersection::getTextureS called with invalid index",
                () -> intersection.getTextureSN(intersection.handle, -1));
        outOfBounds("RayIntersection::getTextureT called with invalid index",
                () -> intersection.getTextureTN(intersection.handle, -1));
        nullPointer("RayIntersection::getRay called with null array",
                () -> intersection.getRayN(intersection.handle, null));
    }

    @Test
    public void pickingRaisesArithmeticAndIllegalArgument() {
        Group flat = new Group();
        flat.setScale(0, 0, 0);
        group.addChild(flat);
        flat.addChild(mesh);
        flat.addChild(camera);
        camera.setPerspective(60, 1, 1, 10);
        String singular = "Unable to invert matrix -- singularity encountered in the matrix";
        arithmetic(singular, () -> flat.pickN(
                flat.handle, -1, 0, 0, 1, 0, 0, -1, intersection.handle));
        arithmetic(singular, () -> flat.pickN(
                flat.handle, -1, 0.5f, 0.5f, camera.handle, intersection.handle));
        illegalArgument("No direction vector specified!", () -> group.pickN(
                group.handle, -1, 0, 0, 1, 0, 0, 0, intersection.handle));
        illegalArgument("Group.pick called with null camera argument ", () -> group.pickN(
                group.handle, -1, 0.5f, 0.5f, 0, intersection.handle));
    }

    /**
     * A mesh of one strip whose second triangle is just large enough for the ray and just too small
     * for its normal, which takes other edges. Such triangles stand at one rounding from the limit,
     * so that they have to be searched for.
     */
    private Mesh meshAtTheLimit(Random random, float[] target) {
        byte[] corners = new byte[12];
        random.nextBytes(corners);
        corners[2] = corners[5] = corners[8] = corners[11] = 0;
        double area = Math.abs((corners[6] - corners[3]) * (corners[10] - corners[4])
                - (corners[9] - corners[3]) * (corners[7] - corners[4]));
        double first = (corners[3] - corners[0]) * (corners[7] - corners[1])
                - (corners[6] - corners[0]) * (corners[4] - corners[1]);
        if (area == 0 || first == 0) {
            return null;
        }
        float scale = (float) Math.sqrt(0.001 / area);
        for (int steps = random.nextInt(9) - 4; steps != 0; steps -= Integer.signum(steps)) {
            scale = steps > 0 ? Math.nextUp(scale) : Math.nextDown(scale);
        }
        VertexArray positions = new VertexArray(4, 3, 1);
        positions.set(0, 4, corners);
        VertexBuffer buffer = new VertexBuffer();
        buffer.setPositions(positions, scale, null);
        target[0] = scale * (corners[3] + corners[6] + corners[9]) / 3f;
        target[1] = scale * (corners[4] + corners[7] + corners[10]) / 3f;
        PolygonMode mode = new PolygonMode();
        mode.setCulling(PolygonMode.CULL_NONE);
        Appearance shown = new Appearance();
        shown.setPolygonMode(mode);
        return new Mesh(buffer, new TriangleStripArray(0, new int[] {4}), shown);
    }

    @Test
    public void pickingRaisesIllegalStateForATriangleWithoutANormal() {
        Random random = new Random(1);
        float[] target = new float[2];
        IllegalStateException raised = null;
        Group root = null;
        for (int i = 0; i < 100000 && raised == null; i++) {
            Mesh candidate = meshAtTheLimit(random, target);
            if (candidate == null) {
                continue;
            }
            root = new Group();
            root.addChild(candidate);
            try {
                root.pickN(root.handle, -1, target[0], target[1], 1, target[0], target[1], -1,
                        new RayIntersection().handle);
            } catch (IllegalStateException e) {
                raised = e;
            }
        }
        assertNotNull(raised);
        assertEquals("Null cross product", raised.getMessage());
        // The same through a camera that looks straight at it.
        Group top = root;
        Camera above = new Camera();
        above.setParallel(2, 1, 0.5f, 2);
        above.setTranslation(target[0], target[1], 1);
        top.addChild(above);
        illegalState("Null cross product", () -> top.pickN(top.handle, -1, 0.5f, 0.5f,
                above.handle, new RayIntersection().handle));
    }

    @Test
    public void loadingByNameRaisesNullPointerAndIOException() throws IOException {
        assertRaises(IOException.class, "Loader::load:  Can't load file",
                () -> Loader.loadN(folder.getRoot() + "/none"));
        M3gBytes.Fields refused = new M3gBytes.Fields().int32(0).int32(0).int32(0).bytes(1, 2, 3)
                .bytes(80).float32(-1);
        Path file = folder.getRoot().toPath().resolve("refused.m3g");
        String name = new M3gBytes().object(7, refused).write(file);
        nullPointer("Fog.setDensity -- density < 0", () -> Loader.loadN(name));
        assertTrue(Files.exists(file));
    }

    @Test
    public void loadingFromMemoryRaisesIOException() {
        assertRaises(IOException.class, "This version of Loader::load() not implemented",
                () -> Loader.loadN(new byte[4], 0));
    }

    @Test
    public void invertingRaisesOneTextForEverything() {
        transform.set(new float[16]);
        arithmetic("Unable to invert matrix", () -> transform.invertN(transform.handle));
    }

    @Test
    public void noFailureLeavesAnExceptionBehind() {
        List<Throwable> raised = new ArrayList<>();
        for (int i = 0; i < 100; i++) {
            try {
                fog.setDensityN(fog.handle, -1);
            } catch (IllegalArgumentException e) {
                raised.add(e);
            }
        }
        assertEquals(100, raised.size());
        assertFalse(fog.getDensityN(fog.handle) < 0);
    }
}
