#ifndef VARNEL_ENGINE_SCENE_WORLD_H
#define VARNEL_ENGINE_SCENE_WORLD_H

#include "engine/scene/group.h"
#include "engine/scene/node_registry.h"

namespace varnel_m3g {

class Background;
class Light;

/// The root of a whole scene: it names the active camera and the background, and lists the cameras
/// and lights that stand below it.
class World : public Group {
 public:
  static boost::shared_ptr<World> create();
  World();
  ~World() override;

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  /// The copy shares the background and has no active camera.
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  void reset() override;

  /// Null clears.
  void setBackground(const boost::shared_ptr<Background>& newBackground);
  const boost::shared_ptr<Background>& getBackground() const { return background; }
  /// Throws std::invalid_argument for null.
  void setActiveCamera(const boost::shared_ptr<Camera>& camera);
  const boost::shared_ptr<Camera>& getActiveCamera() const { return activeCamera; }

  // Called by cameras and lights when their root changes.
  void addCamera(const boost::shared_ptr<Camera>& camera);
  void removeCamera(const boost::shared_ptr<Camera>& camera);
  void addLight(const boost::shared_ptr<Light>& light);
  void removeLight(const boost::shared_ptr<Light>& light);
  /// The cameras and lights whose root this world is, in the order in which they came to it.
  const std::vector<boost::shared_ptr<Camera>>& getCameras() { return cameras.entries(); }
  const std::vector<boost::shared_ptr<Light>>& getLights() { return lights.entries(); }

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 protected:
  void initialise();

 private:
  boost::shared_ptr<Background> background;
  boost::shared_ptr<Camera> activeCamera;
  NodeRegistry<Camera> cameras;
  NodeRegistry<Light> lights;
};

}  // namespace varnel_m3g

#endif
