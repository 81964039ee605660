#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <stdexcept>

#include "engine/scene/group.h"
#include "tests/support/exception_text.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using testing::FloatNear;
using varnel_test::textOf;

constexpr float TOLERANCE = 1e-4f;

auto near(float a, float b, float c) {
  return ElementsAre(FloatNear(a, TOLERANCE), FloatNear(b, TOLERANCE), FloatNear(c, TOLERANCE));
}

auto near(float angle, float x, float y, float z) {
  return ElementsAre(FloatNear(angle, 0.01f), FloatNear(x, TOLERANCE), FloatNear(y, TOLERANCE),
                     FloatNear(z, TOLERANCE));
}

std::vector<float> orientationOf(const Node& node) {
  float out[4];
  node.getOrientation(out);
  return std::vector<float>(out, out + 4);
}

// What the node's orientation and scale make of a direction.
std::vector<float> turned(Node& node, float x, float y, float z) {
  float v[4] = {x, y, z, 0};
  Transform composite;
  node.getCompositeTransform(composite);
  composite.transform(v, 4);
  return std::vector<float>(v, v + 3);
}

// A node and a reference side by side below a root.
struct Pair {
  shared_ptr<Group> root = Group::create();
  shared_ptr<Group> node = Group::create();
  shared_ptr<Group> reference = Group::create();
  Pair() {
    root->addChild(node);
    root->addChild(reference);
  }
  void align(const shared_ptr<Node>& with = {}) {
    Transform current;
    node->getTransformTo(root, current);
    node->align(with);
  }
};

TEST(NodeSetAlignment, RefusesReferencesOfOtherTrees) {
  Pair pair;
  EXPECT_EQ(textOf<std::invalid_argument>(
                [&] { pair.node->setAlignment(Group::create(), Node::ORIGIN, {}, Node::NONE); }),
            "Node.setAlignment -- no common ancestors between this node and zRef");
  EXPECT_EQ(textOf<std::invalid_argument>(
                [&] { pair.node->setAlignment({}, Node::NONE, Group::create(), Node::ORIGIN); }),
            "Node.setAlignment -- no common ancestors between this node and yRef");
}

TEST(NodeSetAlignment, RefusesTheNodeAndWhatIsBelowIt) {
  Pair pair;
  const shared_ptr<Group> below = Group::create();
  pair.node->addChild(below);
  for (const shared_ptr<Node>& reference : {shared_ptr<Node>(pair.node), shared_ptr<Node>(below)}) {
    EXPECT_EQ(textOf<std::invalid_argument>(
                  [&] { pair.node->setAlignment(reference, Node::ORIGIN, {}, Node::NONE); }),
              " zRef is this node or a descendant of this node");
    EXPECT_EQ(textOf<std::invalid_argument>(
                  [&] { pair.node->setAlignment({}, Node::NONE, reference, Node::ORIGIN); }),
              " yRef is this node or a descendant of this node");
  }
}

TEST(NodeSetAlignment, RefusesTwoEqualSettings) {
  Pair pair;
  const std::string text =
      "Invalid configuration of alignment.  zRef == yRef and zTarget == yTarget != NONE";
  EXPECT_EQ(textOf<std::invalid_argument>([&] {
              pair.node->setAlignment(pair.reference, Node::X_AXIS, pair.reference, Node::X_AXIS);
            }),
            text);
  EXPECT_EQ(textOf<std::invalid_argument>(
                [&] { pair.node->setAlignment({}, Node::ORIGIN, {}, Node::ORIGIN); }),
            text);
  pair.node->setAlignment({}, Node::NONE, {}, Node::NONE);
  pair.node->setAlignment(pair.reference, Node::NONE, pair.reference, Node::NONE);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, pair.reference, Node::Y_AXIS);
}

TEST(NodeSetAlignment, ARefusalStoresNothing) {
  Pair pair;
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::Y_AXIS);
  EXPECT_THROW(pair.node->setAlignment(pair.reference, Node::X_AXIS, Group::create(), Node::NONE),
               std::invalid_argument);
  EXPECT_EQ(pair.node->getAlignmentTarget(Node::Z_AXIS), Node::ORIGIN);
  EXPECT_EQ(pair.node->getAlignmentTarget(Node::Y_AXIS), Node::Y_AXIS);
  EXPECT_EQ(pair.node->getAlignmentReference(Node::Z_AXIS), pair.reference);
  EXPECT_FALSE(pair.node->getAlignmentReference(Node::Y_AXIS));
}

