#include "engine/animation/animation_track.h"

#include <jni.h>

#include "binding/frame/frame.h"
#include "engine/animation/animation_controller.h"
#include "engine/animation/keyframe_sequence.h"

using varnel_m3g::AnimationController;
using varnel_m3g::AnimationTrack;
using varnel_m3g::handleCast;
using varnel_m3g::KeyframeSequence;
using varnel_m3g::peerOrNull;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject AnimationTrack::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/AnimationTrack", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_AnimationTrack_createAnimationTrackN(
    JNIEnv*, jclass, jlong sequence, jint property) {
  return toHandle(AnimationTrack::create(handleCast<KeyframeSequence>(sequence), property));
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_AnimationTrack_getControllerN(JNIEnv* env,
                                                                                    jobject,
                                                                                    jlong handle) {
  return peerOrNull(env, handleCast<AnimationTrack>(handle)->getController());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_AnimationTrack_getKeyframeSequenceN(
    JNIEnv* env, jobject, jlong handle) {
  return peerOrNull(env, handleCast<AnimationTrack>(handle)->getKeyframeSequence());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_AnimationTrack_getTargetPropertyN(JNIEnv*,
                                                                                     jobject,
                                                                                     jlong handle) {
  return handleCast<AnimationTrack>(handle)->getTargetProperty();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_AnimationTrack_setControllerN(JNIEnv*, jobject,
                                                                                 jlong handle,
                                                                                 jlong controller) {
  handleCast<AnimationTrack>(handle)->setController(handleCast<AnimationController>(controller));
}

}  // extern "C"
