#include "engine/loader/loader.h"

#include <jni.h>

#include <stdexcept>
#include <string>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"
#include "engine/object/object3d.h"

using varnel_m3g::Loader;
using varnel_m3g::ObjectTable;
using varnel_m3g::peerOf;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;

namespace {

std::string textOf(JNIEnv* env, jstring text) {
  const char* characters = env->GetStringUTFChars(text, nullptr);
  if (characters == nullptr) {
    return {};
  }
  const std::string copy(characters);
  env->ReleaseStringUTFChars(text, characters);
  return copy;
}

/// The objects as an Object3D[]; an empty entry is null.
jobjectArray arrayOf(JNIEnv* env, const ObjectTable& objects) {
  const jclass objectClass = env->FindClass("javax/microedition/m3g/Object3D");
  const jobjectArray array =
      env->NewObjectArray(static_cast<jsize>(objects.size()), objectClass, nullptr);
  for (std::size_t i = 0; array != nullptr && i < objects.size(); ++i) {
    if (objects[i]) {
      const jobject peer = peerOf(env, objects[i]);
      if (peer == nullptr) {
        return nullptr;
      }
      env->SetObjectArrayElement(array, static_cast<jsize>(i), peer);
      env->DeleteLocalRef(peer);
    }
  }
  return array;
}

}  // namespace

extern "C" {

JNIEXPORT jobjectArray JNICALL
Java_javax_microedition_m3g_Loader_loadN__Ljava_lang_String_2(JNIEnv* env, jclass, jstring name) {
  try {
    ObjectTable objects;
    Loader::load(textOf(env, name).c_str(), objects);
    return arrayOf(env, objects);
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/io/IOException", e.what());
  }
  return nullptr;
}

JNIEXPORT jobjectArray JNICALL Java_javax_microedition_m3g_Loader_loadN___3BI(JNIEnv* env, jclass,
                                                                              jbyteArray data,
                                                                              jint offset) {
  try {
    ObjectTable objects;
    const ReadArray<jbyte> bytes(env, data);
    Loader::load(bytes.data(), bytes.size(), offset, objects);
    return arrayOf(env, objects);
  } catch (const std::out_of_range& e) {
    throwJava(env, "java/lang/IndexOutOfBoundsException", e.what());
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/NullPointerException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/io/IOException", e.what());
  }
  return nullptr;
}

}  // extern "C"
