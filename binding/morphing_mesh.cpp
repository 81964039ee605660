#include "engine/scene/morphing_mesh.h"

#include <jni.h>

#include <optional>
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
using varnel_m3g::MorphingMesh;
using varnel_m3g::newPeer;
using varnel_m3g::peerOrNull;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::VertexBuffer;
using varnel_m3g::WriteArray;

jobject varnel_m3g::MorphingMesh::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/MorphingMesh", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_MorphingMesh_createMorphingMeshN__J_3JJJ(
    JNIEnv* env, jclass, jlong base, jlongArray targets, jlong submesh, jlong appearance) {
  jlong handle = 0;
  try {
    const HandleArray<VertexBuffer> shapes(env, targets);
    handle = toHandle(MorphingMesh::create(handleCast<VertexBuffer>(base), shapes.data(),
                                           shapes.size(), handleCast<IndexBuffer>(submesh),
                                           handleCast<Appearance>(appearance)));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
  return handle;
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_MorphingMesh_createMorphingMeshN__J_3J_3J_3J(
    JNIEnv* env, jclass, jlong base, jlongArray targets, jlongArray submeshes,
    jlongArray appearances) {
  jlong handle = 0;
  try {
    const HandleArray<VertexBuffer> shapes(env, targets);
    const HandleArray<IndexBuffer> indices(env, submeshes);
    const HandleArray<Appearance> looks(env, appearances, indices.size());
    handle = toHandle(MorphingMesh::create(handleCast<VertexBuffer>(base), shapes.data(),
                                           shapes.size(), indices.data(), looks.data(),
                                           static_cast<unsigned>(indices.size())));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_MorphingMesh_getMorphTargetCountN(JNIEnv*,
                                                                                     jobject,
                                                                                     jlong handle) {
  return handleCast<MorphingMesh>(handle)->getMorphTargetCount();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_MorphingMesh_getMorphTargetN(JNIEnv* env,
                                                                                   jobject,
                                                                                   jlong handle,
                                                                                   jint index) {
  jobject target = nullptr;
  try {
    target = peerOrNull(env, handleCast<MorphingMesh>(handle)->getMorphTarget(index));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return target;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_MorphingMesh_getWeightsN(JNIEnv* env, jobject,
                                                                            jlong handle,
                                                                            jfloatArray weights) {
  try {
    const boost::shared_ptr<MorphingMesh> mesh = handleCast<MorphingMesh>(handle);
    std::optional<WriteArray<jfloat>> elements;
    if (weights != nullptr) {
      if (env->GetArrayLength(weights) < mesh->getMorphTargetCount()) {
        throwJava(env, "java/lang/IllegalArgumentException", "Weights array is too short");
        return;
      }
      elements.emplace(env, weights);
    }
    mesh->getWeights(elements ? elements->data() : nullptr);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_MorphingMesh_setWeightsN(JNIEnv* env, jobject,
                                                                            jlong handle,
                                                                            jfloatArray weights) {
  try {
    const boost::shared_ptr<MorphingMesh> mesh = handleCast<MorphingMesh>(handle);
    std::optional<ReadArray<jfloat>> elements;
    if (weights != nullptr) {
      if (env->GetArrayLength(weights) < mesh->getMorphTargetCount()) {
        throwJava(env, "java/lang/IllegalArgumentException", "Weights array is too short");
        return;
      }
      elements.emplace(env, weights);
    }
    mesh->setWeights(elements ? elements->data() : nullptr);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
}

}  // extern "C"
