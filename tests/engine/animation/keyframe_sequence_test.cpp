#include "engine/animation/keyframe_sequence.h"

#include <gtest/gtest.h>

#include <boost/pointer_cast.hpp>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace varnel_m3g {
namespace {

using Values = std::vector<float>;

struct Key {
  int time;
  Values value;
};

boost::shared_ptr<KeyframeSequence> sequenceOf(int interpolation, int repeatMode, int duration,
                                               const std::vector<Key>& keys) {
  const auto sequence = KeyframeSequence::create(
      static_cast<int>(keys.size()), static_cast<int>(keys[0].value.size()), interpolation);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    sequence->setKeyframe(static_cast<int>(i), keys[i].time, keys[i].value.data());
  }
  sequence->setRepeatMode(repeatMode);
  sequence->setDuration(duration);
  return sequence;
}

Values valueAt(KeyframeSequence& sequence, float time) {
  int count = -1;
  const float* values = sequence.getKeyframe(time, &count);
  return Values(values, values + count);
}

template <class Exception, class Work>
std::string failure(Work work) {
  try {
    work();
  } catch (const Exception& e) {
    return e.what();
  }
  return "nothing thrown";
}

TEST(KeyframeSequence, ChecksItsSizesInOrder) {
  struct Case {
    int keyframes;
    int components;
    int interpolation;
    const char* text;
  };
  const Case cases[] = {
      {0, 0, 177, "Number of keyframes < 1"},
      {-1, 4, 177, "Number of keyframes < 1"},
      {1, 0, 177, "Number of components < 1"},
      {1, 3, 177, "SLERP & SQUAD require 4 components"},
      {1, 3, 179, "SLERP & SQUAD require 4 components"},
      {1, 4, 177, "nothing thrown"},
      {1, 5, 179, "nothing thrown"},
      {1, 3, 178, "nothing thrown"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(failure<std::invalid_argument>(
                  [&c] { KeyframeSequence::create(c.keyframes, c.components, c.interpolation); }),
              c.text);
  }
}

TEST(KeyframeSequence, RefusesMoreValuesThanASizeCounts) {
  const int most = std::numeric_limits<int>::max();
  EXPECT_EQ(failure<std::length_error>(
                [most] { KeyframeSequence::create(most, most, KeyframeSequence::LINEAR); }),
            "KeyframeSequence: too many values");
}

TEST(KeyframeSequence, BeginsWithTheFullRangeAndNoDuration) {
  const auto sequence = KeyframeSequence::create(3, 2, KeyframeSequence::STEP);
  EXPECT_EQ(sequence->getKeyframeCount(), 3);
  EXPECT_EQ(sequence->getComponentCount(), 2);
  EXPECT_EQ(sequence->getInterpolationType(), 180);
  EXPECT_EQ(sequence->getRepeatMode(), 192);
  EXPECT_EQ(sequence->getDuration(), 0);
  EXPECT_EQ(sequence->getValidRangeFirst(), 0);
  EXPECT_EQ(sequence->getValidRangeLast(), 2);
}

TEST(KeyframeSequence, ChecksKeyframesInOrderAndKeepsTheOldOne) {
  const auto sequence = KeyframeSequence::create(2, 1, KeyframeSequence::LINEAR);
  const float value[] = {7.0F};
  sequence->setKeyframe(1, 5, value);
  const auto set = [&sequence](int index, int time, const float* v) {
    return failure<std::invalid_argument>([&] { sequence->setKeyframe(index, time, v); });
  };
  const float other[] = {8.0F};
  EXPECT_EQ(set(2, -1, nullptr), "Keyframe value is null");
  EXPECT_EQ(set(2, -1, other), "Invalid keyframe index");
  EXPECT_EQ(set(-1, 0, other), "Invalid keyframe index");
  EXPECT_EQ(set(1, -1, other), "Keyframe time < 0");
  float read[] = {0.0F};
  EXPECT_EQ(sequence->getKeyframe(1, read), 5);
  EXPECT_EQ(read[0], 7.0F);
  EXPECT_EQ(failure<std::invalid_argument>([&] { sequence->getKeyframe(2, read); }),
            "Invalid keyframe index");
  float* const none = nullptr;
  EXPECT_EQ(sequence->getKeyframe(1, none), 5);
}

TEST(KeyframeSequence, ChecksRangeAndDuration) {
  const auto sequence = KeyframeSequence::create(3, 1, KeyframeSequence::LINEAR);
  const int bad[][2] = {{-1, 0}, {0, -1}, {3, 0}, {0, 3}};
  for (const auto& range : bad) {
    EXPECT_EQ(failure<std::invalid_argument>([&] { sequence->setValidRange(range[0], range[1]); }),
              "Invalid keyframe range");
  }
  EXPECT_EQ(sequence->getValidRangeLast(), 2);
  sequence->setValidRange(2, 1);
  EXPECT_EQ(sequence->getValidRangeFirst(), 2);
  EXPECT_EQ(failure<std::invalid_argument>([&] { sequence->setDuration(-1); }),
            "Negative duration");
  sequence->setDuration(0);
}

TEST(KeyframeSequence, NormalisesOnlyTheKeyframesOfSphericalInterpolations) {
  const float value[] = {0.0F, 3.0F, 0.0F, 4.0F, 9.0F};
  for (const int interpolation : {177, 179}) {
    const auto sequence = KeyframeSequence::create(1, 5, interpolation);
    sequence->setKeyframe(0, 0, value);
    float read[5];
    sequence->getKeyframe(0, read);
    EXPECT_EQ(Values(read, read + 5), (Values{0.0F, 0.6F, 0.0F, 0.8F, 9.0F}));
  }
  const auto linear = KeyframeSequence::create(1, 5, KeyframeSequence::LINEAR);
  linear->setKeyframe(0, 0, value);
  float read[5];
  linear->getKeyframe(0, read);
  EXPECT_EQ(Values(read, read + 5), (Values{0.0F, 3.0F, 0.0F, 4.0F, 9.0F}));
}

//      0 ---- 10 ---- 20 (duration)
TEST(KeyframeSequence, LinearConstantHoldsItsEnds) {
  const auto sequence =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::CONSTANT, 20, {{0, {0}}, {10, {10}}});
  const float table[][2] = {{-1, 0},  {0, 0},   {5, 5},     {9.5F, 9.5F},
                            {10, 10}, {11, 10}, {1e9F, 10}, {2, 2}};
  for (const auto& row : table) {
    EXPECT_EQ(valueAt(*sequence, row[0]), Values{row[1]}) << "time " << row[0];
  }
}

