package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertNullPointer;
import static javax.microedition.m3g.Failures.assertOutOfBounds;
import static javax.microedition.m3g.Shapes.quad;
import static javax.microedition.m3g.Shapes.quadStrip;
import static javax.microedition.m3g.Shapes.quadVertices;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** The natives of Mesh. */
public class MeshTest {
    @Test
    public void aMeshWithoutAppearanceIsNotPickedUntilOneIsSet() {
        Group group = new Group();
        Mesh mesh = quad(null);
        group.addChild(mesh);
        assertNull(mesh.getAppearance(0));
        assertFalse(group.pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, null));
        mesh.setAppearance(0, new Appearance());
        assertTrue(group.pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, null));
    }

    @Test
    public void anIndexEqualToTheCountPasses() {
        Mesh mesh = quad(new Appearance());
        assertNull(mesh.getAppearanceN(mesh.handle, 1));
        assertNull(mesh.getIndexBufferN(mesh.handle, 1));
        mesh.setAppearanceN(mesh.handle, 1, new Appearance().handle);
        assertEquals(1, mesh.getSubmeshCount());
        assertEquals(3, mesh.getReferences(null));
    }

    @Test
    public void otherIndicesFail() {
        Mesh mesh = quad(null);
        for (int index : new int[] {-1, 2}) {
            assertOutOfBounds("Mesh.getAppearance() the index is out of bounds",
                    () -> mesh.getAppearance(index));
            assertOutOfBounds("Mesh.getIndexBuffer() the index is out of bounds",
                    () -> mesh.getIndexBuffer(index));
            assertOutOfBounds("Mesh.setAppearance() the index is out of bounds",
                    () -> mesh.setAppearance(index, null));
        }
    }

    @Test
    public void theClassRefusesAnIndexEqualToTheCount() {
        Appearance appearance = new Appearance();
        Mesh mesh = quad(appearance);
        assertOutOfBounds("There is no submesh 1", () -> mesh.getAppearance(1));
        assertOutOfBounds("There is no submesh 1", () -> mesh.getIndexBuffer(1));
        assertOutOfBounds("There is no submesh 1", () -> mesh.setAppearance(1, null));
        assertSame(appearance, mesh.getAppearance(0));
    }

    @Test
    public void partsComeBackAsTheSameObjects() {
        VertexBuffer vertices = quadVertices();
        IndexBuffer[] strips = {quadStrip(), quadStrip()};
        Appearance appearance = new Appearance();
        Mesh mesh = new Mesh(vertices, strips, new Appearance[] {null, appearance});
        assertSame(vertices, mesh.getVertexBuffer());
        assertEquals(2, mesh.getSubmeshCount());
        assertSame(strips[0], mesh.getIndexBuffer(0));
        assertSame(strips[1], mesh.getIndexBuffer(1));
        assertNull(mesh.getAppearance(0));
        assertSame(appearance, mesh.getAppearance(1));
    }

    @Test
    public void aSharedAppearanceIsListedOncePerSubmesh() {
        VertexBuffer vertices = quadVertices();
        IndexBuffer[] strips = {quadStrip(), quadStrip()};
        Appearance shared = new Appearance();
        Mesh mesh = new Mesh(vertices, strips, new Appearance[] {shared, shared});
        Object3D[] references = new Object3D[5];
        assertEquals(5, mesh.getReferences(references));
        assertArrayEquals(new Object3D[] {shared, shared, strips[0], strips[1], vertices},
                references);
    }

    @Test
    public void badPartsFailWithTheirTexts() {
        VertexBuffer vertices = quadVertices();
        IndexBuffer strip = quadStrip();
        assertNullPointer("Mesh constructor called with vertices = null",
                () -> new Mesh(null, strip, null));
        assertNullPointer("Mesh constructor called with submesh = null",
                () -> new Mesh(vertices, (IndexBuffer) null, null));
        assertIllegalArgument("Mesh constructor called with vertices = null",
                () -> Mesh.createMeshN(0, new long[] {strip.handle}, null));
        assertIllegalArgument("Mesh constructor called with submesh = null",
                () -> Mesh.createMeshN(vertices.handle, null, null));
        assertIllegalArgument("Mesh constructor called with empty submesh array",
                () -> new Mesh(vertices, new IndexBuffer[0], null));
        assertIllegalArgument(
                "Mesh constructor called with submesh array containing null mesh entry",
                () -> new Mesh(vertices, new IndexBuffer[] {strip, null}, null));
        assertThrows(IllegalArgumentException.class,
                () -> new Mesh(vertices, new IndexBuffer[] {strip, strip}, new Appearance[1]));
    }

    @Test
    public void fewerAppearancesThanSubmeshesLeaveTheRestEmpty() {
        IndexBuffer strip = quadStrip();
        Appearance appearance = new Appearance();
        Mesh mesh = new Mesh(Mesh.createMeshN(quadVertices().handle,
                new long[] {strip.handle, strip.handle}, new long[] {appearance.handle}));
        assertSame(appearance, mesh.getAppearance(0));
        assertNull(mesh.getAppearance(1));
    }

    @Test
    public void aDuplicateSharesItsParts() {
        Mesh mesh = quad(new Appearance());
        Mesh copy = (Mesh) mesh.duplicate();
        assertSame(mesh.getVertexBuffer(), copy.getVertexBuffer());
        assertSame(mesh.getIndexBuffer(0), copy.getIndexBuffer(0));
        assertSame(mesh.getAppearance(0), copy.getAppearance(0));
    }
}
