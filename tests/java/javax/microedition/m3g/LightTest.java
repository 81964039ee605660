package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static org.junit.Assert.assertEquals;

import org.junit.Test;

/** The natives of Light. */
public class LightTest {
    private final Light light = new Light();

    @Test
    public void startsDirectionalAndWhite() {
        assertEquals(Light.DIRECTIONAL, light.getMode());
        assertEquals(0xFFFFFF, light.getColor());
        assertEquals(1f, light.getIntensity(), 0f);
        assertEquals(1f, light.getConstantAttenuation(), 0f);
        assertEquals(0f, light.getLinearAttenuation(), 0f);
        assertEquals(0f, light.getQuadraticAttenuation(), 0f);
        assertEquals(45f, light.getSpotAngle(), 0f);
        assertEquals(0f, light.getSpotExponent(), 0f);
    }

    @Test
    public void threeZerosAreNoAttenuation() {
        assertIllegalArgument("Invalid Attenuation values - all are zero.",
                () -> light.setAttenuation(0, 0, 0));
    }

    @Test
    public void negativeAttenuationsFail() {
        String text = "Invalid Attenuation value - negative values not allowed.";
        assertIllegalArgument(text, () -> light.setAttenuation(-1, 0, 0));
        assertIllegalArgument(text, () -> light.setAttenuation(1, -1, 0));
        assertIllegalArgument(text, () -> light.setAttenuation(1, 0, -1));
        assertEquals(1f, light.getConstantAttenuation(), 0f);
    }

    @Test
    public void spotAnglesReachFromZeroToNinety() {
        light.setSpotAngle(90);
        light.setSpotAngle(0);
        String text = "Invalid spotlight angle -- value out of range.";
        assertIllegalArgument(text, () -> light.setSpotAngle(90.1f));
        assertIllegalArgument(text, () -> light.setSpotAngle(-0.1f));
        assertEquals(0f, light.getSpotAngle(), 0f);
    }

    @Test
    public void spotExponentsReachFromZeroTo128() {
        light.setSpotExponent(0);
        light.setSpotExponent(128);
        String text = "Invalid spotlight exponent -- value out of range.";
        assertIllegalArgument(text, () -> light.setSpotExponent(128.1f));
        assertIllegalArgument(text, () -> light.setSpotExponent(-0.1f));
        assertEquals(128f, light.getSpotExponent(), 0f);
    }

    @Test
    public void intensityAndColorAreKeptAsGiven() {
        light.setIntensity(-2);
        light.setColor(0x80123456);
        assertEquals(-2f, light.getIntensity(), 0f);
        assertEquals(0x80123456, light.getColor());
    }

    @Test
    public void anyModeIsStored() {
        light.setMode(200);
        assertEquals(200, light.getMode());
        light.setMode(Light.SPOT);
        assertEquals(Light.SPOT, light.getMode());
    }

    @Test
    public void aDuplicateHasTheSameSettings() {
        light.setMode(Light.OMNI);
        light.setColor(0x123456);
        light.setIntensity(3);
        light.setAttenuation(0.5f, 0.25f, 2);
        light.setSpotAngle(30);
        light.setSpotExponent(5);
        Light copy = (Light) light.duplicate();
        assertEquals(Light.OMNI, copy.getMode());
        assertEquals(0x123456, copy.getColor());
        assertEquals(3f, copy.getIntensity(), 0f);
        assertEquals(0.5f, copy.getConstantAttenuation(), 0f);
        assertEquals(0.25f, copy.getLinearAttenuation(), 0f);
        assertEquals(2f, copy.getQuadraticAttenuation(), 0f);
        assertEquals(30f, copy.getSpotAngle(), 0f);
        assertEquals(5f, copy.getSpotExponent(), 0f);
    }
}
