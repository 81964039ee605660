#include "engine/math/quaternion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/support/kernel_values.h"

namespace varnel_m3g {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::FloatNear;
using testing::Pointwise;
using varnel_test::Numbers;
using varnel_test::taken;

using Quaternion = std::vector<float>;

constexpr long double PI = 3.14159265358979323846264338327950288L;

Quaternion rotationAboutZ(long double degrees) {
  const long double h = degrees * PI / 360;
  return {0, 0, static_cast<float>(std::sin(h)), static_cast<float>(std::cos(h))};
}

Quaternion randomUnit(Numbers& numbers) {
  Quaternion q(4);
  numbers.fill(q.data(), 4, -1, 1);
  quatNormalize(q.data());
  return q;
}

Quaternion negated(const Quaternion& q) {
  return {-q[0], -q[1], -q[2], -q[3]};
}

long double cosineBetween(const Quaternion& a, const Quaternion& b) {
  long double sum = 0;
  for (int i = 0; i < 4; ++i) {
    sum += static_cast<long double>(a[i]) * b[i];
  }
  return sum;
}

Quaternion spherical(long double t, const Quaternion& a, const Quaternion& b) {
  const long double theta = std::acos(std::min(1.0L, cosineBetween(a, b)));
  Quaternion out(4);
  for (int i = 0; i < 4; ++i) {
    out[i] = static_cast<float>((std::sin((1 - t) * theta) * a[i] + std::sin(t * theta) * b[i]) /
                                std::sin(theta));
  }
  return out;
}

Quaternion linear(long double t, const Quaternion& a, const Quaternion& b) {
  Quaternion out(4);
  for (int i = 0; i < 4; ++i) {
    out[i] = static_cast<float>((1 - t) * a[i] + t * b[i]);
  }
  return out;
}

Quaternion slerp(float t, const Quaternion& a, const Quaternion& b) {
  Quaternion out(4, 0.0F);
  quatSlerp(t, a.data(), b.data(), out.data());
  return out;
}

Quaternion slerpShortest(float t, const Quaternion& a, const Quaternion& b) {
  Quaternion out(4, 0.0F);
  quatSlerpShortest(t, a.data(), b.data(), out.data());
  return out;
}

TEST(AxisAngleToQuat, TakesHalfTheAngle) {
  float q[4];
  axisAngleToQuat(90, 0, 0, 1, q);
  EXPECT_THAT(q, Pointwise(FloatNear(1e-7F), rotationAboutZ(90)));
  EXPECT_THAT(taken(newQuatFromAxisAngle(-60, 1, 0, 0), 4),
              ElementsAre(FloatNear(-0.5F, 1e-7F), 0, 0, FloatNear(0.8660254F, 1e-7F)));
}

TEST(AxisAngleToQuat, DoesNotNormaliseTheAxis) {
  float q[4];
  axisAngleToQuat(180, 0, 3, 0, q);
  EXPECT_FLOAT_EQ(q[1], 3);
}

TEST(QuatMultiply, IsTheHamiltonProduct) {
  const float i[4] = {1, 0, 0, 0};
  const float j[4] = {0, 1, 0, 0};
  float out[4];
  quatMultiply(i, j, out);
  EXPECT_THAT(out, ElementsAre(0, 0, 1, 0));
  quatMultiply(j, i, out);
  EXPECT_THAT(out, ElementsAre(0, 0, -1, 0));
  quatMultiply(i, i, out);
  EXPECT_THAT(out, ElementsAre(0, 0, 0, -1));
}

// Rotates a vector by q v q*, with the product written as matrices in long double.
void rotate(const Quaternion& q, const long double* v, long double* out) {
  const long double x = q[0];
  const long double y = q[1];
  const long double z = q[2];
  const long double w = q[3];
  out[0] =
      (1 - 2 * (y * y + z * z)) * v[0] + 2 * (x * y - z * w) * v[1] + 2 * (x * z + y * w) * v[2];
  out[1] =
      2 * (x * y + z * w) * v[0] + (1 - 2 * (x * x + z * z)) * v[1] + 2 * (y * z - x * w) * v[2];
  out[2] =
      2 * (x * z - y * w) * v[0] + 2 * (y * z + x * w) * v[1] + (1 - 2 * (x * x + y * y)) * v[2];
}

TEST(QuatMultiply, RotatesByTheSecondThenByTheFirst) {
  Numbers numbers(5);
  for (int round = 0; round < 1000; ++round) {
    const Quaternion a = randomUnit(numbers);
    const Quaternion b = randomUnit(numbers);
    Quaternion product(4);
    quatMultiply(a.data(), b.data(), product.data());
    const long double v[3] = {1, -2, 3};
    long double once[3];
    long double twice[3];
    long double both[3];
    rotate(b, v, once);
    rotate(a, once, twice);
    rotate(product, v, both);
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(static_cast<double>(both[i]), static_cast<double>(twice[i]), 5e-6);
    }
  }
}

