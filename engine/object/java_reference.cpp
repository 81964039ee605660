#include "engine/object/java_reference.h"

#include <jni.h>

#include "engine/object/object3d.h"

namespace varnel_m3g {

void dropGlobalReference(JavaVM* javaVM, jobject reference, Detach detach) {
  constexpr jint version = 0x10001;
  constexpr int attempts = 3;
  void* env = nullptr;
  jint result = JNI_ERR;
  for (int attempt = 0; attempt < attempts && result != JNI_OK; ++attempt) {
    result = javaVM->GetEnv(&env, version);
  }
  bool attached = false;
  if (result != JNI_OK) {
    attached = javaVM->AttachCurrentThread(&env, nullptr) == JNI_OK;
    if (!attached) {
      return;  // the machine has ended, and its references with it
    }
  }
  static_cast<JNIEnv*>(env)->DeleteGlobalRef(reference);
  if (attached || detach == Detach::Always) {
    // Refused, without harm, on a thread that has Java frames below it.
    javaVM->DetachCurrentThread();
  }
}

void Object3D::setBackReference(JNIEnv* env, jobject peer) {
  if (javaVM == nullptr) {
    env->GetJavaVM(&javaVM);
  }
  if (javaPeer != nullptr) {
    env->DeleteGlobalRef(javaPeer);
  }
  javaPeer = env->NewGlobalRef(peer);
}

}  // namespace varnel_m3g
