#include "engine/math/triangle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "engine/math/vector.h"
#include "tests/support/kernel_values.h"

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using testing::FloatNear;
using varnel_test::Numbers;
using varnel_test::taken;

constexpr float miss = -std::numeric_limits<float>::infinity();
constexpr int CULL_BACK = 160;
constexpr int CULL_FRONT = 161;
constexpr int CULL_NONE = 162;
constexpr int WINDING_CCW = 168;
constexpr int WINDING_CW = 169;

const float A[3] = {0, 0, 0};
const float B[3] = {4, 0, 0};
const float C[3] = {0, 4, 0};

float pick(float x, float y, float* out = nullptr) {
  const float p0[3] = {x, y, 10};
  const float p1[3] = {x, y, 5};
  return rayTriangle(p0, p1, A, B, C, out);
}

TEST(TriangleArea, IsHalfTheParallelogram) {
  EXPECT_EQ(triangleArea(A, B, C), 8);
  EXPECT_EQ(triangleArea(A, C, B), 8);
  EXPECT_EQ(triangleArea(A, B, B), 0);
}

TEST(TriangleArea, AgreesWithHeron) {
  Numbers numbers(3);
  for (int round = 0; round < 1000; ++round) {
    float p[9];
    numbers.fill(p, 9, -10, 10);
    const auto side = [&p](int i, int j) {
      long double sum = 0;
      for (int k = 0; k < 3; ++k) {
        const long double d = static_cast<long double>(p[3 * i + k]) - p[3 * j + k];
        sum += d * d;
      }
      return std::sqrt(sum);
    };
    const long double a = side(0, 1);
    const long double b = side(1, 2);
    const long double c = side(2, 0);
    const long double s = (a + b + c) / 2;
    const double expected = static_cast<double>(std::sqrt(s * (s - a) * (s - b) * (s - c)));
    EXPECT_NEAR(triangleArea(p, p + 3, p + 6), expected, 1e-5 * (1 + expected));
  }
}

TEST(RayTriangle, AnswersTheParameterAndThePoint) {
  float hit[3] = {-1, -1, -1};
  EXPECT_FLOAT_EQ(pick(1, 1, hit), 2);
  EXPECT_THAT(hit, ElementsAre(1, 1, FloatNear(0, 1e-6F)));
}

TEST(RayTriangle, MissesBesideTheTriangleAndLeavesThePoint) {
  float hit[3] = {-1, -1, -1};
  EXPECT_EQ(pick(3, 3, hit), miss);
  EXPECT_EQ(pick(-1, 1), miss);
  EXPECT_EQ(pick(1, -1), miss);
  EXPECT_THAT(hit, ElementsAre(-1, -1, -1));
}

TEST(RayTriangle, MissesBehindItsStart) {
  const float p0[3] = {1, 1, -5};
  const float p1[3] = {1, 1, -10};
  EXPECT_EQ(rayTriangle(p0, p1, A, B, C, nullptr), miss);
}

TEST(RayTriangle, HitsAtItsStart) {
  const float p0[3] = {1, 1, 0};
  const float p1[3] = {1, 1, -1};
  EXPECT_EQ(rayTriangle(p0, p1, A, B, C, nullptr), 0);
}

TEST(RayTriangle, MissesInThePlane) {
  const float p0[3] = {-1, 1, 0};
  const float p1[3] = {1, 1, 0};
  EXPECT_EQ(rayTriangle(p0, p1, A, B, C, nullptr), miss);
}

TEST(RayTriangle, TakesAShortRayForAParallelOne) {
  const float p0[3] = {1, 1, 0.0005F};
  const float p1[3] = {1, 1, 0};
  EXPECT_EQ(rayTriangle(p0, p1, A, B, C, nullptr), miss);
}

TEST(RayTriangle, DoesNotSeeTinyTriangles) {
  const float b[3] = {0.03F, 0, 0};
  const float c[3] = {0, 0.03F, 0};
  const float p0[3] = {0.01F, 0.01F, 1};
  const float p1[3] = {0.01F, 0.01F, 0};
  EXPECT_EQ(rayTriangle(p0, p1, A, b, c, nullptr), miss);
}

TEST(RayTriangle, HitsOnAnEdge) {
  EXPECT_FLOAT_EQ(pick(2, 0), 2);
}

TEST(RayTriangle, HitsOnACorner) {
  // The direction to the corner is not a number, which no comparison refuses.
  EXPECT_FLOAT_EQ(pick(0, 0), 2);
}

