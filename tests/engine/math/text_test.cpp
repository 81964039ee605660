#include "engine/math/text.h"

#include <gtest/gtest.h>

#include <limits>

#include "engine/math/transform.h"

namespace varnel_m3g {
namespace {

TEST(FloatToString, TruncatesToThreeDecimals) {
  EXPECT_EQ(floatToString(-0.5F), "-0.500");
  EXPECT_EQ(floatToString(1.9999F), "1.999");
  EXPECT_EQ(floatToString(0), "0.000");
  EXPECT_EQ(floatToString(-0.0F), "0.000");
  EXPECT_EQ(floatToString(12.0625F), "12.062");
  EXPECT_EQ(floatToString(-1234.5F), "-1234.500");
}

TEST(FloatToString, HasOneDigitEachForNumbersThatNoIntHolds) {
  EXPECT_EQ(floatToString(3e9F).size(), 14U);
  EXPECT_EQ(floatToString(std::numeric_limits<float>::infinity()).substr(0, 11), "2147483647.");
  EXPECT_EQ(floatToString(std::numeric_limits<float>::quiet_NaN()), "0.000");
}

TEST(JoinFloats, SeparatesByCommaAndBlank) {
  const float values[3] = {1, -2.25F, 3.5F};
  EXPECT_EQ(joinFloats(values, 3), "1.000, -2.250, 3.500");
  EXPECT_EQ(joinFloats(values, 1), "1.000");
  EXPECT_EQ(joinFloats(values, 0), "");
  EXPECT_EQ(joinFloats(values, -1), "");
}

TEST(PrintTransform, WritesTheRows) {
  Transform transform;
  transform.postTranslate(1, 2, 3);
  testing::internal::CaptureStdout();
  printTransform(transform);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "1.000, 0.000, 0.000, 1.000\n"
            "0.000, 1.000, 0.000, 2.000\n"
            "0.000, 0.000, 1.000, 3.000\n"
            "0.000, 0.000, 0.000, 1.000\n");
}

}  // namespace
}  // namespace varnel_m3g
