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

// A 16.16 number, which has no type of its own.
struct Fixed {
  std::int32_t value;
};

template <class Component>
float toFloat(Component value) {
  return static_cast<float>(value);
}

float toFloat(Fixed fixed) {
  return fixedToFloat(fixed.value);
}

// The type is chosen once for all records; those wholly inside, which are all or all but the last,
// need no test for each component.
template <class Component>
void convertAs(const ArrayLayout& layout, const unsigned char* source, std::size_t available,
               std::size_t first, std::size_t last, float* out) {
  const std::size_t stride = recordStride(layout);
  const auto size = static_cast<std::size_t>(layout.size);
  const std::size_t length = size * sizeof(Component);
  for (std::size_t record = first; record <= last; ++record) {
    const std::size_t offset = record * stride;
    const std::size_t rest = offset < available ? available - offset : 0;
    const std::size_t inside = rest >= length ? size : rest / sizeof(Component);
    for (std::size_t i = 0; i < inside; ++i) {
      *out++ = toFloat(read<Component>(source + offset + i * sizeof(Component)));
    }
    for (std::size_t i = inside; i < size; ++i) {
      *out++ = 0.0f;
    }
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
  switch (layout.type) {
    case GL_BYTE:
      return convertAs<std::int8_t>(layout, source, available, first, last, out);
    case GL_UNSIGNED_BYTE:
      return convertAs<std::uint8_t>(layout, source, available, first, last, out);
    case GL_SHORT:
      return convertAs<std::int16_t>(layout, source, available, first, last, out);
    case GL_UNSIGNED_SHORT:
      return convertAs<std::uint16_t>(layout, source, available, first, last, out);
    case GL_FIXED:
      return convertAs<Fixed>(layout, source, available, first, last, out);
    default:
      return convertAs<float>(layout, source, available, first, last, out);
  }
}

void convertElements(const ArrayLayout& layout, const unsigned char* source,
                     const ElementRange& range, float* out) {
  const auto size = static_cast<std::size_t>(layout.size);
  if (!range.indices || range.count > range.last - range.first) {
    convertRecords(layout, source, SIZE_MAX, range.first, range.last, out + range.first * size);
    return;
  }
  for (std::size_t i = 0; i < range.count; ++i) {
    const std::size_t index = indexAt(range.indexType, range.indices, i);
    convertRecords(layout, source, SIZE_MAX, index, index, out + index * size);
  }
}

std::size_t indexAt(unsigned type, const void* indices, std::size_t position) {
  const auto* at = static_cast<const unsigned char*>(indices);
  return type == GL_UNSIGNED_BYTE ? at[position]
                                  : read<std::uint16_t>(at + position * sizeof(std::uint16_t));
}

ElementRange elementRange(unsigned type, const void* indices, std::size_t count) {
  ElementRange range{SIZE_MAX, 0, type, indices, count};
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t index = indexAt(type, indices, i);
    range.first = std::min(range.first, index);
    range.last = std::max(range.last, index);
  }
  return range;
}

}  // namespace gles