TEST(NodeGetAlignment, RefusesOtherAxes) {
  const shared_ptr<Group> node = Group::create();
  const std::string text = "Node.getAlignment( )  -- axis not valid. ";
  for (int axis : {0, 1, 2, 5, 147, -1}) {
    EXPECT_EQ(textOf<std::invalid_argument>([&] { node->getAlignmentTarget(axis); }), text);
    EXPECT_EQ(textOf<std::invalid_argument>([&] { node->getAlignmentReference(axis); }), text);
  }
}

TEST(NodeGetAlignment, AReferenceThatHasDiedIsNone) {
  Pair pair;
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.root->removeChild(pair.reference);
  pair.reference.reset();
  EXPECT_FALSE(pair.node->getAlignmentReference(Node::Z_AXIS));
}

TEST(NodeAlign, WithoutTargetsNeitherTheNodeNorItsChildrenTurn) {
  Pair pair;
  const shared_ptr<Group> child = Group::create();
  pair.node->addChild(child);
  child->setAlignment(pair.reference, Node::X_AXIS, {}, Node::NONE);
  pair.node->setOrientation(30, 0, 0, 1);
  // Not even the reference is looked at.
  pair.align(Group::create());
  EXPECT_THAT(orientationOf(*pair.node), near(30, 0, 0, 1));
  EXPECT_THAT(orientationOf(*child), near(0, 0, 0, 0));
}

TEST(NodeAlign, TheZAxisTurnsToAnOrigin) {
  Pair pair;
  pair.node->setTranslation(1, 2, 3);
  pair.reference->setTranslation(5, 2, 3);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.align();
  EXPECT_THAT(orientationOf(*pair.node), near(90, 0, 1, 0));
}

TEST(NodeAlign, TheZAxisTurnsToEachAxis) {
  struct Case {
    int target;
    std::vector<float> z;
  };
  // The reference stands turned by 90 degrees about z.
  for (const Case& c : {Case{Node::X_AXIS, {0, 1, 0}}, Case{Node::Y_AXIS, {-1, 0, 0}}}) {
    Pair pair;
    pair.node->setTranslation(9, 9, 9);
    pair.reference->setOrientation(90, 0, 0, 1);
    pair.node->setAlignment(pair.reference, c.target, {}, Node::NONE);
    pair.align();
    // Directions do not depend on where the node stands.
    EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(c.z[0], c.z[1], c.z[2])) << c.target;
  }
}

TEST(NodeAlign, AnyDirectionIsReached) {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  for (int i = 0; i < 200; ++i) {
    Pair pair;
    float from[3];
    float to[3];
    for (int k = 0; k < 3; ++k) {
      from[k] = coordinate(random);
      to[k] = coordinate(random);
    }
    pair.node->setTranslation(from[0], from[1], from[2]);
    pair.reference->setTranslation(to[0], to[1], to[2]);
    pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
    pair.align();
    const float length = std::hypot(to[0] - from[0], to[1] - from[1], to[2] - from[2]);
    const std::vector<float> z = turned(*pair.node, 0, 0, 1);
    for (std::size_t k = 0; k < 3; ++k) {
      EXPECT_NEAR(z[k], (to[k] - from[k]) / length, 1e-3);
    }
  }
}

TEST(NodeAlign, WithoutAZTargetTheOrientationStartsAnew) {
  Pair pair;
  pair.node->setOrientation(40, 1, 2, 3);
  pair.node->setAlignment({}, Node::NONE, pair.reference, Node::X_AXIS);
  pair.align();
  EXPECT_THAT(orientationOf(*pair.node), near(90, 0, 0, -1));
}

TEST(NodeAlign, TheYAxisTurnsAboutZOnly) {
  Pair pair;
  pair.reference->setOrientation(45, 1, 0, 0);
  pair.reference->setTranslation(-3, 4, 100);
  pair.node->setAlignment({}, Node::NONE, pair.reference, Node::ORIGIN);
  pair.align();
  EXPECT_THAT(turned(*pair.node, 0, 1, 0), near(-0.6f, 0.8f, 0));
  EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(0, 0, 1));
}

TEST(NodeAlign, TheYStepWorksInTheFrameOfTheZStep) {
  Pair pair;
  pair.reference->setTranslation(5, 0, 0);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, pair.root, Node::Z_AXIS);
  pair.align();
  EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(1, 0, 0));
  EXPECT_THAT(turned(*pair.node, 0, 1, 0), near(0, 0, 1));
}

