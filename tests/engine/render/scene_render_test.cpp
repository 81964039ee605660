#include "engine/object/engine_limits.h"
#include "engine/render/render_state.h"
#include "engine/scene/sprite3d.h"
#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

class SceneRenderTest : public RenderTest {
 protected:
  SceneRenderTest() { maxTextureUnits = 0; }

  /// The calls of a render, from the load of the projection on.
  Lines render(const boost::shared_ptr<Node>& node, const Transform* transform = nullptr) {
    driver.clear();
    graphics.render(node, transform);
    return take();
  }

  Lines render(const boost::shared_ptr<World>& world) {
    driver.clear();
    graphics.render(world);
    return take();
  }

  static std::size_t count(const Lines& calls, const std::string& call) {
    return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), call));
  }

  static std::size_t draws(const Lines& calls) {
    return count(calls, "glDrawArrays(GL_TRIANGLE_STRIP, 0, 4)");
  }

  /// The places of the draws, told apart by the translations of their nodes.
  static std::vector<int> order(const Lines& calls) {
    std::vector<int> places;
    const std::string prefix = "glMultMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, ";
    for (const std::string& call : calls) {
      if (call.rfind(prefix, 0) == 0) {
        const int x = std::stoi(call.substr(prefix.size()));
        if (x != 0) {
          places.push_back(x);
        }
      }
    }
    return places;
  }

  static boost::shared_ptr<Mesh> meshAt(int x, const boost::shared_ptr<Appearance>& appearance) {
    auto mesh = quadMesh(appearance);
    mesh->setTranslation(static_cast<float>(x), 0.0f, 0.0f);
    return mesh;
  }
};

}  // namespace

TEST_F(SceneRenderTest, TheChecksOfARenderOfANodeInTheirOrder) {
  EXPECT_EQ(failureOf<std::invalid_argument>(
                [&] { graphics.render(boost::shared_ptr<Node>(), nullptr); }),
            "Render called for a null node");
  for (const boost::shared_ptr<Node>& bad :
       {boost::shared_ptr<Node>(Camera::create()), boost::shared_ptr<Node>(Light::create())}) {
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.render(bad, nullptr); }),
              "m3g.Graphics3D.render(node, transform)  called on illegal Node subclass");
  }
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(Group::create(), nullptr); }),
            "no rendering target currently defined");
  bind();
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(Group::create(), nullptr); }),
            "Render called when no currentCamera defined.");
}

TEST_F(SceneRenderTest, TheChecksOfARenderOfAWorldInTheirOrder) {
  EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.render(boost::shared_ptr<World>()); }),
            "Graphics3D.render(world) -- world is null ");
  auto world = World::create();
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(world); }),
            "Graphics3D.render(world) -- RenderTarget is null");
  bind();
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(world); }),
            "Graphics3D.render(world) -- World has null active camera.");
  auto camera = Camera::create();
  world->addChild(camera);
  world->setActiveCamera(camera);
  EXPECT_NO_THROW(graphics.render(world)) << "no current camera is needed beforehand";
  world->removeChild(camera);
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(world); }),
            "Graphics3D.render(world) -- World has active camera that is not decendent of World.");
}

TEST_F(SceneRenderTest, TheChecksOfAnImmediateRenderInTheirOrder) {
  auto vertices = unitQuad();
  auto strip = quadStrip();
  auto appearance = plainAppearance();
  EXPECT_EQ(failureOf<std::invalid_argument>(
                [&] { graphics.render(nullptr, nullptr, nullptr, nullptr); }),
            "Render called with invalid vertex buffer");
  EXPECT_EQ(failureOf<std::invalid_argument>(
                [&] { graphics.render(vertices, nullptr, nullptr, nullptr); }),
            "Render called with invalid index buffer");
  EXPECT_EQ(
      failureOf<std::invalid_argument>([&] { graphics.render(vertices, strip, nullptr, nullptr); }),
      "Render called with invalid appearance");
  EXPECT_EQ(
      failureOf<std::runtime_error>([&] { graphics.render(vertices, strip, appearance, nullptr); }),
      "no rendering target currently defined");
  bind();
  EXPECT_EQ(
      failureOf<std::runtime_error>([&] { graphics.render(vertices, strip, appearance, nullptr); }),
      "Render called when no currentCamera defined.");
}

