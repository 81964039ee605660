#include "tests/support/pixel_fixture.h"

using namespace varnel_m3g;

namespace {

class CompositingTest : public PixelTest {
 protected:
  static boost::shared_ptr<Appearance> blended(int blending) {
    auto appearance = plainAppearance();
    appearance->setCompositingMode(CompositingMode::create());
    appearance->getCompositingMode()->setBlending(blending);
    return appearance;
  }

  static boost::shared_ptr<Background> backgroundOf(unsigned argb) {
    auto background = Background::create();
    background->setColor(static_cast<int>(argb));
    return background;
  }

  /// A quad of half the size at a place, in front of the unit quad by z.
  static boost::shared_ptr<Mesh> smallQuad(const boost::shared_ptr<Appearance>& appearance,
                                           unsigned argb, float x, float y, float z) {
    auto mesh = coloredQuad(appearance, argb);
    mesh->setScale(0.5f, 0.5f, 1.0f);
    mesh->setTranslation(x, y, z);
    return mesh;
  }

  boost::shared_ptr<Group> scene = Group::create();
};

constexpr unsigned red = 0xFFFF0000u;
constexpr unsigned green = 0xFF00FF00u;

}  // namespace

TEST_F(CompositingTest, AQuadCoversWhatItCoversAndNothingElse) {
  beginFrame(backgroundOf(0xFF102030u));
  draw(smallQuad(plainAppearance(), red, 0.0f, 0.0f, 0.0f));
  const std::vector<Pixel> pixels = gl.read();
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      const bool inside = x >= 8 && x < 24 && y >= 8 && y < 24;
      expectPixel(pixels[static_cast<std::size_t>(y * 32 + x)], colorOf(inside ? red : 0xFF102030u),
                  0);
    }
  }
}

TEST_F(CompositingTest, EachBlendingIsTheSumOfItsFactors) {
  const unsigned below = 0xC0406080u;
  const unsigned above = 0x60A03050u;
  const Color s = colorOf(above);
  const Color d = colorOf(below);
  const auto combined = [&](auto source, auto destination) {
    Color color{};
    for (std::size_t i = 0; i < 4; ++i) {
      color[i] = s[i] * source(i) + d[i] * destination(i);
    }
    return color;
  };
  const auto alpha = [&](std::size_t) { return s[3]; };
  const auto rest = [&](std::size_t) { return 1.0 - s[3]; };
  const auto one = [](std::size_t) { return 1.0; };
  const auto zero = [](std::size_t) { return 0.0; };
  const auto of = [](const Color& color) { return [&color](std::size_t i) { return color[i]; }; };
  const std::pair<int, Color> table[] = {
      {CompositingMode::ALPHA, combined(alpha, rest)},
      {CompositingMode::ALPHA_ADD, combined(alpha, one)},
      {CompositingMode::MODULATE, combined(of(d), zero)},
      {CompositingMode::MODULATE_X2, combined(of(d), of(s))},
      {CompositingMode::REPLACE, combined(one, zero)},
  };
  for (const auto& [blending, expected] : table) {
    beginFrame(backgroundOf(below));
    draw(coloredQuad(blended(blending), above));
    expectPixel(gl.centre(), expected, colorTolerance, std::to_string(blending).c_str());
  }
}

TEST_F(CompositingTest, FragmentsAtOrBelowTheAlphaThresholdPass) {
  auto appearance = blended(CompositingMode::REPLACE);
  appearance->getCompositingMode()->setAlphaThreshold(0.5f);
  expectPixel(quadPixel(appearance, 0x4D123456), colorOf(0x4D123456u), colorTolerance, "0.3");
  expectPixel(quadPixel(appearance, static_cast<int>(0xB3123456u)), colorOf(0u), 0, "0.7");
}

