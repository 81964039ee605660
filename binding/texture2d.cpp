#include "engine/surface/texture2d.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/surface/image2d.h"

using varnel_m3g::handleCast;
using varnel_m3g::Image2D;
using varnel_m3g::peerOrNull;
using varnel_m3g::Texture2D;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject Texture2D::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Texture2D", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Texture2D_createTexture2DN(JNIEnv* env, jclass,
                                                                               jlong image) {
  jlong handle = 0;
  try {
    handle = toHandle(Texture2D::create(handleCast<Image2D>(image)));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Texture2D_getBlendColorN(JNIEnv*, jobject,
                                                                            jlong handle) {
  return handleCast<Texture2D>(handle)->getBlendColor();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Texture2D_getBlendingN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Texture2D>(handle)->getBlending();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Texture2D_getImageFilterN(JNIEnv*, jobject,
                                                                             jlong handle) {
  return handleCast<Texture2D>(handle)->getImageFilter();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Texture2D_getImageN(JNIEnv* env, jobject,
                                                                          jlong handle) {
  return peerOrNull(env, handleCast<Texture2D>(handle)->getImage());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Texture2D_getLevelFilterN(JNIEnv*, jobject,
                                                                             jlong handle) {
  return handleCast<Texture2D>(handle)->getLevelFilter();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Texture2D_getWrappingS(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Texture2D>(handle)->getWrappingS();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Texture2D_getWrappingT(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Texture2D>(handle)->getWrappingT();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Texture2D_setBlendColorN(JNIEnv*, jobject,
                                                                            jlong handle,
                                                                            jint rgb) {
  handleCast<Texture2D>(handle)->setBlendColor(rgb);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Texture2D_setBlendingN(JNIEnv*, jobject,
                                                                          jlong handle,
                                                                          jint blending) {
  handleCast<Texture2D>(handle)->setBlending(blending);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Texture2D_setFilteringN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jint levelFilter,
                                                                           jint imageFilter) {
  try {
    handleCast<Texture2D>(handle)->setFiltering(levelFilter, imageFilter);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Texture2D_setImageN(JNIEnv* env, jobject,
                                                                       jlong handle, jlong image) {
  try {
    handleCast<Texture2D>(handle)->setImage(handleCast<Image2D>(image));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Texture2D_setWrappingN(JNIEnv*, jobject,
                                                                          jlong handle, jint s,
                                                                          jint t) {
  handleCast<Texture2D>(handle)->setWrapping(s, t);
}

}  // extern "C"
