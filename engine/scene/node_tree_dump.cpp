#include <cstddef>
#include <mutex>
#include <string>

#include "engine/object/log.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/scene/mesh.h"
#include "engine/scene/morphing_mesh.h"
#include "engine/scene/node.h"
#include "engine/scene/skinned_mesh.h"
#include "engine/scene/sprite3d.h"
#include "engine/scene/world.h"

namespace varnel_m3g {

namespace {

template <class T>
bool is(const Node& node) {
  return dynamic_cast<const T*>(&node) != nullptr;
}

// The most derived of the known classes.
const char* className(const Node& node) {
  if (is<World>(node)) {
    return "World";
  }
  if (is<Group>(node)) {
    return "Group";
  }
  if (is<SkinnedMesh>(node)) {
    return "SkinnedMesh";
  }
  if (is<MorphingMesh>(node)) {
    return "MorphingMesh";
  }
  if (is<Mesh>(node)) {
    return "Mesh";
  }
  if (is<Camera>(node)) {
    return "Camera";
  }
  if (is<Light>(node)) {
    return "Light";
  }
  if (is<Sprite3D>(node)) {
    return "Sprite3D";
  }
  return "Node";
}

const char* text(bool value) {
  return value ? "true" : "false";
}

}  // namespace

void Node::dumpTree(int level) {
  struct Step {
    Node* node;
    int level;
  };
  std::vector<Step> pending{{this, level}};
  while (!pending.empty()) {
    const Step step = pending.back();
    pending.pop_back();
    Node& node = *step.node;
    const std::size_t indent = step.level > 1 ? (static_cast<std::size_t>(step.level) - 1) * 4 : 0;
    log(std::string(indent, ' ') + "+---" + className(node) + " (" + text(node.debugFlag) + ", " +
        text(node.isUpdatePending()) + ", " + text(node.childUpdatePending) + ")");
    std::lock_guard<Mutex> lock(node.mutex);
    for (std::size_t i = node.children.size(); i > 0; --i) {
      pending.push_back({node.children[i - 1].get(), step.level + 1});
    }
  }
}

}  // namespace varnel_m3g
