#include "engine/surface/background.h"

#include <boost/pointer_cast.hpp>
#include <stdexcept>

#include "engine/object/log.h"
#include "engine/surface/color_floats.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

namespace {

const char* imageModeName(int mode) {
  switch (mode) {
    case Background::BORDER:
      return " BORDER";
    case Background::REPEAT:
      return " REPEAT";
    default:
      return " UNKNOWN";
  }
}

}  // namespace

boost::shared_ptr<Background> Background::create() {
  const boost::shared_ptr<Background> background(new Background);
  background->initialise();
  return background;
}

Background::Background() = default;

Background::~Background() = default;

void Background::initialise() {
  reset();
  static constexpr float START_COORDS[8] = {0.0f, 0.0f, 0.0f, 1.0f, 1.0f, 0.0f, 1.0f, 1.0f};
  imageModeX = BORDER;
  imageModeY = BORDER;
  crop = Rectangle();
  for (float& element : clearColorRGBA) {
    element = 0.0f;
  }
  texCoordsDirty = false;
  for (int i = 0; i < 8; ++i) {
    texCoords[i] = START_COORDS[i];
  }
  color = 0;
  image.reset();
  colorClearEnabled = true;
  depthClearEnabled = true;
}

unsigned Background::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Object3D::getReferences(references, max);
  if (image) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Background image exceeds reference limit in getReferences");
      }
      references[count] = image;
    }
    ++count;
  }
  return count;
}

void Background::dump() {
  Object3D::dump();
  log("Background Object");
  log("=================");
  logf("ColorRGBA: 0x%X", static_cast<unsigned>(color));
  if (image) {
    logf("BackgroundImageID: %u", static_cast<unsigned>(image->getUserID()));
  }
  logf("BackgroundImageModeX:%s", imageModeName(imageModeX));
  logf("BackgroundImageModeY:%s", imageModeName(imageModeY));
  logf("CropX:                %u", static_cast<unsigned>(crop.x));
  logf("CropY:                %u", static_cast<unsigned>(crop.y));
  logf("CropWidth:            %u", static_cast<unsigned>(crop.width));
  logf("CropHeight:           %u", static_cast<unsigned>(crop.height));
  logf("ColorClearEnabled:    %u", colorClearEnabled ? 1U : 0U);
  logf("DepthClearEnabled:    %u", depthClearEnabled ? 1U : 0U);
}

boost::shared_ptr<Object3D> Background::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<Background> copy = boost::dynamic_pointer_cast<Background>(target);
  copy->setColor(color);
  copy->crop = crop;
  copy->imageModeX = imageModeX;
  copy->imageModeY = imageModeY;
  copy->setColorClearEnable(colorClearEnabled);
  copy->setDepthClearEnable(depthClearEnabled);
  // The image comes last and brings a crop of its own.
  copy->setImage(image);
  return target;
}

void Background::setColor(int argb) {
  color = argb;
  colorToFloats(argb, clearColorRGBA);
  clearColorRGBA[3] = colorByteToFloat(argb, 24);
}

void Background::setColorClearEnable(bool enable) {
  colorClearEnabled = enable;
}

void Background::setDepthClearEnable(bool enable) {
  depthClearEnabled = enable;
}

void Background::setImage(const boost::shared_ptr<Image2D>& newImage) {
  if (newImage && newImage->getFormat() != Image2D::RGB && newImage->getFormat() != Image2D::RGBA) {
    throw std::invalid_argument("image format must be one of Image2D.RGB or Image2D.RGBA");
  }
  image = newImage;
  if (image) {
    setCrop(0, 0, image->getWidth(), image->getHeight());
  } else {
    setCrop(0, 0, 0, 0);
  }
}

void Background::setImageMode(int x, int y) {
  imageModeX = x;
  imageModeY = y;
  texCoordsDirty = true;
}

void Background::setCrop(int x, int y, int width, int height) {
  if (width < 0 || height < 0) {
    throw std::invalid_argument("Background.setCrop negative width/height");
  }
  crop.x = x;
  crop.y = y;
  crop.width = width;
  crop.height = height;
  texCoordsDirty = true;
}

}  // namespace varnel_m3g
