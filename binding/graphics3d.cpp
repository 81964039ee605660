#include "engine/render/graphics3d.h"

#include <jni.h>

#include <stdexcept>
#include <string>

#include "binding/frame/frame.h"
#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/render/window_target.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"

using varnel_m3g::Appearance;
using varnel_m3g::Background;
using varnel_m3g::Camera;
using varnel_m3g::Graphics3D;
using varnel_m3g::handleCast;
using varnel_m3g::IndexBuffer;
using varnel_m3g::Light;
using varnel_m3g::Node;
using varnel_m3g::peerOrNull;
using varnel_m3g::rawHandle;
using varnel_m3g::throwJava;
using varnel_m3g::toRawHandle;
using varnel_m3g::Transform;
using varnel_m3g::VertexBuffer;
using varnel_m3g::WindowTarget;
using varnel_m3g::World;

// Unlike the peers of other objects, that of the singleton is registered here.
jobject Graphics3D::getJavaPeer(JNIEnv* env) {
  if (jobject peer = env->NewLocalRef(javaPeer)) {
    return peer;
  }
  jclass peerClass = env->FindClass("javax/microedition/m3g/Graphics3D");
  if (peerClass == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(peerClass, "<init>", "(J)V");
  jobject peer = constructor ? env->NewObject(peerClass, constructor, toRawHandle(this)) : nullptr;
  env->DeleteLocalRef(peerClass);
  if (peer == nullptr) {
    return nullptr;
  }
  if (javaVM == nullptr) {
    env->GetJavaVM(&javaVM);
  }
  if (javaPeer != nullptr) {
    env->DeleteGlobalRef(javaPeer);
  }
  javaPeer = env->NewGlobalRef(peer);
  return peer;
}

namespace {

/// Makes the context of the window current; a failure leaves a Java exception pending.
bool makeWindowCurrent(JNIEnv* env) {
  EGLint error = EGL_SUCCESS;
  if (WindowTarget::get().makeCurrent(&error)) {
    return true;
  }
  throwJava(env, "java/lang/IllegalArgumentException",
            ("Failed to bind context: " + std::to_string(error)).c_str());
  return false;
}

/// The keys that begin so stand for booleans.
constexpr char booleanPrefix[] = "support";

}  // namespace

extern "C" {

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Graphics3D_getInstanceN(JNIEnv* env, jclass) {
  return Graphics3D::getInstance().getJavaPeer(env);
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_initPropsN(JNIEnv* env,
                                                                         jclass graphics) {
  const Graphics3D::Properties& properties = Graphics3D::initProps();
  const jmethodID addInt = env->GetStaticMethodID(graphics, "addProp", "(Ljava/lang/String;I)V");
  const jmethodID addBoolean =
      addInt ? env->GetStaticMethodID(graphics, "addProp", "(Ljava/lang/String;Z)V") : nullptr;
  if (addBoolean == nullptr) {
    return;
  }
  for (const auto& [key, value] : properties) {
    jstring name = env->NewStringUTF(key.c_str());
    if (name == nullptr) {
      return;
    }
    if (key.rfind(booleanPrefix, 0) == 0) {
      env->CallStaticVoidMethod(graphics, addBoolean, name,
                                static_cast<jboolean>(value != 0 ? JNI_TRUE : JNI_FALSE));
    } else {
      env->CallStaticVoidMethod(graphics, addInt, name, static_cast<jint>(value));
    }
    env->DeleteLocalRef(name);
    if (env->ExceptionCheck()) {
      return;
    }
  }
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_addLightN(JNIEnv* env, jobject,
                                                                        jlong handle, jlong light,
                                                                        jlong transform) {
  jint index = 0;
  try {
    index = rawHandle<Graphics3D>(handle)->addLight(handleCast<Light>(light),
                                                    rawHandle<Transform>(transform));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  }
  return index;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_bindTargetN__JLjava_lang_Object_2(
    JNIEnv* env, jobject, jlong handle, jobject) {
  try {
    WindowTarget& window = WindowTarget::get();
    window.require(nullptr);
    if (makeWindowCurrent(env)) {
      rawHandle<Graphics3D>(handle)->bindTarget(&window.surfaceRecord());
    }
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_bindTargetN__JLjava_lang_Object_2ZI(
    JNIEnv* env, jobject, jlong handle, jobject, jboolean depthBuffer, jint hints) {
  try {
    WindowTarget& window = WindowTarget::get();
    window.require("Couldn't initialize surface");
    if (makeWindowCurrent(env)) {
      rawHandle<Graphics3D>(handle)->bindTarget(&window.surfaceRecord(), depthBuffer != JNI_FALSE,
                                                hints);
    }
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_clearN(JNIEnv* env, jobject,
                                                                     jlong handle,
                                                                     jlong background) {
  try {
    rawHandle<Graphics3D>(handle)->clear(handleCast<Background>(background));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Graphics3D_getCameraN(JNIEnv* env, jobject,
                                                                            jlong handle,
                                                                            jlong transform) {
  return peerOrNull(env, rawHandle<Graphics3D>(handle)->getCamera(rawHandle<Transform>(transform)));
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Graphics3D_getDepthRangeFarN(JNIEnv*, jobject,
                                                                                  jlong handle) {
  return rawHandle<Graphics3D>(handle)->getDepthRangeFar();
}

JNIEXPORT jfloat JNICALL Java_javax_microedition_m3g_Graphics3D_getDepthRangeNearN(JNIEnv*, jobject,
                                                                                   jlong handle) {
  return rawHandle<Graphics3D>(handle)->getDepthRangeNear();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_getHintsN(JNIEnv*, jobject,
                                                                        jlong handle) {
  return rawHandle<Graphics3D>(handle)->getHints();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_getLightCountN(JNIEnv*, jobject,
                                                                             jlong handle) {
  return rawHandle<Graphics3D>(handle)->getLightCount();
}

JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Graphics3D_getLightN(JNIEnv* env, jobject,
                                                                           jlong handle, jint index,
                                                                           jlong transform) {
  jobject light = nullptr;
  try {
    light = peerOrNull(
        env, rawHandle<Graphics3D>(handle)->getLight(index, rawHandle<Transform>(transform)));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
  return light;
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Graphics3D_getTargetN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return toRawHandle(rawHandle<Graphics3D>(handle)->getTarget());
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_getViewportHeightN(JNIEnv*, jobject,
                                                                                 jlong handle) {
  return rawHandle<Graphics3D>(handle)->getViewportHeight();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_getViewportWidthN(JNIEnv*, jobject,
                                                                                jlong handle) {
  return rawHandle<Graphics3D>(handle)->getViewportWidth();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_getViewportXN(JNIEnv*, jobject,
                                                                            jlong handle) {
  return rawHandle<Graphics3D>(handle)->getViewportX();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Graphics3D_getViewportYN(JNIEnv*, jobject,
                                                                            jlong handle) {
  return rawHandle<Graphics3D>(handle)->getViewportY();
}

JNIEXPORT jboolean JNICALL
Java_javax_microedition_m3g_Graphics3D_isDepthBufferEnabledN(JNIEnv*, jobject, jlong handle) {
  return rawHandle<Graphics3D>(handle)->isDepthBufferEnabled() ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_releaseTargetN(JNIEnv* env, jobject,
                                                                             jlong handle) {
  try {
    rawHandle<Graphics3D>(handle)->releaseTarget();
    WindowTarget::get().present();
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_renderN__JJ(JNIEnv* env, jobject,
                                                                          jlong handle,
                                                                          jlong world) {
  try {
    rawHandle<Graphics3D>(handle)->render(handleCast<World>(world));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_renderN__JJJ(JNIEnv* env, jobject,
                                                                           jlong handle, jlong node,
                                                                           jlong transform) {
  try {
    rawHandle<Graphics3D>(handle)->render(handleCast<Node>(node), rawHandle<Transform>(transform));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_renderN__JJJJJ(
    JNIEnv* env, jobject, jlong handle, jlong vertices, jlong triangles, jlong appearance,
    jlong transform) {
  try {
    rawHandle<Graphics3D>(handle)->render(
        handleCast<VertexBuffer>(vertices), handleCast<IndexBuffer>(triangles),
        handleCast<Appearance>(appearance), rawHandle<Transform>(transform));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_renderN__JJJJJI(
    JNIEnv* env, jobject, jlong handle, jlong vertices, jlong triangles, jlong appearance,
    jlong transform, jint scope) {
  try {
    rawHandle<Graphics3D>(handle)->render(
        handleCast<VertexBuffer>(vertices), handleCast<IndexBuffer>(triangles),
        handleCast<Appearance>(appearance), rawHandle<Transform>(transform), scope);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_resetLightsN(JNIEnv*, jobject,
                                                                           jlong handle) {
  rawHandle<Graphics3D>(handle)->resetLights();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_setCameraN(JNIEnv* env, jobject,
                                                                         jlong handle, jlong camera,
                                                                         jlong transform) {
  try {
    rawHandle<Graphics3D>(handle)->setCamera(handleCast<Camera>(camera),
                                             rawHandle<Transform>(transform));
  } catch (const std::underflow_error& e) {
    throwJava(env, "java/lang/ArithmeticException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_setDepthRangeN(JNIEnv* env, jobject,
                                                                             jlong handle,
                                                                             jfloat near,
                                                                             jfloat far) {
  try {
    rawHandle<Graphics3D>(handle)->setDepthRange(near, far);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_setLightN(JNIEnv* env, jobject,
                                                                        jlong handle, jint index,
                                                                        jlong light,
                                                                        jlong transform) {
  try {
    rawHandle<Graphics3D>(handle)->setLight(index, handleCast<Light>(light),
                                            rawHandle<Transform>(transform));
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  }
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Graphics3D_setViewportN(JNIEnv* env, jobject,
                                                                           jlong handle, jint x,
                                                                           jint y, jint width,
                                                                           jint height) {
  try {
    rawHandle<Graphics3D>(handle)->setViewport(x, y, width, height);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

}  // extern "C"
