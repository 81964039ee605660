#include <cmath>
#include <numbers>

#include "tests/support/pixel_fixture.h"

using namespace varnel_m3g;

namespace {

// Of OpenGL: the ambient light of the scene, whatever lights there are.
constexpr double sceneAmbient = 0.2;

/// A lit quad that faces the camera, with normals along +z, and one light.
class LightingTest : public PixelTest {
 protected:
  LightingTest() {
    material->setColor(Material::AMBIENT, 0x00404040);
    material->setColor(Material::DIFFUSE, static_cast<int>(0xFFC08040u));
    appearance->setMaterial(material);
    mesh->getVertexBuffer()->setNormals(byteArray(3, {0, 0, 127, 0, 0, 127, 0, 0, 127, 0, 0, 127}));
    graphics.addLight(light, nullptr);
  }

  void place(const Transform& transform) { graphics.setLight(0, light, &transform); }

  Pixel lit() {
    beginFrame();
    draw(mesh);
    return gl.centre();
  }

  /// The light equation for each channel: factor scales the diffuse term, shine the specular one.
  Color expected(double factor, double shine = 0.0) const {
    const Color ambient = colorOf(static_cast<unsigned>(material->getColor(Material::AMBIENT)));
    const Color diffuse = colorOf(static_cast<unsigned>(material->getColor(Material::DIFFUSE)));
    const Color emissive = colorOf(static_cast<unsigned>(material->getColor(Material::EMISSIVE)));
    const Color specular = colorOf(static_cast<unsigned>(material->getColor(Material::SPECULAR)));
    const Color shed = colorOf(static_cast<unsigned>(light->getColor()));
    Color sum{};
    for (std::size_t i = 0; i < 3; ++i) {
      const double power = shed[i] * light->getIntensity();
      sum[i] = emissive[i] + sceneAmbient * ambient[i] + factor * power * diffuse[i] +
               shine * power * specular[i];
    }
    sum[3] = diffuse[3];
    return sum;
  }

  boost::shared_ptr<Material> material = Material::create();
  boost::shared_ptr<Appearance> appearance = plainAppearance();
  boost::shared_ptr<Mesh> mesh = quadMesh(appearance);
  boost::shared_ptr<Light> light = Light::create();
};

}  // namespace

TEST_F(LightingTest, ADirectionalLightFallsOffWithTheCosineOfItsAngle) {
  for (const double degrees : {0.0, 30.0, 60.0, 85.0, 120.0}) {
    Transform turned;
    turned.postRotate(static_cast<float>(degrees), 0.0f, 1.0f, 0.0f);
    place(turned);
    const double cosine = std::cos(degrees * std::numbers::pi / 180.0);
    expectPixel(lit(), expected(std::max(0.0, cosine)), litTolerance);
  }
}

TEST_F(LightingTest, ColourAndIntensityScaleTheLight) {
  light->setColor(0x4080FF);
  light->setIntensity(0.5f);
  expectPixel(lit(), expected(1.0), litTolerance);
  light->setIntensity(2.0f);
  expectPixel(lit(), expected(1.0), litTolerance);
}

TEST_F(LightingTest, EmissionIsAddedAndTheDiffuseAlphaIsTheQuads) {
  material->setColor(Material::EMISSIVE, 0x00102030);
  material->setColor(Material::DIFFUSE, static_cast<int>(0x80C08040u));
  expectPixel(lit(), expected(1.0), litTolerance);
}

TEST_F(LightingTest, ASpecularHighlightFollowsTheHalfWayVector) {
  material->setColor(Material::DIFFUSE, static_cast<int>(0xFF000000u));
  material->setColor(Material::SPECULAR, 0x00FFFFFF);
  material->setShininess(8.0f);
  Transform turned;
  turned.postRotate(40.0f, 0.0f, 1.0f, 0.0f);
  place(turned);
  // The eye lies towards +z, so the half-way vector stands at half the angle.
  const double shine = std::pow(std::cos(20.0 * std::numbers::pi / 180.0), 8.0);
  expectPixel(lit(), expected(0.0, shine), litTolerance);
}

TEST_F(LightingTest, AnAmbientLightLightsTheAmbientColour) {
  light->setMode(Light::AMBIENT);
  light->setIntensity(0.5f);
  Color wanted = expected(0.0);
  const Color ambient = colorOf(0x404040);
  for (std::size_t i = 0; i < 3; ++i) {
    wanted[i] += 0.5 * ambient[i];
  }
  expectPixel(lit(), wanted, litTolerance);
}

TEST_F(LightingTest, AnOmniLightIsAttenuatedByDistance) {
  light->setMode(Light::OMNI);
  light->setAttenuation(0.5f, 0.25f, 0.05f);
  Transform above;
  above.postTranslate(0.0f, 0.0f, 3.0f);
  place(above);
  // All four corners are as far from the light.
  const double distance = std::sqrt(1.0 + 1.0 + 9.0);
  const double attenuation = 1.0 / (0.5 + 0.25 * distance + 0.05 * distance * distance);
  expectPixel(lit(), expected(attenuation * 3.0 / distance), litTolerance);
}

