#ifndef VARNEL_TESTS_SUPPORT_M3G_WRITER_H
#define VARNEL_TESTS_SUPPORT_M3G_WRITER_H

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varnel_test {

/// Object types as the files number them.
enum M3gType {
  ANIMATION_CONTROLLER = 1,
  ANIMATION_TRACK = 2,
  APPEARANCE = 3,
  BACKGROUND = 4,
  CAMERA = 5,
  COMPOSITING_MODE = 6,
  FOG = 7,
  POLYGON_MODE = 8,
  GROUP = 9,
  IMAGE_2D = 10,
  TRIANGLE_STRIP_ARRAY = 11,
  LIGHT = 12,
  MATERIAL = 13,
  MESH = 14,
  MORPHING_MESH = 15,
  SKINNED_MESH = 16,
  TEXTURE_2D = 17,
  SPRITE_3D = 18,
  KEYFRAME_SEQUENCE = 19,
  VERTEX_ARRAY = 20,
  VERTEX_BUFFER = 21,
  WORLD = 22,
  EXTERNAL_REFERENCE = 255
};

/// The bytes of one object record, written field by field; each call appends one field and gives
/// the record back. Numbers are little-endian.
class M3gRecord {
 public:
  explicit M3gRecord(int objectType) : type(objectType) {}

  M3gRecord& byte(int value);
  M3gRecord& boolean(bool value) { return byte(value ? 1 : 0); }
  M3gRecord& int16(int value);
  M3gRecord& int32(std::int64_t value);
  M3gRecord& float32(float value);
  M3gRecord& floats(const std::vector<float>& values);
  /// 0xRRGGBB.
  M3gRecord& rgb(std::uint32_t value);
  /// 0xAARRGGBB.
  M3gRecord& rgba(std::uint32_t value);
  /// The text and a zero byte.
  M3gRecord& text(const std::string& value);
  M3gRecord& raw(const std::string& value);
  /// A count and the elements.
  M3gRecord& byteArray(const std::string& values);
  M3gRecord& shortArray(const std::vector<int>& values);
  M3gRecord& intArray(const std::vector<int>& values);

  // The sections that several classes share.
  M3gRecord& object3D(std::int64_t userID = 0, const std::vector<std::int64_t>& tracks = {},
                      const std::vector<std::pair<std::int64_t, std::string>>& parameters = {});
  /// No component and no general transform.
  M3gRecord& transformable();
  /// A component transform: translation, scale, angle in degrees and axis; no general one.
  M3gRecord& transformable(const std::vector<float>& translation, const std::vector<float>& scale,
                           float angle, const std::vector<float>& axis);
  /// Rendered, pickable, opaque, in every scope, not aligned.
  M3gRecord& node();

  /// object3D(), transformable() and node().
  M3gRecord& plainNode() { return object3D().transformable().node(); }

  int objectType() const { return type; }
  const std::string& data() const { return bytes; }
  /// Type, length and data as they stand in a section; another length may be claimed.
  std::string object(std::optional<std::uint32_t> claimedLength = {}) const;

 private:
  int type;
  std::string bytes;
};

/// A section; what is not set is as the objects demand.
class M3gSection {
 public:
  int scheme = 0;       // 1 compresses the objects
  std::string objects;  // as they stand uncompressed
  std::optional<std::uint32_t> totalLength;
  std::optional<std::uint32_t> uncompressedLength;
  std::optional<std::uint32_t> checksum;

  /// Puts these bytes in the place of the objects.
  void storeAs(const std::string& bytes) { storedBytes = std::make_shared<std::string>(bytes); }
  std::string bytes() const;

 private:
  std::shared_ptr<std::string> storedBytes;
};

/// A whole file: header and sections.
class M3gFile {
 public:
  int headerScheme = 0;
  int headerType = 0;
  int versionMajor = 1;
  int versionMinor = 0;
  bool hasExternalReferences = false;
  std::uint32_t approximateContentSize = 0;
  std::string authoringField = "varnel";
  std::optional<std::uint32_t> totalFileSize;
  std::optional<std::uint32_t> headerChecksum;

  /// Appends a section of these objects.
  M3gFile& stored(const std::vector<M3gRecord>& records);
  M3gFile& compressed(const std::vector<M3gRecord>& records);
  M3gFile& section(const M3gSection& section);

  std::string bytes() const;

 private:
  std::vector<std::string> sections;
};

std::string objectsOf(const std::vector<M3gRecord>& records);
std::string zlibStream(const std::string& data);
/// Adler-32.
std::uint32_t checksumOf(const std::string& data);

/// Writes a file whole; throws std::runtime_error if it cannot.
void writeFile(const std::string& path, const std::string& bytes);
/// The bytes of a file; throws std::runtime_error if it cannot be read.
std::string readFile(const std::string& path);

}  // namespace varnel_test

#endif
