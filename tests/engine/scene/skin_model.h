#ifndef VARNEL_TESTS_ENGINE_SCENE_SKIN_MODEL_H
#define VARNEL_TESTS_ENGINE_SCENE_SKIN_MODEL_H

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace varnel_test {

/// A second computation of skinning for comparison: one vertex and one component at a time, over
/// plain numbers, with the bits of a width cut off by arithmetic.
class SkinModel {
 public:
  struct Binding {
    std::array<float, 16> matrix;  // row-major
    int weight;
    int first;
    int count;
  };

  /// Both lists hold three numbers for each vertex; normals may be empty.
  SkinModel(std::vector<int> positions, int positionBits, std::vector<int> normals, int normalBits)
      : sourcePositions(std::move(positions)),
        sourceNormals(std::move(normals)),
        positionBits(positionBits),
        normalBits(normalBits) {}

  void bind(const Binding& binding) { bindings.push_back(binding); }

  void deform() {
    const int vertices = static_cast<int>(sourcePositions.size() / 3);
    std::vector<long> totals(sourcePositions.size() / 3);
    for (const Binding& b : bindings) {
      for (int v = b.first; v < b.first + b.count && v < vertices; ++v) {
        totals[static_cast<std::size_t>(v)] += b.weight;
      }
    }
    positions = sourcePositions;
    normals = sourceNormals;
    for (std::size_t i = 0; i < positions.size(); ++i) {
      if (totals[i / 3] != 0) {
        positions[i] = 0;
        if (!normals.empty()) {
          normals[i] = 0;
        }
      }
    }
    overflows.clear();
    for (const Binding& b : bindings) {
      for (int v = b.first; v < b.first + b.count && v < vertices; ++v) {
        const float inverse = static_cast<float>(1.0 / totals[static_cast<std::size_t>(v)]);
        const float w = static_cast<float>(b.weight * static_cast<double>(inverse));
        for (int axis = 0; axis < 3; ++axis) {
          const std::size_t i = static_cast<std::size_t>(3 * v + axis);
          float value = moved(b, sourcePositions, v, axis, true, w, positions[i]);
          positions[i] = cut(value, positionBits);
          if (axis == 2) {
            value = static_cast<float>(positions[i]);
          }
          const float end = std::ldexp(1.0F, positionBits - 1);
          if (value <= -end || value >= end - 1) {
            char text[80];
            std::snprintf(text, sizeof text, "++++++++++++++++++++++ %c overflow!!  %8.2f\n",
                          "XYZ"[axis], static_cast<double>(value));
            overflows += text;
          }
          if (!normals.empty()) {
            normals[i] = cut(moved(b, sourceNormals, v, axis, false, w, normals[i]), normalBits);
          }
        }
      }
    }
  }

  std::vector<int> positions;
  std::vector<int> normals;
  std::string overflows;

 private:
  static float moved(const Binding& b, const std::vector<int>& source, int vertex, int axis,
                     bool withLastRow, float weight, int present) {
    const int* p = &source[static_cast<std::size_t>(3 * vertex)];
    double sum = 0;
    for (int row = 0; row < 3; ++row) {
      sum += p[row] * static_cast<double>(b.matrix[static_cast<std::size_t>(4 * row + axis)]);
    }
    if (withLastRow) {
      sum += static_cast<double>(b.matrix[static_cast<std::size_t>(12 + axis)]);
    }
    return static_cast<float>(present + sum * static_cast<double>(weight));
  }

  static int cut(float value, int bits) {
    const std::int64_t range = std::int64_t{1} << bits;
    std::int64_t whole = static_cast<std::int64_t>(std::trunc(value)) % range;
    if (whole < -range / 2) {
      whole += range;
    } else if (whole >= range / 2) {
      whole -= range;
    }
    return static_cast<int>(whole);
  }

  std::vector<int> sourcePositions;
  std::vector<int> sourceNormals;
  int positionBits;
  int normalBits;
  std::vector<Binding> bindings;
};

}  // namespace varnel_test

#endif
