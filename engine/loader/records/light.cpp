// Light, after the Node section:
//   Float attenuationConstant, Float attenuationLinear, Float attenuationQuadratic, RGB color,
//   Byte mode, Float intensity, Float spotAngle in degrees, Float spotExponent

#include "engine/scene/light.h"

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void Light::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Node::load(stream, table);
  const float constant = stream.readFloat();
  const float linear = stream.readFloat();
  const float quadratic = stream.readFloat();
  setAttenuation(constant, linear, quadratic);
  setColor(static_cast<int>(stream.readRGB()));
  setMode(stream.readByte());
  setIntensity(stream.readFloat());
  setSpotAngle(stream.readFloat());
  setSpotExponent(stream.readFloat());
}

}  // namespace varnel_m3g
