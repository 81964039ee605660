package varnel.viewer;

import java.util.List;
import javax.microedition.m3g.Mesh;
import javax.microedition.m3g.Node;
import javax.microedition.m3g.Transform;
import javax.microedition.m3g.VertexArray;
import javax.microedition.m3g.VertexBuffer;
import javax.microedition.m3g.World;

/** The box, in a world's coordinates, around the vertices of its meshes. */
final class Bounds {
    private final float[] low = {Float.MAX_VALUE, Float.MAX_VALUE, Float.MAX_VALUE};
    private final float[] high = {-Float.MAX_VALUE, -Float.MAX_VALUE, -Float.MAX_VALUE};

    /** The box around the meshes among the nodes; empty if they have no vertices. */
    static Bounds of(World world, List<Node> nodes) {
        Bounds bounds = new Bounds();
        for (Node node : nodes) {
            if (node instanceof Mesh mesh) {
                bounds.add(world, mesh);
            }
        }
        return bounds;
    }

    boolean isEmpty() {
        return low[0] > high[0];
    }

    /** The middle of the box: x, y, z. */
    float[] centre() {
        float[] centre = new float[3];
        for (int i = 0; i < 3; i++) {
            centre[i] = (low[i] + high[i]) / 2;
        }
        return centre;
    }

    /** The radius of the sphere around the box, at least a small positive number. */
    float radius() {
        double sum = 0;
        for (int i = 0; i < 3; i++) {
            double half = (high[i] - low[i]) / 2;
            sum += half * half;
        }
        return (float) Math.max(Math.sqrt(sum), 1e-3);
    }

    private void add(World world, Mesh mesh) {
        VertexBuffer vertices = mesh.getVertexBuffer();
        float[] scaleBias = new float[4];
        VertexArray positions = vertices.getPositions(scaleBias);
        Transform toWorld = new Transform();
        if (positions == null || !mesh.getTransformTo(world, toWorld)) {
            return;
        }
        int count = positions.getVertexCount();
        float[] points = new float[4 * count];
        short[] values = values(positions, count);
        for (int i = 0; i < count; i++) {
            for (int axis = 0; axis < 3; axis++) {
                points[4 * i + axis] = values[3 * i + axis] * scaleBias[0] + scaleBias[1 + axis];
            }
            points[4 * i + 3] = 1;
        }
        toWorld.transform(points);
        for (int i = 0; i < count; i++) {
            for (int axis = 0; axis < 3; axis++) {
                float value = points[4 * i + axis];
                low[axis] = Math.min(low[axis], value);
                high[axis] = Math.max(high[axis], value);
            }
        }
    }

    /** All components of the array, whatever their width. */
    private static short[] values(VertexArray array, int count) {
        short[] values = new short[count * array.getComponentCount()];
        if (array.getComponentType() == 2) {
            array.get(0, count, values);
        } else {
            byte[] bytes = new byte[values.length];
            array.get(0, count, bytes);
            for (int i = 0; i < bytes.length; i++) {
                values[i] = bytes[i];
            }
        }
        return values;
    }
}
