#include "engine/surface/image2d.h"

#include <jni.h>

#include <cstddef>
#include <stdexcept>

#include "binding/frame/arrays.h"
#include "binding/frame/frame.h"

using varnel_m3g::handleCast;
using varnel_m3g::Image2D;
using varnel_m3g::ReadArray;
using varnel_m3g::throwJava;
using varnel_m3g::toHandle;

namespace varnel_m3g {

jobject Image2D::createJavaPeer(JNIEnv* env) {
  return newPeer(env, "javax/microedition/m3g/Image2D", shared_from_this());
}

}  // namespace varnel_m3g

extern "C" {

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Image2D_createImage2DN__III(JNIEnv* env, jclass,
                                                                                jint format,
                                                                                jint width,
                                                                                jint height) {
  if (format < Image2D::ALPHA || format > Image2D::RGBA) {
    throwJava(env, "java/lang/IllegalException", "Invalid format passed to Image2D constructor");
    return 0;
  }
  jlong handle = 0;
  try {
    handle = toHandle(Image2D::create(format, width, height));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Image2D_createImage2DN__III_3B(
    JNIEnv* env, jclass, jint format, jint width, jint height, jbyteArray image) {
  jlong handle = 0;
  try {
    if (image == nullptr) {
      throwJava(env, "java/lang/NullPointerException", "Null image for Image2D");
      return 0;
    }
    if (width < 1 || height < 1) {
      throwJava(env, "java/lang/IllegalArgumentException", "Bad dimension for Image2D");
      return 0;
    }
    // Divided and not multiplied: the bytes of the largest images exceed a long.
    const jlong pixels = static_cast<jlong>(width) * height;
    if (env->GetArrayLength(image) / Image2D::bytesPerPixelOf(format) < pixels) {
      throwJava(env, "java/lang/IllegalArgumentException",
                "Insufficient image data for Image2D construction");
      return 0;
    }
    const ReadArray<jbyte> bytes(env, image);
    handle = toHandle(Image2D::create(format, width, height,
                                      reinterpret_cast<const unsigned char*>(bytes.data()),
                                      static_cast<std::size_t>(bytes.size())));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jlong JNICALL Java_javax_microedition_m3g_Image2D_createImage2DN__III_3B_3B(
    JNIEnv* env, jclass, jint format, jint width, jint height, jbyteArray image,
    jbyteArray palette) {
  jlong handle = 0;
  try {
    if (image == nullptr) {
      throwJava(env, "java/lang/NullPointerException", "Null image for Image2D");
      return 0;
    }
    if (palette == nullptr) {
      throwJava(env, "java/lang/NullPointerException", "Null palette for Image2D");
      return 0;
    }
    if (width < 1 || height < 1) {
      throwJava(env, "java/lang/IllegalArgumentException", "Bad dimension for Image2D");
      return 0;
    }
    if (env->GetArrayLength(image) < static_cast<jlong>(width) * height) {
      throwJava(env, "java/lang/IllegalArgumentException",
                "Insufficient image data for Image2D construction");
      return 0;
    }
    constexpr jint ENTRIES = static_cast<jint>(Image2D::PALETTE_ENTRIES);
    if (env->GetArrayLength(palette) < ENTRIES * Image2D::bytesPerPixelOf(format)) {
      throwJava(env, "java/lang/IllegalArgumentException",
                "Insufficient palette data for Image2D construction");
      return 0;
    }
    const ReadArray<jbyte> indices(env, image);
    const ReadArray<jbyte> colors(env, palette);
    handle = toHandle(Image2D::create(format, width, height,
                                      reinterpret_cast<const unsigned char*>(indices.data()),
                                      reinterpret_cast<const unsigned char*>(colors.data()),
                                      static_cast<std::size_t>(colors.size())));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  }
  return handle;
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Image2D_getFormatN(JNIEnv*, jobject,
                                                                      jlong handle) {
  return handleCast<Image2D>(handle)->getFormat();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Image2D_getHeightN(JNIEnv*, jobject,
                                                                      jlong handle) {
  return handleCast<Image2D>(handle)->getHeight();
}

JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Image2D_getWidthN(JNIEnv*, jobject,
                                                                     jlong handle) {
  return handleCast<Image2D>(handle)->getWidth();
}

JNIEXPORT jboolean JNICALL Java_javax_microedition_m3g_Image2D_isMutableN(JNIEnv*, jobject,
                                                                          jlong handle) {
  return handleCast<Image2D>(handle)->isMutable();
}

JNIEXPORT void JNICALL Java_javax_microedition_m3g_Image2D_setN(JNIEnv* env, jobject, jlong handle,
                                                                jint x, jint y, jint width,
                                                                jint height, jbyteArray image) {
  try {
    const boost::shared_ptr<Image2D> target = handleCast<Image2D>(handle);
    // Divided and not multiplied: the bytes of the largest images exceed a long.
    const jlong pixels = static_cast<jlong>(width) * height;
    if (image != nullptr && env->GetArrayLength(image) / target->getBytesPerPixel() < pixels) {
      throwJava(env, "java/lang/IllegalArgumentException", "Insufficient data to set image");
      return;
    }
    const ReadArray<jbyte> bytes(env, image);
    target->set(x, y, width, height, reinterpret_cast<const unsigned char*>(bytes.data()));
  } catch (const std::invalid_argument& e) {
    throwJava(env, "java/lang/IllegalArgumentException", e.what());
  } catch (const std::runtime_error& e) {
    throwJava(env, "java/lang/IllegalStateException", e.what());
  }
}

}  // extern "C"
