#include "engine/math/vector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "engine/math/angle.h"
#include "tests/support/kernel_values.h"

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using testing::FloatEq;
using varnel_test::Numbers;
using varnel_test::taken;

TEST(Angle, ConvertsWithTheDoubleConstants) {
  EXPECT_EQ(degToRad(180.0), 180.0 * 0.017453292519943295);
  EXPECT_EQ(radToDeg(1.0), 57.29577951308232);
}

TEST(Vector, TheSecondOfTwoEqualNumbersWins) {
  EXPECT_TRUE(std::signbit(minFloat(0.0F, -0.0F)));
  EXPECT_FALSE(std::signbit(minFloat(-0.0F, 0.0F)));
  EXPECT_TRUE(std::signbit(maxFloat(0.0F, -0.0F)));
  EXPECT_EQ(minFloat(1, 2), 1);
  EXPECT_EQ(minFloat(2, 1), 1);
  EXPECT_EQ(maxFloat(1, 2), 2);
  EXPECT_EQ(maxFloat(2, 1), 2);
}

TEST(Vector, CopiesIntoANewArray) {
  const float values[4] = {1, 2, 3, 4};
  EXPECT_THAT(taken(copyVector(values, 4), 4), ElementsAre(1, 2, 3, 4));
}

TEST(Vector, AddsUpToTheShorterLength) {
  const float a[3] = {1, 2, 3};
  const float b[2] = {10, 20};
  int length = 0;
  EXPECT_THAT(taken(addVectors(a, 3, b, 2, &length), 2), ElementsAre(11, 22));
  EXPECT_EQ(length, 2);
  EXPECT_THAT(taken(addVectors(b, 1, a, 3, &length), 1), ElementsAre(11));
  EXPECT_EQ(length, 1);
}

TEST(Vector, SubtractsTheSecondFromTheFirst) {
  const float a[3] = {1, 2, 3};
  const float b[3] = {10, 30, 50};
  EXPECT_THAT(taken(subtractVectors(a, b, 3), 3), ElementsAre(-9, -28, -47));
}

TEST(Vector, ScalesInPlace) {
  float a[3] = {1, -2, 3};
  scaleVector(a, 2.5F, 2);
  EXPECT_THAT(a, ElementsAre(2.5F, -5, 3));
}

TEST(Vector, NormalisesToTheLengthOne) {
  float v[3] = {0, 3, -4};
  normalizeVector(v);
  EXPECT_THAT(v, ElementsAre(0, FloatEq(0.6F), FloatEq(-0.8F)));
}

TEST(Vector, NormalisesAZeroVectorToSomethingNonFinite) {
  float v[3] = {0, 0, 0};
  normalizeVector(v);
  EXPECT_FALSE(std::isfinite(v[0]));
}

TEST(Vector, SumsProductsInDouble) {
  // In float the small product would vanish beside the large ones.
  const float a[3] = {16777216.0F, 1.0F, -16777216.0F};
  const float b[3] = {1.0F, 1.0F, 1.0F};
  EXPECT_EQ(dotProduct(a, b), 1.0F);
}

TEST(Vector, LengthsAndDistancesAgreeWithLongDouble) {
  Numbers numbers(1);
  for (int round = 0; round < 1000; ++round) {
    float a[3];
    float b[3];
    numbers.fill(a, 3, -100, 100);
    numbers.fill(b, 3, -100, 100);
    long double length = 0;
    long double distance = 0;
    for (int i = 0; i < 3; ++i) {
      const long double difference = static_cast<long double>(a[i]) - b[i];
      length += static_cast<long double>(a[i]) * a[i];
      distance += difference * difference;
    }
    EXPECT_FLOAT_EQ(vectorLength(a), static_cast<float>(std::sqrt(length)));
    EXPECT_FLOAT_EQ(pointDistance(a, b), static_cast<float>(std::sqrt(distance)));
  }
}

TEST(CrossNormal, IsRightHandedAndOfLengthOne) {
  const float x[3] = {2, 0, 0};
  const float y[3] = {0, 3, 0};
  EXPECT_THAT(taken(crossNormal(x, y), 3), ElementsAre(0, 0, 1));
  EXPECT_THAT(taken(crossNormal(y, x), 3), ElementsAre(0, 0, -1));
}

TEST(CrossNormal, IsPerpendicularToBoth) {
  Numbers numbers(2);
  for (int round = 0; round < 1000; ++round) {
    float a[3];
    float b[3];
    numbers.fill(a, 3, -10, 10);
    numbers.fill(b, 3, -10, 10);
    float n[3];
    crossNormal(a, b, n);
    EXPECT_NEAR(vectorLength(n), 1.0F, 1e-6F);
    EXPECT_NEAR(dotProduct(n, a), 0.0F, 1e-4F);
    EXPECT_NEAR(dotProduct(n, b), 0.0F, 1e-4F);
  }
}

void expectNullCross(const float (&a)[3], const float (&b)[3]) {
  try {
    crossNormal(a, b);
    FAIL() << "no exception";
  } catch (const std::runtime_error& e) {
    EXPECT_STREQ(e.what(), "Null cross product");
  }
}

TEST(CrossNormal, RefusesParallelVectors) {
  expectNullCross({1, 2, 3}, {2, 4, 6});
}

TEST(CrossNormal, RefusesVectorsThatAreTooShort) {
  expectNullCross({0.03F, 0, 0}, {0, 0.03F, 0});  // a cross product of 0.0009
  const float a[3] = {0.04F, 0, 0};
  const float b[3] = {0, 0.04F, 0};  // 0.0016
  EXPECT_THAT(taken(crossNormal(a, b), 3), ElementsAre(0, 0, FloatEq(1)));
}

}  // namespace
}  // namespace varnel_m3g
