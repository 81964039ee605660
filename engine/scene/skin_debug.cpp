#include "engine/scene/skin_debug.h"

#include <cstdio>

#include "engine/math/transform.h"

namespace varnel_m3g {

void debugRun(int firstVertex, int numVertices) {
  if constexpr (skinDebug) {
    std::fprintf(stderr, "addTransform: %d %d \n", firstVertex, numVertices);
  }
}

void debugMatrix(const char* title, const Transform& transform) {
  if constexpr (skinDebug) {
    float rows[16];
    transform.get(rows);
    std::fprintf(stderr, "%s\n", title);
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column) {
        std::fprintf(stderr, "%8.2f ", static_cast<double>(rows[4 * row + column]));
      }
      std::fputc('\n', stderr);
    }
  }
}

}  // namespace varnel_m3g