TEST(NodeAlign, OneReferenceServesBothAxes) {
  Pair pair;
  pair.reference->setOrientation(90, 1, 0, 0);
  pair.node->setAlignment(pair.reference, Node::X_AXIS, pair.reference, Node::Z_AXIS);
  pair.align();
  EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(1, 0, 0));
  EXPECT_THAT(turned(*pair.node, 0, 1, 0), near(0, -1, 0));
}

TEST(NodeAlign, ATargetStraightBehindTurnsAboutY) {
  Pair pair;
  pair.reference->setTranslation(0, 0, -4);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.align();
  EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(0, 0, -1));
  EXPECT_THAT(turned(*pair.node, 0, 1, 0), near(0, 1, 0));
  EXPECT_THAT(turned(*pair.node, 1, 0, 0), near(-1, 0, 0));
}

TEST(NodeAlign, ATargetAlmostStraightBehindKeepsTheRestOfTheAxis) {
  Pair pair;
  // Half a circle to the last bit, and yet with an axis.
  pair.reference->setTranslation(0, 0.0004f, -4);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.align();
  EXPECT_THAT(orientationOf(*pair.node), near(180, -1, 1, 0));
}

TEST(NodeAlign, ATargetOutOfTheRangeOfFloatsIsNotTakenForOneBehind) {
  Pair pair;
  pair.reference->setTranslation(3e38f, 3e38f, 0);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.align();
  EXPECT_FLOAT_EQ(orientationOf(*pair.node)[0], 90);
}

TEST(NodeAlign, ATargetStraightAheadKeepsTheOldOrientation) {
  Pair pair;
  pair.reference->setTranslation(5, 0, 0);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.align();
  ASSERT_THAT(orientationOf(*pair.node), near(90, 0, 1, 0));
  pair.reference->setTranslation(0, 0, 5);
  pair.align();
  EXPECT_THAT(orientationOf(*pair.node), near(90, 0, 1, 0));
}

TEST(NodeAlign, StraightAheadAndBehindHoldAtAnyDistance) {
  for (int distance = 1; distance <= 200; ++distance) {
    SCOPED_TRACE(distance);
    Pair pair;
    pair.node->setOrientation(20, 1, 0, 0);
    pair.node->setAlignment(pair.reference, Node::ORIGIN, pair.root, Node::Y_AXIS);
    pair.reference->setTranslation(0, 0, static_cast<float>(distance));
    pair.align();
    EXPECT_THAT(orientationOf(*pair.node), near(20, 1, 0, 0));
    pair.reference->setTranslation(0, 0, static_cast<float>(-distance));
    pair.align();
    EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(0, 0, -1));
    EXPECT_THAT(turned(*pair.node, 0, 1, 0), near(0, 1, 0));
  }
}

TEST(NodeAlign, TheTranslationIsNotTurnedByTheParent) {
  Pair pair;
  pair.root->removeChild(pair.node);
  const shared_ptr<Group> parent = Group::create();
  parent->setOrientation(90, 0, 0, 1);
  pair.root->addChild(parent);
  parent->addChild(pair.node);
  pair.node->setTranslation(2, 0, 0);
  pair.reference->setTranslation(2, 0, 7);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.node->setOrientation(10, 1, 0, 0);
  pair.align();
  // Seen so, the reference is straight ahead, although the node really stands at (0, 2, 0).
  EXPECT_THAT(orientationOf(*pair.node), near(10, 1, 0, 0));
}

TEST(NodeAlign, TheParentsRotationIsTakenBack) {
  Pair pair;
  pair.root->removeChild(pair.node);
  const shared_ptr<Group> parent = Group::create();
  parent->setOrientation(90, 0, 0, 1);
  pair.root->addChild(parent);
  parent->addChild(pair.node);
  pair.node->setAlignment(pair.reference, Node::X_AXIS, {}, Node::NONE);
  pair.align();
  // The root's x is the parent's -y.
  EXPECT_THAT(turned(*pair.node, 0, 0, 1), near(0, -1, 0));
}

TEST(NodeAlign, TheArgumentServesWhereAReferenceIsEmpty) {
  Pair pair;
  pair.reference->setTranslation(5, 0, 0);
  pair.node->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  pair.align(pair.reference);
  EXPECT_THAT(orientationOf(*pair.node), near(90, 0, 1, 0));
}

