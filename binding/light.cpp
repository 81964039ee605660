#include "engine/scene/light.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::Light;
using varnel_m3g::newPeer;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

jobject varnel_m3g::Light::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Light", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Light_createLightN(JNIEnv*, jclass) {
  return toHandle(Light::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Light_getColorN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Light>(handle)->getColor();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Light_getConstantAttenuationN(JNIEnv*, jobject,
                                                                                   jlong handle) {
  return handleCast<Light>(handle)->getConstantAttenuation();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Light_getIntensityN(JNIEnv*, jobject,
                                                                         jlong handle) {
  return handleCast<Light>(handle)->getIntensity();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Light_getLinearAttenuationN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return handleCast<Light>(handle)->getLinearAttenuation();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Light_getModeN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Light>(handle)->getMode();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Light_getQuadraticAttenuationN(JNIEnv*,
                                                                                    jobject,
                                                                                    jlong handle) {
  return handleCast<Light>(handle)->getQuadraticAttenuation();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Light_getSpotAngleN(JNIEnv*, jobject,
                                                                         jlong handle) {
  return handleCast<Light>(handle)->getSpotAngle();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Light_getSpotExponentN(JNIEnv*, jobject,
                                                                            jlong handle) {
  return handleCast<Light>(handle)->getSpotExponent();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Light_setAttenuationN(
    JNIEnv* env, jobject, jlong handle, jfloat constant, jfloat linear, jfloat quadratic) {
  try {
    handleCast<Light>(handle)->setAttenuation(constant, linear, quadratic);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Light_setColorN(JNIEnv*, jobject, jlong handle,
                                                                   jint rgb) {
  handleCast<Light>(handle)->setColor(rgb);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Light_setIntensityN(JNIEnv*, jobject,
                                                                       jlong handle,
                                                                       jfloat intensity) {
  handleCast<Light>(handle)->setIntensity(intensity);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Light_setModeN(JNIEnv*, jobject, jlong handle,
                                                                  jint mode) {
  handleCast<Light>(handle)->setMode(mode);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Light_setSpotAngleN(JNIEnv* env, jobject,
                                                                       jlong handle,
                                                                       jfloat degrees) {
  try {
    handleCast<Light>(handle)->setSpotAngle(degrees);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Light_setSpotExponentN(JNIEnv* env, jobject,
                                                                          jlong handle,
                                                                          jfloat exponent) {
  try {
    handleCast<Light>(handle)->setSpotExponent(exponent);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

}  // extern "C"
