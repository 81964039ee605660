#ifndef VARNEL_ENGINE_SURFACE_MATERIAL_H
#define VARNEL_ENGINE_SURFACE_MATERIAL_H

#include <boost/shared_ptr.hpp>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// The colours of a lit surface, as the API's integers and as the floats of OpenGL ES.
class Material : public Object3D {
 public:
  // Bits of a target.
  static constexpr int AMBIENT = 1024;
  static constexpr int DIFFUSE = 2048;
  static constexpr int EMISSIVE = 4096;
  static constexpr int SPECULAR = 8192;

  static boost::shared_ptr<Material> create();

  Material();
  ~Material() override;

  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  // 0xAARRGGBB; only the diffuse colour's alpha has an effect.
  virtual void setAmbientColor(int argb);
  virtual void setDiffuseColor(int argb);
  virtual void setSpecularColor(int argb);
  virtual void setEmissiveColor(int argb);

  /// Sets the colours whose bits target holds. Throws std::invalid_argument for any other bit.
  void setColor(int target, int argb);
  /// Throws std::invalid_argument unless target is exactly one of the four.
  int getColor(int target) const;
  void setShininess(float shininess);
  float getShininess() const { return shininess; }
  void setVertexColorTrackingEnable(bool enable);
  bool isVertexColorTrackingEnabled() const { return vertexColorTrackingEnabled; }

  // R, G, B, A, each 0 to 1.
  const float* getAmbient() const { return ambient; }
  const float* getDiffuse() const { return diffuse; }
  const float* getEmissive() const { return emissive; }
  const float* getSpecular() const { return specular; }
  /// Replaces the alpha of the diffuse float colour alone; for a draw that fades.
  void setDiffuseAlpha(float alpha) { diffuse[3] = alpha; }

 private:
  /// The last material that a change was noted for; nothing fills it.
  static boost::shared_ptr<Material> lastChangedMaterial;
  void forgetLastChange();

  bool vertexColorTrackingEnabled = false;
  float ambient[4] = {0.2f, 0.2f, 0.2f, 0.0f};
  float diffuse[4] = {0.8f, 0.8f, 0.8f, 1.0f};
  float emissive[4] = {0.0f, 0.0f, 0.0f, 0.0f};
  float specular[4] = {0.0f, 0.0f, 0.0f, 0.0f};
  float shininess = 0.0f;
  int ambientColor = 0x00333333;
  int diffuseColor = static_cast<int>(0xFFCCCCCCu);
  int emissiveColor = 0;
  int specularColor = 0;
};

}  // namespace varnel_m3g

#endif