TEST(KeyframeSequence, LinearLoopBlendsBackToItsStart) {
  const auto sequence =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::LOOP, 20, {{0, {0}}, {10, {10}}});
  const float table[][2] = {{0, 0}, {5, 5}, {10, 10}, {15, 5}, {20, 0}, {25, 5}, {35, 5}, {7, 7}};
  for (const auto& row : table) {
    EXPECT_EQ(valueAt(*sequence, row[0]), Values{row[1]}) << "time " << row[0];
  }
}

//  4 ---- 8 ------- 20 (duration): 16 from the last keyframe to the first of the next lap
TEST(KeyframeSequence, LoopFillsTheGapBeforeItsFirstKeyframe) {
  const auto sequence =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::LOOP, 20, {{4, {0}}, {8, {16}}});
  const float table[][2] = {{0, 4},  {2, 2},   {3, 1},  {4, 0}, {6, 8},
                            {8, 16}, {14, 10}, {20, 4}, {-4, 8}};
  for (const auto& row : table) {
    EXPECT_FLOAT_EQ(valueAt(*sequence, row[0])[0], row[1]) << "time " << row[0];
  }
}

TEST(KeyframeSequence, OneKeyframeAnswersAnyTime) {
  for (const int interpolation : {176, 177, 178, 179, 180}) {
    for (const int mode : {192, 193}) {
      for (const int duration : {0, 3, 20}) {
        const auto sequence = sequenceOf(interpolation, mode, duration, {{3, {0, 0, 0, 1}}});
        if (duration < 3) {
          EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 0); }),
                    "Duration less than time of last keyframe");
          continue;
        }
        for (const float time : {-5.0F, 0.0F, 3.0F, 10.0F, 1e30F}) {
          EXPECT_EQ(valueAt(*sequence, time), (Values{0, 0, 0, 1}));
        }
      }
    }
  }
}

