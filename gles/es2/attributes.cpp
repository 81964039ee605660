// Generic vertex attributes and the draws that read them.

#include <algorithm>
#include <cstdint>
#include <vector>

#include "gles/array_conversion.h"
#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

namespace {

AttributeState* attributeOf(unsigned index) {
  return index < attributeCount() ? &current->attributes[index] : nullptr;
}

// Points the driver at an attribute's floats in `buffer`, or in client memory where that is 0.
void pointAtFloats(unsigned index, int size, unsigned buffer, const void* floats) {
  const unsigned bound = current->buffers.boundArrayBuffer;
  if (buffer != bound) {
    driver.glBindBuffer(GL_ARRAY_BUFFER, buffer);
  }
  driver.glVertexAttribPointer(index, size, GL_FLOAT, GL_FALSE, 0, floats);
  if (buffer != bound) {
    driver.glBindBuffer(GL_ARRAY_BUFFER, bound);
  }
}

// Converts the elements of a draw of a fixed-point attribute and points the driver at them.
bool convertAttribute(unsigned index, AttributeState& attribute, const ElementRange& range) {
  const ArrayLayout layout{attribute.size, attribute.type, attribute.stride};
  if (attribute.bufferName) {
    BufferRecord* record = current->buffers.find(attribute.bufferName);
    const StreamPlace floats =
        record ? convertedStream(current->buffers, *record, layout,
                                 reinterpret_cast<std::uintptr_t>(attribute.pointer))
               : StreamPlace{};
    if (floats.name) {
      pointAtFloats(index, attribute.size, floats.name,
                    reinterpret_cast<const void*>(floats.offset));
    }
    return floats.name != 0;
  }
  const auto size = static_cast<std::size_t>(attribute.size);
  if (range.last >= SIZE_MAX / (size * sizeof(float)) ||
      !attribute.converted.reserve((range.last + 1) * size * sizeof(float))) {
    return false;
  }
  auto* floats = reinterpret_cast<float*>(attribute.converted.data);
  convertElements(layout, static_cast<const unsigned char*>(attribute.pointer), range, floats);
  pointAtFloats(index, attribute.size, 0, floats);
  return true;
}

// What a draw of the elements of a range needs in the driver; undone when it dies.
class PreparedDraw {
 public:
  PreparedDraw(GLenum mode, const ElementRange& range) : points_(mode == GL_POINTS) {
    for (unsigned i = 0; i < attributeCount(); ++i) {
      if (current->attributes[i].enabled) {
        prepare(i, current->attributes[i], range);
      }
    }
    supplyAttributeZero(range);
    if (points_) {
      driver.glEnable(desktop::POINT_SPRITE);
      driver.glEnable(desktop::VERTEX_PROGRAM_POINT_SIZE);
    }
  }
  PreparedDraw(const PreparedDraw&) = delete;
  PreparedDraw& operator=(const PreparedDraw&) = delete;
  ~PreparedDraw() {
    if (points_) {
      driver.glDisable(desktop::VERTEX_PROGRAM_POINT_SIZE);
      driver.glDisable(desktop::POINT_SPRITE);
    }
    if (zeroSupplied_) {
      driver.glDisableVertexAttribArray(0);
      restorePointerOfZero();
    }
    for (const unsigned index : dropped_) {
      driver.glEnableVertexAttribArray(index);
    }
  }

 private:
  void prepare(unsigned index, AttributeState& attribute, const ElementRange& range) {
    bool usable = attribute.bufferName != 0 || attribute.pointer != nullptr;
    if (usable && attribute.type == GL_FIXED) {
      usable = convertAttribute(index, attribute, range);
    } else if (BufferRecord* record = current->buffers.find(attribute.bufferName)) {
      ensureLoaded(current->buffers, *record);
    }
    if (!usable) {
      driver.glDisableVertexAttribArray(index);
      dropped_.push_back(index);
    }
  }

