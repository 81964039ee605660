#include "binding/frame/java_user_object.h"

#include "engine/object/java_reference.h"

JavaUserObject::JavaUserObject(JNIEnv* env, jobject object) {
  if (object != nullptr) {
    reference = env->NewGlobalRef(object);
    env->GetJavaVM(&javaVM);
  }
}

JavaUserObject::~JavaUserObject() {
  if (reference != nullptr && javaVM != nullptr) {
    varnel_m3g::dropGlobalReference(javaVM, reference, varnel_m3g::Detach::Always);
  }
}
