#ifndef VARNEL_ENGINE_MATH_VECTOR_H
#define VARNEL_ENGINE_MATH_VECTOR_H

namespace varnel_m3g {

// Vectors are arrays of 3 floats, x, y, z, unless a length is given. An array that a function
// returns was made with array new and is the caller's.

/// The smaller and the larger of two; the second argument wins on equality.
float minFloat(float a, float b);
float maxFloat(float a, float b);

/// A copy of n floats.
float* copyVector(const float* values, int n);
/// The sum of min(n, m) elements; `length` receives that number.
float* addVectors(const float* a, int n, const float* b, int m, int* length);
/// a - b, n elements.
float* subtractVectors(const float* a, const float* b, int n);
/// Multiplies n elements in place.
void scaleVector(float* values, float s, int n);

/// Makes the length 1, in place. A zero vector becomes non-finite.
void normalizeVector(float* v);
float dotProduct(const float* a, const float* b);
float vectorLength(const float* v);
float pointDistance(const float* a, const float* b);

/// out = a - b.
void subtract(const float* a, const float* b, float* out);
/// out = a x b; `out` must not be an input.
void crossProduct(const float* a, const float* b, float* out);

/// The normalised cross product. Throws std::runtime_error when its length is below 0.001.
float* crossNormal(const float* a, const float* b);
/// The same into `out`, which must not be an input.
void crossNormal(const float* a, const float* b, float* out);

}  // namespace varnel_m3g

#endif
