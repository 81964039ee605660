#include "engine/surface/fog.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"

using varnel_m3g::Fog;
using varnel_m3g::handleCast;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject Fog::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Fog", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Fog_createFogN(JNIEnv*, jclass) {
  return toHandle(Fog::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Fog_getColorN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Fog>(handle)->getColor();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Fog_getDensityN(JNIEnv*, jobject,
                                                                     jlong handle) {
  return handleCast<Fog>(handle)->getDensity();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Fog_getFarDistanceN(JNIEnv*, jobject,
                                                                         jlong handle) {
  return handleCast<Fog>(handle)->getFarDistance();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Fog_getModeN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Fog>(handle)->getMode();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Fog_getNearDistanceN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Fog>(handle)->getNearDistance();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Fog_setColorN(JNIEnv*, jobject, jlong handle,
                                                                 jint rgb) {
  handleCast<Fog>(handle)->setColor(rgb);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Fog_setDensityN(JNIEnv* env, jobject,
                                                                   jlong handle, jfloat density) {
  try {
    handleCast<Fog>(handle)->setDensity(density);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Fog_setLinearN(JNIEnv*, jobject, jlong handle,
                                                                  jfloat nearDistance,
                                                                  jfloat farDistance) {
  handleCast<Fog>(handle)->setLinear(nearDistance, farDistance);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Fog_setModeN(JNIEnv*, jobject, jlong handle,
                                                                jint mode) {
  handleCast<Fog>(handle)->setMode(mode);
}

}  // extern "C"
