// Drawing: the retained render over the queue, and the immediate render of one submesh.

#include <GLES/gl.h>

#include <stdexcept>

#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/render/graphics3d.h"
#include "engine/render/render_queue.h"
#include "engine/render/render_state.h"
#include "engine/render/vertex_submission.h"
#include "engine/scene/camera.h"
#include "engine/scene/mesh.h"
#include "engine/scene/sprite3d.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/material.h"

namespace varnel_m3g {

namespace {

/// The nodes of the appearance that is being drawn. The storage is kept from one appearance to the
/// next, the nodes are not.
class NodeSnapshot {
 public:
  explicit NodeSnapshot(Appearance& appearance) { appearance.getMeshes(nodes()); }
  ~NodeSnapshot() { nodes().clear(); }
  NodeSnapshot(const NodeSnapshot&) = delete;
  NodeSnapshot& operator=(const NodeSnapshot&) = delete;

  static std::vector<boost::shared_ptr<Node>>& nodes() {
    static std::vector<boost::shared_ptr<Node>>& storage =
        *new std::vector<boost::shared_ptr<Node>>;
    return storage;
  }
};

/// A sprite may be rendered although it leaves the picture as it is.
bool isDrawable(const Node* node) {
  return dynamic_cast<const Group*>(node) || dynamic_cast<const Mesh*>(node) ||
         dynamic_cast<const Sprite3D*>(node);
}

/// Draws the submeshes of a mesh that use the appearance in force.
void drawMesh(Mesh& mesh, const boost::shared_ptr<Appearance>& appearance) {
  const float alpha = mesh.getEffectiveAlpha();
  const boost::shared_ptr<Material> material = renderState().currentMaterial;
  const bool fadesMaterial =
      alpha < opaqueAlpha && material && !material->isVertexColorTrackingEnabled();
  if (fadesMaterial) {
    const float* diffuse = material->getDiffuse();
    const GLfloat faded[4] = {diffuse[0], diffuse[1], diffuse[2], diffuse[3] * alpha};
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, faded);
  }
  const boost::shared_ptr<VertexBuffer> vertices = mesh.updateRenderBuffer();
  setupVertexArrays(*vertices, alpha, *appearance);
  const int count = static_cast<int>(mesh.getSubmeshCount());
  for (int i = 0; i < count; ++i) {
    if (mesh.getAppearance(i) == appearance && mesh.getIndexBuffer(i)) {
      drawIndexBuffer(GL_TRIANGLE_STRIP, *mesh.getIndexBuffer(i));
    }
  }
  finishVertexArrays();
  if (fadesMaterial) {
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, material->getDiffuse());
  }
}

void drawAppearance(const boost::shared_ptr<Appearance>& appearance, int cameraScope,
                    const LightList& lights) {
  applyAppearance(appearance);
  const NodeSnapshot snapshot(*appearance);
  for (const boost::shared_ptr<Node>& node : NodeSnapshot::nodes()) {
    if ((node->getScope() & cameraScope) == 0 || !node->isEffectiveRenderingEnabled()) {
      continue;
    }
    lights.applyLightScope(node->getScope());
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glMultMatrixf(node->worldTransform().data());
    if (Mesh* mesh = dynamic_cast<Mesh*>(node.get())) {
      drawMesh(*mesh, appearance);
    }
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
  }
}

}  // namespace

void Graphics3D::render(const boost::shared_ptr<World>& world) {
  if (!world) {
    throw std::invalid_argument("Graphics3D.render(world) -- world is null ");
  }
  if (!target) {
    throw std::runtime_error("Graphics3D.render(world) -- RenderTarget is null");
  }
  renderNode(world, world->worldTransform());
}

