#include "gles/driver/driver.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

std::vector<std::string> asked;
std::set<std::string> missing;
std::map<std::string, std::intptr_t> answers;

void stand() {}

void* lookUp(const char* name) {
  asked.push_back(name);
  if (missing.count(name)) {
    return nullptr;
  }
  const auto found = answers.find(name);
  return found == answers.end() ? reinterpret_cast<void*>(stand)
                                : reinterpret_cast<void*>(found->second);
}

struct LoadDriver : testing::Test {
  LoadDriver() : former(driver) {
    asked.clear();
    missing.clear();
    answers.clear();
  }
  ~LoadDriver() override { driver = former; }

  gles::DriverTable former;
};

TEST_F(LoadDriver, FillsEveryEntryByItsCoreName) {
  EXPECT_TRUE(loadDriver(lookUp));
#define EXPECT_LOADED(need, result, name, alternative, parameters) \
  EXPECT_TRUE(static_cast<bool>(driver.name)) << #name;
  VARNEL_DRIVER_FUNCTIONS(EXPECT_LOADED)
#undef EXPECT_LOADED
  EXPECT_EQ(std::set<std::string>(asked.begin(), asked.end()).size(), asked.size());
  EXPECT_THAT(asked, testing::Not(testing::Contains("glBindBufferARB")));
}

TEST_F(LoadDriver, TriesTheAlternativeNameWhereTheCoreNameIsMissing) {
  const char* const core[] = {
      "glBindBuffer",     "glBufferData",           "glBufferSubData",
      "glDeleteBuffers",  "glGetBufferParameteriv", "glGenBuffers",
      "glIsBuffer",       "glPointParameterf",      "glPointParameterfv",
      "glActiveTexture",  "glClientActiveTexture",  "glMultiTexCoord4f",
      "glSampleCoverage", "glCompressedTexImage2D", "glCompressedTexSubImage2D"};
  missing.insert(std::begin(core), std::end(core));
  EXPECT_TRUE(loadDriver(lookUp));
  EXPECT_TRUE(static_cast<bool>(driver.glBindBuffer));
  EXPECT_TRUE(static_cast<bool>(driver.glSampleCoverage));
  for (const char* name : core) {
    EXPECT_THAT(asked, testing::Contains(std::string(name) + "ARB"));
  }
}

TEST_F(LoadDriver, FramebufferFunctionsHaveTheirExtensionNames) {
  EXPECT_TRUE(loadDriver(lookUp));
  EXPECT_THAT(asked, testing::Contains("glGenerateMipmapEXT"));
  EXPECT_THAT(asked, testing::Contains("glGetFramebufferAttachmentParameterivEXT"));
  EXPECT_THAT(asked, testing::Not(testing::Contains("glGenerateMipmap")));
}

TEST_F(LoadDriver, LeavesAMissingOptionalEntryNull) {
  missing = {"glBlendColor", "glBlendColorEXT"};
  EXPECT_TRUE(loadDriver(lookUp));
  EXPECT_FALSE(static_cast<bool>(driver.glBlendColor));
  driver.glBlendColor(0, 0, 0, 0);
}

TEST_F(LoadDriver, TellsOfAMissingRequiredEntry) {
  missing = {"glLoadMatrixf"};
  EXPECT_FALSE(loadDriver(lookUp));
  EXPECT_FALSE(static_cast<bool>(driver.glLoadMatrixf));
  EXPECT_TRUE(static_cast<bool>(driver.glMultMatrixf));
}

TEST_F(LoadDriver, TakesTheAnswersOfBadDriversForMissing) {
  for (const std::intptr_t answer :
       {std::intptr_t{-1}, std::intptr_t{1}, std::intptr_t{2}, std::intptr_t{3}}) {
    answers = {{"glUseProgram", answer}, {"glBindBuffer", answer}};
    asked.clear();
    EXPECT_TRUE(loadDriver(lookUp));
    EXPECT_FALSE(static_cast<bool>(driver.glUseProgram)) << answer;
    EXPECT_TRUE(static_cast<bool>(driver.glBindBuffer)) << answer;
    EXPECT_THAT(asked, testing::Contains("glBindBufferARB"));
  }
}

TEST(DriverFunction, AnswersZeroWhileItIsNull) {
  const gles::DriverFunction<unsigned(int)> function;
  EXPECT_EQ(function(7), 0u);
  EXPECT_FALSE(static_cast<bool>(function));
}

}  // namespace
