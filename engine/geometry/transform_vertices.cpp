#include <cstddef>
#include <stdexcept>

#include "engine/geometry/vertex_array.h"
#include "engine/math/transform.h"

namespace varnel_m3g {

void Transform::transform(const VertexArray* in, float* out, bool w) const {
  if (in == nullptr) {
    throw std::invalid_argument("Transform.transform  input vertex array is null ");
  }
  if (out == nullptr) {
    throw std::invalid_argument("Transform.transform  output vertex array is null ");
  }
  if (in->getComponentCount() > 3) {
    throw std::invalid_argument(
        "Transform.transform vertex input array has more than 3 components -- not allowed");
  }
  const float* const m = data();
  double v[3] = {0.0, 0.0, 0.0};
  for (int vertex = 0; vertex < in->getVertexCount(); ++vertex) {
    // The first record of the storage stands for every vertex.
    for (int i = 0; i < in->getComponentCount(); ++i) {
      v[i] = in->getComponentType() == 1 ? in->byteData()[i] : in->shortData()[i];
    }
    float* const to = out + static_cast<std::size_t>(vertex) * 4;
    for (int r = 0; r < 4; ++r) {
      double sum = v[0] * static_cast<double>(m[r]) + v[1] * static_cast<double>(m[4 + r]) +
                   v[2] * static_cast<double>(m[8 + r]);
      if (w) {
        sum += static_cast<double>(m[12 + r]);
      }
      to[r] = static_cast<float>(sum);
    }
  }
}

}  // namespace varnel_m3g