TEST_F(SceneRenderTest, AnEmptyWorldClearsAndDrawsNothing) {
  bind();
  const Lines calls = render(worldWithCamera());
  EXPECT_EQ(draws(calls), 0u);
  EXPECT_EQ(count(calls, "glClearDepth(1)"), 1u);
  const Lines last(calls.end() - 9, calls.end());
  EXPECT_THAT(last,
              ElementsAre("glMatrixMode(GL_PROJECTION)", "glLoadMatrixf(" + identityText() + ")",
                          "glMatrixMode(GL_MODELVIEW)", "glLoadMatrixf(" + identityText() + ")",
                          "glMatrixMode(GL_MODELVIEW)", "glPushMatrix()",
                          "glMultMatrixf(" + identityText() + ")", "glMatrixMode(GL_MODELVIEW)",
                          "glPopMatrix()"));
}

TEST_F(SceneRenderTest, ARenderOfAMeshIsThisSequence) {
  bind();
  useIdentityCamera();
  EXPECT_THAT(
      render(quadMesh(plainAppearance())),
      ElementsAre(
          "glMatrixMode(GL_PROJECTION)", "glLoadMatrixf(" + identityText() + ")",
          "glMatrixMode(GL_MODELVIEW)", "glLoadMatrixf(" + identityText() + ")",
          "glMatrixMode(GL_MODELVIEW)", "glPushMatrix()", "glMultMatrixf(" + identityText() + ")",
          "glMatrixMode(GL_MODELVIEW)", "glPushMatrix()", "glMultMatrixf(" + identityText() + ")",
          "glEnableClientState(GL_VERTEX_ARRAY)", "glTranslatef(0, 0, 0)", "glScalef(1, 1, 1)",
          StartsWith("glVertexPointer(3, GL_SHORT, 0, "), "glDisableClientState(GL_NORMAL_ARRAY)",
          "glDisableClientState(GL_COLOR_ARRAY)", "glColor4ub(255, 255, 255, 255)",
          "glDrawArrays(GL_TRIANGLE_STRIP, 0, 4)", "glMatrixMode(GL_TEXTURE)", "glPopMatrix()",
          "glMatrixMode(GL_MODELVIEW)", "glDisableClientState(GL_VERTEX_ARRAY)",
          "glDisableClientState(GL_NORMAL_ARRAY)", "glDisableClientState(GL_COLOR_ARRAY)",
          "glDisableClientState(GL_TEXTURE_COORD_ARRAY)", "glMatrixMode(GL_MODELVIEW)",
          "glPopMatrix()", "glMatrixMode(GL_MODELVIEW)", "glPopMatrix()"));
}

TEST_F(SceneRenderTest, TheTransformOfTheRenderComesBeforeThatOfTheNode) {
  bind();
  useIdentityCamera();
  Transform moved;
  moved.postTranslate(9.0f, 0.0f, 0.0f);
  auto group = Group::create();
  group->addChild(meshAt(3, plainAppearance()));
  EXPECT_THAT(order(render(group, &moved)), ElementsAre(9, 3));
}

TEST_F(SceneRenderTest, OneAppearanceIsAppliedOnceForTwoMeshesInTheOrderOfRegistration) {
  bind();
  useIdentityCamera();
  auto appearance = plainAppearance();
  appearance->setMaterial(Material::create());
  auto group = Group::create();
  auto first = meshAt(1, appearance);
  auto second = meshAt(2, appearance);
  group->addChild(second);
  group->addChild(first);
  const Lines calls = render(group);
  EXPECT_EQ(count(calls, "glEnable(GL_LIGHTING)"), 1u);
  EXPECT_EQ(draws(calls), 2u);
  EXPECT_THAT(order(calls), ElementsAre(1, 2));
}

