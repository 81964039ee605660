#include "engine/scene/camera.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "engine/scene/world.h"
#include "tests/support/exception_text.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using varnel_test::textOf;

std::vector<float> matrixOf(const Camera& camera) {
  return std::vector<float>(camera.projection(), camera.projection() + 16);
}

std::vector<float> identityMatrix() {
  return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
}

TEST(Camera, StartsGenericWithTheIdentity) {
  const shared_ptr<Camera> camera = Camera::create();
  EXPECT_EQ(camera->getProjection(nullptr), Camera::GENERIC);
  EXPECT_EQ(matrixOf(*camera), identityMatrix());
}

TEST(Camera, GenericKeepsTheGivenColumns) {
  float columns[16];
  for (int i = 0; i < 16; ++i) {
    columns[i] = static_cast<float>(i) + 0.5f;
  }
  const shared_ptr<Camera> camera = Camera::create();
  camera->setPerspective(60, 1, 1, 10);
  camera->setGeneric(columns);
  EXPECT_EQ(matrixOf(*camera), std::vector<float>(columns, columns + 16));
  float out[16] = {};
  EXPECT_EQ(camera->getProjectionMatrix(out), Camera::GENERIC);
  EXPECT_EQ(std::vector<float>(out, out + 16), std::vector<float>(columns, columns + 16));
}

TEST(CameraParallel, ComputesItsMatrix) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setParallel(4.0f, 2.0f, -1.0f, 3.0f);
  EXPECT_EQ(matrixOf(*camera), (std::vector<float>{0.25f, 0, 0, 0, 0, 0.5f, 0, 0,  //
                                                   0, 0, -0.5f, 0, 0, 0, -0.5f, 1}));
  float params[4];
  EXPECT_EQ(camera->getProjection(params), Camera::PARALLEL);
  EXPECT_THAT(params, ElementsAre(4, 2, -1, 3));
}

TEST(CameraParallel, RefusesHeightAndAspectAtZero) {
  const shared_ptr<Camera> camera = Camera::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { camera->setParallel(0, 0, 1, 2); }),
            "Camera.setParallel - fovy argument must be >= 0.0");
  EXPECT_EQ(textOf<std::invalid_argument>([&] { camera->setParallel(1, 0, 1, 2); }),
            "Camera.setParallel - aspectRatio argument must be >= 0.0");
  EXPECT_EQ(camera->getProjection(nullptr), Camera::GENERIC);
}

TEST(CameraParallel, NearEqualToFarIsNotFinite) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setParallel(2, 1, 5, 5);
  EXPECT_FALSE(std::isfinite(camera->projection()[10]));
  EXPECT_FALSE(std::isfinite(camera->projection()[14]));
}

TEST(CameraParallel, AfterPerspectiveTheMatrixStartsAnew) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setPerspective(60, 1, 1, 10);
  ASSERT_EQ(camera->projection()[11], -1.0f);
  camera->setParallel(2, 1, 1, 10);
  EXPECT_EQ(camera->projection()[11], 0.0f);
}

TEST(CameraParallel, ASecondCallRewritesAllThatItSets) {
  const shared_ptr<Camera> twice = Camera::create();
  twice->setParallel(7, 3, 2, 90);
  twice->setParallel(2, 1, 1, 10);
  const shared_ptr<Camera> once = Camera::create();
  once->setParallel(2, 1, 1, 10);
  EXPECT_EQ(matrixOf(*twice), matrixOf(*once));
}

TEST(CameraPerspective, ComputesItsMatrix) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setPerspective(90.0f, 2.0f, 1.0f, 3.0f);
  const float t = static_cast<float>(std::tan(45.0 * 0.017453292519943295));
  const float h = 2.0f * t;
  EXPECT_EQ(matrixOf(*camera), (std::vector<float>{1.0f / h, 0, 0, 0, 0, 1.0f / t, 0, 0,  //
                                                   0, 0, -2, -1, 0, 0, -3, 0}));
  float params[4];
  EXPECT_EQ(camera->getProjection(params), Camera::PERSPECTIVE);
  EXPECT_THAT(params, ElementsAre(90, 2, 1, 3));
}

