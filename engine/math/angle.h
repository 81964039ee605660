#ifndef VARNEL_ENGINE_MATH_ANGLE_H
#define VARNEL_ENGINE_MATH_ANGLE_H

namespace varnel_m3g {

constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double degreesPerRadian = 57.29577951308232;

/// The one tolerance of the kernels.
constexpr float kernelTolerance = 0.001F;

constexpr double degToRad(double degrees) {
  return degrees * radiansPerDegree;
}
constexpr double radToDeg(double radians) {
  return radians * degreesPerRadian;
}

// The functions of the kernels: a float in, computed in double, a float out.
float sine(float radians);
float cosine(float radians);
float arcSine(float value);
float arcCosine(float value);
float squareRoot(float value);

}  // namespace varnel_m3g

#endif
