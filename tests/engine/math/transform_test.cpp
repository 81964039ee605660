#include "engine/math/transform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "engine/geometry/vertex_array.h"
#include "tests/support/kernel_values.h"

namespace varnel_m3g {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::FloatEq;
using testing::FloatNear;
using testing::Pointwise;
using varnel_test::Numbers;

using Elements = std::vector<float>;

const Elements identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

Elements columns(const Transform& transform) {
  return Elements(transform.data(), transform.data() + 16);
}

Elements rows(const Transform& transform) {
  Elements elements(16);
  transform.get(elements.data());
  return elements;
}

Transform fromRows(const Elements& elements) {
  Transform transform;
  transform.set(elements.data());
  return transform;
}

Transform random(Numbers& numbers) {
  Elements elements(16);
  numbers.fill(elements.data(), 16, -2, 2);
  return fromRows(elements);
}

template <class Exception, class Call>
std::string messageOf(Call call) {
  try {
    call();
  } catch (const Exception& e) {
    return e.what();
  }
  return "no exception";
}

// The product of two column-major matrices in long double.
std::vector<long double> product(const Elements& a, const Elements& b) {
  std::vector<long double> out(16, 0);
  for (int c = 0; c < 4; ++c) {
    for (int r = 0; r < 4; ++r) {
      for (int k = 0; k < 4; ++k) {
        out[4 * c + r] += static_cast<long double>(a[4 * k + r]) * b[4 * c + k];
      }
    }
  }
  return out;
}

TEST(Transform, StartsAsTheIdentity) {
  const Transform transform;
  EXPECT_EQ(columns(transform), identity);
  EXPECT_TRUE(transform.isIdentity());
}

TEST(Transform, TakesAndGivesRowsAndHoldsColumns) {
  Elements in(16);
  std::iota(in.begin(), in.end(), 0.0F);
  const Transform transform = fromRows(in);
  for (int r = 0; r < 4; ++r) {
    for (int c = 0; c < 4; ++c) {
      EXPECT_EQ(transform.data()[4 * c + r], in[4 * r + c]);
    }
  }
  EXPECT_EQ(rows(transform), in);
}

TEST(Transform, ForgetsThatItIsTheIdentityWhenItIsSetToIt) {
  const Transform transform = fromRows(identity);
  EXPECT_FALSE(transform.isIdentity());
  Transform copy;
  copy.set(transform);
  EXPECT_FALSE(copy.isIdentity());
  copy.setIdentity();
  EXPECT_TRUE(copy.isIdentity());
}

TEST(Transform, RefusesNullArrays) {
  Transform transform;
  EXPECT_EQ(
      messageOf<std::invalid_argument>([&] { transform.set(static_cast<const float*>(nullptr)); }),
      " Transform::set called with null pointer");
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.get(nullptr); }),
            "Transform::get called with null pointer.");
}

TEST(TransformInvert, OfTheFlaggedIdentityDoesNothing) {
  Transform transform;
  transform.invert();
  EXPECT_TRUE(transform.isIdentity());
  EXPECT_EQ(columns(transform), identity);
}

TEST(TransformInvert, OfASetIdentityRunsAndLeavesTheFlagFalse) {
  Transform transform = fromRows(identity);
  transform.invert();
  EXPECT_EQ(columns(transform), identity);
  EXPECT_FALSE(transform.isIdentity());
}

TEST(TransformInvert, OfTranslationAndScale) {
  Transform transform;
  transform.postTranslate(3, -5, 7);
  transform.postScale(2, 4, 0.5F);
  transform.invert();
  EXPECT_THAT(rows(transform),
              Pointwise(FloatNear(1e-6F),
                        Elements{0.5F, 0, 0, -1.5F, 0, 0.25F, 0, 1.25F, 0, 0, 2, -14, 0, 0, 0, 1}));
}

