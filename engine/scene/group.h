#ifndef VARNEL_ENGINE_SCENE_GROUP_H
#define VARNEL_ENGINE_SCENE_GROUP_H

#include "engine/scene/node.h"

namespace varnel_m3g {

class Camera;

/// A node whose children the application manages.
class Group : public Node {
 public:
  static boost::shared_ptr<Group> create();
  Group() = default;

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  void addChild(boost::shared_ptr<Node> child) override;
  void removeChild(boost::shared_ptr<Node> child) override;
  unsigned getChildCount() override;
  bool pick(int scope, float ox, float oy, float oz, float dx, float dy, float dz,
            RayIntersection* result) override;
  using Node::getChild;
  virtual void getChild(boost::shared_ptr<Node>& out, unsigned index);

  /// Picks through a point of the camera's picture, (0, 0) at its upper left and (1, 1) at its
  /// lower right. Throws std::invalid_argument for a null camera and std::underflow_error for a
  /// projection that cannot be inverted.
  bool pickThroughCamera(int scope, float x, float y, const boost::shared_ptr<Camera>& camera,
                         RayIntersection* result);

  void load(M3gObjectInputStream& stream, ObjectTable& table);
};

}  // namespace varnel_m3g

#endif
