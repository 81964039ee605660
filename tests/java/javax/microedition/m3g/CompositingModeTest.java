package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** The natives of CompositingMode. */
public class CompositingModeTest {
    private final CompositingMode mode = new CompositingMode();

    @Test
    public void startsReplacingWithEverythingEnabled() {
        assertEquals(CompositingMode.REPLACE, mode.getBlending());
        assertEquals(0f, mode.getAlphaThreshold(), 0f);
        assertEquals(0f, mode.getDepthOffsetFactor(), 0f);
        assertEquals(0f, mode.getDepthOffsetUnits(), 0f);
        assertTrue(mode.isAlphaWriteEnabled());
        assertTrue(mode.isColorWriteEnabled());
        assertTrue(mode.isDepthTestEnabled());
        assertTrue(mode.isDepthWriteEnabled());
    }

    @Test
    public void everyBlendingIsStored() {
        for (int blending : new int[] {0, 64, 65, 66, 67, 68, 69, -1}) {
            mode.setBlending(blending);
            assertEquals(blending, mode.getBlending());
        }
    }

    @Test
    public void aThresholdOutsideZeroToOneFailsAndChangesNothing() {
        mode.setAlphaThreshold(0.25f);
        for (float threshold : new float[] {-0.1f, 1.1f, Float.NaN, Float.POSITIVE_INFINITY}) {
            assertIllegalArgument(
                    "CompositingMode.setAlphaThreshold -- threshold value out of range [0  1]",
                    () -> mode.setAlphaThreshold(threshold));
            assertEquals(0.25f, mode.getAlphaThreshold(), 0f);
        }
        mode.setAlphaThreshold(0f);
        mode.setAlphaThreshold(1f);
        assertEquals(1f, mode.getAlphaThreshold(), 0f);
    }

    @Test
    public void theDepthOffsetIsStoredFactorFirst() {
        mode.setDepthOffset(0f, 1f);
        assertEquals(0f, mode.getDepthOffsetFactor(), 0f);
        assertEquals(1f, mode.getDepthOffsetUnits(), 0f);
        mode.setDepthOffset(Float.NaN, Float.NEGATIVE_INFINITY);
        assertEquals(Float.NaN, mode.getDepthOffsetFactor(), 0f);
        assertEquals(Float.NEGATIVE_INFINITY, mode.getDepthOffsetUnits(), 0f);
    }

    @Test
    public void eachFlagStandsAlone() {
        mode.setAlphaWriteEnable(false);
        assertFalse(mode.isAlphaWriteEnabled());
        assertTrue(mode.isColorWriteEnabled());
        mode.setColorWriteEnable(false);
        assertFalse(mode.isColorWriteEnabled());
        assertTrue(mode.isDepthTestEnabled());
        mode.setDepthTestEnable(false);
        assertFalse(mode.isDepthTestEnabled());
        assertTrue(mode.isDepthWriteEnabled());
        mode.setDepthWriteEnable(false);
        mode.setAlphaWriteEnable(true);
        assertFalse(mode.isDepthWriteEnabled());
        assertTrue(mode.isAlphaWriteEnabled());
    }

    @Test
    public void aDuplicateIsIndependent() {
        mode.setBlending(0);
        mode.setAlphaThreshold(0.5f);
        mode.setDepthOffset(1f, 2f);
        mode.setColorWriteEnable(false);
        CompositingMode copy = (CompositingMode) mode.duplicate();
        assertEquals(0, copy.getBlending());
        assertEquals(0.5f, copy.getAlphaThreshold(), 0f);
        assertEquals(1f, copy.getDepthOffsetFactor(), 0f);
        assertEquals(2f, copy.getDepthOffsetUnits(), 0f);
        assertFalse(copy.isColorWriteEnabled());
        copy.setBlending(64);
        assertEquals(0, mode.getBlending());
    }
}
