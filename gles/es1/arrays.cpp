// Client arrays and the draws that read them.

#include <cstdint>

#include "gles/driver/driver.h"
#include "gles/es1/context_state.h"

namespace gles::es1 {

bool needsConversion(unsigned name, unsigned type) {
  switch (name) {
    case GL_NORMAL_ARRAY:
      return type == GL_FIXED;
    case GL_COLOR_ARRAY:
      return type == GL_FIXED || type == GL_UNSIGNED_BYTE;
    default:
      return type == GL_FIXED || type == GL_BYTE;
  }
}

namespace {

void driverPointer(unsigned name, int size, unsigned type, int stride, const void* pointer) {
  switch (name) {
    case GL_VERTEX_ARRAY:
      driver.glVertexPointer(size, type, stride, pointer);
      break;
    case GL_NORMAL_ARRAY:
      driver.glNormalPointer(type, stride, pointer);
      break;
    case GL_COLOR_ARRAY:
      driver.glColorPointer(size, type, stride, pointer);
      break;
    default:
      driver.glTexCoordPointer(size, type, stride, pointer);
      break;
  }
}

bool isSize(unsigned name, int size) {
  switch (name) {
    case GL_NORMAL_ARRAY:
      return size == 3;
    case GL_COLOR_ARRAY:
      return size == 3 || size == 4;
    default:
      return size >= 2 && size <= 4;
  }
}

void setPointer(unsigned name, int size, unsigned type, int stride, const void* pointer) {
  if (!current) {
    return;
  }
  const bool convert = needsConversion(name, type);
  if (!isSize(name, size) || stride < 0) {
    // The driver refuses it as it would refuse such an array of floats.
    driverPointer(name, size, convert ? GL_FLOAT : type, stride, pointer);
    return;
  }
  ArrayState& array = *arrayOf(name);
  array.size = size;
  array.type = type;
  array.stride = stride;
  array.pointer = pointer;
  array.bufferName = current->buffers.boundArrayBuffer;
  if (!convert) {
    driverPointer(name, size, type, stride, pointer);
  }
}

// Makes a texture unit the driver's client active one for the length of a block.
class ScopedClientUnit {
 public:
  explicit ScopedClientUnit(unsigned texture) : changed_(texture != current->clientActiveTexture) {
    if (changed_) {
      driver.glClientActiveTexture(texture);
    }
  }
  ScopedClientUnit(const ScopedClientUnit&) = delete;
  ScopedClientUnit& operator=(const ScopedClientUnit&) = delete;
  ~ScopedClientUnit() {
    if (changed_) {
      driver.glClientActiveTexture(current->clientActiveTexture);
    }
  }

 private:
  bool changed_;
};

// Points the driver at floats in `buffer`, or in client memory where `buffer` is 0.
void pointAtFloats(unsigned name, const ArrayState& array, unsigned buffer, const void* floats) {
  const unsigned bound = current->buffers.boundArrayBuffer;
  if (buffer != bound) {
    driver.glBindBuffer(GL_ARRAY_BUFFER, buffer);
  }
  driverPointer(name, array.size, GL_FLOAT, 0, floats);
  if (buffer != bound) {
    driver.glBindBuffer(GL_ARRAY_BUFFER, bound);
  }
}

// Converts the elements of a draw to floats and points the driver at them. False when the
// array has no data or memory is short.
bool convertArray(unsigned name, ArrayState& array, const ElementRange& range) {
  const ArrayLayout layout{array.size, array.type, array.stride};
  if (array.bufferName) {
    BufferRecord* record = current->buffers.find(array.bufferName);
    const StreamPlace floats =
        record ? convertedStream(current->buffers, *record, layout,
                                 reinterpret_cast<std::uintptr_t>(array.pointer))
               : StreamPlace{};
    if (floats.name) {
      pointAtFloats(name, array, floats.name, reinterpret_cast<const void*>(floats.offset));
    }
    return floats.name != 0;
  }
  const std::size_t size = static_cast<std::size_t>(array.size);
  if (range.last >= SIZE_MAX / (size * sizeof(float)) ||
      !array.converted.reserve((range.last + 1) * size * sizeof(float))) {
    return false;
  }
  auto* floats = reinterpret_cast<float*>(array.converted.data);
  convertElements(layout, static_cast<const unsigned char*>(array.pointer), range, floats);
  pointAtFloats(name, array, 0, floats);
  return true;
}

}  // namespace

PreparedArrays::PreparedArrays(const ElementRange& range) {
  prepare(GL_VERTEX_ARRAY, current->vertexArray, range);
  prepare(GL_NORMAL_ARRAY, current->normalArray, range);
  prepare(GL_COLOR_ARRAY, current->colorArray, range);
  for (std::size_t i = 0; i < current->units.size(); ++i) {
    if (current->units[i].texCoordArray.enabled) {
      const ScopedClientUnit unit(GL_TEXTURE0 + static_cast<unsigned>(i));
      const std::size_t before = dropped_.size();
      prepare(GL_TEXTURE_COORD_ARRAY, current->units[i].texCoordArray, range);
      if (dropped_.size() > before) {
        dropped_.back().second = GL_TEXTURE0 + static_cast<unsigned>(i);
      }
    }
  }
}

void PreparedArrays::prepare(unsigned name, ArrayState& array, const ElementRange& range) {
  if (!array.enabled) {
    return;
  }
  bool usable = array.bufferName != 0 || array.pointer != nullptr;
  if (usable && needsConversion(name, array.type)) {
    usable = convertArray(name, array, range);
  } else if (BufferRecord* record = current->buffers.find(array.bufferName)) {
    ensureLoaded(current->buffers, *record);
  }
  if (!usable) {
    driver.glDisableClientState(name);
    dropped_.emplace_back(name, current->clientActiveTexture);
  }
}

PreparedArrays::~PreparedArrays() {
  for (const auto& [name, texture] : dropped_) {
    const ScopedClientUnit unit(texture);
    driver.glEnableClientState(name);
  }
}

}  // namespace gles::es1

