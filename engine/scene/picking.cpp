#include <boost/pointer_cast.hpp>
#include <cstddef>
#include <mutex>
#include <stdexcept>

#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/mesh.h"
#include "engine/scene/ray_intersection.h"

namespace varnel_m3g {

namespace {

float centred(float coordinate, double scale) {
  return static_cast<float>((static_cast<double>(coordinate) - 0.5) * scale);
}

}  // namespace

bool Group::pickThroughCamera(int scope, float x, float y, const boost::shared_ptr<Camera>& camera,
                              RayIntersection* result) {
  if (!camera) {
    throw std::invalid_argument("Group.pick called with null camera argument ");
  }
  float p[4] = {0.0f, 0.0f, 0.0f, 1.0f};
  float q[4] = {centred(x, 2.0), centred(y, -2.0), -1.0f, 1.0f};
  // Through the row-major setter, which clears the identity flag, so that the projection counts.
  Transform columns;
  camera->getProjectionMatrix(columns.data());
  float rows[16];
  columns.get(rows);
  Transform inverse;
  inverse.set(rows);
  inverse.invert();
  inverse.transform(q, 4);
  for (float& element : q) {
    element = static_cast<float>(static_cast<double>(element) / static_cast<double>(q[3]));
  }
  q[0] = static_cast<float>(static_cast<double>(q[0]) * 2.0);
  q[1] = static_cast<float>(static_cast<double>(q[1]) * 2.0);
  Transform toGroup;
  camera->getTransformTo(nodeFromThis(), toGroup);
  toGroup.transform(p, 4);
  toGroup.transform(q, 4);
  return pick(scope, p[0], p[1], p[2], q[0], q[1], q[2], result);
}

bool Node::pick(int, float ox, float oy, float oz, float dx, float dy, float dz,
                RayIntersection* result) {
  if (dx == 0.0f && dy == 0.0f && dz == 0.0f) {
    throw std::invalid_argument("No direction vector specified!");
  }
  updateFromRoot();
  RayIntersection unwanted;
  RayIntersection& found = result != nullptr ? *result : unwanted;
  const float origin[3] = {ox, oy, oz};
  const float direction[3] = {dx, dy, dz};
  found.setRay(origin, direction);
  pickCandidates.clear();
  collectCandidates(*this);
  if (pickCandidates.empty()) {
    return false;
  }
  const boost::shared_ptr<Node> self = nodeFromThis();
  for (Mesh* candidate : pickCandidates) {
    Transform toThis;
    candidate->getTransformTo(self, toThis);
    candidate->pickRay(origin, direction, toThis, found);
  }
  pickCandidates.clear();
  return found.getDistance() != 0.0f;
}

bool Node::passesPick(const Node& node) const {
  return node.pickingEnabled && node.renderingEnabled && (node.scope & scope) != 0;
}

// The meshes of a subtree that may be picked, in the order of the tree. What does not pass hides
// all that is below it.
void Node::collectCandidates(Node& top) {
  std::vector<Node*> pending{&top};
  while (!pending.empty()) {
    Node& node = *pending.back();
    pending.pop_back();
    if (!passesPick(node)) {
      continue;
    }
    if (Mesh* mesh = dynamic_cast<Mesh*>(&node)) {
      pickCandidates.push_back(mesh);
    } else if (dynamic_cast<Group*>(&node) != nullptr) {
      std::lock_guard<Mutex> lock(node.mutex);
      for (std::size_t i = node.children.size(); i > 0; --i) {
        pending.push_back(node.children[i - 1].get());
      }
    }
  }
}

}  // namespace varnel_m3g
