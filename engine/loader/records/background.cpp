// Background, after the Object3D section:
//   RGBA backgroundColor, Index backgroundImage, Byte backgroundImageModeX,
//   Byte backgroundImageModeY, Int32 cropX, Int32 cropY, Int32 cropWidth, Int32 cropHeight,
//   Boolean depthClearEnabled, Boolean colorClearEnabled

#include "engine/surface/background.h"

#include "engine/loader/records/reference.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

void Background::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setColor(static_cast<int>(stream.readRGBA()));
  const boost::shared_ptr<Image2D> backgroundImage =
      readReference<Image2D>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                             "Background:.. invalid Image2D reference index",
                             "Background:.. invalid Image2D reference index");
  if (backgroundImage) {
    setImage(backgroundImage);
  }
  const int modeX = stream.readByte();
  const int modeY = stream.readByte();
  setImageMode(modeX, modeY);
  const int x = stream.readInt32();
  const int y = stream.readInt32();
  const int width = stream.readInt32();
  const int height = stream.readInt32();
  setCrop(x, y, width, height);
  setDepthClearEnable(stream.readBoolean());
  setColorClearEnable(stream.readBoolean());
}

}  // namespace varnel_m3g
