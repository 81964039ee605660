#include "engine/animation/keyframe_sequence.h"

#include <jni.h>

#include <optional>
#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::KeyframeSequence;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::WriteArray;

namespace varnel_m3g {

jobject KeyframeSequence::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/KeyframeSequence", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_KeyframeSequence_createKeyframeSequence(
    JNIEnv* env, jclass, jint keyframes, jint components, jint interpolation) {
  jlong handle = 0;
  try {
    if (interpolation < KeyframeSequence::LINEAR || interpolation > KeyframeSequence::STEP) {
      throwJava(env, "java/lang/IllegalArgumentException",
                "Invalid interpolation mode in KeyframeSequence constructor");
      return 0;
    }
    handle = toHandle(KeyframeSequence::create(keyframes, components, interpolation));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jint JNICALL
Java_javax_microedition_m3g_KeyframeSequence_getComponentCountN(JNIEnv*, jobject, jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getComponentCount();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_KeyframeSequence_getDurationN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getDuration();
}

JNIEXPORT jint JNICALL
Java_javax_microedition_m3g_KeyframeSequence_getInterpolationTypeN(JNIEnv*, jobject, jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getInterpolationType();
}

JNIEXPORT jint JNICALL
Java_javax_microedition_m3g_KeyframeSequence_getKeyframeCountN(JNIEnv*, jobject, jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getKeyframeCount();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_KeyframeSequence_getKeyframeN(
    JNIEnv* env, jobject, jlong handle, jint index, jfloatArray value) {
  jint time = 0;
  try {
    const boost::shared_ptr<KeyframeSequence> sequence = handleCast<KeyframeSequence>(handle);
    std::optional<WriteArray<jfloat>> elements;
    if (value != nullptr) {
      if (env->GetArrayLength(value) < sequence->getComponentCount()) {
        throwJava(env, "java/lang/IllegalArgumentException", "Keyframe too short");
        return 0;
      }
      elements.emplace(env, value);
    }
    time = sequence->getKeyframe(index, elements ? elements->data() : nullptr);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return time;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_KeyframeSequence_getRepeatModeN(JNIEnv*, jobject,
                                                                                   jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getRepeatMode();
}

JNIEXPORT jint JNICALL
Java_javax_microedition_m3g_KeyframeSequence_getValidRangeFirstN(JNIEnv*, jobject, jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getValidRangeFirst();
}

JNIEXPORT jint JNICALL
Java_javax_microedition_m3g_KeyframeSequence_getValidRangeLastN(JNIEnv*, jobject, jlong handle) {
  return handleCast<KeyframeSequence>(handle)->getValidRangeLast();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_KeyframeSequence_setDurationN(JNIEnv* env,
                                                                                 jobject,
                                                                                 jlong handle,
                                                                                 jint duration) {
  try {
    handleCast<KeyframeSequence>(handle)->setDuration(duration);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_KeyframeSequence_setKeyframeN(
    JNIEnv* env, jobject, jlong handle, jint index, jint time, jfloatArray value) {
  try {
    const boost::shared_ptr<KeyframeSequence> sequence = handleCast<KeyframeSequence>(handle);
    if (value == nullptr) {
      throwJava(env, "java/lang/NullPointerException", "null value array to setKeyframe");
      return;
    }
    if (env->GetArrayLength(value) < sequence->getComponentCount()) {
      throwJava(env, "java/lang/IllegalArgumentException",
                "Value array to setKeyframe is too short.");
      return;
    }
    const ReadArray<jfloat> elements(env, value);
    sequence->setKeyframe(index, time, elements.data());
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_KeyframeSequence_setRepeatModeN(JNIEnv* env,
                                                                                   jobject,
                                                                                   jlong handle,
                                                                                   jint mode) {
  if (mode != KeyframeSequence::CONSTANT && mode != KeyframeSequence::LOOP) {
    throwJava(env, "java/lang/IllegalArgumentException", "Bad repeat mode for setRepeatMode");
    return;
  }
  handleCast<KeyframeSequence>(handle)->setRepeatMode(mode);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_KeyframeSequence_setValidRangeN(
    JNIEnv* env, jobject, jlong handle, jint first, jint last) {
  try {
    handleCast<KeyframeSequence>(handle)->setValidRange(first, last);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
}

}  // extern "C"
