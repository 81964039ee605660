#include "engine/scene/node.h"

#include <boost/pointer_cast.hpp>
#include <cstddef>
#include <mutex>
#include <stdexcept>
#include <utility>

#include "engine/object/deferred_release.h"
#include "engine/object/log.h"
#include "engine/scene/group.h"
#include "engine/scene/world.h"

namespace varnel_m3g {

namespace {

const char* alignmentTargetName(int target) {
  switch (target) {
    case Node::NONE:
      return "NONE";
    case Node::ORIGIN:
      return "ORGIN";
    case Node::X_AXIS:
      return "X_AXIS";
    case Node::Y_AXIS:
      return "Y_AXIS";
    case Node::Z_AXIS:
      return "Z_AXIS";
    default:
      return "UNKNOWN";
  }
}

// One node of a world update: what its parent hands down.
struct UpdateStep {
  Node* node;
  bool force;
  const Transform* parentWorld;
};

void pushChildren(std::vector<UpdateStep>& pending, const Node& node, bool force) {
  const std::vector<boost::shared_ptr<Node>>& children = node.childList();
  for (std::size_t i = children.size(); i > 0; --i) {
    pending.push_back({children[i - 1].get(), force, &node.worldTransform()});
  }
}

// A group whose copy has no children yet.
struct CopyStep {
  boost::shared_ptr<Node> source;
  boost::shared_ptr<Node> copy;
  std::size_t next = 0;
};

// Where a duplication inside another one leaves its groups, so that the outermost fills them all
// and the depth of the tree does not matter.
thread_local std::vector<CopyStep>* groupsToFill = nullptr;

class GroupsToFillScope {
 public:
  explicit GroupsToFillScope(std::vector<CopyStep>& found) { groupsToFill = &found; }
  ~GroupsToFillScope() { groupsToFill = nullptr; }
  GroupsToFillScope(const GroupsToFillScope&) = delete;
  GroupsToFillScope& operator=(const GroupsToFillScope&) = delete;
};

}  // namespace

bool Transformable::isNode() const {
  return dynamic_cast<const Node*>(this) != nullptr;
}

Node::~Node() {
  for (boost::shared_ptr<Node>& child : children) {
    releaseDeferred(std::move(child));
  }
}

void Node::initialise() {
  Transformable::initialise();
  setNodeDefaults();
}

void Node::setNodeDefaults() {
  effectiveRenderingEnabled = true;
  world.setIdentity();
  debugFlag = false;
  childUpdatePending = false;
  effectiveAlpha = 1.0f;
  pickingEnabled = true;
  renderingEnabled = true;
  alphaFactor = 1.0f;
  zReference.reset();
  zTarget = NONE;
  yReference.reset();
  yTarget = NONE;
  scope = -1;
  rootNode = nodeFromThis();
  depth = 0;
}

boost::shared_ptr<Node> Node::nodeFromThis() {
  return boost::static_pointer_cast<Node>(shared_from_this());
}

unsigned Node::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Transformable::getReferences(references, max);
  std::lock_guard<Mutex> lock(mutex);
  if (references == nullptr) {
    return count + static_cast<unsigned>(children.size());
  }
  for (const boost::shared_ptr<Node>& child : children) {
    if (count >= max) {
      throw std::invalid_argument("Node::getReferences: maxReferences exceeded.");
    }
    references[count++] = child;
  }
  return count;
}

void Node::dump() {
  Transformable::dump();
  log("Node Object");
  log("===========");
  logf("EnableRendering: %u", static_cast<unsigned>(renderingEnabled));
  logf("EnablePicking:   %u", static_cast<unsigned>(pickingEnabled));
  logf("AlphaFactor: %8.4f", static_cast<double>(alphaFactor));
  logf("Scope: %u", static_cast<unsigned>(scope));
  logf("zTarget: %s", alignmentTargetName(zTarget));
  logf("yTarget: %s", alignmentTargetName(yTarget));
  if (const boost::shared_ptr<Node> reference = zReference.lock()) {
    logf("zAlignementRef ID: %u", static_cast<unsigned>(reference->getUserID()));
  }
  if (const boost::shared_ptr<Node> reference = yReference.lock()) {
    logf("yAlignementRef ID: %u", static_cast<unsigned>(reference->getUserID()));
  }
}

