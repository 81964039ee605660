#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string>

#include "engine/animation/animation_controller.h"
#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/loader/loader.h"
#include "engine/loader/m3g_object_input_stream.h"
#include "engine/object/log.h"
#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/scene/mesh.h"
#include "engine/scene/morphing_mesh.h"
#include "engine/scene/skinned_mesh.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"

namespace varnel_m3g {
namespace {

template <class T>
boost::shared_ptr<Object3D> loadRecord(M3gObjectInputStream& stream, ObjectTable& objects) {
  const boost::shared_ptr<T> object(new T);
  object->load(stream, objects);
  return object;
}

}  // namespace

boost::shared_ptr<Object3D> Loader::readObject(M3gObjectInputStream& stream, ObjectTable& objects) {
  const int type = stream.readByte();
  const std::uint32_t length = static_cast<std::uint32_t>(stream.readInt32());
  switch (type) {
    case 0:
      return {};
    case 1:
      return loadRecord<AnimationController>(stream, objects);
    case 2:
      return loadRecord<AnimationTrack>(stream, objects);
    case 3:
      return loadRecord<Appearance>(stream, objects);
    case 4:
      return loadRecord<Background>(stream, objects);
    case 5:
      return loadRecord<Camera>(stream, objects);
    case 6:
      return loadRecord<CompositingMode>(stream, objects);
    case 7:
      return loadRecord<Fog>(stream, objects);
    case 8:
      return loadRecord<PolygonMode>(stream, objects);
    case 9:
      return loadRecord<Group>(stream, objects);
    case 10:
      return loadRecord<Image2D>(stream, objects);
    case 11:
      return loadRecord<TriangleStripArray>(stream, objects);
    case 12:
      return loadRecord<Light>(stream, objects);
    case 13:
      return loadRecord<Material>(stream, objects);
    case 14:
      return loadRecord<Mesh>(stream, objects);
    case 15:
      return loadRecord<MorphingMesh>(stream, objects);
    case 16:
      return loadRecord<SkinnedMesh>(stream, objects);
    case 17:
      return loadRecord<Texture2D>(stream, objects);
    case 19:
      return loadRecord<KeyframeSequence>(stream, objects);
    case 20:
      return loadRecord<VertexArray>(stream, objects);
    case 21:
      return loadRecord<VertexBuffer>(stream, objects);
    case 22:
      return loadRecord<World>(stream, objects);
    case 255:
      return processExternalRef(stream);
    default:
      std::cerr << "Error, Unknown object type (" << type << ")" << std::endl;
      stream.skip(length);
      return {};
  }
}

boost::shared_ptr<Object3D> Loader::processExternalRef(M3gObjectInputStream& stream) {
  const std::string name = stream.readString();
  logf("External Reference: %s", name.c_str());
  const std::string lower = lowerCase(name);
  if (lower.rfind(".png") != std::string::npos) {
    log("\tReference is PNG");
    return readPNG(name.c_str());
  }
  if (lower.rfind(".m3g") != std::string::npos) {
    throw std::runtime_error("Loader::processExternalRef Nested m3g files not supported yet");
  }
  if (lower.rfind(".jpg") != std::string::npos || lower.rfind("jpeg") != std::string::npos) {
    log("\tReference is JPEG");
    return readJPEG(name.c_str());
  }
  throw std::runtime_error("Loader::processExternalRef  External reference is not PNG or M3G");
}

}  // namespace varnel_m3g