TEST(KeyframeSequence, StepTakesTheKeyframeOfItsTime) {
  const auto sequence = sequenceOf(KeyframeSequence::STEP, KeyframeSequence::CONSTANT, 30,
                                   {{0, {1}}, {10, {2}}, {20, {3}}});
  const float table[][2] = {{-1, 1}, {0, 1}, {9.9F, 1}, {10, 2}, {19, 2}, {20, 3}, {25, 3}};
  for (const auto& row : table) {
    EXPECT_EQ(valueAt(*sequence, row[0]), Values{row[1]}) << "time " << row[0];
  }
  sequence->setRepeatMode(KeyframeSequence::LOOP);
  EXPECT_EQ(valueAt(*sequence, 25), Values{3});
  EXPECT_EQ(valueAt(*sequence, 40), Values{2});
}

TEST(KeyframeSequence, OfEqualTimesTheLastWins) {
  const auto sequence = sequenceOf(KeyframeSequence::STEP, KeyframeSequence::CONSTANT, 30,
                                   {{0, {1}}, {10, {2}}, {10, {3}}, {20, {4}}});
  EXPECT_EQ(valueAt(*sequence, 10), Values{3});
}

TEST(KeyframeSequence, SlerpTakesTheShortWay) {
  // The second is the opposite of a turn by 60 degrees about z: half way stands 30 degrees.
  const float s = 0.5F;
  const float c = 0.8660254F;
  const auto sequence = sequenceOf(KeyframeSequence::SLERP, KeyframeSequence::CONSTANT, 10,
                                   {{0, {0, 0, 0, 1}}, {10, {0, 0, -s, -c}}});
  const Values half = valueAt(*sequence, 5);
  ASSERT_EQ(half.size(), 4U);
  EXPECT_NEAR(half[2], 0.25881905, 1e-6);
  EXPECT_NEAR(half[3], 0.96592583, 1e-6);
}

TEST(KeyframeSequence, SphericalValuesAreFourFloatsWide) {
  for (const int interpolation : {177, 179}) {
    const auto sequence = sequenceOf(interpolation, KeyframeSequence::CONSTANT, 10,
                                     {{0, {0, 0, 0, 1, 5}}, {10, {0, 0, 1, 0, 6}}});
    EXPECT_EQ(valueAt(*sequence, 5).size(), 4U);
    EXPECT_EQ(valueAt(*sequence, 10).size(), 5U) << "a keyframe's own value has all components";
  }
}

TEST(KeyframeSequence, WideSlerpArcsAreBlendedLinearly) {
  // 150 degrees apart as rotations: an angle of 75 degrees, beyond 0.95 radians.
  const double half = 75.0 * std::acos(-1.0) / 180.0;
  const float z = static_cast<float>(std::sin(half));
  const float w = static_cast<float>(std::cos(half));
  const auto sequence = sequenceOf(KeyframeSequence::SLERP, KeyframeSequence::CONSTANT, 10,
                                   {{0, {0, 0, 0, 1}}, {10, {0, 0, z, w}}});
  const Values value = valueAt(*sequence, 2.5F);
  EXPECT_NEAR(value[2], 0.25 * z, 1e-6);
  EXPECT_NEAR(value[3], 0.75 + 0.25 * w, 1e-6);
}

TEST(KeyframeSequence, SplinePassesItsKeyframesForEveryWidth) {
  for (int width = 1; width <= 6; ++width) {
    std::vector<Key> keys;
    for (int k = 0; k < 4; ++k) {
      Values value;
      for (int c = 0; c < width; ++c) {
        value.push_back(static_cast<float>(k * k + 10 * c));
      }
      keys.push_back({10 * k, value});
    }
    const auto sequence =
        sequenceOf(KeyframeSequence::SPLINE, KeyframeSequence::CONSTANT, 30, keys);
    const Values inside = valueAt(*sequence, 10);
    ASSERT_EQ(inside.size(), static_cast<std::size_t>(width));
    for (int c = 0; c < width; ++c) {
      const float expected = c < 3 || width == 4 ? 1.0F + 10.0F * c : c == 3 ? 1.0F : 0.0F;
      EXPECT_EQ(inside[static_cast<std::size_t>(c)], expected) << "width " << width;
    }
    // Equal spacing of a parabola's values: the tangents are its slopes, so the curve is it.
    EXPECT_NEAR(valueAt(*sequence, 15)[0], 2.25, 1e-5);
  }
}

