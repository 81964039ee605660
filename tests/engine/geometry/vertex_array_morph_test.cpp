#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <vector>

#include "engine/geometry/vertex_array.h"

namespace varnel_m3g {
namespace {

using Bytes = std::vector<signed char>;
using Shorts = std::vector<short>;
using Arrays = std::vector<boost::shared_ptr<VertexArray>>;

enum class Kind { SIGNED_BYTES, UNSIGNED_BYTES, SHORTS, WIDENED };

boost::shared_ptr<VertexArray> arrayOf(int components, const Bytes& values) {
  const auto array =
      VertexArray::create(static_cast<int>(values.size()) / components, components, 1);
  array->set(0, array->getVertexCount(), values.data());
  return array;
}

boost::shared_ptr<VertexArray> arrayOf(int components, const Shorts& values) {
  const auto array =
      VertexArray::create(static_cast<int>(values.size()) / components, components, 2);
  array->set(0, array->getVertexCount(), values.data());
  return array;
}

bool morph(const boost::shared_ptr<VertexArray>& base, const Arrays& targets,
           const std::vector<float>& weights, bool signedBytes,
           boost::shared_ptr<VertexArray>& result) {
  std::vector<VertexArray*> pointers;
  for (const auto& target : targets) {
    pointers.push_back(target.get());
  }
  return VertexArray::morph(*base, static_cast<int>(targets.size()), pointers.data(),
                            weights.data(), signedBytes, result);
}

// One component as the kind reads it.
long long componentOf(const VertexArray& array, std::size_t i, Kind kind) {
  switch (kind) {
    case Kind::SIGNED_BYTES:
      return array.byteData()[i];
    case Kind::UNSIGNED_BYTES:
      return static_cast<unsigned char>(array.byteData()[i]);
    default:
      return array.shortData()[i];
  }
}

// The sum brought back into the range of the kind, by arithmetic on whole numbers.
long long storedOf(long long sum, Kind kind) {
  if (kind == Kind::UNSIGNED_BYTES) {
    return sum < 0 ? 0 : sum > 255 ? 255 : sum;
  }
  const long long range = kind == Kind::SIGNED_BYTES ? 256 : 65536;
  long long value = ((sum % range) + range) % range;
  return value >= range / 2 ? value - range : value;
}

TEST(VertexArrayMorph, AgreesWithAPlainReferenceOverRandomData) {
  std::mt19937 random(20240607);
  std::uniform_int_distribution<int> anyByte(-128, 127);
  std::uniform_int_distribution<int> anyShort(-32768, 32767);
  std::uniform_real_distribution<float> anyWeight(-2.0f, 2.0f);
  int wrapped = 0;
  int clamped = 0;
  for (const Kind kind : {Kind::SIGNED_BYTES, Kind::UNSIGNED_BYTES, Kind::SHORTS, Kind::WIDENED}) {
    for (int round = 0; round < 200; ++round) {
      const int components = 2 + round % 3;
      const std::size_t total = static_cast<std::size_t>(components * (1 + round % 17));
      const auto newArray = [&] {
        if (kind == Kind::SHORTS) {
          Shorts values(total);
          for (short& value : values) {
            value = static_cast<short>(anyShort(random));
          }
          return arrayOf(components, values);
        }
        Bytes values(total);
        for (signed char& value : values) {
          value = static_cast<signed char>(anyByte(random));
        }
        return arrayOf(components, values);
      };
      const auto base = newArray();
      Arrays targets;
      std::vector<float> weights;
      for (int k = 0; k <= round % 4; ++k) {
        targets.push_back(newArray());
        weights.push_back(round % 5 == 0 ? std::round(anyWeight(random)) : anyWeight(random));
      }
      if (kind == Kind::WIDENED) {
        base->widenTo16Bit();
      }
      boost::shared_ptr<VertexArray> result;
      ASSERT_TRUE(morph(base, targets, weights, kind != Kind::UNSIGNED_BYTES, result));
      ASSERT_EQ(result->getVertexCount(), base->getVertexCount());
      ASSERT_EQ(result->getComponentCount(), components);
      ASSERT_EQ(result->isWidened(), kind == Kind::WIDENED);
      for (std::size_t i = 0; i < total; ++i) {
        const long long start = componentOf(*base, i, kind);
        long long sum = start;
        for (std::size_t k = 0; k < targets.size(); ++k) {
          const long double product =
              static_cast<long double>(componentOf(*targets[k], i, kind) - start) *
              static_cast<long double>(weights[k]);
          sum += static_cast<long long>(std::trunc(product));
        }
        const long long expected = storedOf(sum, kind);
        wrapped += expected != sum && kind != Kind::UNSIGNED_BYTES;
        clamped += expected != sum && kind == Kind::UNSIGNED_BYTES;
        ASSERT_EQ(componentOf(*result, i, kind), expected);
      }
    }
  }
  EXPECT_GT(wrapped, 100);
  EXPECT_GT(clamped, 100);
}

TEST(VertexArrayMorph, UnsignedBytesAreClampedAfterTheSumOverAllTargets) {
  const auto base = arrayOf(2, Bytes{100, 100});
  const Arrays targets = {arrayOf(2, Bytes{-1, 0}), arrayOf(2, Bytes{0, -1})};  // 255, 0 and 0, 255
  boost::shared_ptr<VertexArray> result;
  // 100 + 2 * 155 - 2 * 100 = 210, and 100 - 2 * 100 + 2 * 155 = 210: a clamp in between would
  // show.
  ASSERT_TRUE(morph(base, targets, {2.0f, 2.0f}, false, result));
  EXPECT_EQ(static_cast<unsigned char>(result->byteData()[0]), 210);
  EXPECT_EQ(static_cast<unsigned char>(result->byteData()[1]), 210);
  ASSERT_TRUE(morph(base, targets, {2.0f, 0.0f}, false, result));
  EXPECT_EQ(static_cast<unsigned char>(result->byteData()[0]), 255);
  EXPECT_EQ(static_cast<unsigned char>(result->byteData()[1]), 0);
}

TEST(VertexArrayMorph, SignedBytesAndShortsWrap) {
  boost::shared_ptr<VertexArray> result;
  ASSERT_TRUE(
      morph(arrayOf(2, Bytes{100, -100}), {arrayOf(2, Bytes{127, -128})}, {2.0f}, true, result));
  EXPECT_EQ(result->byteData()[0], 154 - 256);
  EXPECT_EQ(result->byteData()[1], -156 + 256);
  ASSERT_TRUE(morph(arrayOf(2, Shorts{30000, -30000}), {arrayOf(2, Shorts{32767, -32768})}, {2.0f},
                    true, result));
  EXPECT_EQ(result->shortData()[0], 30000 + 2 * 2767 - 65536);
  EXPECT_EQ(result->shortData()[1], -30000 - 2 * 2768 + 65536);
}

TEST(VertexArrayMorph, EachTermIsTruncatedTowardsZero) {
  const auto base = arrayOf(2, Shorts{0, 0});
  const auto target = arrayOf(2, Shorts{3, -3});
  boost::shared_ptr<VertexArray> result;
  ASSERT_TRUE(morph(base, {target, target}, {0.5f, 0.5f}, true, result));
  EXPECT_EQ(result->shortData()[0], 2);
  EXPECT_EQ(result->shortData()[1], -2);
  // 10 * 0.7f is just below 7.
  ASSERT_TRUE(morph(base, {arrayOf(2, Shorts{10, -10})}, {0.7f}, true, result));
  EXPECT_EQ(result->shortData()[0], 6);
  EXPECT_EQ(result->shortData()[1], -6);
}

TEST(VertexArrayMorph, OppositeTargetsOfEqualWeightGiveTheBase) {
  const auto base = arrayOf(3, Shorts{1, 2, 3});
  boost::shared_ptr<VertexArray> result;
  ASSERT_TRUE(morph(base, {arrayOf(3, Shorts{11, 12, 13}), arrayOf(3, Shorts{-9, -8, -7})},
                    {0.5f, 0.5f}, true, result));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(result->shortData()[i], i + 1);
  }
}

TEST(VertexArrayMorph, WritesIntoAResultOfTheRightShapeAndMarksIt) {
  const auto base = arrayOf(2, Bytes{1, 2});
  const auto kept = VertexArray::create(1, 2, 1);
  kept->clearDirty();
  boost::shared_ptr<VertexArray> result = kept;
  ASSERT_TRUE(morph(base, {arrayOf(2, Bytes{3, 4})}, {1.0f}, true, result));
  EXPECT_EQ(result, kept);
  EXPECT_TRUE(kept->isDirty());
  EXPECT_EQ(kept->byteData()[1], 4);
}

TEST(VertexArrayMorph, NeverWritesIntoAnArrayThatItReads) {
  const auto base = arrayOf(2, Bytes{1, 2});
  const auto target = arrayOf(2, Bytes{3, 4});
  for (const auto& input : {base, target}) {
    boost::shared_ptr<VertexArray> result = input;
    ASSERT_TRUE(morph(base, {target}, {1.0f}, true, result));
    EXPECT_NE(result, input);
    EXPECT_EQ(result->byteData()[0], 3);
    EXPECT_EQ(base->byteData()[0], 1);
    EXPECT_EQ(target->byteData()[0], 3);
  }
}

TEST(VertexArrayMorph, NoTargetsGiveTheBase) {
  const auto base = arrayOf(2, Bytes{1, 2});
  VertexArray* none[1] = {nullptr};
  boost::shared_ptr<VertexArray> result;
  ASSERT_TRUE(VertexArray::morph(*base, 0, none, nullptr, true, result));
  EXPECT_EQ(result->byteData()[0], 1);
  EXPECT_EQ(result->byteData()[1], 2);
}

TEST(VertexArrayMorph, ArraysThatDoNotMatchDoNothing) {
  const auto base = arrayOf(2, Bytes{1, 2});
  const auto wide = arrayOf(2, Bytes{1, 2});
  wide->widenTo16Bit();
  const Arrays others = {arrayOf(2, Bytes{1, 2, 3, 4}), arrayOf(3, Bytes{1, 2, 3}),
                         arrayOf(2, Shorts{1, 2}), wide, boost::shared_ptr<VertexArray>()};
  for (const auto& other : others) {
    const auto kept = VertexArray::create(1, 2, 1);
    boost::shared_ptr<VertexArray> result = kept;
    EXPECT_FALSE(morph(base, {other}, {1.0f}, true, result));
    EXPECT_EQ(result, kept);
    EXPECT_EQ(kept->byteData()[0], 0);
  }
  boost::shared_ptr<VertexArray> result;
  const float weight = 1.0f;
  EXPECT_FALSE(VertexArray::morph(*base, 1, nullptr, &weight, true, result));
  EXPECT_FALSE(result);
}

TEST(VertexArrayMorph, TargetsOfAWidenedBaseAreWidened) {
  const auto base = arrayOf(2, Bytes{-1, 0});  // 255, 0
  const auto target = arrayOf(2, Bytes{0, -1});
  base->widenTo16Bit();
  boost::shared_ptr<VertexArray> result = VertexArray::create(1, 2, 1);
  ASSERT_TRUE(morph(base, {target}, {2.0f}, true, result));
  EXPECT_TRUE(target->isWidened());
  EXPECT_TRUE(result->isWidened());
  EXPECT_EQ(result->shortData()[0], -255);
  EXPECT_EQ(result->shortData()[1], 510);
}

TEST(VertexArrayMorph, WeightsBeyondAllMeasureAreHarmless) {
  const auto bytes = arrayOf(2, Bytes{10, 20});
  const auto target = arrayOf(2, Bytes{20, 10});
  boost::shared_ptr<VertexArray> result;
  const float infinity = std::numeric_limits<float>::infinity();
  for (const float weight : {infinity, -infinity, std::numeric_limits<float>::quiet_NaN(),
                             std::numeric_limits<float>::max()}) {
    EXPECT_TRUE(morph(bytes, {target, target}, {weight, weight}, true, result));
    EXPECT_TRUE(morph(bytes, {target}, {weight}, false, result));
  }
  EXPECT_EQ(static_cast<unsigned char>(result->byteData()[0]), 255);
  EXPECT_EQ(static_cast<unsigned char>(result->byteData()[1]), 0);
}

}  // namespace
}  // namespace varnel_m3g
