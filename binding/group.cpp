#include "engine/scene/group.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/scene/camera.h"
#include "engine/scene/ray_intersection.h"

using varnel_m3g::Camera;
using varnel_m3g::Group;
using varnel_m3g::handleCast;
using varnel_m3g::newPeer;
using varnel_m3g::Node;
using varnel_m3g::peerOf;
using varnel_m3g::rawHandle;
using varnel_m3g::RayIntersection;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

jobject varnel_m3g::Group::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Group", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Group_createGroupN(JNIEnv*, jclass) {
  return toHandle(Group::create());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Group_addChildN(JNIEnv* env, jobject,
                                                                   jlong handle, jlong child) {
  try {
    handleCast<Group>(handle)->addChild(handleCast<Node>(child));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Group_getChildCountN(JNIEnv*, jobject,
                                                                        jlong handle) {
  return static_cast<jint>(handleCast<Group>(handle)->getChildCount());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Group_getChildN(JNIEnv* env, jobject,
                                                                      jlong handle, jint index) {
  jobject peer = nullptr;
  try {
    boost::shared_ptr<Node> child;
    handleCast<Group>(handle)->getChild(child, static_cast<unsigned>(index));
    peer = peerOf(env, child);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return peer;
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Group_pickN__JIFFFFFFJ(
    JNIEnv* env, jobject, jlong handle, jint scope, jfloat ox, jfloat oy, jfloat oz, jfloat dx,
    jfloat dy, jfloat dz, jlong result) {
  jboolean hit = JNI_FALSE;
  try {
    hit = handleCast<Group>(handle)->pick(scope, ox, oy, oz, dx, dy, dz,
                                          rawHandle<RayIntersection>(result));
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return hit;
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Group_pickN__JIFFJJ(JNIEnv* env, jobject,
                                                                           jlong handle, jint scope,
                                                                           jfloat x, jfloat y,
                                                                           jlong camera,
                                                                           jlong result) {
  jboolean hit = JNI_FALSE;
  try {
    hit = handleCast<Group>(handle)->pickThroughCamera(scope, x, y, handleCast<Camera>(camera),
                                                       rawHandle<RayIntersection>(result));
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return hit;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Group_removeChildN(JNIEnv* env, jobject,
                                                                      jlong handle, jlong child) {
  try {
    handleCast<Group>(handle)->removeChild(handleCast<Node>(child));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

}  // extern "C"