TEST(KeyframeSequence, SquadOfOneAxisIsItsMiddle) {
  // Four turns about y in equal steps of 20 degrees: the control points lie on the keyframes.
  std::vector<Key> keys;
  for (int k = 0; k < 4; ++k) {
    const double half = k * 10.0 * std::acos(-1.0) / 180.0;
    keys.push_back(
        {10 * k, {0, static_cast<float>(std::sin(half)), 0, static_cast<float>(std::cos(half))}});
  }
  const auto sequence = sequenceOf(KeyframeSequence::SQUAD, KeyframeSequence::CONSTANT, 30, keys);
  const Values value = valueAt(*sequence, 15);
  const double half = 15.0 * std::acos(-1.0) / 180.0;
  EXPECT_NEAR(value[1], std::sin(half), 1e-5);
  EXPECT_NEAR(value[3], std::cos(half), 1e-5);
}

TEST(KeyframeSequence, DecreasingTimesFailOnlyAtEvaluation) {
  const auto sequence =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::CONSTANT, 20, {{10, {0}}, {5, {1}}});
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 0); }),
              "Keyframe times in decreasing order");
  }
  const float value[] = {1.0F};
  sequence->setKeyframe(1, 15, value);
  EXPECT_EQ(valueAt(*sequence, 0), Values{0});
}

TEST(KeyframeSequence, TimesOutsideTheRangeMayDecrease) {
  const auto sequence = sequenceOf(KeyframeSequence::STEP, KeyframeSequence::CONSTANT, 20,
                                   {{10, {7}}, {5, {8}}, {6, {9}}});
  sequence->setValidRange(1, 2);
  EXPECT_EQ(valueAt(*sequence, 0), Values{8});
}

TEST(KeyframeSequence, AShortDurationFailsOnlyAtEvaluation) {
  const auto sequence =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::CONSTANT, 5, {{0, {0}}, {10, {1}}});
  EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 0); }),
            "Duration less than time of last keyframe");
  sequence->setDuration(10);
  EXPECT_EQ(valueAt(*sequence, 0), Values{0});
  sequence->setDuration(9);
  EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 0); }),
            "Duration less than time of last keyframe");
}

TEST(KeyframeSequence, ALaterRangeTakesItsValuesFromKeyframeZeroOn) {
  const auto sequence = sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::CONSTANT, 30,
                                   {{0, {0}}, {10, {100}}, {20, {1000}}});
  sequence->setValidRange(1, 2);
  EXPECT_EQ(valueAt(*sequence, 15), Values{50}) << "half way from keyframe 0 to 1";
  EXPECT_EQ(valueAt(*sequence, 5), Values{100}) << "before the range stands its own first";
  EXPECT_EQ(valueAt(*sequence, 25), Values{1000}) << "and after it its own last";
}

TEST(KeyframeSequence, AWrappedRangeNeedsTimesThatGoOn) {
  const auto sequence = sequenceOf(KeyframeSequence::STEP, KeyframeSequence::CONSTANT, 30,
                                   {{10, {1}}, {20, {2}}, {5, {3}}});
  sequence->setValidRange(2, 1);
  // Played 2, 0, 1 at 5, 10, 20; the positions 0, 1 name keyframes 0, 1.
  EXPECT_EQ(valueAt(*sequence, 4), Values{3});
  EXPECT_EQ(valueAt(*sequence, 7), Values{1});
  EXPECT_EQ(valueAt(*sequence, 12), Values{2});
  EXPECT_EQ(valueAt(*sequence, 20), Values{2});
  sequence->setValidRange(1, 0);
  EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 0); }),
            "Keyframe times in decreasing order");
}

TEST(KeyframeSequence, ARangeOfOneIsAFullCycle) {
  const auto sequence = sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::LOOP, 20,
                                   {{4, {10}}, {4, {20}}, {4, {30}}});
  sequence->setValidRange(1, 1);
  // Four entries, so the seam goes from position 3, which is keyframe 0 again, to position 0.
  EXPECT_EQ(valueAt(*sequence, 4), Values{10});
  EXPECT_EQ(valueAt(*sequence, 14), Values{10});
  sequence->setRepeatMode(KeyframeSequence::CONSTANT);
  EXPECT_EQ(valueAt(*sequence, 0), Values{20});
  sequence->setKeyframe(2, 5, Values{30}.data());
  EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 0); }),
            "Keyframe times in decreasing order");
}

