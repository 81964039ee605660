#ifndef VARNEL_BINDING_FRAME_FRAME_H
#define VARNEL_BINDING_FRAME_FRAME_H

#include <jni.h>

#include <boost/pointer_cast.hpp>
#include <boost/shared_ptr.hpp>
#include <cstdint>

#include "engine/object/object3d.h"

// What every native is made of. A handle is the address of a heap cell with a shared pointer, or of
// an object that has no such owner, as a Java long; 0 stands for Java's null.

namespace varnel_m3g {

/// The heap cell that a handle names: one strong count on an object.
using Cell = boost::shared_ptr<Object3D>;

/// The object of a cell as a T; empty for a zero handle and for an object of another class.
template <class T>
boost::shared_ptr<T> handleCast(jlong handle) {
  if (handle == 0) {
    return boost::shared_ptr<T>();
  }
  return boost::dynamic_pointer_cast<T>(
      *reinterpret_cast<const Cell*>(static_cast<std::intptr_t>(handle)));
}

/// The object of a cell, which must not be zero.
inline Object3D& cellObject(jlong handle) {
  return **reinterpret_cast<const Cell*>(static_cast<std::intptr_t>(handle));
}

/// A new cell that owns a strong count on `object`.
inline jlong toHandle(const Cell& object) {
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(new Cell(object)));
}

/// Frees a cell; does nothing for a zero handle.
inline void freeCell(jlong handle) {
  delete reinterpret_cast<Cell*>(static_cast<std::intptr_t>(handle));
}

/// The object of a handle without a cell: a Transform, a RayIntersection, the Graphics3D.
template <class T>
T* rawHandle(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}

/// The handle of such an object.
inline jlong toRawHandle(const void* object) {
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(object));
}

/// Makes a Java exception pending. When there is no such class, what the failed search for it left
/// pending stays instead.
void throwJava(JNIEnv* env, const char* className, const char* message);

/// A local reference to the object's Java peer; the object must not be empty.
template <class T>
jobject peerOf(JNIEnv* env, const boost::shared_ptr<T>& object) {
  return object->getJavaPeer(env);
}

/// The same, or null for an empty pointer.
template <class T>
jobject peerOrNull(JNIEnv* env, const boost::shared_ptr<T>& object) {
  return object ? object->getJavaPeer(env) : nullptr;
}

/// Makes a Java object of this class for `object`, by its constructor with a long, which gets a new
/// cell. Returns a local reference, or null with an exception pending.
jobject newPeer(JNIEnv* env, const char* className, const Cell& object);

}  // namespace varnel_m3g

#endif
