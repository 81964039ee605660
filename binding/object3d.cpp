#include "engine/object/object3d.h"

#include <jni.h>

#include <boost/make_shared.hpp>
#include <boost/pointer_cast.hpp>
#include <cstddef>
#include <memory>
#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "binding/frame/java_user_object.h"
#include "engine/animation/animation_track.h"

using varnel_m3g::AnimationTrack;
using varnel_m3g::cellObject;
using varnel_m3g::freeCell;
using varnel_m3g::handleCast;
using varnel_m3g::Object3D;
using varnel_m3g::peerOf;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

extern "C" {

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_addAnimationTrackN(JNIEnv*, jobject,
                                                                               jlong handle,
                                                                               jlong track) {
  cellObject(handle).addAnimationTrack(handleCast<AnimationTrack>(track));
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Object3D_animateN(JNIEnv* env, jobject,
                                                                     jlong handle, jint time) {
  jint validity = 0;
  try {
    validity = cellObject(handle).animate(time);
  } catch (const std::logic_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
  return validity;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_destroyObject3DN(JNIEnv*, jobject,
                                                                             jlong handle) {
  freeCell(handle);
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Object3D_duplicateN(JNIEnv* env, jobject,
                                                                          jlong handle) {
  // The cell is the clone's for good: no handle of it reaches Java.
  const boost::shared_ptr<Object3D> clone = cellObject(handle).duplicate();
  toHandle(clone);
  return peerOf(env, clone);
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Object3D_findN(JNIEnv* env, jobject,
                                                                     jlong handle, jint userID) {
  return peerOf(env, cellObject(handle).find(userID));
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Object3D_getAnimationTrackCountN(JNIEnv*,
                                                                                    jobject,
                                                                                    jlong handle) {
  return static_cast<jint>(cellObject(handle).getAnimationTrackCount());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Object3D_getAnimationTrackN(JNIEnv* env,
                                                                                  jobject,
                                                                                  jlong handle,
                                                                                  jint index) {
  return peerOf(env, cellObject(handle).getAnimationTrack(static_cast<unsigned>(index)));
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Object3D_getReferencesN(
    JNIEnv* env, jobject, jlong handle, jobjectArray references) {
  if (references == nullptr) {
    return static_cast<jint>(cellObject(handle).getReferences(nullptr, 0));
  }
  unsigned count = 0;
  try {
    const unsigned max = static_cast<unsigned>(env->GetArrayLength(references));
    const std::unique_ptr<boost::shared_ptr<Object3D>[]> found(
        new boost::shared_ptr<Object3D>[max]);
    count = cellObject(handle).getReferences(found.get(), max);
    for (unsigned i = 0; i < count; ++i) {
      const jobject peer = peerOf(env, found[i]);
      env->SetObjectArrayElement(references, static_cast<jsize>(i), peer);
      env->DeleteLocalRef(peer);
    }
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return static_cast<jint>(count);
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Object3D_getUserIDN(JNIEnv*, jobject,
                                                                       jlong handle) {
  return cellObject(handle).getUserID();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Object3D_getUserObjectN(JNIEnv*, jobject,
                                                                              jlong handle) {
  const boost::shared_ptr<JavaUserObject> object =
      boost::dynamic_pointer_cast<JavaUserObject>(cellObject(handle).getUserObject());
  // The parameters of a loaded object are no Java object.
  return object ? object->getReference() : nullptr;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_removeAnimationTrackN(JNIEnv*, jobject,
                                                                                  jlong handle,
                                                                                  jlong track) {
  cellObject(handle).removeAnimationTrack(handleCast<AnimationTrack>(track));
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_setBackReference(JNIEnv* env,
                                                                             jobject self,
                                                                             jlong handle) {
  cellObject(handle).setBackReference(env, self);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_setUserIDN(JNIEnv*, jobject,
                                                                       jlong handle, jint userID) {
  cellObject(handle).setUserID(userID);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_setUserObjectN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jobject object) {
  cellObject(handle).setUserObject(boost::make_shared<JavaUserObject>(env, object));
}

}  // extern "C"