  // Desktop OpenGL draws nothing while attribute 0 has no array; OpenGL ES takes its constant
  // value.
  void supplyAttributeZero(const ElementRange& range) {
    const bool dropped = !dropped_.empty() && dropped_.front() == 0;
    AttributeState& zero = current->attributes[0];
    if (zero.enabled && !dropped) {
      return;
    }
    if (range.last >= SIZE_MAX / (4 * sizeof(float)) ||
        !zero.converted.reserve((range.last + 1) * 4 * sizeof(float))) {
      return;
    }
    auto* floats = reinterpret_cast<float*>(zero.converted.data);
    for (std::size_t i = range.first; i <= range.last; ++i) {
      std::copy(current->attributeZero.begin(), current->attributeZero.end(), floats + 4 * i);
    }
    pointAtFloats(0, 4, 0, floats);
    driver.glEnableVertexAttribArray(0);
    zeroSupplied_ = true;
  }

  // The client may enable its own array again without giving the pointer again. Fixed-point arrays
  // are pointed at for each draw.
  void restorePointerOfZero() {
    const AttributeState& zero = current->attributes[0];
    const unsigned bound = current->buffers.boundArrayBuffer;
    if (zero.type == GL_FIXED) {
      return;
    }
    if (zero.bufferName != bound) {
      driver.glBindBuffer(GL_ARRAY_BUFFER, zero.bufferName);
    }
    driver.glVertexAttribPointer(0, zero.size, zero.type, zero.normalized, zero.stride,
                                 zero.pointer);
    if (zero.bufferName != bound) {
      driver.glBindBuffer(GL_ARRAY_BUFFER, bound);
    }
  }

  bool points_;
  bool zeroSupplied_ = false;
  std::vector<unsigned> dropped_;
};

int attributeValue(const AttributeState& attribute, GLenum name) {
  switch (name) {
    case GL_VERTEX_ATTRIB_ARRAY_ENABLED:
      return attribute.enabled;
    case GL_VERTEX_ATTRIB_ARRAY_SIZE:
      return attribute.size;
    case GL_VERTEX_ATTRIB_ARRAY_STRIDE:
      return attribute.stride;
    case GL_VERTEX_ATTRIB_ARRAY_TYPE:
      return static_cast<int>(attribute.type);
    case GL_VERTEX_ATTRIB_ARRAY_NORMALIZED:
      return attribute.normalized;
    default:
      return static_cast<int>(attribute.bufferName);
  }
}

bool isArrayParameter(GLenum name) {
  switch (name) {
    case GL_VERTEX_ATTRIB_ARRAY_ENABLED:
    case GL_VERTEX_ATTRIB_ARRAY_SIZE:
    case GL_VERTEX_ATTRIB_ARRAY_STRIDE:
    case GL_VERTEX_ATTRIB_ARRAY_TYPE:
    case GL_VERTEX_ATTRIB_ARRAY_NORMALIZED:
    case GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING:
      return true;
    default:
      return false;
  }
}

// The array values come from the context, and so does the constant value of attribute 0, which
// desktop OpenGL does not answer.
template <class Value, class Query>
void getAttribute(GLuint index, GLenum name, Value* values, Query query) {
  const AttributeState* attribute = current ? attributeOf(index) : nullptr;
  if (attribute && isArrayParameter(name)) {
    *values = static_cast<Value>(attributeValue(*attribute, name));
  } else if (attribute && index == 0 && name == GL_CURRENT_VERTEX_ATTRIB) {
    std::transform(current->attributeZero.begin(), current->attributeZero.end(), values,
                   [](float value) { return static_cast<Value>(value); });
  } else if (current) {
    query(index, name, values);
  }
}

void setConstant(GLuint index, float x, float y, float z, float w) {
  if (current && index == 0) {
    current->attributeZero = {x, y, z, w};
  }
}

}  // namespace

