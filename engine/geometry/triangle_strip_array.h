#ifndef VARNEL_ENGINE_GEOMETRY_TRIANGLE_STRIP_ARRAY_H
#define VARNEL_ENGINE_GEOMETRY_TRIANGLE_STRIP_ARRAY_H

#include <boost/shared_ptr.hpp>

#include "engine/geometry/index_buffer.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// A set of triangle strips; the winding alternates within a strip and starts anew with each.
class TriangleStripArray : public IndexBuffer {
 public:
  /// The implicit form: consecutive vertices from firstIndex on. Throws as initialise does.
  static boost::shared_ptr<TriangleStripArray> create(int firstIndex, const int* stripLengths,
                                                      int lengthCount);
  /// The explicit form. Throws as initialise does, and std::invalid_argument for a null or empty
  /// index array before anything else.
  static boost::shared_ptr<TriangleStripArray> create(const int* indices, int indexCount,
                                                      const int* stripLengths, int lengthCount);

  /// No strips, for the loader and the factories.
  TriangleStripArray();
  ~TriangleStripArray() override;

  /// Resets the object and takes the strips; see build.
  void initialise(int firstIndex, const int* indices, int indexCount, const int* stripLengths,
                  int lengthCount);
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  int getIndexCount() override;
  void getIndices(int* out) override;
  void intersect(const float* p0, const float* p1, const Transform& toMesh, RayIntersection& result,
                 const PolygonMode* mode, VertexBuffer& vertices) override;
  void printIndices() override;

 private:
  /// Calls visit with the three indices of each triangle in order, getIndexCount() indices at most.
  template <class Visit>
  void visitTriangles(const Visit& visit);

  /// Takes copies of the arrays without a reset; what load uses once the base part has been read.
  /// Null indices mean the implicit form. Throws std::invalid_argument for null or empty lengths
  /// and, in the explicit form, for a strip shorter than 3 or fewer indices than the lengths add up
  /// to; std::out_of_range for an index outside 0..65535.
  void build(int firstIndex, const int* indices, int indexCount, const int* stripLengths,
             int lengthCount);
};

}  // namespace varnel_m3g

#endif
