package varnel.testing;

import org.junit.runner.Description;
import org.junit.runner.JUnitCore;
import org.junit.runner.Result;
import org.junit.runner.notification.Failure;
import org.junit.runner.notification.RunListener;

/** Runs JUnit classes and ends with their counts; a failed assumption counts as skipped. */
public final class RunTests {
    private RunTests() {
    }

    /** Arguments: names of test classes. Exits 0 if no test failed and at least one ran. */
    public static void main(String[] names) throws ClassNotFoundException {
        Class<?>[] classes = new Class<?>[names.length];
        for (int i = 0; i < names.length; i++) {
            classes[i] = Class.forName(names[i]);
        }
        int[] skipped = new int[1];
        JUnitCore core = new JUnitCore();
        core.addListener(new RunListener() {
            @Override
            public void testFailure(Failure failure) {
                System.out.println("FAILED " + failure.getTestHeader());
                System.out.println(failure.getTrace());
            }

            @Override
            public void testAssumptionFailure(Failure failure) {
                skipped[0]++;
                System.out.println("SKIPPED " + failure.getTestHeader() + ": "
                        + failure.getMessage());
            }

            @Override
            public void testIgnored(Description description) {
                skipped[0]++;
                System.out.println("SKIPPED " + description.getDisplayName());
            }
        });
        Result result = core.run(classes);
        int failed = result.getFailureCount();
        int passed = result.getRunCount() - failed
                - (skipped[0] - result.getIgnoreCount());
        System.out.printf("JUnit: %d passed, %d failed, %d skipped%n", passed, failed, skipped[0]);
        System.exit(failed == 0 && result.getRunCount() > 0 ? 0 : 1);
    }
}
