#include "engine/surface/material.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::Material;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject Material::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Material", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Material_createMaterialN(JNIEnv*, jclass) {
  return toHandle(Material::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Material_getColorN(JNIEnv* env, jobject,
                                                                      jlong handle, jint target) {
  jint color = 0;
  try {
    color = handleCast<Material>(handle)->getColor(target);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return color;
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Material_getShininessN(JNIEnv*, jobject,
                                                                            jlong handle) {
  return handleCast<Material>(handle)->getShininess();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_Material_isVertexColorTrackingEnabledN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Material>(handle)->isVertexColorTrackingEnabled();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Material_setColorN(JNIEnv* env, jobject,
                                                                      jlong handle, jint target,
                                                                      jint argb) {
  try {
    handleCast<Material>(handle)->setColor(target, argb);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Material_setShininessN(JNIEnv* env, jobject,
                                                                          jlong handle,
                                                                          jfloat shininess) {
  try {
    handleCast<Material>(handle)->setShininess(shininess);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Material_setVertexColorTrackingEnableN(
    JNIEnv*, jobject, jlong handle, jboolean enable) {
  handleCast<Material>(handle)->setVertexColorTrackingEnable(enable != JNI_FALSE);
}

}  // extern "C"
