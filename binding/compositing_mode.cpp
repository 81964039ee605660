#include "engine/surface/compositing_mode.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"

using varnel_m3g::CompositingMode;
using varnel_m3g::handleCast;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject CompositingMode::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/CompositingMode", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_CompositingMode_createCompositingModeN(JNIEnv*,
                                                                                           jclass) {
  return toHandle(CompositingMode::create());
}

JNIEXPORT jfloat JNICALL
Java_javax_microedition_m3g_CompositingMode_getAlphaThresholdN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->getAlphaThreshold();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_CompositingMode_getBlendingN(JNIEnv*, jobject,
                                                                                jlong handle) {
  return handleCast<CompositingMode>(handle)->getBlending();
}

JNIEXPORT jfloat JNICALL
Java_javax_microedition_m3g_CompositingMode_getDepthOffsetFactorN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->getDepthOffsetFactor();
}

JNIEXPORT jfloat JNICALL
Java_javax_microedition_m3g_CompositingMode_getDepthOffsetUnitsN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->getDepthOffsetUnits();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_CompositingMode_isAlphaWriteEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->isAlphaWriteEnabled();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_CompositingMode_isColorWriteEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->isColorWriteEnabled();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_CompositingMode_isDepthTestEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->isDepthTestEnabled();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_CompositingMode_isDepthWriteEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<CompositingMode>(handle)->isDepthWriteEnabled();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setAlphaThresholdN(
    JNIEnv* env, jobject, jlong handle, jfloat threshold) {
  try {
    handleCast<CompositingMode>(handle)->setAlphaThreshold(threshold);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setAlphaWriteEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<CompositingMode>(handle)->setAlphaWriteEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setBlendingN(JNIEnv*, jobject,
                                                                                jlong handle,
                                                                                jint blending) {
  handleCast<CompositingMode>(handle)->setBlending(blending);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setColorWriteEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<CompositingMode>(handle)->setColorWriteEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setDepthOffsetN(JNIEnv*, jobject,
                                                                                   jlong handle,
                                                                                   jfloat factor,
                                                                                   jfloat units) {
  handleCast<CompositingMode>(handle)->setDepthOffset(factor, units);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setDepthTestEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<CompositingMode>(handle)->setDepthTestEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_CompositingMode_setDepthWriteEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<CompositingMode>(handle)->setDepthWriteEnable(enable != JNI_FALSE);
}

}  // extern "C"
