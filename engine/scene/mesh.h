#ifndef VARNEL_ENGINE_SCENE_MESH_H
#define VARNEL_ENGINE_SCENE_MESH_H

#include <vector>

#include "engine/scene/node.h"

namespace varnel_m3g {

class Appearance;
class IndexBuffer;
class VertexBuffer;

/// A drawable node: one vertex buffer and one or more submeshes, each an index buffer with an
/// appearance. All three are shared with the application.
class Mesh : public Node {
 public:
  /// One submesh; the appearance may be null. Throws std::invalid_argument for another null.
  static boost::shared_ptr<Mesh> create(const boost::shared_ptr<VertexBuffer>& vertices,
                                        const boost::shared_ptr<IndexBuffer>& submesh,
                                        const boost::shared_ptr<Appearance>& appearance);
  /// `count` submeshes; the array of appearances and its entries may be null. Throws
  /// std::invalid_argument for another null and for a count of 0.
  static boost::shared_ptr<Mesh> create(const boost::shared_ptr<VertexBuffer>& vertices,
                                        const boost::shared_ptr<IndexBuffer>* submeshes,
                                        const boost::shared_ptr<Appearance>* appearances,
                                        unsigned count);
  Mesh();
  ~Mesh() override;

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Brings the buffer that is drawn up to date and returns it.
  virtual boost::shared_ptr<VertexBuffer> updateRenderBuffer();
  /// Tests a ray, given by two points of the picking node's coordinates, against all submeshes that
  /// have an appearance. The transform takes this mesh's coordinates to the picking node's.
  virtual void pickRay(const float* origin, const float* direction, const Transform& toMesh,
                       RayIntersection& result);

  const boost::shared_ptr<VertexBuffer>& getVertexBuffer() const { return vertexBuffer; }
  /// The buffer that is drawn and picked, as last brought up to date.
  const boost::shared_ptr<VertexBuffer>& getRenderBuffer() const { return renderBuffer; }
  unsigned getSubmeshCount() const { return submeshCount; }
  // An index equal to the number of submeshes passes the tests of these three; it names a spare
  // place that belongs to no submesh. Others throw std::out_of_range.
  void setAppearance(int index, const boost::shared_ptr<Appearance>& appearance);
  const boost::shared_ptr<Appearance>& getAppearance(int index) const;
  const boost::shared_ptr<IndexBuffer>& getIndexBuffer(int index) const;

  /// Writes the vertex buffer's own dump.
  void examineVertexBuffer();

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 protected:
  void initialise(const boost::shared_ptr<VertexBuffer>& vertices,
                  const boost::shared_ptr<IndexBuffer>& submesh,
                  const boost::shared_ptr<Appearance>& appearance);
  void initialise(const boost::shared_ptr<VertexBuffer>& vertices,
                  const boost::shared_ptr<IndexBuffer>* newSubmeshes,
                  const boost::shared_ptr<Appearance>* newAppearances, unsigned count);
  /// The checks and the filling of the array form, without the node's own initialising step.
  void setGeometry(const boost::shared_ptr<VertexBuffer>& vertices,
                   const boost::shared_ptr<IndexBuffer>* newSubmeshes,
                   const boost::shared_ptr<Appearance>* newAppearances, unsigned count);
  /// Replaces renderBuffer by a duplicate of vertexBuffer, for classes that write into it.
  void makePrivateRenderBuffer();

  boost::shared_ptr<VertexBuffer> vertexBuffer;
  boost::shared_ptr<VertexBuffer> renderBuffer;
  // Both hold one spare, empty entry behind the last submesh.
  std::vector<boost::shared_ptr<IndexBuffer>> submeshes;
  unsigned submeshCount = 0;
  std::vector<boost::shared_ptr<Appearance>> appearances;

 private:
  void allocateSubmeshes(unsigned count);
};

}  // namespace varnel_m3g

#endif
