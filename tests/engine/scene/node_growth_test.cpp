// A chain of 100,000 nodes and a group of 100,000 children, on a stack of 1 MiB: what grows faster
// than the tree, or recurses down it, does not come to an end here.

#include <gtest/gtest.h>

#include "engine/scene/ray_intersection.h"
#include "tests/support/render_objects.h"
#include "tests/support/small_stack.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using varnel_test::runOnSmallStack;

constexpr int COUNT = 100000;

// Hangs a new chain below the node, from its upper end on. Returns the lowest one.
shared_ptr<Node> growDown(shared_ptr<Node> top) {
  for (int i = 0; i < COUNT; ++i) {
    const shared_ptr<Group> next = Group::create();
    next->setTranslation(1, 0, 0);
    top->addChild(next);
    top = next;
  }
  return top;
}

unsigned countNodes(const shared_ptr<Node>& top) {
  unsigned count = 0;
  std::vector<shared_ptr<Node>> pending{top};
  while (!pending.empty()) {
    const shared_ptr<Node> node = pending.back();
    pending.pop_back();
    ++count;
    pending.insert(pending.end(), node->childList().begin(), node->childList().end());
  }
  return count;
}

TEST(NodeGrowthDeep, BuildsUpdatesAndAnswers) {
  runOnSmallStack([] {
    const shared_ptr<World> world = World::create();
    const shared_ptr<Node> lowest = growDown(world);
    EXPECT_EQ(lowest->getDepth(), COUNT);
    EXPECT_EQ(lowest->getRoot().lock(), world);
    EXPECT_TRUE(lowest->isDescendantOf(world));
    Transform out;
    EXPECT_TRUE(lowest->getTransformTo(world, out));
    EXPECT_EQ(out.data()[12], static_cast<float>(COUNT));
    world->getChild(0)->translate(1, 0, 0);
    EXPECT_TRUE(lowest->getTransformTo(world, out));
    EXPECT_EQ(out.data()[12], static_cast<float>(COUNT + 1));
    EXPECT_FALSE(world->isChildUpdatePending());
  });
}

TEST(NodeGrowthDeep, BuildsFromTheLowerEnd) {
  runOnSmallStack([] {
    // Attaching a subtree walks it once: a few long chains, moved as a whole.
    const shared_ptr<Group> chain = Group::create();
    const shared_ptr<Node> lowest = growDown(chain);
    lowest->addChild(Light::create());
    for (int i = 0; i < 20; ++i) {
      const shared_ptr<World> world = World::create();
      const shared_ptr<Group> middle = Group::create();
      middle->addChild(chain);
      world->addChild(middle);
      EXPECT_EQ(world->getLights().size(), 1U);
      EXPECT_EQ(lowest->getDepth(), COUNT + 2);
      EXPECT_EQ(lowest->getRoot().lock(), world);
      middle->removeChild(chain);
      EXPECT_TRUE(world->getLights().empty());
      EXPECT_EQ(lowest->getRoot().lock(), chain);
    }
  });
}

TEST(NodeGrowthDeep, IsFound) {
  runOnSmallStack([] {
    const shared_ptr<World> world = World::create();
    const shared_ptr<Node> lowest = growDown(world);
    lowest->setUserID(5);
    EXPECT_EQ(world->find(5), lowest);
    EXPECT_FALSE(world->find(6));
  });
}

TEST(NodeGrowthDeep, IsDuplicatedAndDestroyed) {
  runOnSmallStack([] {
    shared_ptr<World> world = World::create();
    growDown(world)->addChild(Camera::create());
    shared_ptr<World> copy = boost::dynamic_pointer_cast<World>(world->duplicate());
    world.reset();
    EXPECT_EQ(countNodes(copy), static_cast<unsigned>(COUNT + 2));
    ASSERT_EQ(copy->getCameras().size(), 1U);
    EXPECT_EQ(copy->getCameras()[0]->getDepth(), COUNT + 1);
    const boost::weak_ptr<Camera> camera = copy->getCameras()[0];
    copy.reset();
    EXPECT_TRUE(camera.expired());
  });
}

