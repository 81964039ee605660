#ifndef VARNEL_GLES_FIXED_POINT_H
#define VARNEL_GLES_FIXED_POINT_H

#include <cstdint>
#include <limits>

namespace gles {

/// The float nearest to a signed 16.16 number.
inline float fixedToFloat(std::int32_t value) {
  return static_cast<float>(static_cast<double>(value) * 1.52587890625e-5);
}

/// The signed 16.16 number of a float: its excess digits are cut, and what does not fit becomes the
/// nearest number that does. NaN gives 0.
inline std::int32_t floatToFixed(float value) {
  const double scaled = static_cast<double>(value) * 65536.0;
  if (scaled >= static_cast<double>(std::numeric_limits<std::int32_t>::max())) {
    return std::numeric_limits<std::int32_t>::max();
  }
  if (scaled <= static_cast<double>(std::numeric_limits<std::int32_t>::min())) {
    return std::numeric_limits<std::int32_t>::min();
  }
  if (scaled != scaled) {
    return 0;
  }
  return static_cast<std::int32_t>(scaled);
}

}  // namespace gles

#endif  // VARNEL_GLES_FIXED_POINT_H
