#ifndef VARNEL_TESTS_ENGINE_SCENE_MESH_PARTS_H
#define VARNEL_TESTS_ENGINE_SCENE_MESH_PARTS_H

#include <boost/shared_ptr.hpp>
#include <vector>

#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"

namespace varnel_test {

/// An array of 8 or 16 bits from plain numbers.
inline boost::shared_ptr<varnel_m3g::VertexArray> arrayOf(const std::vector<int>& values,
                                                          int components, int size) {
  const int vertices = static_cast<int>(values.size()) / components;
  const auto array = varnel_m3g::VertexArray::create(vertices, components, size);
  if (size == 1) {
    array->set(0, vertices, std::vector<signed char>(values.begin(), values.end()).data());
  } else {
    array->set(0, vertices, std::vector<short>(values.begin(), values.end()).data());
  }
  return array;
}

/// The values of an array as signed numbers; none for an empty pointer.
inline std::vector<int> valuesOf(const boost::shared_ptr<varnel_m3g::VertexArray>& array) {
  if (!array) {
    return {};
  }
  const std::size_t total = static_cast<std::size_t>(array->getVertexCount()) *
                            static_cast<std::size_t>(array->getComponentCount());
  if (array->getComponentType() == 1) {
    std::vector<signed char> values(total);
    array->get(0, array->getVertexCount(), values.data());
    return std::vector<int>(values.begin(), values.end());
  }
  std::vector<short> values(total);
  array->get(0, array->getVertexCount(), values.data());
  return std::vector<int>(values.begin(), values.end());
}

/// A buffer with these positions, three to a vertex.
inline boost::shared_ptr<varnel_m3g::VertexBuffer> bufferOf(const std::vector<int>& positions,
                                                            int size = 2) {
  const auto buffer = varnel_m3g::VertexBuffer::create();
  buffer->setPositions(arrayOf(positions, 3, size), 1.0F, nullptr);
  return buffer;
}

inline std::vector<int> positionsOf(const boost::shared_ptr<varnel_m3g::VertexBuffer>& buffer) {
  return valuesOf(buffer->getPositions(nullptr));
}

inline std::vector<int> normalsOf(const boost::shared_ptr<varnel_m3g::VertexBuffer>& buffer) {
  return valuesOf(buffer->getNormals());
}

/// One strip of the first three vertices.
inline boost::shared_ptr<varnel_m3g::TriangleStripArray> oneTriangle() {
  const int lengths[] = {3};
  return varnel_m3g::TriangleStripArray::create(0, lengths, 1);
}

}  // namespace varnel_test

#endif
