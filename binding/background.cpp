#include "engine/surface/background.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/surface/image2d.h"

using varnel_m3g::Background;
using varnel_m3g::handleCast;
using varnel_m3g::Image2D;
using varnel_m3g::peerOrNull;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject Background::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Background", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Background_createBackgroundN(JNIEnv*, jclass) {
  return toHandle(Background::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getColorN(JNIEnv*, jobject,
                                                                        jlong handle) {
  return handleCast<Background>(handle)->getColor();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getCropHeightN(JNIEnv*, jobject,
                                                                             jlong handle) {
  return handleCast<Background>(handle)->getCropHeight();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getCropWidthN(JNIEnv*, jobject,
                                                                            jlong handle) {
  return handleCast<Background>(handle)->getCropWidth();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getCropXN(JNIEnv*, jobject,
                                                                        jlong handle) {
  return handleCast<Background>(handle)->getCropX();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getCropYN(JNIEnv*, jobject,
                                                                        jlong handle) {
  return handleCast<Background>(handle)->getCropY();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getImageModeXN(JNIEnv*, jobject,
                                                                             jlong handle) {
  return handleCast<Background>(handle)->getImageModeX();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Background_getImageModeYN(JNIEnv*, jobject,
                                                                             jlong handle) {
  return handleCast<Background>(handle)->getImageModeY();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Background_getImageN(JNIEnv* env, jobject,
                                                                           jlong handle) {
  return peerOrNull(env, handleCast<Background>(handle)->getImage());
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_Background_isColorClearEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Background>(handle)->isColorClearEnabled();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_Background_isDepthClearEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Background>(handle)->isDepthClearEnabled();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Background_setColorClearEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<Background>(handle)->setColorClearEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Background_setColorN(JNIEnv*, jobject,
                                                                        jlong handle, jint argb) {
  handleCast<Background>(handle)->setColor(argb);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Background_setCropN(JNIEnv* env, jobject,
                                                                       jlong handle, jint x, jint y,
                                                                       jint width, jint height) {
  try {
    handleCast<Background>(handle)->setCrop(x, y, width, height);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Background_setDepthClearEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<Background>(handle)->setDepthClearEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Background_setImageModeN(JNIEnv*, jobject,
                                                                            jlong handle, jint x,
                                                                            jint y) {
  handleCast<Background>(handle)->setImageMode(x, y);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Background_setImageN(JNIEnv* env, jobject,
                                                                        jlong handle, jlong image) {
  try {
    handleCast<Background>(handle)->setImage(handleCast<Image2D>(image));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

}  // extern "C"
