#include "engine/scene/skinned_mesh.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <stdexcept>

#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/object/engine_limits.h"
#include "engine/object/log.h"
#include "engine/scene/group.h"
#include "engine/scene/skin_accumulator.h"
#include "engine/scene/skin_debug.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"

namespace varnel_m3g {

namespace {

constexpr int runLimit = 65536;

std::size_t index(int value) {
  return static_cast<std::size_t>(value);
}

bool holdsShorts(const VertexArray& array) {
  return array.getComponentType() == 2 || array.isWidened();
}

// An array of the renderer's own with the shape of the source: the present one if it is that.
boost::shared_ptr<VertexArray> ownArray(const boost::shared_ptr<VertexArray>& source,
                                        const boost::shared_ptr<VertexArray>& present) {
  if (!source) {
    return source;
  }
  if (present && present != source && present->getVertexCount() == source->getVertexCount() &&
      present->getComponentCount() == source->getComponentCount() &&
      present->getComponentType() == source->getComponentType() &&
      present->isWidened() == source->isWidened()) {
    return present;
  }
  return source->copyInto(boost::shared_ptr<VertexArray>());
}

}  // namespace

/// Makes a bone group of each node of a skeleton. The nodes wait in a list, so that the depth of
/// the skeleton does not matter.
class SkinnedMesh::BoneTransformInit : public Node::NodeTraverser {
 public:
  explicit BoneTransformInit(SkinnedMesh& mesh) : mesh(mesh) {}

  void traverse(const boost::shared_ptr<Node>& child) override { waiting.push_back(child); }

  void run(const boost::shared_ptr<Node>& skeleton) {
    waiting.push_back(skeleton);
    while (!waiting.empty()) {
      const boost::shared_ptr<Node> node = waiting.back();
      waiting.pop_back();
      mesh.initBoneGroup(node);
      node->traverseChildren(*this);
    }
  }

 private:
  SkinnedMesh& mesh;
  std::vector<boost::shared_ptr<Node>> waiting;
};

boost::shared_ptr<SkinnedMesh> SkinnedMesh::create(const boost::shared_ptr<VertexBuffer>& vertices,
                                                   const boost::shared_ptr<IndexBuffer>& submesh,
                                                   const boost::shared_ptr<Appearance>& appearance,
                                                   const boost::shared_ptr<Group>& skeleton) {
  boost::shared_ptr<SkinnedMesh> mesh(new SkinnedMesh);
  mesh->initialise(vertices, submesh, appearance);
  mesh->setSkeleton(skeleton);
  return mesh;
}

boost::shared_ptr<SkinnedMesh> SkinnedMesh::create(const boost::shared_ptr<VertexBuffer>& vertices,
                                                   const boost::shared_ptr<IndexBuffer>* submeshes,
                                                   const boost::shared_ptr<Appearance>* appearances,
                                                   unsigned count,
                                                   const boost::shared_ptr<Group>& skeleton) {
  boost::shared_ptr<SkinnedMesh> mesh(new SkinnedMesh);
  mesh->initialise(vertices, submeshes, appearances, count);
  mesh->setSkeleton(skeleton);
  return mesh;
}

SkinnedMesh::SkinnedMesh() = default;

SkinnedMesh::~SkinnedMesh() = default;

void SkinnedMesh::setSkeleton(const boost::shared_ptr<Group>& newSkeleton) {
  if (!newSkeleton) {
    throw std::invalid_argument("Null Skeleton");
  }
  if (dynamic_cast<World*>(newSkeleton.get()) != nullptr) {
    throw std::invalid_argument("Skeleton can not be instance of World");
  }
  if (newSkeleton->getParent()) {
    throw std::invalid_argument("Given skeleton already had a parent");
  }
  attachSkeleton(newSkeleton);
  prepareWeights();
}

void SkinnedMesh::attachSkeleton(const boost::shared_ptr<Group>& newSkeleton) {
  if (dynamic_cast<World*>(newSkeleton.get()) != nullptr) {
    throw std::invalid_argument("Child is a instance of World.");
  }
  const boost::shared_ptr<Node> parent = newSkeleton->getParent();
  if (parent && parent.get() != this) {
    throw std::invalid_argument("Attempt to add a skeleton that already has a parent");
  }
  if (!childList().empty()) {
    throw std::runtime_error("SkinnedMesh has multiple children");
  }
  skeleton = newSkeleton;
  if (!parent) {
    addChild(skeleton);
  }
  BoneTransformInit(*this).run(skeleton);
}

void SkinnedMesh::initBoneGroup(const boost::shared_ptr<Node>& node) {
  const boost::shared_ptr<BoneGroup> group(new BoneGroup);
  group->bone = node;
  boneGroups[node.get()] = group;
}

void SkinnedMesh::prepareWeights() {
  makePrivateRenderBuffer();
  vertexCount = vertexBuffer->getVertexCount();
  inverseWeights.assign(index(vertexCount), 0.0F);
  totalWeights.assign(index(vertexCount), 0);
  prepareRenderBuffer();
}

unsigned SkinnedMesh::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  return Mesh::getReferences(references, max);
}

