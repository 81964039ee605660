#ifndef VARNEL_GLES_ES_IMAGE_H
#define VARNEL_GLES_ES_IMAGE_H

/// The pixels of an EGL image, as `glEGLImageTargetTexture2DOES` uploads them. The EGL layer owns
/// them.
struct EsImage {
  int width = 0;
  int height = 0;
  /// height rows of width 32-bit words 0xAARRGGBB, without padding; the first row is the one at
  /// texture coordinate 0.
  const void* pixels = nullptr;
};

/// Registers how an image handle is looked up: the answer is the pixels of a live image, or null
/// for a handle that is none. The handle is never dereferenced here. Null (as at the start) knows
/// none.
void setEsImageLookup(const EsImage* (*lookup)(const void* handle));

/// The pixels of the image with that handle; null if there is none.
const EsImage* findEsImage(const void* handle);

/// Uploads the pixels of the image with that handle to the texture bound to GL_TEXTURE_2D; nothing
/// for a handle that is no image.
void uploadEsImage(const void* handle);

#endif  // VARNEL_GLES_ES_IMAGE_H
