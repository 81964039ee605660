#include "engine/math/text.h"

#include <cmath>

#include "engine/math/transform.h"
#include "engine/object/log.h"

namespace varnel_m3g {
namespace {

// The integer part; the nearest int for a value that has none.
int truncated(double value) {
  if (!(value < 2147483648.0)) {
    return std::isnan(value) ? 0 : 2147483647;
  }
  return static_cast<int>(value);
}

}  // namespace

std::string floatToString(float value) {
  std::string text;
  double rest = value;
  if (rest < 0.0) {
    text += '-';
    rest = -rest;
  }
  const int integer = truncated(rest);
  const float f = static_cast<float>(rest - integer);
  const int m = truncated(1000.0 * f) % 1000;
  text += std::to_string(integer);
  text += '.';
  text += std::to_string(m / 100);
  text += std::to_string(m % 100 / 10);
  text += std::to_string(m % 10);
  return text;
}

std::string joinFloats(const float* values, int n) {
  std::string text;
  for (int i = 0; i < n; ++i) {
    if (i > 0) {
      text += ", ";
    }
    text += floatToString(values[i]);
  }
  return text;
}

void printTransform(const Transform& transform) {
  float rows[16];
  transform.get(rows);
  for (int i = 0; i < 16; i += 4) {
    log(joinFloats(rows + i, 4));
  }
}

}  // namespace varnel_m3g
