package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static javax.microedition.m3g.Failures.assertNullPointer;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import org.junit.Test;

/** The natives of World. */
public class WorldTest {
    private final World world = new World();
    private final Camera camera = new Camera();
    private final Background background = new Background();

    @Test
    public void startsEmpty() {
        assertNull(world.getActiveCamera());
        assertNull(world.getBackground());
        assertEquals(0, world.getChildCount());
    }

    @Test
    public void aWorldIsNobodysChildButTakesGroups() {
        Group group = new Group();
        assertIllegalArgument("Child is a instance of World and must remain the root of the scene.",
                () -> group.addChild(world));
        world.addChild(group);
        assertSame(world, group.getParent());
    }

    @Test
    public void theActiveCameraCannotBeCleared() {
        world.setActiveCamera(camera);
        assertNullPointer("trying to setActiveCamera to null", () -> world.setActiveCamera(null));
        assertSame(camera, world.getActiveCamera());
    }

    @Test
    public void theBackgroundCanBeCleared() {
        world.setBackground(background);
        assertSame(background, world.getBackground());
        world.setBackground(null);
        assertNull(world.getBackground());
    }

    @Test
    public void referencesAreChildrenCameraAndBackground() {
        world.addChild(camera);
        world.setActiveCamera(camera);
        world.setBackground(background);
        Object3D[] references = new Object3D[3];
        assertEquals(3, world.getReferences(references));
        assertSame(camera, references[0]);
        assertSame(camera, references[1]);
        assertSame(background, references[2]);
    }

    @Test
    public void theFirstReferenceWithoutRoomDecidesTheText() {
        world.addChild(camera);
        world.setActiveCamera(camera);
        world.setBackground(background);
        String[] texts = {"Node::getReferences: maxReferences exceeded.",
            "Active camera exceeds reference count in getReferences",
            "Background exceeds reference count in getReferences"};
        for (int room = 0; room < 3; ++room) {
            Object3D[] references = new Object3D[room];
            assertIllegalArgument(texts[room],
                    () -> world.getReferencesN(world.handle, references));
        }
    }

    @Test
    public void aDuplicateHasNoActiveCamera() {
        world.addChild(camera);
        world.setActiveCamera(camera);
        world.setBackground(background);
        World copy = (World) world.duplicate();
        assertNull(copy.getActiveCamera());
        assertSame(background, copy.getBackground());
        assertEquals(1, copy.getChildCount());
        assertNotSame(camera, copy.getChild(0));
    }
}