TEST(QuatMultiply, LimitsOnlyW) {
  const float a[4] = {3, 0, 0, 5};
  const float b[4] = {0, 0, 0, 2};
  float out[4];
  quatMultiply(a, b, out);
  EXPECT_THAT(out, ElementsAre(6, 0, 0, 1));
  const float c[4] = {0, 0, 0, -2};
  quatMultiply(a, c, out);
  EXPECT_THAT(out, ElementsAre(-6, 0, 0, -1));
}

TEST(QuatNormalize, LeavesAZeroQuaternion) {
  float q[4] = {};
  quatNormalize(q);
  EXPECT_THAT(q, Each(0));
  float r[4] = {2, 2, 2, 2};
  quatNormalize(r);
  EXPECT_THAT(r, Each(0.5F));
  EXPECT_EQ(quatNormSquared(r), 1);
}

TEST(QuatInverse, TimesItselfIsOne) {
  Numbers numbers(6);
  for (int round = 0; round < 1000; ++round) {
    float q[4];
    numbers.fill(q, 4, -3, 3);
    const Quaternion inverse = taken(quatInverse(q), 4);
    float product[4];
    quatMultiply(q, inverse.data(), product);
    EXPECT_THAT(product, ElementsAre(FloatNear(0, 1e-6F), FloatNear(0, 1e-6F), FloatNear(0, 1e-6F),
                                     FloatNear(1, 1e-6F)));
  }
}

TEST(QuatInverse, CopiesAZeroQuaternion) {
  const float q[4] = {};
  EXPECT_THAT(taken(quatInverse(q), 4), Each(0));
}

TEST(QuatToAxisAngle, OfNoRotationIsTheXAxis) {
  float q[4] = {0, 0, 0, 1};
  EXPECT_THAT(taken(quatToAxisAngle(q), 4), ElementsAre(0, 1, 0, 0));
}

TEST(QuatToAxisAngle, GivesAngleAndUnitAxisBack) {
  Numbers numbers(7);
  for (int round = 0; round < 1000; ++round) {
    const float angle = numbers.between(1, 359);
    float axis[3];
    numbers.fill(axis, 3, -1, 1);
    const float length = std::sqrt(axis[0] * axis[0] + axis[1] * axis[1] + axis[2] * axis[2]);
    float q[4];
    axisAngleToQuat(angle, axis[0] / length, axis[1] / length, axis[2] / length, q);
    const Quaternion result = taken(quatToAxisAngle(q), 4);
    EXPECT_NEAR(result[0], angle, 0.01F);
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(result[i + 1], axis[i] / length, 1e-3F);
    }
  }
}

TEST(QuatToAxisAngle, NormalisesALongQuaternionInPlace) {
  float q[4] = {0, 0, 3, 3};
  const Quaternion result = taken(quatToAxisAngle(q), 4);
  EXPECT_THAT(q, ElementsAre(0, 0, FloatNear(0.70710678F, 1e-7F), FloatNear(0.70710678F, 1e-7F)));
  EXPECT_NEAR(result[0], 90, 1e-5F);
}

TEST(QuatToAxisAngle, TakesTheXAxisJustBelowTheTolerance) {
  // s = sqrt(1 - w w) is about 0.0007 here and 0.0014 below.
  float q[4] = {0, 0.0007F, 0, 0.99999976F};
  EXPECT_THAT(taken(quatToAxisAngle(q), 4), ElementsAre(testing::Gt(0), 1, 0, 0));
  float r[4] = {0, 0.0013F, 0, 0.999999F};
  EXPECT_THAT(taken(quatToAxisAngle(r), 4), ElementsAre(testing::Gt(0), 0, testing::FloatEq(1), 0));
}

