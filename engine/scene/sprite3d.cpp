#include "engine/scene/sprite3d.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "engine/surface/appearance.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

int Sprite3D::spriteCropLimit = 0;

namespace {

bool exceedsLimit(int extent) {
  return std::abs(std::int64_t{extent}) > Sprite3D::spriteCropLimit;
}

}  // namespace

boost::shared_ptr<Sprite3D> Sprite3D::create(bool scaled, const boost::shared_ptr<Image2D>& image,
                                             const boost::shared_ptr<Appearance>& appearance) {
  boost::shared_ptr<Sprite3D> sprite(new Sprite3D);
  sprite->initialise(scaled, image, appearance);
  return sprite;
}

Sprite3D::Sprite3D() = default;

Sprite3D::~Sprite3D() = default;

void Sprite3D::initialise(bool newScaled, const boost::shared_ptr<Image2D>& newImage,
                          const boost::shared_ptr<Appearance>& newAppearance) {
  Node::initialise();
  scaled = newScaled;
  setImage(newImage);
  setAppearance(newAppearance);
}

unsigned Sprite3D::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Node::getReferences(references, max);
  if (appearance) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Cannot add appearance in Sprite3D::getReferences");
      }
      references[count] = appearance;
    }
    ++count;
  }
  if (image) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Cannot add image in Sprite3D::getReferences");
      }
      references[count] = image;
    }
    ++count;
  }
  return count;
}

boost::shared_ptr<Object3D> Sprite3D::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(scaled, image, appearance);
  }
  Node::duplicateImpl(target);
  static_cast<Sprite3D&>(*target).setCrop(cropX, cropY, cropWidth, cropHeight);
  return target;
}

int Sprite3D::getCropX() {
  return cropX;
}

int Sprite3D::getCropY() {
  return cropY;
}

int Sprite3D::getCropWidth() {
  return cropWidth;
}

int Sprite3D::getCropHeight() {
  return cropHeight;
}

void Sprite3D::setImage(const boost::shared_ptr<Image2D>& newImage) {
  if (!newImage) {
    throw std::invalid_argument("Sprite.setImage() called with null image");
  }
  image = newImage;
  setCrop(0, 0, std::min(image->getWidth(), spriteCropLimit),
          std::min(image->getHeight(), spriteCropLimit));
}

void Sprite3D::setCrop(int x, int y, int width, int height) {
  cropX = x;
  cropY = y;
  if (exceedsLimit(width) || exceedsLimit(height)) {
    throw std::invalid_argument("m3g.Sprite3D.setCrop .. width and/or height exceed limits");
  }
  cropWidth = width;
  cropHeight = height;
}

void Sprite3D::setAppearance(const boost::shared_ptr<Appearance>& newAppearance) {
  const boost::shared_ptr<Node> self = nodeFromThis();
  if (appearance) {
    appearance->removeMeshReference(self);
  }
  if (newAppearance) {
    newAppearance->addMeshReference(self);
  }
  appearance = newAppearance;
}

bool Sprite3D::pickRay(const float*, const float*, const Transform&, RayIntersection&) {
  std::fputs("Sprite3D::pick\n", stdout);
  std::fflush(stdout);
  return false;
}

}  // namespace varnel_m3g
