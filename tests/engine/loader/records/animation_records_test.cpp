#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/animation/animation_controller.h"
#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "tests/support/loading.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;
using testing::ElementsAre;

M3gRecord controllerOf(float speed, float weight, int start, int end, float sequenceTime,
                       int worldTime) {
  M3gRecord record(ANIMATION_CONTROLLER);
  record.object3D().float32(speed).float32(weight).int32(start).int32(end);
  return record.float32(sequenceTime).int32(worldTime);
}

/// The head of a sequence of two keyframes with two components.
M3gRecord sequenceHead(int encoding, int interpolation = 176) {
  M3gRecord record(KEYFRAME_SEQUENCE);
  record.object3D().byte(interpolation).byte(193).byte(encoding);
  return record.int32(500).int32(1).int32(0).int32(2).int32(2);
}

std::vector<float> keyframe(const Loaded& loaded, int index, int* time) {
  const auto sequence = loaded.at<KeyframeSequence>(2);
  std::vector<float> value(static_cast<std::size_t>(sequence->getComponentCount()));
  *time = sequence->getKeyframe(index, value.data());
  return value;
}

TEST(AnimationControllerRecord, IsReadInFull) {
  const Loaded loaded = loadRecords({controllerOf(2, 0.25f, 10, 90, 100, 7)});
  ASSERT_EQ(loaded.failure, "");
  const auto controller = loaded.at<AnimationController>(2);
  EXPECT_EQ(controller->getSpeed(), 2.0f);
  EXPECT_EQ(controller->getWeight(), 0.25f);
  EXPECT_EQ(controller->getActiveIntervalStart(), 10);
  EXPECT_EQ(controller->getActiveIntervalEnd(), 90);
  EXPECT_EQ(controller->getRefWorldTime(), 7);
  EXPECT_EQ(controller->getPosition(9), 104.0f);
}

TEST(AnimationControllerRecord, RefusesWhatTheSettersRefuse) {
  EXPECT_EQ(loadRecords({controllerOf(1, -1, 0, 0, 0, 0)}).failure,
            "std::invalid_argument: Invalid blending weight");
  EXPECT_EQ(loadRecords({controllerOf(1, 1, 5, 4, 0, 0)}).failure,
            "std::invalid_argument: Invalid active interval");
}

TEST(AnimationTrackRecord, IsReadInFull) {
  const Loaded loaded =
      loadRecords({anySequence(3), anyController(), anyTrack(2, 3, AnimationTrack::SCALE)});
  ASSERT_EQ(loaded.failure, "");
  const auto track = loaded.at<AnimationTrack>(4);
  EXPECT_EQ(track->getKeyframeSequence(), loaded.at<KeyframeSequence>(2));
  EXPECT_EQ(track->getController(), loaded.at<AnimationController>(3));
  EXPECT_EQ(track->getTargetProperty(), AnimationTrack::SCALE);
  int count = 0;
  const float* sample = track->sample(5, &count);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(sample[2], 0.0f);
}

TEST(AnimationTrackRecord, NeedsAController) {
  EXPECT_EQ(loadRecords({anySequence(), anyController(), anyTrack(2, 0)}).failure,
            "std::runtime_error: AnimationTrack:   file load... invalid AnimationController being "
            "set as attribute");
}

TEST(AnimationTrackRecord, MustSuitItsProperty) {
  const struct {
    int components;
    int property;
    const char* failure;
  } cases[] = {
      {3, AnimationTrack::TRANSLATION, ""},
      {1, AnimationTrack::MORPH_WEIGHTS,
       "std::invalid_argument: AnimationTrack:  Invalid property"},
      {1, 255, "std::invalid_argument: AnimationTrack:  Invalid property"},
      {1, 277, "std::invalid_argument: AnimationTrack:  Invalid property"},
      {2, AnimationTrack::SCALE,
       "std::invalid_argument: KeyframeSequence componentCount is not compatible with SCALE "
       "property"},
      {2, AnimationTrack::ALPHA,
       "std::invalid_argument: KeyframeSequence is not compatible with property"}};
  for (const auto& each : cases) {
    EXPECT_EQ(
        loadRecords({anySequence(each.components), anyController(), anyTrack(2, 3, each.property)})
            .failure,
        each.failure)
        << each.property;
  }
}

TEST(KeyframeSequenceRecord, OfFloatsIsReadInFull) {
  const Loaded loaded =
      loadRecords({sequenceHead(0).int32(3).floats({1, -2}).int32(400).floats({3.5f, 4})});
  ASSERT_EQ(loaded.failure, "");
  const auto sequence = loaded.at<KeyframeSequence>(2);
  EXPECT_EQ(sequence->getInterpolationType(), 176);
  EXPECT_EQ(sequence->getRepeatMode(), 193);
  EXPECT_EQ(sequence->getDuration(), 500);
  EXPECT_EQ(sequence->getValidRangeFirst(), 1);
  EXPECT_EQ(sequence->getValidRangeLast(), 0);
  EXPECT_EQ(sequence->getComponentCount(), 2);
  EXPECT_EQ(sequence->getKeyframeCount(), 2);
  int time = 0;
  EXPECT_THAT(keyframe(loaded, 0, &time), ElementsAre(1, -2));
  EXPECT_EQ(time, 3);
  EXPECT_THAT(keyframe(loaded, 1, &time), ElementsAre(3.5f, 4));
  EXPECT_EQ(time, 400);
}

