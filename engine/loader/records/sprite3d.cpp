// Sprite3D, after the Node section; no file reaches it, since its type is read as unknown:
//   Index image, Index appearance, Boolean isScaled, Int32 cropX, cropY, cropWidth, cropHeight

#include "engine/scene/sprite3d.h"

#include "engine/loader/records/reference.h"
#include "engine/surface/appearance.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

void Sprite3D::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Node::load(stream, table);
  setImage(readReference<Image2D>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::BAD_INDEX,
                                  "Sprite3D: file loader... invalid Image2D reference index",
                                  "Sprite3D: file loader... invalid Image2D reference"));
  setAppearance(
      readReference<Appearance>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                                "Sprite3D: file loader... invalid Apperance reference index",
                                "Sprite3D: file loader... invalid Appearance reference"));
  scaled = stream.readBoolean();
  const int x = stream.readInt32();
  const int y = stream.readInt32();
  const int width = stream.readInt32();
  const int height = stream.readInt32();
  setCrop(x, y, width, height);
}

}  // namespace varnel_m3g
