package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertFails;
import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertNullPointer;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.file.Path;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Skinned meshes through their natives, and those of files. */
public class SkinnedMeshTest {
    private static final int GROUP_TYPE = 9;
    private static final int STRIPS_TYPE = 11;
    private static final int MESH_TYPE = 14;
    private static final int SKINNED_MESH_TYPE = 16;
    private static final int VERTEX_ARRAY_TYPE = 20;
    private static final int VERTEX_BUFFER_TYPE = 21;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private final Group skeleton = new Group();
    private final Group arm = new Group();
    private final IndexBuffer strip = Shapes.quadStrip();
    private final SkinnedMesh mesh;

    public SkinnedMeshTest() {
        skeleton.addChild(arm);
        mesh = new SkinnedMesh(Shapes.quadVertices(), strip, new Appearance(), skeleton);
    }

    private static M3gBytes.Fields object3D() {
        return new M3gBytes.Fields().int32(0).int32(0).int32(0);
    }

    private static M3gBytes.Fields node() {
        return object3D().bytes(0, 0).bytes(1, 1, 255).int32(-1).bytes(0);
    }

    private static M3gBytes.Fields plainMesh() {
        return node().int32(3).int32(1).int32(4).int32(0);
    }

    /**
     * A file with a plain mesh, object 7, and a skinned one, 8, of a skeleton, 6, with one bone, 5.
     */
    private static String write(Path file, int skeleton, int... references) throws IOException {
        M3gBytes.Fields mesh = plainMesh().int32(skeleton).int32(references.length / 4);
        for (int value : references) {
            mesh.int32(value);
        }
        return new M3gBytes()
                .object(VERTEX_ARRAY_TYPE, object3D().bytes(1, 3, 0, 3, 0)
                        .bytes(0, 0, 0, 9, 0, 0, 0, 9, 0))
                .object(VERTEX_BUFFER_TYPE, object3D().bytes(255, 255, 255, 255).int32(2)
                        .float32(0).float32(0).float32(0).float32(1).int32(0).int32(0).int32(0))
                .object(STRIPS_TYPE, object3D().bytes(0).int32(0).int32(1).int32(3))
                .object(GROUP_TYPE, node().int32(0))
                .object(GROUP_TYPE, node().int32(1).int32(5))
                .object(MESH_TYPE, plainMesh())
                .object(SKINNED_MESH_TYPE, mesh)
                .write(file);
    }

    private Object3D[] load(int skeleton, int... references) throws IOException {
        return Loader.load(
                write(folder.getRoot().toPath().resolve("skin.m3g"), skeleton, references));
    }

    @Test
    public void theSkeletonBecomesTheChild() {
        assertSame(skeleton, mesh.getSkeleton());
        assertSame(mesh, skeleton.getParent());
    }

    @Test
    public void refusesWhatNoMeshCanBe() {
        long vertices = Shapes.quadVertices().handle;
        assertNullPointer("Mesh constructor called with vertices = null",
                () -> SkinnedMesh.createSkinnedMeshN(0, strip.handle, 0, 0));
        assertNullPointer("Null Skeleton",
                () -> SkinnedMesh.createSkinnedMeshN(vertices, strip.handle, 0, 0));
        assertNullPointer("Skeleton can not be instance of World",
                () -> SkinnedMesh.createSkinnedMeshN(vertices, strip.handle, 0,
                        new World().handle));
        assertNullPointer("Given skeleton already had a parent",
                () -> SkinnedMesh.createSkinnedMeshN(vertices, strip.handle, 0, arm.handle));
        long[] strips = {strip.handle};
        assertIllegalArgument("Mesh constructor called with empty submesh array",
                () -> SkinnedMesh.createSkinnedMeshN(vertices, new long[0], null, arm.handle));
        assertIllegalArgument("Given skeleton already had a parent",
                () -> SkinnedMesh.createSkinnedMeshN(vertices, strips, null, arm.handle));
        SkinnedMesh several = new SkinnedMesh(Shapes.quadVertices(),
                new IndexBuffer[] {strip, strip}, new Appearance[] {null, new Appearance()},
                new Group());
        assertEquals(2, several.getSubmeshCount());
    }

    @Test
    public void refusesBadBindings() {
        long handle = mesh.handle;
        assertIllegalArgument("NULL bone", () -> mesh.addTransformN(handle, 0, 0, -1, 0));
        assertIllegalArgument("weight <= 0",
                () -> mesh.addTransformN(handle, arm.handle, 0, -1, 0));
        assertIllegalArgument("numVertices <= 0",
                () -> mesh.addTransformN(handle, arm.handle, 1, -1, 0));
        assertOutOfBounds("firstVertex < 0",
                () -> mesh.addTransformN(handle, arm.handle, 1, -1, 1));
        assertFails(ArithmeticException.class,
                "Unable to invert matrix -- singularity encountered in the matrix", () -> {
                    arm.setScale(0, 0, 0);
                    mesh.addTransformN(handle, arm.handle, 1, 0, 1);
                });
    }

    @Test
    public void aRunMayEndAt65535AndNotBeyond() {
        mesh.addTransform(arm, 1, 65533, 2);
        assertOutOfBounds("firstVertex+numVertices > 65535",
                () -> mesh.addTransform(arm, 1, 65534, 2));
    }

