#ifndef VARNEL_TESTS_SUPPORT_KERNEL_VALUES_H
#define VARNEL_TESTS_SUPPORT_KERNEL_VALUES_H

#include <memory>
#include <random>
#include <vector>

namespace varnel_test {

/// The floats of an array that a kernel made, which is freed.
inline std::vector<float> taken(float* values, int n) {
  const std::unique_ptr<float[]> owner(values);
  return std::vector<float>(values, values + n);
}

/// Numbers of a fixed series between two bounds.
class Numbers {
 public:
  explicit Numbers(unsigned seed) : engine(seed) {}
  float between(float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(engine);
  }
  void fill(float* values, int n, float low, float high) {
    for (int i = 0; i < n; ++i) {
      values[i] = between(low, high);
    }
  }

 private:
  std::mt19937 engine;
};

}  // namespace varnel_test

#endif
