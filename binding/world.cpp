#include "engine/scene/world.h"

#include <jni.h>

#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/scene/camera.h"
#include "engine/surface/background.h"

using varnel_m3g::Background;
using varnel_m3g::Camera;
using varnel_m3g::handleCast;
using varnel_m3g::newPeer;
using varnel_m3g::peerOrNull;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;
using varnel_m3g::World;

jobject varnel_m3g::World::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/World", shared_from_this());
}

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_World_createWorld(JNIEnv*, jclass) {
  return toHandle(World::create());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_World_getActiveCameraN(JNIEnv* env, jobject,
                                                                             jlong handle) {
  return peerOrNull(env, handleCast<World>(handle)->getActiveCamera());
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_World_getBackgroundN(JNIEnv* env, jobject,
                                                                           jlong handle) {
  return peerOrNull(env, handleCast<World>(handle)->getBackground());
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_World_setActiveCameraN(JNIEnv* env, jobject,
                                                                          jlong handle,
                                                                          jlong camera) {
  try {
    handleCast<World>(handle)->setActiveCamera(handleCast<Camera>(camera));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_World_setBackgroundN(JNIEnv*, jobject,
                                                                        jlong handle,
                                                                        jlong background) {
  handleCast<World>(handle)->setBackground(handleCast<Background>(background));
}

}  // extern "C"