TEST_F(SceneRenderTest, LayersDrawInOrderAndBlendedAfterOpaque) {
  bind();
  useIdentityCamera();
  const auto appearanceIn = [](int layer, bool blended) {
    auto appearance = plainAppearance();
    appearance->setLayer(layer);
    if (blended) {
      appearance->setCompositingMode(CompositingMode::create());
      appearance->getCompositingMode()->setBlending(CompositingMode::ALPHA);
    }
    return appearance;
  };
  auto group = Group::create();
  group->addChild(meshAt(5, appearanceIn(63, false)));
  group->addChild(meshAt(3, appearanceIn(0, true)));
  group->addChild(meshAt(2, appearanceIn(0, false)));
  group->addChild(meshAt(1, appearanceIn(-63, false)));
  EXPECT_THAT(order(render(group)), ElementsAre(1, 2, 3, 5));
}

TEST_F(SceneRenderTest, AMeshInNoTreeIsDrawnWithTheAppearanceThatItShares) {
  bind();
  useIdentityCamera();
  auto appearance = plainAppearance();
  auto outside = meshAt(7, appearance);
  EXPECT_EQ(draws(render(quadMesh(appearance))), 2u);
  outside->setScope(0);
  EXPECT_EQ(draws(render(quadMesh(appearance))), 1u);
}

TEST_F(SceneRenderTest, AMeshWithOneAppearanceOnTwoSubmeshesDrawsBothWithOneSetUp) {
  bind();
  useIdentityCamera();
  auto appearance = plainAppearance();
  const boost::shared_ptr<IndexBuffer> strips[] = {quadStrip(), quadStrip(), quadStrip()};
  const boost::shared_ptr<Appearance> appearances[] = {appearance, plainAppearance(), appearance};
  auto mesh = Mesh::create(unitQuad(), strips, appearances, 3);
  const Lines calls = render(mesh);
  EXPECT_EQ(draws(calls), 3u);
  EXPECT_EQ(count(calls, "glEnableClientState(GL_VERTEX_ARRAY)"), 2u);
}

TEST_F(SceneRenderTest, AScopeThatMissesTheCamerasPushesNoMatrix) {
  bind();
  auto camera = useIdentityCamera();
  camera->setScope(2);
  auto group = Group::create();
  auto mesh = meshAt(3, plainAppearance());
  mesh->setScope(1);
  group->addChild(mesh);
  const Lines calls = render(group);
  EXPECT_EQ(draws(calls), 0u);
  EXPECT_EQ(count(calls, "glPushMatrix()"), 1u);
  mesh->setScope(3);
  EXPECT_EQ(draws(render(group)), 1u);
}

TEST_F(SceneRenderTest, AHiddenNodeIsNotDrawnAndTheRootOfTheRenderIs) {
  bind();
  useIdentityCamera();
  auto mesh = quadMesh(plainAppearance());
  mesh->setRenderingEnable(false);
  EXPECT_EQ(draws(render(mesh)), 1u);
  auto group = Group::create();
  group->addChild(mesh);
  EXPECT_EQ(draws(render(group)), 0u);
}

TEST_F(SceneRenderTest, ASpriteLeavesThePictureAsItIsAndNeedsACamera) {
  bind();
  auto sprite = Sprite3D::create(true, Image2D::create(Image2D::RGB, 4, 4), plainAppearance());
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(sprite, nullptr); }),
            "Render called when no currentCamera defined.");
  useIdentityCamera();
  for (const std::string& call : render(sprite)) {
    EXPECT_EQ(call.find("Draw"), std::string::npos) << call;
  }
}

TEST_F(SceneRenderTest, ASpritesAppearanceOnlyPushesItsMatrixBesideAMesh) {
  bind();
  useIdentityCamera();
  auto appearance = plainAppearance();
  auto sprite = Sprite3D::create(true, Image2D::create(Image2D::RGB, 4, 4), appearance);
  const Lines calls = render(quadMesh(appearance));
  EXPECT_EQ(draws(calls), 1u);
  EXPECT_EQ(count(calls, "glPushMatrix()"), 3u);
}

TEST_F(SceneRenderTest, LightsAreSentBeforeTheNodesMatrix) {
  bind();
  useIdentityCamera();
  graphics.addLight(Light::create(), nullptr);
  auto appearance = plainAppearance();
  appearance->setMaterial(Material::create());
  const Lines calls = render(quadMesh(appearance));
  const auto light = std::find(calls.begin(), calls.end(), "glEnable(GL_LIGHT0)");
  ASSERT_NE(light, calls.end());
  EXPECT_EQ(light[1], "glMatrixMode(GL_MODELVIEW)");
  EXPECT_EQ(light[2], "glPushMatrix()");
}

