#ifndef VARNEL_ENGINE_GEOMETRY_VERTEX_ARRAY_H
#define VARNEL_ENGINE_GEOMETRY_VERTEX_ARRAY_H

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <memory>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// The raw values of one vertex attribute: vertexCount records of 2 to 4 integers of 8 or 16 bits.
/// Vertex buffers share it; morphing and skinning read from it and write into it.
class VertexArray : public Object3D {
 public:
  /// True where 8-bit arrays are stored as 16-bit ones from the start. Never set in this library.
  static bool widenByteArrays;

  /// Makes an array of zeros. Throws as initialise does.
  static boost::shared_ptr<VertexArray> create(int numVertices, int numComponents,
                                               int componentSize);

  /// An array of no vertices, for the loader and the factory.
  VertexArray();
  ~VertexArray() override;

  /// Resets the object and gives it its fixed size. Throws std::invalid_argument for a component
  /// size outside 1..2, a component count outside 2..4, a vertex count outside 1..65535.
  void initialise(int numVertices, int numComponents, int componentSize);
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Writes numVertices records from firstVertex on. Both forms throw std::invalid_argument for
  /// null values or a negative count, std::logic_error for an array of the other component size,
  /// std::out_of_range for a range outside the array; nothing is written then.
  void set(int firstVertex, int numVertices, const short* values);
  void set(int firstVertex, int numVertices, const signed char* values);
  /// Reads numVertices records from firstVertex on; throws as set does.
  void get(int firstVertex, int numVertices, short* values) const;
  void get(int firstVertex, int numVertices, signed char* values) const;

  int getVertexCount() const { return vertexCount; }
  int getComponentCount() const { return componentCount; }
  /// Bytes per component, 1 or 2.
  int getComponentType() const { return componentSize; }

  /// The components of one vertex as floats, getComponentCount() of them, the caller's own. Throws
  /// std::out_of_range for an index outside the array.
  std::unique_ptr<float[]> getVertex(int index) const;
  /// The same into an array of at least getComponentCount() floats.
  void readVertex(int index, float* out) const;

  /// Turns the storage into shorts, each byte of it taken as unsigned. Does nothing to an array
  /// that is widened already.
  void widenTo16Bit();
  /// Makes the RGBA form of an array of three-byte records, with an alpha of 255.
  void expandToRgba();
  /// Copies all values into target, or into a new array of this one's shape where target is empty
  /// or of another shape. Returns the array that holds the copy.
  boost::shared_ptr<VertexArray> copyInto(boost::shared_ptr<VertexArray> target) const;
  /// Sets the fourth byte of each record to that of source times factor, truncated. Does nothing
  /// unless both arrays have four components.
  void scaleAlphaFrom(const VertexArray& source, float factor);

  /// Blends: result = base + the sum over the targets of trunc((target - base) * weight), component
  /// by component, without normalisation. Bytes read as signed wrap, bytes read as unsigned are
  /// clamped after the sum, shorts wrap. Targets of a widened base are widened first. result is
  /// replaced by a new array of the base's shape where it is empty, of another shape, or one of the
  /// arrays blended. Returns false, with result as it was, where targets is null or the arrays
  /// differ in shape.
  static bool morph(const VertexArray& base, int targetCount, VertexArray* const* targets,
                    const float* weights, bool signedBytes, boost::shared_ptr<VertexArray>& result);

  /// Writes all values to the standard output, one line per vertex.
  void printValues() const;

  /// The stored values, vertex after vertex; only the form of getComponentType() has meaning.
  const signed char* byteData() const;
  const short* shortData() const;
  /// The same for writing, which marks the array as changed.
  signed char* writableBytes() {
    noteWrite();
    return reinterpret_cast<signed char*>(bytes.get());
  }
  short* writableShorts() {
    noteWrite();
    return shorts();
  }
  /// Four bytes per vertex, or null where expandToRgba has not been called.
  const unsigned char* rgbaCopy() const { return rgbaCopy_.get(); }
  /// The values are held as shorts although the component size is 1.
  bool isWidened() const { return widened; }

  /// Set by construction and each write.
  bool isDirty() const { return dirty; }
  /// For the consumer that has taken note of the values.
  void clearDirty() { dirty = false; }
  /// Changes with each write, so that every one of several consumers can tell.
  unsigned getRevision() const { return revision; }

 private:
  /// Checks and allocates without a reset; what load uses once the base part has been read.
  void allocate(int numVertices, int numComponents, int componentSize);
  bool holdsShorts() const;
  std::size_t componentTotal() const;
  bool hasShapeOf(const VertexArray& other) const;
  void checkRange(int firstVertex, int numVertices) const;
  void copyValuesFrom(const VertexArray& source);
  short* shorts();
  void noteWrite() {
    dirty = true;
    ++revision;
  }

  bool widened = false;
  bool dirty = true;
  unsigned revision = 0;
  int vertexCount = 0;
  int componentCount = 0;
  int componentSize = 0;
  /// vertexCount * componentCount components; bytes or shorts.
  std::unique_ptr<unsigned char[]> bytes;
  std::size_t byteCount = 0;
  std::unique_ptr<unsigned char[]> rgbaCopy_;
};

}  // namespace varnel_m3g

#endif
