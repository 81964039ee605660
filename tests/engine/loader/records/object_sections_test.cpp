// The sections that records share: Object3D, Transformable, Node.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/animation/animation_track.h"
#include "engine/object/user_object.h"
#include "engine/scene/group.h"
#include "engine/scene/world.h"
#include "engine/surface/fog.h"
#include "engine/surface/texture2d.h"
#include "tests/support/loading.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;
using testing::ElementsAre;

/// A fog with other fields of its Object3D section.
M3gRecord fogWith(std::int64_t userID, const std::vector<std::int64_t>& tracks,
                  const std::vector<std::pair<std::int64_t, std::string>>& parameters) {
  return M3gRecord(FOG).object3D(userID, tracks, parameters).rgb(0).byte(80).float32(1);
}

/// A group whose transform sections are written by the caller.
M3gRecord groupWith(M3gRecord record) {
  return record.node().int32(0);
}

TEST(Object3DSection, IsReadInFull) {
  const Loaded loaded =
      loadRecords({anySequence(), anyController(), anyTrack(2, 3), anyTrack(2, 3),
                   fogWith(-7, {5, 4, 5}, {{1, "one"}, {0xFFFFFFFF, ""}, {0, "zero"}})});
  ASSERT_EQ(loaded.failure, "");
  const auto fog = loaded.at<Fog>(6);
  EXPECT_EQ(fog->getUserID(), -7);
  ASSERT_EQ(fog->getAnimationTrackCount(), 3u);
  EXPECT_EQ(fog->getAnimationTrack(0), loaded.at<AnimationTrack>(5));
  EXPECT_EQ(fog->getAnimationTrack(1), loaded.at<AnimationTrack>(4));
  EXPECT_EQ(fog->getAnimationTrack(2), loaded.at<AnimationTrack>(5));

  const auto parameters = boost::dynamic_pointer_cast<MapUserObject>(fog->getUserObject());
  ASSERT_TRUE(parameters);
  const MapUserObject::Values& values = parameters->getValues();
  ASSERT_EQ(values.size(), 3u);
  EXPECT_EQ(values.at(1).first, 3u);
  EXPECT_EQ(std::string(values.at(1).second, values.at(1).second + 3), "one");
  EXPECT_EQ(values.at(0xFFFFFFFF).first, 0u);
  EXPECT_EQ(values.at(0).first, 4u);
}

TEST(Object3DSection, WithoutParametersHasNoUserObject) {
  const Loaded loaded = loadRecords({anyFog()});
  EXPECT_FALSE(loaded.at<Fog>(2)->getUserObject());
}

TEST(Object3DSection, WritesEachParameterToTheErrorStream) {
  const Loaded loaded = loadRecords({fogWith(0, {}, {{12, "value"}, {13, ""}})});
  EXPECT_EQ(loaded.err, "ID = 12 Value = value\nID = 13 Value = \n");
}

TEST(Object3DSection, RefusesAParameterTwice) {
  const Loaded loaded = loadRecords({fogWith(0, {}, {{12, "a"}, {13, "b"}, {12, "c"}})});
  EXPECT_EQ(loaded.failure, "std::runtime_error: Duplicated ID while reading user params.");
  EXPECT_EQ(loaded.err, "ID = 12 Value = a\nID = 13 Value = b\n");
}

TEST(Object3DSection, CountsBeyondTheFileEndTheLoad) {
  M3gRecord tracks(FOG);
  tracks.int32(0).int32(0xFFFFFFFF);
  EXPECT_EQ(loadRecords({tracks}).failure,
            "std::runtime_error: Object3D file load.. invalid AnimationTrack refernece index");
  M3gRecord parameters(FOG);
  parameters.int32(0).int32(0).int32(0xFFFFFFFF);
  EXPECT_EQ(loadRecords({parameters}).failure,
            "std::runtime_error: Duplicated ID while reading user params.");
}

TEST(TransformableSection, IsIdentityWithoutTransforms) {
  const Loaded loaded = loadRecords({groupWith(M3gRecord(GROUP).object3D().transformable())});
  ASSERT_EQ(loaded.failure, "");
  const auto group = loaded.at<Group>(2);
  float values[4];
  group->getTranslation(values);
  EXPECT_THAT(std::vector<float>(values, values + 3), ElementsAre(0, 0, 0));
  group->getScale(values);
  EXPECT_THAT(std::vector<float>(values, values + 3), ElementsAre(1, 1, 1));
  group->getOrientation(values);
  EXPECT_THAT(values, ElementsAre(0, 0, 0, 0));
  Transform composite;
  group->getCompositeTransform(composite);
  EXPECT_TRUE(composite.isIdentity());
}

