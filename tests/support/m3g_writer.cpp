#include "tests/support/m3g_writer.h"

#include <zlib.h>

#include <bit>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace varnel_test {
namespace {

void append(std::string& bytes, std::uint64_t value, int size) {
  for (int i = 0; i < size; ++i) {
    bytes += static_cast<char>(value >> (8 * i) & 0xFF);
  }
}

}  // namespace

M3gRecord& M3gRecord::byte(int value) {
  append(bytes, static_cast<std::uint64_t>(value), 1);
  return *this;
}

M3gRecord& M3gRecord::int16(int value) {
  append(bytes, static_cast<std::uint64_t>(value), 2);
  return *this;
}

M3gRecord& M3gRecord::int32(std::int64_t value) {
  append(bytes, static_cast<std::uint64_t>(value), 4);
  return *this;
}

M3gRecord& M3gRecord::float32(float value) {
  return int32(std::bit_cast<std::int32_t>(value));
}

M3gRecord& M3gRecord::floats(const std::vector<float>& values) {
  for (const float value : values) {
    float32(value);
  }
  return *this;
}

M3gRecord& M3gRecord::rgb(std::uint32_t value) {
  return byte(value >> 16 & 0xFF).byte(value >> 8 & 0xFF).byte(value & 0xFF);
}

M3gRecord& M3gRecord::rgba(std::uint32_t value) {
  return rgb(value).byte(value >> 24);
}

M3gRecord& M3gRecord::text(const std::string& value) {
  bytes += value;
  return byte(0);
}

M3gRecord& M3gRecord::raw(const std::string& value) {
  bytes += value;
  return *this;
}

M3gRecord& M3gRecord::byteArray(const std::string& values) {
  return int32(static_cast<std::int64_t>(values.size())).raw(values);
}

M3gRecord& M3gRecord::shortArray(const std::vector<int>& values) {
  int32(static_cast<std::int64_t>(values.size()));
  for (const int value : values) {
    int16(value);
  }
  return *this;
}

M3gRecord& M3gRecord::intArray(const std::vector<int>& values) {
  int32(static_cast<std::int64_t>(values.size()));
  for (const int value : values) {
    int32(value);
  }
  return *this;
}

M3gRecord& M3gRecord::object3D(
    std::int64_t userID, const std::vector<std::int64_t>& tracks,
    const std::vector<std::pair<std::int64_t, std::string>>& parameters) {
  int32(userID);
  int32(static_cast<std::int64_t>(tracks.size()));
  for (const std::int64_t track : tracks) {
    int32(track);
  }
  int32(static_cast<std::int64_t>(parameters.size()));
  for (const auto& [id, value] : parameters) {
    int32(id).byteArray(value);
  }
  return *this;
}

M3gRecord& M3gRecord::transformable() {
  return boolean(false).boolean(false);
}

M3gRecord& M3gRecord::transformable(const std::vector<float>& translation,
                                    const std::vector<float>& scale, float angle,
                                    const std::vector<float>& axis) {
  boolean(true).floats(translation).floats(scale).float32(angle).floats(axis);
  return boolean(false);
}

M3gRecord& M3gRecord::node() {
  return boolean(true).boolean(true).byte(255).int32(-1).boolean(false);
}

std::string M3gRecord::object(std::optional<std::uint32_t> claimedLength) const {
  std::string object;
  append(object, static_cast<std::uint64_t>(type), 1);
  append(object, claimedLength.value_or(static_cast<std::uint32_t>(bytes.size())), 4);
  return object + bytes;
}

std::string M3gSection::bytes() const {
  const std::string data = storedBytes ? *storedBytes : scheme == 1 ? zlibStream(objects) : objects;
  std::string section;
  append(section, static_cast<std::uint64_t>(scheme), 1);
  append(section, totalLength.value_or(static_cast<std::uint32_t>(data.size() + 13)), 4);
  append(section, uncompressedLength.value_or(static_cast<std::uint32_t>(objects.size())), 4);
  section += data;
  append(section, checksum.value_or(checksumOf(section)), 4);
  return section;
}

M3gFile& M3gFile::stored(const std::vector<M3gRecord>& records) {
  M3gSection stored;
  stored.objects = objectsOf(records);
  return section(stored);
}

M3gFile& M3gFile::compressed(const std::vector<M3gRecord>& records) {
  M3gSection compressed;
  compressed.scheme = 1;
  compressed.objects = objectsOf(records);
  return section(compressed);
}

M3gFile& M3gFile::section(const M3gSection& section) {
  sections.push_back(section.bytes());
  return *this;
}

std::string M3gFile::bytes() const {
  std::string body;
  for (const std::string& section : sections) {
    body += section;
  }
  constexpr std::size_t identifierSize = 12;
  constexpr std::size_t fixedHeaderSize = 9 + 5 + 11 + 1 + 4;
  const std::size_t size = identifierSize + fixedHeaderSize + authoringField.size() + body.size();

  M3gRecord record(headerType);
  record.byte(versionMajor).byte(versionMinor).boolean(hasExternalReferences);
  record.int32(totalFileSize.value_or(static_cast<std::uint32_t>(size)));
  record.int32(approximateContentSize);
  record.text(authoringField);
  M3gSection header;
  header.scheme = headerScheme;
  header.objects = record.object();
  header.storeAs(header.objects);
  header.checksum = headerChecksum;
  return "\xABJSR184\xBB\r\n\x1A\n" + header.bytes() + body;
}

std::string objectsOf(const std::vector<M3gRecord>& records) {
  std::string objects;
  for (const M3gRecord& record : records) {
    objects += record.object();
  }
  return objects;
}

std::string zlibStream(const std::string& data) {
  uLongf size = compressBound(data.size());
  std::string stream(size, '\0');
  if (compress2(reinterpret_cast<Bytef*>(stream.data()), &size,
                reinterpret_cast<const Bytef*>(data.data()), data.size(), 9) != Z_OK) {
    throw std::runtime_error("zlib cannot compress");
  }
  stream.resize(size);
  return stream;
}

std::uint32_t checksumOf(const std::string& data) {
  return static_cast<std::uint32_t>(
      adler32(1, reinterpret_cast<const Bytef*>(data.data()), static_cast<uInt>(data.size())));
}

void writeFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) {
    throw std::runtime_error("cannot write " + path);
  }
}

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error("cannot read " + path);
  }
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace varnel_test
