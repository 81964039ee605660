package varnel.viewer;

import java.util.ArrayList;
import java.util.List;

/** What the command line asks for. */
final class Options {
    static final String USAGE = """
            usage: demo [FILE] [--frames N] [--time MS] [--out FILE.png]

            Shows a .m3g file (or a PNG or JPEG image) in a window and plays its animation
            until the window is closed or Ctrl-C is pressed. Without FILE: the bundled scene.

              --frames N       stop after N frames
              --time MS        show the moment MS milliseconds into the animation, standing still
              --out FILE.png   after the last frame write what the window shows;
                               without --frames: after the first frame
              --help           this text
            """;

    /** A command line that cannot be understood; the message tells what is wrong. */
    static final class BadUsage extends Exception {
        BadUsage(String message) {
            super(message);
        }
    }

    /** The file to show. */
    String file;
    /** Frames to draw, or 0 for no end. */
    int frames;
    /** The world time to show in milliseconds, or -1 to play in real time. */
    int time = -1;
    /** The picture to write, or null. */
    String out;
    boolean help;

    static Options parse(String[] arguments) throws BadUsage {
        Options options = new Options();
        List<String> words = new ArrayList<>();
        for (String argument : arguments) {
            int equals = argument.indexOf('=');
            if (argument.startsWith("--") && equals > 0) {
                words.add(argument.substring(0, equals));
                words.add(argument.substring(equals + 1));
            } else {
                words.add(argument);
            }
        }
        for (int i = 0; i < words.size(); i++) {
            String word = words.get(i);
            switch (word) {
                case "--help", "-h" -> options.help = true;
                case "--frames" -> options.frames = number(word, words, ++i, 1);
                case "--time" -> options.time = number(word, words, ++i, 0);
                case "--out" -> options.out = value(word, words, ++i);
                default -> {
                    if (word.startsWith("-")) {
                        throw new BadUsage("unknown option " + word);
                    }
                    if (options.file != null) {
                        throw new BadUsage("more than one file: " + options.file + ", " + word);
                    }
                    options.file = word;
                }
            }
        }
        if (options.file == null && !options.help) {
            throw new BadUsage("no file is named");
        }
        if (options.out != null && options.frames == 0) {
            options.frames = 1;
        }
        return options;
    }

    private static String value(String option, List<String> words, int index) throws BadUsage {
        if (index >= words.size() || words.get(index).isEmpty()) {
            throw new BadUsage(option + " needs a value");
        }
        return words.get(index);
    }

    private static int number(String option, List<String> words, int index, int least)
            throws BadUsage {
        String text = value(option, words, index);
        try {
            int number = Integer.parseInt(text);
            if (number >= least) {
                return number;
            }
        } catch (NumberFormatException e) {
            // told below with the numbers that are too small
        }
        throw new BadUsage(option + " needs a whole number of at least " + least + ", not " + text);
    }
}
