#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/scene/mesh.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"
#include "tests/support/loading.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;
using testing::ElementsAre;

M3gRecord cameraOf(int type, const std::vector<float>& values) {
  return M3gRecord(CAMERA).plainNode().byte(type).floats(values);
}

TEST(CameraRecord, OfAGenericProjectionIsRowMajor) {
  const Loaded loaded = loadRecords(
      {cameraOf(48, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}), anyFog()});
  ASSERT_EQ(loaded.failure, "");
  float matrix[16];
  EXPECT_EQ(loaded.at<Camera>(2)->getProjectionMatrix(matrix), 48);
  EXPECT_THAT(matrix, ElementsAre(1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, 4, 8, 12, 16));
  EXPECT_EQ(loaded.objects.size(), 3u);
}

TEST(CameraRecord, OfAParallelOrPerspectiveProjectionKeepsItsParameters) {
  for (const int type : {49, 50}) {
    const Loaded loaded = loadRecords({cameraOf(type, {60, 1.5f, 2, 30}), anyFog()});
    ASSERT_EQ(loaded.failure, "") << type;
    float parameters[4];
    EXPECT_EQ(loaded.at<Camera>(2)->getProjection(parameters), type);
    EXPECT_THAT(parameters, ElementsAre(60, 1.5f, 2, 30));
    EXPECT_EQ(loaded.objects.size(), 3u);
  }
}

TEST(CameraRecord, OfAnotherTypeDropsItsParameters) {
  for (const int type : {0, 51, 255}) {
    const Loaded loaded = loadRecords({cameraOf(type, {-1, -1, -1, -1}), anyFog()});
    ASSERT_EQ(loaded.failure, "") << type;
    ASSERT_EQ(loaded.objects.size(), 3u);
    float matrix[16];
    EXPECT_EQ(loaded.at<Camera>(2)->getProjectionMatrix(matrix), 48);
    EXPECT_THAT(matrix, ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1));
  }
}

TEST(CameraRecord, RefusesWhatTheSettersRefuse) {
  EXPECT_EQ(loadRecords({cameraOf(50, {180, 1, 1, 2})}).failure,
            "std::invalid_argument: Camera.setPerspective - fovy argument must be less than 180 "
            "degrees");
  EXPECT_EQ(loadRecords({cameraOf(49, {0, 1, 1, 2})}).failure,
            "std::invalid_argument: Camera.setParallel - fovy argument must be >= 0.0");
}

TEST(GroupRecord, OwnsItsChildrenInOrder) {
  M3gRecord record(GROUP);
  const Loaded loaded =
      loadRecords({anyGroup(), anyCamera(), anyLight(), record.plainNode().intArray({4, 2, 3})});
  ASSERT_EQ(loaded.failure, "");
  const auto group = loaded.at<Group>(5);
  ASSERT_EQ(group->getChildCount(), 3u);
  EXPECT_EQ(group->Node::getChild(0), loaded.at<Node>(4));
  EXPECT_EQ(group->Node::getChild(1), loaded.at<Node>(2));
  EXPECT_EQ(group->Node::getChild(2), loaded.at<Node>(3));
  EXPECT_EQ(loaded.at<Node>(2)->getParent(), group);
  EXPECT_EQ(loaded.at<Node>(2)->getRoot().lock(), group);
}

TEST(GroupRecord, AddsAChildOnce) {
  M3gRecord record(GROUP);
  const Loaded loaded = loadRecords({anyGroup(), record.plainNode().intArray({2, 2})});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.at<Group>(3)->getChildCount(), 1u);
}

TEST(GroupRecord, RefusesWhatAddChildRefuses) {
  const M3gRecord parent = M3gRecord(GROUP).plainNode().intArray({2});
  EXPECT_EQ(loadRecords({anyGroup(), parent, parent}).failure,
            "std::invalid_argument: Attempt to add a child that already has a parent");
  const M3gRecord world = M3gRecord(WORLD).plainNode().int32(0).int32(0).int32(0);
  EXPECT_EQ(loadRecords({world, parent}).failure,
            "std::invalid_argument: Child is a instance of World and must remain the root of the "
            "scene.");
}

TEST(GroupRecord, ACountBeyondTheFileEndsTheLoad) {
  M3gSection section;
  section.objects = M3gRecord(GROUP).plainNode().int32(0xFFFFFFFF).object();
  section.checksum = 0;
  EXPECT_EQ(loadBytes(M3gFile().section(section).bytes()).failure,
            "std::runtime_error: Group: file load... ID for child not ID for node");
}

