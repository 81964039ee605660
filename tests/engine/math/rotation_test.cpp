#include "engine/math/rotation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "engine/math/transform.h"
#include "engine/math/vector.h"
#include "tests/support/kernel_values.h"

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using testing::FloatEq;
using testing::FloatNear;
using varnel_test::Numbers;
using varnel_test::taken;

Transform rotationAbout(float angle, float x, float y, float z) {
  Transform transform;
  transform.postRotate(angle, x, y, z);
  return transform;
}

// The rotation of an Euler triple: about y after about z after about x.
Transform rotationOf(const std::vector<float>& euler) {
  Transform transform;
  transform.postRotate(euler[1], 0, 1, 0);
  transform.postRotate(euler[2], 0, 0, 1);
  transform.postRotate(euler[0], 1, 0, 0);
  return transform;
}

void expectSameMatrix(const Transform& a, const Transform& b, float tolerance) {
  for (int i = 0; i < 16; ++i) {
    EXPECT_NEAR(a.data()[i], b.data()[i], tolerance) << "element " << i;
  }
}

void randomAxis(Numbers& numbers, float* axis) {
  numbers.fill(axis, 3, -1, 1);
  normalizeVector(axis);
}

TEST(VectorAngle, IsTheArcSineOfTheCrossProduct) {
  const float a[3] = {2, 0, 0};
  const float b[3] = {0.5F, 0.8660254F, 0};
  float axis[3];
  EXPECT_NEAR(vectorAngle(a, b, axis), 60, 1e-4);
  EXPECT_THAT(axis, ElementsAre(0, 0, FloatNear(1.7320508F, 1e-6F)));
  const float c[3] = {-0.5F, 0.8660254F, 0};  // 120 degrees cannot be told from 60
  EXPECT_NEAR(vectorAngle(a, c, axis), 60, 1e-4);
}

TEST(AlignmentRotation, TakesOneVectorToTheOther) {
  Numbers numbers(11);
  for (int round = 0; round < 1000; ++round) {
    float a[3];
    float b[3];
    randomAxis(numbers, a);
    randomAxis(numbers, b);
    if (std::fabs(dotProduct(a, b)) > 0.99F) {
      continue;
    }
    float axis[3];
    const float angle = alignmentRotation(a, b, axis);
    EXPECT_NEAR(vectorLength(axis), 1, 1e-6);
    float turned[4] = {a[0], a[1], a[2], 1};
    rotationAbout(angle, axis[0], axis[1], axis[2]).transform(turned, 4);
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(turned[i], b[i], 2e-6);
    }
  }
}

TEST(AlignmentRotation, HasNoFiniteAxisForParallelVectors) {
  const float a[3] = {1, 0, 0};
  float axis[3];
  EXPECT_EQ(alignmentRotation(a, a, axis), 0);
  EXPECT_FALSE(std::isfinite(axis[0]));
}

TEST(EulerToAxisAngle, KnowsTheThreeAxes) {
  float x[4] = {40, 0, 0, 9};
  eulerToAxisAngle(x);
  EXPECT_THAT(
      x, ElementsAre(FloatNear(40, 1e-4F), FloatEq(1), FloatNear(0, 1e-6F), FloatNear(0, 1e-6F)));
  float y[4] = {0, 50, 0, 9};
  eulerToAxisAngle(y);
  EXPECT_THAT(y, ElementsAre(FloatNear(50, 1e-4F), 0, FloatEq(1), 0));
  float z[4] = {0, 0, 60, 9};
  eulerToAxisAngle(z);
  EXPECT_THAT(z, ElementsAre(FloatNear(60, 1e-4F), 0, 0, FloatEq(1)));
}

TEST(EulerToAxisAngle, TurnsAboutXThenYThenZ) {
  Numbers numbers(12);
  for (int round = 0; round < 500; ++round) {
    float angles[4];
    numbers.fill(angles, 3, -80, 80);
    Transform expected;
    expected.postRotate(angles[2], 0, 0, 1);
    expected.postRotate(angles[1], 0, 1, 0);
    expected.postRotate(angles[0], 1, 0, 0);
    eulerToAxisAngle(angles);
    expectSameMatrix(rotationAbout(angles[0], angles[1], angles[2], angles[3]), expected, 1e-5F);
  }
}

TEST(EulerToAxisAngle, OfNoRotationIsTheZAxis) {
  float angles[4] = {0, 0, 0, 9};
  eulerToAxisAngle(angles);
  EXPECT_THAT(angles, ElementsAre(FloatNear(0, 1e-3F), 0, 0, 1));
}

TEST(MatrixToAxisAngle, OfTheIdentityIsTheXAxis) {
  EXPECT_THAT(taken(matrixToAxisAngle(Transform()), 4), ElementsAre(0, 1, 0, 0));
}

