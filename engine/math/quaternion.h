#ifndef VARNEL_ENGINE_MATH_QUATERNION_H
#define VARNEL_ENGINE_MATH_QUATERNION_H

namespace varnel_m3g {

// Quaternions are arrays of 4 floats, x, y, z, w; angle and axis are 4 floats, degrees, x, y, z.
// An array that a function returns was made with array new and is the caller's; the forms with
// `out` write 4 floats there, which are not an input's.

/// The rotation by `angle` degrees; the axis is used as it is, not normalised.
void axisAngleToQuat(float angle, float x, float y, float z, float* out);
float* newQuatFromAxisAngle(float angle, float x, float y, float z);

/// out = a b, with w limited to -1..1; `out` must not be an input.
void quatMultiply(const float* a, const float* b, float* out);

float quatNormSquared(const float* q);
/// In place; a zero quaternion stays.
void quatNormalize(float* q);
/// The conjugate over the squared norm; a zero quaternion comes back as it is.
float* quatInverse(const float* q);
void quatInverse(const float* q, float* out);

/// The angle and a unit axis; (1, 0, 0) for a rotation near none. Normalises q in place when it is
/// longer than 1.
float* quatToAxisAngle(float* q);
void quatToAxisAngle(float* q, float* out);

/// Half the angle in radians times the axis, in the first three of 4 floats; the fourth has no
/// meaning. Normalises q like quatToAxisAngle.
float* quatLog(float* q);
void quatLog(float* q, float* out);
/// The quaternion of a logarithm of 3 floats.
float* quatExp(const float* v);
void quatExp(const float* v, float* out);

/// From a at t = 0 to b at t = 1: spherical below an angle of 0.95 radians, linear above.
void quatSlerp(float t, const float* a, const float* b, float* out);
/// The same along the shorter way.
void quatSlerpShortest(float t, const float* a, const float* b, float* out);

}  // namespace varnel_m3g

#endif