TEST_F(SceneRenderTest, AFadedLitMeshScalesTheDiffuseAlphaAndPutsItBack) {
  bind();
  useIdentityCamera();
  auto appearance = plainAppearance();
  appearance->setMaterial(Material::create());
  auto group = Group::create();
  auto mesh = quadMesh(appearance);
  mesh->setAlphaFactor(0.5f);
  group->addChild(mesh);
  const Lines calls = render(group);
  const std::string faded = "glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, [0.8, 0.8, 0.8, 0.5])";
  const std::string whole = "glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, [0.8, 0.8, 0.8, 1])";
  EXPECT_EQ(count(calls, faded), 1u);
  EXPECT_EQ(count(calls, whole), 2u) << "once by the appearance, once after the draw";
  EXPECT_EQ(count(calls, "glColor4ub(255, 255, 255, 255)"), 1u);
  appearance->getMaterial()->setVertexColorTrackingEnable(true);
  nextFrame();
  EXPECT_EQ(count(render(group), faded), 0u);
}

TEST_F(SceneRenderTest, AWorldTakesItsCameraAndItsLights) {
  bind();
  auto world = worldWithCamera();
  auto light = Light::create();
  world->addChild(light);
  world->getActiveCamera()->setTranslation(1.0f, 2.0f, 3.0f);
  const Lines calls = render(world);
  EXPECT_THAT(calls,
              Contains("glLoadMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, -1, -2, -3, 1])"));
  EXPECT_EQ(graphics.getCamera(nullptr), world->getActiveCamera());
  EXPECT_EQ(graphics.getLightCount(), 1);
  EXPECT_EQ(graphics.getLight(0, nullptr), light);
}

TEST_F(SceneRenderTest, ACameraThatIsScaledAwayRaisesUnderflow) {
  bind();
  auto world = worldWithCamera();
  world->getActiveCamera()->setScale(0.0f, 0.0f, 0.0f);
  EXPECT_THROW(graphics.render(world), std::underflow_error);
}

TEST_F(SceneRenderTest, AFailureLeavesTheMatricesPushedAndTheNextRenderWorks) {
  bind();
  useIdentityCamera();
  auto group = Group::create();
  auto appearance = plainAppearance();
  auto empty = Mesh::create(VertexBuffer::create(), quadStrip(), appearance);
  group->addChild(empty);
  group->addChild(quadMesh(plainAppearance()));
  driver.clear();
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.render(group, nullptr); }),
            "renderVertexBuffers called with invalid vertex data");
  const Lines failed = take();
  EXPECT_EQ(count(failed, "glPushMatrix()"), 2u);
  EXPECT_EQ(count(failed, "glPopMatrix()"), 0u);
  group->removeChild(empty);
  EXPECT_EQ(draws(render(group)), 1u);
}

TEST_F(SceneRenderTest, TheImmediateRenderIsThisSequence) {
  bind();
  auto camera = useIdentityCamera();
  graphics.addLight(Light::create(), nullptr);
  auto appearance = plainAppearance();
  appearance->setMaterial(Material::create());
  Transform moved;
  moved.postTranslate(4.0f, 0.0f, 0.0f);
  driver.clear();
  graphics.render(unitQuad(), quadStrip(), appearance, &moved);
  const Lines calls = take();
  const auto at = [&](const std::string& call) {
    return std::find(calls.begin(), calls.end(), call) - calls.begin();
  };
  EXPECT_LT(at("glMatrixMode(GL_PROJECTION)"), at("glEnable(GL_LIGHT0)"));
  EXPECT_LT(at("glEnable(GL_LIGHT0)"), at("glPushMatrix()"));
  EXPECT_LT(at("glPushMatrix()"),
            at("glMultMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 4, 0, 0, 1])"));
  EXPECT_LT(at("glMultMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 4, 0, 0, 1])"),
            at("glEnable(GL_LIGHTING)"));
  EXPECT_LT(at("glEnable(GL_LIGHTING)"), at("glDrawArrays(GL_TRIANGLE_STRIP, 0, 4)"));
  EXPECT_EQ(calls.back(), "glPopMatrix()");
}

