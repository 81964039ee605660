#include "engine/scene/skin_accumulator.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <type_traits>

namespace varnel_m3g {

namespace {

// Vertices that are summed at a time, component by component in arrays of their own.
constexpr std::size_t blockSize = 128;

// The working values of one block. Each loop over it goes through contiguous arrays without a
// branch, so that the compiler makes vector code of it.
struct Block {
  std::int32_t source[3][blockSize];
  std::int32_t present[3][blockSize];
  float weights[blockSize];
  float sums[3][blockSize];
  std::int32_t whole[3][blockSize];
};

// Three factors and a term without a coordinate.
using Column = double[4];

template <class Component>
void split(const Component* records, std::size_t count, std::int32_t (&out)[3][blockSize]) {
  for (std::size_t v = 0; v < count; ++v) {
    out[0][v] = records[3 * v];
    out[1][v] = records[3 * v + 1];
    out[2][v] = records[3 * v + 2];
  }
}

void weigh(int weight, const float* inverseWeights, std::size_t count, float* out) {
  const double factor = weight;
  for (std::size_t v = 0; v < count; ++v) {
    out[v] = static_cast<float>(factor * static_cast<double>(inverseWeights[v]));
  }
}

void sum(const Column& column, const Block& block, std::size_t count, const std::int32_t* present,
         float* out) {
  const double a = column[0];
  const double b = column[1];
  const double c = column[2];
  const double d = column[3];
  for (std::size_t v = 0; v < count; ++v) {
    const double moved =
        block.source[0][v] * a + block.source[1][v] * b + block.source[2][v] * c + d;
    out[v] = static_cast<float>(present[v] + moved * static_cast<double>(block.weights[v]));
  }
}

// Integer parts; 0 for what no int holds, so that its low bits are 0 too.
void truncate(const float* values, std::size_t count, std::int32_t* out) {
  constexpr float lowest = -2147483648.0F;
  for (std::size_t v = 0; v < count; ++v) {
    const float above = values[v] >= lowest ? values[v] : 0.0F;
    const float within = above < -lowest ? above : 0.0F;
    out[v] = static_cast<std::int32_t>(within);
  }
}

template <class Component>
Component wrapped(std::int32_t value) {
  return static_cast<Component>(
      static_cast<std::make_unsigned_t<Component>>(static_cast<std::uint32_t>(value)));
}

template <class Component>
void join(const std::int32_t (&values)[3][blockSize], std::size_t count, Component* records) {
  for (std::size_t v = 0; v < count; ++v) {
    records[3 * v] = wrapped<Component>(values[0][v]);
    records[3 * v + 1] = wrapped<Component>(values[1][v]);
    records[3 * v + 2] = wrapped<Component>(values[2][v]);
  }
}

template <class Component>
void addBlock(const Column (&columns)[3], int weight, const float* inverseWeights,
              const Component* source, std::size_t count, Component* out, Block& block) {
  split(source, count, block.source);
  split(out, count, block.present);
  weigh(weight, inverseWeights, count, block.weights);
  for (std::size_t c = 0; c < 3; ++c) {
    sum(columns[c], block, count, block.present[c], block.sums[c]);
    truncate(block.sums[c], count, block.whole[c]);
  }
  join(block.whole, count, out);
}

// Whether a value is beyond the width or at its very ends.
template <class Component>
bool isOutside(float value) {
  return !(value > static_cast<float>(std::numeric_limits<Component>::min()) &&
           value < static_cast<float>(std::numeric_limits<Component>::max()));
}

template <class Component>
void report(char axis, float value) {
  if (isOutside<Component>(value)) {
    std::fprintf(stderr, "++++++++++++++++++++++ %c overflow!!  %8.2f\n", axis,
                 static_cast<double>(value));
  }
}

template <class Component>
void reportOverflows(const Block& block, std::size_t count, const Component* out) {
  int outside = 0;
  for (std::size_t v = 0; v < count; ++v) {
    outside |= isOutside<Component>(block.sums[0][v]) ? 1 : 0;
    outside |= isOutside<Component>(block.sums[1][v]) ? 1 : 0;
    // The last component has wrapped before it is looked at.
    outside |= isOutside<Component>(out[3 * v + 2]) ? 1 : 0;
  }
  if (outside == 0) {
    return;
  }
  for (std::size_t v = 0; v < count; ++v) {
    report<Component>('X', block.sums[0][v]);
    report<Component>('Y', block.sums[1][v]);
    report<Component>('Z', out[3 * v + 2]);
  }
}

// The factors of the three components, read down the columns of the row-major matrix.
void readColumns(const float* matrix, bool withLastRow, Column (&columns)[3]) {
  for (int c = 0; c < 3; ++c) {
    for (int r = 0; r < 3; ++r) {
      columns[c][r] = matrix[4 * r + c];
    }
    columns[c][3] = withLastRow ? matrix[12 + c] : 0.0;
  }
}

}  // namespace

template <class Component>
void clearBound(const Component* source, const float* inverseWeights, std::size_t vertices,
                Component* out) {
  for (std::size_t v = 0; v < vertices; ++v) {
    const int kept = inverseWeights[v] == 0.0F ? -1 : 0;
    out[3 * v] = static_cast<Component>(source[3 * v] & kept);
    out[3 * v + 1] = static_cast<Component>(source[3 * v + 1] & kept);
    out[3 * v + 2] = static_cast<Component>(source[3 * v + 2] & kept);
  }
}

template <class Component>
void accumulatePositions(const float* matrix, int weight, const float* inverseWeights,
                         const Component* source, std::size_t vertices, Component* out) {
  Column columns[3];
  readColumns(matrix, true, columns);
  Block block;
  for (std::size_t first = 0; first < vertices; first += blockSize) {
    const std::size_t count = std::min(blockSize, vertices - first);
    addBlock(columns, weight, inverseWeights + first, source + 3 * first, count, out + 3 * first,
             block);
    reportOverflows(block, count, out + 3 * first);
  }
}

template <class Component>
void accumulateNormals(const float* matrix, int weight, const float* inverseWeights,
                       const Component* source, std::size_t vertices, Component* out) {
  Column columns[3];
  readColumns(matrix, false, columns);
  Block block;
  for (std::size_t first = 0; first < vertices; first += blockSize) {
    const std::size_t count = std::min(blockSize, vertices - first);
    addBlock(columns, weight, inverseWeights + first, source + 3 * first, count, out + 3 * first,
             block);
  }
}

template void clearBound(const signed char*, const float*, std::size_t, signed char*);
template void clearBound(const short*, const float*, std::size_t, short*);
template void accumulatePositions(const float*, int, const float*, const signed char*, std::size_t,
                                  signed char*);
template void accumulatePositions(const float*, int, const float*, const short*, std::size_t,
                                  short*);
template void accumulateNormals(const float*, int, const float*, const signed char*, std::size_t,
                                signed char*);
template void accumulateNormals(const float*, int, const float*, const short*, std::size_t, short*);

}  // namespace varnel_m3g
