#ifndef VARNEL_ENGINE_SURFACE_APPEARANCE_H
#define VARNEL_ENGINE_SURFACE_APPEARANCE_H

#include <boost/shared_ptr.hpp>
#include <boost/smart_ptr/owner_less.hpp>
#include <boost/weak_ptr.hpp>
#include <cstddef>
#include <list>
#include <map>
#include <vector>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class CompositingMode;
class Fog;
class M3gObjectInputStream;
class Material;
class Node;
class PolygonMode;
class Texture2D;

/// The surface of a piece of geometry: shared attribute objects, a layer and a texture per unit. It
/// also stands in the renderer's buckets and knows, weakly, the nodes that use it.
class Appearance : public Object3D {
 public:
  static boost::shared_ptr<Appearance> create();

  Appearance();
  ~Appearance() override;

  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  /// Also sets layer 0 and empties the textures, as many as the engine has units now.
  void reset() override;

  /// Each shares its argument; null detaches.
  void setMaterial(const boost::shared_ptr<Material>& material);
  const boost::shared_ptr<Material>& getMaterial() const { return material; }
  void setPolygonMode(const boost::shared_ptr<PolygonMode>& polygonMode);
  const boost::shared_ptr<PolygonMode>& getPolygonMode() const { return polygonMode; }
  void setCompositingMode(const boost::shared_ptr<CompositingMode>& compositingMode);
  const boost::shared_ptr<CompositingMode>& getCompositingMode() const { return compositingMode; }
  void setFog(const boost::shared_ptr<Fog>& fog);
  const boost::shared_ptr<Fog>& getFog() const { return fog; }
  /// -63 to 63; throws std::out_of_range otherwise.
  void setLayer(int layer);
  int getLayer() const { return layer; }
  /// Throws std::out_of_range for an index above the unit count. The count itself and negative
  /// indices pass and have no effect.
  void setTexture(int index, const boost::shared_ptr<Texture2D>& texture);
  /// Throws as setTexture does; empty for the count itself and for negative indices.
  boost::shared_ptr<Texture2D> getTexture(int index) const;

  int getTextureUnitCount() const { return static_cast<int>(textures.size()); }
  /// The texture of a unit, or empty; any index is fine.
  const boost::shared_ptr<Texture2D>& textureAt(int unit) const;

  /// Counts one more use by the node. The appearance does not own it.
  void addMeshReference(const boost::shared_ptr<Node>& node);
  /// Counts one use less; unknown nodes are ignored.
  void removeMeshReference(const boost::shared_ptr<Node>& node);
  /// The nodes that use the appearance, each once, in the order of their first registration. Nodes
  /// that have died are dropped.
  std::vector<boost::shared_ptr<Node>> getMeshes();
  /// The same into out, which is emptied first.
  void getMeshes(std::vector<boost::shared_ptr<Node>>& out);

  /// The next appearance in the renderer's bucket.
  const boost::weak_ptr<Appearance>& getRenderNext() const { return renderNext; }
  void setRenderNext(const boost::weak_ptr<Appearance>& next) { renderNext = next; }
  /// The stamp of the render that has put the appearance into a bucket; 0 for none. Lets the
  /// renderer see without a walk that the bucket holds it already.
  unsigned getQueuedInRender() const { return queuedInRender; }
  void setQueuedInRender(unsigned stamp) const { queuedInRender = stamp; }

 private:
  /// A user and the number of its uses.
  struct MeshReference {
    boost::weak_ptr<Node> node;
    int count;
  };
  using MeshList = std::list<MeshReference>;

  void checkTextureIndex(int index) const;
  MeshList::iterator dropMesh(MeshList::iterator mesh);
  void dropDeadMeshes();

  boost::weak_ptr<Appearance> renderNext;
  boost::shared_ptr<Material> material;
  boost::shared_ptr<PolygonMode> polygonMode;
  boost::shared_ptr<CompositingMode> compositingMode;
  boost::shared_ptr<Fog> fog;
  int layer = 0;
  std::vector<boost::shared_ptr<Texture2D>> textures;  // by unit
  MeshList meshes;                                     // in the order of registration
  std::map<boost::weak_ptr<Node>, MeshList::iterator, boost::owner_less<boost::weak_ptr<Node>>>
      meshesByOwner;
  std::size_t nextSweep = 64;  // count of users at which dead ones are looked for
  mutable unsigned queuedInRender = 0;
};

}  // namespace varnel_m3g

#endif
