#include "engine/scene/node.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/scene/world.h"
#include "tests/support/exception_text.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using varnel_test::textOf;

// Notes the calls of the virtual operations of attaching.
class WatchedGroup : public Group {
 public:
  static shared_ptr<WatchedGroup> create() {
    shared_ptr<WatchedGroup> group(new WatchedGroup);
    group->initialise();
    group->roots.clear();
    group->pending.clear();
    return group;
  }
  void setRoot(boost::weak_ptr<Node> root) override {
    roots.push_back(root.lock().get());
    Group::setRoot(root);
  }
  void setUpdatePending(bool value) override {
    pending.push_back(value);
    Group::setUpdatePending(value);
  }
  std::vector<Node*> roots;
  std::vector<bool> pending;
};

std::vector<float> elements(const Transform& transform) {
  return std::vector<float>(transform.data(), transform.data() + 16);
}

Transform translation(float x, float y, float z) {
  Transform transform;
  transform.postTranslate(x, y, z);
  return transform;
}

// A root with a branch of two and a lone child: root -> (a -> leaf, b).
struct SmallTree {
  shared_ptr<Group> root = Group::create();
  shared_ptr<Group> a = Group::create();
  shared_ptr<Group> b = Group::create();
  shared_ptr<Group> leaf = Group::create();
  SmallTree() {
    root->addChild(a);
    a->addChild(leaf);
    root->addChild(b);
  }
  void update() { root->updateWorldTransforms(false, root->worldTransform()); }
};

TEST(Node, StartsWithItsDefaults) {
  const shared_ptr<Group> node = Group::create();
  EXPECT_TRUE(node->isPickingEnabled());
  EXPECT_TRUE(node->isRenderingEnabled());
  EXPECT_TRUE(node->isEffectiveRenderingEnabled());
  EXPECT_EQ(node->getEffectiveAlpha(), 1.0f);
  EXPECT_EQ(node->getAlphaFactor(), 1.0f);
  EXPECT_EQ(node->getScope(), -1);
  EXPECT_EQ(node->getDepth(), 0);
  EXPECT_EQ(node->getRoot().lock(), node);
  EXPECT_FALSE(node->getParent());
  EXPECT_EQ(node->getChildCount(), 0U);
  EXPECT_TRUE(node->worldTransform().isIdentity());
  EXPECT_TRUE(node->isUpdatePending());
  EXPECT_FALSE(node->isChildUpdatePending());
  EXPECT_EQ(node->getAlignmentTarget(Node::Z_AXIS), Node::NONE);
  EXPECT_EQ(node->getAlignmentTarget(Node::Y_AXIS), Node::NONE);
}

TEST(Node, ResetTouchesTheTwoSwitchesOnly) {
  const shared_ptr<Group> node = Group::create();
  node->setPickingEnable(false);
  node->setRenderingEnable(false);
  node->setAlphaFactor(0.5f);
  node->setScope(4);
  node->reset();
  EXPECT_TRUE(node->isPickingEnabled());
  EXPECT_TRUE(node->isRenderingEnabled());
  EXPECT_EQ(node->getAlphaFactor(), 0.5f);
  EXPECT_EQ(node->getScope(), 4);
}

TEST(NodeAddChild, RefusesNull) {
  const shared_ptr<Group> group = Group::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { group->addChild({}); }), "child is null.");
}

TEST(NodeAddChild, RefusesItself) {
  const shared_ptr<Group> group = Group::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { group->addChild(group); }),
            "Attempt to add this Node as own child");
}

TEST(NodeAddChild, AWorldThatIsAddedToItselfIsRefusedAsItself) {
  const shared_ptr<World> world = World::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { world->addChild(world); }),
            "Attempt to add this Node as own child");
}

TEST(NodeAddChild, RefusesAWorld) {
  const shared_ptr<Group> group = Group::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { group->addChild(World::create()); }),
            "Child is a instance of World and must remain the root of the scene.");
}

TEST(NodeAddChild, TwiceToTheSameParentLeavesOneEntry) {
  const shared_ptr<Group> group = Group::create();
  const shared_ptr<Group> child = Group::create();
  group->addChild(child);
  group->addChild(child);
  EXPECT_EQ(group->getChildCount(), 1U);
}

