// Appearance, after the Object3D section:
//   Byte layer, Index compositingMode, Index fog, Index polygonMode, Index material,
//   Int32 textureCount, then that many Index texture

#include "engine/surface/appearance.h"

#include <vector>

#include "engine/loader/records/reference.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"

namespace varnel_m3g {

void Appearance::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setLayer(stream.readByte());
  setCompositingMode(readReference<CompositingMode>(
      stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
      "Appearance:.. invalid CompositingMode reference index",
      "Appearance:.. invalid CompositingMode being set as attribute"));
  setFog(readReference<Fog>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                            "Appearance:.. invliad Fog object reference index",
                            "Appearance:.. invalid Fog object being set as attribute"));
  setPolygonMode(
      readReference<PolygonMode>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                                 "Appearance:.. invalid PolygonMode reference index",
                                 "Appearance:.. invalid PolygonMode being set as attribute"));
  setMaterial(readReference<Material>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                                      "Appearance:.. invalid Material reference index",
                                      "Appearance:.. invalid Material being set as attribute"));

  const std::uint32_t textureCount = static_cast<std::uint32_t>(stream.readInt32());
  if (textureCount == 0) {
    return;
  }
  stream.requireRest(textureCount, 4);
  std::vector<boost::shared_ptr<Texture2D>> newTextures(textureCount);
  for (boost::shared_ptr<Texture2D>& texture : newTextures) {
    texture = readReference<Texture2D>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                                       "Appearance:.. invalid Texture2D reference index",
                                       "Appearance:.. invalid Texture2D being set as attribute");
  }
  for (std::uint32_t i = 0; i < textureCount; ++i) {
    setTexture(static_cast<int>(i), newTextures[i]);
  }
}

}  // namespace varnel_m3g
