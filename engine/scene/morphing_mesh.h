#ifndef VARNEL_ENGINE_SCENE_MORPHING_MESH_H
#define VARNEL_ENGINE_SCENE_MORPHING_MESH_H

#include <boost/shared_ptr.hpp>
#include <vector>

#include "engine/scene/mesh.h"

namespace varnel_m3g {

class VertexArray;

/// A mesh that draws the weighted sum of its base buffer and its targets, blended when the renderer
/// asks for it and only after a change of weights. Picking tests the base shape.
class MorphingMesh : public Mesh {
 public:
  /// One submesh. Such a mesh reports no targets and shows its base shape. Throws as Mesh does,
  /// then std::invalid_argument for null or no targets.
  static boost::shared_ptr<MorphingMesh> create(const boost::shared_ptr<VertexBuffer>& base,
                                                const boost::shared_ptr<VertexBuffer>* targets,
                                                int targetCount,
                                                const boost::shared_ptr<IndexBuffer>& submesh,
                                                const boost::shared_ptr<Appearance>& appearance);
  /// `submeshCount` submeshes, with targets that count.
  static boost::shared_ptr<MorphingMesh> create(const boost::shared_ptr<VertexBuffer>& base,
                                                const boost::shared_ptr<VertexBuffer>* targets,
                                                int targetCount,
                                                const boost::shared_ptr<IndexBuffer>* submeshes,
                                                const boost::shared_ptr<Appearance>* appearances,
                                                unsigned submeshCount);
  MorphingMesh();
  ~MorphingMesh() override;

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  /// The blended buffer. Allocates nothing while the shapes stay.
  boost::shared_ptr<VertexBuffer> updateRenderBuffer() override;

  int getMorphTargetCount() const { return morphTargetCount; }
  /// Throws std::out_of_range at and above the count; empty for a negative index.
  boost::shared_ptr<VertexBuffer> getMorphTarget(int index) const;
  /// Copies getMorphTargetCount() floats of any value. Throws std::invalid_argument for null.
  void setWeights(const float* newWeights);
  /// The same the other way.
  void getWeights(float* out) const;

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 private:
  /// Takes the targets, with weights of 0; throws std::invalid_argument as the factories do.
  void storeTargets(const boost::shared_ptr<VertexBuffer>* targets, int count);
  /// What is common to both factories once the mesh itself is set up.
  void prepareBlend();
  /// The blend of one attribute by its selector, or the base's own array where the targets do not
  /// all have it in one shape.
  boost::shared_ptr<VertexArray> blend(int selector, bool signedBytes);
  /// Fills `gathered` with the targets' arrays; false unless all have the attribute in one shape.
  bool gatherTargets(int selector);

  std::vector<boost::shared_ptr<VertexBuffer>> morphTargets;
  /// The targets that blend; 0 in meshes of one submesh and of files.
  int morphTargetCount = 0;
  boost::shared_ptr<VertexBuffer> blendedBuffer;
  /// No blend has been made yet.
  bool blendPending = true;
  std::vector<float> weights;  // one per target
  bool weightsChanged = true;
  /// The arrays that blends write, by selector; never the application's.
  std::vector<boost::shared_ptr<VertexArray>> blendedArrays;
  std::vector<VertexArray*> gathered;  // scratch of one attribute's blend
};

}  // namespace varnel_m3g

#endif
