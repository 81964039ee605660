#include "engine/math/transform.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

#include "engine/math/angle.h"
#include "engine/math/identity.h"

namespace varnel_m3g {

namespace {

// Swaps the six pairs of a 4 x 4 matrix that lie across its diagonal.
void transposeInPlace(float* m) {
  for (int row = 0; row < 4; ++row) {
    for (int column = row + 1; column < 4; ++column) {
      std::swap(m[4 * row + column], m[4 * column + row]);
    }
  }
}

// One row of a column-major matrix times a column.
float productElement(const float* matrix, const float* column, int row) {
  double sum = 0.0;
  for (int k = 0; k < 4; ++k) {
    sum += static_cast<double>(matrix[4 * k + row]) * column[k];
  }
  return static_cast<float>(sum);
}

// Replaces `a` by its LU decomposition with scaled partial pivoting. `pivots` receives the row that
// was exchanged with each one.
void decompose(float (&a)[4][4], int (&pivots)[4]) {
  float scale[4];
  for (int i = 0; i < 4; ++i) {
    float big = 0.0F;
    for (int j = 0; j < 4; ++j) {
      big = std::max(big, std::fabs(a[i][j]));
    }
    if (big == 0.0F) {
      throw std::underflow_error(
          "Unable to invert matrix -- singularity encountered in the matrix");
    }
    scale[i] = static_cast<float>(1.0 / static_cast<double>(big));
  }
  for (int j = 0; j < 4; ++j) {
    for (int i = 0; i < j; ++i) {
      float sum = a[i][j];
      for (int k = 0; k < i; ++k) {
        sum = static_cast<float>(sum - static_cast<double>(a[i][k]) * a[k][j]);
      }
      a[i][j] = sum;
    }
    float big = 0.0F;
    int pivot = j;
    for (int i = j; i < 4; ++i) {
      float sum = a[i][j];
      for (int k = 0; k < j; ++k) {
        sum = static_cast<float>(sum - static_cast<double>(a[i][k]) * a[k][j]);
      }
      a[i][j] = sum;
      const float score = static_cast<float>(static_cast<double>(scale[i]) * std::fabs(sum));
      if (score >= big) {
        big = score;
        pivot = i;
      }
    }
    if (pivot != j) {
      std::swap(a[pivot], a[j]);
      scale[pivot] = scale[j];
    }
    pivots[j] = pivot;
    if (a[j][j] == 0.0F) {
      a[j][j] = std::numeric_limits<float>::min();
    }
    if (j != 3) {
      const float factor = static_cast<float>(1.0 / static_cast<double>(a[j][j]));
      for (int i = j + 1; i < 4; ++i) {
        a[i][j] = static_cast<float>(static_cast<double>(a[i][j]) * factor);
      }
    }
  }
}

// Solves a x = b for a decomposed `a`, in place.
void substitute(const float (&a)[4][4], const int (&pivots)[4], float (&b)[4]) {
  int first = -1;  // the row of the first non-zero right-hand side
  for (int i = 0; i < 4; ++i) {
    float sum = b[pivots[i]];
    b[pivots[i]] = b[i];
    if (first >= 0) {
      for (int j = first; j < i; ++j) {
        sum = static_cast<float>(sum - static_cast<double>(a[i][j]) * b[j]);
      }
    } else if (sum != 0.0F) {
      first = i;
    }
    b[i] = sum;
  }
  for (int i = 3; i >= 0; --i) {
    float sum = b[i];
    for (int j = i + 1; j < 4; ++j) {
      sum = static_cast<float>(sum - static_cast<double>(a[i][j]) * b[j]);
    }
    b[i] = static_cast<float>(static_cast<double>(sum) / a[i][i]);
  }
}

}  // namespace

Transform::Transform() {
  setIdentity();
}

void Transform::setIdentity() {
  std::copy_n(identityTable, 16, elements);
  identity = true;
}

void Transform::set(const float* rowMajor) {
  if (rowMajor == nullptr) {
    throw std::invalid_argument(" Transform::set called with null pointer");
  }
  std::copy_n(rowMajor, 16, elements);
  transposeInPlace(elements);
  identity = false;
}

void Transform::get(float* rowMajor) const {
  if (rowMajor == nullptr) {
    throw std::invalid_argument("Transform::get called with null pointer.");
  }
  std::copy_n(elements, 16, rowMajor);
  transposeInPlace(rowMajor);
}

void Transform::invert() {
  if (identity) {
    return;
  }
  // The columns serve as rows: the inverse of the transpose is the transpose of the inverse.
  float a[4][4];
  std::copy_n(elements, 16, &a[0][0]);
  int pivots[4];
  decompose(a, pivots);
  for (int j = 0; j < 4; ++j) {
    float x[4] = {};
    x[j] = 1.0F;
    substitute(a, pivots, x);
    for (int i = 0; i < 4; ++i) {
      elements[4 * i + j] = x[i];
    }
  }
}

void Transform::transpose() {
  transposeInPlace(elements);
}

void Transform::postMultiply(const Transform& transform) {
  if (transform.identity) {
    return;
  }
  if (identity) {
    *this = transform;
    return;
  }
  float old[16];
  std::copy_n(elements, 16, old);
  for (int column = 0; column < 4; ++column) {
    for (int row = 0; row < 4; ++row) {
      elements[4 * column + row] = productElement(old, transform.elements + 4 * column, row);
      if (this == &transform) {
        // The next sum sees this element: GCC 12 would otherwise move the loads of a whole column
        // in front of its stores.
        std::atomic_signal_fence(std::memory_order_seq_cst);
      }
    }
  }
  identity = false;
}

void Transform::postScale(float sx, float sy, float sz) {
  if (sx == 1.0F && sy == 1.0F && sz == 1.0F) {
    return;
  }
  const float scale[3] = {sx, sy, sz};
  for (int column = 0; column < 3; ++column) {
    if (identity) {
      elements[5 * column] = scale[column];
      continue;
    }
    for (int row = 0; row < 4; ++row) {
      float& element = elements[4 * column + row];
      element = static_cast<float>(static_cast<double>(element) * scale[column]);
    }
  }
  identity = false;
}

void Transform::postRotate(float angle, float ax, float ay, float az) {
  if (angle == 0.0F) {
    return;
  }
  if (ax == 0.0F && ay == 0.0F && az == 0.0F) {
    throw std::invalid_argument("Transform.postRotate rotation axis is zero vector ");
  }
  const double radians = degToRad(angle);
  double x = ax;
  double y = ay;
  double z = az;
  const double r = 1.0 / std::sqrt(x * x + y * y + z * z);
  x *= r;
  y *= r;
  z *= r;
  const double c = std::cos(radians);
  const double d = 1.0 - c;
  const double s = std::sin(radians);
  Transform rotation;
  rotation.elements[0] = static_cast<float>(x * x * d + c);
  rotation.elements[4] = static_cast<float>(x * y * d - z * s);
  rotation.elements[8] = static_cast<float>(x * z * d + y * s);
  rotation.elements[1] = static_cast<float>(x * y * d + z * s);
  rotation.elements[5] = static_cast<float>(y * y * d + c);
  rotation.elements[9] = static_cast<float>(y * z * d - x * s);
  rotation.elements[2] = static_cast<float>(x * z * d - y * s);
  rotation.elements[6] = static_cast<float>(y * z * d + x * s);
  rotation.elements[10] = static_cast<float>(z * z * d + c);
  rotation.identity = false;
  postMultiply(rotation);
}

void Transform::postRotateQuat(float qx, float qy, float qz, float qw) {
  if (qx == 0.0F && qy == 0.0F && qz == 0.0F && qw == 0.0F) {
    throw std::invalid_argument("Transform.postRotateQuat quaternion is all zero");
  }
  const double x = qx;
  const double y = qy;
  const double z = qz;
  const double w = qw;
  Transform rotation;
  rotation.elements[0] = static_cast<float>(1.0 - (2.0 * y * y + 2.0 * z * z));
  rotation.elements[4] = static_cast<float>(2.0 * x * y - 2.0 * z * w);
  rotation.elements[8] = static_cast<float>(2.0 * x * z + 2.0 * y * w);
  rotation.elements[1] = static_cast<float>(2.0 * x * y + 2.0 * z * w);
  rotation.elements[5] = static_cast<float>(1.0 - (2.0 * x * x + 2.0 * z * z));
  rotation.elements[9] = static_cast<float>(2.0 * y * z - 2.0 * x * w);
  rotation.elements[2] = static_cast<float>(2.0 * x * z - 2.0 * y * w);
  rotation.elements[6] = static_cast<float>(2.0 * y * z + 2.0 * x * w);
  rotation.elements[10] = static_cast<float>(1.0 - (2.0 * x * x + 2.0 * y * y));
  rotation.identity = false;
  postMultiply(rotation);
}

void Transform::postTranslate(float tx, float ty, float tz) {
  if (tx == 0.0F && ty == 0.0F && tz == 0.0F) {
    return;
  }
  if (identity) {
    elements[12] = tx;
    elements[13] = ty;
    elements[14] = tz;
    identity = false;
    return;
  }
  const float translation[3] = {tx, ty, tz};
  for (int column = 0; column < 4; ++column) {
    const double bottom = elements[4 * column + 3];
    for (int row = 0; row < 3; ++row) {
      float& element = elements[4 * column + row];
      element = static_cast<float>(element + translation[row] * bottom);
    }
  }
  identity = false;
}

void Transform::transform(float* vectors, int count) const {
  if (vectors == nullptr) {
    throw std::invalid_argument("Transform.transform called with null vertex array");
  }
  if (count % 4 != 0) {
    throw std::invalid_argument(
        "Transform.transform called with vertex array of improper length.  Must be multiple of 3");
  }
  if (identity) {
    return;
  }
  for (int i = 0; i < count; i += 4) {
    const double x = vectors[i];
    const double y = vectors[i + 1];
    const double z = vectors[i + 2];
    const double w = vectors[i + 3];
    for (int row = 0; row < 4; ++row) {
      vectors[i + row] = static_cast<float>(x * elements[row] + y * elements[4 + row] +
                                            z * elements[8 + row] + w * elements[12 + row]);
    }
  }
}

}  // namespace varnel_m3g
