// SkinnedMesh, after the Mesh section:
//   Index skeleton, Int32 transformReferenceCount, then for each:
//   Index transformNode, Int32 firstVertex, Int32 vertexCount, Int32 weight

#include "engine/scene/skinned_mesh.h"

#include <algorithm>
#include <cstdint>

#include "engine/geometry/vertex_buffer.h"
#include "engine/loader/records/reference.h"
#include "engine/scene/group.h"

namespace varnel_m3g {

void SkinnedMesh::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Mesh::load(stream, table);
  attachSkeleton(readReference<Group>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::BAD_INDEX,
                                      "SkinnedMesh: file load... invalid Skeleton reference index",
                                      "SkinnedMesh: file load...  invalid Skeleton target"));
  // Weights and the vertices that are drawn take memory that no data of the record fills, and a
  // run of vertices takes time.
  constexpr std::uint64_t bytesPerVertex = 32;
  const std::uint64_t meshVertices =
      static_cast<std::uint64_t>(getVertexBuffer()->getVertexCount());
  stream.claimUnbacked(bytesPerVertex * meshVertices);
  prepareWeights();
  const std::uint32_t count = static_cast<std::uint32_t>(stream.readInt32());
  for (std::uint32_t i = 0; i < count; ++i) {
    const boost::shared_ptr<Node> bone =
        readReference<Node>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::BAD_INDEX,
                            "SkinnedMesh: file load... invalid Transform node reference index",
                            "SkinnedMesh: file load ... invalid bone target");
    const int first = stream.readInt32();
    const int vertices = stream.readInt32();
    const int weight = stream.readInt32();
    if (first >= 0 && vertices > 0) {
      const std::uint64_t end = static_cast<std::uint64_t>(first) + static_cast<unsigned>(vertices);
      stream.claimUnbacked(end > meshVertices ? std::min<std::uint64_t>(end, 65535) * bytesPerVertex
                                              : static_cast<std::uint64_t>(vertices));
    }
    addTransform(bone, weight, first, vertices);
  }
  printWeights();
}

}  // namespace varnel_m3g
