#ifndef VARNEL_ENGINE_SURFACE_POLYGON_MODE_H
#define VARNEL_ENGINE_SURFACE_POLYGON_MODE_H

#include <boost/shared_ptr.hpp>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// Culling, winding, shading and lighting flags of polygons, with the GL form beside the API's.
class PolygonMode : public Object3D {
 public:
  static constexpr int CULL_BACK = 160;
  static constexpr int CULL_FRONT = 161;
  static constexpr int CULL_NONE = 162;
  static constexpr int SHADE_FLAT = 164;
  static constexpr int SHADE_SMOOTH = 165;
  static constexpr int WINDING_CCW = 168;
  static constexpr int WINDING_CW = 169;

  static boost::shared_ptr<PolygonMode> create();

  PolygonMode();
  ~PolygonMode() override;

  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Stores any value; an unknown one leaves the GL face as it is.
  void setCulling(int culling);
  int getCulling() const { return culling; }
  /// Unknown values are ignored by the next two.
  void setWinding(int winding);
  int getWinding() const { return winding; }
  void setShading(int shading);
  int getShading() const { return shading; }
  void setTwoSidedLightingEnable(bool enable);
  bool isTwoSidedLightingEnabled() const { return twoSidedLightingEnabled; }
  void setLocalCameraLightingEnable(bool enable);
  bool isLocalCameraLightingEnabled() const { return localCameraLightingEnabled; }
  void setPerspectiveCorrectionEnable(bool enable);
  bool isPerspectiveCorrectionEnabled() const { return perspectiveCorrectionEnabled; }

  unsigned getGlCullFace() const { return glCullFace; }
  unsigned getGlFrontFace() const { return glFrontFace; }
  unsigned getGlShadeModel() const { return glShadeModel; }

 private:
  /// The last mode that a change was noted for; nothing fills it.
  static boost::shared_ptr<PolygonMode> lastChangedPolygonMode;
  void forgetLastChange();

  unsigned glCullFace = 1029;    // GL_BACK
  unsigned glFrontFace = 2305;   // GL_CCW
  unsigned glShadeModel = 7425;  // GL_SMOOTH
  bool twoSidedLightingEnabled = false;
  bool localCameraLightingEnabled = false;
  bool perspectiveCorrectionEnabled = false;
  int culling = CULL_BACK;
  int winding = WINDING_CCW;
  int shading = SHADE_SMOOTH;
};

}  // namespace varnel_m3g

#endif
