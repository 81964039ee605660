#include "engine/scene/ray_intersection.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "engine/scene/node.h"

using varnel_m3g::peerOrNull;
using varnel_m3g::rawHandle;
using varnel_m3g::RayIntersection;
using varnel_m3g::throwJava;
using varnel_m3g::toRawHandle;
using varnel_m3g::WriteArray;

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_RayIntersection_createRayIntersectionN(JNIEnv*,
                                                                                           jclass) {
  return toRawHandle(new RayIntersection);
}

JNIEXPORT void JNICALL
Java_javax_microedition_m3g_RayIntersection_destroyRayIntersectionN(JNIEnv*, jclass, jlong handle) {
  delete rawHandle<RayIntersection>(handle);
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_RayIntersection_getDistanceN(JNIEnv*, jobject,
                                                                                  jlong handle) {
  return rawHandle<RayIntersection>(handle)->getDistance();
}

JNIEXPORT jobject JNICALL
Java_javax_microedition_m3g_RayIntersection_getIntersectedN(JNIEnv* env, jobject, jlong handle) {
  return peerOrNull(env, rawHandle<RayIntersection>(handle)->getIntersected());
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_RayIntersection_getNormalXN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return rawHandle<RayIntersection>(handle)->getNormalX();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_RayIntersection_getNormalYN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return rawHandle<RayIntersection>(handle)->getNormalY();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_RayIntersection_getNormalZN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return rawHandle<RayIntersection>(handle)->getNormalZ();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_RayIntersection_getRayN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jfloatArray ray) {
  try {
    if (ray == nullptr) {
      rawHandle<RayIntersection>(handle)->getRay(nullptr);
    } else {
      const WriteArray<jfloat> elements(env, ray);
      rawHandle<RayIntersection>(handle)->getRay(elements.data());
    }
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_RayIntersection_getSubmeshIndexN(JNIEnv*,
                                                                                    jobject,
                                                                                    jlong handle) {
  return rawHandle<RayIntersection>(handle)->getSubmeshIndex();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_RayIntersection_getTextureSN(JNIEnv* env,
                                                                                  jobject,
                                                                                  jlong handle,
                                                                                  jint unit) {
  jfloat coordinate = 0.0f;
  try {
    coordinate = rawHandle<RayIntersection>(handle)->getTextureS(unit);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return coordinate;
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_RayIntersection_getTextureTN(JNIEnv* env,
                                                                                  jobject,
                                                                                  jlong handle,
                                                                                  jint unit) {
  jfloat coordinate = 0.0f;
  try {
    coordinate = rawHandle<RayIntersection>(handle)->getTextureT(unit);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return coordinate;
}

}  // extern "C"