TEST(RayTriangle, AgreesWithBarycentricCoordinates) {
  Numbers numbers(4);
  int hits = 0;
  for (int round = 0; round < 2000; ++round) {
    const float x = numbers.between(-1, 5);
    const float y = numbers.between(-1, 5);
    const double inside =
        std::min({static_cast<double>(x), static_cast<double>(y), (4.0 - x - y) / std::sqrt(2.0)});
    if (std::fabs(inside) < 0.01) {
      continue;  // too near to an edge to tell
    }
    const float t = pick(x, y);
    EXPECT_EQ(t != miss, inside > 0) << x << " " << y;
    hits += t != miss ? 1 : 0;
  }
  EXPECT_GT(hits, 100);
}

struct FacingCase {
  int parity;
  int winding;
  int culling;
  bool picked;
};

// The triangle is counter-clockwise for a viewer who looks along -z.
class TriangleFacing : public testing::TestWithParam<FacingCase> {};

TEST_P(TriangleFacing, FollowsWindingAndCulling) {
  const FacingCase& c = GetParam();
  const float direction[3] = {0, 0, -2};
  EXPECT_EQ(triangleFacing(c.parity, A, B, C, direction, c.winding, c.culling), c.picked);
}

INSTANTIATE_TEST_SUITE_P(AllModes, TriangleFacing,
                         testing::Values(FacingCase{0, WINDING_CCW, CULL_BACK, true},
                                         FacingCase{0, WINDING_CCW, CULL_FRONT, false},
                                         FacingCase{0, WINDING_CCW, CULL_NONE, true},
                                         FacingCase{0, WINDING_CW, CULL_BACK, false},
                                         FacingCase{0, WINDING_CW, CULL_FRONT, true},
                                         FacingCase{0, WINDING_CW, CULL_NONE, true},
                                         FacingCase{1, WINDING_CCW, CULL_BACK, false},
                                         FacingCase{1, WINDING_CCW, CULL_FRONT, true},
                                         FacingCase{-1, WINDING_CCW, CULL_BACK, false},
                                         FacingCase{2, WINDING_CCW, CULL_BACK, true}));

TEST(TriangleFacing, RefusesAGrazingRay) {
  const float direction[3] = {1, 0, 0};
  EXPECT_FALSE(triangleFacing(0, A, B, C, direction, WINDING_CCW, CULL_NONE));
}

TEST(TriangleFacing, FailsForATriangleWithoutANormal) {
  const float direction[3] = {0, 0, 1};
  EXPECT_THROW(triangleFacing(0, A, B, B, direction, WINDING_CCW, CULL_NONE), std::runtime_error);
}

TEST(InterpolateTexCoord, WeighsByTheAreasOnTheOtherSide) {
  const float p[3] = {1, 2, 0};  // 1/4 A, 1/4 B, 1/2 C
  const float ta[2] = {0, 8};
  const float tb[2] = {4, 0};
  const float tc[2] = {0, 0};
  EXPECT_THAT(taken(interpolateTexCoord(p, A, B, C, ta, tb, tc), 2), ElementsAre(1, 2));
}

TEST(InterpolateTexCoord, WeighsUnsignedOutside) {
  const float p[3] = {-4, 0, 0};
  const float ta[2] = {1, 1};
  const float tb[2] = {1, 0};
  const float tc[2] = {1, 0};
  // Areas: p b c 16, p a c 8, p a b 0, over 8.
  EXPECT_THAT(taken(interpolateTexCoord(p, A, B, C, ta, tb, tc), 2), ElementsAre(3, 2));
}

TEST(InterpolateNormal, NormalisesWhatItReadsAndWhatItGives) {
  const float p[3] = {1, 2, 0};
  float na[3] = {2, 0, 0};
  float nb[3] = {0, 3, 0};
  float nc[3] = {0, 0, 4};
  const float length = std::sqrt(0.375F);
  EXPECT_THAT(taken(interpolateNormal(p, A, B, C, na, nb, nc), 3),
              ElementsAre(FloatNear(0.25F / length, 1e-6F), FloatNear(0.25F / length, 1e-6F),
                          FloatNear(0.5F / length, 1e-6F)));
  EXPECT_THAT(na, ElementsAre(1, 0, 0));
  EXPECT_THAT(nb, ElementsAre(0, 1, 0));
  EXPECT_THAT(nc, ElementsAre(0, 0, 1));
}

}  // namespace
}  // namespace varnel_m3g
