package javax.microedition.m3g;

/** Small shapes for the tests of the scene. */
final class Shapes {
    private Shapes() {}

    /** The corners (-1, -1), (1, -1), (-1, 1), (1, 1) at z = 0, with the front towards +z. */
    static VertexBuffer quadVertices() {
        VertexArray positions = new VertexArray(4, 3, 2);
        positions.set(0, 4, new short[] {-1, -1, 0, 1, -1, 0, -1, 1, 0, 1, 1, 0});
        VertexBuffer vertices = new VertexBuffer();
        vertices.setPositions(positions, 1, null);
        return vertices;
    }

    /** The strip of the four corners. */
    static IndexBuffer quadStrip() {
        return new TriangleStripArray(0, new int[] {4});
    }

    /** A quad with this appearance, which may be null. */
    static Mesh quad(Appearance appearance) {
        return new Mesh(quadVertices(), quadStrip(), appearance);
    }

    /** The elements of a transform, row by row. */
    static float[] elements(Transform transform) {
        float[] rows = new float[16];
        transform.get(rows);
        return rows;
    }

    /** The elements of a translation, row by row. */
    static float[] translation(float x, float y, float z) {
        return new float[] {1, 0, 0, x, 0, 1, 0, y, 0, 0, 1, z, 0, 0, 0, 1};
    }
}
