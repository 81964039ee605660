#include "engine/geometry/vertex_array.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::VertexArray;
using varnel_m3g::WriteArray;

namespace {

bool isTooShort(jsize length, const VertexArray& array, jint numVertices) {
  return length < static_cast<jlong>(array.getComponentCount()) * numVertices;
}

}  // namespace

namespace varnel_m3g {

jobject VertexArray::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/VertexArray", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_VertexArray_createVertexArrayN(
    JNIEnv* env, jclass, jint numVertices, jint numComponents, jint componentSize) {
  jlong handle = 0;
  try {
    handle = toHandle(VertexArray::create(numVertices, numComponents, componentSize));
  } catch (const std::invalid_argument&) {
    throwJava(env, "java/lang/IllegalArgumentException", "Bad values to VertexArray constructor");
  }
  return handle;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_VertexArray_getComponentCountN(JNIEnv*, jobject,
                                                                                  jlong handle) {
  return handleCast<VertexArray>(handle)->getComponentCount();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_VertexArray_getComponentTypeN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return handleCast<VertexArray>(handle)->getComponentType();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexArray_getN__JII_3B(
    JNIEnv* env, jobject, jlong handle, jint firstVertex, jint numVertices, jbyteArray values) {
  try {
    const boost::shared_ptr<VertexArray> array = handleCast<VertexArray>(handle);
    if (values != nullptr && isTooShort(env->GetArrayLength(values), *array, numVertices)) {
      throwJava(env, "java/lang/IllegalArgumentException", "Values array is too short");
      return;
    }
    const WriteArray<jbyte> elements(env, values);
    array->get(firstVertex, numVertices, elements.data());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::logic_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexArray_getN__JII_3S(
    JNIEnv* env, jobject, jlong handle, jint firstVertex, jint numVertices, jshortArray values) {
  try {
    const boost::shared_ptr<VertexArray> array = handleCast<VertexArray>(handle);
    if (values != nullptr && isTooShort(env->GetArrayLength(values), *array, numVertices)) {
      throwJava(env, "java/lang/IllegalArgumentException", "Values array is too short");
      return;
    }
    const WriteArray<jshort> elements(env, values);
    array->get(firstVertex, numVertices, elements.data());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::logic_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_VertexArray_getVertexCountN(JNIEnv*, jobject,
                                                                               jlong handle) {
  return handleCast<VertexArray>(handle)->getVertexCount();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexArray_setN__JII_3B(
    JNIEnv* env, jobject, jlong handle, jint firstVertex, jint numVertices, jbyteArray values) {
  try {
    const boost::shared_ptr<VertexArray> array = handleCast<VertexArray>(handle);
    if (values != nullptr && isTooShort(env->GetArrayLength(values), *array, numVertices)) {
      throwJava(env, "java/lang/IllegalArgumentException", "Insufficient data to VertexArray");
      return;
    }
    const ReadArray<jbyte> elements(env, values);
    array->set(firstVertex, numVertices, elements.data());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::logic_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexArray_setN__JII_3S(
    JNIEnv* env, jobject, jlong handle, jint firstVertex, jint numVertices, jshortArray values) {
  try {
    const boost::shared_ptr<VertexArray> array = handleCast<VertexArray>(handle);
    if (values != nullptr && isTooShort(env->GetArrayLength(values), *array, numVertices)) {
      throwJava(env, "java/lang/IllegalArgumentException", "Insufficient data to VertexArray");
      return;
    }
    const ReadArray<jshort> elements(env, values);
    array->set(firstVertex, numVertices, elements.data());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::logic_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

}  // extern "C"
