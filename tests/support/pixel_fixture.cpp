#include "tests/support/pixel_fixture.h"

#include <GLES/gl.h>

#include <algorithm>
#include <cmath>

#include "engine/render/render_state.h"

using namespace varnel_m3g;

PixelTest::PixelTest(int width, int height) : gl(width, height) {
  Graphics3D::initProps();
  renderState() = RenderState();
  camera->setParallel(2.0f, 1.0f, 0.0f, 10.0f);
  Transform back;
  back.postTranslate(0.0f, 0.0f, 5.0f);
  graphics.setCamera(camera, &back);
}

PixelTest::~PixelTest() {
  graphics.releaseTarget();
  graphics.resetLights();
  graphics.setCamera(nullptr, nullptr);
  renderState() = RenderState();
}

void PixelTest::beginFrame(const boost::shared_ptr<Background>& background) {
  graphics.releaseTarget();
  graphics.bindTarget(&gl.surface());
  graphics.clear(background);
}

void PixelTest::draw(const boost::shared_ptr<Mesh>& mesh) {
  auto group = Group::create();
  group->addChild(mesh);
  graphics.render(group, nullptr);
  group->removeChild(mesh);
}

Pixel PixelTest::quadPixel(const boost::shared_ptr<Appearance>& appearance, int defaultColor) {
  beginFrame();
  draw(coloredQuad(appearance, static_cast<unsigned>(defaultColor)));
  return gl.centre();
}

boost::shared_ptr<Mesh> coloredQuad(const boost::shared_ptr<Appearance>& appearance,
                                    unsigned argb) {
  auto mesh = quadMesh(appearance);
  mesh->getVertexBuffer()->setDefaultColor(static_cast<int>(argb));
  return mesh;
}

Color colorOf(unsigned argb) {
  return {((argb >> 16) & 255) / 255.0, ((argb >> 8) & 255) / 255.0, (argb & 255) / 255.0,
          ((argb >> 24) & 255) / 255.0};
}

void expectPixel(const Pixel& actual, const Color& expected, int tolerance, const char* what) {
  for (std::size_t i = 0; i < 4; ++i) {
    const double wanted = std::clamp(expected[i], 0.0, 1.0) * 255.0;
    EXPECT_LE(std::abs(actual[i] - wanted), tolerance + 0.5)
        << what << ": channel " << i << " is " << actual[i] << ", the scene wants " << wanted;
  }
}