TEST_F(SceneRenderTest, TheImmediateRenderStopsAtAScopeOfZero) {
  bind();
  auto camera = useIdentityCamera();
  auto vertices = unitQuad();
  auto strip = quadStrip();
  auto appearance = plainAppearance();
  graphics.render(vertices, strip, appearance, nullptr, 0);
  EXPECT_THAT(take(), IsEmpty());
  camera->setScope(2);
  graphics.render(vertices, strip, appearance, nullptr, 1);
  EXPECT_EQ(draws(take()), 1u) << "the two scopes are not combined";
  camera->setScope(0);
  graphics.render(vertices, strip, appearance, nullptr, 1);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(SceneRenderTest, TheImmediateRenderSetsLightsOnlyForAMaterial) {
  bind();
  useIdentityCamera();
  graphics.addLight(Light::create(), nullptr);
  graphics.render(unitQuad(), quadStrip(), plainAppearance(), nullptr);
  EXPECT_THAT(take(), Not(Contains("glEnable(GL_LIGHT0)")));
}

TEST_F(SceneRenderTest, TheViewportOfAnImmediateRenderIsThatOfTheLastClear) {
  bind();
  useIdentityCamera();
  graphics.setViewport(1, 2, 3, 4);
  graphics.render(unitQuad(), quadStrip(), plainAppearance(), nullptr);
  EXPECT_THAT(take(), Not(Contains(StartsWith("glViewport"))));
}

TEST_F(SceneRenderTest, TwoLikeFramesSendNoStateTheSecondTimeBeyondTheReset) {
  auto world = worldWithCamera();
  auto appearance = plainAppearance();
  appearance->setFog(Fog::create());
  appearance->setMaterial(Material::create());
  appearance->setPolygonMode(PolygonMode::create());
  world->addChild(quadMesh(appearance));
  world->addChild(Light::create());
  const auto stateCalls = [](const Lines& calls) {
    Lines found;
    for (const std::string& call : calls) {
      for (const char* part :
           {"FOG", "glMaterial", "CULL", "glFrontFace", "glShadeModel", "TWO_SIDE",
            "glEnable(GL_LIGHTING)", "NORMALIZE", "COLOR_MATERIAL"}) {
        if (call.find(part) != std::string::npos) {
          found.push_back(call);
          break;
        }
      }
    }
    return found;
  };
  bind();
  const Lines first = render(world);
  // Without a bind in between, nothing of the sort is sent again.
  EXPECT_THAT(stateCalls(render(world)), IsEmpty());
  // With the bind of a next frame, what follows the reset is what followed the first one.
  nextFrame();
  const Lines second = render(world);
  EXPECT_EQ(stateCalls(second), stateCalls(first));
  EXPECT_EQ(count(first, "glLightfv(GL_LIGHT0, GL_DIFFUSE, [1, 1, 1, 1])"), 1u);
  EXPECT_EQ(count(second, "glLightfv(GL_LIGHT0, GL_DIFFUSE, [1, 1, 1, 1])"), 0u);
}

TEST_F(SceneRenderTest, AppearancesThatShareTheirAttributesSendThemOnce) {
  bind();
  useIdentityCamera();
  auto fog = Fog::create();
  auto material = Material::create();
  auto group = Group::create();
  for (int i = 0; i < 10; ++i) {
    auto appearance = plainAppearance();
    appearance->setFog(fog);
    appearance->setMaterial(material);
    group->addChild(quadMesh(appearance));
  }
  const Lines calls = render(group);
  EXPECT_EQ(draws(calls), 10u);
  EXPECT_EQ(count(calls, "glEnable(GL_FOG)"), 1u);
  EXPECT_EQ(count(calls, "glEnable(GL_LIGHTING)"), 1u);
}

TEST_F(SceneRenderTest, ChainsOfAnyDepthAreDrawn) {
  bind();
  useIdentityCamera();
  auto root = Group::create();
  boost::shared_ptr<Group> last = root;
  for (int i = 0; i < 100000; ++i) {
    auto next = Group::create();
    last->addChild(next);
    last = next;
  }
  last->addChild(quadMesh(plainAppearance()));
  EXPECT_EQ(draws(render(root)), 1u);
}
