package javax.microedition.m3g;

import java.io.File;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.TimeUnit;

/** Runs a main class in a virtual machine of its own, for what ends the process. */
final class ChildJvm {
    private static final int MINUTES = 5;

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

    /** Runs main of this class with the library path and the class path of this process. */
    static Result run(Class<?> main, String... arguments) throws IOException, InterruptedException {
        return runBefore("", main, arguments);
    }

    /** The same with classes of this folder, unless it is empty, in front of the class path. */
    static Result runBefore(String classes, Class<?> main, String... arguments)
            throws IOException, InterruptedException {
        List<String> command = new ArrayList<>();
        command.add(Path.of(System.getProperty("java.home"), "bin", "java").toString());
        command.add("-Xcheck:jni");
        for (String property : List.of("java.library.path", "varnel.source", "varnel.build")) {
            if (System.getProperty(property) != null) {
                command.add("-D" + property + "=" + System.getProperty(property));
            }
        }
        command.add("-cp");
        command.add((classes.isEmpty() ? "" : classes + File.pathSeparator)
                + System.getProperty("java.class.path"));
        command.add(main.getName());
        command.addAll(List.of(arguments));
        Path folder = Files.createTempDirectory("child-jvm");
        Path out = folder.resolve("out");
        Path err = folder.resolve("err");
        try {
            Process process = new ProcessBuilder(command).directory(folder.toFile())
                    .redirectOutput(out.toFile()).redirectError(err.toFile()).start();
            if (!process.waitFor(MINUTES, TimeUnit.MINUTES)) {
                process.destroyForcibly().waitFor();
                throw new IllegalStateException(main.getName() + " does not end");
            }
            return new Result(process.exitValue(), Files.readString(out), Files.readString(err));
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