TEST(KeyframeSequence, ALoopWithoutLengthEnds) {
  for (const int interpolation : {176, 177, 178, 179, 180}) {
    const auto sequence = sequenceOf(interpolation, KeyframeSequence::LOOP, 0,
                                     {{0, {0, 0, 0, 1}}, {0, {0, 0, 0, 1}}});
    for (const float time : {-7.0F, 0.0F, 12.0F, 1e30F}) {
      const Values value = valueAt(*sequence, time);
      if (interpolation != KeyframeSequence::SPLINE) {
        EXPECT_EQ(value, (Values{0, 0, 0, 1})) << interpolation << " at " << time;
      }
    }
  }
}

TEST(KeyframeSequence, AHugeTimeLoopsLikeRepeatedSubtraction) {
  const auto sequence =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::LOOP, 16, {{0, {0}}, {16, {16}}});
  // 2^30 + 128 is a float; so is each of its remainders.
  EXPECT_EQ(valueAt(*sequence, 1073741952.0F), Values{0});
  const auto odd =
      sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::LOOP, 7, {{0, {0}}, {7, {7}}});
  float time = 1000003.5F;
  const float start = time;
  while (time >= 7.0F) {
    time -= 7.0F;
  }
  EXPECT_EQ(valueAt(*odd, start), Values{time});
  for (const float unusual :
       {3.4e38F, std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
        std::numeric_limits<float>::quiet_NaN()}) {
    valueAt(*odd, unusual);
  }
}

TEST(KeyframeSequence, ALapBeyondTheFloatsEndsInsideIt) {
  const int most = std::numeric_limits<int>::max();
  const auto sequence =
      sequenceOf(KeyframeSequence::STEP, KeyframeSequence::LOOP, most, {{0, {1}}, {most, {2}}});
  for (float time = 1e9F; time < 1e12F; time *= 1.37F) {
    valueAt(*sequence, time);
  }
}

TEST(KeyframeSequence, RefusesAnUnknownInterpolationWhereItIsUsed) {
  const auto sequence = sequenceOf(7, KeyframeSequence::LOOP, 20, {{0, {0}}, {10, {1}}});
  EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 5); }),
            "Error in KeyframeSequence.getKeyframe(undefined interpolation type)");
  EXPECT_EQ(failure<std::runtime_error>([&] { valueAt(*sequence, 15); }),
            "Error in KeyframeSequence.interpolate(...)");
}

TEST(KeyframeSequence, ADuplicateIsItsOwn) {
  const auto sequence = sequenceOf(KeyframeSequence::LINEAR, KeyframeSequence::LOOP, 20,
                                   {{0, {0}}, {10, {10}}, {12, {12}}});
  sequence->setValidRange(0, 1);
  sequence->setUserID(5);
  const auto copy = boost::dynamic_pointer_cast<KeyframeSequence>(sequence->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getUserID(), 5);
  EXPECT_EQ(copy->getValidRangeLast(), 1);
  EXPECT_EQ(copy->getDuration(), 20);
  EXPECT_EQ(copy->getRepeatMode(), 193);
  EXPECT_EQ(valueAt(*copy, 5), Values{5});
  const float value[] = {100.0F};
  copy->setKeyframe(1, 10, value);
  EXPECT_EQ(valueAt(*sequence, 5), Values{5});
  EXPECT_EQ(valueAt(*copy, 5), Values{50});
}

TEST(KeyframeSequence, DumpsItsFields) {
  const auto sequence = sequenceOf(KeyframeSequence::SQUAD, KeyframeSequence::LOOP, 20,
                                   {{0, {0, 0, 0, 1}}, {10, {0, 0, 0, 1}}});
  testing::internal::CaptureStdout();
  sequence->dump();
  const std::string text = testing::internal::GetCapturedStdout();
  EXPECT_NE(text.find("KeyframeSequence Object\n=======================\nInterpolation:SQUAD\n"
                      "RepeatMode:LOOP\nDuration: 20\nValidRangeFirst: 0\nValidRangetLast: 1\n"
                      "ComponentCount: 4\nKeyFrameCount: 2\n"),
            std::string::npos)
      << text;
}

}  // namespace
}  // namespace varnel_m3g
