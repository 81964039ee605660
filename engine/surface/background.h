#ifndef VARNEL_ENGINE_SURFACE_BACKGROUND_H
#define VARNEL_ENGINE_SURFACE_BACKGROUND_H

#include <boost/shared_ptr.hpp>

#include "engine/object/object3d.h"
#include "engine/surface/rectangle.h"

namespace varnel_m3g {

class Image2D;
class M3gObjectInputStream;

/// How the target is cleared: colour, depth, and an image of which a crop fills the viewport.
class Background : public Object3D {
 public:
  static constexpr int BORDER = 32;
  static constexpr int REPEAT = 33;

  static boost::shared_ptr<Background> create();

  Background();
  ~Background() override;

  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// 0xAARRGGBB.
  void setColor(int argb);
  int getColor() const { return color; }
  void setColorClearEnable(bool enable);
  void setDepthClearEnable(bool enable);
  bool isColorClearEnabled() const { return colorClearEnabled; }
  bool isDepthClearEnabled() const { return depthClearEnabled; }
  /// Shares the image, null for none, and sets the crop to the whole of it. Throws
  /// std::invalid_argument for a format other than RGB and RGBA.
  void setImage(const boost::shared_ptr<Image2D>& image);
  const boost::shared_ptr<Image2D>& getImage() const { return image; }
  void setImageMode(int x, int y);
  int getImageModeX() const { return imageModeX; }
  int getImageModeY() const { return imageModeY; }
  /// In pixels of the image, which it may exceed. Throws std::invalid_argument for a negative width
  /// or height.
  void setCrop(int x, int y, int width, int height);
  int getCropX() const { return crop.x; }
  int getCropY() const { return crop.y; }
  int getCropWidth() const { return crop.width; }
  int getCropHeight() const { return crop.height; }

  /// R, G, B, A.
  const float* getClearColorRGBA() const { return clearColorRGBA; }
  bool areTexCoordsDirty() const { return texCoordsDirty; }
  /// Four pairs: (s0, t0), (s0, t1), (s1, t0), (s1, t1), as drawImage last left them.
  const float* getTexCoords() const { return texCoords; }

  /// Draws the image, which the caller has bound, as a quad between the given viewport edges.
  void drawImage(int left, int right, int top, int bottom);

 private:
  int imageModeX = BORDER;
  int imageModeY = BORDER;
  Rectangle crop;
  float clearColorRGBA[4] = {0.0f, 0.0f, 0.0f, 0.0f};
  bool texCoordsDirty = false;
  float texCoords[8] = {0.0f, 0.0f, 0.0f, 1.0f, 1.0f, 0.0f, 1.0f, 1.0f};
  int color = 0;
  boost::shared_ptr<Image2D> image;
  bool colorClearEnabled = true;
  bool depthClearEnabled = true;
};

}  // namespace varnel_m3g

#endif
