package javax.microedition.m3g;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.image.BufferedImage;
import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.zip.Adler32;
import java.util.zip.Deflater;
import javax.imageio.ImageIO;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Files through the natives of the loader. */
public class LoaderTest {
    private static final int ANIMATION_CONTROLLER = 1;
    private static final int ANIMATION_TRACK = 2;
    private static final int APPEARANCE = 3;
    private static final int CAMERA = 5;
    private static final int FOG = 7;
    private static final int GROUP = 9;
    private static final int IMAGE_2D = 10;
    private static final int SPRITE_3D = 18;
    private static final int TEXTURE_2D = 17;
    private static final int KEYFRAME_SEQUENCE = 19;
    private static final int VERTEX_ARRAY = 20;
    private static final int EXTERNAL_REFERENCE = 255;

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    private static M3gBytes.Fields object3D() {
        return new M3gBytes.Fields().int32(0).int32(0).int32(0);
    }

    private static M3gBytes.Fields node() {
        return object3D().bytes(0, 0, 1, 1, 255).int32(-1).bytes(0);
    }

    private static M3gBytes.Fields fog(float density) {
        return object3D().bytes(1, 2, 3, 80).float32(density);
    }

    private static M3gBytes.Fields text(String text) {
        return new M3gBytes.Fields().bytes(text.chars().toArray()).bytes(0);
    }

    private String file(M3gBytes bytes) throws IOException {
        return bytes.write(folder.newFile().toPath());
    }

    private Object3D[] load(M3gBytes bytes) throws IOException {
        return Loader.load(file(bytes));
    }

    /** The message of the IOException that this file ends in. */
    private String failure(M3gBytes bytes) throws IOException {
        String name = file(bytes);
        return assertThrows(IOException.class, () -> Loader.load(name)).getMessage();
    }

    private Path image(String format, String name) throws IOException {
        BufferedImage image = new BufferedImage(4, 2, BufferedImage.TYPE_INT_RGB);
        image.setRGB(1, 0, 0xFF8040);
        Path path = folder.getRoot().toPath().resolve(name);
        assertTrue(ImageIO.write(image, format, path.toFile()));
        return path;
    }

    private static byte[] identifierAndHeader(int major, int minor, int checksumChange) {
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        out.writeBytes(new M3gBytes.Fields()
                .bytes(0xAB, 'J', 'S', 'R', '1', '8', '4', 0xBB, 0x0D, 0x0A, 0x1A, 0x0A)
                .toByteArray());
        byte[] record = new M3gBytes.Fields().bytes(0).int32(12).bytes(major, minor, 0)
                .int32(0).int32(0).bytes(0).toByteArray();
        out.writeBytes(section(0, record, record.length, checksumChange));
        return out.toByteArray();
    }

    private static byte[] section(int scheme, byte[] stored, int length, int checksumChange) {
        byte[] body = new M3gBytes.Fields().bytes(scheme).int32(stored.length + 13).int32(length)
                .toByteArray();
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        out.writeBytes(body);
        out.writeBytes(stored);
        Adler32 sum = new Adler32();
        sum.update(out.toByteArray());
        out.writeBytes(
                new M3gBytes.Fields().int32((int) sum.getValue() + checksumChange).toByteArray());
        return out.toByteArray();
    }

    private static byte[] objectBytes(int type, M3gBytes.Fields fields) {
        byte[] data = fields.toByteArray();
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        out.writeBytes(new M3gBytes.Fields().bytes(type).int32(data.length).toByteArray());
        out.writeBytes(data);
        return out.toByteArray();
    }

    private String raw(byte[]... parts) throws IOException {
        Path path = folder.newFile().toPath();
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        for (byte[] part : parts) {
            out.writeBytes(part);
        }
        Files.write(path, out.toByteArray());
        return path.toString();
    }

    private static byte[] deflated(byte[] data) {
        Deflater deflater = new Deflater();
        deflater.setInput(data);
        deflater.finish();
        byte[] buffer = new byte[data.length + 100];
        int length = deflater.deflate(buffer);
        deflater.end();
        return Arrays.copyOf(buffer, length);
    }

    @Test
    public void twoObjectsMakeAnArrayOfThree() throws IOException {
        Object3D[] objects = load(new M3gBytes().object(FOG, fog(0.25f)).object(GROUP, node().int32(0)));
        assertEquals(3, objects.length);
        assertNull(objects[0]);
        assertEquals(0.25f, ((Fog) objects[1]).getDensity(), 0);
        assertTrue(objects[2] instanceof Group);
    }