TEST(NodeAddChild, RefusesAChildOfAnotherParent) {
  SmallTree tree;
  EXPECT_EQ(textOf<std::invalid_argument>([&] { tree.b->addChild(tree.leaf); }),
            "Attempt to add a child that already has a parent");
  EXPECT_EQ(tree.leaf->getParent(), tree.a);
}

TEST(NodeAddChild, RefusesItsOwnRoot) {
  SmallTree tree;
  EXPECT_EQ(textOf<std::invalid_argument>([&] { tree.leaf->addChild(tree.root); }),
            "child is an ancestor of this Patch");
  EXPECT_EQ(tree.leaf->getChildCount(), 0U);
}

TEST(NodeAddChild, AnAncestorBelowTheRootIsRefusedForItsParent) {
  SmallTree tree;
  EXPECT_EQ(textOf<std::invalid_argument>([&] { tree.leaf->addChild(tree.a); }),
            "Attempt to add a child that already has a parent");
}

TEST(NodeAddChild, AcceptsAnOrphanOfADeadParent) {
  const shared_ptr<Group> child = Group::create();
  {
    const shared_ptr<Group> gone = Group::create();
    gone->addChild(child);
  }
  EXPECT_FALSE(child->getParent());
  const shared_ptr<Group> group = Group::create();
  group->addChild(child);
  EXPECT_EQ(child->getParent(), group);
  EXPECT_EQ(child->getRoot().lock(), group);
}

TEST(NodeAddChild, RefusesTheTopOfATreeWhoseRootHasDied) {
  const shared_ptr<Group> top = Group::create();
  const shared_ptr<Group> leaf = Group::create();
  top->addChild(leaf);
  Group::create()->addChild(top);
  ASSERT_TRUE(leaf->getRoot().expired());
  EXPECT_EQ(textOf<std::invalid_argument>([&] { leaf->addChild(top); }),
            "child is an ancestor of this Patch");
}

TEST(NodeAddChild, HandsRootAndDepthToTheSubtreeOnceEach) {
  const shared_ptr<WatchedGroup> top = WatchedGroup::create();
  const shared_ptr<WatchedGroup> below = WatchedGroup::create();
  const shared_ptr<WatchedGroup> lowest = WatchedGroup::create();
  below->addChild(lowest);
  top->addChild(below);
  for (const auto& node : {top, below, lowest}) {
    node->roots.clear();
    node->pending.clear();
  }
  const shared_ptr<Group> root = Group::create();
  const shared_ptr<Group> middle = Group::create();
  root->addChild(middle);
  middle->addChild(top);
  int depth = 2;
  for (const auto& node : {top, below, lowest}) {
    EXPECT_THAT(node->roots, ElementsAre(root.get()));
    EXPECT_THAT(node->pending, ElementsAre(true));
    EXPECT_EQ(node->getDepth(), depth++);
  }
}

TEST(NodeRemoveChild, IgnoresNullAndStrangers) {
  SmallTree tree;
  tree.root->removeChild({});
  tree.root->removeChild(tree.leaf);
  tree.root->removeChild(Group::create());
  EXPECT_EQ(tree.root->getChildCount(), 2U);
  EXPECT_EQ(tree.leaf->getParent(), tree.a);
}

TEST(NodeRemoveChild, TheSubtreeGetsItsOwnRootAndDepths) {
  SmallTree tree;
  tree.root->removeChild(tree.a);
  EXPECT_EQ(tree.root->getChildCount(), 1U);
  EXPECT_FALSE(tree.a->getParent());
  EXPECT_EQ(tree.a->getDepth(), 0);
  EXPECT_EQ(tree.a->getRoot().lock(), tree.a);
  EXPECT_EQ(tree.leaf->getDepth(), 1);
  EXPECT_EQ(tree.leaf->getRoot().lock(), tree.a);
}

TEST(NodeGetChild, KeepsTheOrderOfAdding) {
  SmallTree tree;
  EXPECT_EQ(tree.root->getChild(0), tree.a);
  EXPECT_EQ(tree.root->getChild(1), tree.b);
  shared_ptr<Node> out;
  tree.root->getChild(out, 1);
  EXPECT_EQ(out, tree.b);
}

