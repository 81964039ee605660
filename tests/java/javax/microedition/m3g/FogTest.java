package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertSame;

import org.junit.Test;

/** The natives of Fog. */
public class FogTest {
    private final Fog fog = new Fog();

    @Test
    public void startsLinearFromZeroToOne() {
        assertEquals(Fog.LINEAR, fog.getMode());
        assertEquals(1f, fog.getDensity(), 0f);
        assertEquals(0f, fog.getNearDistance(), 0f);
        assertEquals(1f, fog.getFarDistance(), 0f);
        assertEquals(0, fog.getColor());
    }

    @Test
    public void aNegativeDensityFailsAndChangesNothing() {
        fog.setDensity(2f);
        for (float density : new float[] {-0.5f, -Float.MIN_VALUE, Float.NEGATIVE_INFINITY}) {
            assertIllegalArgument("Fog.setDensity -- density < 0", () -> fog.setDensity(density));
            assertEquals(2f, fog.getDensity(), 0f);
        }
    }

    @Test
    public void zeroAndNegativeZeroAndNaNAreDensities() {
        for (float density : new float[] {0f, -0f, Float.NaN, Float.MAX_VALUE}) {
            fog.setDensity(density);
            assertEquals(Float.floatToIntBits(density), Float.floatToIntBits(fog.getDensity()));
        }
    }

    @Test
    public void everyModeIsStored() {
        for (int mode : new int[] {0, Fog.EXPONENTIAL, Fog.LINEAR, -1, Integer.MAX_VALUE}) {
            fog.setMode(mode);
            assertEquals(mode, fog.getMode());
        }
    }

    @Test
    public void theColorReadsBackAsGiven() {
        for (int color : new int[] {0x12345678, -1, Integer.MIN_VALUE, 0}) {
            fog.setColor(color);
            assertEquals(color, fog.getColor());
        }
    }

    @Test
    public void nearMayLieBeyondFar() {
        fog.setLinear(10f, 5f);
        assertEquals(10f, fog.getNearDistance(), 0f);
        assertEquals(5f, fog.getFarDistance(), 0f);
        fog.setLinear(Float.NaN, Float.NEGATIVE_INFINITY);
        assertEquals(Float.NaN, fog.getNearDistance(), 0f);
        assertEquals(Float.NEGATIVE_INFINITY, fog.getFarDistance(), 0f);
    }

    @Test
    public void aDuplicateIsIndependent() {
        fog.setMode(Fog.EXPONENTIAL);
        fog.setDensity(3f);
        fog.setColor(0x112233);
        fog.setLinear(4f, 5f);
        Object user = new Object();
        fog.setUserObject(user);
        Fog copy = (Fog) fog.duplicate();
        assertNotSame(fog, copy);
        assertEquals(Fog.EXPONENTIAL, copy.getMode());
        assertEquals(3f, copy.getDensity(), 0f);
        assertEquals(0x112233, copy.getColor());
        assertEquals(4f, copy.getNearDistance(), 0f);
        assertEquals(5f, copy.getFarDistance(), 0f);
        assertSame(user, copy.getUserObject());
        copy.setColor(0);
        copy.setUserID(7);
        assertEquals(0x112233, fog.getColor());
        assertEquals(0, fog.getUserID());
    }
}
