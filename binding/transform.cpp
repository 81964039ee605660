#include "engine/math/transform.h"

#include <jni.h>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "engine/geometry/vertex_array.h"

using varnel_m3g::handleCast;
using varnel_m3g::rawHandle;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toRawHandle;
using varnel_m3g::Transform;
using varnel_m3g::VertexArray;
using varnel_m3g::WriteArray;

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Transform_createTransformN__(JNIEnv*, jclass) {
  return toRawHandle(new Transform);
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Transform_createTransformN__J(JNIEnv*, jclass,
                                                                                  jlong other) {
  return toRawHandle(new Transform(*rawHandle<Transform>(other)));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_destroyTransformN(JNIEnv*, jclass,
                                                                               jlong handle) {
  delete rawHandle<Transform>(handle);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_getN(JNIEnv* env, jobject,
                                                                  jlong handle,
                                                                  jfloatArray matrix) {
  const WriteArray<jfloat> elements(env, matrix);
  rawHandle<Transform>(handle)->get(elements.data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_invertN(JNIEnv* env, jobject,
                                                                     jlong handle) {
  try {
    rawHandle<Transform>(handle)->invert();
  } catch (...) {
    throwJava(env, "java/lang/ArithmeticException", "Unable to invert matrix");
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_postMultiplyN(JNIEnv*, jobject,
                                                                           jlong handle,
                                                                           jlong transform) {
  rawHandle<Transform>(handle)->postMultiply(*rawHandle<Transform>(transform));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_postRotateN(JNIEnv*, jobject,
                                                                         jlong handle, jfloat angle,
                                                                         jfloat ax, jfloat ay,
                                                                         jfloat az) {
  rawHandle<Transform>(handle)->postRotate(angle, ax, ay, az);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_postRotateQuatN(JNIEnv*, jobject,
                                                                             jlong handle,
                                                                             jfloat qx, jfloat qy,
                                                                             jfloat qz, jfloat qw) {
  rawHandle<Transform>(handle)->postRotateQuat(qx, qy, qz, qw);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_postScaleN(JNIEnv*, jobject,
                                                                        jlong handle, jfloat sx,
                                                                        jfloat sy, jfloat sz) {
  rawHandle<Transform>(handle)->postScale(sx, sy, sz);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_postTranslateN(JNIEnv*, jobject,
                                                                            jlong handle, jfloat tx,
                                                                            jfloat ty, jfloat tz) {
  rawHandle<Transform>(handle)->postTranslate(tx, ty, tz);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_setIdentityN(JNIEnv*, jobject,
                                                                          jlong handle) {
  rawHandle<Transform>(handle)->setIdentity();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_setN__JJ(JNIEnv*, jobject,
                                                                      jlong handle,
                                                                      jlong transform) {
  rawHandle<Transform>(handle)->set(*rawHandle<Transform>(transform));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_setN__J_3F(JNIEnv* env, jobject,
                                                                        jlong handle,
                                                                        jfloatArray matrix) {
  const ReadArray<jfloat> elements(env, matrix);
  rawHandle<Transform>(handle)->set(elements.data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_transformN__JJ_3FZ(
    JNIEnv* env, jobject, jlong handle, jlong in, jfloatArray out, jboolean w) {
  const boost::shared_ptr<VertexArray> vertices = handleCast<VertexArray>(in);
  if (env->GetArrayLength(out) / 4 < vertices->getVertexCount()) {
    throwJava(env, "java/lang/IllegalArgumentException",
              "Array length too short in transform method");
    return;
  }
  if (vertices->getComponentCount() > 3) {
    throwJava(env, "java/lang/IllegalArgumentException",
              "May only transform 2 or 3 dimensional vertex arrays.");
    return;
  }
  const WriteArray<jfloat> elements(env, out);
  rawHandle<Transform>(handle)->transform(vertices.get(), elements.data(), w != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_transformN__J_3F(JNIEnv* env, jobject,
                                                                              jlong handle,
                                                                              jfloatArray vectors) {
  const WriteArray<jfloat> elements(env, vectors);
  rawHandle<Transform>(handle)->transform(elements.data(), elements.size());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Transform_transposeN(JNIEnv*, jobject,
                                                                        jlong handle) {
  rawHandle<Transform>(handle)->transpose();
}

}  // extern "C"