TEST(QuatLogAndExp, AreInverse) {
  Numbers numbers(8);
  for (int round = 0; round < 1000; ++round) {
    Quaternion q = randomUnit(numbers);
    const Quaternion original = q;
    const Quaternion log = taken(quatLog(q.data()), 4);
    EXPECT_THAT(taken(quatExp(log.data()), 4), Pointwise(FloatNear(2e-6F), original));
  }
}

TEST(QuatLog, IsHalfTheAngleTimesTheAxis) {
  float q[4] = {0, 0, std::sin(0.5F), std::cos(0.5F)};
  const Quaternion log = taken(quatLog(q), 4);
  EXPECT_EQ(log[0], 0);
  EXPECT_EQ(log[1], 0);
  EXPECT_NEAR(log[2], 0.5F, 1e-6F);
  EXPECT_NEAR(log[3], 1.0F, 1e-6F);  // the axis's z, which has no meaning
}

TEST(QuatExp, TakesAShortVectorAsItIs) {
  const float v[3] = {0.0005F, 0, -0.0005F};
  const Quaternion q = taken(quatExp(v), 4);
  EXPECT_EQ(q[0], 0.0005F);
  EXPECT_EQ(q[2], -0.0005F);
}

TEST(QuatSlerp, IsSphericalBetweenQuaternionsAQuarterTurnApart) {
  const Quaternion a = rotationAboutZ(0);
  const Quaternion b = rotationAboutZ(90);
  for (const float t : {0.0F, 0.25F, 0.5F, 0.75F, 1.0F}) {
    EXPECT_THAT(slerp(t, a, b), Pointwise(FloatNear(1e-6F), rotationAboutZ(90.0L * t))) << t;
  }
}

TEST(QuatSlerp, IsLinearBetweenQuaternionsFarApart) {
  const Quaternion a = rotationAboutZ(0);
  const Quaternion b = rotationAboutZ(150);
  const Quaternion result = slerp(0.5F, a, b);
  EXPECT_THAT(result, Pointwise(FloatNear(1e-6F), linear(0.5L, a, b)));
  EXPECT_LT(quatNormSquared(result.data()), 0.95F);  // not on the unit sphere
}

TEST(QuatSlerp, ChangesItsFormAtAnAngleOf95Hundredths) {
  const Quaternion a = rotationAboutZ(0);
  const Quaternion below = rotationAboutZ(2 * 0.949L * 180 / PI);
  const Quaternion above = rotationAboutZ(2 * 0.951L * 180 / PI);
  EXPECT_THAT(slerp(0.3F, a, below), Pointwise(FloatNear(1e-6F), spherical(0.3L, a, below)));
  EXPECT_THAT(slerp(0.3F, a, above), Pointwise(FloatNear(1e-6F), linear(0.3L, a, above)));
}

TEST(QuatSlerp, AgreesWithLongDoubleOnBothSides) {
  Numbers numbers(9);
  int sphericalCases = 0;
  int linearCases = 0;
  for (int round = 0; round < 5000; ++round) {
    const Quaternion a = randomUnit(numbers);
    const Quaternion b = randomUnit(numbers);
    const long double theta = std::acos(cosineBetween(a, b));
    const float t = numbers.between(0, 1);
    if (theta > 0.01L && theta < 0.949L) {
      ++sphericalCases;
      EXPECT_THAT(slerp(t, a, b), Pointwise(FloatNear(2e-5F), spherical(t, a, b)));
    } else if (theta > 0.951L) {
      ++linearCases;
      EXPECT_THAT(slerp(t, a, b), Pointwise(FloatNear(2e-6F), linear(t, a, b)));
    }
  }
  EXPECT_GT(sphericalCases, 100);
  EXPECT_GT(linearCases, 100);
}

TEST(QuatSlerp, OfOneQuaternionIsThatQuaternion) {
  const Quaternion a = rotationAboutZ(40);
  EXPECT_THAT(slerp(0.3F, a, a), Pointwise(FloatNear(1e-6F), a));
}

TEST(QuatSlerp, TakesTheLongWay) {
  const Quaternion a = rotationAboutZ(0);
  const Quaternion b = negated(rotationAboutZ(20));
  EXPECT_THAT(slerp(0.5F, a, b), Pointwise(FloatNear(1e-6F), linear(0.5L, a, b)));
}

