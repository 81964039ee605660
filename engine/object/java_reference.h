#ifndef VARNEL_ENGINE_OBJECT_JAVA_REFERENCE_H
#define VARNEL_ENGINE_OBJECT_JAVA_REFERENCE_H

#include "engine/object/java_types.h"

namespace varnel_m3g {

/// When the thread that dropped a global reference is detached from the virtual machine.
enum class Detach {
  IfAttachedHere,  ///< only when dropping the reference had to attach it
  Always,
};

/// Deletes a global reference from any thread, also one that the virtual machine does not know.
/// Does nothing when the machine is gone.
void dropGlobalReference(JavaVM* javaVM, jobject reference, Detach detach);

}  // namespace varnel_m3g

#endif