void SkinnedMesh::dump() {
  Mesh::dump();
  log("SkinnedMesh Object");
  log("==================");
  logf("Skeleton ID: %u", skeleton ? static_cast<unsigned>(skeleton->getUserID()) : 0U);
  logf("TransformReferenceCount: %u", static_cast<unsigned>(boneVertexTransforms.size()));
}

boost::shared_ptr<Object3D> SkinnedMesh::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(vertexBuffer, submeshes.data(), appearances.data(), submeshCount, skeleton);
  }
  Mesh::duplicateImpl(target);
  std::fputs("SkinnedMesh.duplicateImpl()  is not fully implemented!!\n", stderr);
  return target;
}

void SkinnedMesh::addTransform(const boost::shared_ptr<Node>& bone, int weight, int firstVertex,
                               int numVertices) {
  if (!bone) {
    throw std::invalid_argument("NULL bone");
  }
  if (weight < 1) {
    throw std::invalid_argument("weight <= 0");
  }
  if (numVertices < 1) {
    throw std::invalid_argument("numVertices <= 0");
  }
  if (firstVertex < 0) {
    throw std::out_of_range("firstVertex < 0");
  }
  if (numVertices >= runLimit || firstVertex >= runLimit - numVertices) {
    throw std::out_of_range("firstVertex+numVertices > 65535");
  }
  // Before the bone is looked up: a run of a bone outside the skeleton stays in the list.
  boneVertexTransforms.push_back(boost::shared_ptr<BoneVertexTransform>(
      new BoneVertexTransform{bone, weight, firstVertex, numVertices}));
  BoneGroup* const group = findBoneGroup(bone);
  if (group == nullptr) {
    throw std::invalid_argument("Given bone is not skeleton or its descendant");
  }
  getTransformTo(bone, group->restTransform);
  const std::size_t end = index(firstVertex + numVertices);
  if (end > totalWeights.size()) {
    totalWeights.resize(end, 0);
    inverseWeights.resize(end, 0.0F);
  }
  for (std::size_t v = index(firstVertex); v < end; ++v) {
    totalWeights[v] = static_cast<int>(static_cast<std::uint32_t>(totalWeights[v]) +
                                       static_cast<std::uint32_t>(weight));
    inverseWeights[v] = static_cast<float>(1.0 / totalWeights[v]);
  }
  debugRun(firstVertex, numVertices);
  debugMatrix("addTransform matrix", group->restTransform);
}

SkinnedMesh::BoneGroup* SkinnedMesh::findBoneGroup(const boost::shared_ptr<Node>& bone) const {
  const auto found = boneGroups.find(bone.get());
  return found == boneGroups.end() ? nullptr : found->second.get();
}

void SkinnedMesh::getBoneTransform(const boost::shared_ptr<Node>& bone, Transform& out) const {
  if (!bone) {
    throw std::invalid_argument("getBone called with a null bone instance as an argument");
  }
  const BoneGroup* const group = findBoneGroup(bone);
  if (group == nullptr) {
    throw std::invalid_argument("getBone -- bone not found in the skeleton");
  }
  out = group->restTransform;
}

int SkinnedMesh::getBoneVertices(const boost::shared_ptr<Node>& bone, int* indices, float* weights,
                                 int n) const {
  int count = 0;
  for (const boost::shared_ptr<BoneVertexTransform>& run : boneVertexTransforms) {
    if (run->bone != bone) {
      continue;
    }
    if (indices == nullptr && weights == nullptr) {
      // Enough runs exceed an int.
      count = static_cast<int>(static_cast<std::uint32_t>(count) +
                               static_cast<std::uint32_t>(run->numVertices));
      continue;
    }
    if (n - count < run->numVertices) {
      throw std::invalid_argument("Too small a value for nVertices in getBoneVertices");
    }
    for (int v = run->firstVertex; v < run->firstVertex + run->numVertices; ++v) {
      if (weights != nullptr) {
        weights[count] = static_cast<float>(static_cast<double>(run->weight) * inverseWeightOf(v));
      }
      if (indices != nullptr) {
        indices[count] = v;
      }
      ++count;
    }
  }
  return count;
}

float SkinnedMesh::inverseWeightOf(int vertex) const {
  return index(vertex) < inverseWeights.size() ? inverseWeights[index(vertex)] : 0.0F;
}

