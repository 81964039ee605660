package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertFails;
import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertNullPointer;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import java.io.IOException;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Morphing meshes through their natives, and those of files. */
public class MorphingMeshTest {
    private static final int STRIPS_TYPE = 11;
    private static final int MORPHING_MESH_TYPE = 15;
    private static final int VERTEX_ARRAY_TYPE = 20;
    private static final int VERTEX_BUFFER_TYPE = 21;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private final VertexBuffer base = Shapes.quadVertices();
    private final VertexBuffer[] targets = {Shapes.quadVertices(), Shapes.quadVertices()};
    private final IndexBuffer strip = Shapes.quadStrip();

    private MorphingMesh several() {
        return new MorphingMesh(base, targets, new IndexBuffer[] {strip}, null);
    }

    private static M3gBytes.Fields object3D() {
        return new M3gBytes.Fields().int32(0).int32(0).int32(0);
    }

    /** A file with one morphing mesh. */
    private Object3D[] load(int... targetIndices) throws IOException {
        M3gBytes.Fields mesh = object3D().bytes(0, 0).bytes(1, 1, 255).int32(-1).bytes(0)
                .int32(3).int32(1).int32(4).int32(0).int32(targetIndices.length);
        for (int index : targetIndices) {
            mesh.int32(index).float32(0.5f);
        }
        return Loader.load(new M3gBytes()
                .object(VERTEX_ARRAY_TYPE, object3D().bytes(1, 3, 0, 3, 0)
                        .bytes(0, 0, 0, 9, 0, 0, 0, 9, 0))
                .object(VERTEX_BUFFER_TYPE, object3D().bytes(255, 255, 255, 255).int32(2)
                        .float32(0).float32(0).float32(0).float32(1).int32(0).int32(0).int32(0))
                .object(STRIPS_TYPE, object3D().bytes(0).int32(0).int32(1).int32(3))
                .object(MORPHING_MESH_TYPE, mesh)
                .write(folder.getRoot().toPath().resolve("morph.m3g")));
    }

    @Test
    public void theFormForSeveralSubmeshesCountsItsTargets() {
        MorphingMesh mesh = several();
        assertEquals(2, mesh.getMorphTargetCount());
        assertSame(targets[0], mesh.getMorphTarget(0));
        assertSame(targets[1], mesh.getMorphTarget(1));
        assertOutOfBounds("Given index 2; number of targets: 2", () -> mesh.getMorphTarget(2));
        assertOutOfBounds("Given index -1; number of targets: 2", () -> mesh.getMorphTarget(-1));
        assertNull(mesh.getMorphTargetN(mesh.handle, -1));
        assertSame(base, mesh.getVertexBuffer());
        assertEquals(1, mesh.getSubmeshCount());
    }

    @Test
    public void theFormForOneSubmeshCountsNone() {
        MorphingMesh mesh = new MorphingMesh(base, targets, strip, null);
        assertEquals(0, mesh.getMorphTargetCount());
        assertOutOfBounds("Given index 0; number of targets: 0", () -> mesh.getMorphTarget(0));
        float[] weights = {7, 7};
        mesh.setWeights(new float[] {1, 1});
        mesh.getWeights(weights);
        assertArrayEquals(new float[] {7, 7}, weights, 0);
        Object3D[] references = new Object3D[8];
        assertEquals("it holds them all the same", 4, mesh.getReferences(references));
    }

    @Test
    public void weightsAreZeroAtFirstAndNotLimited() {
        MorphingMesh mesh = several();
        float[] weights = {7, 7, 7};
        mesh.getWeights(weights);
        assertArrayEquals(new float[] {0, 0, 7}, weights, 0);
        mesh.setWeights(new float[] {-3, 12});
        mesh.getWeights(weights);
        assertArrayEquals(new float[] {-3, 12, 7}, weights, 0);
    }

