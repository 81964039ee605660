// Texture2D, after the Transformable section:
//   Index image, RGB blendColor, Byte blending, Byte wrappingS, Byte wrappingT, Byte levelFilter,
//   Byte imageFilter

#include "engine/surface/texture2d.h"

#include "engine/loader/records/reference.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

void Texture2D::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Transformable::load(stream, table);
  setImage(readReference<Image2D>(stream, table, IndexLimit::UP_TO_SIZE, IndexZero::BAD_INDEX,
                                  "Texture2D: file loader... invalid Image2D reference index",
                                  "Texture2D: file loader...  invalid Image2D reference"));
  setBlendColor(static_cast<int>(stream.readRGB()));
  setBlending(stream.readByte());
  const int s = stream.readByte();
  const int t = stream.readByte();
  setWrapping(s, t);
  const int newLevelFilter = stream.readByte();
  const int newImageFilter = stream.readByte();
  setFiltering(newLevelFilter, newImageFilter);
}

}  // namespace varnel_m3g
