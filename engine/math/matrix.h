#ifndef VARNEL_ENGINE_MATH_MATRIX_H
#define VARNEL_ENGINE_MATH_MATRIX_H

namespace varnel_m3g {

/// 16 floats as a file holds them, row by row, on their way to Transform::set.
class Matrix {
 public:
  /// The identity.
  Matrix();

  /// Copies 16 floats. Throws std::invalid_argument for a null pointer.
  void setMatrix(const float* values);
  /// Copies the 16 floats out. Throws std::invalid_argument for a null pointer.
  void getMatrix(float* values) const;

  const float* data() const { return elements; }

  /// Element by element; a NaN makes two matrices unequal.
  bool operator==(const Matrix& other) const;

 private:
  float elements[16];
};

}  // namespace varnel_m3g

#endif
