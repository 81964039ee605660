#ifndef VARNEL_ENGINE_LOADER_M3G_OBJECT_INPUT_STREAM_H
#define VARNEL_ENGINE_LOADER_M3G_OBJECT_INPUT_STREAM_H

#include <zlib.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>

#include "engine/math/matrix.h"

namespace varnel_m3g {

/// The typed reader of one .m3g file, alive for one load: it checks the file's header, sums what it
/// reads and reads inflated sections from memory as if they stood in the file.
///
/// All numbers are little-endian. No read fails at the end of the data: what the file does not hold
/// is read as zeros, and good() is false from then on. This class owns every bound of a load; see
/// bytesLeft(), requireRest() and the array reads.
class M3gObjectInputStream : public std::ifstream {
 public:
  /// Bytes that a load may take for objects without data in the file to fill them, whatever the
  /// file's size, and what each byte of the file adds to it.
  static constexpr std::uint64_t unbackedMemoryBase = 64u << 20;
  static constexpr std::uint64_t unbackedMemoryPerByte = 64;

  M3gObjectInputStream() = default;

  /// Copies up to `count` bytes to `destination` and clears the rest of it. Reads from the inflated
  /// section while there is one, and does not go on in the file within one call. Returns the number
  /// of bytes obtained.
  std::int64_t read(void* destination, std::int64_t count);

  unsigned char readByte();
  /// True for any byte but 0.
  bool readBoolean();
  short readInt16();
  std::int32_t readInt32();
  /// A 32-bit number as a position in the object table; negative ones are above every size.
  std::size_t readIndex();
  float readFloat();
  /// 0x00RRGGBB.
  std::uint32_t readRGB();
  /// 0xAARRGGBB.
  std::uint32_t readRGBA();
  /// 0..1 in steps of 1/255.
  float readNormalisedByte();
  /// A signed 16-bit value divided by 65535, so -0.5..0.5.
  float readNormalisedShort();
  /// x, y, z.
  std::array<float, 3> readVector3();
  /// 16 floats in the file's row-major order.
  Matrix readMatrix();
  /// The same into `destination`, which has room for 16 floats.
  void readMatrixInto(float* destination);
  /// The bytes before the next zero byte, or before the end of the data.
  std::string readString();

  /// The array reads take a 32-bit count and that many elements. `count` becomes the number of
  /// elements obtained: a count that the rest of the file cannot hold is cut to what it holds, and
  /// the file is then at its end. With no element the result is null.
  std::unique_ptr<unsigned char[]> readByteArray(unsigned& count);
  std::unique_ptr<short[]> readShortArray(unsigned& count);
  std::unique_ptr<int[]> readIntArray(unsigned& count);
  std::unique_ptr<float[]> readFloatArray(unsigned& count);

  /// Reads `count` 16-bit values into `values`, which has room for them; those that the file does
  /// not hold become 0, at no cost per value.
  void readInt16s(short* values, std::size_t count);

  /// Passes over `count` bytes, or to the end of the file.
  void skip(std::uint32_t count);

  /// One more than the bytes from the reading position to the end of the file, whether or not an
  /// inflated section is being read; the ends of stored sections are computed with it.
  std::int64_t remaining();

  /// Bytes that reads can still obtain: those of the inflated section and the rest of the file.
  std::uint64_t bytesLeft();

  /// Throws std::runtime_error unless the rest of the file can hold `count` elements of
  /// `elementSize` bytes, so that nothing is allocated for a count that cannot be meant.
  void requireRest(std::uint64_t count, std::uint64_t elementSize);

  /// Counts `bytes` of an object's store that no data in the file fills. Throws std::bad_alloc when
  /// the load has claimed more than its file entitles it to.
  void claimUnbacked(std::uint64_t bytes);

  void resetChecksum() { adler = 1; }
  /// Adler-32 of what has been read from the file since resetChecksum().
  std::uint32_t checksum() const { return adler; }

  bool isInflating() const { return readingInflated; }

  /// Reads the identifier and the header section from the start of the file and throws
  /// std::runtime_error if it is not of this format and version.
  void processHeader();
  /// Logs the header in five lines.
  void dumpHeader() const;

  /// Inflates `inputLength` bytes of a zlib stream, at most `outputLength` bytes of the result, and
  /// reads from it until it is used up. Returns the number of bytes produced, which is what there
  /// was when the input ended early, or a negative zlib error when the input is not a zlib stream.
  /// Throws std::runtime_error when there is no memory for it.
  std::int64_t uncompress(const unsigned char* input, std::uint32_t inputLength,
                          std::uint32_t outputLength);

  /// Reads `length` bytes, or what is left of them, as they stand in the file into `data`.
  std::uint32_t readStored(std::unique_ptr<unsigned char[]>& data, std::int64_t length);

 private:
  template <class Element>
  std::unique_ptr<Element[]> readArray(unsigned& count, Element (M3gObjectInputStream::*readOne)());
  std::int64_t readFile(void* destination, std::int64_t count);
  void findFileSize();

  bool nativeLittleEndian = std::endian::native == std::endian::little;
  std::int64_t fileSize = 0;  // bytes; valid with fileSizeKnown
  bool fileSizeKnown = false;
  std::uint32_t adler = 1;
  z_stream inflater = {};
  std::unique_ptr<unsigned char[]> inflatedData;
  std::uint32_t inflatedPosition = 0;
  std::uint32_t inflatedRemaining = 0;
  bool readingInflated = false;
  unsigned char versionMajor = 0;
  unsigned char versionMinor = 0;
  bool hasExternalReferences = false;
  std::uint32_t totalFileSize = 0;
  std::uint32_t approximateContentSize = 0;
  std::string authoringField;
  std::uint64_t unbackedMemory = 0;  // bytes claimed so far
};

}  // namespace varnel_m3g

#endif