TEST(KeyframeSequenceRecord, OfBytesIsScaledAndBiased) {
  const Loaded loaded = loadRecords({sequenceHead(1)
                                         .floats({10, -1})
                                         .floats({2, 4})
                                         .int32(0)
                                         .byte(0)
                                         .byte(255)
                                         .int32(1)
                                         .byte(51)
                                         .byte(0x80)});
  ASSERT_EQ(loaded.failure, "");
  int time = 0;
  EXPECT_THAT(keyframe(loaded, 0, &time), ElementsAre(10, 3));
  const auto second = keyframe(loaded, 1, &time);
  EXPECT_FLOAT_EQ(second[0], 10.4f);
  EXPECT_FLOAT_EQ(second[1], static_cast<float>(128 / 255.0 * 4 - 1));
}

TEST(KeyframeSequenceRecord, OfShortsIsSigned) {
  const Loaded loaded = loadRecords({sequenceHead(2)
                                         .floats({10, 1})
                                         .floats({2, 65535})
                                         .int32(0)
                                         .int16(0xFFFF)
                                         .int16(0x7FFF)
                                         .int32(1)
                                         .int16(0)
                                         .int16(0x8000)});
  ASSERT_EQ(loaded.failure, "");
  int time = 0;
  const auto first = keyframe(loaded, 0, &time);
  EXPECT_FLOAT_EQ(first[0], static_cast<float>(10 - 2 / 65535.0));
  EXPECT_FLOAT_EQ(first[1], 32768);
  const auto second = keyframe(loaded, 1, &time);
  EXPECT_FLOAT_EQ(second[0], 10);
  EXPECT_FLOAT_EQ(second[1], -32767);
}

TEST(KeyframeSequenceRecord, NormalisesQuaternions) {
  M3gRecord record(KEYFRAME_SEQUENCE);
  record.object3D().byte(177).byte(192).byte(0).int32(0).int32(0).int32(0).int32(4).int32(1);
  const Loaded loaded = loadRecords({record.int32(0).floats({0, 3, 0, 4})});
  ASSERT_EQ(loaded.failure, "");
  int time = 0;
  const auto value = keyframe(loaded, 0, &time);
  EXPECT_FLOAT_EQ(value[1], 0.6f);
  EXPECT_FLOAT_EQ(value[3], 0.8f);
}

TEST(KeyframeSequenceRecord, FailuresHaveTheirTexts) {
  const auto head = [](int encoding, int interpolation, int duration, int first, int last,
                       std::int64_t components, std::int64_t count) {
    M3gRecord record(KEYFRAME_SEQUENCE);
    record.object3D().byte(interpolation).byte(192).byte(encoding);
    return record.int32(duration).int32(first).int32(last).int32(components).int32(count);
  };
  const struct {
    M3gRecord record;
    const char* failure;
  } cases[] = {{head(3, 176, 0, 0, 0, 1, 1),
                "std::runtime_error: m3g.KeyframeSequence.load() --  invalid encoding"},
               {head(255, 176, 0, 0, 0, 3, 100),
                "std::runtime_error: m3g.KeyframeSequence.load() --  invalid encoding"},
               {head(0, 176, 0, 0, 0, 1, 0), "std::invalid_argument: Number of keyframes < 1"},
               {head(0, 176, 0, 0, 0, 1, -1), "std::invalid_argument: Number of keyframes < 1"},
               {head(0, 176, 0, 0, 0, 0, 1), "std::invalid_argument: Number of components < 1"},
               {head(0, 177, 0, 0, 0, 1, 1).int32(0).float32(0),
                "std::invalid_argument: SLERP & SQUAD require 4 components"},
               {head(0, 176, -1, 0, 0, 1, 1).int32(0).float32(0),
                "std::invalid_argument: Negative duration"},
               {head(0, 176, 0, 0, 1, 1, 1).int32(0).float32(0),
                "std::invalid_argument: Invalid keyframe range"},
               {head(0, 176, 0, 0, 0, 1, 1).int32(-1).float32(0),
                "std::invalid_argument: Keyframe time < 0"}};
  for (const auto& each : cases) {
    EXPECT_EQ(loadRecords({each.record}).failure, each.failure);
  }
}

TEST(KeyframeSequenceRecord, CountsBeyondTheFileEndTheLoad) {
  const auto huge = [](int encoding, std::int64_t components, std::int64_t count) {
    M3gRecord record(KEYFRAME_SEQUENCE);
    record.object3D().byte(176).byte(192).byte(encoding);
    return record.int32(0).int32(0).int32(0).int32(components).int32(count);
  };
  for (const int encoding : {0, 1, 2}) {
    for (const auto& [components, count] :
         {std::pair{0x7FFFFFFF, 1}, std::pair{1, 0x7FFFFFFF}, std::pair{0x7FFFFFFF, 0x7FFFFFFF},
          std::pair{3, 1000}}) {
      EXPECT_EQ(loadRecords({huge(encoding, components, count)}).failure,
                "std::runtime_error: M3gObjectInputStream: count exceeds the rest of the file");
    }
  }
  EXPECT_EQ(loadRecords({huge(3, 0x7FFFFFFF, 0x7FFFFFFF)}).failure,
            "std::runtime_error: Loader::load:  Out of memory");
}

}  // namespace
}  // namespace varnel_m3g
