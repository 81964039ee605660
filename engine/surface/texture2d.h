#ifndef VARNEL_ENGINE_SURFACE_TEXTURE2D_H
#define VARNEL_ENGINE_SURFACE_TEXTURE2D_H

#include <boost/shared_ptr.hpp>

#include "engine/math/transformable.h"

namespace varnel_m3g {

class Image2D;
class M3gObjectInputStream;

/// An image with the wrap, filter and blend settings of one texture unit. Its transform is the
/// texture matrix. Several textures may share one image.
class Texture2D : public Transformable {
 public:
  static constexpr int FILTER_BASE_LEVEL = 208;
  static constexpr int FILTER_LINEAR = 209;
  static constexpr int FILTER_NEAREST = 210;
  static constexpr int FUNC_ADD = 224;
  static constexpr int FUNC_BLEND = 225;
  static constexpr int FUNC_DECAL = 226;
  static constexpr int FUNC_MODULATE = 227;
  static constexpr int FUNC_REPLACE = 228;
  static constexpr int WRAP_CLAMP = 240;
  static constexpr int WRAP_REPEAT = 241;

  /// Throws as setImage does.
  static boost::shared_ptr<Texture2D> create(const boost::shared_ptr<Image2D>& image);

  /// A texture without an image, for the loader and the factory.
  Texture2D();
  ~Texture2D() override;

  void initialise(const boost::shared_ptr<Image2D>& image);
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Shares the image. Throws std::invalid_argument for null. Dimensions that are not powers of two
  /// only cause a line on the standard error stream.
  void setImage(const boost::shared_ptr<Image2D>& image);
  const boost::shared_ptr<Image2D>& getImage() const { return image; }
  /// Throws std::invalid_argument for an image filter other than linear and nearest. An unknown
  /// level filter is stored and leaves the GL filters as they are.
  void setFiltering(int levelFilter, int imageFilter);
  int getLevelFilter() const { return levelFilter; }
  int getImageFilter() const { return imageFilter; }
  void setWrapping(int s, int t);
  int getWrappingS() const { return wrappingS; }
  int getWrappingT() const { return wrappingT; }
  void setBlending(int blending);
  int getBlending() const { return blending; }
  /// 0xRRGGBB.
  void setBlendColor(int rgb);
  int getBlendColor() const { return blendColor; }

  unsigned getGlMagFilter() const { return glMagFilter; }
  unsigned getGlMinFilter() const { return glMinFilter; }

 private:
  boost::shared_ptr<Image2D> image;
  int wrappingS = WRAP_REPEAT;
  int wrappingT = WRAP_REPEAT;
  int levelFilter = FILTER_BASE_LEVEL;
  int imageFilter = FILTER_NEAREST;
  unsigned glMagFilter = 9728;  // GL_NEAREST
  unsigned glMinFilter = 9728;  // GL_NEAREST
  int blending = FUNC_MODULATE;
  int blendColor = 0;
};

}  // namespace varnel_m3g

#endif