boost::shared_ptr<Object3D> Node::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = Group::create();
  }
  Transformable::duplicateImpl(target);
  const boost::shared_ptr<Node> copy = boost::dynamic_pointer_cast<Node>(target);
  copy->setChildUpdatePending(true);
  copy->setAlphaFactor(alphaFactor);
  copy->pickingEnabled = pickingEnabled;
  copy->setRenderingEnable(renderingEnabled);
  copy->setScope(scope);
  copy->setAlignment(zReference.lock(), zTarget, yReference.lock(), yTarget);
  if (boost::dynamic_pointer_cast<Group>(copy)) {
    copyChildren(copy);
  }
  return target;
}

void Node::copyChildren(const boost::shared_ptr<Node>& copy) {
  if (groupsToFill != nullptr) {
    groupsToFill->push_back({nodeFromThis(), copy});
    return;
  }
  std::vector<CopyStep> found;
  const GroupsToFillScope scopeOfThisRun(found);
  std::vector<CopyStep> path{{nodeFromThis(), copy}};
  while (!path.empty()) {
    CopyStep& step = path.back();
    if (step.next == step.source->children.size()) {
      path.pop_back();
      continue;
    }
    const boost::shared_ptr<Node> child = step.source->children[step.next++];
    step.copy->addChild(boost::dynamic_pointer_cast<Node>(child->duplicate()));
    for (CopyStep& group : found) {
      path.push_back(std::move(group));
    }
    found.clear();
  }
}

void Node::reset() {
  Transformable::reset();
  pickingEnabled = true;
  renderingEnabled = true;
}

void Node::setUpdatePending(bool pending) {
  Transformable::setUpdatePending(pending);
  if (pending) {
    if (const boost::shared_ptr<Node> above = parent.lock()) {
      above->setChildUpdatePending(true);
    }
  }
}

void Node::setRenderingEnable(bool enable) {
  renderingEnabled = enable;
}

void Node::addChild(boost::shared_ptr<Node> child) {
  if (adopt(child)) {
    child->updateSceneGraphInfo(nodeFromThis());
  }
}

bool Node::adopt(const boost::shared_ptr<Node>& child) {
  if (!child) {
    throw std::invalid_argument("child is null.");
  }
  if (child.get() == this) {
    throw std::invalid_argument("Attempt to add this Node as own child");
  }
  if (boost::dynamic_pointer_cast<World>(child)) {
    throw std::invalid_argument(
        "Child is a instance of World and must remain the root of the scene.");
  }
  if (const boost::shared_ptr<Node> present = child->parent.lock()) {
    if (present.get() == this) {
      return false;
    }
    throw std::invalid_argument("Attempt to add a child that already has a parent");
  }
  // A node above this one that has no parent is its root, unless the root has died and left its
  // children behind.
  const boost::shared_ptr<Node> root = rootNode.lock();
  if (root == child || (!root && isDescendantOf(child))) {
    throw std::invalid_argument("child is an ancestor of this Patch");
  }
  {
    std::lock_guard<Mutex> lock(mutex);
    children.push_back(child);
  }
  child->parent = nodeFromThis();
  return true;
}

void Node::removeChild(boost::shared_ptr<Node> child) {
  if (!child) {
    return;
  }
  {
    std::lock_guard<Mutex> lock(mutex);
    // From both ends, where children mostly leave.
    const std::size_t count = children.size();
    std::size_t index = count;
    for (std::size_t i = 0; i < count && index == count; ++i) {
      if (children[count - 1 - i] == child) {
        index = count - 1 - i;
      } else if (children[i] == child) {
        index = i;
      }
    }
    if (index == count) {
      return;
    }
    children.erase(children.begin() + static_cast<std::ptrdiff_t>(index));
  }
  child->parent.reset();
  child->updateSceneGraphInfo(boost::weak_ptr<Node>());
}

unsigned Node::getChildCount() {
  return static_cast<unsigned>(children.size());
}

boost::shared_ptr<Node> Node::getChild(unsigned index) {
  if (index >= children.size()) {
    throw std::out_of_range(
        "child index must be non-negative and less than the size of the child array");
  }
  return children[index];
}

void Node::setRoot(boost::weak_ptr<Node> root) {
  rootNode = std::move(root);
}

void Node::traverseChildren(NodeTraverser& traverser) {
  std::lock_guard<Mutex> lock(mutex);
  for (const boost::shared_ptr<Node>& child : children) {
    traverser.traverse(child);
  }
}

