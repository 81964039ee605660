package varnel.viewer;

import java.util.ArrayList;
import java.util.List;
import javax.microedition.m3g.Background;
import javax.microedition.m3g.Camera;
import javax.microedition.m3g.Group;
import javax.microedition.m3g.Image2D;
import javax.microedition.m3g.Light;
import javax.microedition.m3g.Mesh;
import javax.microedition.m3g.Node;
import javax.microedition.m3g.Object3D;
import javax.microedition.m3g.Transform;
import javax.microedition.m3g.World;

/** Makes a world that can be drawn out of what a file holds, adding only what is missing. */
final class Scene {
    private static final float FIELD_OF_VIEW_DEGREES = 45;
    private static final int BACKGROUND_COLOR = 0xFF404858;

    private Scene() {
    }

    /**
     * The world to draw, or null if the objects hold nothing to show.
     *
     * @param aspectRatio the window's width divided by its height
     */
    static World of(Object3D[] objects, float aspectRatio) {
        World world = worldIn(objects);
        if (world == null) {
            world = worldAround(objects);
        }
        if (world == null) {
            return null;
        }
        List<Node> nodes = nodesOf(world);
        Camera camera = world.getActiveCamera();
        if (camera == null) {
            camera = firstCamera(nodes);
            if (camera == null) {
                camera = framingCamera(Bounds.of(world, nodes), aspectRatio);
                world.addChild(camera);
            }
            world.setActiveCamera(camera);
        } else if (camera.getParent() == null) {
            world.addChild(camera);
        }
        if (nodes.stream().noneMatch(Light.class::isInstance)) {
            world.addChild(headlight(world, camera));
        }
        return world;
    }

    /** The last world of the file: exporters write it after all that it refers to. */
    private static World worldIn(Object3D[] objects) {
        for (int i = objects.length - 1; i >= 0; i--) {
            if (objects[i] instanceof World world) {
                return world;
            }
        }
        return null;
    }

    /** A new world with the file's free nodes, or with its image; null without either. */
    private static World worldAround(Object3D[] objects) {
        World world = new World();
        Background background = new Background();
        background.setColor(BACKGROUND_COLOR);
        boolean found = false;
        for (Object3D object : objects) {
            if (object instanceof Node node && node.getParent() == null) {
                world.addChild(node);
                found |= node instanceof Group || node instanceof Mesh;
            }
        }
        for (Object3D object : objects) {
            if (!found && object instanceof Image2D image
                    && (image.getFormat() == Image2D.RGB || image.getFormat() == Image2D.RGBA)) {
                background.setImage(image);
                found = true;
            }
        }
        world.setBackground(background);
        return found ? world : null;
    }

    private static List<Node> nodesOf(World world) {
        List<Node> nodes = new ArrayList<>();
        nodes.add(world);
        for (int i = 0; i < nodes.size(); i++) {
            if (nodes.get(i) instanceof Group group) {
                for (int child = 0; child < group.getChildCount(); child++) {
                    nodes.add(group.getChild(child));
                }
            }
        }
        return nodes;
    }

    private static Camera firstCamera(List<Node> nodes) {
        for (Node node : nodes) {
            if (node instanceof Camera camera) {
                return camera;
            }
        }
        return null;
    }

    /** A camera that looks at the whole box from the front, somewhat from above and the right. */
    private static Camera framingCamera(Bounds bounds, float aspectRatio) {
        float[] centre = bounds.isEmpty() ? new float[3] : bounds.centre();
        float radius = bounds.isEmpty() ? 1 : bounds.radius();
        float distance = (float) (radius / Math.sin(Math.toRadians(FIELD_OF_VIEW_DEGREES / 2)));
        Camera camera = new Camera();
        camera.setPerspective(FIELD_OF_VIEW_DEGREES, aspectRatio, distance / 100,
                distance + 2 * radius);
        double turn = Math.toRadians(30);
        double tilt = Math.toRadians(20);
        camera.setTranslation(
                centre[0] + (float) (distance * Math.sin(turn) * Math.cos(tilt)),
                centre[1] + (float) (distance * Math.sin(tilt)),
                centre[2] + (float) (distance * Math.cos(turn) * Math.cos(tilt)));
        camera.setOrientation(30, 0, 1, 0);
        camera.postRotate(-20, 1, 0, 0);
        return camera;
    }

    /** A directional light from where the camera stands. */
    private static Light headlight(World world, Camera camera) {
        Light light = new Light();
        Transform toWorld = new Transform();
        if (camera.getTransformTo(world, toWorld)) {
            light.setTransform(toWorld);
        }
        return light;
    }
}
