#include "engine/scene/sprite3d.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/surface/appearance.h"
#include "engine/surface/image2d.h"

using varnel_m3g::Appearance;
using varnel_m3g::handleCast;
using varnel_m3g::Image2D;
using varnel_m3g::newPeer;
using varnel_m3g::peerOrNull;
using varnel_m3g::Sprite3D;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

jobject varnel_m3g::Sprite3D::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Sprite3D", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Sprite3D_createSprite3DN(JNIEnv* env, jclass,
                                                                             jboolean scaled,
                                                                             jlong image,
                                                                             jlong appearance) {
  jlong handle = 0;
  try {
    handle = toHandle(Sprite3D::create(scaled != JNI_FALSE, handleCast<Image2D>(image),
                                       handleCast<Appearance>(appearance)));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
  return handle;
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Sprite3D_getAppearanceN(JNIEnv* env, jobject,
                                                                              jlong handle) {
  return peerOrNull(env, handleCast<Sprite3D>(handle)->getAppearance());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Sprite3D_getCropHeightN(JNIEnv*, jobject,
                                                                           jlong handle) {
  return handleCast<Sprite3D>(handle)->getCropHeight();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Sprite3D_getCropWidthN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Sprite3D>(handle)->getCropWidth();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Sprite3D_getCropXN(JNIEnv*, jobject,
                                                                      jlong handle) {
  return handleCast<Sprite3D>(handle)->getCropX();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Sprite3D_getCropYN(JNIEnv*, jobject,
                                                                      jlong handle) {
  return handleCast<Sprite3D>(handle)->getCropY();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Sprite3D_getImageN(JNIEnv* env, jobject,
                                                                         jlong handle) {
  return peerOrNull(env, handleCast<Sprite3D>(handle)->getImage());
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Sprite3D_isScaledN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Sprite3D>(handle)->isScaled() ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Sprite3D_setAppearanceN(JNIEnv*, jobject,
                                                                           jlong handle,
                                                                           jlong appearance) {
  handleCast<Sprite3D>(handle)->setAppearance(handleCast<Appearance>(appearance));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Sprite3D_setCropN(JNIEnv* env, jobject,
                                                                     jlong handle, jint x, jint y,
                                                                     jint width, jint height) {
  try {
    handleCast<Sprite3D>(handle)->setCrop(x, y, width, height);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Sprite3D_setImageN(JNIEnv* env, jobject,
                                                                      jlong handle, jlong image) {
  try {
    handleCast<Sprite3D>(handle)->setImage(handleCast<Image2D>(image));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
}

}  // extern "C"