    @Test
    public void aLoadedObjectHasOnePeer() throws IOException {
        M3gBytes bytes = new M3gBytes().object(FOG, fog(1))
                .object(APPEARANCE, object3D().bytes(0).int32(0).int32(2).int32(0).int32(0).int32(0));
        Object3D[] objects = load(bytes);
        assertSame(objects[1], ((Appearance) objects[2]).getFog());
    }

    @Test
    public void aFileOfTheHeaderAloneHasNoObjects() throws IOException {
        Object3D[] objects = Loader.load(raw(identifierAndHeader(1, 0, 0)));
        assertEquals(1, objects.length);
        assertNull(objects[0]);
    }

    @Test
    public void aWrongHeaderChecksumIsAccepted() throws IOException {
        assertEquals(1, Loader.load(raw(identifierAndHeader(1, 0, 1))).length);
    }

    @Test
    public void versionsAreRefusedByBothNumbersTogether() throws IOException {
        assertEquals(1, Loader.load(raw(identifierAndHeader(2, 0, 0))).length);
        assertEquals(1, Loader.load(raw(identifierAndHeader(1, 7, 0))).length);
        String name = raw(identifierAndHeader(2, 1, 0));
        assertEquals("M3gObjectInputStream: M3G version not correct",
                assertThrows(IOException.class, () -> Loader.load(name)).getMessage());
    }

    @Test
    public void aWrongSectionChecksumKeepsTheObjects() throws IOException {
        byte[] objects = objectBytes(FOG, fog(1));
        assertEquals(2, Loader.load(raw(identifierAndHeader(1, 0, 0),
                section(0, objects, objects.length, 1))).length);
    }

    @Test
    public void aCorruptCompressedSectionLosesItsObjects() throws IOException {
        byte[] objects = objectBytes(FOG, fog(1));
        byte[] good = deflated(objects);
        byte[] corrupt = good.clone();
        corrupt[1] ^= 1;
        Object3D[] loaded = Loader.load(raw(identifierAndHeader(1, 0, 0),
                section(1, good, objects.length, 0), section(1, corrupt, objects.length, 0),
                section(0, objects, objects.length, 0)));
        assertEquals(3, loaded.length);
    }

    @Test
    public void aMissingFileIsAnIOException() {
        assertEquals("Loader::load:  Can't load file", assertThrows(IOException.class,
                () -> Loader.load("/nowhere/at-all")).getMessage());
        assertEquals("Loader::readPNG Couldn't read PNG file", assertThrows(IOException.class,
                () -> Loader.load("/nowhere/at-all.png")).getMessage());
        assertEquals("Loader:readJPEG Couldn't read external JPEG file",
                assertThrows(IOException.class, () -> Loader.load("/nowhere/at-all.jpg"))
                        .getMessage());
    }

    @Test
    public void aFileOfAnotherKindIsAnIOException() throws IOException {
        String name = raw(new byte[] {1, 2, 3});
        assertEquals("M3gObjectInputStream::processHeader: M3G identifier incorrect",
                assertThrows(IOException.class, () -> Loader.load(name)).getMessage());
        Path png = image("png", "real.png");
        Path wrong = folder.getRoot().toPath().resolve("wrong.jpg");
        Files.copy(png, wrong);
        assertEquals("Loader::readJPEG Couldn't setup JPEG decompression library",
                assertThrows(IOException.class, () -> Loader.load(wrong.toString())).getMessage());
    }

    @Test
    public void nullNamesAndArraysAreRefused() {
        assertThrows(NullPointerException.class, () -> Loader.load((String) null));
        assertThrows(NullPointerException.class, () -> Loader.load((byte[]) null, 0));
        assertThrows(IndexOutOfBoundsException.class, () -> Loader.load(new byte[3], 3));
        assertThrows(IndexOutOfBoundsException.class, () -> Loader.load(new byte[3], -1));
    }

    @Test
    public void loadingFromMemoryIsNotThere() {
        for (int offset : new int[] {0, 2, 99, -1}) {
            assertEquals("This version of Loader::load() not implemented",
                    assertThrows(IOException.class, () -> Loader.loadN(new byte[3], offset))
                            .getMessage());
        }
        assertThrows(IOException.class, () -> Loader.load(new byte[] {1}, 0));
    }

    @Test
    public void aPngIsOneImageWhateverTheCaseOfItsName() throws IOException {
        Path png = image("png", "a.PNG");
        Object3D[] objects = Loader.load(png.toString());
        assertEquals(1, objects.length);
        Image2D image = (Image2D) objects[0];
        assertEquals(Image2D.RGB, image.getFormat());
        assertEquals(4, image.getWidth());
        assertEquals(2, image.getHeight());
        assertFalse(image.isMutable());
    }

