#ifndef VARNEL_ENGINE_SCENE_SKIN_ACCUMULATOR_H
#define VARNEL_ENGINE_SCENE_SKIN_ACCUMULATOR_H

#include <cstddef>

namespace varnel_m3g {

// The integer sums of skinning, over records of three components of 8 or 16 bits. Values wrap to
// the width of their array.

/// Copies `vertices` records and clears those whose inverse weight is not 0.
template <class Component>
void clearBound(const Component* source, const float* inverseWeights, std::size_t vertices,
                Component* out);

/// Adds one bone's part of a run of positions: the source under the matrix, 16 floats in row-major
/// order, times the weight. The matrix acts transposed, and its translation not at all. Values that
/// leave the width are reported on the standard error stream.
template <class Component>
void accumulatePositions(const float* matrix, int weight, const float* inverseWeights,
                         const Component* source, std::size_t vertices, Component* out);

/// The same for normals, without a report.
template <class Component>
void accumulateNormals(const float* matrix, int weight, const float* inverseWeights,
                       const Component* source, std::size_t vertices, Component* out);

extern template void clearBound(const signed char*, const float*, std::size_t, signed char*);
extern template void clearBound(const short*, const float*, std::size_t, short*);
extern template void accumulatePositions(const float*, int, const float*, const signed char*,
                                         std::size_t, signed char*);
extern template void accumulatePositions(const float*, int, const float*, const short*, std::size_t,
                                         short*);
extern template void accumulateNormals(const float*, int, const float*, const signed char*,
                                       std::size_t, signed char*);
extern template void accumulateNormals(const float*, int, const float*, const short*, std::size_t,
                                       short*);

}  // namespace varnel_m3g

#endif