TEST(TransformInvert, LeavesASmallResidualOnTenThousandMatrices) {
  // Bound: each element of |A X - I| and |X A - I| stays below 64 float roundings of |A| |X|.
  const long double bound = 64 * std::numeric_limits<float>::epsilon();
  Numbers numbers(20);
  for (int round = 0; round < 10000; ++round) {
    const Transform original = random(numbers);
    Transform inverse = original;
    inverse.invert();
    const Elements a = columns(original);
    const Elements x = columns(inverse);
    const auto rowSum = [](const Elements& m) {
      long double largest = 0;
      for (int r = 0; r < 4; ++r) {
        long double sum = 0;
        for (int c = 0; c < 4; ++c) {
          sum += std::fabs(m[4 * c + r]);
        }
        largest = std::max(largest, sum);
      }
      return largest;
    };
    const long double scale = rowSum(a) * rowSum(x);
    const std::vector<long double> right = product(a, x);
    const std::vector<long double> left = product(x, a);
    for (int i = 0; i < 16; ++i) {
      ASSERT_LE(std::fabs(right[i] - identity[i]), bound * scale) << "matrix " << round;
      ASSERT_LE(std::fabs(left[i] - identity[i]), bound * scale) << "matrix " << round;
    }
  }
}

TEST(TransformInvert, AgreesWithCofactorsInLongDouble) {
  Numbers numbers(21);
  for (int round = 0; round < 1000; ++round) {
    const Transform original = random(numbers);
    const Elements m = columns(original);
    const auto at = [&m](int r, int c) { return static_cast<long double>(m[4 * c + r]); };
    const auto cofactor = [&at](int row, int column) {
      long double minor[3][3];
      for (int r = 0, i = 0; r < 4; ++r) {
        if (r == row) {
          continue;
        }
        for (int c = 0, j = 0; c < 4; ++c) {
          if (c != column) {
            minor[i][j++] = at(r, c);
          }
        }
        ++i;
      }
      const long double value =
          minor[0][0] * (minor[1][1] * minor[2][2] - minor[1][2] * minor[2][1]) -
          minor[0][1] * (minor[1][0] * minor[2][2] - minor[1][2] * minor[2][0]) +
          minor[0][2] * (minor[1][0] * minor[2][1] - minor[1][1] * minor[2][0]);
      return (row + column) % 2 == 0 ? value : -value;
    };
    long double determinant = 0;
    for (int c = 0; c < 4; ++c) {
      determinant += at(0, c) * cofactor(0, c);
    }
    if (std::fabs(determinant) < 1) {
      continue;
    }
    Transform inverse = original;
    inverse.invert();
    for (int r = 0; r < 4; ++r) {
      for (int c = 0; c < 4; ++c) {
        EXPECT_NEAR(inverse.data()[4 * c + r], static_cast<double>(cofactor(c, r) / determinant),
                    2e-4);
      }
    }
  }
}

TEST(TransformInvert, RefusesAZeroColumnAndKeepsItsValue) {
  const Elements singular = {1, 0, 2, 3, 4, 0, 5, 6, 7, 0, 8, 9, 1, 0, 2, 5};
  Transform transform = fromRows(singular);
  EXPECT_EQ(messageOf<std::underflow_error>([&] { transform.invert(); }),
            "Unable to invert matrix -- singularity encountered in the matrix");
  EXPECT_EQ(rows(transform), singular);
}

TEST(TransformInvert, TakesAZeroRow) {
  Transform transform = fromRows({1, 2, 3, 4, 5, 6, 7, 9, 2, 1, 3, 1, 0, 0, 0, 0});
  EXPECT_NO_THROW(transform.invert());
  float largest = 0;
  for (const float element : columns(transform)) {
    largest = std::max(largest, std::fabs(element));
  }
  EXPECT_GT(largest, 1e30F);
}

TEST(TransformInvert, HasTheSmallestNormalNumberForAPivotOfZero) {
  // The first and the last column are the same.
  Transform transform = fromRows({1, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0});
  transform.invert();
  const float huge = 1.0F / std::numeric_limits<float>::min();
  EXPECT_EQ(transform.data()[12], huge);
  EXPECT_EQ(transform.data()[15], -huge);
}

TEST(TransformInvert, MovesTheScaleOfARowThatMakesRoomForAPivot) {
  // The second column goes first, and the first one to its place. It is large in another element
  // than its second: with the scale of the column that has left it would be the next pivot, and
  // the 2 would be lost beside its large element.
  const float large = 134217728.0F;
  Transform transform = fromRows({0, 1, 0, 0, 1, 0, 1, 0, large, 0, 2, 0, 0, 0, 0, 1});
  transform.invert();
  EXPECT_EQ(transform.data()[4], -2.0F / large);
}