void Node::setAlphaFactor(float factor) {
  if (factor < 0.0f || factor > 1.0f) {
    throw std::invalid_argument("Node.setAlphaFactor  invalid value for alphaFactor arg.");
  }
  alphaFactor = factor;
}

bool Node::hasSameRoot(const Node& other) const {
  // By owner, so that two dead roots are told apart.
  return !rootNode.owner_before(other.rootNode) && !other.rootNode.owner_before(rootNode);
}

bool Node::isDescendantOf(const boost::shared_ptr<Node>& node) const {
  if (node.get() == this) {
    return true;
  }
  boost::shared_ptr<Node> above = parent.lock();
  while (above && above != node) {
    above = above->parent.lock();
  }
  return above != nullptr;
}

void Node::updateSceneGraphInfo(boost::weak_ptr<Node> newParent) {
  if (newParent.lock().get() == this) {
    throw std::invalid_argument(
        "Node.updateSceneGraphInfo( )  --  incorrect update to parent.. setting parent = this");
  }
  parent = newParent;
  // Parents first, so that a node finds its parent's root and depth in place.
  std::vector<Node*> pending{this};
  while (!pending.empty()) {
    Node& node = *pending.back();
    pending.pop_back();
    if (const boost::shared_ptr<Node> above = node.parent.lock()) {
      node.setRoot(above->rootNode);
      node.depth = above->depth + 1;
    } else {
      node.setRoot(node.nodeFromThis());
      node.depth = 0;
    }
    node.setUpdatePending(true);
    std::lock_guard<Mutex> lock(node.mutex);
    for (std::size_t i = node.children.size(); i > 0; --i) {
      pending.push_back(node.children[i - 1].get());
    }
  }
}

bool Node::getTransformTo(const boost::shared_ptr<Node>& target, Transform& out) {
  if (!target) {
    throw std::invalid_argument("The target of getTransformTo is null");
  }
  if (!hasSameRoot(*target)) {
    return false;
  }
  updateFromRoot();
  if (target.get() == this) {
    out.setIdentity();
  } else if (target == rootNode.lock()) {
    out.set(world);
  } else if (rootNode.lock().get() == this) {
    Transform inverse(target->world);
    inverse.invert();
    out.set(inverse);
  } else {
    Transform between(target->world);
    between.invert();
    between.postMultiply(world);
    out.set(between);
  }
  return true;
}

boost::weak_ptr<Node> Node::getWorldTransform(Transform& out) const {
  out.set(world);
  return rootNode;
}

void Node::setChildUpdatePending(bool pending) {
  if (childUpdatePending == pending) {
    return;
  }
  childUpdatePending = pending;
  boost::shared_ptr<Node> above = parent.lock();
  while (above && above->childUpdatePending != pending) {
    above->childUpdatePending = pending;
    above = above->parent.lock();
  }
}

void Node::updateFromRoot() {
  // The root is handed its own matrix as its parent's.
  if (const boost::shared_ptr<Node> root = rootNode.lock()) {
    root->updateWorldTransforms(false, root->world);
  }
}

bool Node::updateWorldTransforms(bool force, const Transform& parentWorld) {
  const bool visitChildren = childUpdatePending;
  const bool changed = updateOwnWorldTransform(force, parentWorld);
  if (!changed && !visitChildren) {
    return false;
  }
  std::vector<UpdateStep> pending;
  {
    std::lock_guard<Mutex> lock(mutex);
    pushChildren(pending, *this, changed);
  }
  while (!pending.empty()) {
    const UpdateStep step = pending.back();
    pending.pop_back();
    const bool visitBelow = step.node->childUpdatePending;
    const bool stepChanged = step.node->updateOwnWorldTransform(step.force, *step.parentWorld);
    if (stepChanged || visitBelow) {
      std::lock_guard<Mutex> lock(step.node->mutex);
      pushChildren(pending, *step.node, stepChanged);
    }
  }
  return changed;
}

bool Node::updateOwnWorldTransform(bool force, const Transform& parentWorld) {
  const bool changed = force || isUpdatePending();
  if (changed) {
    const Transform& composite = updateComposite();
    if (&parentWorld != &world) {
      world.set(parentWorld);
    }
    world.postMultiply(composite);
    setUpdatePending(false);
  }
  setChildUpdatePending(false);
  return changed;
}

}  // namespace varnel_m3g
