#ifndef VARNEL_ENGINE_MATH_CROSS_H
#define VARNEL_ENGINE_MATH_CROSS_H

namespace varnel_m3g {

/// out = a x b, 3 floats each; `out` must not be an input.
inline void crossProduct(const float* a, const float* b, float* out) {
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3;
    const int k = (i + 2) % 3;
    out[i] =
        static_cast<float>(static_cast<double>(a[j]) * b[k] - static_cast<double>(b[j]) * a[k]);
  }
}

}  // namespace varnel_m3g

#endif
