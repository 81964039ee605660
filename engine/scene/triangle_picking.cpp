#include <limits>
#include <memory>

#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/math/transform.h"
#include "engine/math/triangle.h"
#include "engine/object/engine_limits.h"
#include "engine/scene/ray_intersection.h"
#include "engine/surface/polygon_mode.h"

namespace varnel_m3g {

namespace {

// A vertex in the coordinates of the picking node.
struct PickVertex {
  int index = 0;  // in the vertex buffer
  float position[4] = {};

  void read(const VertexBuffer& vertices, int vertexIndex, const Transform& toNode) {
    index = vertexIndex;
    vertices.readVertex(index, position);
    position[3] = 1.0f;
    toNode.transform(position, 4);
  }
};

void readNormal(const VertexBuffer& vertices, int index, const Transform& toNode, float* out) {
  vertices.readNormal(index, out);
  out[3] = 0.0f;
  toNode.transform(out, 4);
}

// The normal at the hit. The explicit form takes the first corner's normal for all three.
void noteNormal(const VertexBuffer& vertices, bool isExplicit, const PickVertex& a,
                const PickVertex& b, const PickVertex& c, const Transform& toNode, const float* hit,
                RayIntersection& result) {
  float na[4];
  float nb[4];
  float nc[4];
  readNormal(vertices, a.index, toNode, na);
  readNormal(vertices, isExplicit ? a.index : b.index, toNode, nb);
  readNormal(vertices, isExplicit ? a.index : c.index, toNode, nc);
  const std::unique_ptr<float[]> normal(
      interpolateNormal(hit, a.position, b.position, c.position, na, nb, nc));
  result.setNormal(normal.get());
}

// The texture coordinates at the hit; units without an array keep theirs.
void noteTexCoords(const VertexBuffer& vertices, const PickVertex& a, const PickVertex& b,
                   const PickVertex& c, const float* hit, RayIntersection& result) {
  for (int unit = 0; unit < maxTextureUnits; ++unit) {
    float ta[4];
    float tb[4];
    float tc[4];
    if (vertices.readTexCoord(a.index, unit, ta) && vertices.readTexCoord(b.index, unit, tb) &&
        vertices.readTexCoord(c.index, unit, tc)) {
      const std::unique_ptr<float[]> coords(
          interpolateTexCoord(hit, a.position, b.position, c.position, ta, tb, tc));
      result.setTextureCoords(static_cast<unsigned>(unit), coords[0], coords[1]);
    }
  }
}

}  // namespace

void TriangleStripArray::intersect(const float* p0, const float* p1, const Transform& toMesh,
                                   RayIntersection& result, const PolygonMode* mode,
                                   VertexBuffer& vertices) {
  const int winding = mode != nullptr ? mode->getWinding() : PolygonMode::WINDING_CCW;
  const int culling = mode != nullptr ? mode->getCulling() : PolygonMode::CULL_BACK;
  float direction[3];
  for (int k = 0; k < 3; ++k) {
    direction[k] = static_cast<float>(static_cast<double>(p1[k]) - static_cast<double>(p0[k]));
  }
  for (unsigned strip = 0; strip < stripCount(); ++strip) {
    const unsigned length = stripLength(strip);
    const auto vertexAt = [&](unsigned place) {
      return isExplicit() ? static_cast<int>(stripIndices(strip)[place])
                          : static_cast<int>(stripStart(strip) + place);
    };
    if (length < 3) {
      continue;
    }
    // Each vertex is read once: the corners move along the strip.
    PickVertex a;
    PickVertex b;
    PickVertex c;
    b.read(vertices, vertexAt(0), toMesh);
    c.read(vertices, vertexAt(1), toMesh);
    for (unsigned i = 0; i + 2 < length; ++i) {
      a = b;
      b = c;
      c.read(vertices, vertexAt(i + 2), toMesh);
      float hit[3];
      const float t = rayTriangle(p0, p1, a.position, b.position, c.position, hit);
      if (t == -std::numeric_limits<float>::infinity()) {
        continue;
      }
      if (result.getDistance() != 0.0f && !(t < result.getDistance())) {
        continue;
      }
      if (!triangleFacing(static_cast<int>(i), a.position, b.position, c.position, direction,
                          winding, culling)) {
        continue;
      }
      if (vertices.getNormals()) {
        noteNormal(vertices, isExplicit(), a, b, c, toMesh, hit, result);
      }
      if (vertices.hasTexCoordTables()) {
        noteTexCoords(vertices, a, b, c, hit, result);
      }
      result.setDistance(t);
    }
  }
}

}  // namespace varnel_m3g
