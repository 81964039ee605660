#ifndef VARNEL_ENGINE_MATH_TRIANGLE_H
#define VARNEL_ENGINE_MATH_TRIANGLE_H

namespace varnel_m3g {

// Points and vectors are arrays of 3 floats; texture coordinates are arrays of 2.

/// The area of the triangle a, b, c, never negative.
float triangleArea(const float* a, const float* b, const float* c);

/// Where the ray from p0 through p1 meets the triangle, in multiples of p1 - p0, and the point in
/// `out` unless that is null; minus infinity when it does not.
float rayTriangle(const float* p0, const float* p1, const float* a, const float* b, const float* c,
                  float* out);

/// Whether a triangle of a strip is to be picked by a ray of this direction. `parity` is the
/// triangle's place in the strip; `winding` and `culling` are those of a polygon mode. Throws
/// std::runtime_error when the triangle is too small to have a normal.
bool triangleFacing(int parity, const float* a, const float* b, const float* c,
                    const float* direction, int winding, int culling);

/// The normal at p, from those of the corners a, b, c, which are normalised in place. Returns 3
/// floats made with array new.
float* interpolateNormal(const float* p, const float* a, const float* b, const float* c, float* na,
                         float* nb, float* nc);

/// The texture coordinates at p, from those of the corners. Returns 2 floats made with array new.
float* interpolateTexCoord(const float* p, const float* a, const float* b, const float* c,
                           const float* ta, const float* tb, const float* tc);

}  // namespace varnel_m3g

#endif
