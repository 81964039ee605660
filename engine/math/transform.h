#ifndef VARNEL_ENGINE_MATH_TRANSFORM_H
#define VARNEL_ENGINE_MATH_TRANSFORM_H

namespace varnel_m3g {

class VertexArray;

/// A 4 x 4 float matrix, held column by column as OpenGL ES takes it: element (row r, column c) is
/// at index 4 c + r. A flag remembers that the matrix is known to be the identity, so that most
/// operations with it cost nothing.
class Transform {
 public:
  /// The identity.
  Transform();
  Transform(const Transform& other) = default;
  Transform& operator=(const Transform& other) = default;

  void set(const Transform& other) { *this = other; }
  void setIdentity();

  /// Takes 16 floats in row-major order. Throws std::invalid_argument for a null pointer. The
  /// identity flag is false afterwards, whatever the values.
  void set(const float* rowMajor);
  /// Writes 16 floats in row-major order. Throws std::invalid_argument for a null pointer.
  void get(float* rowMajor) const;

  /// Throws std::underflow_error, with nothing changed, when a column is all zero. Other singular
  /// matrices give huge values.
  void invert();
  void transpose();

  /// this = this x `transform`. Not safe with this transform itself as the argument.
  void postMultiply(const Transform& transform);
  void postScale(float sx, float sy, float sz);
  /// Rotates by `angle` degrees about an axis of any length. Throws std::invalid_argument when the
  /// axis is zero and the angle is not.
  void postRotate(float angle, float ax, float ay, float az);
  /// The quaternion is used as it is, not normalised. Throws std::invalid_argument when it is zero.
  void postRotateQuat(float qx, float qy, float qz, float qw);
  /// Adds the translation after the present transform: it is neither rotated nor scaled by it.
  void postTranslate(float tx, float ty, float tz);

  /// Transforms `count` floats in place, in groups of four (x, y, z, w). Throws
  /// std::invalid_argument for a null pointer or a count that is no multiple of 4.
  void transform(float* vectors, int count) const;

  /// Writes the transform of the array's first vertex once for each vertex, four floats each; the
  /// input has w = 1 or, if `w` is false, 0. Throws std::invalid_argument when an argument is null
  /// or a vertex has more than 3 components.
  void transform(const VertexArray* in, float* out, bool w) const;

  /// The 16 floats, column-major.
  const float* data() const { return elements; }
  /// The same for writing. The writer clears the identity flag where it stood.
  float* data() { return elements; }

  /// True only if the matrix is known to be the identity.
  bool isIdentity() const { return identity; }
  void setIdentityFlag(bool value) { identity = value; }

 private:
  float elements[16];
  bool identity;
};

}  // namespace varnel_m3g

#endif