TEST(NodeGetChild, RefusesAnIndexAtTheSizeAndANegativeOne) {
  SmallTree tree;
  const std::string text =
      "child index must be non-negative and less than the size of the child array";
  EXPECT_EQ(textOf<std::out_of_range>([&] { tree.root->getChild(2); }), text);
  EXPECT_EQ(textOf<std::out_of_range>([&] { tree.root->getChild(static_cast<unsigned>(-1)); }),
            text);
}

TEST(NodeAlphaFactor, RefusesValuesOutsideZeroToOne) {
  const shared_ptr<Group> node = Group::create();
  const std::string text = "Node.setAlphaFactor  invalid value for alphaFactor arg.";
  EXPECT_EQ(textOf<std::invalid_argument>([&] { node->setAlphaFactor(-0.001f); }), text);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { node->setAlphaFactor(1.001f); }), text);
  EXPECT_EQ(node->getAlphaFactor(), 1.0f);
  node->setAlphaFactor(0.0f);
  EXPECT_EQ(node->getAlphaFactor(), 0.0f);
}

TEST(NodeAlphaFactor, StoresNaN) {
  const shared_ptr<Group> node = Group::create();
  node->setAlphaFactor(std::numeric_limits<float>::quiet_NaN());
  EXPECT_NE(node->getAlphaFactor(), node->getAlphaFactor());
}

TEST(NodePending, PlainSettersMarkNothing) {
  SmallTree tree;
  tree.update();
  tree.leaf->setScope(1);
  tree.leaf->setAlphaFactor(0.5f);
  tree.leaf->setPickingEnable(false);
  tree.leaf->setRenderingEnable(false);
  EXPECT_FALSE(tree.leaf->isUpdatePending());
  EXPECT_FALSE(tree.a->isChildUpdatePending());
  EXPECT_FALSE(tree.root->isChildUpdatePending());
}

TEST(NodePending, AChangeMarksAllAncestors) {
  SmallTree tree;
  tree.update();
  tree.leaf->translate(1, 0, 0);
  EXPECT_TRUE(tree.leaf->isUpdatePending());
  EXPECT_TRUE(tree.a->isChildUpdatePending());
  EXPECT_TRUE(tree.root->isChildUpdatePending());
  EXPECT_FALSE(tree.b->isChildUpdatePending());
  EXPECT_FALSE(tree.a->isUpdatePending());
}

TEST(NodePending, MarkingStopsAtTheFirstMarkedAncestor) {
  SmallTree tree;
  tree.update();
  tree.a->setChildUpdatePending(true);
  tree.root->setChildUpdatePending(false);
  // The root has lost the mark of the one below it.
  tree.leaf->translate(1, 0, 0);
  EXPECT_FALSE(tree.root->isChildUpdatePending());
}

TEST(NodePending, ClearingClimbsToo) {
  SmallTree tree;
  tree.update();
  tree.leaf->translate(1, 0, 0);
  tree.b->translate(0, 1, 0);
  // A pass over one branch takes the root's mark away although the other branch still waits.
  tree.a->updateWorldTransforms(false, tree.root->worldTransform());
  EXPECT_FALSE(tree.root->isChildUpdatePending());
  EXPECT_TRUE(tree.b->isUpdatePending());
}

// Counts how often its world transform is computed.
class CountedGroup : public Group {
 public:
  static shared_ptr<CountedGroup> create() {
    shared_ptr<CountedGroup> group(new CountedGroup);
    group->initialise();
    return group;
  }
  void setUpdatePending(bool value) override {
    updates += value ? 0 : 1;
    Group::setUpdatePending(value);
  }
  int updates = 0;
};

TEST(NodeUpdate, RecomputesOnlyTheChangedSubtree) {
  const auto root = CountedGroup::create();
  const auto branch = CountedGroup::create();
  const auto leaf = CountedGroup::create();
  const auto belowLeaf = CountedGroup::create();
  const auto other = CountedGroup::create();
  root->addChild(branch);
  branch->addChild(leaf);
  leaf->addChild(belowLeaf);
  root->addChild(other);
  EXPECT_TRUE(root->updateWorldTransforms(false, root->worldTransform()));
  for (const auto& node : {root, branch, leaf, belowLeaf, other}) {
    EXPECT_EQ(node->updates, 1);
  }
  leaf->translate(1, 2, 3);
  EXPECT_FALSE(root->updateWorldTransforms(false, root->worldTransform()));
  EXPECT_EQ(root->updates, 1);
  EXPECT_EQ(branch->updates, 1);
  EXPECT_EQ(leaf->updates, 2);
  EXPECT_EQ(belowLeaf->updates, 2);
  EXPECT_EQ(other->updates, 1);
  EXPECT_EQ(elements(belowLeaf->worldTransform()), elements(translation(1, 2, 3)));
  EXPECT_FALSE(root->isChildUpdatePending());
}

