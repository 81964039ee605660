// Node section, after the Transformable section:
//   Boolean enableRendering, Boolean enablePicking, Byte alphaFactor (0..1 in 255 steps),
//   Int32 scope
//   Boolean hasAlignment; if set: Byte zTarget, Byte yTarget, Index zReference, Index yReference

#include "engine/scene/node.h"

#include "engine/loader/records/reference.h"

namespace varnel_m3g {

void Node::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Transformable::load(stream, table);
  setNodeDefaults();
  setRenderingEnable(stream.readBoolean());
  setPickingEnable(stream.readBoolean());
  setAlphaFactor(stream.readNormalisedByte());
  setScope(stream.readInt32());
  if (stream.readBoolean()) {
    const int newZTarget = stream.readByte();
    const int newYTarget = stream.readByte();
    const boost::shared_ptr<Node> zNode =
        readReference<Node>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                            "Node: file loader... invalid zTarget reference index",
                            "Node:  file loader... invlalid Z reference node");
    const boost::shared_ptr<Node> yNode =
        readReference<Node>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                            "Node: file loader... invalid yTarget reference index",
                            "Node: file loader... invalid Y reference node");
    // The references stand in no tree with this node yet, so they are stored past the setter.
    setAlignment(boost::shared_ptr<Node>(), newZTarget, boost::shared_ptr<Node>(), newYTarget);
    zReference = zNode;
    yReference = yNode;
  }
}

}  // namespace varnel_m3g