TEST(TransformInvert, TakesTheLastOfEqualPivots) {
  // The last two columns score alike for the third pivot. With the last one as the pivot the sums
  // go through 1 / 7, which rounds; with the first one they would be exact.
  Transform transform = fromRows({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0.5F, 7, 0, 0, 0, 1});
  transform.invert();
  const float factor = 1.0F / 7.0F;
  const float lower = 0.5F * factor;
  const float expected = 1.0F / lower / 7.0F;
  EXPECT_NE(expected, 2.0F);
  EXPECT_EQ(transform.data()[10], expected);
}

TEST(TransformTranspose, SwapsAcrossTheDiagonalAndKeepsTheFlag) {
  Elements in(16);
  std::iota(in.begin(), in.end(), 0.0F);
  Transform transform = fromRows(in);
  transform.transpose();
  EXPECT_EQ(columns(transform), in);
  Transform unit;
  unit.transpose();
  EXPECT_TRUE(unit.isIdentity());
}

TEST(TransformPostMultiply, AgreesWithLongDouble) {
  Numbers numbers(22);
  for (int round = 0; round < 1000; ++round) {
    const Transform a = random(numbers);
    const Transform b = random(numbers);
    Transform c = a;
    c.postMultiply(b);
    const std::vector<long double> expected = product(columns(a), columns(b));
    for (int i = 0; i < 16; ++i) {
      EXPECT_NEAR(c.data()[i], static_cast<double>(expected[i]), 2e-6);
    }
    EXPECT_FALSE(c.isIdentity());
  }
}

TEST(TransformPostMultiply, ByTheFlaggedIdentityChangesNothing) {
  Transform unit;
  unit.postMultiply(Transform());
  EXPECT_TRUE(unit.isIdentity());
  Transform other = fromRows(identity);
  other.postMultiply(Transform());
  EXPECT_FALSE(other.isIdentity());
}

TEST(TransformPostMultiply, OfTheFlaggedIdentityIsACopyWithTheFlag) {
  const Transform set = fromRows(identity);
  Transform unit;
  unit.postMultiply(set);
  EXPECT_FALSE(unit.isIdentity());
  EXPECT_EQ(columns(unit), identity);
}

TEST(TransformPostMultiply, ByItselfIsNotTheSquare) {
  Transform transform = fromRows({1, 2, 0, 0, 3, 4, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
  const std::vector<long double> square = product(columns(transform), columns(transform));
  transform.postMultiply(transform);
  bool same = true;
  for (int i = 0; i < 16; ++i) {
    same = same && transform.data()[i] == static_cast<float>(square[i]);
  }
  EXPECT_FALSE(same);
  // The second element of each column is formed with the first one as it has become.
  EXPECT_THAT(rows(transform), ElementsAre(7, 10, 0, 0, 33, 46, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1));
  Transform unit;
  unit.postMultiply(unit);
  EXPECT_TRUE(unit.isIdentity());
  EXPECT_EQ(columns(unit), identity);
}

TEST(TransformPostScale, ByOneChangesNothing) {
  Transform unit;
  unit.postScale(1, 1, 1);
  EXPECT_TRUE(unit.isIdentity());
}

TEST(TransformPostScale, ScalesColumns) {
  Transform unit;
  unit.postScale(2, 3, 4);
  EXPECT_FALSE(unit.isIdentity());
  EXPECT_THAT(rows(unit), ElementsAre(2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 0, 0, 0, 1));
  Transform full = fromRows(Elements(16, 1.0F));
  full.postScale(2, 3, 4);
  EXPECT_THAT(rows(full), ElementsAre(2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1));
}

TEST(TransformPostRotate, ByNothingNeedsNoAxis) {
  Transform unit;
  unit.postRotate(0, 0, 0, 0);
  EXPECT_TRUE(unit.isIdentity());
  unit.postRotate(-0.0F, 1, 2, 3);
  EXPECT_TRUE(unit.isIdentity());
}

TEST(TransformPostRotate, RefusesAZeroAxis) {
  Transform unit;
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { unit.postRotate(1, 0, 0, 0); }),
            "Transform.postRotate rotation axis is zero vector ");
  EXPECT_TRUE(unit.isIdentity());
}

TEST(TransformPostRotate, NormalisesTheAxis) {
  Transform transform;
  transform.postRotate(90, 0, 0, 5);
  EXPECT_THAT(rows(transform), Pointwise(FloatNear(1e-7F), Elements{0, -1, 0, 0, 1, 0, 0, 0, 0, 0,
                                                                    1, 0, 0, 0, 0, 1}));
  EXPECT_FALSE(transform.isIdentity());
}

