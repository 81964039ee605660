#include "gles/array_conversion.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <GLES/gl.h>

#include "gles/fixed_point.h"

namespace gles {

namespace {

template <class Component>
Component read(const unsigned char* at) {
  Component value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

float componentAt(unsigned type, const unsigned char* at) {
  switch (type) {
    case GL_BYTE:
      return static_cast<float>(read<std::int8_t>(at));
    case GL_UNSIGNED_BYTE:
      return static_cast<float>(read<std::uint8_t>(at));
    case GL_SHORT:
      return static_cast<float>(read<std::int16_t>(at));
    case GL_UNSIGNED_SHORT:
      return static_cast<float>(read<std::uint16_t>(at));
    case GL_FIXED:
      return fixedToFloat(read<std::int32_t>(at));
    default:
      return read<float>(at);
  }
}

}  // namespace

std::size_t componentBytes(unsigned type) {
  switch (type) {
    case GL_BYTE:
    case GL_UNSIGNED_BYTE:
      return 1;
    case GL_SHORT:
    case GL_UNSIGNED_SHORT:
      return 2;
    case GL_FIXED:
    case GL_FLOAT:
      return 4;
    default:
      return 0;
  }
}

std::size_t recordStride(const ArrayLayout& layout) {
  const std::size_t length = componentBytes(layout.type) * static_cast<std::size_t>(layout.size);
  return std::max(length, static_cast<std::size_t>(std::max(layout.stride, 0)));
}

std::size_t recordCount(const ArrayLayout& layout, std::size_t bytes) {
  const std::size_t stride = recordStride(layout);
  return stride ? bytes / stride + (bytes % stride ? 1 : 0) : 0;
}

void convertRecords(const ArrayLayout& layout, const unsigned char* source, std::size_t available,
                    std::size_t first, std::size_t last, float* out) {
  const std::size_t stride = recordStride(layout);
  const std::size_t bytes = componentBytes(layout.type);
  for (std::size_t record = first; record <= last; ++record) {
    std::size_t offset = record * stride;
    for (int component = 0; component < layout.size; ++component, offset += bytes) {
      const bool inside = offset <= available && available - offset >= bytes;
      *out++ = inside ? componentAt(layout.type, source + offset) : 0.0f;
    }
  }
}

void indexRange(unsigned type, const void* indices, std::size_t count, std::size_t& lowest,
                std::size_t& highest) {
  const auto* at = static_cast<const unsigned char*>(indices);
  const bool bytes = type == GL_UNSIGNED_BYTE;
  lowest = SIZE_MAX;
  highest = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t index = bytes ? at[i] : read<std::uint16_t>(at + i * sizeof(std::uint16_t));
    lowest = std::min(lowest, index);
    highest = std::max(highest, index);
  }
}

}  // namespace gles
