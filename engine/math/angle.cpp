#include "engine/math/angle.h"

#include <cmath>

namespace varnel_m3g {

float sine(float radians) {
  return static_cast<float>(std::sin(static_cast<double>(radians)));
}

float cosine(float radians) {
  return static_cast<float>(std::cos(static_cast<double>(radians)));
}

float arcSine(float value) {
  return static_cast<float>(std::asin(static_cast<double>(value)));
}

float arcCosine(float value) {
  return static_cast<float>(std::acos(static_cast<double>(value)));
}

float squareRoot(float value) {
  return static_cast<float>(std::sqrt(static_cast<double>(value)));
}

}  // namespace varnel_m3g
