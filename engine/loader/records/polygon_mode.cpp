// PolygonMode, after the Object3D section:
//   Byte culling, Byte shading, Byte winding, Boolean twoSidedLightingEnabled,
//   Boolean localCameraLightingEnabled, Boolean perspectiveCorrectionEnabled

#include "engine/surface/polygon_mode.h"

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void PolygonMode::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setCulling(stream.readByte());
  setShading(stream.readByte());
  setWinding(stream.readByte());
  setTwoSidedLightingEnable(stream.readBoolean());
  setLocalCameraLightingEnable(stream.readBoolean());
  setPerspectiveCorrectionEnable(stream.readBoolean());
}

}  // namespace varnel_m3g
