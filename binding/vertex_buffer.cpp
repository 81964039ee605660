#include "engine/geometry/vertex_buffer.h"

#include <jni.h>

#include <algorithm>
#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "engine/geometry/vertex_array.h"

using varnel_m3g::handleCast;
using varnel_m3g::peerOrNull;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::VertexArray;
using varnel_m3g::VertexBuffer;
using varnel_m3g::WriteArray;

namespace {

// A bias from Java: three floats, zero where the array ends; null for a null array.
class Bias {
 public:
  Bias(JNIEnv* env, jfloatArray array) : isNull(array == nullptr) {
    const ReadArray<jfloat> given(env, array);
    std::copy_n(given.data(), std::min<jsize>(given.size(), 3), elements);
  }

  const float* data() const { return isNull ? nullptr : elements; }

 private:
  bool isNull;
  float elements[3] = {0.0f, 0.0f, 0.0f};
};

// Copies scale and bias to as many elements as the Java array has; none of a null array.
void giveBack(JNIEnv* env, jfloatArray array, const float* scaleBias) {
  const WriteArray<jfloat> target(env, array);
  std::copy_n(scaleBias, std::min<jsize>(target.size(), 4), target.data());
}

}  // namespace

namespace varnel_m3g {

jobject VertexBuffer::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/VertexBuffer", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_VertexBuffer_createVertexBufferN(JNIEnv*,
                                                                                     jclass) {
  return toHandle(VertexBuffer::create());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_VertexBuffer_getColorsN(JNIEnv* env, jobject,
                                                                              jlong handle) {
  return peerOrNull(env, handleCast<VertexBuffer>(handle)->getColors());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_VertexBuffer_getDefaultColorN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return handleCast<VertexBuffer>(handle)->getDefaultColor();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_VertexBuffer_getNormalsN(JNIEnv* env, jobject,
                                                                               jlong handle) {
  return peerOrNull(env, handleCast<VertexBuffer>(handle)->getNormals());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_VertexBuffer_getPositionsN(
    JNIEnv* env, jobject, jlong handle, jfloatArray scaleBias) {
  float values[4];
  const boost::shared_ptr<VertexArray> positions =
      handleCast<VertexBuffer>(handle)->getPositions(values);
  giveBack(env, scaleBias, values);
  return peerOrNull(env, positions);
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_VertexBuffer_getTexCoordsN(
    JNIEnv* env, jobject, jlong handle, jint index, jfloatArray scaleBias) {
  jobject peer = nullptr;
  try {
    float values[4];
    const boost::shared_ptr<VertexArray> texCoords =
        handleCast<VertexBuffer>(handle)->getTexCoords(index, values);
    giveBack(env, scaleBias, values);
    peer = peerOrNull(env, texCoords);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return peer;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_VertexBuffer_getVertexCountN(JNIEnv*, jobject,
                                                                                jlong handle) {
  return handleCast<VertexBuffer>(handle)->getVertexCount();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexBuffer_setColorsN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jlong colors) {
  try {
    handleCast<VertexBuffer>(handle)->setColors(handleCast<VertexArray>(colors));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexBuffer_setDefaultColorN(JNIEnv*, jobject,
                                                                                 jlong handle,
                                                                                 jint argb) {
  handleCast<VertexBuffer>(handle)->setDefaultColor(argb);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexBuffer_setNormalsN(JNIEnv* env, jobject,
                                                                            jlong handle,
                                                                            jlong normals) {
  try {
    handleCast<VertexBuffer>(handle)->setNormals(handleCast<VertexArray>(normals));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexBuffer_setPositionsN(
    JNIEnv* env, jobject, jlong handle, jlong positions, jfloat scale, jfloatArray bias) {
  try {
    const Bias values(env, bias);
    handleCast<VertexBuffer>(handle)->setPositions(handleCast<VertexArray>(positions), scale,
                                                   values.data());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_VertexBuffer_setTexCoordsN(
    JNIEnv* env, jobject, jlong handle, jint index, jlong texCoords, jfloat scale,
    jfloatArray bias) {
  try {
    const Bias values(env, bias);
    handleCast<VertexBuffer>(handle)->setTexCoords(index, handleCast<VertexArray>(texCoords), scale,
                                                   values.data());
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

}  // extern "C"
