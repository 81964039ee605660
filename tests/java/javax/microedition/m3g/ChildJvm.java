package javax.microedition.m3g;

import java.io.File;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.TimeUnit;
import java.util.regex.Pattern;

/** Runs a main class in a virtual machine of its own, for what ends the process. */
final class ChildJvm {
    private static final int MINUTES = 5;

    /** What -Xcheck:jni writes, the same as fails the tests of this process. */
    private static final Pattern COMPLAINT =
            Pattern.compile("(WARNING|FATAL ERROR) in native method|WARNING: JNI");

    /** How a child ended and what it wrote. */
    static final class Result {
        final int exitCode;
        final String out;
        final String err;

        Result(int exitCode, String out, String err) {
            this.exitCode = exitCode;
            this.out = out;
            this.err = err;
        }

        @Override
        public String toString() {
            return "exit code " + exitCode + "\nstdout:\n" + out + "\nstderr:\n" + err;
        }
    }

    private ChildJvm() {}

    /**
     * Runs main of this class with the library path and the class path of this process. A complaint
     * of the virtual machine about a use of JNI is an AssertionError.
     */
    static Result run(Class<?> main, String... arguments) throws IOException, InterruptedException {
        return run(List.of(), main, arguments);
    }

    /** The same with further options for the virtual machine. */
    static Result run(List<String> options, Class<?> main, String... arguments)
            throws IOException, InterruptedException {
        return run(options, "", true, main, arguments);
    }

    /** The same where there is no display. */
    static Result runWithoutDisplay(Class<?> main, String... arguments)
            throws IOException, InterruptedException {
        return run(List.of(), "", false, main, arguments);
    }

    /** The same with classes of this folder in front of the class path. */
    static Result runBefore(String classes, Class<?> main, String... arguments)
            throws IOException, InterruptedException {
        return run(List.of(), classes + File.pathSeparator, true, main, arguments);
    }

    private static Result run(List<String> options, String classes, boolean display,
            Class<?> main, String... arguments) throws IOException, InterruptedException {
        List<String> command = new ArrayList<>();
        command.add(Path.of(System.getProperty("java.home"), "bin", "java").toString());
        command.add("-Xcheck:jni");
        command.addAll(options);
        for (String property : List.of("java.library.path", "varnel.source", "varnel.build")) {
            if (System.getProperty(property) != null) {
                command.add("-D" + property + "=" + System.getProperty(property));
            }
        }
        command.add("-cp");
        command.add(classes + System.getProperty("java.class.path"));
        command.add(main.getName());
        command.addAll(List.of(arguments));
        Path folder = Files.createTempDirectory("child-jvm");
        Path out = folder.resolve("out");
        Path err = folder.resolve("err");
        try {
            ProcessBuilder builder = new ProcessBuilder(command).directory(folder.toFile())
                    .redirectOutput(out.toFile()).redirectError(err.toFile());
            if (!display) {
                builder.environment().remove("DISPLAY");
            }
            Process process = builder.start();
            if (!process.waitFor(MINUTES, TimeUnit.MINUTES)) {
                process.destroyForcibly().waitFor();
                throw new IllegalStateException(main.getName() + " does not end");
            }
            Result result =
                    new Result(process.exitValue(), Files.readString(out), Files.readString(err));
            if (COMPLAINT.matcher(result.out + result.err).find()) {
                throw new AssertionError(result.toString());
            }
            return result;
        } finally {
            try (var files = Files.list(folder)) {
                for (Path file : (Iterable<Path>) files::iterator) {
                    Files.delete(file);
                }
            }
            Files.delete(folder);
        }
    }
}
