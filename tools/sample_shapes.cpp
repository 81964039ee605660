#include "tools/sample_shapes.h"

#include <algorithm>
#include <cmath>

namespace varnel_samples {
namespace {

constexpr double pi = 3.14159265358979323846;

int fixed(double value) {
  return static_cast<int>(std::lround(value / shapeScale));
}

void addVertex(Shape& shape, double x, double y, double z, double nx, double ny, double nz,
               double s, double t) {
  shape.positions.insert(shape.positions.end(), {fixed(x), fixed(y), fixed(z)});
  for (const double component : {nx, ny, nz}) {
    shape.normals.push_back(static_cast<int>(std::lround(component * 127)));
  }
  shape.texCoords.insert(shape.texCoords.end(), {fixed(s), fixed(t)});
}

/// Strips between neighbouring rows of a grid of vertices, front faces where columns run to the
/// right and rows run down.
void addGridStrips(Shape& shape, int rows, int columns) {
  for (int row = 0; row + 1 < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      shape.indices.push_back(row * columns + column);
      shape.indices.push_back((row + 1) * columns + column);
    }
    shape.stripLengths.push_back(2 * columns);
  }
}

void addPixel(Picture& picture, const double* rgb, double shade) {
  for (int channel = 0; channel < 3; ++channel) {
    picture.pixels += static_cast<char>(std::clamp(std::lround(rgb[channel] * shade), 0L, 255L));
  }
}

}  // namespace

Shape torus(float radius, float tube, int segments, int sides, int turns) {
  Shape shape;
  for (int side = 0; side <= sides; ++side) {
    const double around = -2 * pi * side / sides;
    for (int segment = 0; segment <= segments; ++segment) {
      const double along = 2 * pi * segment / segments;
      const double nx = std::cos(around) * std::sin(along);
      const double ny = std::sin(around);
      const double nz = std::cos(around) * std::cos(along);
      const double reach = radius + tube * std::cos(around);
      addVertex(shape, reach * std::sin(along), tube * ny, reach * std::cos(along), nx, ny, nz,
                double(turns) * segment / segments, double(side) / sides);
    }
  }
  addGridStrips(shape, sides + 1, segments + 1);
  return shape;
}

Shape sphere(float radius, int slices, int stacks) {
  Shape shape;
  for (int stack = 0; stack <= stacks; ++stack) {
    const double down = pi * stack / stacks;
    for (int slice = 0; slice <= slices; ++slice) {
      const double around = 2 * pi * slice / slices;
      const double nx = std::sin(down) * std::sin(around);
      const double ny = std::cos(down);
      const double nz = std::sin(down) * std::cos(around);
      addVertex(shape, radius * nx, radius * ny, radius * nz, nx, ny, nz, double(slice) / slices,
                double(stack) / stacks);
    }
  }
  addGridStrips(shape, stacks + 1, slices + 1);
  return shape;
}

Shape column(float radius, float height, int sides, int rings) {
  Shape shape;
  for (int ring = 0; ring <= rings; ++ring) {
    const double up = 1.0 - double(ring) / rings;
    const double reach = radius * (1.0 - 0.25 * up);
    for (int side = 0; side <= sides; ++side) {
      const double around = 2 * pi * side / sides;
      addVertex(shape, reach * std::sin(around), height * up, reach * std::cos(around),
                std::sin(around), 0.0, std::cos(around), double(side) / sides, 1.0 - up);
    }
  }
  addGridStrips(shape, rings + 1, sides + 1);
  return shape;
}

Shape cube(float halfEdge) {
  // Each face: its normal, and where its texture's s and t grow.
  const double faces[6][3][3] = {
      {{0, 0, 1}, {1, 0, 0}, {0, -1, 0}},  {{0, 0, -1}, {-1, 0, 0}, {0, -1, 0}},
      {{1, 0, 0}, {0, 0, -1}, {0, -1, 0}}, {{-1, 0, 0}, {0, 0, 1}, {0, -1, 0}},
      {{0, 1, 0}, {1, 0, 0}, {0, 0, 1}},   {{0, -1, 0}, {1, 0, 0}, {0, 0, -1}}};
  Shape shape;
  for (const auto& [normal, right, down] : faces) {
    const int first = shape.vertexCount();
    for (int corner = 0; corner < 4; ++corner) {
      const int s = corner / 2;
      const int t = corner % 2;
      double position[3];
      for (int axis = 0; axis < 3; ++axis) {
        position[axis] =
            halfEdge * (normal[axis] + (2 * s - 1) * right[axis] + (2 * t - 1) * down[axis]);
      }
      addVertex(shape, position[0], position[1], position[2], normal[0], normal[1], normal[2], s,
                t);
      shape.indices.push_back(first + corner);
    }
    shape.stripLengths.push_back(4);
  }
  return shape;
}

Picture tiles(int size) {
  const double light[3] = {226, 218, 200};
  const double dark[3] = {104, 116, 130};
  Picture picture{size, size, ""};
  const int half = size / 2;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const int inX = x % half;
      const int inY = y % half;
      const bool joint = inX == 0 || inY == 0 || inX == half - 1 || inY == half - 1;
      // A fixed grain, so that the tiles do not look flat.
      const double grain = 0.96 + 0.04 * std::sin(x * 12.9898 + y * 78.233);
      addPixel(picture, (x / half + y / half) % 2 == 0 ? light : dark, joint ? 0.72 : grain);
    }
  }
  return picture;
}

Picture bands(int size) {
  const double colors[4][3] = {{236, 88, 60}, {250, 200, 80}, {52, 152, 160}, {246, 240, 226}};
  Picture picture{size, size, ""};
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const int phase = (x + y) % size;
      const int band = phase * 4 / size;
      const int inBand = phase - band * size / 4;
      addPixel(picture, colors[band], inBand == 0 ? 0.55 : 1.0);
    }
  }
  return picture;
}

Picture flutes(int size) {
  const double stone[3] = {238, 208, 172};
  Picture picture{size, size, ""};
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const double flute = 0.84 + 0.16 * std::cos(2 * pi * 8 * (x + 0.5) / size);
      const double grain = 0.97 + 0.03 * std::sin(x * 3.1 + y * 7.7);
      addPixel(picture, stone, flute * grain);
    }
  }
  return picture;
}

Picture beachBall(int width, int height) {
  const double colors[6][3] = {{226, 62, 58},  {248, 248, 244}, {58, 116, 206},
                               {250, 206, 70}, {248, 248, 244}, {70, 168, 96}};
  const double cap[3] = {248, 248, 244};
  Picture picture{width, height, ""};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const bool isCap = y * 12 < height || (height - 1 - y) * 12 < height;
      addPixel(picture, isCap ? cap : colors[x * 6 / width], 1.0);
    }
  }
  return picture;
}

Picture blob(int size) {
  Picture picture{size, size, ""};
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const double dx = (2.0 * x + 1 - size) / size;
      const double dy = (2.0 * y + 1 - size) / size;
      const double inside = std::max(0.0, 1.0 - std::sqrt(dx * dx + dy * dy));
      const double smooth = inside * inside * (3 - 2 * inside);
      picture.pixels.append(3, '\0');
      picture.pixels += static_cast<char>(std::lround(165 * smooth));
    }
  }
  return picture;
}

}  // namespace varnel_samples
