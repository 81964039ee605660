#ifndef VARNEL_BINDING_FRAME_JAVA_USER_OBJECT_H
#define VARNEL_BINDING_FRAME_JAVA_USER_OBJECT_H

#include <jni.h>

#include "engine/object/user_object.h"

/// A Java object that an application has attached to an engine object, held by a global reference.
class JavaUserObject : public varnel_m3g::UserObject {
 public:
  /// `object` may be null; the virtual machine is remembered only when it is not.
  JavaUserObject(JNIEnv* env, jobject object);

  /// Detaches the thread in every case after it has deleted the reference.
  ~JavaUserObject() override;

  /// The global reference itself, or null.
  jobject getReference() const { return reference; }

 private:
  jobject reference = nullptr;
  JavaVM* javaVM = nullptr;
};

#endif