TEST(MatrixToAxisAngle, GivesAngleAndAxisBackInEveryRange) {
  Numbers numbers(13);
  for (const float angle : {10.0F, 29.0F, 31.0F, 90.0F, 149.0F, 151.0F, 175.0F}) {
    for (int round = 0; round < 200; ++round) {
      float axis[3];
      randomAxis(numbers, axis);
      const auto result =
          taken(matrixToAxisAngle(rotationAbout(angle, axis[0], axis[1], axis[2])), 4);
      EXPECT_NEAR(result[0], angle, 1e-3F);
      for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(result[i + 1], axis[i], 1e-3F) << angle << " degrees";
      }
    }
  }
}

TEST(MatrixToAxisAngle, FindsTheAxisOfAHalfTurn) {
  EXPECT_THAT(taken(matrixToAxisAngle(rotationAbout(180, 0, 1, 0)), 4),
              ElementsAre(FloatEq(180), FloatNear(0, 1e-6F), FloatEq(1), FloatNear(0, 1e-6F)));
}

TEST(MatrixToAxisAngle, FindsTheAxisOfARotationThatTheDiagonalDoesNotShow) {
  const auto result = taken(matrixToAxisAngle(rotationAbout(0.001F, 0, 0, -1)), 4);
  EXPECT_THAT(result, ElementsAre(FloatNear(0.001F, 1e-6F), 0, 0, -1));
}

TEST(MatrixToEuler, GivesTheRotationBack) {
  Numbers numbers(14);
  for (int round = 0; round < 1000; ++round) {
    const std::vector<float> euler = {numbers.between(-179, 179), numbers.between(-179, 179),
                                      numbers.between(-85, 85)};
    EXPECT_THAT(taken(matrixToEuler(rotationOf(euler)), 3),
                testing::Pointwise(FloatNear(2e-3F), euler));
  }
}

TEST(MatrixToEuler, PutsAllOfTheTurnIntoYAtTheGimbal) {
  const std::vector<float> up = taken(matrixToEuler(rotationOf({20, 30, 90})), 3);
  EXPECT_THAT(up, ElementsAre(0, FloatNear(50, 1e-3F), FloatEq(90)));
  const std::vector<float> down = taken(matrixToEuler(rotationOf({20, 30, -90})), 3);
  EXPECT_THAT(down, ElementsAre(0, FloatNear(10, 1e-3F), FloatEq(-90)));
}

TEST(AxisAngleToEuler, AgreesWithTheMatrix) {
  Numbers numbers(15);
  for (int round = 0; round < 1000; ++round) {
    float axisAngle[4] = {numbers.between(1, 179)};
    randomAxis(numbers, axisAngle + 1);
    const std::vector<float> euler = taken(axisAngleToEuler(axisAngle), 3);
    const Transform expected =
        rotationAbout(axisAngle[0], axisAngle[1], axisAngle[2], axisAngle[3]);
    // At the gimbal two angles are merged, which is exact only at its pole.
    const bool gimbal = euler[0] == 0 && std::fabs(euler[2]) > 89.9F;
    expectSameMatrix(rotationOf(euler), expected, gimbal ? 0.1F : 2e-5F);
  }
}

TEST(AxisAngleToEuler, KnowsTheGimbal) {
  const float up[4] = {90, 0, 0, 1};
  EXPECT_THAT(taken(axisAngleToEuler(up), 3), ElementsAre(0, FloatNear(0, 1e-6F), FloatEq(90)));
  const float down[4] = {90, 0, 0, -1};
  EXPECT_THAT(taken(axisAngleToEuler(down), 3), ElementsAre(0, FloatNear(0, 1e-6F), FloatEq(-90)));
}

TEST(AxisAngleToTransform, IsTheRotationForAUnitAxis) {
  Numbers numbers(16);
  for (int round = 0; round < 500; ++round) {
    float axisAngle[4] = {numbers.between(-360, 360)};
    randomAxis(numbers, axisAngle + 1);
    const std::unique_ptr<Transform> transform(axisAngleToTransform(axisAngle));
    EXPECT_FALSE(transform->isIdentity());
    expectSameMatrix(*transform,
                     rotationAbout(axisAngle[0], axisAngle[1], axisAngle[2], axisAngle[3]), 1e-6F);
  }
}

TEST(AxisAngleToTransform, DoesNotNormaliseTheAxis) {
  const float axisAngle[4] = {90, 0, 0, 2};
  const std::unique_ptr<Transform> transform(axisAngleToTransform(axisAngle));
  EXPECT_NEAR(transform->data()[10], 4, 1e-6);
  EXPECT_NEAR(transform->data()[1], 2, 1e-6);
  EXPECT_NEAR(transform->data()[4], -2, 1e-6);
}

}  // namespace
}  // namespace varnel_m3g
