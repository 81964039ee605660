#ifndef VARNEL_ENGINE_MATH_COLOR_H
#define VARNEL_ENGINE_MATH_COLOR_H

#include <cstdint>

namespace varnel_m3g {

/// 1 if any channel is at least 1 after scaling to 255, else 0: a truth value and not a packed
/// colour.
int packColor(float r, float g, float b, float a);

/// 256 entries of 3 bytes R, G, B to words 0xFFRRGGBB.
/// Returns `out`, or for a null `out` an array made with array new.
std::uint32_t* expandPaletteRGB(const unsigned char* palette, std::uint32_t* out);
/// The same from 4 bytes R, G, B, A to words 0xAARRGGBB.
std::uint32_t* expandPaletteRGBA(const unsigned char* palette, std::uint32_t* out);

}  // namespace varnel_m3g

#endif
