#include "engine/scene/mesh.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/surface/appearance.h"

using varnel_m3g::Appearance;
using varnel_m3g::HandleArray;
using varnel_m3g::handleCast;
using varnel_m3g::IndexBuffer;
using varnel_m3g::Mesh;
using varnel_m3g::newPeer;
using varnel_m3g::peerOf;
using varnel_m3g::peerOrNull;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::VertexBuffer;

jobject varnel_m3g::Mesh::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Mesh", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Mesh_createMeshN__JJJ(JNIEnv* env, jclass,
                                                                          jlong vertices,
                                                                          jlong submesh,
                                                                          jlong appearance) {
  jlong handle = 0;
  try {
    handle =
        toHandle(Mesh::create(handleCast<VertexBuffer>(vertices), handleCast<IndexBuffer>(submesh),
                              handleCast<Appearance>(appearance)));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
  return handle;
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Mesh_createMeshN__J_3J_3J(
    JNIEnv* env, jclass, jlong vertices, jlongArray submeshes, jlongArray appearances) {
  jlong handle = 0;
  try {
    const HandleArray<IndexBuffer> indices(env, submeshes);
    const HandleArray<Appearance> looks(env, appearances, indices.size());
    handle = toHandle(Mesh::create(handleCast<VertexBuffer>(vertices), indices.data(), looks.data(),
                                   static_cast<unsigned>(indices.size())));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Mesh_getAppearanceN(JNIEnv* env, jobject,
                                                                          jlong handle,
                                                                          jint index) {
  jobject appearance = nullptr;
  try {
    appearance = peerOrNull(env, handleCast<Mesh>(handle)->getAppearance(index));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return appearance;
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Mesh_getIndexBufferN(JNIEnv* env, jobject,
                                                                           jlong handle,
                                                                           jint index) {
  jobject submesh = nullptr;
  try {
    submesh = peerOrNull(env, handleCast<Mesh>(handle)->getIndexBuffer(index));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return submesh;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Mesh_getSubmeshCountN(JNIEnv*, jobject,
                                                                         jlong handle) {
  return static_cast<jint>(handleCast<Mesh>(handle)->getSubmeshCount());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Mesh_getVertexBufferN(JNIEnv* env, jobject,
                                                                            jlong handle) {
  return peerOf(env, handleCast<Mesh>(handle)->getVertexBuffer());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Mesh_setAppearanceN(JNIEnv* env, jobject,
                                                                       jlong handle, jint index,
                                                                       jlong appearance) {
  try {
    handleCast<Mesh>(handle)->setAppearance(index, handleCast<Appearance>(appearance));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
}

}  // extern "C"