TEST(QuatSlerp, NormalisesTheLinearFormElementByElement) {
  // The elements after the one that makes the norm exceed 1 are read before they are written.
  const Quaternion a = {2, 0, 0, 0};
  const Quaternion b = {0, 2, 0, 0};
  Quaternion out = {0, 0, 0, 3};
  quatSlerp(0.5F, a.data(), b.data(), out.data());
  // Orthogonal inputs: theta is pi / 2. x = 1, and with the old w of 3 the norm is above 1.
  const double x1 = 1 / std::sqrt(10.0);
  const double w1 = 3 / std::sqrt(10.0);
  const double n2 = std::sqrt(x1 * x1 + 1 + w1 * w1);  // y = 1 follows
  EXPECT_NEAR(out[0], x1 / n2, 1e-6);
  EXPECT_NEAR(out[1], 1 / n2, 1e-6);
  EXPECT_NEAR(out[2], 0, 1e-6);
  EXPECT_NEAR(out[3], 0, 1e-6);
}

TEST(QuatSlerpShortest, TurnsTheSecondQuaternionOver) {
  const Quaternion a = rotationAboutZ(0);
  const Quaternion b = negated(rotationAboutZ(80));
  EXPECT_THAT(slerpShortest(0.5F, a, b), Pointwise(FloatNear(1e-6F), rotationAboutZ(40)));
}

TEST(QuatSlerpShortest, ChangesItsFormAtAnAngleOf95Hundredths) {
  const Quaternion a = rotationAboutZ(0);
  const Quaternion below = rotationAboutZ(2 * 0.949L * 180 / PI);
  const Quaternion above = rotationAboutZ(2 * 0.951L * 180 / PI);
  EXPECT_THAT(slerpShortest(0.3F, a, below),
              Pointwise(FloatNear(1e-6F), spherical(0.3L, a, below)));
  EXPECT_THAT(slerpShortest(0.3F, a, above), Pointwise(FloatNear(1e-6F), linear(0.3L, a, above)));
}

TEST(QuatSlerpShortest, AgreesWithLongDoubleOnBothSides) {
  Numbers numbers(10);
  int sphericalCases = 0;
  int linearCases = 0;
  for (int round = 0; round < 5000; ++round) {
    const Quaternion a = randomUnit(numbers);
    const Quaternion b = randomUnit(numbers);
    const Quaternion target = cosineBetween(a, b) < 0 ? negated(b) : b;
    const long double theta = std::acos(cosineBetween(a, target));
    const float t = numbers.between(0, 1);
    if (theta > 0.01L && theta < 0.949L) {
      ++sphericalCases;
      EXPECT_THAT(slerpShortest(t, a, b), Pointwise(FloatNear(2e-5F), spherical(t, a, target)));
    } else if (theta > 0.951L && theta < 1.57L) {
      ++linearCases;
      EXPECT_THAT(slerpShortest(t, a, b), Pointwise(FloatNear(2e-6F), linear(t, a, target)));
    }
  }
  EXPECT_GT(sphericalCases, 100);
  EXPECT_GT(linearCases, 100);
}

TEST(QuatSlerpShortest, BlendsOrthogonalQuaternionsAsNearOnes) {
  // The angle of half pi is reduced to nothing, then raised to 0.001: nearly linear.
  const Quaternion a = {1, 0, 0, 0};
  const Quaternion b = {0, 1, 0, 0};
  EXPECT_THAT(slerpShortest(0.25F, a, b),
              ElementsAre(FloatNear(0.75F, 1e-6F), FloatNear(0.25F, 1e-6F), 0, 0));
}

TEST(QuatSlerpShortest, ReducesTheAngleOfOrthogonalQuaternions) {
  // Far outside 0..1 the arcs of an angle of 0.001 are seen: sin(-1.999) and sin(2).
  const Quaternion a = {1, 0, 0, 0};
  const Quaternion b = {0, 1, 0, 0};
  const double length = std::hypot(std::sin(1.999), std::sin(2.0));
  EXPECT_THAT(slerpShortest(2000, a, b),
              ElementsAre(FloatNear(static_cast<float>(-std::sin(1.999) / length), 1e-6F),
                          FloatNear(static_cast<float>(std::sin(2.0) / length), 1e-6F), 0, 0));
}

TEST(QuatSlerpShortest, NormalisesOnlyAResultAboveOne) {
  const Quaternion a = {2, 0, 0, 0};
  EXPECT_THAT(slerpShortest(0.5F, a, a), ElementsAre(1, 0, 0, 0));
}

}  // namespace
}  // namespace varnel_m3g