TEST(NodeAlign, ChildrenFollowWithTheSameArgument) {
  Pair pair;
  const shared_ptr<Group> child = Group::create();
  const shared_ptr<Group> grandchild = Group::create();
  pair.node->addChild(child);
  child->addChild(grandchild);
  pair.reference->setTranslation(0, 5, 0);
  pair.node->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  child->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  grandchild->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  pair.align(pair.reference);
  // All by the world transforms from before.
  for (const auto& node : {pair.node, child, grandchild}) {
    EXPECT_THAT(orientationOf(*node), near(90, -1, 0, 0));
  }
}

TEST(NodeAlign, WithoutAnArgumentTheTopIsTheChildrensReference) {
  Pair pair;
  const shared_ptr<Group> child = Group::create();
  pair.node->addChild(child);
  child->setTranslation(0, 0, 5);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.reference->setTranslation(0, 0, 9);
  child->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  Transform current;
  child->getTransformTo(pair.root, current);
  pair.node->align({});
  EXPECT_THAT(turned(*child, 0, 0, 1), near(0, 0, -1));
}

TEST(NodeAlign, AnArgumentOfAnotherTreeIsRefused) {
  Pair pair;
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { pair.align(Group::create()); }),
            "Node.align - z-axis reference is not in the same scene graph as this node");
}

TEST(NodeAlign, ReferencesThatHaveLeftTheTreeRaise) {
  Pair pair;
  pair.node->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.root->removeChild(pair.reference);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align - z-axis reference is not in the same scene graph as this node");
  pair.root->addChild(pair.reference);
  pair.node->setAlignment({}, Node::NONE, pair.reference, Node::ORIGIN);
  pair.root->removeChild(pair.reference);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align - y-axis reference is not in the same scene graph as this node");
}

TEST(NodeAlign, ANodeIsNotAlignedToItself) {
  Pair pair;
  pair.node->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align - z-axis reference is aligned to itself or a decendent");
  pair.node->setAlignment({}, Node::NONE, {}, Node::ORIGIN);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align - y-axis reference is aligned to itself or a decendent");
}

TEST(NodeAlign, UnknownTargetsAreStoredAndRaise) {
  Pair pair;
  pair.node->setAlignment(pair.reference, 144, {}, Node::NONE);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align -- internal error encountered. Invalid zTarget");
  pair.node->setAlignment({}, Node::NONE, pair.reference, 148);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align -- internal error encountered. Invalid yTarget");
  pair.node->setAlignment(pair.reference, -1, {}, Node::NONE);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.align(); }),
            "Node.align -- internal error encountered. Invalid zTarget");
}

TEST(NodeAlign, AFailureOfTheYStepLeavesTheZStep) {
  Pair pair;
  const shared_ptr<Group> child = Group::create();
  pair.node->addChild(child);
  child->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  pair.reference->setTranslation(5, 0, 0);
  pair.node->setAlignment(pair.reference, Node::ORIGIN, pair.reference, 99);
  EXPECT_THROW(pair.align(), std::runtime_error);
  EXPECT_THAT(orientationOf(*pair.node), near(90, 0, 1, 0));
  EXPECT_THAT(orientationOf(*child), near(0, 0, 0, 0));
}

TEST(NodeAlign, AProjectionOfNoLengthIsReported) {
  Pair pair;
  // So far away that the length leaves the range of floats.
  pair.reference->setTranslation(3e38f, 3e38f, 0);
  pair.node->setAlignment({}, Node::NONE, pair.reference, Node::ORIGIN);
  Transform current;
  pair.node->getTransformTo(pair.root, current);
  testing::internal::CaptureStdout();
  pair.node->align({});
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "y mag == 0 \n");
  EXPECT_THAT(orientationOf(*pair.node), near(0, 0, 0, 0));
}

TEST(NodeAlign, ARootCannotBeAligned) {
  Pair pair;
  pair.root->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
  EXPECT_EQ(textOf<std::runtime_error>([&] { pair.root->align(pair.reference); }),
            "A node without a parent cannot be aligned");
}

TEST(NodeAlign, AParentThatCannotBeInvertedRaises) {
  Pair pair;
  const shared_ptr<Group> child = Group::create();
  pair.node->addChild(child);
  pair.node->setScale(0, 1, 1);
  child->setAlignment(pair.reference, Node::ORIGIN, {}, Node::NONE);
  Transform current;
  child->getTransformTo(pair.root, current);
  EXPECT_EQ(textOf<std::underflow_error>([&] { child->align({}); }),
            "Unable to invert matrix -- singularity encountered in the matrix");
}

}  // namespace
}  // namespace varnel_m3g
