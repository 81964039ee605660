#ifndef VARNEL_ENGINE_MATH_TEXT_H
#define VARNEL_ENGINE_MATH_TEXT_H

#include <string>

namespace varnel_m3g {

class Transform;

/// Three decimals, truncated.
std::string floatToString(float value);
/// n values, joined by ", ".
std::string joinFloats(const float* values, int n);
/// Writes the four rows to the standard output.
void printTransform(const Transform& transform);

}  // namespace varnel_m3g

#endif