TEST(NodeUpdate, MultipliesParentsFirst) {
  SmallTree tree;
  tree.a->setOrientation(90, 0, 0, 1);
  tree.leaf->setTranslation(1, 0, 0);
  tree.update();
  Transform expected;
  expected.postRotate(90, 0, 0, 1);
  expected.postMultiply(translation(1, 0, 0));
  EXPECT_EQ(elements(tree.leaf->worldTransform()), elements(expected));
}

TEST(NodeUpdate, ARootThatChangesRepeatedlyAccumulates) {
  const shared_ptr<Group> root = Group::create();
  const shared_ptr<Group> child = Group::create();
  root->addChild(child);
  root->setTranslation(1, 0, 0);
  Transform out;
  child->getTransformTo(root, out);
  EXPECT_EQ(elements(root->worldTransform()), elements(translation(1, 0, 0)));
  root->setTranslation(1, 0, 0);
  child->getTransformTo(root, out);
  EXPECT_EQ(elements(root->worldTransform()), elements(translation(2, 0, 0)));
}

TEST(NodeUpdate, ForceReachesTheWholeSubtreeWithTheGivenMatrix) {
  SmallTree tree;
  tree.update();
  EXPECT_TRUE(tree.a->updateWorldTransforms(true, translation(5, 0, 0)));
  EXPECT_EQ(elements(tree.leaf->worldTransform()), elements(translation(5, 0, 0)));
}

TEST(NodeUpdate, OwnUpdateLeavesTheChildrenAlone) {
  SmallTree tree;
  tree.update();
  tree.leaf->translate(1, 0, 0);
  EXPECT_TRUE(tree.a->updateOwnWorldTransform(true, translation(5, 0, 0)));
  EXPECT_EQ(elements(tree.a->worldTransform()), elements(translation(5, 0, 0)));
  EXPECT_TRUE(tree.leaf->isUpdatePending());
  EXPECT_FALSE(tree.a->isChildUpdatePending());
}

TEST(NodeGetTransformTo, RefusesNull) {
  const shared_ptr<Group> node = Group::create();
  Transform out;
  EXPECT_EQ(textOf<std::invalid_argument>([&] { node->getTransformTo({}, out); }),
            "The target of getTransformTo is null");
}

TEST(NodeGetTransformTo, UnrelatedTreesLeaveTheResultAlone) {
  SmallTree tree;
  Transform out = translation(7, 8, 9);
  EXPECT_FALSE(tree.leaf->getTransformTo(Group::create(), out));
  EXPECT_EQ(elements(out), elements(translation(7, 8, 9)));
}

TEST(NodeGetTransformTo, ToItselfIsTheIdentity) {
  SmallTree tree;
  tree.leaf->setTranslation(1, 2, 3);
  Transform out = translation(7, 8, 9);
  EXPECT_TRUE(tree.leaf->getTransformTo(tree.leaf, out));
  EXPECT_TRUE(out.isIdentity());
}

TEST(NodeGetTransformTo, GoesUpDownAndAcross) {
  SmallTree tree;
  tree.a->setTranslation(1, 0, 0);
  tree.leaf->setTranslation(0, 2, 0);
  tree.b->setTranslation(0, 0, 4);
  Transform out;
  EXPECT_TRUE(tree.leaf->getTransformTo(tree.root, out));
  EXPECT_EQ(elements(out), elements(translation(1, 2, 0)));
  EXPECT_TRUE(tree.root->getTransformTo(tree.leaf, out));
  EXPECT_EQ(elements(out), elements(translation(-1, -2, 0)));
  EXPECT_TRUE(tree.leaf->getTransformTo(tree.b, out));
  EXPECT_EQ(elements(out), elements(translation(1, 2, -4)));
}

