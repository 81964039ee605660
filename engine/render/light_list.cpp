#include "engine/render/light_list.h"

#include <GLES/gl.h>

#include <stdexcept>

#include "engine/render/graphics3d.h"
#include "engine/scene/light.h"

namespace varnel_m3g {

namespace {

/// A number past the units that OpenGL ES has makes it refuse the light's calls, and nothing else.
int glNumber(std::size_t index) {
  return GL_LIGHT0 + static_cast<int>(index);
}

}  // namespace

int LightList::add(const boost::shared_ptr<Light>& light, const Transform* transform) {
  const std::size_t index = lights.size();
  lights.push_back(light);
  light->setGLLight(glNumber(index), transform ? *transform : identityTransform());
  return static_cast<int>(index);
}

void LightList::set(int index, const boost::shared_ptr<Light>& light, const Transform* transform) {
  if (index < 0 || index >= count()) {
    throw std::out_of_range("index out of range");
  }
  const std::size_t entry = static_cast<std::size_t>(index);
  if (!light) {
    lights[entry]->setTransformChanged(true);
    lights.erase(lights.begin() + index);
    return;
  }
  lights[entry] = light;
  light->setGLLight(glNumber(entry), transform ? *transform : identityTransform());
}

const boost::shared_ptr<Light>& LightList::get(int index, Transform* /*transform*/) const {
  static const boost::shared_ptr<Light> none;
  if (index < 0 || index >= count()) {
    return none;
  }
  return lights[static_cast<std::size_t>(index)];
}

void LightList::reset() {
  for (const boost::shared_ptr<Light>& light : lights) {
    light->setTransformChanged(true);
  }
  lights.clear();
}

void LightList::syncLights(const std::vector<boost::shared_ptr<Light>>& worldLights) {
  if (worldLights.size() < lights.size()) {
    reset();
    for (const boost::shared_ptr<Light>& light : worldLights) {
      if (light->isRenderingEnabled()) {
        add(light, &light->worldTransform());
      }
    }
    return;
  }
  // An erasure shortens the list under the walk, so its length is read at each step.
  for (std::size_t i = 0; i < worldLights.size(); ++i) {
    const boost::shared_ptr<Light>& light = worldLights[i];
    if (light->isRenderingEnabled()) {
      if (i >= lights.size()) {
        add(light, &light->worldTransform());
      } else {
        set(static_cast<int>(i), light, &light->worldTransform());
      }
    } else if (i < lights.size()) {
      set(static_cast<int>(i), nullptr, nullptr);
    }
  }
}

void LightList::applyLightScope(int scope) const {
  for (const boost::shared_ptr<Light>& light : lights) {
    if ((light->getScope() & scope) != 0) {
      light->applyLight();
    } else {
      light->disableLight();
    }
  }
}

}  // namespace varnel_m3g
