#include "engine/math/matrix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <stdexcept>

namespace varnel_m3g {
namespace {

template <class Call>
std::string messageOf(Call call) {
  try {
    call();
  } catch (const std::invalid_argument& e) {
    return e.what();
  }
  return "no exception";
}

TEST(Matrix, StartsAsTheIdentity) {
  float values[16];
  Matrix().getMatrix(values);
  EXPECT_THAT(values, testing::ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1));
}

TEST(Matrix, KeepsTheOrderOfItsValues) {
  float in[16];
  std::iota(in, in + 16, 1.0F);
  Matrix matrix;
  matrix.setMatrix(in);
  float out[16] = {};
  matrix.getMatrix(out);
  EXPECT_THAT(out, testing::ElementsAreArray(in));
}

TEST(Matrix, RefusesNull) {
  Matrix matrix;
  EXPECT_EQ(messageOf([&] { matrix.setMatrix(nullptr); }), "incorrect array length");
  EXPECT_EQ(messageOf([&] { matrix.getMatrix(nullptr); }), "null float array passed to getMatrix");
}

TEST(Matrix, ComparesEveryElement) {
  for (int i = 0; i < 16; ++i) {
    float values[16];
    Matrix().getMatrix(values);
    values[i] += 1;
    Matrix other;
    other.setMatrix(values);
    EXPECT_FALSE(Matrix() == other) << i;
  }
  EXPECT_TRUE(Matrix() == Matrix());
}

TEST(Matrix, WithANumberThatIsNoneEqualsNothing) {
  float values[16] = {std::numeric_limits<float>::quiet_NaN()};
  Matrix matrix;
  matrix.setMatrix(values);
  EXPECT_FALSE(matrix == matrix);
}

}  // namespace
}  // namespace varnel_m3g
