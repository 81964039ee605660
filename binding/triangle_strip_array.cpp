#include "engine/geometry/triangle_strip_array.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::TriangleStripArray;

namespace varnel_m3g {

jobject TriangleStripArray::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/TriangleStripArray", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL
Java_javax_microedition_m3g_TriangleStripArray_createTriangleStripArrayN__I_3I(
    JNIEnv* env, jclass, jint firstIndex, jintArray stripLengths) {
  jlong handle = 0;
  try {
    const ReadArray<jint> lengths(env, stripLengths);
    handle = toHandle(TriangleStripArray::create(firstIndex, lengths.data(), lengths.size()));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jlong JNICALL
Java_javax_microedition_m3g_TriangleStripArray_createTriangleStripArrayN___3I_3I(
    JNIEnv* env, jclass, jintArray indices, jintArray stripLengths) {
  jlong handle = 0;
  try {
    const ReadArray<jint> elements(env, indices);
    const ReadArray<jint> lengths(env, stripLengths);
    handle = toHandle(TriangleStripArray::create(elements.data(), elements.size(), lengths.data(),
                                                 lengths.size()));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

}  // extern "C"