TEST_F(CompositingTest, WriteMasks) {
  auto appearance = blended(CompositingMode::REPLACE);
  appearance->getCompositingMode()->setColorWriteEnable(false);
  beginFrame(backgroundOf(0x10203040u));
  draw(coloredQuad(appearance, 0xFFFFFFFFu));
  expectPixel(gl.centre(), colorOf(0xFF203040u), 0);
  appearance->getCompositingMode()->setColorWriteEnable(true);
  appearance->getCompositingMode()->setAlphaWriteEnable(false);
  beginFrame(backgroundOf(0x10203040u));
  draw(coloredQuad(appearance, 0xFFFFFFFFu));
  expectPixel(gl.centre(), colorOf(0x10FFFFFFu), 0);
}

TEST_F(CompositingTest, TheNearerQuadHidesTheFartherInEitherOrder) {
  for (const bool nearFirst : {true, false}) {
    auto group = Group::create();
    auto nearQuad = smallQuad(plainAppearance(), red, 0.0f, 0.0f, 1.0f);
    auto farQuad = coloredQuad(plainAppearance(), green);
    group->addChild(nearFirst ? nearQuad : farQuad);
    group->addChild(nearFirst ? farQuad : nearQuad);
    beginFrame();
    graphics.render(group, nullptr);
    expectPixel(gl.centre(), colorOf(red), 0);
    expectPixel(gl.at(1, 1), colorOf(green), 0);
  }
}

TEST_F(CompositingTest, WithoutADepthTestTheLaterQuadHidesTheNearer) {
  auto untested = blended(CompositingMode::REPLACE);
  untested->getCompositingMode()->setDepthTestEnable(false);
  scene->addChild(smallQuad(plainAppearance(), red, 0.0f, 0.0f, 1.0f));
  scene->addChild(coloredQuad(untested, green));
  beginFrame();
  graphics.render(scene, nullptr);
  expectPixel(gl.centre(), colorOf(green), 0);
}

TEST_F(CompositingTest, WithoutADepthWriteTheQuadHidesNothingLater) {
  auto unwritten = blended(CompositingMode::REPLACE);
  unwritten->getCompositingMode()->setDepthWriteEnable(false);
  scene->addChild(smallQuad(unwritten, red, 0.0f, 0.0f, 1.0f));
  scene->addChild(coloredQuad(plainAppearance(), green));
  beginFrame();
  graphics.render(scene, nullptr);
  expectPixel(gl.centre(), colorOf(green), 0);
}

TEST_F(CompositingTest, ADepthOffsetPullsAQuadForward) {
  auto pushed = blended(CompositingMode::REPLACE);
  pushed->getCompositingMode()->setDepthOffset(0.0f, 16.0f);
  scene->addChild(coloredQuad(plainAppearance(), green));
  scene->addChild(smallQuad(pushed, red, 0.0f, 0.0f, 0.0f));
  beginFrame();
  graphics.render(scene, nullptr);
  expectPixel(gl.centre(), colorOf(green), 0, "pushed back behind the equal quad");
  pushed->getCompositingMode()->setDepthOffset(0.0f, -16.0f);
  beginFrame();
  graphics.render(scene, nullptr);
  expectPixel(gl.centre(), colorOf(red), 0, "pulled in front");
}

TEST_F(CompositingTest, HigherLayersAreDrawnLaterAndBlendedOnesLast) {
  const auto layered = [](int layer, int blending) {
    auto appearance = blended(blending);
    appearance->setLayer(layer);
    appearance->getCompositingMode()->setDepthTestEnable(false);
    return appearance;
  };
  scene->addChild(coloredQuad(layered(5, CompositingMode::REPLACE), red));
  scene->addChild(coloredQuad(layered(-5, CompositingMode::REPLACE), green));
  beginFrame();
  graphics.render(scene, nullptr);
  expectPixel(gl.centre(), colorOf(red), 0);

  auto mixed = Group::create();
  mixed->addChild(coloredQuad(layered(0, CompositingMode::ALPHA), 0x80FF0000u));
  mixed->addChild(coloredQuad(layered(0, CompositingMode::REPLACE), green));
  beginFrame();
  graphics.render(mixed, nullptr);
  const double share = 128.0 / 255.0;
  expectPixel(gl.centre(), {share, 1.0 - share, 0.0, share * share + (1.0 - share)},
              colorTolerance);
}