using namespace gles;
using gles::es1::current;

extern "C" {

void GL_APIENTRY glVertexPointer(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1::setPointer(GL_VERTEX_ARRAY, size, type, stride, pointer);
}

void GL_APIENTRY glNormalPointer(GLenum type, GLsizei stride, const void* pointer) {
  es1::setPointer(GL_NORMAL_ARRAY, 3, type, stride, pointer);
}

void GL_APIENTRY glColorPointer(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1::setPointer(GL_COLOR_ARRAY, size, type, stride, pointer);
}

void GL_APIENTRY glTexCoordPointer(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1::setPointer(GL_TEXTURE_COORD_ARRAY, size, type, stride, pointer);
}

void GL_APIENTRY glEnableClientState(GLenum array) {
  if (!current) {
    return;
  }
  if (es1::ArrayState* state = es1::arrayOf(array)) {
    state->enabled = true;
  }
  driver.glEnableClientState(array);
}

void GL_APIENTRY glDisableClientState(GLenum array) {
  if (!current) {
    return;
  }
  if (es1::ArrayState* state = es1::arrayOf(array)) {
    state->enabled = false;
  }
  driver.glDisableClientState(array);
}

void GL_APIENTRY glClientActiveTexture(GLenum texture) {
  if (!current || !driver.glClientActiveTexture) {
    return;
  }
  if (es1::unitOf(texture)) {
    current->clientActiveTexture = texture;
  }
  driver.glClientActiveTexture(texture);
}

void GL_APIENTRY glGetPointerv(GLenum pname, void** params) {
  if (!current || !params) {
    return;
  }
  const es1::ArrayState* array = nullptr;
  switch (pname) {
    case GL_VERTEX_ARRAY_POINTER:
      array = es1::arrayOf(GL_VERTEX_ARRAY);
      break;
    case GL_NORMAL_ARRAY_POINTER:
      array = es1::arrayOf(GL_NORMAL_ARRAY);
      break;
    case GL_COLOR_ARRAY_POINTER:
      array = es1::arrayOf(GL_COLOR_ARRAY);
      break;
    case GL_TEXTURE_COORD_ARRAY_POINTER:
      array = es1::arrayOf(GL_TEXTURE_COORD_ARRAY);
      break;
    default:
      break;
  }
  *params = array ? const_cast<void*>(array->pointer) : nullptr;
}

void GL_APIENTRY glDrawArrays(GLenum mode, GLint first, GLsizei count) {
  if (!current) {
    return;
  }
  current->conversionDirty = true;
  if (first < 0 || count <= 0) {
    driver.glDrawArrays(mode, first, count);
    return;
  }
  const auto begin = static_cast<std::size_t>(first);
  const es1::PreparedArrays prepared({begin, begin + static_cast<std::size_t>(count) - 1});
  driver.glDrawArrays(mode, first, count);
}

void GL_APIENTRY glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices) {
  if (!current) {
    return;
  }
  current->conversionDirty = true;
  const bool isIndexType = type == GL_UNSIGNED_BYTE || type == GL_UNSIGNED_SHORT;
  if (count <= 0 || !isIndexType) {
    // GL_FLOAT is no index type of the driver's either, which some wider integers are.
    driver.glDrawElements(mode, count, isIndexType ? type : GL_FLOAT, nullptr);
    return;
  }
  const auto length = static_cast<std::size_t>(count);
  indices = elementIndices(current->buffers, type, length, indices);
  if (!indices) {
    return;
  }
  const es1::PreparedArrays prepared(elementRange(type, indices, length));
  driver.glDrawElements(mode, count, type, indices);
}

}  // extern "C"
