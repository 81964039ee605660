#include "engine/animation/animation_track.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/animation/animation_controller.h"
#include "engine/animation/keyframe_sequence.h"
#include "tests/engine/animation/animation_scene.h"

namespace varnel_m3g {
namespace {

using varnel_test::constantTrack;

std::string incompatibility(int property, int components, int interpolation) {
  const auto track =
      AnimationTrack::create(KeyframeSequence::create(1, components, interpolation), property);
  try {
    track->checkCompatibility();
  } catch (const std::invalid_argument& e) {
    return e.what();
  }
  return "fits";
}

TEST(AnimationTrack, TakesAnySequenceForAnyProperty) {
  const auto sequence = KeyframeSequence::create(1, 2, KeyframeSequence::LINEAR);
  for (const int property : {-1, 0, 255, 256, 266, 276, 277}) {
    const auto track = AnimationTrack::create(sequence, property);
    EXPECT_EQ(track->getTargetProperty(), property);
    EXPECT_EQ(track->getKeyframeSequence(), sequence);
    EXPECT_FALSE(track->getController());
  }
}

TEST(AnimationTrack, OfFilesFitsItsProperty) {
  struct Rule {
    std::vector<int> properties;
    std::vector<int> components;
    bool spherical;
    const char* text;
  };
  const Rule rules[] = {
      {{256, 260, 263, 264, 265, 267, 269, 271, 273, 274, 276},
       {1},
       false,
       "KeyframeSequence is not compatible with property"},
      {{257, 258, 261, 262, 272, 275},
       {3},
       false,
       "KeyframeSequence componentCount is not compatible with property"},
      {{259},
       {2, 4},
       false,
       "KeyframeSequence componentCount is not compatible with CROP property"},
      {{268},
       {4},
       true,
       "KeyframeSequence componentCount is not compatible with ORIENTATION property"},
      {{270},
       {1, 3},
       false,
       "KeyframeSequence componentCount is not compatible with SCALE property"},
      {{266, 255, 277, -1}, {}, false, "AnimationTrack:  Invalid property"},
  };
  for (const Rule& rule : rules) {
    for (const int property : rule.properties) {
      for (int components = 1; components <= 5; ++components) {
        for (const int interpolation : {176, 177, 178, 179, 180}) {
          const bool spherical = interpolation == 177 || interpolation == 179;
          if (spherical && components < 4) {
            continue;
          }
          const bool fits = std::find(rule.components.begin(), rule.components.end(), components) !=
                                rule.components.end() &&
                            (rule.spherical || !spherical);
          EXPECT_EQ(incompatibility(property, components, interpolation), fits ? "fits" : rule.text)
              << property << " with " << components << " of " << interpolation;
        }
      }
    }
  }
}

TEST(AnimationTrack, WithoutASequenceFitsNothing) {
  const boost::shared_ptr<AnimationTrack> track(new AnimationTrack);
  try {
    track->checkCompatibility();
    FAIL();
  } catch (const std::invalid_argument& e) {
    EXPECT_STREQ(e.what(), "AnimationTrack: Keyframe sequence is null");
  }
}

TEST(AnimationTrack, SamplesItsSequenceTimesTheWeight) {
  const auto track = constantTrack(AnimationTrack::TRANSLATION, {1, 2, 3}, 0.5F);
  int count = -1;
  const float* values = track->sample(0, &count);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(values[0], 0.5F);
  EXPECT_EQ(values[1], 1.0F);
  EXPECT_EQ(values[2], 1.5F);
}

TEST(AnimationTrack, SamplesAtThePositionOfItsController) {
  const auto sequence = KeyframeSequence::create(2, 1, KeyframeSequence::LINEAR);
  const float low[] = {0};
  const float high[] = {100};
  sequence->setKeyframe(0, 0, low);
  sequence->setKeyframe(1, 100, high);
  sequence->setDuration(100);
  const auto track = AnimationTrack::create(sequence, AnimationTrack::DENSITY);
  const auto controller = AnimationController::create();
  controller->setSpeed(2, 0);
  controller->setPosition(10, 5);
  track->setController(controller);
  int count = 0;
  EXPECT_FLOAT_EQ(track->sample(15, &count)[0], 30.0F);
}

TEST(AnimationTrack, IsSilentWithoutAnActiveController) {
  const auto track = constantTrack(AnimationTrack::DENSITY, {1});
  const auto controller = track->getController();
  int count = -1;
  controller->setActiveInterval(10, 20);
  EXPECT_EQ(track->sample(9, &count), nullptr);
  EXPECT_EQ(count, 0);
  track->setController(boost::shared_ptr<AnimationController>());
  count = -1;
  EXPECT_EQ(track->sample(15, &count), nullptr);
  EXPECT_EQ(count, 0);
}

TEST(AnimationTrack, ReportsControllerThenSequence) {
  const auto track = constantTrack(AnimationTrack::DENSITY, {1});
  const auto own = constantTrack(AnimationTrack::DENSITY, {1});
  track->addAnimationTrack(own);
  EXPECT_EQ(track->getReferences(nullptr, 0), 3U);
  boost::shared_ptr<Object3D> references[3];
  EXPECT_EQ(track->getReferences(references, 3), 3U);
  EXPECT_EQ(references[0], own);
  EXPECT_EQ(references[1], track->getController());
  EXPECT_EQ(references[2], track->getKeyframeSequence());
  track->removeAnimationTrack(own);
  for (const unsigned max : {0U, 1U}) {
    try {
      track->getReferences(references, max);
      FAIL();
    } catch (const std::invalid_argument& e) {
      EXPECT_STREQ(e.what(), "Appearance::getReferences: reference count exceeded.");
    }
  }
  track->setController(boost::shared_ptr<AnimationController>());
  EXPECT_EQ(track->getReferences(references, 1), 1U);
  EXPECT_EQ(references[0], track->getKeyframeSequence());
}

TEST(AnimationTrack, ADuplicateSharesSequenceAndController) {
  const auto track = constantTrack(AnimationTrack::DENSITY, {1});
  track->setUserID(3);
  const auto copy = boost::dynamic_pointer_cast<AnimationTrack>(track->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getUserID(), 3);
  EXPECT_EQ(copy->getController(), track->getController());
  EXPECT_EQ(copy->getKeyframeSequence(), track->getKeyframeSequence());
  EXPECT_EQ(copy->getTargetProperty(), AnimationTrack::DENSITY);
  int count = 0;
  EXPECT_NE(copy->sample(0, &count), track->sample(0, &count)) << "each has its own buffer";
}

TEST(AnimationTrack, DumpsTheNameOfItsProperty) {
  const std::pair<int, std::string> table[] = {
      {256, "ALPHA"},          {257, "AMBIENT_COLOR"},  {258, "COLOR"},
      {259, "CROP"},           {260, "DENSITY"},        {261, "DIFFUSE_COLOR"},
      {262, "EMISSIVE_COLOR"}, {263, "FAR_DISTANCE"},   {264, "FIELD_OF_VIEW"},
      {265, "INTENSITY"},      {266, "MORPH_WEIGHTS"},  {267, "NEAR_DISTANCE"},
      {268, "ORIENTATION"},    {269, "PICKABILITY"},    {270, "SCALE"},
      {271, "SHININESS"},      {272, "SPECULAR_COLOR"}, {273, "SPOT_ANGLE"},
      {274, "SPOT_EXPONENT"},  {275, "TRANSLATION"},    {276, "VISIBILITY"},
      {255, "UNKNOWN(255)"},   {277, "UNKNOWN(277)"},   {-1, "UNKNOWN(4294967295)"}};
  for (const auto& [property, name] : table) {
    const auto track = constantTrack(property, {1});
    track->getKeyframeSequence()->setUserID(7);
    track->getController()->setUserID(8);
    testing::internal::CaptureStdout();
    track->dump();
    const std::string text = testing::internal::GetCapturedStdout();
    EXPECT_NE(
        text.find(std::string("AnimationTrack Object\n=====================\n"
                              "KeyframeSequence ID: 7\nAnimationController ID: 8\nPropertyID:") +
                  name + "\n"),
        std::string::npos)
        << text;
  }
}

}  // namespace
}  // namespace varnel_m3g
