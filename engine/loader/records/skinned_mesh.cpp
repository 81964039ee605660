// SkinnedMesh, after the Mesh section:
//   Index skeleton, Int32 transformReferenceCount, then for each:
//   Index transformNode, Int32 firstVertex, Int32 vertexCount, Int32 weight

#include "engine/scene/skinned_mesh.h"

#include <cstdint>

#include "engine/loader/records/reference.h"
#include "engine/scene/group.h"

namespace varnel_m3g {

void SkinnedMesh::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Mesh::load(stream, table);
  attachSkeleton(readReference<Group>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::BAD_INDEX,
                                      "SkinnedMesh: file load... invalid Skeleton reference index",
                                      "SkinnedMesh: file load...  invalid Skeleton target"));
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
    addTransform(bone, weight, first, vertices);
  }
  printWeights();
}

}  // namespace varnel_m3g
