#include <GLES/gl.h>

#include <cstdio>
#include <fstream>

#include "tests/support/pixel_fixture.h"

using namespace varnel_m3g;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int frames = 1000;
constexpr bool measured = false;  // freed memory is kept back by the sanitizer
#else
constexpr int frames = 20000;
constexpr bool measured = true;
#endif
constexpr int warmUp = frames / 10;
/// What the allocator and the driver may still take after the warm-up, in bytes: far less than one
/// lost object a frame.
constexpr long allowedGrowth = 512 * 1024;

/// The process's memory that is in use, in bytes.
long residentBytes() {
  std::ifstream file("/proc/self/statm");
  long total = 0;
  long resident = 0;
  file >> total >> resident;
  return resident * 4096;
}

class SoakTest : public PixelTest {
 protected:
  SoakTest() : PixelTest(16, 16) {}
};

}  // namespace

TEST_F(SoakTest, MemoryStaysFlatWhileAppearancesLightsAndTexturesChange) {
  const boost::shared_ptr<Image2D> images[] = {
      Image2D::create(Image2D::RGBA, 8, 8), Image2D::create(Image2D::RGBA, 16, 4),
      imageOf(Image2D::RGB, 4, 4, std::vector<unsigned char>(48, 90))};
  auto world = World::create();
  world->addChild(camera);
  world->setActiveCamera(camera);
  camera->setTranslation(0.0f, 0.0f, 5.0f);
  auto background = Background::create();
  background->setImage(images[2]);
  world->setBackground(background);
  auto strip = quadStrip();
  auto normals = byteArray(3, {0, 0, 127, 0, 0, 127, 0, 0, 127, 0, 0, 127});
  auto coords = shortArray(2, {0, 1, 1, 1, 0, 0, 1, 0});
  auto colors = byteArray(4, ByteArray(16, 100));

  long afterWarmUp = 0;
  int lit = 0;
  for (int frame = 0; frame < frames; ++frame) {
    const std::vector<unsigned char> texel(4, static_cast<unsigned char>(frame));
    images[frame % 2]->set(0, 0, 1, 1, texel.data());
    auto appearance = plainAppearance();
    appearance->setLayer(frame % 127 - 63);
    appearance->setMaterial(frame % 3 ? Material::create() : nullptr);
    appearance->setFog(frame % 5 ? nullptr : Fog::create());
    appearance->setPolygonMode(frame % 2 ? PolygonMode::create() : nullptr);
    appearance->setCompositingMode(frame % 4 ? nullptr : CompositingMode::create());
    appearance->setTexture(0, Texture2D::create(images[frame % 3]));
    if (frame % 2) {
      appearance->setTexture(1, Texture2D::create(images[(frame + 1) % 3]));
    }
    auto mesh = Mesh::create(unitQuad(), strip, appearance);
    mesh->getVertexBuffer()->setNormals(normals);
    mesh->getVertexBuffer()->setTexCoords(0, coords, 1.0f, nullptr);
    if (frame % 4) {
      mesh->getVertexBuffer()->setTexCoords(1, coords, 1.0f, nullptr);
    }
    if (frame % 7 == 0) {
      mesh->getVertexBuffer()->setColors(colors);
    }
    mesh->setScale(0.5f, 0.5f, 1.0f);
    mesh->setAlphaFactor(static_cast<float>(frame % 10) / 10.0f);
    auto light = Light::create();
    light->setMode(Light::AMBIENT + frame % 4);
    light->setRenderingEnable(frame % 11 != 0);
    world->addChild(mesh);
    world->addChild(light);

    graphics.bindTarget(&gl.surface());
    graphics.render(world);
    graphics.releaseTarget();
    world->removeChild(mesh);
    world->removeChild(light);
    if (frame % 97 == 0) {
      lit += gl.centre() != gl.at(0, 0);
      glFinish();
    }
    if (frame == warmUp) {
      afterWarmUp = residentBytes();
    }
  }
  glFinish();
  const long growth = residentBytes() - afterWarmUp;
  std::printf("%d frames, %ld KiB in use after %d of them, %ld KiB more at the end\n", frames,
              afterWarmUp / 1024, warmUp, growth / 1024);
  EXPECT_GT(lit, 0) << "the frames show more than one colour";
  if (measured) {
    EXPECT_LE(growth, allowedGrowth);
  }
}
