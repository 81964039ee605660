#include "engine/surface/texture2d.h"

#include <boost/pointer_cast.hpp>
#include <cstdio>
#include <stdexcept>

#include "engine/object/log.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

namespace {

// Filters of GL.
constexpr unsigned NEAREST = 9728;
constexpr unsigned LINEAR = 9729;
constexpr unsigned NEAREST_MIPMAP_NEAREST = 9984;
constexpr unsigned LINEAR_MIPMAP_NEAREST = 9985;
constexpr unsigned NEAREST_MIPMAP_LINEAR = 9986;
constexpr unsigned LINEAR_MIPMAP_LINEAR = 9987;

const char* blendingName(int blending) {
  switch (blending) {
    case Texture2D::FUNC_ADD:
      return " FUNC_ADD";
    case Texture2D::FUNC_BLEND:
      return " FUNC_BLEND";
    case Texture2D::FUNC_DECAL:
      return " FUNC_DECAL";
    case Texture2D::FUNC_MODULATE:
      return " FUNC_MODULATE";
    case Texture2D::FUNC_REPLACE:
      return " FUNC_REPLACE";
    default:
      return " UNKNOWN";
  }
}

const char* wrappingName(int wrapping) {
  switch (wrapping) {
    case Texture2D::WRAP_CLAMP:
      return " WRAP_CLAMP";
    case Texture2D::WRAP_REPEAT:
      return " WRAP_REPEAT";
    default:
      return " UNKNOWN";
  }
}

const char* filterName(int filter) {
  switch (filter) {
    case Texture2D::FILTER_BASE_LEVEL:
      return " FILTER_BASE_LEVEL";
    case Texture2D::FILTER_LINEAR:
      return " FILTER_LINEAR";
    case Texture2D::FILTER_NEAREST:
      return " FILTER_NEAREST";
    default:
      return " UNKNOWN";
  }
}

}  // namespace

boost::shared_ptr<Texture2D> Texture2D::create(const boost::shared_ptr<Image2D>& image) {
  const boost::shared_ptr<Texture2D> texture(new Texture2D);
  texture->initialise(image);
  return texture;
}

Texture2D::Texture2D() = default;

Texture2D::~Texture2D() = default;

void Texture2D::initialise(const boost::shared_ptr<Image2D>& newImage) {
  Transformable::initialise();
  wrappingS = WRAP_REPEAT;
  wrappingT = WRAP_REPEAT;
  levelFilter = FILTER_BASE_LEVEL;
  imageFilter = FILTER_NEAREST;
  glMagFilter = NEAREST;
  glMinFilter = NEAREST;
  blending = FUNC_MODULATE;
  blendColor = 0;
  setImage(newImage);
}

unsigned Texture2D::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Transformable::getReferences(references, max);
  if (image) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Unable to store texture image in getReferences");
      }
      references[count] = image;
    }
    ++count;
  }
  return count;
}

void Texture2D::dump() {
  Transformable::dump();
  log("Texture2D Object");
  log("================");
  logf("Image2D ID: %u", image ? static_cast<unsigned>(image->getUserID()) : 0U);
  logf("ColorRGB:   0x%X", static_cast<unsigned>(blendColor));
  logf("Blending: %s", blendingName(blending));
  logf("WrappingS:%s", wrappingName(wrappingS));
  logf("WrappingT:%s", wrappingName(wrappingT));
  logf("LevelFilter:%s", filterName(levelFilter));
  logf("ImageFilter:%s", filterName(imageFilter));
}

boost::shared_ptr<Object3D> Texture2D::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(image);
  }
  Transformable::duplicateImpl(target);
  const boost::shared_ptr<Texture2D> copy = boost::dynamic_pointer_cast<Texture2D>(target);
  copy->setBlendColor(blendColor);
  copy->setBlending(blending);
  copy->setFiltering(levelFilter, imageFilter);
  copy->setWrapping(wrappingS, wrappingT);
  return target;
}

void Texture2D::setImage(const boost::shared_ptr<Image2D>& newImage) {
  if (!newImage) {
    throw std::invalid_argument("Texture2D.setImage() -- NULL image passed to Texture2D");
  }
  if (!newImage->isPowerOfTwo()) {
    std::fputs("Ignoring image validation\n", stderr);
  }
  image = newImage;
}

void Texture2D::setFiltering(int newLevelFilter, int newImageFilter) {
  if (newImageFilter != FILTER_LINEAR && newImageFilter != FILTER_NEAREST) {
    throw std::invalid_argument("Texture2D.setFiltering .. invalid imageFilter argument");
  }
  levelFilter = newLevelFilter;
  imageFilter = newImageFilter;
  const bool linear = imageFilter == FILTER_LINEAR;
  switch (levelFilter) {
    case FILTER_BASE_LEVEL:
      glMagFilter = linear ? LINEAR : NEAREST;
      glMinFilter = glMagFilter;
      break;
    case FILTER_NEAREST:
      glMagFilter = linear ? LINEAR : NEAREST;
      glMinFilter = linear ? LINEAR_MIPMAP_NEAREST : NEAREST_MIPMAP_NEAREST;
      break;
    case FILTER_LINEAR:
      glMagFilter = linear ? LINEAR : NEAREST;
      glMinFilter = linear ? LINEAR_MIPMAP_LINEAR : NEAREST_MIPMAP_LINEAR;
      break;
    default:
      break;
  }
}

void Texture2D::setWrapping(int s, int t) {
  wrappingS = s;
  wrappingT = t;
}

void Texture2D::setBlending(int newBlending) {
  blending = newBlending;
}

void Texture2D::setBlendColor(int rgb) {
  blendColor = rgb;
}

}  // namespace varnel_m3g
