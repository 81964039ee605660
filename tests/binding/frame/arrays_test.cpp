#include "binding/frame/arrays.h"

#include <gtest/gtest.h>

#include "tests/support/java_function.h"

namespace varnel_m3g {
namespace {

/// An environment with one array of three floats, which it can hand out or not.
class OneArray {
 public:
  OneArray() {
    using varnel_test::answerBy;
    answerBy(functions.GetArrayLength, [](JNIEnv*, jarray) -> jsize { return 3; });
    answerBy(functions.GetFloatArrayElements,
             [](JNIEnv*, jfloatArray, jboolean*) { return handsOut ? elements : nullptr; });
    answerBy(functions.ReleaseFloatArrayElements,
             [](JNIEnv*, jfloatArray, jfloat*, jint mode) { releasedWith = mode; });
    environment.functions = &functions;
    handsOut = true;
    releasedWith = -1;
  }

  JNIEnv* env() { return &environment; }
  jfloatArray array() { return reinterpret_cast<jfloatArray>(&functions); }

  static inline bool handsOut = true;
  static inline jint releasedWith = -1;
  static inline jfloat elements[3] = {1, 2, 3};

 private:
  JNINativeInterface_ functions = {};
  JNIEnv environment = {};
};

TEST(ArrayView, GivesAnInputBackWithoutACopy) {
  OneArray java;
  {
    const ReadArray<jfloat> view(java.env(), java.array());
    EXPECT_EQ(view.size(), 3);
    EXPECT_EQ(view[1], 2.0f);
  }
  EXPECT_EQ(OneArray::releasedWith, JNI_ABORT);
}

TEST(ArrayView, CopiesAnOutputBack) {
  OneArray java;
  { const WriteArray<jfloat> view(java.env(), java.array()); }
  EXPECT_EQ(OneArray::releasedWith, 0);
}

TEST(ArrayView, OfNullHasNoElements) {
  OneArray java;
  {
    const ReadArray<jfloat> view(java.env(), nullptr);
    EXPECT_EQ(view.size(), 0);
    EXPECT_EQ(view.data(), nullptr);
  }
  EXPECT_EQ(OneArray::releasedWith, -1);
}

TEST(ArrayView, HasNoElementsWhereTheMachineHandsOutNone) {
  OneArray java;
  OneArray::handsOut = false;
  {
    const WriteArray<jfloat> view(java.env(), java.array());
    EXPECT_EQ(view.size(), 0);
    EXPECT_EQ(view.data(), nullptr);
  }
  EXPECT_EQ(OneArray::releasedWith, -1);
}

}  // namespace
}  // namespace varnel_m3g
