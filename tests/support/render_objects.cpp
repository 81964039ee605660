#include "tests/support/render_objects.h"

using namespace varnel_m3g;

boost::shared_ptr<VertexArray> shortArray(int components, const ShortArray& values) {
  const int vertices = static_cast<int>(values.size()) / components;
  boost::shared_ptr<VertexArray> array = VertexArray::create(vertices, components, 2);
  array->set(0, vertices, values.data());
  return array;
}

boost::shared_ptr<VertexArray> byteArray(int components, const ByteArray& values) {
  const int vertices = static_cast<int>(values.size()) / components;
  boost::shared_ptr<VertexArray> array = VertexArray::create(vertices, components, 1);
  const std::vector<signed char> bytes(values.begin(), values.end());
  array->set(0, vertices, bytes.data());
  return array;
}

boost::shared_ptr<VertexBuffer> unitQuad() {
  boost::shared_ptr<VertexBuffer> buffer = VertexBuffer::create();
  buffer->setPositions(shortArray(3, {-1, -1, 0, 1, -1, 0, -1, 1, 0, 1, 1, 0}), 1.0f, nullptr);
  return buffer;
}

boost::shared_ptr<IndexBuffer> quadStrip() {
  const int length = 4;
  return TriangleStripArray::create(0, &length, 1);
}

boost::shared_ptr<IndexBuffer> indexedStrip(const std::vector<int>& indices) {
  const int length = static_cast<int>(indices.size());
  return TriangleStripArray::create(indices.data(), length, &length, 1);
}

boost::shared_ptr<Appearance> plainAppearance() {
  return Appearance::create();
}

boost::shared_ptr<Mesh> quadMesh(const boost::shared_ptr<Appearance>& appearance) {
  return Mesh::create(unitQuad(), quadStrip(), appearance);
}

boost::shared_ptr<Image2D> imageOf(int format, int width, int height,
                                   const std::vector<unsigned char>& pixels) {
  return Image2D::create(format, width, height, pixels.data(), pixels.size());
}

boost::shared_ptr<World> worldWithCamera() {
  boost::shared_ptr<World> world = World::create();
  boost::shared_ptr<Camera> camera = Camera::create();
  world->addChild(camera);
  world->setActiveCamera(camera);
  return world;
}
