#include <cstdint>
#include <iostream>
#include <memory>

#include "engine/loader/loader.h"
#include "engine/loader/m3g_object_input_stream.h"
#include "engine/object/object3d.h"

namespace varnel_m3g {

int Loader::readSection(M3gObjectInputStream& stream, ObjectTable& objects) {
  // Bytes of a section around its objects: scheme, two lengths and the checksum.
  constexpr std::int64_t overhead = 13;

  stream.resetChecksum();
  const unsigned char compressionScheme = stream.readByte();
  if (!stream.good()) {
    return 0;
  }
  const std::int64_t totalSectionLength = static_cast<std::uint32_t>(stream.readInt32());
  const std::uint32_t uncompressedLength = static_cast<std::uint32_t>(stream.readInt32());
  const std::int64_t endMark = stream.remaining() - totalSectionLength + overhead;

  if (compressionScheme == 0) {
    while (stream.good() && stream.remaining() > endMark) {
      appendObject(stream, objects);
    }
  } else if (compressionScheme == 1) {
    std::unique_ptr<unsigned char[]> stored;
    const std::uint32_t length = stream.readStored(stored, totalSectionLength - overhead);
    const bool inflated = stream.uncompress(stored.get(), length, uncompressedLength) != 0;
    stored.reset();
    while (inflated && stream.isInflating()) {
      appendObject(stream, objects);
    }
  } else {
    return unknownCompressionScheme;
  }

  const std::uint32_t computed = stream.checksum();
  const std::uint32_t fileChecksum = static_cast<std::uint32_t>(stream.readInt32());
  if (fileChecksum != computed) {
    std::cout << "Error in parsing M3G file." << std::endl
              << "FileChecksum   = " << fileChecksum << std::endl
              << "Computed value = " << computed << std::endl;
    return checksumMismatch;
  }
  return 0;
}

void Loader::appendObject(M3gObjectInputStream& stream, ObjectTable& objects) {
  boost::shared_ptr<Object3D> object = readObject(stream, objects);
  if (object) {
    objects.push_back(object);
  }
}

}  // namespace varnel_m3g