TEST(LightRecord, IsReadInFull) {
  M3gRecord record(LIGHT);
  record.plainNode().floats({0.5f, 2, 3}).rgb(0x102030).byte(131);
  const Loaded loaded = loadRecords({record.float32(1.5f).float32(30).float32(100)});
  ASSERT_EQ(loaded.failure, "");
  const auto light = loaded.at<Light>(2);
  EXPECT_EQ(light->getConstantAttenuation(), 0.5f);
  EXPECT_EQ(light->getLinearAttenuation(), 2.0f);
  EXPECT_EQ(light->getQuadraticAttenuation(), 3.0f);
  EXPECT_EQ(light->getColor(), 0x102030);
  EXPECT_EQ(light->getMode(), 131);
  EXPECT_EQ(light->getIntensity(), 1.5f);
  EXPECT_EQ(light->getSpotAngle(), 30.0f);
  EXPECT_EQ(light->getSpotExponent(), 100.0f);
  EXPECT_EQ(light->getScaledColor()[0], static_cast<float>(16 * 1.5 / 255.0));
}

TEST(LightRecord, RefusesWhatTheSettersRefuse) {
  const auto light = [](float constant, float angle, float exponent) {
    M3gRecord record(LIGHT);
    record.plainNode().floats({constant, 0, 0}).rgb(0).byte(129);
    return record.float32(1).float32(angle).float32(exponent);
  };
  EXPECT_EQ(loadRecords({light(0, 45, 0)}).failure,
            "std::invalid_argument: Invalid Attenuation values - all are zero.");
  EXPECT_EQ(loadRecords({light(-1, 45, 0)}).failure,
            "std::invalid_argument: Invalid Attenuation value - negative values not allowed.");
  EXPECT_EQ(loadRecords({light(1, 91, 0)}).failure,
            "std::invalid_argument: Invalid spotlight angle -- value out of range.");
  EXPECT_EQ(loadRecords({light(1, 45, 129)}).failure,
            "std::invalid_argument: Invalid spotlight exponent -- value out of range.");
}

TEST(MeshRecord, IsReadInFull) {
  M3gRecord record(MESH);
  record.plainNode().int32(3).int32(2).int32(4).int32(5).int32(4).int32(0);
  const Loaded loaded =
      loadRecords({anyVertexArray(), anyVertexBuffer(2), anyStrips(), anyAppearance(), record});
  ASSERT_EQ(loaded.failure, "");
  const auto mesh = loaded.at<Mesh>(6);
  EXPECT_EQ(mesh->getVertexBuffer(), loaded.at<VertexBuffer>(3));
  ASSERT_EQ(mesh->getSubmeshCount(), 2u);
  EXPECT_EQ(mesh->getIndexBuffer(0), loaded.at<IndexBuffer>(4));
  EXPECT_EQ(mesh->getAppearance(0), loaded.at<Appearance>(5));
  EXPECT_EQ(mesh->getIndexBuffer(1), loaded.at<IndexBuffer>(4));
  EXPECT_FALSE(mesh->getAppearance(1));
  const auto users = loaded.at<Appearance>(5)->getMeshes();
  ASSERT_EQ(users.size(), 1u);
  EXPECT_EQ(users[0], mesh);
}

TEST(MeshRecord, NeedsASubmesh) {
  M3gRecord record(MESH);
  EXPECT_EQ(loadRecords({anyVertexBuffer(0), record.plainNode().int32(2).int32(0)}).failure,
            "std::invalid_argument: Mesh constructor called with empty submesh array");
}

TEST(MeshRecord, ACountBeyondTheFileEndsTheLoad) {
  M3gSection section;
  section.objects =
      anyVertexBuffer(0).object() + M3gRecord(MESH).plainNode().int32(2).int32(0xFFFFFFFF).object();
  section.checksum = 0;
  EXPECT_EQ(loadBytes(M3gFile().section(section).bytes()).failure,
            "std::runtime_error: Mesh: file load... invalid IndexBuffer index reference");
}

TEST(WorldRecord, IsReadInFull) {
  M3gRecord record(WORLD);
  record.plainNode().intArray({2, 3}).int32(2).int32(4);
  const Loaded loaded = loadRecords({anyCamera(), anyLight(), anyBackground(), record});
  ASSERT_EQ(loaded.failure, "");
  const auto world = loaded.at<World>(5);
  EXPECT_EQ(world->getChildCount(), 2u);
  EXPECT_EQ(world->getActiveCamera(), loaded.at<Camera>(2));
  EXPECT_EQ(world->getBackground(), loaded.at<Background>(4));
  EXPECT_THAT(world->getCameras(), ElementsAre(loaded.at<Camera>(2)));
  EXPECT_THAT(world->getLights(), ElementsAre(loaded.at<Light>(3)));
}

TEST(WorldRecord, NeedsNeitherCameraNorBackground) {
  const Loaded loaded = loadRecords({M3gRecord(WORLD).plainNode().int32(0).int32(0).int32(0)});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_FALSE(loaded.at<World>(2)->getActiveCamera());
  EXPECT_FALSE(loaded.at<World>(2)->getBackground());
}

}  // namespace
}  // namespace varnel_m3g
