#include "engine/math/rotation.h"

#include <cmath>

#include "engine/math/angle.h"
#include "engine/math/transform.h"
#include "engine/math/vector.h"

namespace varnel_m3g {

namespace {

constexpr double halfPi = 1.5707963705062866;

// From this sine of the rotation about z on, the other two angles cannot be told apart.
constexpr double gimbalLimit = 0.998;

// Below this many degrees a matrix is no rotation.
constexpr double leastAngle = 0.000001;

// Between these angles the antisymmetric part of a rotation matrix is large enough for the axis.
constexpr double antisymmetricFrom = 30.0;
constexpr double antisymmetricTo = 150.0;

float* newEuler(double x, double y, double z) {
  return new float[3]{static_cast<float>(radToDeg(x)), static_cast<float>(radToDeg(y)),
                      static_cast<float>(radToDeg(z))};
}

// Element (row, column) of the upper 3 x 3.
double element(const Transform& transform, int row, int column) {
  return transform.data()[4 * column + row];
}

// The axis, not normalised, from the symmetric part of a rotation matrix. False when the rotation
// is too small to show there.
bool axisFromDiagonal(const Transform& transform, const double* antisymmetric, float* axis) {
  int i = 0;
  for (int candidate = 1; candidate < 3; ++candidate) {
    if (element(transform, candidate, candidate) > element(transform, i, i)) {
      i = candidate;
    }
  }
  const int j = (i + 1) % 3;
  const int k = (i + 2) % 3;
  const double squared =
      1.0 + element(transform, i, i) - element(transform, j, j) - element(transform, k, k);
  if (!(squared > 0.0)) {
    return false;
  }
  const double root = antisymmetric[i] < 0.0 ? -std::sqrt(squared) : std::sqrt(squared);
  axis[i] = static_cast<float>(root);
  axis[j] = static_cast<float>((element(transform, i, j) + element(transform, j, i)) / root);
  axis[k] = static_cast<float>((element(transform, i, k) + element(transform, k, i)) / root);
  return true;
}

}  // namespace

float vectorAngle(const float* a, const float* b, float* axis) {
  crossProduct(a, b, axis);
  const double lengths = static_cast<double>(vectorLength(a)) * vectorLength(b);
  return static_cast<float>(radToDeg(arcSine(static_cast<float>(vectorLength(axis) / lengths))));
}

float alignmentRotation(const float* a, const float* b, float* axis) {
  const double angle = radToDeg(arcCosine(dotProduct(a, b)));
  crossProduct(a, b, axis);
  const double s = vectorLength(axis);
  for (int i = 0; i < 3; ++i) {
    axis[i] = static_cast<float>(axis[i] / s);
  }
  return static_cast<float>(angle);
}

void eulerToAxisAngle(float* values) {
  for (int i = 0; i < 3; ++i) {
    values[i] = static_cast<float>(degToRad(values[i]));
  }
  const auto half = [](float angle) { return static_cast<float>(angle / 2.0); };
  const double c1 = cosine(half(values[2]));
  const double c2 = cosine(half(values[1]));
  const double c3 = cosine(half(values[0]));
  const double s1 = sine(half(values[2]));
  const double s2 = sine(half(values[1]));
  const double s3 = sine(half(values[0]));
  const float w = static_cast<float>(c1 * c2 * c3 + s1 * s2 * s3);
  const double x = c1 * c2 * s3 - s1 * s2 * c3;
  const double y = c1 * s2 * c3 + s1 * c2 * s3;
  const double z = s1 * c2 * c3 - c1 * s2 * s3;
  values[0] = static_cast<float>(radToDeg(2.0 * arcCosine(w)));
  if (std::fabs(values[0]) < kernelTolerance) {
    values[1] = 0.0F;
    values[2] = 0.0F;
    values[3] = 1.0F;
    return;
  }
  const double length = squareRoot(static_cast<float>(x * x + y * y + z * z));
  values[1] = static_cast<float>(x / length);
  values[2] = static_cast<float>(y / length);
  values[3] = static_cast<float>(z / length);
}

float* matrixToAxisAngle(const Transform& transform) {
  const double trace =
      element(transform, 0, 0) + element(transform, 1, 1) + element(transform, 2, 2);
  const double antisymmetric[3] = {element(transform, 2, 1) - element(transform, 1, 2),
                                   element(transform, 0, 2) - element(transform, 2, 0),
                                   element(transform, 1, 0) - element(transform, 0, 1)};
  const double c = (trace - 1.0) / 2.0;
  const double s =
      std::sqrt(antisymmetric[0] * antisymmetric[0] + antisymmetric[1] * antisymmetric[1] +
                antisymmetric[2] * antisymmetric[2]) /
      2.0;
  const double angle = radToDeg(std::atan2(s, c));
  if (std::fabs(angle) < leastAngle) {
    return new float[4]{0.0F, 1.0F, 0.0F, 0.0F};
  }
  float* result = new float[4]{static_cast<float>(angle)};
  const bool fromAntisymmetric = angle > antisymmetricFrom && angle < antisymmetricTo;
  if (fromAntisymmetric || !axisFromDiagonal(transform, antisymmetric, result + 1)) {
    for (int i = 0; i < 3; ++i) {
      result[i + 1] = static_cast<float>(antisymmetric[i] / (2.0 * s));
    }
  }
  normalizeVector(result + 1);
  return result;
}

float* matrixToEuler(const Transform& transform) {
  const double m10 = element(transform, 1, 0);
  if (m10 >= gimbalLimit || m10 <= -gimbalLimit) {
    const double y = std::atan2(element(transform, 0, 2), element(transform, 2, 2));
    return newEuler(0.0, y, m10 > 0.0 ? halfPi : -halfPi);
  }
  const double y = std::atan2(-element(transform, 2, 0), element(transform, 0, 0));
  const double x = std::atan2(-element(transform, 1, 2), element(transform, 1, 1));
  return newEuler(x, y, std::asin(m10));
}

float* axisAngleToEuler(const float* axisAngle) {
  const double radians = degToRad(axisAngle[0]);
  const double x = axisAngle[1];
  const double y = axisAngle[2];
  const double z = axisAngle[3];
  const double s = std::sin(radians);
  const double t = 1.0 - std::cos(radians);
  const double m10 = x * y * t + z * s;
  if (m10 >= gimbalLimit || m10 <= -gimbalLimit) {
    const double turn = 2.0 * std::atan2(x * std::sin(radians / 2.0), std::cos(radians / 2.0));
    return m10 > 0.0 ? newEuler(0.0, turn, halfPi) : newEuler(0.0, -turn, -halfPi);
  }
  return newEuler(std::atan2(x * s - y * z * t, 1.0 - (x * x + z * z) * t),
                  std::atan2(y * s - x * z * t, 1.0 - (y * y + z * z) * t), std::asin(m10));
}

Transform* axisAngleToTransform(const float* axisAngle) {
  const double radians = degToRad(axisAngle[0]);
  const double x = axisAngle[1];
  const double y = axisAngle[2];
  const double z = axisAngle[3];
  const double c = std::cos(radians);
  const double s = std::sin(radians);
  const double t = 1.0 - c;
  const double rows[16] = {t * x * x + c,
                           t * x * y - z * s,
                           t * x * z + y * s,
                           0.0,
                           t * x * y + z * s,
                           t * y * y + c,
                           t * y * z - x * s,
                           0.0,
                           t * x * z - y * s,
                           t * y * z + x * s,
                           t * z * z + c,
                           0.0,
                           0.0,
                           0.0,
                           0.0,
                           1.0};
  float rowMajor[16];
  for (int i = 0; i < 16; ++i) {
    rowMajor[i] = static_cast<float>(rows[i]);
  }
  Transform* transform = new Transform;
  transform->set(rowMajor);
  return transform;
}

}  // namespace varnel_m3g