TEST(TransformPostRotate, AgreesWithRodriguesInLongDouble) {
  Numbers numbers(23);
  for (int round = 0; round < 1000; ++round) {
    const float angle = numbers.between(-720, 720);
    float axis[3];
    numbers.fill(axis, 3, -4, 4);
    Transform transform;
    transform.postRotate(angle, axis[0], axis[1], axis[2]);
    const long double radians = angle * 3.14159265358979323846264338327950288L / 180;
    long double k[3] = {axis[0], axis[1], axis[2]};
    const long double length = std::sqrt(k[0] * k[0] + k[1] * k[1] + k[2] * k[2]);
    for (long double& element : k) {
      element /= length;
    }
    for (int column = 0; column < 3; ++column) {
      long double v[3] = {};
      v[column] = 1;
      const long double cross[3] = {k[1] * v[2] - k[2] * v[1], k[2] * v[0] - k[0] * v[2],
                                    k[0] * v[1] - k[1] * v[0]};
      for (int row = 0; row < 3; ++row) {
        const long double expected = v[row] * std::cos(radians) + cross[row] * std::sin(radians) +
                                     k[row] * k[column] * (1 - std::cos(radians));
        EXPECT_NEAR(transform.data()[4 * column + row], static_cast<double>(expected), 1e-7);
      }
    }
  }
}

TEST(TransformPostRotate, MultipliesFromTheRight) {
  Transform transform;
  transform.postScale(2, 1, 1);
  transform.postRotate(90, 0, 0, 1);
  float v[4] = {1, 0, 0, 1};
  transform.transform(v, 4);
  EXPECT_THAT(v, ElementsAre(FloatNear(0, 1e-6F), FloatEq(1), 0, 1));
}

TEST(TransformPostRotateQuat, RefusesAZeroQuaternion) {
  Transform unit;
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { unit.postRotateQuat(0, 0, 0, 0); }),
            "Transform.postRotateQuat quaternion is all zero");
}

TEST(TransformPostRotateQuat, OfARealQuaternionIsTheIdentityWithoutItsFlag) {
  Transform unit;
  unit.postRotateQuat(0, 0, 0, 2);
  EXPECT_EQ(columns(unit), identity);
  EXPECT_FALSE(unit.isIdentity());
}

TEST(TransformPostRotateQuat, DoesNotNormalise) {
  Transform one;
  one.postRotateQuat(1, 0, 0, 0);
  Transform two;
  two.postRotateQuat(2, 0, 0, 0);
  EXPECT_THAT(rows(one), ElementsAre(1, 0, 0, 0, 0, -1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 1));
  EXPECT_THAT(rows(two), ElementsAre(1, 0, 0, 0, 0, -7, 0, 0, 0, 0, -7, 0, 0, 0, 0, 1));
}

TEST(TransformPostRotateQuat, AgreesWithPostRotate) {
  Numbers numbers(24);
  for (int round = 0; round < 500; ++round) {
    const float angle = numbers.between(-360, 360);
    double axis[3];
    double length = 0;
    for (double& element : axis) {
      element = numbers.between(-1, 1);
      length += element * element;
    }
    const double h = angle * std::numbers::pi / 360;
    const double s = std::sin(h) / std::sqrt(length);
    Transform expected;
    expected.postRotate(angle, static_cast<float>(axis[0]), static_cast<float>(axis[1]),
                        static_cast<float>(axis[2]));
    Transform transform;
    transform.postRotateQuat(static_cast<float>(axis[0] * s), static_cast<float>(axis[1] * s),
                             static_cast<float>(axis[2] * s), static_cast<float>(std::cos(h)));
    EXPECT_THAT(columns(transform), Pointwise(FloatNear(5e-7F), columns(expected)));
  }
}

TEST(TransformPostTranslate, ByNothingChangesNothing) {
  Transform unit;
  unit.postTranslate(0, 0, 0);
  EXPECT_TRUE(unit.isIdentity());
}

TEST(TransformPostTranslate, OfTheIdentityStoresTheTranslation) {
  Transform unit;
  unit.postTranslate(1, 2, 3);
  EXPECT_THAT(rows(unit), ElementsAre(1, 0, 0, 1, 0, 1, 0, 2, 0, 0, 1, 3, 0, 0, 0, 1));
  EXPECT_FALSE(unit.isIdentity());
}

