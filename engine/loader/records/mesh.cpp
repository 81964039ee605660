// Mesh, after the Node section:
//   Index vertexBuffer, Int32 submeshCount, then for each: Index indexBuffer, Index appearance

#include "engine/scene/mesh.h"

#include <vector>

#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/loader/records/reference.h"
#include "engine/surface/appearance.h"

namespace varnel_m3g {

void Mesh::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Node::load(stream, table);
  const boost::shared_ptr<VertexBuffer> vertices =
      readReference<VertexBuffer>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::BAD_INDEX,
                                  "Mesh: file load... invalid VertexBuffer index reference",
                                  "Mesh: file load... invalid VertexBuffer being set as attribute");
  const std::uint32_t count = static_cast<std::uint32_t>(stream.readInt32());
  std::vector<boost::shared_ptr<IndexBuffer>> newSubmeshes;
  std::vector<boost::shared_ptr<Appearance>> newAppearances;
  // Room for one makes the arrays of an empty mesh no null pointers.
  newSubmeshes.reserve(1);
  newAppearances.reserve(1);
  for (std::uint32_t i = 0; i < count; ++i) {
    newSubmeshes.push_back(readReference<IndexBuffer>(
        stream, table, IndexLimit::BELOW_SIZE, IndexZero::BAD_INDEX,
        "Mesh: file load... invalid IndexBuffer index reference",
        "Mesh: file load... invalid IndexBuffer being set as attribute"));
    newAppearances.push_back(
        readReference<Appearance>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                                  "Mesh: file load... invalid Appearance index reference",
                                  "Mesh: file load... invalid Appearance being set as attribute"));
  }
  setGeometry(vertices, newSubmeshes.data(), newAppearances.data(), count);
}

}  // namespace varnel_m3g
