package varnel.viewer;

import java.io.File;
import java.io.IOException;
import javax.microedition.m3g.Graphics3D;
import javax.microedition.m3g.Loader;
import javax.microedition.m3g.Object3D;
import javax.microedition.m3g.World;

/** Shows a .m3g file in a window and plays its animation. */
public final class Viewer {
    private static final float WINDOW_ASPECT_RATIO = 640f / 480f;
    private static final long FRAME_NANOSECONDS = 1_000_000_000L / 60;

    /** Exit codes: as usual on the command line. */
    private static final int FAILURE = 1;
    private static final int BAD_USAGE = 2;

    private final Options options;
    private final Graphics3D graphics = Graphics3D.getInstance();

    private Viewer(Options options) {
        this.options = options;
    }

    /** Arguments: see {@link Options#USAGE}. */
    public static void main(String[] arguments) {
        Options options;
        try {
            options = Options.parse(arguments);
        } catch (Options.BadUsage e) {
            System.err.println("viewer: " + e.getMessage());
            System.err.print(Options.USAGE);
            System.exit(BAD_USAGE);
            return;
        }
        if (options.help) {
            System.out.print(Options.USAGE);
            return;
        }
        try {
            new Viewer(options).run();
        } catch (Failure e) {
            System.err.println("viewer: " + e.getMessage());
            System.exit(FAILURE);
        } catch (InterruptedException e) {
            System.exit(FAILURE);
        }
    }

    /** What ends the viewer with an error line. */
    private static final class Failure extends Exception {
        Failure(String message) {
            super(message);
        }
    }

    private void run() throws Failure, InterruptedException {
        if (Graphics3D.getProperties().isEmpty()) {
            throw new Failure("no OpenGL on the display \"" + displayName() + "\"");
        }
        World world = Scene.of(load(), WINDOW_ASPECT_RATIO);
        if (world == null) {
            throw new Failure(options.file + ": holds nothing to show");
        }
        play(world);
    }

    private static String displayName() {
        String name = System.getenv("DISPLAY");
        return name == null ? "" : name;
    }

    private Object3D[] load() throws Failure {
        if (!new File(options.file).canRead()) {
            throw new Failure(options.file + ": cannot be read");
        }
        try {
            return Loader.load(options.file);
        } catch (IOException | RuntimeException e) {
            throw new Failure(options.file + ": " + e.getMessage());
        }
    }

    private void play(World world) throws Failure, InterruptedException {
        long start = System.nanoTime();
        for (int frame = 0; options.frames == 0 || frame < options.frames; frame++) {
            long frameStart = System.nanoTime();
            animate(world, frameStart - start);
            if (!draw(world, frame == 0)) {
                return;
            }
            boolean last = frame + 1 == options.frames;
            if (!last) {
                pause(frameStart + FRAME_NANOSECONDS - System.nanoTime());
            }
        }
        if (options.out != null) {
            capture();
        }
    }

    private void animate(World world, long elapsedNanoseconds) throws Failure {
        int time = options.time >= 0 ? options.time : (int) (elapsedNanoseconds / 1_000_000);
        try {
            world.animate(time);
        } catch (RuntimeException e) {
            throw new Failure(options.file + ": " + e.getMessage());
        }
    }

    /** Draws one frame; false if the window has been closed. */
    private boolean draw(World world, boolean first) throws Failure {
        try {
            graphics.bindTarget(this);
        } catch (IllegalArgumentException e) {
            if (first) {
                throw new Failure("no window: " + e.getMessage());
            }
            return false;
        }
        try {
            graphics.render(world);
        } catch (RuntimeException e) {
            throw new Failure(options.file + ": " + e.getMessage());
        } finally {
            graphics.releaseTarget();
        }
        return true;
    }

    private static void pause(long nanoseconds) throws InterruptedException {
        if (nanoseconds > 0) {
            Thread.sleep(nanoseconds / 1_000_000, (int) (nanoseconds % 1_000_000));
        }
    }

    /** Lets the capture program write what the window shows on the X server. */
    private void capture() throws Failure, InterruptedException {
        String program = System.getProperty("varnel.capture", "varnel-capture");
        String process = Long.toString(ProcessHandle.current().pid());
        try {
            int status = new ProcessBuilder(program, "--pid", process, options.out)
                    .inheritIO().start().waitFor();
            if (status != 0) {
                throw new Failure(options.out + ": the window was not written");
            }
        } catch (IOException e) {
            throw new Failure("cannot run " + program + ": " + e.getMessage());
        }
    }
}
