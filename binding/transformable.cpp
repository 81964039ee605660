#include "engine/math/transformable.h"

#include <jni.h>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::rawHandle;
using varnel_m3g::Transform;
using varnel_m3g::Transformable;
using varnel_m3g::WriteArray;

extern "C" {

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_getCompositeTransformN(
    JNIEnv*, jobject, jlong handle, jlong transform) {
  handleCast<Transformable>(handle)->getCompositeTransform(*rawHandle<Transform>(transform));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_getOrientationN(
    JNIEnv* env, jobject, jlong handle, jfloatArray angleAxis) {
  const WriteArray<jfloat> elements(env, angleAxis);
  handleCast<Transformable>(handle)->getOrientation(elements.data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_getScaleN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jfloatArray xyz) {
  const WriteArray<jfloat> elements(env, xyz);
  handleCast<Transformable>(handle)->getScale(elements.data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_getTransformN(JNIEnv*, jobject,
                                                                               jlong handle,
                                                                               jlong transform) {
  handleCast<Transformable>(handle)->getTransform(*rawHandle<Transform>(transform));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_getTranslationN(JNIEnv* env,
                                                                                 jobject,
                                                                                 jlong handle,
                                                                                 jfloatArray xyz) {
  const WriteArray<jfloat> elements(env, xyz);
  handleCast<Transformable>(handle)->getTranslation(elements.data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_postRotateN(
    JNIEnv*, jobject, jlong handle, jfloat angle, jfloat ax, jfloat ay, jfloat az) {
  handleCast<Transformable>(handle)->postRotate(angle, ax, ay, az);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_preRotateN(JNIEnv*, jobject,
                                                                            jlong handle,
                                                                            jfloat angle, jfloat ax,
                                                                            jfloat ay, jfloat az) {
  handleCast<Transformable>(handle)->preRotate(angle, ax, ay, az);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_scaleN(JNIEnv*, jobject,
                                                                        jlong handle, jfloat sx,
                                                                        jfloat sy, jfloat sz) {
  handleCast<Transformable>(handle)->scale(sx, sy, sz);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_setOrientationN(
    JNIEnv*, jobject, jlong handle, jfloat angle, jfloat ax, jfloat ay, jfloat az) {
  handleCast<Transformable>(handle)->setOrientation(angle, ax, ay, az);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_setScaleN(JNIEnv*, jobject,
                                                                           jlong handle, jfloat sx,
                                                                           jfloat sy, jfloat sz) {
  handleCast<Transformable>(handle)->setScale(sx, sy, sz);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_setTransformN(JNIEnv*, jobject,
                                                                               jlong handle,
                                                                               jlong transform) {
  const boost::shared_ptr<Transformable> transformable = handleCast<Transformable>(handle);
  if (transform == 0) {
    transformable->setTransformToIdentity();
  } else {
    transformable->setTransform(*rawHandle<Transform>(transform));
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_setTranslationN(
    JNIEnv*, jobject, jlong handle, jfloat tx, jfloat ty, jfloat tz) {
  handleCast<Transformable>(handle)->setTranslation(tx, ty, tz);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transformable_translateN(JNIEnv*, jobject,
                                                                            jlong handle, jfloat tx,
                                                                            jfloat ty, jfloat tz) {
  handleCast<Transformable>(handle)->translate(tx, ty, tz);
}

}  // extern "C"
