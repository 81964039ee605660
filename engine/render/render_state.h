#ifndef VARNEL_ENGINE_RENDER_RENDER_STATE_H
#define VARNEL_ENGINE_RENDER_RENDER_STATE_H

#include <boost/shared_ptr.hpp>

namespace varnel_m3g {

class Appearance;
class CompositingMode;
class Fog;
class Material;
class PolygonMode;

/// The state that the last draw left in OpenGL ES, process-wide, kept across frames so that it is
/// not sent again. It shares the attribute objects until they are replaced or reset.
struct RenderState {
  /// The last applied appearance; never compared.
  boost::shared_ptr<Appearance> currentAppearance;
  boost::shared_ptr<Fog> currentFog;
  boost::shared_ptr<Material> currentMaterial;
  boost::shared_ptr<PolygonMode> currentPolygonMode;
  boost::shared_ptr<CompositingMode> currentCompositingMode;
  /// Fog is known to be off.
  bool fogIsDefault = false;
  /// Lighting is known to be off.
  bool materialIsDefault = false;
  /// The polygon state is known to be the default.
  bool polygonIsDefault = false;
  /// The compositing state is known to be the default.
  bool compositingIsDefault = false;
};

RenderState& renderState();

/// Sends the defaults of fog, material, polygon and compositing state and forgets the attribute
/// objects; the appearance stays.
void resetRenderState();
/// Sends the default compositing state unless it is known to be in force.
void applyDefaultCompositing();
/// Sends what an appearance changes, its textures always.
void applyAppearance(const boost::shared_ptr<Appearance>& appearance);

}  // namespace varnel_m3g

#endif
