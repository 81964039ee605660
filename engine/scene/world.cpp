#include "engine/scene/world.h"

#include <boost/pointer_cast.hpp>
#include <stdexcept>

#include "engine/object/log.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/surface/background.h"

namespace varnel_m3g {

boost::shared_ptr<World> World::create() {
  boost::shared_ptr<World> world(new World);
  world->initialise();
  return world;
}

World::World() = default;

World::~World() = default;

void World::initialise() {
  setRoot(nodeFromThis());
  Group::initialise();
}

unsigned World::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Group::getReferences(references, max);
  if (activeCamera) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Active camera exceeds reference count in getReferences");
      }
      references[count] = activeCamera;
    }
    ++count;
  }
  if (background) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Background exceeds reference count in getReferences");
      }
      references[count] = background;
    }
    ++count;
  }
  return count;
}

void World::dump() {
  Group::dump();
  log("World Object");
  log("============");
  if (activeCamera) {
    logf("ActiveCamera ID: %u", static_cast<unsigned>(activeCamera->getUserID()));
  }
  if (background) {
    logf("Background ID:   %u", static_cast<unsigned>(background->getUserID()));
  }
}

boost::shared_ptr<Object3D> World::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = World::create();
  }
  Group::duplicateImpl(target);
  boost::dynamic_pointer_cast<World>(target)->setBackground(background);
  return target;
}

void World::reset() {
  Group::reset();
}

void World::setBackground(const boost::shared_ptr<Background>& newBackground) {
  background = newBackground;
}

void World::setActiveCamera(const boost::shared_ptr<Camera>& camera) {
  if (!camera) {
    throw std::invalid_argument("trying to setActiveCamera to null");
  }
  activeCamera = camera;
}

void World::addCamera(const boost::shared_ptr<Camera>& camera) {
  cameras.add(camera);
}

void World::removeCamera(const boost::shared_ptr<Camera>& camera) {
  cameras.remove(camera);
}

void World::addLight(const boost::shared_ptr<Light>& light) {
  lights.add(light);
}

void World::removeLight(const boost::shared_ptr<Light>& light) {
  lights.remove(light);
}

}  // namespace varnel_m3g
