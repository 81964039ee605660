#include "engine/scene/world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/surface/background.h"
#include "tests/support/exception_text.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using varnel_test::textOf;

TEST(World, StartsEmptyAsItsOwnRoot) {
  const shared_ptr<World> world = World::create();
  EXPECT_EQ(world->getRoot().lock(), world);
  EXPECT_FALSE(world->getActiveCamera());
  EXPECT_FALSE(world->getBackground());
  EXPECT_TRUE(world->getCameras().empty());
  EXPECT_TRUE(world->getLights().empty());
}

TEST(World, CollectsTheCamerasAndLightsOfASubtree) {
  const shared_ptr<World> world = World::create();
  const shared_ptr<Group> group = Group::create();
  const shared_ptr<Group> inner = Group::create();
  const shared_ptr<Camera> camera = Camera::create();
  const shared_ptr<Light> deep = Light::create();
  const shared_ptr<Light> shallow = Light::create();
  inner->addChild(deep);
  inner->addChild(camera);
  group->addChild(inner);
  group->addChild(shallow);
  world->addChild(group);
  EXPECT_THAT(world->getCameras(), ElementsAre(camera));
  EXPECT_THAT(world->getLights(), ElementsAre(deep, shallow));
  world->removeChild(group);
  EXPECT_TRUE(world->getCameras().empty());
  EXPECT_TRUE(world->getLights().empty());
}

TEST(World, AnAddKeepsOneEntryAndARemoveIgnoresStrangers) {
  const shared_ptr<World> world = World::create();
  const shared_ptr<Light> light = Light::create();
  world->addLight(light);
  world->addLight(light);
  EXPECT_THAT(world->getLights(), ElementsAre(light));
  world->removeLight(Light::create());
  world->removeCamera(Camera::create());
  EXPECT_THAT(world->getLights(), ElementsAre(light));
}

TEST(World, RefusesNoActiveCamera) {
  const shared_ptr<World> world = World::create();
  const shared_ptr<Camera> camera = Camera::create();
  world->setActiveCamera(camera);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { world->setActiveCamera({}); }),
            "trying to setActiveCamera to null");
  EXPECT_EQ(world->getActiveCamera(), camera);
}

TEST(World, TheBackgroundCanBeCleared) {
  const shared_ptr<World> world = World::create();
  const shared_ptr<Background> background = Background::create();
  world->setBackground(background);
  EXPECT_EQ(world->getBackground(), background);
  world->setBackground({});
  EXPECT_FALSE(world->getBackground());
}

// A world with one child, which is its active camera, and a background.
struct FullWorld {
  shared_ptr<World> world = World::create();
  shared_ptr<Camera> camera = Camera::create();
  shared_ptr<Background> background = Background::create();
  FullWorld() {
    world->addChild(camera);
    world->setActiveCamera(camera);
    world->setBackground(background);
  }
};

TEST(WorldGetReferences, ListsChildrenCameraAndBackground) {
  FullWorld full;
  EXPECT_EQ(full.world->getReferences(nullptr, 0), 3U);
  shared_ptr<Object3D> references[3];
  EXPECT_EQ(full.world->getReferences(references, 3), 3U);
  EXPECT_EQ(references[0], full.camera);
  EXPECT_EQ(references[1], full.camera);
  EXPECT_EQ(references[2], full.background);
}

TEST(WorldGetReferences, TheFirstOverflowDecidesTheText) {
  FullWorld full;
  shared_ptr<Object3D> references[3];
  EXPECT_EQ(textOf<std::invalid_argument>([&] { full.world->getReferences(references, 0); }),
            "Node::getReferences: maxReferences exceeded.");
  EXPECT_EQ(textOf<std::invalid_argument>([&] { full.world->getReferences(references, 1); }),
            "Active camera exceeds reference count in getReferences");
  EXPECT_EQ(textOf<std::invalid_argument>([&] { full.world->getReferences(references, 2); }),
            "Background exceeds reference count in getReferences");
}

TEST(WorldDuplicate, SharesTheBackgroundAndHasNoActiveCamera) {
  FullWorld full;
  const shared_ptr<Light> light = Light::create();
  full.world->addChild(light);
  const shared_ptr<World> copy = boost::dynamic_pointer_cast<World>(full.world->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_FALSE(copy->getActiveCamera());
  EXPECT_EQ(copy->getBackground(), full.background);
  ASSERT_EQ(copy->getChildCount(), 2U);
  EXPECT_NE(copy->getChild(0), full.camera);
  EXPECT_THAT(copy->getCameras(), ElementsAre(copy->getChild(0)));
  EXPECT_THAT(copy->getLights(), ElementsAre(copy->getChild(1)));
  EXPECT_THAT(full.world->getCameras(), ElementsAre(full.camera));
}

TEST(WorldLife, LetsItsCamerasAndLightsGo) {
  const shared_ptr<Light> light = Light::create();
  {
    const shared_ptr<World> world = World::create();
    world->addChild(light);
  }
  EXPECT_EQ(light.use_count(), 1);
  const shared_ptr<World> other = World::create();
  other->addChild(light);
  EXPECT_THAT(other->getLights(), ElementsAre(light));
}

}  // namespace
}  // namespace varnel_m3g
