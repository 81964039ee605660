#include "binding/frame/java_user_object.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/fake_java.h"

namespace {

using testing::ElementsAre;
using varnel_test::FakeJava;

TEST(JavaUserObject, HoldsAGlobalReference) {
  FakeJava java;
  const JavaUserObject object(java.env(), FakeJava::object(4));
  EXPECT_EQ(object.getReference(), FakeJava::object(1004));
}

TEST(JavaUserObject, HoldsNullWithoutAskingForTheMachine) {
  FakeJava java;
  {
    const JavaUserObject object(java.env(), nullptr);
    EXPECT_EQ(object.getReference(), nullptr);
  }
  EXPECT_TRUE(java.calls.empty());
}

TEST(JavaUserObject, DetachesAThreadThatItDidNotAttach) {
  FakeJava java;
  { const JavaUserObject object(java.env(), FakeJava::object(4)); }
  EXPECT_THAT(java.calls, ElementsAre("NewGlobalRef(4)", "GetJavaVM", "GetEnv(65537)",
                                      "DeleteGlobalRef(1004)", "DetachCurrentThread"));
}

TEST(JavaUserObject, AttachesAForeignThreadAndDetachesIt) {
  FakeJava java;
  {
    const JavaUserObject object(java.env(), FakeJava::object(4));
    java.calls.clear();
    java.attached = false;
  }
  EXPECT_THAT(java.calls, ElementsAre("GetEnv(65537)", "GetEnv(65537)", "GetEnv(65537)",
                                      "AttachCurrentThread(0)", "DeleteGlobalRef(1004)",
                                      "DetachCurrentThread"));
}

}  // namespace
