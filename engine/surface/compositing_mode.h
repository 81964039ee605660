#ifndef VARNEL_ENGINE_SURFACE_COMPOSITING_MODE_H
#define VARNEL_ENGINE_SURFACE_COMPOSITING_MODE_H

#include <boost/shared_ptr.hpp>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// How fragments meet the frame buffer: blending, write masks, depth test and offset, alpha test.
class CompositingMode : public Object3D {
 public:
  static constexpr int ALPHA = 64;
  static constexpr int ALPHA_ADD = 65;
  static constexpr int MODULATE = 66;
  static constexpr int MODULATE_X2 = 67;
  static constexpr int REPLACE = 68;

  static boost::shared_ptr<CompositingMode> create();

  CompositingMode();
  ~CompositingMode() override;

  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Stores any value; an unknown one leaves the GL factors as they are.
  void setBlending(int blending);
  int getBlending() const { return blending; }
  /// 0 to 1; throws std::invalid_argument otherwise.
  void setAlphaThreshold(float threshold);
  float getAlphaThreshold() const { return alphaThreshold; }
  void setDepthOffset(float factor, float units);
  float getDepthOffsetFactor() const { return depthOffsetFactor; }
  float getDepthOffsetUnits() const { return depthOffsetUnits; }
  void setColorWriteEnable(bool enable);
  bool isColorWriteEnabled() const { return colorWriteEnabled; }
  void setAlphaWriteEnable(bool enable);
  bool isAlphaWriteEnabled() const { return alphaWriteEnabled; }
  void setDepthWriteEnable(bool enable);
  bool isDepthWriteEnabled() const { return depthWriteEnabled; }
  void setDepthTestEnable(bool enable);
  bool isDepthTestEnabled() const { return depthTestEnabled; }

  unsigned getSrcFactor() const { return srcFactor; }
  unsigned getDstFactor() const { return dstFactor; }
  bool isDepthOffsetZero() const { return depthOffsetIsZero; }

 private:
  int blending = REPLACE;
  unsigned srcFactor = 1;  // GL_ONE
  unsigned dstFactor = 0;  // GL_ZERO
  bool colorWriteEnabled = true;
  bool alphaWriteEnabled = true;
  bool depthWriteEnabled = true;
  bool depthTestEnabled = true;
  float alphaThreshold = 0.0f;
  bool depthOffsetIsZero = true;
  float depthOffsetUnits = 0.0f;
  float depthOffsetFactor = 0.0f;
};

}  // namespace varnel_m3g

#endif
