// CompositingMode, after the Object3D section:
//   Boolean depthTestEnabled, Boolean depthWriteEnabled, Boolean colorWriteEnabled,
//   Boolean alphaWriteEnabled, Byte blending, Byte alphaThreshold (0..1 in 255 steps),
//   Float depthOffsetFactor, Float depthOffsetUnits

#include "engine/surface/compositing_mode.h"

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void CompositingMode::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setDepthTestEnable(stream.readBoolean());
  setDepthWriteEnable(stream.readBoolean());
  setColorWriteEnable(stream.readBoolean());
  setAlphaWriteEnable(stream.readBoolean());
  setBlending(stream.readByte());
  setAlphaThreshold(stream.readNormalisedByte());
  const float factor = stream.readFloat();
  const float units = stream.readFloat();
  setDepthOffset(factor, units);
}

}  // namespace varnel_m3g