void glVertexAttribPointer(GLuint index, GLint size, GLenum type, GLboolean normalized,
                           GLsizei stride, const void* pointer) {
  if (!current || !driver.glVertexAttribPointer) {
    return;
  }
  AttributeState* attribute = attributeOf(index);
  const bool isFixed = type == GL_FIXED;
  if (!attribute || size < 1 || size > 4 || stride < 0) {
    // The driver refuses it as it would refuse such an attribute of floats.
    driver.glVertexAttribPointer(index, size, isFixed ? GL_FLOAT : type, normalized, stride,
                                 pointer);
    return;
  }
  attribute->size = size;
  attribute->type = type;
  attribute->normalized = normalized != 0;
  attribute->stride = stride;
  attribute->pointer = pointer;
  attribute->bufferName = current->buffers.boundArrayBuffer;
  if (!isFixed) {
    driver.glVertexAttribPointer(index, size, type, normalized, stride, pointer);
  }
}

void glEnableVertexAttribArray(GLuint index) {
  if (!current) {
    return;
  }
  if (AttributeState* attribute = attributeOf(index)) {
    attribute->enabled = true;
  }
  driver.glEnableVertexAttribArray(index);
}

void glDisableVertexAttribArray(GLuint index) {
  if (!current) {
    return;
  }
  if (AttributeState* attribute = attributeOf(index)) {
    attribute->enabled = false;
  }
  driver.glDisableVertexAttribArray(index);
}

void glGetVertexAttribPointerv(GLuint index, GLenum pname, void** pointer) {
  if (!current) {
    return;
  }
  if (pname != GL_VERTEX_ATTRIB_ARRAY_POINTER) {
    setError(GL_INVALID_ENUM);
  } else if (const AttributeState* attribute = attributeOf(index)) {
    *pointer = const_cast<void*>(attribute->pointer);
  } else {
    setError(GL_INVALID_VALUE);
  }
}

void glGetVertexAttribfv(GLuint index, GLenum pname, GLfloat* params) {
  getAttribute(index, pname, params, driver.glGetVertexAttribfv);
}

void glGetVertexAttribiv(GLuint index, GLenum pname, GLint* params) {
  getAttribute(index, pname, params, driver.glGetVertexAttribiv);
}

void glVertexAttrib1f(GLuint index, GLfloat x) {
  setConstant(index, x, 0, 0, 1);
  driver.glVertexAttrib1f(index, x);
}

void glVertexAttrib1fv(GLuint index, const GLfloat* v) {
  setConstant(index, v[0], 0, 0, 1);
  driver.glVertexAttrib1fv(index, v);
}

void glVertexAttrib2f(GLuint index, GLfloat x, GLfloat y) {
  setConstant(index, x, y, 0, 1);
  driver.glVertexAttrib2f(index, x, y);
}

void glVertexAttrib2fv(GLuint index, const GLfloat* v) {
  setConstant(index, v[0], v[1], 0, 1);
  driver.glVertexAttrib2fv(index, v);
}

void glVertexAttrib3f(GLuint index, GLfloat x, GLfloat y, GLfloat z) {
  setConstant(index, x, y, z, 1);
  driver.glVertexAttrib3f(index, x, y, z);
}

void glVertexAttrib3fv(GLuint index, const GLfloat* v) {
  setConstant(index, v[0], v[1], v[2], 1);
  driver.glVertexAttrib3fv(index, v);
}

void glVertexAttrib4f(GLuint index, GLfloat x, GLfloat y, GLfloat z, GLfloat w) {
  setConstant(index, x, y, z, w);
  driver.glVertexAttrib4f(index, x, y, z, w);
}

void glVertexAttrib4fv(GLuint index, const GLfloat* v) {
  setConstant(index, v[0], v[1], v[2], v[3]);
  driver.glVertexAttrib4fv(index, v);
}

void glDrawArrays(GLenum mode, GLint first, GLsizei count) {
  if (!current) {
    return;
  }
  current->conversionDirty = true;
  if (first < 0 || count <= 0) {
    driver.glDrawArrays(mode, first, count);
    return;
  }
  const auto begin = static_cast<std::size_t>(first);
  const PreparedDraw prepared(mode, {begin, begin + static_cast<std::size_t>(count) - 1});
  driver.glDrawArrays(mode, first, count);
}

void glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices) {
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
  const PreparedDraw prepared(mode, elementRange(type, indices, length));
  driver.glDrawElements(mode, count, type, indices);
}

}  // namespace gles::es2
