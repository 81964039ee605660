#ifndef VARNEL_ENGINE_MATH_ROTATION_H
#define VARNEL_ENGINE_MATH_ROTATION_H

namespace varnel_m3g {

class Transform;

// Vectors are arrays of 3 floats; angle and axis are 4 floats, degrees, x, y, z; Euler triples are
// 3 floats, degrees about x, y, z. An array that a function returns was made with array new and is
// the caller's.

/// The angle between two vectors in degrees, 0 to 90; `axis` receives a x b.
float vectorAngle(const float* a, const float* b, float* axis);

/// The rotation that takes unit vector a to unit vector b: its angle in degrees and, in `axis`, its
/// unit axis, which is non-finite for parallel vectors.
float alignmentRotation(const float* a, const float* b, float* axis);

/// Replaces the Euler triple in the first three of 4 floats by angle and axis.
void eulerToAxisAngle(float* values);
/// The angle and unit axis of a rotation matrix.
float* matrixToAxisAngle(const Transform& transform);
/// The Euler triple of a rotation matrix.
float* matrixToEuler(const Transform& transform);
/// The Euler triple of a rotation about an axis, used as it is.
float* axisAngleToEuler(const float* axisAngle);
/// The rotation about an axis, used as it is; the caller deletes the result.
Transform* axisAngleToTransform(const float* axisAngle);

}  // namespace varnel_m3g

#endif
