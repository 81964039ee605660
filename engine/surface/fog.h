#ifndef VARNEL_ENGINE_SURFACE_FOG_H
#define VARNEL_ENGINE_SURFACE_FOG_H

#include <boost/shared_ptr.hpp>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// The fog attributes of an appearance, in the API's form and in that of OpenGL ES.
class Fog : public Object3D {
 public:
  static constexpr int EXPONENTIAL = 80;
  static constexpr int LINEAR = 81;

  static boost::shared_ptr<Fog> create();

  Fog();
  ~Fog() override;

  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  void setMode(int mode);
  int getMode() const { return mode; }
  void setLinear(float nearDistance, float farDistance);
  float getNearDistance() const { return nearDistance; }
  float getFarDistance() const { return farDistance; }
  /// Throws std::invalid_argument for a value below 0.
  void setDensity(float density);
  float getDensity() const { return density; }
  /// 0xRRGGBB; the top byte is kept and has no effect.
  void setColor(int rgb);
  int getColor() const { return color; }

  /// R, G, B, A; A is 0 until the first setColor and 1 from then on.
  const float* getColorRGBA() const { return colorRGBA; }
  /// Set by each setter.
  bool isDirty() const { return dirty; }
  void clearDirty() { dirty = false; }

 private:
  bool dirty = true;
  int mode = LINEAR;
  float density = 1.0f;
  float nearDistance = 0.0f;
  float farDistance = 1.0f;
  int color = 0;
  float colorRGBA[4] = {0.0f, 0.0f, 0.0f, 0.0f};
};

}  // namespace varnel_m3g

#endif
