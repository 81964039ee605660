#include "engine/loader/m3g_object_input_stream.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

#include "engine/object/log.h"

namespace varnel_m3g {
namespace {

constexpr unsigned char identifier[12] = {0xAB, 0x4A, 0x53, 0x52, 0x31, 0x38,
                                          0x34, 0xBB, 0x0D, 0x0A, 0x1A, 0x0A};

constexpr char inflateInitFailed[] =
    "M3gObjectInputStream::uncompress:  Error while trying to init Zlib library.";

std::uint32_t packed(unsigned char alpha, const unsigned char* rgb) {
  return static_cast<std::uint32_t>(alpha) << 24 | static_cast<std::uint32_t>(rgb[0]) << 16 |
         static_cast<std::uint32_t>(rgb[1]) << 8 | rgb[2];
}

}  // namespace

std::int64_t M3gObjectInputStream::read(void* destination, std::int64_t count) {
  if (count <= 0) {
    return 0;
  }
  std::int64_t obtained;
  if (readingInflated) {
    obtained = std::min<std::int64_t>(count, inflatedRemaining);
    std::memcpy(destination, inflatedData.get() + inflatedPosition,
                static_cast<std::size_t>(obtained));
    inflatedPosition += static_cast<std::uint32_t>(obtained);
    inflatedRemaining -= static_cast<std::uint32_t>(obtained);
    if (inflatedRemaining == 0) {
      readingInflated = false;
      inflatedData.reset();
    }
  } else {
    obtained = readFile(destination, count);
    adler = static_cast<std::uint32_t>(::adler32_z(adler, static_cast<const Bytef*>(destination),
                                                   static_cast<z_size_t>(obtained)));
  }
  if (obtained < count) {
    std::memset(static_cast<unsigned char*>(destination) + obtained, 0,
                static_cast<std::size_t>(count - obtained));
  }
  return obtained;
}

std::int64_t M3gObjectInputStream::readFile(void* destination, std::int64_t count) {
  std::ifstream::read(static_cast<char*>(destination), count);
  return gcount();
}

unsigned char M3gObjectInputStream::readByte() {
  unsigned char value;
  read(&value, 1);
  return value;
}

bool M3gObjectInputStream::readBoolean() {
  return readByte() != 0;
}

short M3gObjectInputStream::readInt16() {
  unsigned char bytes[2];
  read(bytes, 2);
  return static_cast<short>(bytes[0] | bytes[1] << 8);
}

std::int32_t M3gObjectInputStream::readInt32() {
  if (nativeLittleEndian) {
    std::int32_t value;
    read(&value, 4);
    return value;
  }
  unsigned char bytes[4];
  read(bytes, 4);
  return static_cast<std::int32_t>(bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8 |
                                   static_cast<std::uint32_t>(bytes[2]) << 16 |
                                   static_cast<std::uint32_t>(bytes[3]) << 24);
}

std::size_t M3gObjectInputStream::readIndex() {
  return static_cast<std::uint32_t>(readInt32());
}

float M3gObjectInputStream::readFloat() {
  return std::bit_cast<float>(readInt32());
}

std::uint32_t M3gObjectInputStream::readRGB() {
  unsigned char rgb[3];
  for (unsigned char& byte : rgb) {
    byte = readByte();
  }
  return packed(0, rgb);
}

std::uint32_t M3gObjectInputStream::readRGBA() {
  unsigned char rgba[4];
  for (unsigned char& byte : rgba) {
    byte = readByte();
  }
  return packed(rgba[3], rgba);
}

float M3gObjectInputStream::readNormalisedByte() {
  return static_cast<float>(readByte() / 255.0);
}

float M3gObjectInputStream::readNormalisedShort() {
  return static_cast<float>(readInt16() / 65535.0);
}

std::array<float, 3> M3gObjectInputStream::readVector3() {
  std::array<float, 3> vector;
  for (float& element : vector) {
    element = readFloat();
  }
  return vector;
}

Matrix M3gObjectInputStream::readMatrix() {
  float values[16];
  readMatrixInto(values);
  Matrix matrix;
  matrix.setMatrix(values);
  return matrix;
}

void M3gObjectInputStream::readMatrixInto(float* destination) {
  for (int i = 0; i < 16; ++i) {
    destination[i] = readFloat();
  }
}

std::string M3gObjectInputStream::readString() {
  std::string text;
  while (const unsigned char byte = readByte()) {
    text += static_cast<char>(byte);
  }
  return text;
}

template <class Element>
std::unique_ptr<Element[]> M3gObjectInputStream::readArray(
    unsigned& count, Element (M3gObjectInputStream::*readOne)()) {
  const std::uint32_t wanted = static_cast<std::uint32_t>(readInt32());
  count = static_cast<unsigned>(std::min<std::uint64_t>(wanted, bytesLeft() / sizeof(Element)));
  std::unique_ptr<Element[]> elements;
  if (count != 0) {
    elements = std::make_unique<Element[]>(count);
    const std::uint64_t bytes = static_cast<std::uint64_t>(count) * sizeof(Element);
    if (nativeLittleEndian && (!readingInflated || bytes <= inflatedRemaining)) {
      read(elements.get(), static_cast<std::int64_t>(bytes));
    } else {
      for (unsigned i = 0; i < count; ++i) {
        elements[i] = (this->*readOne)();
      }
    }
  }
  if (count < wanted) {
    // What is left is less than an element, or was cut where the inflated section ends.
    skip(std::numeric_limits<std::uint32_t>::max());
  }
  return elements;
}

std::unique_ptr<unsigned char[]> M3gObjectInputStream::readByteArray(unsigned& count) {
  return readArray<unsigned char>(count, &M3gObjectInputStream::readByte);
}

std::unique_ptr<short[]> M3gObjectInputStream::readShortArray(unsigned& count) {
  return readArray<short>(count, &M3gObjectInputStream::readInt16);
}

std::unique_ptr<int[]> M3gObjectInputStream::readIntArray(unsigned& count) {
  return readArray<int>(count, &M3gObjectInputStream::readInt32);
}

std::unique_ptr<float[]> M3gObjectInputStream::readFloatArray(unsigned& count) {
  return readArray<float>(count, &M3gObjectInputStream::readFloat);
}

void M3gObjectInputStream::readInt16s(short* values, std::size_t count) {
  if (nativeLittleEndian && (!readingInflated || count <= inflatedRemaining / 2)) {
    read(values, static_cast<std::int64_t>(2 * count));
    return;
  }
  std::size_t i = 0;
  for (; i < count && (readingInflated || good()); ++i) {
    values[i] = readInt16();
  }
  std::fill(values + i, values + count, short(0));
}

void M3gObjectInputStream::skip(std::uint32_t count) {
  unsigned char passed[4096];
  while (count != 0) {
    const std::int64_t obtained = read(passed, std::min<std::int64_t>(count, sizeof(passed)));
    if (obtained == 0) {
      return;
    }
    count -= static_cast<std::uint32_t>(obtained);
  }
}

void M3gObjectInputStream::findFileSize() {
  if (!fileSizeKnown) {
    const pos_type position = tellg();
    seekg(0, std::ios::end);
    fileSize = tellg();
    seekg(position);
    fileSizeKnown = true;
  }
}

std::int64_t M3gObjectInputStream::remaining() {
  findFileSize();
  return fileSize - static_cast<std::int64_t>(tellg()) + 1;
}

std::uint64_t M3gObjectInputStream::bytesLeft() {
  std::uint64_t left = readingInflated ? inflatedRemaining : 0;
  if (good()) {
    left += static_cast<std::uint64_t>(std::max<std::int64_t>(remaining() - 1, 0));
  }
  return left;
}

void M3gObjectInputStream::requireRest(std::uint64_t count, std::uint64_t elementSize) {
  if (count > bytesLeft() / elementSize) {
    throw std::runtime_error("M3gObjectInputStream: count exceeds the rest of the file");
  }
}

void M3gObjectInputStream::claimUnbacked(std::uint64_t bytes) {
  findFileSize();
  const std::uint64_t limit =
      unbackedMemoryBase +
      unbackedMemoryPerByte * static_cast<std::uint64_t>(std::max<std::int64_t>(fileSize, 0));
  if (bytes > limit - unbackedMemory) {
    throw std::bad_alloc();
  }
  unbackedMemory += bytes;
}

void M3gObjectInputStream::processHeader() {
  unsigned char start[sizeof(identifier)] = {};
  readFile(start, sizeof(start));
  if (std::memcmp(start, identifier, sizeof(identifier)) != 0) {
    throw std::runtime_error("M3gObjectInputStream::processHeader: M3G identifier incorrect");
  }
  if (readByte() != 0) {
    throw std::runtime_error(
        "M3gObjectInputStream::processHeader: Header compression scheme incorrect");
  }
  readInt32();  // TotalSectionLength
  readInt32();  // UncompressedLength
  if (readByte() != 0) {
    throw std::runtime_error("M3gObjectInputStream: Invalid object type for file header");
  }
  readInt32();  // Length
  versionMajor = readByte();
  versionMinor = readByte();
  if (versionMajor != 1 && versionMinor != 0) {
    throw std::runtime_error("M3gObjectInputStream: M3G version not correct");
  }
  hasExternalReferences = readBoolean();
  totalFileSize = static_cast<std::uint32_t>(readInt32());
  approximateContentSize = static_cast<std::uint32_t>(readInt32());
  authoringField = readString();
  readInt32();  // Checksum, which is not verified
}

void M3gObjectInputStream::dumpHeader() const {
  logf("M3G File Version %u.%d", versionMajor, versionMinor);
  logf("HasEnternalReferences: %u", hasExternalReferences);
  logf("TotalFileSize: %u", totalFileSize);
  logf("ApproximateContentSize: %u", approximateContentSize);
  logf("AuthoringField: %s", authoringField.c_str());
}

std::uint32_t M3gObjectInputStream::readStored(std::unique_ptr<unsigned char[]>& data,
                                               std::int64_t length) {
  const std::int64_t left = static_cast<std::int64_t>(bytesLeft());
  const std::int64_t held = std::clamp<std::int64_t>(length, 0, left);
  data = std::make_unique<unsigned char[]>(static_cast<std::size_t>(held));
  const std::int64_t obtained = read(data.get(), held);
  if (length > held) {
    readByte();  // The end of the file has been met.
  }
  return static_cast<std::uint32_t>(obtained);
}

std::int64_t M3gObjectInputStream::uncompress(const unsigned char* input, std::uint32_t inputLength,
                                              std::uint32_t outputLength) {
  inflatedData.reset();
  inflater.zalloc = nullptr;
  inflater.zfree = nullptr;
  inflater.opaque = nullptr;
  inflater.avail_in = 0;
  inflater.next_in = nullptr;
  if (inflateInit(&inflater) != Z_OK) {
    throw std::runtime_error(inflateInitFailed);
  }
  inflater.next_in = const_cast<Bytef*>(input);
  inflater.avail_in = inputLength;

  // The output length is the file's claim: the buffer follows what the input really yields.
  std::uint32_t capacity = 0;
  std::uint32_t produced = 0;
  int result;
  do {
    const std::uint32_t grown = static_cast<std::uint32_t>(std::min<std::uint64_t>(
        outputLength, std::max<std::uint64_t>(std::uint64_t(capacity) * 2, 16384)));
    std::unique_ptr<unsigned char[]> larger(
        new (std::nothrow) unsigned char[std::size_t(grown) + 1]);
    if (larger == nullptr) {
      inflateEnd(&inflater);
      throw std::runtime_error(inflateInitFailed);
    }
    if (produced != 0) {
      std::memcpy(larger.get(), inflatedData.get(), produced);
    }
    inflatedData = std::move(larger);
    capacity = grown;
    inflater.next_out = inflatedData.get() + produced;
    inflater.avail_out = capacity - produced;
    result = inflate(&inflater, Z_FINISH);
    produced = capacity - inflater.avail_out;
  } while (inflater.avail_out == 0 && capacity < outputLength &&
           (result == Z_OK || result == Z_BUF_ERROR));
  inflateEnd(&inflater);

  if (result == Z_NEED_DICT) {
    result = Z_DATA_ERROR;
  }
  if (result == Z_DATA_ERROR || result == Z_MEM_ERROR) {
    inflatedData.reset();
    return result;
  }
  inflatedRemaining = produced;
  inflatedPosition = 0;
  readingInflated = produced != 0;
  return produced;
}

}  // namespace varnel_m3g
