#ifndef VARNEL_ENGINE_GEOMETRY_INDEX_BUFFER_H
#define VARNEL_ENGINE_GEOMETRY_INDEX_BUFFER_H

#include <boost/shared_ptr.hpp>
#include <vector>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class PolygonMode;
class RayIntersection;
class Transform;
class VertexBuffer;

/// The connectivity of one submesh: strips of vertices, named by a first index and the lengths
/// (implicit form) or by lists of 16-bit indices (explicit form). Immutable once made.
class IndexBuffer : public Object3D {
 public:
  ~IndexBuffer() override;

  void dump() override;
  /// Copies all strips into target; target must not be empty.
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Indices of the triangle list.
  virtual int getIndexCount() = 0;
  /// Writes the triangle list, getIndexCount() ints. Throws std::invalid_argument for null.
  virtual void getIndices(int* out) = 0;
  /// Shoots the ray from p0 towards p1 (3 floats each) at the triangles, transformed by toMesh, and
  /// notes a nearer hit in result. A null mode stands for a default PolygonMode.
  virtual void intersect(const float* p0, const float* p1, const Transform& toMesh,
                         RayIntersection& result, const PolygonMode* mode,
                         VertexBuffer& vertices) = 0;
  /// Writes the triangle list to the standard output.
  virtual void printIndices() = 0;

  unsigned stripCount() const { return static_cast<unsigned>(stripLengths.size()); }
  unsigned stripLength(unsigned strip) const { return stripLengths[strip]; }
  bool isExplicit() const { return isExplicit_; }
  /// Explicit form: the indices of a strip, stripLength(strip) of them.
  const unsigned short* stripIndices(unsigned strip) const { return stripIndices_[strip].data(); }
  /// Implicit form: the first index of a strip.
  unsigned stripStart(unsigned strip) const { return stripStarts[strip]; }
  /// The largest vertex index that a strip names, -1 for an empty strip. Found once.
  long long highestIndex(unsigned strip) const { return highestIndices[strip]; }
  /// Implicit form: the argument as given.
  unsigned getFirstIndex() const { return firstIndex; }

 protected:
  IndexBuffer();

  /// Fills highestIndices from the strips.
  void findHighestIndices();

  std::vector<unsigned> stripLengths;
  std::vector<unsigned> stripStarts;                       // implicit form only
  std::vector<std::vector<unsigned short>> stripIndices_;  // explicit form only
  bool isExplicit_ = false;
  unsigned firstIndex = 0;
  std::vector<long long> highestIndices;
};

}  // namespace varnel_m3g

#endif
