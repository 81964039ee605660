#ifndef VARNEL_ENGINE_SURFACE_COLOR_FLOATS_H
#define VARNEL_ENGINE_SURFACE_COLOR_FLOATS_H

namespace varnel_m3g {

/// One byte of a packed colour, the one that starts at bit `shift`, as 0 to 1.
inline float colorByteToFloat(int color, int shift) {
  return static_cast<float>(static_cast<double>((color >> shift) & 255) / 255.0);
}

/// Writes red, green and blue of 0xAARRGGBB to out[0] to out[2], each 0 to 1.
inline void colorToFloats(int color, float* out) {
  out[0] = colorByteToFloat(color, 16);
  out[1] = colorByteToFloat(color, 8);
  out[2] = colorByteToFloat(color, 0);
}

}  // namespace varnel_m3g

#endif
