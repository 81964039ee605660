#include "engine/animation/animation_controller.h"

#include <jni.h>

#include "binding/frame/frame.h"

using varnel_m3g::AnimationController;
using varnel_m3g::handleCast;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject AnimationController::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/AnimationController", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL
Java_javax_microedition_m3g_AnimationController_createAnimationControllerN(JNIEnv*, jclass) {
  return toHandle(AnimationController::create());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_AnimationController_getActiveIntervalEndN(
    JNIEnv*, jobject, jlong handle) {
  return handleCast<AnimationController>(handle)->getActiveIntervalEnd();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_AnimationController_getActiveIntervalStartN(
    JNIEnv*, jobject, jlong handle) {
  return handleCast<AnimationController>(handle)->getActiveIntervalStart();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_AnimationController_getPositionN(
    JNIEnv*, jobject, jlong handle, jint worldTime) {
  return handleCast<AnimationController>(handle)->getPosition(worldTime);
}

JNIEXPORT jint JNICALL
Java_javax_microedition_m3g_AnimationController_getRefWorldTimeN(JNIEnv*, jobject, jlong handle) {
  return handleCast<AnimationController>(handle)->getRefWorldTime();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_AnimationController_getSpeedN(JNIEnv*, jobject,
                                                                                   jlong handle) {
  return handleCast<AnimationController>(handle)->getSpeed();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_AnimationController_getWeightN(JNIEnv*,
                                                                                    jobject,
                                                                                    jlong handle) {
  return handleCast<AnimationController>(handle)->getWeight();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_AnimationController_setActiveIntervalN(
    JNIEnv*, jobject, jlong handle, jint start, jint end) {
  handleCast<AnimationController>(handle)->setActiveInterval(start, end);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_AnimationController_setPositionN(
    JNIEnv*, jobject, jlong handle, jfloat sequenceTime, jint worldTime) {
  handleCast<AnimationController>(handle)->setPosition(sequenceTime, worldTime);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_AnimationController_setSpeedN(JNIEnv*, jobject,
                                                                                 jlong handle,
                                                                                 jfloat speed,
                                                                                 jint worldTime) {
  handleCast<AnimationController>(handle)->setSpeed(speed, worldTime);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_AnimationController_setWeightN(JNIEnv*, jobject,
                                                                                  jlong handle,
                                                                                  jfloat weight) {
  handleCast<AnimationController>(handle)->setWeight(weight);
}

}  // extern "C"
