#include "binding/frame/frame.h"

namespace varnel_m3g {

void throwJava(JNIEnv* env, const char* className, const char* message) {
  const jclass exceptionClass = env->FindClass(className);
  if (exceptionClass == nullptr) {
    return;  // there is no local reference to delete, and the failed search is what Java sees
  }
  env->ThrowNew(exceptionClass, message);
  env->DeleteLocalRef(exceptionClass);
}

jobject newPeer(JNIEnv* env, const char* className, const Cell& object) {
  const jclass peerClass = env->FindClass(className);
  if (peerClass == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(peerClass, "<init>", "(J)V");
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject peer = env->NewObject(peerClass, constructor, toHandle(object));
  env->DeleteLocalRef(peerClass);
  return peer;
}

jobject Object3D::getJavaPeer(JNIEnv* env) {
  const jobject registered = env->NewLocalRef(javaPeer);
  return registered != nullptr ? registered : createJavaPeer(env);
}

}  // namespace varnel_m3g
