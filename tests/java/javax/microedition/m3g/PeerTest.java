package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.nio.file.Path;
import javax.tools.JavaCompiler;
import javax.tools.ToolProvider;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Which Java object stands for an engine object. */
public class PeerTest {
    private static final int FOG = 7;
    private static final int LINEAR = 81;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    @Test
    public void aChildComesBackAsTheSameObject() {
        Group group = new Group();
        Group child = new Group();
        group.addChild(child);
        assertSame(child, group.getChild(0));
        assertSame(child, group.getChild(0));
    }

    @Test
    public void anObjectWithoutAPeerGetsOneThatRegistersItself() {
        Appearance appearance = new Appearance();
        long cell = Fog.createFogN();
        appearance.setFogN(appearance.handle, cell);
        Fog fog = appearance.getFog();
        assertNotEquals(cell, fog.handle);
        assertSame(fog, appearance.getFog());
        fog.destroyObject3DN(cell);
        assertSame(fog, appearance.getFog());
    }

    @Test
    public void aNewBackReferenceReplacesTheFormerOne() {
        Appearance appearance = new Appearance();
        Fog first = new Fog();
        appearance.setFog(first);
        Fog second = new Fog();
        second.setBackReference(first.handle);
        assertSame(second, appearance.getFog());
    }

    @Test
    public void everyObjectOfAFileHasItsPeer() throws Exception {
        M3gBytes bytes = new M3gBytes();
        for (int i = 0; i < 3; i++) {
            bytes.object(FOG, new M3gBytes.Fields().int32(i).int32(0).int32(0).bytes(1, 2, 3)
                    .bytes(LINEAR).float32(1).float32(i + 2));
        }
        Path file = folder.getRoot().toPath().resolve("fogs.m3g");
        Object3D[] objects = Loader.load(bytes.write(file));
        assertEquals(4, objects.length);
        assertNull(objects[0]);
        Appearance appearance = new Appearance();
        for (int i = 0; i < 3; i++) {
            Fog fog = (Fog) objects[i + 1];
            assertEquals(i, fog.getUserID());
            assertEquals(i + 2, fog.getFarDistance(), 0);
            appearance.setFog(fog);
            assertSame(fog, appearance.getFog());
        }
    }

    /** Asks for one child twice and tells whether peers and cells are the same. */
    static final class AskTwice {
        public static void main(String[] args) {
            Group group = new Group();
            Group child = new Group();
            group.addChild(child);
            Node first = group.getChild(0);
            Node second = group.getChild(0);
            System.out.println("same object: " + (first == second) + ", same cell: "
                    + (first.handle == second.handle) + ", own: " + (first == child));
            first.setScope(77);
            System.out.println("same node: " + (second.getScope() == 77));
        }
    }

    @Test
    public void peersThatRegisterThemselvesAreFoundAgain() throws Exception {
        ChildJvm.Result result = ChildJvm.run(AskTwice.class);
        assertTrue(result.toString(),
                result.out.contains("same object: true, same cell: true, own: true"));
    }

    @Test
    public void peersThatDoNotRegisterThemselvesAreNewEachTime() throws Exception {
        Path source = Path.of(System.getProperty("varnel.source"),
                "java/src/javax/microedition/m3g/Object3D.java");
        String text = Files.readString(source);
        String changed = text.replace("        setBackReference(handle);\n", "");
        assertNotEquals(text, changed);
        Path classes = folder.newFolder("classes").toPath();
        Path copy = classes.resolve("Object3D.java");
        Files.writeString(copy, changed);
        JavaCompiler compiler = ToolProvider.getSystemJavaCompiler();
        assertEquals(0, compiler.run(null, null, null, "-cp",
                System.getProperty("java.class.path"), "-d", classes.toString(),
                copy.toString()));
        ChildJvm.Result result = ChildJvm.runBefore(classes.toString(), AskTwice.class);
        assertTrue(result.toString(),
                result.out.contains("same object: false, same cell: false, own: false"));
        assertTrue(result.toString(), result.out.contains("same node: true"));
    }
}
