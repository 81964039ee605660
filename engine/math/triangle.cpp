#include "engine/math/triangle.h"

#include <cmath>
#include <limits>

#include "engine/math/angle.h"
#include "engine/math/vector.h"

namespace varnel_m3g {

namespace {

constexpr float miss = -std::numeric_limits<float>::infinity();

// Values of the polygon mode.
constexpr int cullBack = 160;
constexpr int cullFront = 161;
constexpr int windingClockwise = 169;

// The angle between two unit vectors in radians; not a number stays so.
float angleBetween(const float* a, const float* b) {
  float d = dotProduct(a, b);
  if (d > 1.0F) {
    d = 1.0F;
  }
  if (d < -1.0F) {
    d = -1.0F;
  }
  return arcCosine(d);
}

// The areas that p spans with the edges of a triangle, and its own.
struct Areas {
  double pab;
  double pac;
  double pbc;
  double abc;

  Areas(const float* p, const float* a, const float* b, const float* c)
      : pab(triangleArea(p, a, b)),
        pac(triangleArea(p, a, c)),
        pbc(triangleArea(p, b, c)),
        abc(triangleArea(a, b, c)) {}

  // Each corner's value weighs as the area on the other side of p.
  float blend(float atA, float atB, float atC) const {
    return static_cast<float>((atA * pbc + atB * pac + atC * pab) / abc);
  }
};

}  // namespace

float triangleArea(const float* a, const float* b, const float* c) {
  float cross[3];
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3;
    const int k = (i + 2) % 3;
    cross[i] =
        static_cast<float>((static_cast<double>(b[j]) - a[j]) * (static_cast<double>(c[k]) - a[k]) -
                           (static_cast<double>(c[j]) - a[j]) * (static_cast<double>(b[k]) - a[k]));
  }
  return static_cast<float>(static_cast<double>(vectorLength(cross)) / 2.0);
}

float rayTriangle(const float* p0, const float* p1, const float* a, const float* b, const float* c,
                  float* out) {
  float ab[3];
  float ac[3];
  float n[3];
  subtract(b, a, ab);
  subtract(c, a, ac);
  crossProduct(ab, ac, n);
  if (vectorLength(n) < kernelTolerance) {
    return miss;
  }
  normalizeVector(n);
  const double d = -static_cast<double>(dotProduct(n, a));
  float direction[3];
  subtract(p1, p0, direction);
  const double e = dotProduct(n, direction);
  if (std::fabs(e) < kernelTolerance) {
    return miss;
  }
  const float t = static_cast<float>(-(dotProduct(n, p0) + d) / e);
  float hit[3];
  for (int i = 0; i < 3; ++i) {
    hit[i] = static_cast<float>(p0[i] + static_cast<double>(t) * direction[i]);
  }
  if (t < 0.0F) {
    return miss;
  }
  // The corners stand around a point inside at angles that add up to a full turn.
  float u[3];
  float v[3];
  float w[3];
  subtract(a, hit, u);
  subtract(b, hit, v);
  subtract(c, hit, w);
  normalizeVector(u);
  normalizeVector(v);
  normalizeVector(w);
  const double turn =
      static_cast<double>(angleBetween(u, v)) + angleBetween(v, w) + angleBetween(w, u);
  if (std::fabs(radToDeg(turn) - 360.0) > kernelTolerance) {
    return miss;
  }
  if (out != nullptr) {
    for (int i = 0; i < 3; ++i) {
      out[i] = hit[i];
    }
  }
  return t;
}

bool triangleFacing(int parity, const float* a, const float* b, const float* c,
                    const float* direction, int winding, int culling) {
  float e1[3];
  float e2[3];
  if (parity % 2 != 0) {
    subtract(a, b, e1);
    subtract(c, b, e2);
  } else {
    subtract(b, a, e1);
    subtract(c, a, e2);
  }
  float n[3];
  crossNormal(e1, e2, n);
  if (winding == windingClockwise) {
    scaleVector(n, -1.0F, 3);
  }
  const double lengths = static_cast<double>(vectorLength(n)) * vectorLength(direction);
  const float cosine = static_cast<float>(dotProduct(n, direction) / lengths);
  if (std::fabs(cosine) < kernelTolerance) {
    return false;
  }
  if (culling == cullBack) {
    return !(cosine > 0.0F);
  }
  if (culling == cullFront) {
    return !(cosine <= 0.0F);
  }
  return true;
}

float* interpolateNormal(const float* p, const float* a, const float* b, const float* c, float* na,
                         float* nb, float* nc) {
  normalizeVector(na);
  normalizeVector(nb);
  normalizeVector(nc);
  const Areas areas(p, a, b, c);
  float* normal = new float[3];
  for (int i = 0; i < 3; ++i) {
    normal[i] = areas.blend(na[i], nb[i], nc[i]);
  }
  normalizeVector(normal);
  return normal;
}

float* interpolateTexCoord(const float* p, const float* a, const float* b, const float* c,
                           const float* ta, const float* tb, const float* tc) {
  const Areas areas(p, a, b, c);
  float* texCoord = new float[2];
  for (int i = 0; i < 2; ++i) {
    texCoord[i] = areas.blend(ta[i], tb[i], tc[i]);
  }
  return texCoord;
}

}  // namespace varnel_m3g
