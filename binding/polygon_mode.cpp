#include "engine/surface/polygon_mode.h"

#include <jni.h>

#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::PolygonMode;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject PolygonMode::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/PolygonMode", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_PolygonMode_createPolygonModeN(JNIEnv*,
                                                                                   jclass) {
  return toHandle(PolygonMode::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_PolygonMode_getCullingN(JNIEnv*, jobject,
                                                                           jlong handle) {
  return handleCast<PolygonMode>(handle)->getCulling();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_PolygonMode_getShadingN(JNIEnv*, jobject,
                                                                           jlong handle) {
  return handleCast<PolygonMode>(handle)->getShading();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_PolygonMode_getWindingN(JNIEnv*, jobject,
                                                                           jlong handle) {
  return handleCast<PolygonMode>(handle)->getWinding();
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_PolygonMode_isLocalCameraLightingEnabledN(
    JNIEnv*, jobject, jlong handle) {
  return handleCast<PolygonMode>(handle)->isLocalCameraLightingEnabled();
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_PolygonMode_isPerspectiveCorrectionEnabledN(
    JNIEnv*, jobject, jlong handle) {
  return handleCast<PolygonMode>(handle)->isPerspectiveCorrectionEnabled();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_PolygonMode_isTwoSidedLightingEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<PolygonMode>(handle)->isTwoSidedLightingEnabled();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_PolygonMode_setCullingN(JNIEnv*, jobject,
                                                                           jlong handle,
                                                                           jint culling) {
  handleCast<PolygonMode>(handle)->setCulling(culling);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_PolygonMode_setLocalCameraLightingEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<PolygonMode>(handle)->setLocalCameraLightingEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_PolygonMode_setPerspectiveCorrectionEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<PolygonMode>(handle)->setPerspectiveCorrectionEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_PolygonMode_setShadingN(JNIEnv*, jobject,
                                                                           jlong handle,
                                                                           jint shading) {
  handleCast<PolygonMode>(handle)->setShading(shading);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_PolygonMode_setTwoSidedLightingEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<PolygonMode>(handle)->setTwoSidedLightingEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_PolygonMode_setWindingN(JNIEnv*, jobject,
                                                                           jlong handle,
                                                                           jint winding) {
  handleCast<PolygonMode>(handle)->setWinding(winding);
}

}  // extern "C"
