#include "engine/scene/node.h"

#include <jni.h>

#include <cstring>
#include <stdexcept>

#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::Node;
using varnel_m3g::peerOrNull;
using varnel_m3g::rawHandle;
using varnel_m3g::throwJava;
using varnel_m3g::Transform;

extern "C" {

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Node_alignN(JNIEnv* env, jobject, jlong handle,
                                                               jlong reference) {
  try {
    handleCast<Node>(handle)->align(handleCast<Node>(reference));
  } catch (const std::runtime_error& e) {
    const bool fromAlign = std::strncmp(e.what(), "Node.align", 10) == 0;
    throwJava(env, fromAlign ? "java/lang/ArithmeticException" : "java/lang/IllegalStateException",
              e.what());
  }
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Node_getAlignmentReferenceN(JNIEnv* env,
                                                                                  jobject,
                                                                                  jlong handle,
                                                                                  jint axis) {
  jobject reference = nullptr;
  try {
    reference = peerOrNull(env, handleCast<Node>(handle)->getAlignmentReference(axis));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return reference;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Node_getAlignmentTargetN(JNIEnv* env, jobject,
                                                                            jlong handle,
                                                                            jint axis) {
  jint target = 0;
  try {
    target = handleCast<Node>(handle)->getAlignmentTarget(axis);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return target;
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Node_getAlphaFactorN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Node>(handle)->getAlphaFactor();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Node_getParentN(JNIEnv* env, jobject,
                                                                      jlong handle) {
  return peerOrNull(env, handleCast<Node>(handle)->getParent());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Node_getScopeN(JNIEnv*, jobject, jlong handle) {
  return handleCast<Node>(handle)->getScope();
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Node_getTransformToN(JNIEnv* env, jobject,
                                                                            jlong handle,
                                                                            jlong target,
                                                                            jlong transform) {
  jboolean related = JNI_FALSE;
  try {
    related = handleCast<Node>(handle)->getTransformTo(handleCast<Node>(target),
                                                       *rawHandle<Transform>(transform));
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/InvalidArgument", e.what());
  }
  return related;
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Node_isPickingEnabledN(JNIEnv*, jobject,
                                                                              jlong handle) {
  return handleCast<Node>(handle)->isPickingEnabled();
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Node_isRenderingEnabledN(JNIEnv*, jobject,
                                                                                jlong handle) {
  return handleCast<Node>(handle)->isRenderingEnabled();
}

JNIEXPORT void JNICALL
Java_javax_microedition_m3g_Node_setAlignmentN(JNIEnv* env, jobject, jlong handle, jlong zReference,
                                               jint zTarget, jlong yReference, jint yTarget) {
  try {
    handleCast<Node>(handle)->setAlignment(handleCast<Node>(zReference), zTarget,
                                           handleCast<Node>(yReference), yTarget);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Node_setAlphaFactorN(JNIEnv* env, jobject,
                                                                        jlong handle,
                                                                        jfloat factor) {
  try {
    handleCast<Node>(handle)->setAlphaFactor(factor);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Node_setPickingEnableN(JNIEnv*, jobject,
                                                                          jlong handle,
                                                                          jboolean enable) {
  handleCast<Node>(handle)->setPickingEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Node_setRenderingEnableN(JNIEnv*, jobject,
                                                                            jlong handle,
                                                                            jboolean enable) {
  handleCast<Node>(handle)->setRenderingEnable(enable != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Node_setScopeN(JNIEnv*, jobject, jlong handle,
                                                                  jint scope) {
  handleCast<Node>(handle)->setScope(scope);
}

}  // extern "C"
