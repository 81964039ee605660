#ifndef VARNEL_ENGINE_SCENE_LIGHT_H
#define VARNEL_ENGINE_SCENE_LIGHT_H

#include "engine/scene/node.h"

namespace varnel_m3g {

/// A node that holds a light source and the state of the OpenGL ES light unit that serves it: each
/// setter marks what the unit has to be told again.
class Light : public Node {
 public:
  /// Modes.
  enum { AMBIENT = 128, DIRECTIONAL = 129, OMNI = 130, SPOT = 131 };

  static boost::shared_ptr<Light> create();
  Light() = default;

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  void setRenderingEnable(bool enable) override;
  void setRoot(boost::weak_ptr<Node> root) override;

  /// A mode that is none of the four is stored and lights nothing.
  void setMode(int newMode);
  int getMode() const { return mode; }
  /// 0xRRGGBB; the upper bits are kept.
  void setColor(int rgb);
  int getColor() const { return color; }
  void setIntensity(float newIntensity);
  float getIntensity() const { return intensity; }
  /// Degrees. Throws std::invalid_argument outside 0 to 90.
  void setSpotAngle(float degrees);
  float getSpotAngle() const { return spotAngle; }
  /// Throws std::invalid_argument outside 0 to 128.
  void setSpotExponent(float exponent);
  float getSpotExponent() const { return spotExponent; }
  /// Throws std::invalid_argument for a negative value and for three zeros.
  void setAttenuation(float constant, float linear, float quadratic);
  float getConstantAttenuation() const { return attenuation[0]; }
  float getLinearAttenuation() const { return attenuation[1]; }
  float getQuadraticAttenuation() const { return attenuation[2]; }
  /// R, G, B, each channel times the intensity over 255, and the intensity itself: 4 floats.
  const float* getScaledColor() const { return scaledColor; }

  /// Binds the light to a unit (the number that OpenGL ES calls take) and computes its position and
  /// direction by the given world transform.
  void setGLLight(int light, const Transform& world);
  /// Sends what changed since the last time and switches the unit on, or off for a light that is
  /// not enabled.
  void applyLight();
  /// Switches the unit off, if there is one.
  void disableLight();
  /// Gives the unit up.
  void releaseGLLight();
  /// The unit, or -1.
  int getGLLight() const { return glLight; }
  void setTransformChanged(bool changed) { transformChanged = changed; }
  bool isTransformChanged() const { return transformChanged; }
  unsigned getChangeMask() const { return changeMask; }

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 private:
  enum : unsigned {
    MODE_CHANGED = 1,
    COLOR_CHANGED = 4,
    SPOT_ANGLE_CHANGED = 8,
    SPOT_EXPONENT_CHANGED = 16,
    ATTENUATION_CHANGED = 32,
    ALL_CHANGED = ~0u
  };

  void updateScaledColor();

  int glLight = -1;
  unsigned changeMask = ALL_CHANGED;
  bool transformChanged = true;
  int mode = DIRECTIONAL;
  int color = 0xFFFFFF;
  float scaledColor[4] = {1.0f, 1.0f, 1.0f, 1.0f};
  float intensity = 1.0f;
  float attenuation[3] = {1.0f, 0.0f, 0.0f};
  float spotAngle = 45.0f;
  float spotExponent = 0.0f;
  float position[4] = {0.0f, 0.0f, 0.0f, 0.0f};   // homogeneous
  float direction[4] = {0.0f, 0.0f, 0.0f, 0.0f};  // the node's positive z axis
};

}  // namespace varnel_m3g

#endif
