package javax.microedition.m3g;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.zip.Adler32;

/** Writes a small .m3g file, record by record. */
final class M3gBytes {
    private static final byte[] IDENTIFIER = {(byte) 0xAB, 'J', 'S', 'R', '1', '8', '4',
        (byte) 0xBB, 0x0D, 0x0A, 0x1A, 0x0A};

    private final ByteArrayOutputStream objects = new ByteArrayOutputStream();

    /** The fields of one record, least significant byte first. */
    static final class Fields {
        private final ByteArrayOutputStream bytes = new ByteArrayOutputStream();

        Fields bytes(int... values) {
            for (int value : values) {
                bytes.write(value);
            }
            return this;
        }

        Fields int32(int value) {
            return bytes(value, value >> 8, value >> 16, value >> 24);
        }

        Fields float32(float value) {
            return int32(Float.floatToRawIntBits(value));
        }

        byte[] toByteArray() {
            return bytes.toByteArray();
        }
    }

    M3gBytes object(int type, Fields fields) {
        byte[] data = fields.toByteArray();
        objects.writeBytes(new Fields().bytes(type).int32(data.length).toByteArray());
        objects.writeBytes(data);
        return this;
    }

    /** Writes header and one stored section, and returns the file's name. */
    String write(Path file) throws IOException {
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        out.writeBytes(IDENTIFIER);
        byte[] header = new Fields().bytes(1, 0, 0).int32(0).int32(0).bytes(0).toByteArray();
        section(out, new Fields().bytes(0).int32(header.length).toByteArray(), header);
        section(out, new byte[0], objects.toByteArray());
        Files.write(file, out.toByteArray());
        return file.toString();
    }

    private static void section(ByteArrayOutputStream out, byte[] head, byte[] body) {
        int content = head.length + body.length;
        Fields section = new Fields().bytes(0).int32(content + 13).int32(content);
        ByteArrayOutputStream whole = new ByteArrayOutputStream();
        whole.writeBytes(section.toByteArray());
        whole.writeBytes(head);
        whole.writeBytes(body);
        Adler32 sum = new Adler32();
        sum.update(whole.toByteArray());
        out.writeBytes(whole.toByteArray());
        out.writeBytes(new Fields().int32((int) sum.getValue()).toByteArray());
    }
}