    @Test
    public void jpegInTheMiddleOfANameIsAJpeg() throws IOException {
        Path jpeg = image("jpg", "a.jpeg.m3g");
        Object3D[] objects = Loader.load(jpeg.toString());
        assertEquals(1, objects.length);
        assertEquals(4, ((Image2D) objects[0]).getWidth());
    }

    @Test
    public void externalReferencesEndInImages() throws IOException {
        Path png = image("png", "picture.png");
        Path upper = image("jpg", "picture.JPEG");
        Path bare = image("jpg", "picture-jpeg");
        Object3D[] objects = load(new M3gBytes()
                .object(EXTERNAL_REFERENCE, text(png.toString()))
                .object(EXTERNAL_REFERENCE, text(upper.toString()))
                .object(EXTERNAL_REFERENCE, text(bare.toString())));
        assertEquals(4, objects.length);
        for (int i = 1; i < 4; i++) {
            assertEquals(4, ((Image2D) objects[i]).getWidth());
        }
    }

    @Test
    public void otherExternalReferencesEndTheLoad() throws IOException {
        assertEquals("Loader::processExternalRef Nested m3g files not supported yet",
                failure(new M3gBytes().object(EXTERNAL_REFERENCE, text("other.m3g"))));
        assertEquals("Loader::processExternalRef  External reference is not PNG or M3G",
                failure(new M3gBytes().object(EXTERNAL_REFERENCE, text("picture.gif"))));
    }

    @Test
    public void aSpriteIsSkippedAndMovesTheIndicesBehindIt() throws IOException {
        M3gBytes.Fields image = object3D().bytes(99, 1).int32(2).int32(2);
        M3gBytes.Fields texture = object3D().bytes(0, 0).int32(4).bytes(0, 0, 0)
                .bytes(227, 241, 241, 208, 210);
        M3gBytes bytes = new M3gBytes().object(IMAGE_2D, image)
                .object(SPRITE_3D, node().int32(2).int32(0).bytes(1))
                .object(FOG, fog(1)).object(FOG, fog(1)).object(TEXTURE_2D, texture);
        assertEquals("Texture2D: file loader...  invalid Image2D reference", failure(bytes));
    }

    @Test
    public void aTrackNeedsAController() throws IOException {
        M3gBytes.Fields sequence = object3D().bytes(176, 192, 0).int32(0).int32(0).int32(0).int32(1)
                .int32(1).int32(0).float32(0);
        M3gBytes.Fields controller = object3D().float32(1).float32(1).int32(0).int32(0).float32(0)
                .int32(0);
        M3gBytes.Fields track = object3D().int32(2).int32(0).int32(AnimationTrack.ALPHA);
        assertEquals("AnimationTrack:   file load... invalid AnimationController being set as "
                + "attribute", failure(new M3gBytes().object(KEYFRAME_SEQUENCE, sequence)
                        .object(ANIMATION_CONTROLLER, controller).object(ANIMATION_TRACK, track)));
    }

    @Test
    public void aCameraOfAnUnknownTypeKeepsItsState() throws IOException {
        M3gBytes.Fields camera = node().bytes(51).float32(1).float32(2).float32(3).float32(4);
        Object3D[] objects = load(new M3gBytes().object(CAMERA, camera).object(FOG, fog(1)));
        assertEquals(3, objects.length);
        assertEquals(Camera.GENERIC, ((Camera) objects[1]).getProjection((float[]) null));
    }

    @Test
    public void shortKeyframesAreSigned() throws IOException {
        M3gBytes.Fields sequence = object3D().bytes(176, 192, 2).int32(0).int32(0).int32(0).int32(1)
                .int32(1).float32(10).float32(4).int32(0).bytes(0xFF, 0xFF);
        Object3D[] objects = load(new M3gBytes().object(KEYFRAME_SEQUENCE, sequence));
        float[] value = new float[1];
        ((KeyframeSequence) objects[1]).getKeyframe(0, value);
        assertEquals(10 - 4 / 65535.0, value[0], 1e-6);
    }

    @Test
    public void byteDifferencesAreSummedUp() throws IOException {
        M3gBytes.Fields array = object3D().bytes(1, 3, 1, 2, 0).bytes(10, 20, 30, 255, 255, 255);
        Object3D[] objects = load(new M3gBytes().object(VERTEX_ARRAY, array));
        byte[] values = new byte[6];
        ((VertexArray) objects[1]).get(0, 2, values);
        assertEquals("[10, 20, 30, 9, 19, 29]", Arrays.toString(values));
    }

