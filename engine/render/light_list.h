#ifndef VARNEL_ENGINE_RENDER_LIGHT_LIST_H
#define VARNEL_ENGINE_RENDER_LIGHT_LIST_H

#include <boost/shared_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class Light;
class Transform;

/// The current lights of the renderer in the order of their OpenGL ES numbers: entry i is
/// GL_LIGHT0 + i. The list shares its lights.
class LightList {
 public:
  /// Appends a light and gives it its number. The list may outgrow what OpenGL ES has.
  /// A null transform means the identity; the light must not be null.
  /// @return the index of the light
  int add(const boost::shared_ptr<Light>& light, const Transform* transform);
  /// Replaces the entry at index, or erases it when the light is null: later entries then move
  /// down and keep their numbers until the next assignment. The replaced light is not switched off.
  /// @throws std::out_of_range if there is no such entry
  void set(int index, const boost::shared_ptr<Light>& light, const Transform* transform);
  /// The entry at index, or an empty pointer outside the list. The transform is not filled.
  const boost::shared_ptr<Light>& get(int index, Transform* transform) const;
  /// Empties the list; lights that are on in OpenGL ES stay on.
  void reset();
  int count() const { return static_cast<int>(lights.size()); }

  /// Takes over the enabled lights of a world with their world transforms. Never throws for a light
  /// that is missing from the list.
  void syncLights(const std::vector<boost::shared_ptr<Light>>& worldLights);
  /// Sends the lights that share a bit with a node's scope and switches the others off.
  void applyLightScope(int scope) const;

 private:
  std::vector<boost::shared_ptr<Light>> lights;
};

}  // namespace varnel_m3g

#endif