    @Test
    public void aBoneOutsideTheSkeletonFailsAndItsEntryRemains() {
        Group stranger = new Group();
        assertIllegalArgument("Given bone is not skeleton or its descendant",
                () -> mesh.addTransform(stranger, 1, 1, 2));
        int[] indices = new int[2];
        assertEquals(2, mesh.getBoneVertices(stranger, indices, null));
        assertArrayEquals(new int[] {1, 2}, indices);
        assertIllegalArgument("getBone -- bone not found in the skeleton",
                () -> mesh.getBoneTransform(stranger, new Transform()));
    }

    @Test
    public void twoBindingsShareAVertexByTheirWeights() {
        mesh.addTransform(arm, 1, 0, 1);
        mesh.addTransform(skeleton, 3, 0, 1);
        float[] weights = new float[1];
        assertEquals(1, mesh.getBoneVertices(arm, null, weights));
        assertEquals(0.25f, weights[0], 0);
        assertEquals(1, mesh.getBoneVertices(skeleton, new int[1], weights));
        assertEquals(0.75f, weights[0], 0);
    }

    @Test
    public void boneVerticesNeedRoomInTheArraysThatAreGiven() {
        mesh.addTransform(arm, 1, 0, 3);
        String text = "Too small a value for nVertices in getBoneVertices";
        assertEquals(3, mesh.getBoneVertices(arm, null, null));
        assertEquals(3, mesh.getBoneVertices(arm, new int[3], new float[9]));
        assertIllegalArgument(text, () -> mesh.getBoneVertices(arm, new int[2], new float[9]));
        assertIllegalArgument(text, () -> mesh.getBoneVertices(arm, new int[9], new float[2]));
        assertIllegalArgument(text, () -> mesh.getBoneVertices(arm, null, new float[2]));
        assertEquals(0, mesh.getBoneVertices(skeleton, new int[0], new float[0]));
    }

    @Test
    public void theRestTransformGoesFromTheMeshToTheBone() {
        arm.setTranslation(10, 20, 30);
        mesh.addTransform(arm, 1, 0, 1);
        Transform transform = new Transform();
        mesh.getBoneTransform(arm, transform);
        assertArrayEquals(Shapes.translation(-10, -20, -30), Shapes.elements(transform), 1e-5f);
        assertIllegalArgument("getBone called with a null bone instance as an argument",
                () -> mesh.getBoneTransformN(mesh.handle, 0, transform.handle));
    }

    /** Duplicates a skinned mesh. */
    static final class Duplicate {
        public static void main(String[] args) {
            SkinnedMesh mesh = new SkinnedMesh(Shapes.quadVertices(), Shapes.quadStrip(), null,
                    new Group());
            System.out.println("before");
            mesh.duplicate();
            System.out.println("after");
        }
    }

    @Test
    public void aDuplicateEndsTheProcess() throws Exception {
        ChildJvm.Result result = ChildJvm.run(Duplicate.class);
        assertTrue(result.toString(), result.err.contains("Given skeleton already had a parent"));
        assertTrue(result.toString(), result.out.contains("before"));
        assertTrue(result.toString(), !result.out.contains("after"));
    }

    @Test
    public void aSkeletonThatIsAMeshFails() {
        assertFails(IOException.class, "SkinnedMesh: file load...  invalid Skeleton target",
                () -> load(7));
    }

    @Test
    public void aSkeletonThatIsNoObjectFails() {
        assertFails(IOException.class, "SkinnedMesh: file load... invalid Skeleton reference index",
                () -> load(0));
        assertFails(IOException.class, "SkinnedMesh: file load... invalid Skeleton reference index",
                () -> load(8));
    }

    @Test
    public void aBadTransformNodeFails() {
        assertFails(IOException.class,
                "SkinnedMesh: file load... invalid Transform node reference index",
                () -> load(6, 0, 0, 1, 1));
        assertFails(IOException.class,
                "SkinnedMesh: file load... invalid Transform node reference index",
                () -> load(6, 8, 0, 1, 1));
        assertFails(IOException.class, "SkinnedMesh: file load ... invalid bone target",
                () -> load(6, 3, 0, 1, 1));
    }

    /** Loads the file that is its argument. */
    static final class Load {
        public static void main(String[] args) throws Exception {
            Loader.load(args[0]);
        }
    }

    @Test
    public void aLoadedMeshHasItsBonesAndWritesItsWeights() throws Exception {
        SkinnedMesh loaded = (SkinnedMesh) load(6, 5, 0, 2, 1, 6, 1, 1, 3)[7];
        float[] weights = new float[2];
        Group bone = (Group) loaded.getSkeleton().getChild(0);
        assertEquals(2, loaded.getBoneVertices(bone, null, weights));
        assertArrayEquals(new float[] {1, 0.25f}, weights, 0);
        String file = write(folder.getRoot().toPath().resolve("skin.m3g"), 6,
                5, 0, 2, 1, 6, 1, 1, 3);
        ChildJvm.Result result = ChildJvm.run(Load.class, file);
        assertTrue(result.toString(), result.err.contains("weight sum and norm\n"
                + "0 sum:1 norm:    1.00\n1 sum:4 norm:    0.25\n2 sum:0 norm:    0.00\n\n"));
    }
}