TEST(CameraPerspective, RefusesInItsOrder) {
  struct Case {
    float fovy, aspect, near, far;
    const char* text;
  };
  const Case cases[] = {
      {180, -1, 0, 0, "Camera.setPerspective - fovy argument must be less than 180 degrees"},
      {0, -1, 0, 0, "Camera.setPerspective - fovy argument must be >= 0.0"},
      {60, -1, 0, 10, "Camera.setPerspective - near argument must be >= 0.0"},
      {60, -1, 5, 5, "Camera.setPerspective - aspectRatio argument must be >= 0.0"},
      {60, 1, 5, 5, "Camera.setPerspective - far argument must be >= 0.0"},
      {60, 1, 5, 4, "Camera.setPerspective - far argument must be >= 0.0"},
  };
  for (const Case& c : cases) {
    const shared_ptr<Camera> camera = Camera::create();
    EXPECT_EQ(textOf<std::invalid_argument>(
                  [&] { camera->setPerspective(c.fovy, c.aspect, c.near, c.far); }),
              c.text);
  }
}

TEST(CameraPerspective, ARefusedCallChangesTheTypeOnly) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setParallel(4, 2, -1, 3);
  const std::vector<float> before = matrixOf(*camera);
  EXPECT_THROW(camera->setPerspective(60, 1, 0, 10), std::invalid_argument);
  float params[4];
  EXPECT_EQ(camera->getProjection(params), Camera::PERSPECTIVE);
  EXPECT_THAT(params, ElementsAre(4, 2, -1, 3));
  EXPECT_EQ(matrixOf(*camera), before);
}

TEST(CameraPerspective, AnAspectOfZeroPasses) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setPerspective(60, 0, 1, 10);
  EXPECT_TRUE(std::isinf(camera->projection()[0]));
}

TEST(CameraGetProjection, OfAGenericCameraWritesNothing) {
  const shared_ptr<Camera> camera = Camera::create();
  float params[4] = {9, 9, 9, 9};
  EXPECT_EQ(camera->getProjection(params), Camera::GENERIC);
  EXPECT_THAT(params, ElementsAre(9, 9, 9, 9));
}

TEST(CameraReset, KeepsTheMatrix) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setParallel(4, 2, -1, 3);
  const std::vector<float> before = matrixOf(*camera);
  camera->reset();
  EXPECT_EQ(camera->getProjection(nullptr), Camera::GENERIC);
  EXPECT_EQ(matrixOf(*camera), before);
}

TEST(CameraDuplicate, CopiesTypeMatrixAndParameters) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setPerspective(60, 1, 1, 10);
  const shared_ptr<Camera> copy = boost::dynamic_pointer_cast<Camera>(camera->duplicate());
  ASSERT_TRUE(copy);
  float params[4];
  EXPECT_EQ(copy->getProjection(params), Camera::PERSPECTIVE);
  EXPECT_THAT(params, ElementsAre(60, 1, 1, 10));
  EXPECT_EQ(matrixOf(*copy), matrixOf(*camera));
}

TEST(CameraRoot, EntersAndLeavesTheListOfItsWorld) {
  const shared_ptr<Camera> camera = Camera::create();
  const shared_ptr<Group> group = Group::create();
  group->addChild(camera);
  const shared_ptr<World> world = World::create();
  world->addChild(group);
  EXPECT_THAT(world->getCameras(), ElementsAre(camera));
  group->removeChild(camera);
  EXPECT_TRUE(world->getCameras().empty());
  world->addChild(camera);
  world->removeChild(camera);
  const shared_ptr<World> other = World::create();
  other->addChild(camera);
  EXPECT_TRUE(world->getCameras().empty());
  EXPECT_THAT(other->getCameras(), ElementsAre(camera));
}

}  // namespace
}  // namespace varnel_m3g