TEST_F(CompositingTest, AnUnlitQuadFadesByItsAlphaFactorOverTwoLevels) {
  auto parent = Group::create();
  auto mesh = coloredQuad(blended(CompositingMode::ALPHA), red);
  parent->addChild(mesh);
  scene->addChild(parent);
  scene->setAlphaFactor(0.5f);
  parent->setAlphaFactor(0.5f);
  mesh->setAlphaFactor(0.5f);
  beginFrame(backgroundOf(0xFF0000FFu));
  graphics.render(scene, nullptr);
  const double share = 63.0 / 255.0;  // 255 x 0.25, truncated
  expectPixel(gl.centre(), {share, 0.0, 1.0 - share, share * share + (1.0 - share)},
              colorTolerance);
}

TEST_F(CompositingTest, CullingAndWindingChooseTheFaces) {
  const std::tuple<int, int, bool, bool> table[] = {
      // culling, winding, front visible, back visible
      {PolygonMode::CULL_BACK, PolygonMode::WINDING_CCW, true, false},
      {PolygonMode::CULL_FRONT, PolygonMode::WINDING_CCW, false, true},
      {PolygonMode::CULL_NONE, PolygonMode::WINDING_CCW, true, true},
      {PolygonMode::CULL_BACK, PolygonMode::WINDING_CW, false, true},
      {PolygonMode::CULL_FRONT, PolygonMode::WINDING_CW, true, false},
  };
  for (const auto& [culling, winding, front, back] : table) {
    auto appearance = plainAppearance();
    auto mode = PolygonMode::create();
    mode->setCulling(culling);
    mode->setWinding(winding);
    appearance->setPolygonMode(mode);
    auto mesh = coloredQuad(appearance, green);
    beginFrame();
    draw(mesh);
    expectPixel(gl.centre(), colorOf(front ? green : 0u), 0, "front");
    mesh->setOrientation(180.0f, 0.0f, 1.0f, 0.0f);
    beginFrame();
    draw(mesh);
    expectPixel(gl.centre(), colorOf(back ? green : 0u), 0, "back");
  }
}

TEST_F(CompositingTest, WithoutAPolygonModeBacksAreCulled) {
  auto mesh = coloredQuad(plainAppearance(), green);
  mesh->setOrientation(180.0f, 0.0f, 1.0f, 0.0f);
  beginFrame();
  draw(mesh);
  expectPixel(gl.centre(), colorOf(0u), 0);
}

TEST_F(CompositingTest, ImmediateAndRetainedRendersAgree) {
  auto appearance = plainAppearance();
  auto mesh = coloredQuad(appearance, red);
  Transform placed;
  placed.postTranslate(0.25f, -0.5f, 0.0f);
  placed.postScale(0.5f, 0.25f, 1.0f);
  beginFrame();
  graphics.render(mesh->getVertexBuffer(), mesh->getIndexBuffer(0), appearance, &placed);
  const std::vector<Pixel> immediate = gl.read();
  beginFrame();
  graphics.render(mesh, &placed);
  EXPECT_EQ(gl.read(), immediate);
  mesh->setTranslation(0.25f, -0.5f, 0.0f);
  mesh->setScale(0.5f, 0.25f, 1.0f);
  beginFrame();
  draw(mesh);
  EXPECT_EQ(gl.read(), immediate);
  EXPECT_NE(immediate[0], gl.at(20, 24));
}

