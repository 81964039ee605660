package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertThrows;

import org.junit.function.ThrowingRunnable;

/** Checks of exceptions by their class and their whole text. */
final class Failures {
    private Failures() {}

    /** Expects exactly this class, no subclass of it, and this text. */
    static void assertFails(Class<? extends Throwable> type, String text, ThrowingRunnable action) {
        Throwable thrown = assertThrows(type, action);
        assertEquals(type, thrown.getClass());
        assertEquals(text, thrown.getMessage());
    }

    static void assertIllegalArgument(String text, ThrowingRunnable action) {
        assertFails(IllegalArgumentException.class, text, action);
    }

    static void assertIllegalState(String text, ThrowingRunnable action) {
        assertFails(IllegalStateException.class, text, action);
    }

    static void assertOutOfBounds(String text, ThrowingRunnable action) {
        assertFails(IndexOutOfBoundsException.class, text, action);
    }

    static void assertNullPointer(String text, ThrowingRunnable action) {
        assertFails(NullPointerException.class, text, action);
    }
}
