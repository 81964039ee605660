#include "engine/render/graphics3d.h"

#include <gtest/gtest.h>
#include <jni.h>

#include <string>

#include "binding/frame/frame.h"
#include "tests/support/fake_egl.h"
#include "tests/support/java_function.h"

extern "C" {
JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_bindTargetN__JLjava_lang_Object_2(
    JNIEnv*, jobject, jlong, jobject);
JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_bindTargetN__JLjava_lang_Object_2ZI(
    JNIEnv*, jobject, jlong, jobject, jboolean, jint);
}

namespace {

std::string raised;

// A machine that knows no more than how to raise, and notes what.
JNINativeInterface_ raisingMachine() {
  JNINativeInterface_ natives = {};
  varnel_test::answerBy(natives.FindClass, [](JNIEnv*, const char* name) {
    raised = name;
    return reinterpret_cast<jclass>(&raised);
  });
  varnel_test::answerBy(natives.ThrowNew, [](JNIEnv*, jclass, const char* message) -> jint {
    raised += std::string(": ") + message;
    return 0;
  });
  varnel_test::answerBy(natives.DeleteLocalRef, [](JNIEnv*, jobject) {});
  return natives;
}

}  // namespace

TEST(Graphics3DNatives, ABindRaisesTheNumberOfTheErrorThatRefusesTheContext) {
  FakeEgl egl;
  const JNINativeInterface_ natives = raisingMachine();
  JNIEnv env;
  env.functions = &natives;
  varnel_m3g::Graphics3D& graphics = varnel_m3g::Graphics3D::getInstance();
  const jlong handle = varnel_m3g::toRawHandle(&graphics);
  egl.fail("makeCurrent");
  for (const auto& [error, text] : {std::pair{EGL_BAD_MATCH, "12297"}, {EGL_SUCCESS, "12288"}}) {
    const std::string expected =
        std::string("java/lang/IllegalArgumentException: Failed to bind context: ") + text;
    egl.error = error;
    raised.clear();
    Java_javax_microedition_m3g_Graphics3D_bindTargetN__JLjava_lang_Object_2(&env, nullptr, handle,
                                                                             nullptr);
    EXPECT_EQ(raised, expected);
    raised.clear();
    Java_javax_microedition_m3g_Graphics3D_bindTargetN__JLjava_lang_Object_2ZI(
        &env, nullptr, handle, nullptr, JNI_TRUE, 0);
    EXPECT_EQ(raised, expected);
    EXPECT_FALSE(graphics.getTarget());
  }
}