TEST_F(CompositingTest, PositionsTakeTheirScaleAndBias) {
  auto mesh = coloredQuad(plainAppearance(), red);
  const float bias[3] = {0.5f, 0.5f, 0.0f};
  mesh->getVertexBuffer()->setPositions(mesh->getVertexBuffer()->getPositions(nullptr), 0.5f, bias);
  beginFrame();
  draw(mesh);
  for (const auto& [x, y, inside] :
       {std::tuple{17, 14, true}, {31, 0, true}, {14, 14, false}, {17, 17, false}}) {
    expectPixel(gl.at(x, y), colorOf(inside ? red : 0u), 0);
  }
}

TEST_F(CompositingTest, BytePositionsAreDrawnToo) {
  auto mesh = coloredQuad(plainAppearance(), red);
  auto buffer = mesh->getVertexBuffer();
  buffer->setPositions(byteArray(3, {-1, -1, 0, 0, -1, 0, -1, 1, 0, 0, 1, 0}), 1.0f, nullptr);
  beginFrame();
  draw(mesh);
  expectPixel(gl.at(4, 16), colorOf(red), 0);
  expectPixel(gl.at(28, 16), colorOf(0u), 0);
}

TEST_F(CompositingTest, TheViewportIsCountedFromTheTopAndTheClearCoversTheTarget) {
  graphics.bindTarget(&gl.surface());
  graphics.setViewport(8, 4, 16, 8);
  graphics.clear(backgroundOf(0xFF0000FFu));
  draw(coloredQuad(plainAppearance(), red));
  const std::vector<Pixel> pixels = gl.read();
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      const bool inside = x >= 8 && x < 24 && y >= 4 && y < 12;
      expectPixel(pixels[static_cast<std::size_t>(y * 32 + x)], colorOf(inside ? red : 0xFF0000FFu),
                  0);
    }
  }
}

TEST_F(CompositingTest, AViewportWaitsForTheNextClear) {
  beginFrame();
  graphics.setViewport(0, 0, 8, 8);
  auto appearance = plainAppearance();
  auto mesh = coloredQuad(appearance, red);
  graphics.render(mesh->getVertexBuffer(), mesh->getIndexBuffer(0), appearance, nullptr);
  expectPixel(gl.at(31, 31), colorOf(red), 0);
}

TEST_F(CompositingTest, ADepthRangeWaitsForTheNextBind) {
  auto nearQuad = coloredQuad(plainAppearance(), red);
  auto farQuad = coloredQuad(plainAppearance(), green);
  farQuad->setTranslation(0.0f, 0.0f, -2.0f);
  const auto drawBoth = [&] {
    graphics.clear(nullptr);
    draw(nearQuad);
    draw(farQuad);
  };
  graphics.bindTarget(&gl.surface());
  graphics.setDepthRange(1.0f, 0.0f);
  drawBoth();
  expectPixel(gl.centre(), colorOf(red), 0);
  graphics.releaseTarget();
  graphics.bindTarget(&gl.surface());
  drawBoth();
  expectPixel(gl.centre(), colorOf(green), 0, "far depths are near ones now");
  graphics.setDepthRange(0.0f, 1.0f);
}

TEST_F(CompositingTest, AWorldIsSeenThroughItsCamera) {
  auto world = World::create();
  world->addChild(camera);
  world->setActiveCamera(camera);
  camera->setTranslation(0.5f, 0.0f, 5.0f);
  world->addChild(smallQuad(plainAppearance(), red, 0.5f, 0.0f, 0.0f));
  auto background = backgroundOf(0xFF0000FFu);
  world->setBackground(background);
  graphics.bindTarget(&gl.surface());
  graphics.render(world);
  expectPixel(gl.centre(), colorOf(red), 0);
  expectPixel(gl.at(8, 16), colorOf(red), 0);
  expectPixel(gl.at(7, 16), colorOf(0xFF0000FFu), 0);
  expectPixel(gl.at(23, 16), colorOf(red), 0);
  expectPixel(gl.at(24, 16), colorOf(0xFF0000FFu), 0);
}
