#include "engine/scene/skinned_mesh.h"

#include <jni.h>

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/scene/group.h"
#include "engine/surface/appearance.h"

using varnel_m3g::Appearance;
using varnel_m3g::Group;
using varnel_m3g::HandleArray;
using varnel_m3g::handleCast;
using varnel_m3g::IndexBuffer;
using varnel_m3g::newPeer;
using varnel_m3g::Node;
using varnel_m3g::peerOrNull;
using varnel_m3g::rawHandle;
using varnel_m3g::SkinnedMesh;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::Transform;
using varnel_m3g::VertexBuffer;
using varnel_m3g::WriteArray;

jobject varnel_m3g::SkinnedMesh::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/SkinnedMesh", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_SkinnedMesh_createSkinnedMeshN__JJJJ(
    JNIEnv* env, jclass, jlong vertices, jlong submesh, jlong appearance, jlong skeleton) {
  jlong handle = 0;
  try {
    handle = toHandle(
        SkinnedMesh::create(handleCast<VertexBuffer>(vertices), handleCast<IndexBuffer>(submesh),
                            handleCast<Appearance>(appearance), handleCast<Group>(skeleton)));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
  return handle;
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_SkinnedMesh_createSkinnedMeshN__J_3J_3JJ(
    JNIEnv* env, jclass, jlong vertices, jlongArray submeshes, jlongArray appearances,
    jlong skeleton) {
  jlong handle = 0;
  try {
    const HandleArray<IndexBuffer> indices(env, submeshes);
    const HandleArray<Appearance> looks(env, appearances, indices.size());
    handle = toHandle(SkinnedMesh::create(handleCast<VertexBuffer>(vertices), indices.data(),
                                          looks.data(), static_cast<unsigned>(indices.size()),
                                          handleCast<Group>(skeleton)));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_SkinnedMesh_addTransformN(
    JNIEnv* env, jobject, jlong handle, jlong bone, jint weight, jint first, jint count) {
  try {
    handleCast<SkinnedMesh>(handle)->addTransform(handleCast<Node>(bone), weight, first, count);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_SkinnedMesh_getBoneTransformN(
    JNIEnv* env, jobject, jlong handle, jlong bone, jlong transform) {
  try {
    handleCast<SkinnedMesh>(handle)->getBoneTransform(handleCast<Node>(bone),
                                                      *rawHandle<Transform>(transform));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_SkinnedMesh_getBoneVerticesN(
    JNIEnv* env, jobject, jlong handle, jlong bone, jintArray indices, jfloatArray weights) {
  jint count = 0;
  try {
    std::optional<WriteArray<jint>> indexElements;
    std::optional<WriteArray<jfloat>> weightElements;
    jsize room = 0;
    if (indices != nullptr) {
      indexElements.emplace(env, indices);
      room = indexElements->size();
    }
    if (weights != nullptr) {
      weightElements.emplace(env, weights);
      room = indices == nullptr ? weightElements->size() : std::min(room, weightElements->size());
    }
    count = handleCast<SkinnedMesh>(handle)->getBoneVertices(
        handleCast<Node>(bone), indexElements ? indexElements->data() : nullptr,
        weightElements ? weightElements->data() : nullptr, room);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return count;
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_SkinnedMesh_getSkeletonN(JNIEnv* env, jobject,
                                                                               jlong handle) {
  return peerOrNull(env, handleCast<SkinnedMesh>(handle)->getSkeleton());
}

}  // extern "C"
