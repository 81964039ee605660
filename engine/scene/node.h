#ifndef VARNEL_ENGINE_SCENE_NODE_H
#define VARNEL_ENGINE_SCENE_NODE_H

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>
#include <vector>

#include "engine/math/transform.h"
#include "engine/math/transformable.h"
#include "engine/object/java_types.h"
#include "engine/object/object_table.h"
#include "engine/scene/mutex.h"

namespace varnel_m3g {

class M3gObjectInputStream;
class Mesh;
class RayIntersection;

/// Base of everything that stands in the scene tree. It owns its children; the links to the parent,
/// the root and the alignment references are weak. Walks over a subtree are iterative and visit
/// each node once, so that their cost is linear at any depth and width.
class Node : public Transformable {
 public:
  /// Alignment targets.
  enum { NONE = 0, ORIGIN = 1, X_AXIS = 2, Y_AXIS = 3, Z_AXIS = 4 };

  /// What traverseChildren() hands the children to.
  class NodeTraverser {
   public:
    virtual ~NodeTraverser() = default;
    virtual void traverse(const boost::shared_ptr<Node>& child) = 0;
  };

  ~Node() override;

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  void dump() override;
  /// Copies the node's own state and, if the copy is a Group, the whole subtree below it. A copy of
  /// a bare node is a Group. Throws std::invalid_argument where an alignment reference is set,
  /// since the copy stands in no tree with it.
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  void reset() override;
  void setUpdatePending(bool pending) override;

  virtual void setRenderingEnable(bool enable);
  /// Appends a child that has no parent; a child of this node already is left where it is. Throws
  /// std::invalid_argument for null, this node, a World, a child of another parent and the root of
  /// this node's tree.
  virtual void addChild(boost::shared_ptr<Node> child);
  /// Takes the child out and makes it the root of its own tree; anything else is ignored.
  virtual void removeChild(boost::shared_ptr<Node> child);
  virtual unsigned getChildCount();
  /// Throws std::out_of_range at and above the number of children.
  virtual boost::shared_ptr<Node> getChild(unsigned index);
  /// Shoots a ray from the first point through the second, both in this node's coordinates, and
  /// leaves the nearest hit in the result, which may be null. The scope is not read: this node's
  /// own one chooses. Throws std::invalid_argument if the second point is the zero vector and
  /// std::underflow_error where a transform on the way cannot be inverted.
  virtual bool pick(int scope, float ox, float oy, float oz, float dx, float dy, float dz,
                    RayIntersection* result);
  /// Takes the root of the tree that this node now stands in. It is called once for each node of a
  /// subtree that changes its tree, parents first, and speaks for this node alone.
  virtual void setRoot(boost::weak_ptr<Node> root);

  void traverseChildren(NodeTraverser& traverser);
  /// The children in order of adding.
  const std::vector<boost::shared_ptr<Node>>& childList() const { return children; }

  void setPickingEnable(bool enable) { pickingEnabled = enable; }
  bool isPickingEnabled() const { return pickingEnabled; }
  bool isRenderingEnabled() const { return renderingEnabled; }
  /// Throws std::invalid_argument outside 0 to 1.
  void setAlphaFactor(float factor);
  float getAlphaFactor() const { return alphaFactor; }
  void setScope(int bits) { scope = bits; }
  int getScope() const { return scope; }
  /// Empty at a root, and once the parent is gone.
  boost::shared_ptr<Node> getParent() const { return parent.lock(); }
  /// 0 at a root.
  int getDepth() const { return depth; }

  /// The top of this node's tree; expired when that node is gone.
  const boost::weak_ptr<Node>& getRoot() const { return rootNode; }
  /// Whether the other node names the same root as this one.
  bool hasSameRoot(const Node& other) const;
  /// True for the node itself and for every node above this one.
  bool isDescendantOf(const boost::shared_ptr<Node>& node) const;
  /// Throws std::invalid_argument if the child would become its own parent. Hands the new root,
  /// depth and a pending update to the whole subtree; an empty parent makes this node a root.
  void updateSceneGraphInfo(boost::weak_ptr<Node> newParent);

