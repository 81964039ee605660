#include "engine/math/vector.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>

#include "engine/math/angle.h"

namespace varnel_m3g {

namespace {

// Zero for a length that no array has.
std::size_t arrayLength(int n) {
  return n > 0 ? static_cast<std::size_t>(n) : 0;
}

}  // namespace

float minFloat(float a, float b) {
  return a < b ? a : b;
}

float maxFloat(float a, float b) {
  return a > b ? a : b;
}

float* copyVector(const float* values, int n) {
  float* copy = new float[arrayLength(n)];
  std::copy_n(values, arrayLength(n), copy);
  return copy;
}

float* addVectors(const float* a, int n, const float* b, int m, int* length) {
  *length = std::min(n, m);
  float* sum = new float[arrayLength(*length)];
  for (int i = 0; i < *length; ++i) {
    sum[i] = static_cast<float>(static_cast<double>(a[i]) + b[i]);
  }
  return sum;
}

float* subtractVectors(const float* a, const float* b, int n) {
  float* difference = new float[arrayLength(n)];
  for (int i = 0; i < n; ++i) {
    difference[i] = static_cast<float>(static_cast<double>(a[i]) - b[i]);
  }
  return difference;
}

void scaleVector(float* values, float s, int n) {
  for (int i = 0; i < n; ++i) {
    values[i] = static_cast<float>(static_cast<double>(values[i]) * s);
  }
}

void normalizeVector(float* v) {
  scaleVector(v, static_cast<float>(1.0 / static_cast<double>(vectorLength(v))), 3);
}

float dotProduct(const float* a, const float* b) {
  return static_cast<float>(static_cast<double>(a[0]) * b[0] + static_cast<double>(a[1]) * b[1] +
                            static_cast<double>(a[2]) * b[2]);
}

float vectorLength(const float* v) {
  return squareRoot(dotProduct(v, v));
}

float pointDistance(const float* a, const float* b) {
  float difference[3];
  subtract(a, b, difference);
  return vectorLength(difference);
}

void subtract(const float* a, const float* b, float* out) {
  for (int i = 0; i < 3; ++i) {
    out[i] = static_cast<float>(static_cast<double>(a[i]) - b[i]);
  }
}

void crossProduct(const float* a, const float* b, float* out) {
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3;
    const int k = (i + 2) % 3;
    out[i] =
        static_cast<float>(static_cast<double>(a[j]) * b[k] - static_cast<double>(b[j]) * a[k]);
  }
}

float* crossNormal(const float* a, const float* b) {
  std::unique_ptr<float[]> normal(new float[3]);
  crossNormal(a, b, normal.get());
  return normal.release();
}

void crossNormal(const float* a, const float* b, float* out) {
  crossProduct(a, b, out);
  if (vectorLength(out) < kernelTolerance) {
    throw std::runtime_error("Null cross product");
  }
  normalizeVector(out);
}

}  // namespace varnel_m3g
