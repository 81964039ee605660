#include "engine/surface/appearance.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <iterator>
#include <stdexcept>
#include <string>

#include "engine/object/engine_limits.h"
#include "engine/object/log.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"

namespace varnel_m3g {

namespace {

constexpr int LOWEST_LAYER = -63;
constexpr int HIGHEST_LAYER = 63;
constexpr std::size_t FIRST_SWEEP = 64;

const boost::shared_ptr<Texture2D> noTexture;

void dumpID(const char* label, const boost::shared_ptr<Object3D>& object) {
  if (object) {
    logf("%s%u", label, static_cast<unsigned>(object->getUserID()));
  }
}

}  // namespace

boost::shared_ptr<Appearance> Appearance::create() {
  const boost::shared_ptr<Appearance> appearance(new Appearance);
  appearance->initialise();
  return appearance;
}

Appearance::Appearance() = default;

Appearance::~Appearance() {
  textures.clear();
  fog.reset();
  compositingMode.reset();
  polygonMode.reset();
  material.reset();
  renderNext.reset();
}

void Appearance::initialise() {
  reset();
}

unsigned Appearance::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Object3D::getReferences(references, max);
  const auto report = [&](const boost::shared_ptr<Object3D>& object) {
    if (!object) {
      return;
    }
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Appearance::getReferences: reference count exceeded.");
      }
      references[count] = object;
    }
    ++count;
  };
  report(material);
  report(polygonMode);
  report(compositingMode);
  report(fog);
  for (const boost::shared_ptr<Texture2D>& texture : textures) {
    report(texture);
  }
  return count;
}

void Appearance::dump() {
  Object3D::dump();
  log("Appearance Object");
  log("=================");
  logf("Layer: %u", static_cast<unsigned>(layer));
  dumpID("CompositingMode ID: ", compositingMode);
  dumpID("Fog ID:             ", fog);
  dumpID("PolygonMode ID:     ", polygonMode);
  dumpID("Material ID:        ", material);
  for (std::size_t unit = 0; unit < textures.size(); ++unit) {
    if (textures[unit]) {
      logf("Texture[%u] ID: %u", static_cast<unsigned>(unit),
           static_cast<unsigned>(textures[unit]->getUserID()));
    }
  }
}

boost::shared_ptr<Object3D> Appearance::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<Appearance> copy = boost::dynamic_pointer_cast<Appearance>(target);
  copy->compositingMode = compositingMode;
  copy->fog = fog;
  copy->layer = layer;
  copy->material = material;
  copy->polygonMode = polygonMode;
  // The unit count of the engine may have changed since this object was made.
  const std::size_t units = std::min(textures.size(), copy->textures.size());
  for (std::size_t unit = 0; unit < units; ++unit) {
    copy->textures[unit] = textures[unit];
  }
  return target;
}

void Appearance::reset() {
  Object3D::reset();
  setLayer(0);
  textures.assign(static_cast<std::size_t>(std::max(maxTextureUnits, 0)), noTexture);
}

void Appearance::setMaterial(const boost::shared_ptr<Material>& newMaterial) {
  material = newMaterial;
}

void Appearance::setPolygonMode(const boost::shared_ptr<PolygonMode>& newPolygonMode) {
  polygonMode = newPolygonMode;
}

void Appearance::setCompositingMode(const boost::shared_ptr<CompositingMode>& newMode) {
  compositingMode = newMode;
}

void Appearance::setFog(const boost::shared_ptr<Fog>& newFog) {
  fog = newFog;
}

void Appearance::setLayer(int newLayer) {
  if (newLayer < LOWEST_LAYER || newLayer > HIGHEST_LAYER) {
    throw std::out_of_range("Invalid layer value");
  }
  layer = newLayer;
}

void Appearance::setTexture(int index, const boost::shared_ptr<Texture2D>& texture) {
  checkTextureIndex(index);
  if (index >= 0 && index < getTextureUnitCount()) {
    textures[static_cast<std::size_t>(index)] = texture;
  }
}

boost::shared_ptr<Texture2D> Appearance::getTexture(int index) const {
  checkTextureIndex(index);
  return textureAt(index);
}

const boost::shared_ptr<Texture2D>& Appearance::textureAt(int unit) const {
  if (unit < 0 || unit >= getTextureUnitCount()) {
    return noTexture;
  }
  return textures[static_cast<std::size_t>(unit)];
}

void Appearance::checkTextureIndex(int index) const {
  if (index > getTextureUnitCount()) {
    throw std::out_of_range("Index out texture units boundary: " + std::to_string(index) + " " +
                            std::to_string(getTextureUnitCount()));
  }
}

void Appearance::addMeshReference(const boost::shared_ptr<Node>& node) {
  if (!node) {
    return;
  }
  const auto known = meshesByOwner.find(node);
  if (known != meshesByOwner.end()) {
    ++known->second->count;
    return;
  }
  // A node cannot sign off in its destructor. Looking for dead ones each time that the number has
  // doubled keeps the table in proportion to the living at a constant cost per node.
  if (meshes.size() >= nextSweep) {
    dropDeadMeshes();
    nextSweep = std::max(FIRST_SWEEP, 2 * meshes.size());
  }
  meshes.push_back(MeshReference{node, 1});
  meshesByOwner.emplace(node, std::prev(meshes.end()));
}

void Appearance::removeMeshReference(const boost::shared_ptr<Node>& node) {
  const auto known = meshesByOwner.find(node);
  if (known == meshesByOwner.end()) {
    return;
  }
  if (--known->second->count == 0) {
    meshes.erase(known->second);
    meshesByOwner.erase(known);
  }
}

std::vector<boost::shared_ptr<Node>> Appearance::getMeshes() {
  std::vector<boost::shared_ptr<Node>> nodes;
  getMeshes(nodes);
  return nodes;
}

void Appearance::getMeshes(std::vector<boost::shared_ptr<Node>>& out) {
  out.clear();
  for (auto mesh = meshes.begin(); mesh != meshes.end();) {
    const boost::shared_ptr<Node> node = mesh->node.lock();
    if (node) {
      out.push_back(node);
      ++mesh;
    } else {
      mesh = dropMesh(mesh);
    }
  }
}

Appearance::MeshList::iterator Appearance::dropMesh(MeshList::iterator mesh) {
  meshesByOwner.erase(mesh->node);
  return meshes.erase(mesh);
}

void Appearance::dropDeadMeshes() {
  for (auto mesh = meshes.begin(); mesh != meshes.end();) {
    mesh = mesh->node.expired() ? dropMesh(mesh) : std::next(mesh);
  }
}

}  // namespace varnel_m3g
