// Fog, after the Object3D section:
//   RGB color, Byte mode
//   80 (exponential): Float density
//   81 (linear): Float near, Float far

#include "engine/surface/fog.h"

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void Fog::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setColor(static_cast<int>(stream.readRGB()));
  setMode(stream.readByte());
  if (getMode() == EXPONENTIAL) {
    setDensity(stream.readFloat());
  } else if (getMode() == LINEAR) {
    const float near = stream.readFloat();
    const float far = stream.readFloat();
    setLinear(near, far);
  }
}

}  // namespace varnel_m3g
