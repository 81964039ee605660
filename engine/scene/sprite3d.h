#ifndef VARNEL_ENGINE_SCENE_SPRITE3D_H
#define VARNEL_ENGINE_SCENE_SPRITE3D_H

#include <boost/shared_ptr.hpp>

#include "engine/scene/node.h"

namespace varnel_m3g {

class Appearance;
class Image2D;

/// A node with an image and a crop rectangle, kept as data: sprites are not drawn.
class Sprite3D : public Node {
 public:
  /// Largest width and height of a crop rectangle.
  static int spriteCropLimit;

  /// The appearance may be null. Throws std::invalid_argument for a null image.
  static boost::shared_ptr<Sprite3D> create(bool scaled, const boost::shared_ptr<Image2D>& image,
                                            const boost::shared_ptr<Appearance>& appearance);
  Sprite3D();
  ~Sprite3D() override;

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  // Pixels of the image.
  virtual int getCropX();
  virtual int getCropY();
  virtual int getCropWidth();
  virtual int getCropHeight();

  /// Sets the crop to the whole image, within the limit. Throws std::invalid_argument for null.
  void setImage(const boost::shared_ptr<Image2D>& newImage);
  /// Throws std::invalid_argument for a width or height above the limit either way; x and y are
  /// stored all the same.
  void setCrop(int x, int y, int width, int height);
  /// Null removes the appearance.
  void setAppearance(const boost::shared_ptr<Appearance>& newAppearance);
  const boost::shared_ptr<Image2D>& getImage() const { return image; }
  const boost::shared_ptr<Appearance>& getAppearance() const { return appearance; }
  bool isScaled() const { return scaled; }

  /// Sprites cannot be hit: writes a line and returns false.
  bool pickRay(const float* origin, const float* direction, const Transform& toSprite,
               RayIntersection& result);

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 private:
  void initialise(bool newScaled, const boost::shared_ptr<Image2D>& newImage,
                  const boost::shared_ptr<Appearance>& newAppearance);

  boost::shared_ptr<Appearance> appearance;
  boost::shared_ptr<Image2D> image;
  bool scaled = false;
  int cropX = 0;
  int cropY = 0;
  int cropWidth = 0;
  int cropHeight = 0;
};

}  // namespace varnel_m3g

#endif
