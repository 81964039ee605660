#include "engine/scene/camera.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::Camera;
using varnel_m3g::handleCast;
using varnel_m3g::newPeer;
using varnel_m3g::rawHandle;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::Transform;
using varnel_m3g::WriteArray;

jobject varnel_m3g::Camera::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Camera", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Camera_createCamera(JNIEnv*, jclass) {
  return toHandle(Camera::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Camera_getProjectionN__JJ(JNIEnv*, jobject,
                                                                             jlong handle,
                                                                             jlong transform) {
  const boost::shared_ptr<Camera> camera = handleCast<Camera>(handle);
  if (transform == 0) {
    return camera->getProjectionMatrix(nullptr);
  }
  return camera->getProjectionMatrix(rawHandle<Transform>(transform)->data());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Camera_getProjectionN__J_3F(JNIEnv* env, jobject,
                                                                               jlong handle,
                                                                               jfloatArray params) {
  const boost::shared_ptr<Camera> camera = handleCast<Camera>(handle);
  if (params == nullptr) {
    return camera->getProjection(nullptr);
  }
  const WriteArray<jfloat> elements(env, params);
  return camera->getProjection(elements.data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Camera_setGenericN(JNIEnv*, jobject,
                                                                      jlong handle,
                                                                      jlong transform) {
  handleCast<Camera>(handle)->setGeneric(rawHandle<Transform>(transform)->data());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Camera_setParallelN(JNIEnv* env, jobject,
                                                                       jlong handle, jfloat fovy,
                                                                       jfloat aspectRatio,
                                                                       jfloat near, jfloat far) {
  try {
    handleCast<Camera>(handle)->setParallel(fovy, aspectRatio, near, far);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Camera_setPerspectiveN(JNIEnv* env, jobject,
                                                                          jlong handle, jfloat fovy,
                                                                          jfloat aspectRatio,
                                                                          jfloat near, jfloat far) {
  try {
    handleCast<Camera>(handle)->setPerspective(fovy, aspectRatio, near, far);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

}  // extern "C"