TEST(NodeGrowthDeep, IsAlignedAndPicked) {
  runOnSmallStack([] {
    const shared_ptr<World> world = World::create();
    const shared_ptr<Group> reference = Group::create();
    world->addChild(reference);
    reference->setTranslation(0, 0, 5);
    const shared_ptr<Node> lowest = growDown(world);
    for (shared_ptr<Node> node = lowest; node != world; node = node->getParent()) {
      node->setTranslation(0, 0, 0);
      node->setAlignment({}, Node::ORIGIN, {}, Node::NONE);
    }
    Transform out;
    lowest->getTransformTo(world, out);
    world->getChild(1)->align(reference);
    lowest->addChild(quadMesh(plainAppearance()));
    RayIntersection result;
    EXPECT_TRUE(world->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, &result));
    EXPECT_EQ(result.getIntersected()->getParent(), lowest);
  });
}

TEST(NodeGrowthWide, BuildsUpdatesDuplicatesAndDies) {
  runOnSmallStack([] {
    shared_ptr<World> world = World::create();
    for (int i = 0; i < COUNT; ++i) {
      world->addChild(Light::create());
    }
    EXPECT_EQ(world->getChildCount(), static_cast<unsigned>(COUNT));
    EXPECT_EQ(world->getLights().size(), static_cast<std::size_t>(COUNT));
    EXPECT_EQ(world->getLights()[COUNT - 1], world->getChild(COUNT - 1));
    world->getChild(COUNT - 1)->setUserID(9);
    EXPECT_EQ(world->find(9), world->getChild(COUNT - 1));
    EXPECT_TRUE(world->updateWorldTransforms(false, world->worldTransform()));
    EXPECT_FALSE(world->getChild(COUNT - 1)->isUpdatePending());
    const shared_ptr<World> copy = boost::dynamic_pointer_cast<World>(world->duplicate());
    EXPECT_EQ(copy->getLights().size(), static_cast<std::size_t>(COUNT));
    const boost::weak_ptr<Node> watch = world->getChild(0);
    world.reset();
    EXPECT_TRUE(watch.expired());
  });
}

TEST(NodeGrowthWide, IsPicked) {
  runOnSmallStack([] {
    const shared_ptr<World> world = World::create();
    const shared_ptr<Mesh> first = quadMesh(plainAppearance());
    world->addChild(first);
    for (int i = 1; i < COUNT; ++i) {
      const shared_ptr<Mesh> mesh =
          Mesh::create(first->getVertexBuffer(), first->getIndexBuffer(0), first->getAppearance(0));
      mesh->setTranslation(0, 0, static_cast<float>(-i));
      world->addChild(mesh);
    }
    RayIntersection result;
    EXPECT_TRUE(world->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, &result));
    EXPECT_EQ(result.getIntersected(), first);
  });
}

TEST(NodeGrowthWide, AGroupOfLightsComesAndGoes) {
  runOnSmallStack([] {
    const shared_ptr<World> world = World::create();
    const shared_ptr<Group> group = Group::create();
    for (int i = 0; i < COUNT; ++i) {
      group->addChild(Light::create());
    }
    for (int i = 0; i < 10; ++i) {
      world->addChild(group);
      EXPECT_EQ(world->getLights().size(), static_cast<std::size_t>(COUNT));
      world->removeChild(group);
      EXPECT_TRUE(world->getLights().empty());
    }
  });
}

TEST(NodeGrowthWide, ChildrenLeaveOneByOne) {
  runOnSmallStack([] {
    const shared_ptr<World> world = World::create();
    for (int i = 0; i < COUNT; ++i) {
      world->addChild(Light::create());
    }
    while (world->getChildCount() > 0) {
      world->removeChild(world->getChild(world->getChildCount() - 1));
    }
    EXPECT_TRUE(world->getLights().empty());
  });
}

}  // namespace
}  // namespace varnel_m3g