TEST(TransformableSection, IsReadInFull) {
  M3gRecord record(GROUP);
  record.object3D().boolean(true).floats({1, 2, 3}).floats({4, 5, 6}).float32(90);
  record.floats({0, 0, 1}).boolean(true);
  record.floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0, 0, 0, 1});
  const Loaded loaded = loadRecords({groupWith(record)});
  ASSERT_EQ(loaded.failure, "");
  const auto group = loaded.at<Group>(2);
  float values[16];
  group->getTranslation(values);
  EXPECT_THAT(std::vector<float>(values, values + 3), ElementsAre(1, 2, 3));
  group->getScale(values);
  EXPECT_THAT(std::vector<float>(values, values + 3), ElementsAre(4, 5, 6));
  group->getOrientation(values);
  EXPECT_NEAR(values[0], 90, 1e-4);
  EXPECT_NEAR(values[1], 0, 1e-6);
  EXPECT_NEAR(values[2], 0, 1e-6);
  EXPECT_NEAR(values[3], 1, 1e-6);
  Transform general;
  group->getTransform(general);
  general.get(values);
  EXPECT_THAT(values, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0, 0, 0, 1));
}

TEST(TransformableSection, RefusesWhatTheSettersRefuse) {
  M3gRecord zeroAxis(GROUP);
  zeroAxis.object3D().transformable({0, 0, 0}, {1, 1, 1}, 90, {0, 0, 0});
  EXPECT_EQ(loadRecords({groupWith(zeroAxis)}).failure,
            "std::invalid_argument: setOrientation called with zero length rotation vector. ");
  const std::vector<float> projective = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2};
  M3gRecord group(GROUP);
  group.object3D().boolean(false).boolean(true).floats(projective);
  EXPECT_EQ(loadRecords({groupWith(group)}).failure,
            "std::invalid_argument: Non-affine transform applied to Node");
  M3gRecord texture(TEXTURE_2D);
  texture.object3D().boolean(false).boolean(true).floats(projective);
  texture.int32(2).rgb(0).byte(227).byte(241).byte(241).byte(208).byte(210);
  EXPECT_EQ(loadRecords({anyImage(), texture}).failure, "");
}

TEST(NodeSection, IsReadInFull) {
  M3gRecord record(GROUP);
  record.object3D().transformable().boolean(false).boolean(false).byte(51).int32(0x12345678);
  record.boolean(true).byte(2).byte(3).int32(2).int32(3).int32(0);
  const Loaded loaded = loadRecords({anyGroup(), anyCamera(), record});
  ASSERT_EQ(loaded.failure, "");
  const auto group = loaded.at<Group>(4);
  EXPECT_FALSE(group->isRenderingEnabled());
  EXPECT_FALSE(group->isPickingEnabled());
  EXPECT_EQ(group->getAlphaFactor(), static_cast<float>(51 / 255.0));
  EXPECT_EQ(group->getScope(), 0x12345678);
  EXPECT_EQ(group->getAlignmentTarget(Node::Z_AXIS), 2);
  EXPECT_EQ(group->getAlignmentTarget(Node::Y_AXIS), 3);
  EXPECT_EQ(group->getAlignmentReference(Node::Z_AXIS), loaded.at<Node>(2));
  EXPECT_EQ(group->getAlignmentReference(Node::Y_AXIS), loaded.at<Node>(3));
  EXPECT_EQ(group->getRoot().lock(), group);
}

TEST(NodeSection, WithoutAlignmentHasNoTargets) {
  const Loaded loaded = loadRecords({anyGroup()});
  const auto group = loaded.at<Group>(2);
  EXPECT_TRUE(group->isRenderingEnabled());
  EXPECT_TRUE(group->isPickingEnabled());
  EXPECT_EQ(group->getAlphaFactor(), 1.0f);
  EXPECT_EQ(group->getScope(), -1);
  EXPECT_EQ(group->getAlignmentTarget(Node::Z_AXIS), 0);
  EXPECT_FALSE(group->getAlignmentReference(Node::Z_AXIS));
}

TEST(NodeSection, TakesAnyAlignmentTargets) {
  M3gRecord record(GROUP);
  record.object3D().transformable().boolean(true).boolean(true).byte(255).int32(-1);
  record.boolean(true).byte(144).byte(255).int32(0).int32(0).int32(0);
  const Loaded loaded = loadRecords({record});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.at<Group>(2)->getAlignmentTarget(Node::Z_AXIS), 144);
  EXPECT_EQ(loaded.at<Group>(2)->getAlignmentTarget(Node::Y_AXIS), 255);
}

TEST(NodeSection, RefusesEqualTargetsButNotEqualReferences) {
  for (const std::int64_t reference : {0, 2}) {
    M3gRecord record(GROUP);
    record.object3D().transformable().boolean(true).boolean(true).byte(255).int32(-1);
    record.boolean(true).byte(1).byte(1).int32(reference).int32(reference).int32(0);
    EXPECT_EQ(loadRecords({anyGroup(), record}).failure,
              "std::invalid_argument: Invalid configuration of alignment.  zRef == yRef and "
              "zTarget == yTarget != NONE");
  }
}

}  // namespace
}  // namespace varnel_m3g
