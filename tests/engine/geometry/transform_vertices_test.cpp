#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <vector>

#include "engine/geometry/vertex_array.h"
#include "engine/math/transform.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::expectFailure;

Transform countingTransform() {
  float rowMajor[16];
  for (int i = 0; i < 16; ++i) {
    rowMajor[i] = static_cast<float>(i + 1);
  }
  Transform transform;
  transform.set(rowMajor);
  return transform;
}

TEST(TransformVertices, EveryVertexGivesTheTransformOfTheFirst) {
  const auto array = VertexArray::create(5, 3, 2);
  const short values[15] = {1, -2, 3, 40, 50, 60, 7, 8, 9, 10, 11, 12, 13, 14, 15};
  array->set(0, 5, values);
  const Transform transform = countingTransform();
  for (const bool w : {true, false}) {
    std::vector<float> out(21, -7.0f);
    transform.transform(array.get(), out.data(), w);
    for (int vertex = 0; vertex < 5; ++vertex) {
      for (int r = 0; r < 4; ++r) {
        const float row = static_cast<float>(4 * r);
        const float expected =
            1.0f * (row + 1) - 2.0f * (row + 2) + 3.0f * (row + 3) + (w ? row + 4 : 0.0f);
        EXPECT_EQ(out[static_cast<std::size_t>(4 * vertex + r)], expected);
      }
    }
    EXPECT_EQ(out[20], -7.0f);
  }
}

TEST(TransformVertices, TakesBytesAsSignedAndAMissingZAsZero) {
  const auto array = VertexArray::create(2, 2, 1);
  const signed char values[4] = {-128, 127, 1, 1};
  array->set(0, 2, values);
  float out[8];
  countingTransform().transform(array.get(), out, true);
  EXPECT_EQ(out[0], -128.0f * 1 + 127.0f * 2 + 4);
  EXPECT_EQ(out[3], -128.0f * 13 + 127.0f * 14 + 16);
  EXPECT_EQ(out[4], out[0]);
}

TEST(TransformVertices, TheIdentityIsApplied) {
  const auto array = VertexArray::create(1, 3, 1);
  const signed char values[3] = {1, 2, 3};
  array->set(0, 1, values);
  float out[4] = {9, 9, 9, 9};
  Transform().transform(array.get(), out, false);
  EXPECT_EQ(out[0], 1.0f);
  EXPECT_EQ(out[2], 3.0f);
  EXPECT_EQ(out[3], 0.0f);
}

TEST(TransformVertices, RefusesNullAndFourComponents) {
  const auto array = VertexArray::create(1, 4, 1);
  float out[4];
  const Transform transform;
  expectFailure<std::invalid_argument>([&] { transform.transform(nullptr, nullptr, true); },
                                       "Transform.transform  input vertex array is null ");
  expectFailure<std::invalid_argument>([&] { transform.transform(array.get(), nullptr, true); },
                                       "Transform.transform  output vertex array is null ");
  expectFailure<std::invalid_argument>(
      [&] { transform.transform(array.get(), out, true); },
      "Transform.transform vertex input array has more than 3 components -- not allowed");
}

}  // namespace
}  // namespace varnel_m3g
