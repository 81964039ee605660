// MorphingMesh, after the Mesh section:
//   Int32 morphTargetCount, then for each: Index morphTarget, Float initialWeight

#include "engine/scene/morphing_mesh.h"

#include <cstdint>
#include <stdexcept>

#include "engine/geometry/vertex_buffer.h"
#include "engine/loader/records/reference.h"

namespace varnel_m3g {

void MorphingMesh::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Mesh::load(stream, table);
  const std::uint32_t count = static_cast<std::uint32_t>(stream.readInt32());
  if (count == 0) {
    throw std::runtime_error("MorphingMesh.load -- no morph targets");
  }
  // The targets are held but do not count: the mesh shows its base shape.
  for (std::uint32_t i = 0; i < count; ++i) {
    morphTargets.push_back(readReference<VertexBuffer>(
        stream, table, IndexLimit::UP_TO_SIZE, IndexZero::BAD_INDEX,
        "MorphingMesh  file load... invalid MorphTarget index reference",
        "MorphingMesh.load -- null morph target"));
    weights.push_back(stream.readFloat());
  }
  prepareBlend();
}

}  // namespace varnel_m3g
