#include "engine/math/quaternion.h"

#include <algorithm>
#include <cmath>

#include "engine/math/angle.h"
#include "engine/math/vector.h"

namespace varnel_m3g {

namespace {

// The angles below which the two interpolations are spherical.
constexpr float sphericalLimit = 0.95F;
constexpr float halfPi = 1.5707963705062866F;

float dotProduct4(const float* a, const float* b) {
  double sum = 0.0;
  for (int i = 0; i < 4; ++i) {
    sum += static_cast<double>(a[i]) * b[i];
  }
  return static_cast<float>(sum);
}

// The cosine of the angle between two unit quaternions, kept within -1..1.
float limitedCosine(const float* a, const float* b) {
  const float d = dotProduct4(a, b);
  if (d > 1.0F || d < -1.0F) {
    return static_cast<float>(d / std::fabs(static_cast<double>(d)));
  }
  return d;
}

float sphericalBlend(float t, float theta, float a, float b) {
  const double inverse = 1.0 - t;
  const double from = sine(static_cast<float>(inverse * theta));
  const double to = sine(static_cast<float>(static_cast<double>(t) * theta));
  return static_cast<float>((from * a + to * b) / sine(theta));
}

float linearBlend(float t, float a, float b) {
  return static_cast<float>((1.0 - t) * a + static_cast<double>(t) * b);
}

}  // namespace

void axisAngleToQuat(float angle, float x, float y, float z, float* out) {
  const float h = static_cast<float>(degToRad(angle) / 2.0);
  const double s = sine(h);
  out[0] = static_cast<float>(x * s);
  out[1] = static_cast<float>(y * s);
  out[2] = static_cast<float>(z * s);
  out[3] = cosine(h);
}

float* newQuatFromAxisAngle(float angle, float x, float y, float z) {
  float* q = new float[4];
  axisAngleToQuat(angle, x, y, z, q);
  return q;
}

void quatMultiply(const float* a, const float* b, float* out) {
  const double ax = a[0];
  const double ay = a[1];
  const double az = a[2];
  const double aw = a[3];
  const double bx = b[0];
  const double by = b[1];
  const double bz = b[2];
  const double bw = b[3];
  out[3] = static_cast<float>(aw * bw - ax * bx - ay * by - az * bz);
  out[3] = maxFloat(minFloat(out[3], 1.0F), -1.0F);
  out[0] = static_cast<float>(aw * bx + ax * bw + ay * bz - az * by);
  out[1] = static_cast<float>(aw * by - ax * bz + ay * bw + az * bx);
  out[2] = static_cast<float>(aw * bz + ax * by - ay * bx + az * bw);
}

float quatNormSquared(const float* q) {
  return dotProduct4(q, q);
}

void quatNormalize(float* q) {
  const float m = squareRoot(quatNormSquared(q));
  if (m > 0.0F) {
    for (int i = 0; i < 4; ++i) {
      q[i] = static_cast<float>(static_cast<double>(q[i]) / m);
    }
  }
}

void quatInverse(const float* q, float* out) {
  const float n = quatNormSquared(q);
  std::copy_n(q, 4, out);
  if (n <= 0.0F) {
    return;
  }
  for (int i = 0; i < 3; ++i) {
    out[i] = static_cast<float>(-static_cast<double>(q[i]) / n);
  }
  out[3] = static_cast<float>(static_cast<double>(q[3]) / n);
}

float* quatInverse(const float* q) {
  float* inverse = new float[4];
  quatInverse(q, inverse);
  return inverse;
}

void quatToAxisAngle(float* q, float* out) {
  const float n = quatNormSquared(q);
  if (q[3] > 1.0F || n > 1.0F) {
    const double m = squareRoot(n);
    for (int i = 0; i < 4; ++i) {
      q[i] = static_cast<float>(q[i] / m);
    }
  }
  const double w = q[3];
  const double half = arcCosine(q[3]);
  const float s = squareRoot(static_cast<float>(1.0 - w * w));
  if (s >= kernelTolerance) {
    for (int i = 0; i < 3; ++i) {
      out[i + 1] = static_cast<float>(static_cast<double>(q[i]) / s);
    }
  } else {
    out[1] = 1.0F;
    out[2] = 0.0F;
    out[3] = 0.0F;
  }
  out[0] = static_cast<float>(radToDeg(2.0 * half));
  normalizeVector(out + 1);
}

float* quatToAxisAngle(float* q) {
  float* result = new float[4];
  quatToAxisAngle(q, result);
  return result;
}

void quatLog(float* q, float* out) {
  quatToAxisAngle(q, out);
  const float h = static_cast<float>(degToRad(out[0] / 2.0));
  for (int i = 0; i < 3; ++i) {
    out[i] = static_cast<float>(static_cast<double>(h) * out[i + 1]);
  }
}

float* quatLog(float* q) {
  float* result = new float[4];
  quatLog(q, result);
  return result;
}

void quatExp(const float* v, float* out) {
  const float r = vectorLength(v);
  const double s = sine(r);
  for (int i = 0; i < 3; ++i) {
    out[i] = r >= kernelTolerance ? static_cast<float>(s * v[i] / r) : v[i];
  }
  out[3] = cosine(r);
  if (quatNormSquared(out) > 1.0F) {
    quatNormalize(out);
  }
}

float* quatExp(const float* v) {
  float* q = new float[4];
  quatExp(v, q);
  return q;
}

void quatSlerp(float t, const float* a, const float* b, float* out) {
  float theta = arcCosine(limitedCosine(a, b));
  if (theta < kernelTolerance) {
    theta = kernelTolerance;
  }
  for (int i = 0; i < 4; ++i) {
    if (theta < sphericalLimit && theta > -sphericalLimit) {
      out[i] = sphericalBlend(t, theta, a[i], b[i]);
      continue;
    }
    out[i] = linearBlend(t, a[i], b[i]);
    // Inside the loop, over elements that are not written yet as well.
    if (quatNormSquared(out) > 1.0F) {
      quatNormalize(out);
    }
  }
}

void quatSlerpShortest(float t, const float* a, const float* b, float* out) {
  float d = limitedCosine(a, b);
  float target[4];
  std::copy_n(b, 4, target);
  if (d < 0.0F) {
    d = -d;
    for (float& element : target) {
      element = -element;
    }
  }
  float theta = arcCosine(d);
  if (theta >= halfPi) {
    theta = static_cast<float>(static_cast<double>(theta) - halfPi);
  }
  if (theta < kernelTolerance) {
    theta = kernelTolerance;
  }
  for (int i = 0; i < 4; ++i) {
    out[i] = theta < sphericalLimit ? sphericalBlend(t, theta, a[i], target[i])
                                    : linearBlend(t, a[i], target[i]);
  }
  if (quatNormSquared(out) > 1.0F) {
    quatNormalize(out);
  }
}

}  // namespace varnel_m3g
