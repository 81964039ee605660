#ifndef VARNEL_GLES_PALETTED_TEXTURE_H
#define VARNEL_GLES_PALETTED_TEXTURE_H

namespace gles {

/// Whether a format is one of the ten of GL_OES_compressed_paletted_texture.
bool isPalettedFormat(unsigned format);

/// Unpacks the one level of a paletted texture and uploads it by the driver's `glTexImage2D`, with
/// an unpack alignment of 1 that is set back to `unpackAlignment` after. `data` are the palette and
/// then the indices; of its `imageSize` bytes none beyond is read, and what lies beyond counts as
/// 0.
void uploadPalettedTexture(unsigned target, int level, unsigned format, int width, int height,
                           int border, int imageSize, const void* data, int unpackAlignment);

}  // namespace gles

#endif  // VARNEL_GLES_PALETTED_TEXTURE_H