void Graphics3D::render(const boost::shared_ptr<Node>& node, const Transform* transform) {
  if (!node) {
    throw std::invalid_argument("Render called for a null node");
  }
  if (!isDrawable(node.get())) {
    throw std::invalid_argument(
        "m3g.Graphics3D.render(node, transform)  called on illegal Node subclass");
  }
  checkTargetAndCamera();
  renderNode(node, transform ? *transform : identityTransform());
}

void Graphics3D::checkTargetAndCamera() const {
  if (!target) {
    throw std::runtime_error("no rendering target currently defined");
  }
  if (!currentCamera) {
    throw std::runtime_error("Render called when no currentCamera defined.");
  }
}

void Graphics3D::loadCamera() const {
  glMatrixMode(GL_PROJECTION);
  glLoadMatrixf(currentCamera->projection());
  glMatrixMode(GL_MODELVIEW);
  glLoadMatrixf(cameraTransform.data());
}

void Graphics3D::enterWorld(World& world) {
  const boost::shared_ptr<Camera> camera = world.getActiveCamera();
  if (!camera) {
    throw std::runtime_error("Graphics3D.render(world) -- World has null active camera.");
  }
  const boost::shared_ptr<Node> root = camera->getRoot().lock();
  if (root.get() != &world) {
    throw std::runtime_error(
        "Graphics3D.render(world) -- World has active camera that is not decendent of World.");
  }
  clear(world.getBackground());
  Transform& toCamera = camera->scratchTransform();
  camera->getTransformTo(root, toCamera);
  toCamera.invert();
  currentCamera = camera;
  cameraTransform = toCamera;
  lights.syncLights(world.getLights());
}

void Graphics3D::renderNode(const boost::shared_ptr<Node>& node, const Transform& transform) {
  RenderQueue& queue = RenderQueue::get();
  queue.clear();
  queue.collect(*node);
  if (World* world = dynamic_cast<World*>(node.get())) {
    enterWorld(*world);
  }
  loadCamera();
  const int cameraScope = currentCamera->getScope();
  glMatrixMode(GL_MODELVIEW);
  glPushMatrix();
  glMultMatrixf(transform.data());
  for (int bucket = 0; bucket < RenderQueue::bucketCount; ++bucket) {
    while (const boost::shared_ptr<Appearance> appearance = queue.next(bucket)) {
      drawAppearance(appearance, cameraScope, lights);
    }
    queue.empty(bucket);
  }
  glMatrixMode(GL_MODELVIEW);
  glPopMatrix();
}

void Graphics3D::render(const boost::shared_ptr<VertexBuffer>& vertices,
                        const boost::shared_ptr<IndexBuffer>& triangles,
                        const boost::shared_ptr<Appearance>& appearance,
                        const Transform* transform) {
  render(vertices, triangles, appearance, transform, -1);
}

void Graphics3D::render(const boost::shared_ptr<VertexBuffer>& vertices,
                        const boost::shared_ptr<IndexBuffer>& triangles,
                        const boost::shared_ptr<Appearance>& appearance, const Transform* transform,
                        int scope) {
  if (!vertices) {
    throw std::invalid_argument("Render called with invalid vertex buffer");
  }
  if (!triangles) {
    throw std::invalid_argument("Render called with invalid index buffer");
  }
  if (!appearance) {
    throw std::invalid_argument("Render called with invalid appearance");
  }
  checkTargetAndCamera();
  if (scope == 0 || currentCamera->getScope() == 0) {
    return;
  }
  loadCamera();
  if (appearance->getMaterial()) {
    lights.applyLightScope(scope);
  }
  glMatrixMode(GL_MODELVIEW);
  glPushMatrix();
  glMultMatrixf((transform ? *transform : identityTransform()).data());
  applyAppearance(appearance);
  setupVertexArrays(*vertices, 1.0f, *appearance);
  drawIndexBuffer(GL_TRIANGLE_STRIP, *triangles);
  finishVertexArrays();
  glMatrixMode(GL_MODELVIEW);
  glPopMatrix();
}

}  // namespace varnel_m3g