boost::shared_ptr<VertexBuffer> SkinnedMesh::updateRenderBuffer() {
  prepareRenderBuffer();
  for (const boost::shared_ptr<BoneVertexTransform>& run : boneVertexTransforms) {
    const BoneGroup* const group = findBoneGroup(run->bone);
    if (group == nullptr) {
      continue;
    }
    Transform bone = run->bone->worldTransform();
    debugMatrix("boneToRootTrans", bone);
    debugMatrix("restTransform", group->restTransform);
    bone.postMultiply(group->restTransform);
    debugMatrix("Composite bone transform", bone);
    accumulateBone(bone, run->firstVertex, run->numVertices, run->weight);
  }
  return renderBuffer;
}

void SkinnedMesh::prepareRenderBuffer() {
  const VertexBuffer& source = *vertexBuffer;
  VertexBuffer& target = *renderBuffer;
  float scaleBias[4];
  const boost::shared_ptr<VertexArray> sourcePositions = source.getPositions(scaleBias);
  const boost::shared_ptr<VertexArray> positions =
      ownArray(sourcePositions, target.getPositions(nullptr));
  const boost::shared_ptr<VertexArray> normals = ownArray(source.getNormals(), target.getNormals());
  if (source.getVertexCount() != target.getVertexCount()) {
    // The source was given arrays of another length: without positions any length is taken.
    target.setPositions(boost::shared_ptr<VertexArray>(), scaleBias[0], nullptr);
  }
  target.setPositions(positions, scaleBias[0], scaleBias + 1);
  target.setNormals(normals);
  target.setColors(source.getColors());
  target.setDefaultColor(source.getDefaultColor());
  if (source.hasTexCoordTables()) {
    for (int unit = 0; unit < maxTextureUnits; ++unit) {
      const boost::shared_ptr<VertexArray> texCoords = source.getTexCoords(unit, scaleBias);
      target.setTexCoords(unit, texCoords, scaleBias[0], scaleBias + 1);
    }
  }
  copyUnbound(sourcePositions, positions);
  copyUnbound(source.getNormals(), normals);
}

void SkinnedMesh::copyUnbound(const boost::shared_ptr<VertexArray>& source,
                              const boost::shared_ptr<VertexArray>& target) const {
  if (!source) {
    return;
  }
  const int bound = std::min(vertexCount, source->getVertexCount());
  source->copyInto(target);
  if (holdsShorts(*source)) {
    clearBound(source->shortData(), inverseWeights.data(), index(bound), target->writableShorts());
  } else {
    clearBound(source->byteData(), inverseWeights.data(), index(bound), target->writableBytes());
  }
}

void SkinnedMesh::accumulateBone(const Transform& bone, int firstVertex, int numVertices,
                                 int weight) {
  float matrix[16];
  bone.get(matrix);
  const boost::shared_ptr<VertexArray> sourcePositions = vertexBuffer->getPositions(nullptr);
  if (!sourcePositions) {
    return;
  }
  const int end =
      std::min({firstVertex + numVertices, vertexCount, sourcePositions->getVertexCount()});
  if (firstVertex >= end) {
    return;
  }
  const std::size_t vertices = index(end - firstVertex);
  const std::size_t place = 3 * index(firstVertex);
  const float* const inverse = inverseWeights.data() + firstVertex;
  VertexArray& positions = *renderBuffer->getPositions(nullptr);
  if (holdsShorts(positions)) {
    accumulatePositions(matrix, weight, inverse, sourcePositions->shortData() + place, vertices,
                        positions.writableShorts() + place);
  } else {
    accumulatePositions(matrix, weight, inverse, sourcePositions->byteData() + place, vertices,
                        positions.writableBytes() + place);
  }
  if (!vertexBuffer->getNormals()) {
    return;
  }
  const VertexArray& sourceNormals = *vertexBuffer->getNormals();
  VertexArray& normals = *renderBuffer->getNormals();
  if (sourceNormals.getVertexCount() < end) {
    return;
  }
  if (holdsShorts(normals)) {
    accumulateNormals(matrix, weight, inverse, sourceNormals.shortData() + place, vertices,
                      normals.writableShorts() + place);
  } else {
    accumulateNormals(matrix, weight, inverse, sourceNormals.byteData() + place, vertices,
                      normals.writableBytes() + place);
  }
}

void SkinnedMesh::printWeights() const {
  std::fputs("weight sum and norm\n", stderr);
  for (int v = 0; v < vertexCount; ++v) {
    std::fprintf(stderr, "%i sum:%d norm:%8.2f\n", v, totalWeights[index(v)],
                 static_cast<double>(inverseWeights[index(v)]));
  }
  std::fputc('\n', stderr);
}

}  // namespace varnel_m3g
