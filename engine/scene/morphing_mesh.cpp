#include "engine/scene/morphing_mesh.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/object/engine_limits.h"
#include "engine/surface/appearance.h"

namespace varnel_m3g {

namespace {

// Selectors of a vertex buffer's arrays.
constexpr int POSITIONS = 0;
constexpr int NORMALS = 1;
constexpr int COLORS = 2;
constexpr int FIRST_TEX_COORDS = 3;

bool haveOneShape(const VertexArray& a, const VertexArray& b) {
  return a.getComponentCount() == b.getComponentCount() &&
         a.getVertexCount() == b.getVertexCount() && a.getComponentType() == b.getComponentType();
}

}  // namespace

boost::shared_ptr<MorphingMesh> MorphingMesh::create(
    const boost::shared_ptr<VertexBuffer>& base, const boost::shared_ptr<VertexBuffer>* targets,
    int targetCount, const boost::shared_ptr<IndexBuffer>& submesh,
    const boost::shared_ptr<Appearance>& appearance) {
  boost::shared_ptr<MorphingMesh> mesh(new MorphingMesh);
  mesh->initialise(base, submesh, appearance);
  mesh->storeTargets(targets, targetCount);
  mesh->prepareBlend();
  return mesh;
}

boost::shared_ptr<MorphingMesh> MorphingMesh::create(
    const boost::shared_ptr<VertexBuffer>& base, const boost::shared_ptr<VertexBuffer>* targets,
    int targetCount, const boost::shared_ptr<IndexBuffer>* submeshes,
    const boost::shared_ptr<Appearance>* appearances, unsigned submeshCount) {
  boost::shared_ptr<MorphingMesh> mesh(new MorphingMesh);
  mesh->initialise(base, submeshes, appearances, submeshCount);
  mesh->storeTargets(targets, targetCount);
  // Only here: a mesh of one submesh holds its targets but does not count them.
  mesh->morphTargetCount = targetCount;
  mesh->prepareBlend();
  return mesh;
}

MorphingMesh::MorphingMesh() = default;

MorphingMesh::~MorphingMesh() = default;

void MorphingMesh::storeTargets(const boost::shared_ptr<VertexBuffer>* targets, int count) {
  if (targets == nullptr) {
    throw std::invalid_argument("NULL targets for MorphingMesh");
  }
  if (count < 1) {
    throw std::invalid_argument("Empty targets for MorphingMesh");
  }
  morphTargets.clear();
  for (int i = 0; i < count; ++i) {
    if (!targets[i]) {
      morphTargets.clear();
      throw std::invalid_argument("NULL targets[" + std::to_string(i) + "] for MorphingMesh");
    }
    morphTargets.push_back(targets[i]);
  }
  weights.assign(morphTargets.size(), 0.0F);
}

void MorphingMesh::prepareBlend() {
  // Picking keeps to this copy.
  makePrivateRenderBuffer();
  blendedBuffer = VertexBuffer::create();
  gathered.reserve(morphTargets.size());
}

unsigned MorphingMesh::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Mesh::getReferences(references, max);
  processArrayReferences(morphTargets.data(), static_cast<unsigned>(morphTargets.size()),
                         references, max, count);
  return count;
}

boost::shared_ptr<Object3D> MorphingMesh::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(vertexBuffer, morphTargets.data(), static_cast<int>(morphTargets.size()),
                    submeshes.data(), appearances.data(), submeshCount);
  }
  Mesh::duplicateImpl(target);
  static_cast<MorphingMesh&>(*target).setWeights(weights.data());
  return target;
}

boost::shared_ptr<VertexBuffer> MorphingMesh::updateRenderBuffer() {
  if (!weightsChanged && !blendPending) {
    return blendedBuffer;
  }
  float scaleBias[4];
  const boost::shared_ptr<VertexArray> basePositions = vertexBuffer->getPositions(scaleBias);
  const boost::shared_ptr<VertexArray> positions = blend(POSITIONS, true);
  if (vertexBuffer->getVertexCount() != blendedBuffer->getVertexCount()) {
    // The base was given arrays of another length: without positions any length is taken.
    blendedBuffer->setPositions(boost::shared_ptr<VertexArray>(), scaleBias[0], nullptr);
  }
  blendedBuffer->setPositions(positions, scaleBias[0], scaleBias + 1);
  blendedBuffer->setNormals(blend(NORMALS, true));
  blendedBuffer->setColors(blend(COLORS, false));
  for (int unit = 0; unit < maxTextureUnits; ++unit) {
    vertexBuffer->getTexCoords(unit, scaleBias);
    blendedBuffer->setTexCoords(unit, blend(FIRST_TEX_COORDS + unit, true), scaleBias[0],
                                scaleBias + 1);
  }
  weightsChanged = false;
  blendPending = false;
  return blendedBuffer;
}

boost::shared_ptr<VertexArray> MorphingMesh::blend(int selector, bool signedBytes) {
  const boost::shared_ptr<VertexArray> base = vertexBuffer->getArray(selector);
  if (!base || !gatherTargets(selector)) {
    return base;
  }
  const std::size_t place = static_cast<std::size_t>(selector);
  if (place >= blendedArrays.size()) {
    blendedArrays.resize(place + 1);
  }
  const bool blended = VertexArray::morph(*base, static_cast<int>(gathered.size()), gathered.data(),
                                          weights.data(), signedBytes, blendedArrays[place]);
  return blended ? blendedArrays[place] : base;
}

bool MorphingMesh::gatherTargets(int selector) {
  gathered.clear();
  for (int i = 0; i < morphTargetCount; ++i) {
    VertexArray* const array = morphTargets[static_cast<std::size_t>(i)]->getArray(selector).get();
    if (array == nullptr || (i > 0 && !haveOneShape(*array, *gathered[0]))) {
      return false;
    }
    gathered.push_back(array);
  }
  return !gathered.empty();
}

boost::shared_ptr<VertexBuffer> MorphingMesh::getMorphTarget(int index) const {
  if (index >= morphTargetCount) {
    throw std::out_of_range("Given index " + std::to_string(index) +
                            "; number of targets: " + std::to_string(morphTargetCount));
  }
  return index < 0 ? boost::shared_ptr<VertexBuffer>()
                   : morphTargets[static_cast<std::size_t>(index)];
}

void MorphingMesh::setWeights(const float* newWeights) {
  if (newWeights == nullptr) {
    throw std::invalid_argument("MorphMesh::setWeight called with null weights array");
  }
  std::copy_n(newWeights, morphTargetCount, weights.begin());
  weightsChanged = true;
}

void MorphingMesh::getWeights(float* out) const {
  if (out == nullptr) {
    throw std::invalid_argument("MorphMesh::getWeight called with null weights array");
  }
  std::copy_n(weights.begin(), morphTargetCount, out);
}

}  // namespace varnel_m3g
