// Material, after the Object3D section:
//   RGB ambientColor, RGBA diffuseColor, RGB emissiveColor, RGB specularColor, Float shininess,
//   Boolean vertexColorTrackingEnabled

#include "engine/surface/material.h"

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void Material::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setAmbientColor(static_cast<int>(stream.readRGB()));
  setDiffuseColor(static_cast<int>(stream.readRGBA()));
  setEmissiveColor(static_cast<int>(stream.readRGB()));
  setSpecularColor(static_cast<int>(stream.readRGB()));
  setShininess(stream.readFloat());
  setVertexColorTrackingEnable(stream.readBoolean());
}

}  // namespace varnel_m3g