    @Test
    public void aMutableImageEndsAfterItsHeight() throws IOException {
        M3gBytes.Fields image = object3D().bytes(99, 1).int32(2).int32(3);
        Object3D[] objects = load(new M3gBytes().object(IMAGE_2D, image).object(FOG, fog(1)));
        assertEquals(3, objects.length);
        assertTrue(((Image2D) objects[1]).isMutable());
        assertEquals(3, ((Image2D) objects[1]).getHeight());
    }

    @Test
    public void userParametersAreRefusedTwiceAndInvisible() throws IOException {
        M3gBytes.Fields once = new M3gBytes.Fields().int32(0).int32(0).int32(1)
                .int32(5).int32(1).bytes('a');
        M3gBytes.Fields twice = new M3gBytes.Fields().int32(0).int32(0).int32(2)
                .int32(5).int32(1).bytes('a').int32(5).int32(1).bytes('b');
        Object3D[] objects =
                load(new M3gBytes().object(FOG, once.bytes(0, 0, 0, 80).float32(1)));
        assertNull(objects[1].getUserObject());
        assertEquals("Duplicated ID while reading user params.",
                failure(new M3gBytes().object(FOG, twice.bytes(0, 0, 0, 80).float32(1))));
    }

    @Test
    public void whatASetterRefusesIsANullPointerException() throws IOException {
        String name = file(new M3gBytes().object(FOG, fog(-1)));
        assertEquals("Fog.setDensity -- density < 0", assertThrows(NullPointerException.class,
                () -> Loader.load(name)).getMessage());
    }

    @Test
    public void memoryThatIsNotThereIsAnIOException() throws IOException {
        M3gBytes.Fields image = object3D().bytes(100, 1).int32(0x7FFFFFFF).int32(0x7FFFFFFF);
        assertEquals("Loader::load:  Out of memory", failure(new M3gBytes().object(IMAGE_2D, image)));
    }

    @Test
    public void twoTextureCoordinateSetsLoadFromTheStart() throws IOException {
        M3gBytes.Fields array = object3D().bytes(1, 3, 0, 1, 0).bytes(1, 2, 3);
        M3gBytes.Fields buffer = object3D().int32(-1).int32(2).float32(0).float32(0).float32(0)
                .float32(1).int32(0).int32(0).int32(2);
        for (int i = 0; i < 2; i++) {
            buffer.int32(2).float32(0).float32(0).float32(0).float32(1);
        }
        Object3D[] objects = load(new M3gBytes().object(VERTEX_ARRAY, array).object(21, buffer));
        assertNotNull(((VertexBuffer) objects[2]).getTexCoords(1, null));
    }

    /** Loads the file that is its argument. */
    public static final class LoadMain {
        public static void main(String[] arguments) throws IOException {
            Loader.load(arguments[0]);
            System.out.println("loaded");
        }
    }

    @Test
    public void aLayerOutOfRangeEndsTheProcess() throws IOException, InterruptedException {
        String name = file(new M3gBytes().object(APPEARANCE,
                object3D().bytes(64).int32(0).int32(0).int32(0).int32(0).int32(0)));
        ChildJvm.Result result = ChildJvm.run(LoadMain.class, name);
        assertNotEquals(result.toString(), 0, result.exitCode);
        assertFalse(result.toString(), result.out.contains("loaded"));
        assertTrue(result.toString(), result.err.contains("Invalid layer value"));
    }

    @Test
    public void anIndexAtTheTablesSizeMeetsTheAssertionWhereTheTestIsLoose()
            throws IOException, InterruptedException {
        String name = file(new M3gBytes().object(TEXTURE_2D, object3D().bytes(0, 0).int32(2)));
        ChildJvm.Result result = ChildJvm.run(LoadMain.class, name);
        assertNotEquals(result.toString(), 0, result.exitCode);
        assertTrue(result.toString(), result.err.contains("__n < this->size()"));
    }

    @Test
    public void theHeaderGoesToTheOutputAndUnknownTypesToTheErrorStream() throws IOException, InterruptedException {
        String name = file(new M3gBytes().object(SPRITE_3D, node()));
        ChildJvm.Result result = ChildJvm.run(LoadMain.class, name);
        assertEquals(result.toString(), 0, result.exitCode);
        assertTrue(result.toString(), result.out.contains("M3G File Version 1.0\n"
                + "HasEnternalReferences: 0\nTotalFileSize: 0\nApproximateContentSize: 0\n"
                + "AuthoringField: \n"));
        assertTrue(result.toString(), result.err.contains("Error, Unknown object type (18)\n"));
    }
}
