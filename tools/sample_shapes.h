#ifndef VARNEL_TOOLS_SAMPLE_SHAPES_H
#define VARNEL_TOOLS_SAMPLE_SHAPES_H

#include <string>
#include <vector>

// Geometry and pictures of the sample scenes, computed, as the records take them.

namespace varnel_samples {

/// A shape as strips: positions in shorts of 1/4096, normals in bytes, texture coordinates in
/// shorts of 1/4096.
struct Shape {
  std::vector<int> positions;  // x, y, z of each vertex
  std::vector<int> normals;
  std::vector<int> texCoords;  // s, t of each vertex
  std::vector<int> indices;
  std::vector<int> stripLengths;

  int vertexCount() const { return static_cast<int>(positions.size() / 3); }
};

/// One step of positions and texture coordinates of a Shape.
constexpr float shapeScale = 1.0f / 4096.0f;

/// A ring about the y axis with its texture wrapped `turns` times around it.
Shape torus(float radius, float tube, int segments, int sides, int turns);
Shape sphere(float radius, int slices, int stacks);
/// An open tube about the y axis from y = 0 upwards, narrower at the top.
Shape column(float radius, float height, int sides, int rings);
Shape cube(float halfEdge);

/// R, G, B of each pixel, rows from the top.
struct Picture {
  int width;
  int height;
  std::string pixels;
};

/// Light and dark tiles with a thin joint between them.
Picture tiles(int size);
/// Slanted bands of four colours that join at the edges.
Picture bands(int size);
/// Warm stone with eight upright flutes.
Picture flutes(int size);
/// Six coloured panels with light caps, to be wrapped around a sphere.
Picture beachBall(int width, int height);
/// R, G, B, A: black, opaque in the middle and clear at the edge.
Picture blob(int size);

}  // namespace varnel_samples

#endif
