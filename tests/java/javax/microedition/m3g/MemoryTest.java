package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.Test;

/** That a million objects leave the process's memory where it was. */
public class MemoryTest {
    private static final int PAIRS = 1_000_000;
    /** Enough for the collections of garbage, on which the freeing of some objects waits. */
    private static final int WARM_UP = 600_000;

    /** A single word that stayed of each pair would take more. */
    private static final long ALLOWED_KIB = 6 * 1024;

    /** A machine whose own memory stays as it is. */
    private static final List<String> STEADY = List.of(
            "-Xms48m", "-Xmx48m", "-XX:+AlwaysPreTouch", "-XX:+UseSerialGC", "-Xint");

    private static long residentKiB() throws IOException {
        for (String line : Files.readAllLines(Path.of("/proc/self/status"))) {
            if (line.startsWith("VmRSS:")) {
                return Long.parseLong(line.replaceAll("[^0-9]", ""));
            }
        }
        throw new IOException("no VmRSS");
    }

    /** Makes one object and ends it. */
    private interface Pair {
        void run();
    }

    private static void measure(String name, Pair pair) throws IOException {
        for (int i = 0; i < WARM_UP; i++) {
            pair.run();
        }
        System.gc();
        long before = residentKiB();
        for (int i = 0; i < PAIRS; i++) {
            pair.run();
        }
        System.gc();
        long growth = residentKiB() - before;
        System.out.println(name + ": " + growth + " KiB after " + PAIRS + " pairs");
        if (growth > ALLOWED_KIB) {
            System.exit(1);
        }
    }

    /** The pairs, each with its figure. */
    static final class Soak {
        public static void main(String[] args) throws IOException {
            Fog fog = new Fog();
            measure("Fog cells", () -> fog.destroyObject3DN(Fog.createFogN()));
            measure("Fog peers", () -> {
                Fog peer = new Fog();
                peer.destroyObject3DN(peer.handle);
            });
            Object userObject = new Object();
            measure("user objects", () -> fog.setUserObject(userObject));
            measure("Group cells", () -> fog.destroyObject3DN(Group.createGroupN()));
            measure("Transforms",
                    () -> Transform.destroyTransformN(Transform.createTransformN()));
            measure("peers of Transforms", Transform::new);
        }
    }

    @Test
    public void aMillionPairsLeaveTheMemoryWhereItWas() throws Exception {
        ChildJvm.Result result = ChildJvm.run(STEADY, Soak.class);
        System.out.print(result.out);
        assertEquals(result.toString(), 0, result.exitCode);
        assertTrue(result.toString(), result.out.contains("peers of Transforms"));
    }
}
