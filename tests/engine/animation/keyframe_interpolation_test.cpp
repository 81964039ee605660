#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/animation/keyframe_sequence.h"
#include "tests/engine/animation/keyframe_model.h"

namespace varnel_m3g {
namespace {

using varnel_test::KeyframeModel;

constexpr int sequences = 3000;
constexpr int timesEach = 40;

// What float rounding may do to values within -10..10, or that part of larger ones.
constexpr double tolerance = 1e-4;
// Quaternions lie within -1..1, but the way through logarithms multiplies the rounding of an arc
// cosine.
constexpr double squadTolerance = 2e-3;
// Far outside the two keyframes the spherical forms are sines of many turns of a rounded angle.
constexpr double farthestSphericalWay = 2.0;

class Generator {
 public:
  explicit Generator(unsigned seed) : engine(seed) {}

  int integer(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }
  float real(float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(engine);
  }

  /// A sequence that plays: its times rise in playing order.
  KeyframeModel model(int interpolation) {
    KeyframeModel m;
    m.interpolation = interpolation;
    m.repeat = integer(192, 193);
    const bool spherical = interpolation == 177 || interpolation == 179;
    m.components = spherical ? integer(4, 5) : integer(1, 6);
    const int count = integer(1, 7);
    m.first = integer(0, count - 1);
    m.last = integer(0, count - 1);
    std::vector<int> times;
    for (int k = 0; k < count; ++k) {
      times.push_back(integer(0, 1000));
    }
    std::sort(times.begin(), times.end());
    if (m.first == m.last) {
      std::fill(times.begin(), times.end(), times.front());
    }
    m.keys.resize(static_cast<std::size_t>(count));
    for (int k = 0; k < count; ++k) {
      KeyframeModel::Key& key = m.keys[static_cast<std::size_t>((m.first + k) % count)];
      key.time = times[static_cast<std::size_t>(k)];
      for (int c = 0; c < m.components; ++c) {
        key.value.push_back(spherical ? real(-1, 1) : real(-10, 10));
      }
    }
    m.duration = m.keys[static_cast<std::size_t>(m.last)].time + integer(0, 1) * integer(1, 500);
    m.duration = std::max(m.duration, 1);
    return m;
  }

 private:
  std::mt19937 engine;
};

/// The same sequence for the engine. The model takes over the keyframes as the engine keeps them,
/// since spherical ones are normalised there.
boost::shared_ptr<KeyframeSequence> sequenceOf(KeyframeModel& model) {
  const auto sequence = KeyframeSequence::create(static_cast<int>(model.keys.size()),
                                                 model.components, model.interpolation);
  for (int k = 0; k < sequence->getKeyframeCount(); ++k) {
    KeyframeModel::Key& key = model.keys[static_cast<std::size_t>(k)];
    std::vector<float> value(key.value.begin(), key.value.end());
    sequence->setKeyframe(k, key.time, value.data());
    sequence->getKeyframe(k, value.data());
    key.value.assign(value.begin(), value.end());
  }
  sequence->setRepeatMode(model.repeat);
  sequence->setDuration(model.duration);
  sequence->setValidRange(model.first, model.last);
  return sequence;
}

class KeyframeInterpolation : public testing::TestWithParam<int> {};

TEST_P(KeyframeInterpolation, AgreesWithTheModelOnRandomSequences) {
  const int interpolation = GetParam();
  Generator random(static_cast<unsigned>(interpolation));
  const double allowed = interpolation == 179 ? squadTolerance : tolerance;
  int compared = 0;
  int nonFinite = 0;
  for (int n = 0; n < sequences; ++n) {
    KeyframeModel model = random.model(interpolation);
    const auto sequence = sequenceOf(model);
    for (int t = 0; t < timesEach; ++t) {
      // Every fourth time is that of a keyframe.
      const int at = random.integer(0, static_cast<int>(model.keys.size()) - 1);
      const float time = t % 4 == 0
                             ? static_cast<float>(model.keys[static_cast<std::size_t>(at)].time)
                             : random.real(-200, 3.0F * static_cast<float>(model.duration) + 100);
      model.nearLimit = false;
      model.way = 0;
      const std::vector<double> expected = model.at(time);
      int count = -1;
      const float* actual = sequence->getKeyframe(time, &count);
      ASSERT_EQ(static_cast<std::size_t>(count), expected.size());
      const bool spherical = interpolation == 177 || interpolation == 179;
      if (model.nearLimit || (spherical && std::fabs(model.way) > farthestSphericalWay)) {
        continue;
      }
      for (std::size_t c = 0; c < expected.size(); ++c) {
        if (!std::isfinite(expected[c])) {
          ++nonFinite;
          ASSERT_FALSE(std::isfinite(actual[c]));
          continue;
        }
        // Splines with uneven times leave the range of their keyframes.
        const double scale = std::max(1.0, std::fabs(expected[c]) / 10.0);
        ASSERT_NEAR(actual[c], expected[c], allowed * scale)
            << "sequence " << n << ", time " << time << ", component " << c << ", keyframes "
            << model.keys.size() << ", range " << model.first << ".." << model.last << ", repeat "
            << model.repeat;
        ++compared;
      }
    }
  }
  EXPECT_GT(compared, sequences * timesEach / 2);
  RecordProperty("non_finite", nonFinite);
}

INSTANTIATE_TEST_SUITE_P(All, KeyframeInterpolation, testing::Values(176, 177, 178, 179, 180));

TEST(KeyframeInterpolationErrors, AgreeWithTheModelOnAnyTimes) {
  Generator random(1);
  int failures = 0;
  for (int n = 0; n < 2000; ++n) {
    KeyframeModel model = random.model(KeyframeSequence::STEP);
    for (KeyframeModel::Key& key : model.keys) {
      key.time = random.integer(0, 3);
    }
    model.duration = random.integer(1, 4);
    const auto sequence = sequenceOf(model);
    std::string expected;
    std::string actual;
    try {
      model.at(1.0);
    } catch (const std::runtime_error& e) {
      expected = e.what();
      ++failures;
    }
    try {
      int count = 0;
      sequence->getKeyframe(1.0F, &count);
    } catch (const std::runtime_error& e) {
      actual = e.what();
    }
    ASSERT_EQ(actual, expected);
  }
  EXPECT_GT(failures, 100);
}

}  // namespace
}  // namespace varnel_m3g
