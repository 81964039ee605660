#include "engine/scene/mesh.h"

#include <boost/pointer_cast.hpp>
#include <cstdio>
#include <stdexcept>

#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/object/log.h"
#include "engine/scene/ray_intersection.h"
#include "engine/surface/appearance.h"
#include "engine/surface/polygon_mode.h"

namespace varnel_m3g {

boost::shared_ptr<Mesh> Mesh::create(const boost::shared_ptr<VertexBuffer>& vertices,
                                     const boost::shared_ptr<IndexBuffer>& submesh,
                                     const boost::shared_ptr<Appearance>& appearance) {
  boost::shared_ptr<Mesh> mesh(new Mesh);
  mesh->initialise(vertices, submesh, appearance);
  return mesh;
}

boost::shared_ptr<Mesh> Mesh::create(const boost::shared_ptr<VertexBuffer>& vertices,
                                     const boost::shared_ptr<IndexBuffer>* submeshes,
                                     const boost::shared_ptr<Appearance>* appearances,
                                     unsigned count) {
  boost::shared_ptr<Mesh> mesh(new Mesh);
  mesh->initialise(vertices, submeshes, appearances, count);
  return mesh;
}

Mesh::Mesh() : submeshes(1), appearances(1) {}

Mesh::~Mesh() = default;

void Mesh::initialise(const boost::shared_ptr<VertexBuffer>& vertices,
                      const boost::shared_ptr<IndexBuffer>& submesh,
                      const boost::shared_ptr<Appearance>& appearance) {
  if (!vertices) {
    throw std::invalid_argument("Mesh constructor called with vertices = null");
  }
  if (!submesh) {
    throw std::invalid_argument("Mesh constructor called with submesh = null");
  }
  Node::initialise();
  vertexBuffer = vertices;
  renderBuffer = vertices;
  allocateSubmeshes(1);
  submeshes[0] = submesh;
  setAppearance(0, appearance);
}

void Mesh::initialise(const boost::shared_ptr<VertexBuffer>& vertices,
                      const boost::shared_ptr<IndexBuffer>* newSubmeshes,
                      const boost::shared_ptr<Appearance>* newAppearances, unsigned count) {
  Node::initialise();
  setGeometry(vertices, newSubmeshes, newAppearances, count);
}

void Mesh::setGeometry(const boost::shared_ptr<VertexBuffer>& vertices,
                       const boost::shared_ptr<IndexBuffer>* newSubmeshes,
                       const boost::shared_ptr<Appearance>* newAppearances, unsigned count) {
  if (!vertices) {
    throw std::invalid_argument("Mesh constructor called with vertices = null");
  }
  if (newSubmeshes == nullptr) {
    throw std::invalid_argument("Mesh constructor called with submesh = null");
  }
  if (count == 0) {
    throw std::invalid_argument("Mesh constructor called with empty submesh array");
  }
  allocateSubmeshes(count);
  if (newAppearances != nullptr) {
    for (unsigned i = 0; i < count; ++i) {
      setAppearance(static_cast<int>(i), newAppearances[i]);
    }
  }
  for (unsigned i = 0; i < count; ++i) {
    if (!newSubmeshes[i]) {
      throw std::invalid_argument(
          "Mesh constructor called with submesh array containing null mesh entry");
    }
    submeshes[i] = newSubmeshes[i];
  }
  vertexBuffer = vertices;
  renderBuffer = vertices;
}

void Mesh::allocateSubmeshes(unsigned count) {
  submeshes.resize(count + 1);
  appearances.resize(count + 1);
  submeshCount = count;
}

void Mesh::makePrivateRenderBuffer() {
  renderBuffer = boost::dynamic_pointer_cast<VertexBuffer>(vertexBuffer->duplicate());
}

unsigned Mesh::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Node::getReferences(references, max);
  processArrayReferences(appearances.data(), submeshCount, references, max, count);
  processArrayReferences(submeshes.data(), submeshCount, references, max, count);
  if (vertexBuffer) {
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("Mesh::getReferences: max reference count exceeded.");
      }
      references[count] = vertexBuffer;
    }
    ++count;
  }
  return count;
}

void Mesh::dump() {
  Node::dump();
  log("Mesh Object");
  log("===========");
  logf("VertexBuffer ID: %u", static_cast<unsigned>(vertexBuffer->getUserID()));
  logf("SubmeshCount ID: %u", submeshCount);
  for (unsigned i = 0; i < submeshCount; ++i) {
    logf("\tIndexBuffer ID: %u", static_cast<unsigned>(submeshes[i]->getUserID()));
    if (appearances[i]) {
      logf("\tAppearance ID:  %u", static_cast<unsigned>(appearances[i]->getUserID()));
    }
  }
}

boost::shared_ptr<Object3D> Mesh::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = Mesh::create(vertexBuffer, submeshes.data(), appearances.data(), submeshCount);
  }
  return Node::duplicateImpl(target);
}

boost::shared_ptr<VertexBuffer> Mesh::updateRenderBuffer() {
  renderBuffer = vertexBuffer;
  return renderBuffer;
}

void Mesh::pickRay(const float* origin, const float* direction, const Transform& toMesh,
                   RayIntersection& result) {
  for (unsigned i = 0; i < submeshCount; ++i) {
    const boost::shared_ptr<Appearance>& appearance = getAppearance(static_cast<int>(i));
    if (!appearance) {
      continue;
    }
    const float before = result.getDistance();
    submeshes[i]->intersect(origin, direction, toMesh, result, appearance->getPolygonMode().get(),
                            *renderBuffer);
    const float now = result.getDistance();
    if (now != 0.0f && (before == 0.0f || now < before)) {
      result.setIntersected(nodeFromThis(), static_cast<int>(i));
    }
  }
}

void Mesh::setAppearance(int index, const boost::shared_ptr<Appearance>& appearance) {
  if (index < 0 || static_cast<unsigned>(index) > submeshCount) {
    throw std::out_of_range("Mesh.setAppearance() the index is out of bounds");
  }
  boost::shared_ptr<Appearance>& slot = appearances[static_cast<unsigned>(index)];
  const boost::shared_ptr<Node> self = nodeFromThis();
  if (slot) {
    slot->removeMeshReference(self);
  }
  if (appearance) {
    appearance->addMeshReference(self);
  }
  slot = appearance;
}

const boost::shared_ptr<Appearance>& Mesh::getAppearance(int index) const {
  if (index < 0 || static_cast<unsigned>(index) > submeshCount) {
    throw std::out_of_range("Mesh.getAppearance() the index is out of bounds");
  }
  return appearances[static_cast<unsigned>(index)];
}

const boost::shared_ptr<IndexBuffer>& Mesh::getIndexBuffer(int index) const {
  if (index < 0 || static_cast<unsigned>(index) > submeshCount) {
    throw std::out_of_range("Mesh.getIndexBuffer() the index is out of bounds");
  }
  return submeshes[static_cast<unsigned>(index)];
}

void Mesh::examineVertexBuffer() {
  std::fputs("Examining the VertexBuffer of a Mesh node : \n", stdout);
  std::fflush(stdout);
  vertexBuffer->dump();
}

}  // namespace varnel_m3g