  /// Writes the transform from this node's coordinates to the target's. False, with nothing
  /// written, if the two have no common root. Throws std::invalid_argument for a null target and
  /// std::underflow_error if the target's world transform cannot be inverted.
  bool getTransformTo(const boost::shared_ptr<Node>& target, Transform& out);
  /// Copies the world transform as it stands and returns the root.
  boost::weak_ptr<Node> getWorldTransform(Transform& out) const;
  /// The transform to root coordinates as last brought up to date.
  const Transform& worldTransform() const { return world; }
  using Transformable::isUpdatePending;
  /// Notes that some node below has a pending update; climbs as long as that is news.
  void setChildUpdatePending(bool pending);
  bool isChildUpdatePending() const { return childUpdatePending; }
  /// Brings the world transforms of this subtree up to date, below a parent with the given world
  /// transform; subtrees with nothing pending are skipped unless forced. Returns whether this
  /// node's own one was computed.
  bool updateWorldTransforms(bool force, const Transform& parentWorld);
  /// The same for this node alone.
  bool updateOwnWorldTransform(bool force, const Transform& parentWorld);

  /// Stores what align() turns the z and y axes to; references may be empty. Throws
  /// std::invalid_argument, with nothing stored, for a reference outside the tree or below this
  /// node and for two equal settings.
  void setAlignment(const boost::shared_ptr<Node>& zRef, int newZTarget,
                    const boost::shared_ptr<Node>& yRef, int newYTarget);
  /// The axis is Y_AXIS or Z_AXIS; throws std::invalid_argument for others.
  int getAlignmentTarget(int axis) const;
  boost::shared_ptr<Node> getAlignmentReference(int axis) const;
  /// Turns this node and its subtree to their alignment targets, by the world transforms as they
  /// stand; an empty reference means this node. Throws std::invalid_argument or std::runtime_error
  /// in the middle of the work where a reference does not serve.
  void align(boost::shared_ptr<Node> reference);

  /// Writes the subtree to the standard output, a line for each node.
  void dumpTree(int level);

  // Values that the renderer's first pass leaves for its second.
  float getEffectiveAlpha() const { return effectiveAlpha; }
  void setEffectiveAlpha(float alpha) { effectiveAlpha = alpha; }
  bool isEffectiveRenderingEnabled() const { return effectiveRenderingEnabled; }
  void setEffectiveRenderingEnabled(bool enabled) { effectiveRenderingEnabled = enabled; }

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 protected:
  Node() = default;
  /// Sets the defaults and makes the node its own root; it must be held by a shared_ptr.
  void initialise();
  boost::shared_ptr<Node> nodeFromThis();
  /// The checks and the linking of addChild() alone: root, depth and pending updates of the child's
  /// subtree wait for updateSceneGraphInfo() of a node above. False if the child is one already.
  bool adopt(const boost::shared_ptr<Node>& child);

 private:
  /// Sets the node's own defaults and makes it its own root.
  void setNodeDefaults();
  void copyChildren(const boost::shared_ptr<Node>& copy);
  bool alignSelf(const boost::shared_ptr<Node>& reference);
  void updateFromRoot();
  void collectCandidates(Node& top);
  bool passesPick(const Node& node) const;

  bool effectiveRenderingEnabled = true;
  Transform world;
  bool debugFlag = false;
  bool childUpdatePending = false;
  float effectiveAlpha = 1.0f;
  std::vector<boost::shared_ptr<Node>> children;
  std::vector<Mesh*> pickCandidates;
  boost::weak_ptr<Node> parent;
  bool pickingEnabled = true;
  bool renderingEnabled = true;
  float alphaFactor = 1.0f;
  boost::weak_ptr<Node> zReference;
  int zTarget = NONE;
  boost::weak_ptr<Node> yReference;
  int yTarget = NONE;
  int scope = -1;
  boost::weak_ptr<Node> rootNode;
  int depth = 0;
  Mutex mutex;
};

}  // namespace varnel_m3g

#endif