TEST(TransformPostTranslate, IsNotRotatedByThePresentTransform) {
  Transform transform;
  transform.postRotate(90, 0, 0, 1);
  transform.postTranslate(1, 0, 0);
  EXPECT_EQ(transform.data()[12], 1);
  EXPECT_EQ(transform.data()[13], 0);
  EXPECT_EQ(transform.data()[14], 0);
}

TEST(TransformPostTranslate, UsesTheBottomRowOfEachColumn) {
  Transform transform = fromRows({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 2, 3, 4, 5});
  transform.postTranslate(10, 100, 1000);
  EXPECT_THAT(rows(transform),
              ElementsAre(21, 32, 43, 54, 205, 306, 407, 508, 2009, 3010, 4011, 5012, 2, 3, 4, 5));
}

TEST(TransformFloats, RefusesNullAndLengthsThatAreNoMultipleOfFour) {
  const Transform transform;
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(nullptr, 4); }),
            "Transform.transform called with null vertex array");
  const std::string text =
      "Transform.transform called with vertex array of improper length.  Must be multiple of 3";
  float v[8] = {};
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(v, 6); }), text);
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(v, -3); }), text);
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(v, 8); }), "no exception");
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(v, -4); }), "no exception");
}

TEST(TransformFloats, TransformsEachGroupOfFour) {
  const Transform transform = fromRows({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
  float v[8] = {1, 0, 0, 0, 1, 1, 1, 1};
  transform.transform(v, 8);
  EXPECT_THAT(v, ElementsAre(1, 5, 9, 13, 10, 26, 42, 58));
}

TEST(TransformFloats, LeavesVectorsToTheFlaggedIdentity) {
  float v[4] = {1, 2, 3, 4};
  Transform().transform(v, 4);
  EXPECT_THAT(v, ElementsAre(1, 2, 3, 4));
}

TEST(TransformVertices, RefusesNullAndFourComponents) {
  const Transform transform;
  float out[4] = {};
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(nullptr, out, true); }),
            "Transform.transform  input vertex array is null ");
  const auto three = VertexArray::create(1, 3, 1);
  EXPECT_EQ(
      messageOf<std::invalid_argument>([&] { transform.transform(three.get(), nullptr, true); }),
      "Transform.transform  output vertex array is null ");
  const auto four = VertexArray::create(1, 4, 1);
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { transform.transform(four.get(), out, true); }),
            "Transform.transform vertex input array has more than 3 components -- not allowed");
}

TEST(TransformVertices, TransformsTheFirstVertexOnceForEach) {
  const Transform transform = fromRows({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
  const auto vertices = VertexArray::create(5, 3, 2);
  const short values[15] = {1, -2, 300, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
  vertices->set(0, 5, values);
  float out[20] = {};
  transform.transform(vertices.get(), out, true);
  for (int i = 0; i < 5; ++i) {
    EXPECT_THAT(Elements(out + 4 * i, out + 4 * i + 4), ElementsAre(901, 2101, 3301, 4501));
  }
  transform.transform(vertices.get(), out, false);
  for (int i = 0; i < 5; ++i) {
    EXPECT_THAT(Elements(out + 4 * i, out + 4 * i + 4), ElementsAre(897, 2093, 3289, 4485));
  }
}

TEST(TransformVertices, ReadsSignedBytesAndAZeroZOfTwoComponents) {
  const Transform transform = fromRows({1, 0, 5, 0, 0, 1, 5, 0, 0, 0, 5, 0, 0, 0, 0, 1});
  const auto vertices = VertexArray::create(1, 2, 1);
  const signed char values[2] = {-128, 127};
  vertices->set(0, 1, values);
  float out[4] = {};
  transform.transform(vertices.get(), out, true);
  EXPECT_THAT(out, ElementsAre(-128, 127, 0, 1));
}

TEST(TransformVertices, DoesNotRelyOnTheFlag) {
  const auto vertices = VertexArray::create(1, 3, 1);
  const signed char values[3] = {1, 2, 3};
  vertices->set(0, 1, values);
  float out[4] = {};
  Transform().transform(vertices.get(), out, false);
  EXPECT_THAT(out, ElementsAre(1, 2, 3, 0));
}

}  // namespace
}  // namespace varnel_m3g
