package javax.microedition.m3g;

import static javax.microedition.m3g.Failures.assertIllegalArgument;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import org.junit.Test;

/** The natives of Material. */
public class MaterialTest {
    private static final int[] TARGETS = {
        Material.AMBIENT, Material.DIFFUSE, Material.EMISSIVE, Material.SPECULAR
    };

    private final Material material = new Material();

    private static int[] colorsOf(Material material) {
        int[] colors = new int[TARGETS.length];
        for (int i = 0; i < colors.length; i++) {
            colors[i] = material.getColor(TARGETS[i]);
        }
        return colors;
    }

    @Test
    public void startsWithGreyAmbientAndDiffuse() {
        assertEquals(0x00333333, material.getColor(Material.AMBIENT));
        assertEquals(0xFFCCCCCC, material.getColor(Material.DIFFUSE));
        assertEquals(0, material.getColor(Material.EMISSIVE));
        assertEquals(0, material.getColor(Material.SPECULAR));
        assertEquals(0f, material.getShininess(), 0f);
        assertFalse(material.isVertexColorTrackingEnabled());
    }

    @Test
    public void anEmptyMaskIsSilentAndChangesNothing() {
        int[] before = colorsOf(material);
        material.setColor(0, 0x12345678);
        assertArrayEquals(before, colorsOf(material));
    }

    @Test
    public void aMaskWithAnotherBitFailsAndChangesNothing() {
        int[] before = colorsOf(material);
        for (int target : new int[] {Material.AMBIENT | 1, 1, 512, 16384, -1}) {
            assertIllegalArgument(
                    "Invalid target argument.  Value is out of expected range",
                    () -> material.setColor(target, 0x12345678));
            assertArrayEquals(before, colorsOf(material));
        }
    }

    @Test
    public void aMaskSetsAllItsColorsAndIsNoneToRead() {
        material.setColor(Material.AMBIENT | Material.SPECULAR, 0x01020304);
        assertArrayEquals(
                new int[] {0x01020304, 0xFFCCCCCC, 0, 0x01020304}, colorsOf(material));
        for (int target : new int[] {Material.AMBIENT | Material.SPECULAR, 0, 1, -1}) {
            assertIllegalArgument("Invalid target argument.", () -> material.getColor(target));
        }
    }

    @Test
    public void everyShininessIsStored() {
        for (float shininess : new float[] {-1f, 1000f, 0f, Float.NaN, Float.MAX_VALUE}) {
            material.setShininess(shininess);
            assertEquals(shininess, material.getShininess(), 0f);
        }
    }

    @Test
    public void aDuplicateIsIndependent() {
        material.setColor(Material.DIFFUSE, 0x40302010);
        material.setShininess(-2f);
        material.setVertexColorTrackingEnable(true);
        Material copy = (Material) material.duplicate();
        assertArrayEquals(colorsOf(material), colorsOf(copy));
        assertEquals(-2f, copy.getShininess(), 0f);
        assertTrue(copy.isVertexColorTrackingEnabled());
        copy.setColor(Material.DIFFUSE, 0);
        copy.setVertexColorTrackingEnable(false);
        assertEquals(0x40302010, material.getColor(Material.DIFFUSE));
        assertTrue(material.isVertexColorTrackingEnabled());
    }
}
