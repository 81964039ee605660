#ifndef VARNEL_BINDING_FRAME_ARRAYS_H
#define VARNEL_BINDING_FRAME_ARRAYS_H

#include <jni.h>

#include <algorithm>
#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <memory>

#include "binding/frame/frame.h"

// Views of Java arrays that last as long as the native's block.

namespace varnel_m3g {

/// How the elements of one type are fetched and given back.
template <class T>
struct ArrayAccess;

template <>
struct ArrayAccess<jbyte> {
  using Array = jbyteArray;
  static constexpr auto get = &JNIEnv::GetByteArrayElements;
  static constexpr auto release = &JNIEnv::ReleaseByteArrayElements;
};

template <>
struct ArrayAccess<jshort> {
  using Array = jshortArray;
  static constexpr auto get = &JNIEnv::GetShortArrayElements;
  static constexpr auto release = &JNIEnv::ReleaseShortArrayElements;
};

template <>
struct ArrayAccess<jint> {
  using Array = jintArray;
  static constexpr auto get = &JNIEnv::GetIntArrayElements;
  static constexpr auto release = &JNIEnv::ReleaseIntArrayElements;
};

template <>
struct ArrayAccess<jlong> {
  using Array = jlongArray;
  static constexpr auto get = &JNIEnv::GetLongArrayElements;
  static constexpr auto release = &JNIEnv::ReleaseLongArrayElements;
};

template <>
struct ArrayAccess<jfloat> {
  using Array = jfloatArray;
  static constexpr auto get = &JNIEnv::GetFloatArrayElements;
  static constexpr auto release = &JNIEnv::ReleaseFloatArrayElements;
};

/// The elements of a Java array, released with `mode` at the end of the block; for a null array a
/// null pointer and a size of 0.
template <class T, class Element, jint mode>
class ArrayView {
 public:
  using Array = typename ArrayAccess<T>::Array;

  ArrayView(JNIEnv* env, Array array)
      : env(env),
        array(array),
        length(array == nullptr ? 0 : env->GetArrayLength(array)),
        elements(array == nullptr ? nullptr : (env->*ArrayAccess<T>::get)(array, nullptr)) {
    // A machine out of memory gives no elements: then there is nothing to read or fill.
    if (elements == nullptr) {
      length = 0;
    }
  }

  ~ArrayView() {
    if (elements != nullptr) {
      (env->*ArrayAccess<T>::release)(array, elements, mode);
    }
  }

  ArrayView(const ArrayView&) = delete;
  ArrayView& operator=(const ArrayView&) = delete;

  Element* data() const { return elements; }
  jsize size() const { return length; }
  Element& operator[](jsize index) const { return elements[index]; }

 private:
  JNIEnv* env;
  Array array;
  jsize length;
  T* elements;
};

/// An array that is only read: nothing is copied back.
template <class T>
using ReadArray = ArrayView<T, const T, JNI_ABORT>;

/// An array that is filled: its elements are copied back, also when an exception leaves the block.
template <class T>
using WriteArray = ArrayView<T, T, 0>;

/// An array of handles as the objects that they name; empty where a handle is zero or names an
/// object of another class. A null array has no data. Behind a shorter array than `least` stand
/// empty objects.
template <class T>
class HandleArray {
 public:
  HandleArray(JNIEnv* env, jlongArray array, jsize least = 0) {
    if (array == nullptr) {
      return;
    }
    const ReadArray<jlong> handles(env, array);
    length = handles.size();
    objects.reset(new boost::shared_ptr<T>[static_cast<std::size_t>(std::max(length, least))]);
    for (jsize i = 0; i < length; ++i) {
      objects[static_cast<std::size_t>(i)] = handleCast<T>(handles[i]);
    }
  }

  HandleArray(const HandleArray&) = delete;
  HandleArray& operator=(const HandleArray&) = delete;

  boost::shared_ptr<T>* data() const { return objects.get(); }
  jsize size() const { return length; }

 private:
  jsize length = 0;
  std::unique_ptr<boost::shared_ptr<T>[]> objects;
};

}  // namespace varnel_m3g

#endif