TEST(NodeGetTransformTo, ASingularTargetRaises) {
  SmallTree tree;
  tree.b->setScale(0, 1, 1);
  Transform out;
  EXPECT_EQ(textOf<std::underflow_error>([&] { tree.leaf->getTransformTo(tree.b, out); }),
            "Unable to invert matrix -- singularity encountered in the matrix");
}

TEST(NodeGetTransformTo, AnOrphanBelongsToNoLivingTree) {
  const shared_ptr<Group> orphan = Group::create();
  const shared_ptr<Group> otherOrphan = Group::create();
  {
    Group::create()->addChild(orphan);
    Group::create()->addChild(otherOrphan);
  }
  EXPECT_TRUE(orphan->getRoot().expired());
  Transform out = translation(1, 0, 0);
  EXPECT_FALSE(orphan->getTransformTo(Group::create(), out));
  EXPECT_FALSE(orphan->getTransformTo(otherOrphan, out));
  EXPECT_EQ(elements(out), elements(translation(1, 0, 0)));
  EXPECT_TRUE(orphan->getTransformTo(orphan, out));
  EXPECT_TRUE(out.isIdentity());
}

TEST(NodeGetWorldTransform, CopiesWithoutAnUpdate) {
  SmallTree tree;
  tree.update();
  tree.leaf->setTranslation(1, 0, 0);
  Transform out = translation(9, 9, 9);
  EXPECT_EQ(tree.leaf->getWorldTransform(out).lock(), tree.root);
  EXPECT_TRUE(out.isIdentity());
}

TEST(NodeIsDescendantOf, ClimbsToTheRoot) {
  SmallTree tree;
  EXPECT_TRUE(tree.leaf->isDescendantOf(tree.leaf));
  EXPECT_TRUE(tree.leaf->isDescendantOf(tree.a));
  EXPECT_TRUE(tree.leaf->isDescendantOf(tree.root));
  EXPECT_FALSE(tree.leaf->isDescendantOf(tree.b));
  EXPECT_FALSE(tree.root->isDescendantOf(tree.leaf));
}

TEST(NodeUpdateSceneGraphInfo, RefusesToBeItsOwnParent) {
  const shared_ptr<Group> node = Group::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { node->updateSceneGraphInfo(node); }),
            "Node.updateSceneGraphInfo( )  --  incorrect update to parent.. setting parent = this");
}

TEST(NodeTraverser, MeetsEachChildInOrderOneLevelDeep) {
  class Collector : public Node::NodeTraverser {
   public:
    void traverse(const shared_ptr<Node>& child) override { met.push_back(child.get()); }
    std::vector<Node*> met;
  };
  SmallTree tree;
  Collector collector;
  tree.root->traverseChildren(collector);
  EXPECT_THAT(collector.met, ElementsAre(tree.a.get(), tree.b.get()));
}

TEST(NodeGetReferences, ListsTheChildrenInOrder) {
  SmallTree tree;
  EXPECT_EQ(tree.root->getReferences(nullptr, 0), 2U);
  shared_ptr<Object3D> references[2];
  EXPECT_EQ(tree.root->getReferences(references, 2), 2U);
  EXPECT_EQ(references[0], tree.a);
  EXPECT_EQ(references[1], tree.b);
}

TEST(NodeGetReferences, RaisesWhenTheRoomEnds) {
  SmallTree tree;
  shared_ptr<Object3D> references[1];
  EXPECT_EQ(textOf<std::invalid_argument>([&] { tree.root->getReferences(references, 1); }),
            "Node::getReferences: maxReferences exceeded.");
}

TEST(NodeGetReferences, AlignmentReferencesAreNone) {
  SmallTree tree;
  tree.leaf->setAlignment(tree.b, Node::ORIGIN, {}, Node::NONE);
  EXPECT_EQ(tree.leaf->getReferences(nullptr, 0), 0U);
}

TEST(NodeFind, GoesDepthFirst) {
  SmallTree tree;
  tree.leaf->setUserID(7);
  tree.b->setUserID(7);
  EXPECT_EQ(tree.root->find(7), tree.leaf);
}