TEST_F(LightingTest, ASpotLightShinesAlongItsPositiveZ) {
  light->setMode(Light::SPOT);
  light->setSpotAngle(45.0f);
  light->setSpotExponent(4.0f);
  Transform above;
  above.postTranslate(0.0f, 0.0f, 3.0f);
  place(above);
  expectPixel(lit(), expected(0.0), litTolerance, "turned away from the quad");
  Transform turned = above;
  turned.postRotate(180.0f, 0.0f, 1.0f, 0.0f);
  place(turned);
  const double cosine = 3.0 / std::sqrt(11.0);
  expectPixel(lit(), expected(std::pow(cosine, 4.0) * cosine), litTolerance, "towards the quad");
  light->setSpotAngle(20.0f);
  expectPixel(lit(), expected(0.0), litTolerance, "the corners lie outside the cone");
}

TEST_F(LightingTest, LightsAddUpAndScopeChoosesThem) {
  auto second = Light::create();
  second->setIntensity(0.25f);
  graphics.addLight(second, nullptr);
  light->setIntensity(0.5f);
  Color both = expected(1.0 + 0.25 / 0.5);
  expectPixel(lit(), both, litTolerance);
  second->setScope(2);
  mesh->setScope(1);
  expectPixel(lit(), expected(1.0), litTolerance);
  light->setScope(2);
  expectPixel(lit(), expected(0.0), litTolerance);
}

TEST_F(LightingTest, ALightThatIsNotEnabledIsOff) {
  light->setRenderingEnable(false);
  expectPixel(lit(), expected(0.0), litTolerance);
}

TEST_F(LightingTest, AfterAResetOfTheLightsTheUnitStaysLit) {
  expectPixel(lit(), expected(1.0), litTolerance);
  graphics.resetLights();
  expectPixel(lit(), expected(1.0), litTolerance);
}

TEST_F(LightingTest, WithoutAMaterialTheQuadIsUnlit) {
  appearance->setMaterial(nullptr);
  mesh->getVertexBuffer()->setDefaultColor(static_cast<int>(0xFF336699u));
  expectPixel(lit(), colorOf(0xFF336699u), colorTolerance);
}

TEST_F(LightingTest, TrackingTakesAmbientAndDiffuseFromTheVertexColour) {
  material->setVertexColorTrackingEnable(true);
  mesh->getVertexBuffer()->setDefaultColor(static_cast<int>(0xFF336699u));
  const Color tracked = colorOf(0xFF336699u);
  Color wanted{};
  for (std::size_t i = 0; i < 3; ++i) {
    wanted[i] = tracked[i] * (sceneAmbient + 1.0);
  }
  wanted[3] = 1.0;
  expectPixel(lit(), wanted, litTolerance);
}

TEST_F(LightingTest, TwoSidedLightingLightsTheBackWithTheTurnedNormal) {
  auto mode = PolygonMode::create();
  mode->setCulling(PolygonMode::CULL_NONE);
  appearance->setPolygonMode(mode);
  mesh->setOrientation(180.0f, 0.0f, 1.0f, 0.0f);
  expectPixel(lit(), expected(0.0), litTolerance, "the normal points away from the light");
  auto twoSided = PolygonMode::create();
  twoSided->setCulling(PolygonMode::CULL_NONE);
  twoSided->setTwoSidedLightingEnable(true);
  appearance->setPolygonMode(twoSided);
  expectPixel(lit(), expected(1.0), litTolerance, "the back is lit");
}

TEST_F(LightingTest, AFadedLitQuadHasItsAlphaScaled) {
  mesh->setAlphaFactor(0.5f);
  Color wanted = expected(1.0);
  wanted[3] = 0.5;
  expectPixel(lit(), wanted, litTolerance);
}

TEST_F(LightingTest, FogMixesByTheDistanceFromTheEye) {
  appearance->setMaterial(nullptr);
  mesh->getVertexBuffer()->setDefaultColor(static_cast<int>(0xFF3060C0u));
  auto fog = Fog::create();
  fog->setColor(0xC0A020);
  appearance->setFog(fog);
  const Color quad = colorOf(0xFF3060C0u);
  const Color haze = colorOf(0xFFC0A020u);
  const auto mixed = [&](double share) {
    Color color = quad;
    for (std::size_t i = 0; i < 3; ++i) {
      color[i] = share * quad[i] + (1.0 - share) * haze[i];
    }
    return color;
  };
  // The quad is 5 from the eye, and 8 when it stands further back.
  fog->setLinear(2.0f, 10.0f);
  expectPixel(lit(), mixed((10.0 - 5.0) / 8.0), litTolerance);
  mesh->setTranslation(0.0f, 0.0f, -3.0f);
  expectPixel(lit(), mixed((10.0 - 8.0) / 8.0), litTolerance);
  fog->setMode(Fog::EXPONENTIAL);
  fog->setDensity(0.2f);
  expectPixel(lit(), mixed(std::exp(-0.2 * 8.0)), litTolerance);
  appearance->setFog(nullptr);
  expectPixel(lit(), quad, colorTolerance);
}
