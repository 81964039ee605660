#ifndef VARNEL_ENGINE_SCENE_SKINNED_MESH_H
#define VARNEL_ENGINE_SCENE_SKINNED_MESH_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <vector>

#include "engine/math/transform.h"
#include "engine/scene/mesh.h"

namespace varnel_m3g {

class Group;
class VertexArray;

/// A mesh whose vertices follow the bones of a skeleton, its only child. Each frame rebuilds a
/// private copy of positions and normals in the integer width of their arrays.
class SkinnedMesh : public Mesh {
 public:
  /// One submesh. Throws as Mesh does, then std::invalid_argument for a null skeleton, a World and
  /// a group that has a parent.
  static boost::shared_ptr<SkinnedMesh> create(const boost::shared_ptr<VertexBuffer>& vertices,
                                               const boost::shared_ptr<IndexBuffer>& submesh,
                                               const boost::shared_ptr<Appearance>& appearance,
                                               const boost::shared_ptr<Group>& skeleton);
  static boost::shared_ptr<SkinnedMesh> create(const boost::shared_ptr<VertexBuffer>& vertices,
                                               const boost::shared_ptr<IndexBuffer>* submeshes,
                                               const boost::shared_ptr<Appearance>* appearances,
                                               unsigned count,
                                               const boost::shared_ptr<Group>& skeleton);
  SkinnedMesh();
  ~SkinnedMesh() override;

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  /// Throws std::invalid_argument: the skeleton stays with this mesh.
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  /// Deforms by the bones' world transforms as last brought up to date. Allocates nothing while the
  /// shapes stay.
  boost::shared_ptr<VertexBuffer> updateRenderBuffer() override;

  const boost::shared_ptr<Group>& getSkeleton() const { return skeleton; }
  /// Binds `numVertices` vertices from `firstVertex` on to a bone; vertices past the buffer's are
  /// counted only. Throws std::invalid_argument for a null bone, a weight or a number below 1 and a
  /// bone outside the skeleton, which stays in the list all the same; std::out_of_range for a run
  /// outside 0..65534; std::underflow_error if the bone's transform cannot be inverted.
  void addTransform(const boost::shared_ptr<Node>& bone, int weight, int firstVertex,
                    int numVertices);
  /// The transform from mesh to bone at the last addTransform of the bone. Throws
  /// std::invalid_argument for null and for a bone outside the skeleton.
  void getBoneTransform(const boost::shared_ptr<Node>& bone, Transform& out) const;
  /// Counts the vertices bound to the bone, once for each binding, and fills the arrays that are
  /// not null, of `n` elements each. Throws std::invalid_argument if they are too short.
  int getBoneVertices(const boost::shared_ptr<Node>& bone, int* indices, float* weights,
                      int n) const;

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 private:
  class BoneTransformInit;

  /// A node of the skeleton.
  struct BoneGroup {
    int firstUse = 1;
    boost::shared_ptr<Node> bone;
    /// To the bone from the mesh.
    Transform restTransform;
  };

  /// One run of vertices that follows a bone.
  struct BoneVertexTransform {
    boost::shared_ptr<Node> bone;
    int weight;
    int firstVertex;
    int numVertices;
  };

  /// The steps of the factories once the mesh itself is set up.
  void setSkeleton(const boost::shared_ptr<Group>& newSkeleton);
  /// Makes the group the only child, with a bone group for each of its nodes.
  void attachSkeleton(const boost::shared_ptr<Group>& newSkeleton);
  void initBoneGroup(const boost::shared_ptr<Node>& node);
  /// Sizes the tables of weights, all zero, and makes the private buffer.
  void prepareWeights();
  BoneGroup* findBoneGroup(const boost::shared_ptr<Node>& bone) const;
  float inverseWeightOf(int vertex) const;

  /// Shares colours and texture coordinates with the source, copies the vertices that follow no
  /// bone and clears the others.
  void prepareRenderBuffer();
  void copyUnbound(const boost::shared_ptr<VertexArray>& source,
                   const boost::shared_ptr<VertexArray>& target) const;
  void accumulateBone(const Transform& bone, int firstVertex, int numVertices, int weight);
  /// Writes the table of weights to the standard error stream.
  void printWeights() const;

  boost::shared_ptr<Group> skeleton;
  std::map<const Node*, boost::shared_ptr<BoneGroup>> boneGroups;
  /// 1 / total weight, 0 for a vertex that follows no bone; as long as the vertices of the buffer,
  /// or longer where a run was.
  std::vector<float> inverseWeights;
  std::vector<int> totalWeights;
  int vertexCount = 0;
  /// In the order of the calls.
  std::vector<boost::shared_ptr<BoneVertexTransform>> boneVertexTransforms;
};

}  // namespace varnel_m3g

#endif
