#include "engine/geometry/index_buffer.h"

#include <jni.h>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::IndexBuffer;
using varnel_m3g::throwJava;
using varnel_m3g::WriteArray;

extern "C" {

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_IndexBuffer_getIndexCountN(JNIEnv*, jobject,
                                                                              jlong handle) {
  return handleCast<IndexBuffer>(handle)->getIndexCount();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_IndexBuffer_getIndicesN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jintArray indices) {
  const boost::shared_ptr<IndexBuffer> buffer = handleCast<IndexBuffer>(handle);
  if (indices == nullptr || env->GetArrayLength(indices) < buffer->getIndexCount()) {
    throwJava(env, "java/lang/IllegalArgumentException",
              "Array passed to getIndices is too short.");
    return;
  }
  const WriteArray<jint> elements(env, indices);
  buffer->getIndices(elements.data());
}

}  // extern "C"
