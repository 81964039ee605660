package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** The natives of PolygonMode. */
public class PolygonModeTest {
    private final PolygonMode mode = new PolygonMode();

    @Test
    public void startsWithBackCullingCounterClockwiseSmooth() {
        assertEquals(PolygonMode.CULL_BACK, mode.getCulling());
        assertEquals(PolygonMode.WINDING_CCW, mode.getWinding());
        assertEquals(PolygonMode.SHADE_SMOOTH, mode.getShading());
        assertFalse(mode.isTwoSidedLightingEnabled());
        assertFalse(mode.isLocalCameraLightingEnabled());
        assertFalse(mode.isPerspectiveCorrectionEnabled());
    }

    @Test
    public void everyCullingIsStored() {
        for (int culling : new int[] {999, PolygonMode.CULL_FRONT, PolygonMode.CULL_NONE, -1}) {
            mode.setCulling(culling);
            assertEquals(culling, mode.getCulling());
        }
    }

    @Test
    public void anUnknownWindingIsIgnored() {
        mode.setWinding(999);
        assertEquals(PolygonMode.WINDING_CCW, mode.getWinding());
        mode.setWinding(PolygonMode.WINDING_CW);
        mode.setWinding(-1);
        assertEquals(PolygonMode.WINDING_CW, mode.getWinding());
    }

    @Test
    public void anUnknownShadingIsIgnored() {
        mode.setShading(999);
        assertEquals(PolygonMode.SHADE_SMOOTH, mode.getShading());
        mode.setShading(PolygonMode.SHADE_FLAT);
        mode.setShading(166);
        assertEquals(PolygonMode.SHADE_FLAT, mode.getShading());
    }

    @Test
    public void aDuplicateIsIndependent() {
        mode.setCulling(999);
        mode.setWinding(PolygonMode.WINDING_CW);
        mode.setShading(PolygonMode.SHADE_FLAT);
        mode.setTwoSidedLightingEnable(true);
        mode.setLocalCameraLightingEnable(true);
        mode.setPerspectiveCorrectionEnable(true);
        PolygonMode copy = (PolygonMode) mode.duplicate();
        assertEquals(999, copy.getCulling());
        assertEquals(PolygonMode.WINDING_CW, copy.getWinding());
        assertEquals(PolygonMode.SHADE_FLAT, copy.getShading());
        assertTrue(copy.isTwoSidedLightingEnabled());
        assertTrue(copy.isLocalCameraLightingEnabled());
        assertTrue(copy.isPerspectiveCorrectionEnabled());
        copy.setTwoSidedLightingEnable(false);
        copy.setLocalCameraLightingEnable(false);
        copy.setPerspectiveCorrectionEnable(false);
        assertTrue(mode.isTwoSidedLightingEnabled());
        assertTrue(mode.isLocalCameraLightingEnabled());
        assertTrue(mode.isPerspectiveCorrectionEnabled());
    }
}
