#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <mutex>
#include <stdexcept>

#include "engine/math/rotation.h"
#include "engine/math/vector.h"
#include "engine/scene/node.h"

namespace varnel_m3g {

namespace {

// The axes that are turned to the targets.
const float Z_UNIT[4] = {0.0f, 0.0f, 1.0f, 0.0f};
const float Y_UNIT[4] = {0.0f, 1.0f, 0.0f, 0.0f};

// The homogeneous vector in the reference's coordinates that the target stands for.
void targetVector(int target, const char* failure, float* out) {
  static const float VECTORS[4][4] = {{0.0f, 0.0f, 0.0f, 1.0f},
                                      {1.0f, 0.0f, 0.0f, 0.0f},
                                      {0.0f, 1.0f, 0.0f, 0.0f},
                                      {0.0f, 0.0f, 1.0f, 0.0f}};
  if (target < Node::ORIGIN || target > Node::Z_AXIS) {
    throw std::runtime_error(failure);
  }
  const float* vector = VECTORS[target - Node::ORIGIN];
  std::copy(vector, vector + 4, out);
}

// More degrees than rounding makes of the angle of parallel vectors.
constexpr float ROUNDING = 1.0f;

// The rotation from one unit vector to another. Where they are parallel there is no axis, and what
// rounding has made of the angle goes: it is 0 or 180.
float rotationTo(const float* from, const float* to, float* axis) {
  const float angle = alignmentRotation(from, to, axis);
  if (std::isfinite(axis[0])) {
    return angle;
  }
  if (angle < ROUNDING) {
    return 0.0f;
  }
  return angle > 180.0f - ROUNDING ? 180.0f : angle;
}

float finiteOrZero(float value) {
  return std::isfinite(value) ? value : 0.0f;
}

}  // namespace

void Node::setAlignment(const boost::shared_ptr<Node>& zRef, int newZTarget,
                        const boost::shared_ptr<Node>& yRef, int newYTarget) {
  if (zRef) {
    if (!hasSameRoot(*zRef)) {
      throw std::invalid_argument(
          "Node.setAlignment -- no common ancestors between this node and zRef");
    }
    if (zRef->isDescendantOf(nodeFromThis())) {
      throw std::invalid_argument(" zRef is this node or a descendant of this node");
    }
  }
  if (yRef) {
    if (!hasSameRoot(*yRef)) {
      throw std::invalid_argument(
          "Node.setAlignment -- no common ancestors between this node and yRef");
    }
    if (yRef->isDescendantOf(nodeFromThis())) {
      throw std::invalid_argument(" yRef is this node or a descendant of this node");
    }
  }
  if (zRef == yRef && newZTarget == newYTarget && newZTarget != NONE) {
    throw std::invalid_argument(
        "Invalid configuration of alignment.  zRef == yRef and zTarget == yTarget != NONE");
  }
  zTarget = newZTarget;
  yTarget = newYTarget;
  zReference = zRef;
  yReference = yRef;
}

int Node::getAlignmentTarget(int axis) const {
  if (axis != Y_AXIS && axis != Z_AXIS) {
    throw std::invalid_argument("Node.getAlignment( )  -- axis not valid. ");
  }
  return axis == Y_AXIS ? yTarget : zTarget;
}

boost::shared_ptr<Node> Node::getAlignmentReference(int axis) const {
  if (axis != Y_AXIS && axis != Z_AXIS) {
    throw std::invalid_argument("Node.getAlignment( )  -- axis not valid. ");
  }
  return axis == Y_AXIS ? yReference.lock() : zReference.lock();
}

void Node::align(boost::shared_ptr<Node> reference) {
  if (!reference) {
    reference = nodeFromThis();
  }
  std::vector<Node*> pending{this};
  while (!pending.empty()) {
    Node& node = *pending.back();
    pending.pop_back();
    if (node.alignSelf(reference)) {
      std::lock_guard<Mutex> lock(node.mutex);
      for (std::size_t i = node.children.size(); i > 0; --i) {
        pending.push_back(node.children[i - 1].get());
      }
    }
  }
}

// False if the node has no alignment, which keeps its children out too.
bool Node::alignSelf(const boost::shared_ptr<Node>& reference) {
  if (zTarget == NONE && yTarget == NONE) {
    return false;
  }
  if (!hasSameRoot(*reference)) {
    throw std::invalid_argument(
        "Node.align - z-axis reference is not in the same scene graph as this node");
  }
  const boost::shared_ptr<Node> above = parent.lock();
  if (!above) {
    throw std::runtime_error("A node without a parent cannot be aligned");
  }
  // From root coordinates into this node's space, without its rotation.
  Transform toNode(above->world);
  float translation[3];
  getTranslation(translation);
  toNode.postTranslate(translation[0], translation[1], translation[2]);
  toNode.invert();

  Transform referenceWorld;
  boost::shared_ptr<Node> zNode;
  float axis[3];
  if (zTarget != NONE) {
    zNode = zReference.lock();
    if (!zNode) {
      zNode = reference;
    }
    if (!hasSameRoot(*zNode)) {
      throw std::runtime_error(
          "Node.align - z-axis reference is not in the same scene graph as this node");
    }
    if (zNode.get() == this) {
      throw std::runtime_error("Node.align - z-axis reference is aligned to itself or a decendent");
    }
    referenceWorld.set(zNode->world);
    float v[4];
    targetVector(zTarget, "Node.align -- internal error encountered. Invalid zTarget", v);
    referenceWorld.transform(v, 4);
    toNode.transform(v, 4);
    normalizeVector(v);
    const float angle = rotationTo(Z_UNIT, v, axis);
    if (angle == 180.0f) {
      // Opposite vectors have no cross product; the turn is about y.
      axis[0] = finiteOrZero(axis[0]);
      axis[1] = 1.0f;
      axis[2] = finiteOrZero(axis[2]);
    }
    if (angle != 0.0f) {
      setOrientation(angle, axis[0], axis[1], axis[2]);
      toNode.postRotate(-angle, axis[0], axis[1], axis[2]);
    }
  } else {
    setOrientation(0.0f, 0.0f, 0.0f, 1.0f);
  }

  if (yTarget != NONE) {
    boost::shared_ptr<Node> yNode = yReference.lock();
    if (!yNode) {
      yNode = reference;
    }
    if (!hasSameRoot(*yNode)) {
      throw std::runtime_error(
          "Node.align - y-axis reference is not in the same scene graph as this node");
    }
    if (yNode.get() == this) {
      throw std::runtime_error("Node.align - y-axis reference is aligned to itself or a decendent");
    }
    if (yNode != zNode) {
      referenceWorld.set(yNode->world);
    }
    float v[4];
    targetVector(yTarget, "Node.align -- internal error encountered. Invalid yTarget", v);
    referenceWorld.transform(v, 4);
    toNode.transform(v, 4);
    // Into the xy plane of the frame that the z axis has turned.
    v[2] = 0.0f;
    normalizeVector(v);
    if (vectorLength(v) == 0.0f) {
      std::fputs("y mag == 0 \n", stdout);
      std::fflush(stdout);
    } else {
      const float angle = rotationTo(Y_UNIT, v, axis);
      if (angle != 0.0f) {
        postRotate(angle, axis[0], axis[1], axis[2]);
      }
    }
  }
  return true;
}

}  // namespace varnel_m3g
