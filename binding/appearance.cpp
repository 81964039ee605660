#include "engine/surface/appearance.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"

using varnel_m3g::Appearance;
using varnel_m3g::CompositingMode;
using varnel_m3g::Fog;
using varnel_m3g::handleCast;
using varnel_m3g::Material;
using varnel_m3g::peerOrNull;
using varnel_m3g::PolygonMode;
using varnel_m3g::Texture2D;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject Appearance::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Appearance", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Appearance_createAppearance(JNIEnv*, jclass) {
  return toHandle(Appearance::create());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Appearance_getCompositingModeN(JNIEnv* env,
                                                                                     jobject,
                                                                                     jlong handle) {
  return peerOrNull(env, handleCast<Appearance>(handle)->getCompositingMode());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Appearance_getFogN(JNIEnv* env, jobject,
                                                                         jlong handle) {
  return peerOrNull(env, handleCast<Appearance>(handle)->getFog());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Appearance_getLayerN(JNIEnv*, jobject,
                                                                        jlong handle) {
  return handleCast<Appearance>(handle)->getLayer();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Appearance_getMaterialN(JNIEnv* env, jobject,
                                                                              jlong handle) {
  return peerOrNull(env, handleCast<Appearance>(handle)->getMaterial());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Appearance_getPolygonModeN(JNIEnv* env,
                                                                                 jobject,
                                                                                 jlong handle) {
  return peerOrNull(env, handleCast<Appearance>(handle)->getPolygonMode());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Appearance_getTextureN(JNIEnv* env, jobject,
                                                                             jlong handle,
                                                                             jint index) {
  jobject peer = nullptr;
  try {
    peer = peerOrNull(env, handleCast<Appearance>(handle)->getTexture(index));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return peer;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Appearance_setCompositingModeN(
    JNIEnv*, jobject, jlong handle, jlong compositingMode) {
  handleCast<Appearance>(handle)->setCompositingMode(handleCast<CompositingMode>(compositingMode));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Appearance_setFogN(JNIEnv*, jobject,
                                                                      jlong handle, jlong fog) {
  handleCast<Appearance>(handle)->setFog(handleCast<Fog>(fog));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Appearance_setLayerN(JNIEnv* env, jobject,
                                                                        jlong handle, jint layer) {
  try {
    handleCast<Appearance>(handle)->setLayer(layer);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Appearance_setMaterialN(JNIEnv*, jobject,
                                                                           jlong handle,
                                                                           jlong material) {
  handleCast<Appearance>(handle)->setMaterial(handleCast<Material>(material));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Appearance_setPolygonModeN(JNIEnv*, jobject,
                                                                              jlong handle,
                                                                              jlong polygonMode) {
  handleCast<Appearance>(handle)->setPolygonMode(handleCast<PolygonMode>(polygonMode));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Appearance_setTextureN(JNIEnv* env, jobject,
                                                                          jlong handle, jint index,
                                                                          jlong texture) {
  try {
    handleCast<Appearance>(handle)->setTexture(index, handleCast<Texture2D>(texture));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
}

}  // extern "C"