    @Test
    public void refusesBadArraysOfWeights() {
        MorphingMesh mesh = several();
        assertNullPointer("MorphMesh::setWeight called with null weights array",
                () -> mesh.setWeightsN(mesh.handle, null));
        assertNullPointer("MorphMesh::getWeight called with null weights array",
                () -> mesh.getWeightsN(mesh.handle, null));
        assertIllegalArgument("Weights array is too short",
                () -> mesh.setWeightsN(mesh.handle, new float[1]));
        assertIllegalArgument("Weights array is too short",
                () -> mesh.getWeightsN(mesh.handle, new float[1]));
    }

    @Test
    public void refusesWhatNoMeshCanBe() {
        long[] handles = {targets[0].handle};
        long[] hole = {targets[0].handle, 0};
        assertNullPointer("Mesh constructor called with vertices = null",
                () -> MorphingMesh.createMorphingMeshN(0, handles, strip.handle, 0));
        assertNullPointer("Mesh constructor called with submesh = null",
                () -> MorphingMesh.createMorphingMeshN(base.handle, handles, 0, 0));
        assertNullPointer("NULL targets for MorphingMesh",
                () -> MorphingMesh.createMorphingMeshN(base.handle, null, strip.handle, 0));
        assertNullPointer("Empty targets for MorphingMesh",
                () -> MorphingMesh.createMorphingMeshN(base.handle, new long[0], strip.handle, 0));
        assertNullPointer("NULL targets[1] for MorphingMesh",
                () -> MorphingMesh.createMorphingMeshN(base.handle, hole, strip.handle, 0));
        long[] strips = {strip.handle};
        assertIllegalArgument("Mesh constructor called with empty submesh array",
                () -> MorphingMesh.createMorphingMeshN(base.handle, handles, new long[0], null));
        assertIllegalArgument("Mesh constructor called with submesh = null",
                () -> MorphingMesh.createMorphingMeshN(base.handle, handles, null, null));
        assertIllegalArgument("NULL targets[1] for MorphingMesh",
                () -> MorphingMesh.createMorphingMeshN(base.handle, hole, strips, null));
    }

    @Test
    public void aPickTestsTheBaseShape() {
        VertexArray moved = new VertexArray(4, 3, 2);
        moved.set(0, 4, new short[] {99, 99, 0, 101, 99, 0, 99, 101, 0, 101, 101, 0});
        VertexBuffer target = new VertexBuffer();
        target.setPositions(moved, 1, null);
        MorphingMesh mesh = new MorphingMesh(base, new VertexBuffer[] {target},
                new IndexBuffer[] {strip}, new Appearance[] {new Appearance()});
        mesh.setWeights(new float[] {1});
        Group group = new Group();
        group.addChild(mesh);
        RayIntersection hit = new RayIntersection();
        assertEquals(true, group.pick(-1, 0.25f, 0.25f, 5, 0, 0, -1, hit));
        assertSame(mesh, hit.getIntersected());
    }

    @Test
    public void aDuplicateSharesTargetsAndTakesTheWeights() {
        MorphingMesh mesh = several();
        mesh.setWeights(new float[] {0.25f, 0.5f});
        MorphingMesh copy = (MorphingMesh) mesh.duplicate();
        assertSame(targets[1], copy.getMorphTarget(1));
        float[] weights = new float[2];
        copy.getWeights(weights);
        assertArrayEquals(new float[] {0.25f, 0.5f}, weights, 0);
    }

    @Test
    public void aRecordWithoutTargetsFails() {
        assertFails(IOException.class, "MorphingMesh.load -- no morph targets", () -> load());
    }

    @Test
    public void aRecordWithBadTargetsFails() {
        assertFails(IOException.class,
                "MorphingMesh  file load... invalid MorphTarget index reference", () -> load(0));
        assertFails(IOException.class,
                "MorphingMesh  file load... invalid MorphTarget index reference",
                () -> load(3, 99));
        assertFails(IOException.class, "MorphingMesh.load -- null morph target", () -> load(4));
    }

    @Test
    public void aLoadedMeshCountsNoTargets() throws Exception {
        MorphingMesh mesh = (MorphingMesh) load(3, 3)[4];
        assertEquals(0, mesh.getMorphTargetCount());
        assertOutOfBounds("Given index 0; number of targets: 0", () -> mesh.getMorphTarget(0));
    }
}
