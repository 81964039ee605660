// World, after the Group section:
//   Index activeCamera, Index background

#include "engine/scene/world.h"

#include "engine/loader/records/reference.h"
#include "engine/scene/camera.h"
#include "engine/surface/background.h"

namespace varnel_m3g {

void World::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Group::load(stream, table);
  const boost::shared_ptr<Camera> camera = readReference<Camera>(
      stream, table, IndexLimit::UP_TO_SIZE, IndexZero::NO_OBJECT,
      "World load .. invalid camera index", "World load .. invalid camera target");
  if (camera) {
    setActiveCamera(camera);
  }
  const boost::shared_ptr<Background> newBackground = readReference<Background>(
      stream, table, IndexLimit::UP_TO_SIZE, IndexZero::NO_OBJECT,
      "World load .. invalid background index", "World load .. invalid background target");
  if (newBackground) {
    setBackground(newBackground);
  }
}

}  // namespace varnel_m3g
