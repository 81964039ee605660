#include "engine/object/log.h"

#include <gtest/gtest.h>

#include <string>

namespace varnel_m3g {
namespace {

TEST(Log, WritesTheTextAndALineEnd) {
  testing::internal::CaptureStdout();
  log("text");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "text\n");
}

TEST(Log, FormatsTextsLongerThanAnyFixedBuffer) {
  const std::string longText(5000, 'x');
  testing::internal::CaptureStdout();
  logf("<%s>", longText.c_str());
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "<" + longText + ">\n");
}

}  // namespace
}  // namespace varnel_m3g