TEST(NodeDuplicate, CopiesStateAndSubtree) {
  SmallTree tree;
  tree.root->setScope(5);
  tree.root->setAlphaFactor(0.25f);
  tree.root->setPickingEnable(false);
  tree.root->setRenderingEnable(false);
  tree.a->setTranslation(1, 2, 3);
  tree.leaf->setUserID(77);
  tree.update();
  const shared_ptr<Group> copy = boost::dynamic_pointer_cast<Group>(tree.root->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getScope(), 5);
  EXPECT_EQ(copy->getAlphaFactor(), 0.25f);
  EXPECT_FALSE(copy->isPickingEnabled());
  EXPECT_FALSE(copy->isRenderingEnabled());
  EXPECT_FALSE(copy->getParent());
  EXPECT_EQ(copy->getRoot().lock(), copy);
  EXPECT_TRUE(copy->isUpdatePending());
  EXPECT_TRUE(copy->isChildUpdatePending());
  ASSERT_EQ(copy->getChildCount(), 2U);
  const shared_ptr<Node> copiedA = copy->getChild(0);
  EXPECT_NE(copiedA, tree.a);
  float xyz[3];
  copiedA->getTranslation(xyz);
  EXPECT_THAT(xyz, ElementsAre(1, 2, 3));
  EXPECT_EQ(copiedA->getDepth(), 1);
  ASSERT_EQ(copiedA->getChildCount(), 1U);
  EXPECT_EQ(copiedA->getChild(0)->getUserID(), 77);
  EXPECT_EQ(copiedA->getChild(0)->getRoot().lock(), copy);
  EXPECT_EQ(copiedA->getChild(0)->getDepth(), 2);
}

// A bare node, which has no class of its own to be copied to.
class BareNode : public Node {
 public:
  static shared_ptr<BareNode> create() {
    shared_ptr<BareNode> node(new BareNode);
    node->initialise();
    return node;
  }
  jobject createJavaPeer(JNIEnv*) override { return nullptr; }
};

TEST(NodeDuplicate, ABareNodeBecomesAGroupWithItsChildren) {
  const shared_ptr<BareNode> node = BareNode::create();
  node->addChild(Light::create());
  const shared_ptr<Group> copy = boost::dynamic_pointer_cast<Group>(node->duplicate());
  ASSERT_TRUE(copy);
  ASSERT_EQ(copy->getChildCount(), 1U);
  EXPECT_TRUE(boost::dynamic_pointer_cast<Light>(copy->getChild(0)));
}

TEST(NodeDuplicate, ChildrenOfWhatIsNoGroupStayBehind) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->addChild(Group::create());
  const shared_ptr<Camera> copy = boost::dynamic_pointer_cast<Camera>(camera->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getChildCount(), 0U);
}

TEST(NodeDuplicate, AnAlignmentReferenceRaises) {
  SmallTree tree;
  tree.leaf->setAlignment(tree.b, Node::ORIGIN, {}, Node::NONE);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { tree.root->duplicate(); }),
            "Node.setAlignment -- no common ancestors between this node and zRef");
  tree.leaf->setAlignment({}, Node::NONE, tree.b, Node::ORIGIN);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { tree.root->duplicate(); }),
            "Node.setAlignment -- no common ancestors between this node and yRef");
  // A failed duplication leaves the next one as it should be.
  tree.leaf->setAlignment({}, Node::ORIGIN, {}, Node::X_AXIS);
  const shared_ptr<Group> copy = boost::dynamic_pointer_cast<Group>(tree.root->duplicate());
  EXPECT_EQ(copy->getChild(0)->getChild(0)->getAlignmentTarget(Node::Z_AXIS), Node::ORIGIN);
  EXPECT_EQ(copy->getChild(0)->getChild(0)->getAlignmentTarget(Node::Y_AXIS), Node::X_AXIS);
}

TEST(NodeLife, ChildrenOutliveTheirParentWithoutOne) {
  const shared_ptr<Group> child = Group::create();
  boost::weak_ptr<Node> watch;
  {
    const shared_ptr<Group> parent = Group::create();
    const shared_ptr<Group> sibling = Group::create();
    watch = sibling;
    parent->addChild(child);
    parent->addChild(sibling);
  }
  EXPECT_TRUE(watch.expired());
  EXPECT_FALSE(child->getParent());
  EXPECT_TRUE(child->getRoot().expired());
}

}  // namespace
}  // namespace varnel_m3g
