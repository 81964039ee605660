// Group, after the Node section:
//   Int32 childCount, then that many Index child

#include "engine/scene/group.h"

#include "engine/loader/records/reference.h"

namespace varnel_m3g {

void Group::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Node::load(stream, table);
  const std::uint32_t childCount = static_cast<std::uint32_t>(stream.readInt32());
  for (std::uint32_t i = 0; i < childCount; ++i) {
    // Children stand before their parents in a file: handing root and depth down at each level
    // would walk a deep chain once for every group of it. The end of the load does it once for all.
    adopt(readReference<Node>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::ENTRY,
                              "Group: file load... invalid Node reference index",
                              "Group: file load... ID for child not ID for node"));
  }
}

}  // namespace varnel_m3g
