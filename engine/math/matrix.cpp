#include "engine/math/matrix.h"

#include <algorithm>
#include <stdexcept>

#include "engine/math/identity.h"

namespace varnel_m3g {

Matrix::Matrix() {
  std::copy_n(identityTable, 16, elements);
}

void Matrix::setMatrix(const float* values) {
  if (values == nullptr) {
    throw std::invalid_argument("incorrect array length");
  }
  std::copy_n(values, 16, elements);
}

void Matrix::getMatrix(float* values) const {
  if (values == nullptr) {
    throw std::invalid_argument("null float array passed to getMatrix");
  }
  std::copy_n(elements, 16, values);
}

bool Matrix::operator==(const Matrix& other) const {
  return std::equal(elements, elements + 16, other.elements);
}

}  // namespace varnel_m3g
