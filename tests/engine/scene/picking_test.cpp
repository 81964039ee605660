#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "engine/object/engine_limits.h"
#include "engine/scene/ray_intersection.h"
#include "tests/support/exception_text.h"
#include "tests/support/render_objects.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using varnel_test::textOf;

// A quad from (-1, -1) to (1, 1) at z = 0 below a group, seen from +z.
struct Scene {
  shared_ptr<Group> group = Group::create();
  shared_ptr<Mesh> mesh = quadMesh(plainAppearance());
  Scene() { group->addChild(mesh); }

  // Down the z axis beside the middle, so that only one triangle is met.
  bool pick(RayIntersection* result = nullptr, int scope = -1) {
    return group->pick(scope, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, result);
  }
};

TEST(Pick, FillsTheResult) {
  Scene scene;
  RayIntersection result;
  EXPECT_TRUE(scene.pick(&result));
  EXPECT_EQ(result.getIntersected(), scene.mesh);
  EXPECT_EQ(result.getSubmeshIndex(), 0);
  EXPECT_FLOAT_EQ(result.getDistance(), 5.0f);
  float ray[6];
  result.getRay(ray);
  EXPECT_THAT(ray, ElementsAre(0.2f, 0.4f, 5, 0.2f, 0.4f, 4));
}

TEST(Pick, NeedsNoResult) {
  Scene scene;
  EXPECT_TRUE(scene.pick());
}

TEST(Pick, TheSecondTripleIsAPoint) {
  Scene scene;
  // From (0.2, 0.4, 5) towards (0.2, 0.4, 1), four units of the distance on.
  RayIntersection result;
  EXPECT_TRUE(scene.group->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 1, &result));
  EXPECT_FLOAT_EQ(result.getDistance(), 1.25f);
  // As a direction this would lead away from the quad.
  EXPECT_TRUE(scene.group->pick(-1, 1, 0.8f, 5, 0.4f, 0.4f, 1, nullptr));
  // And this one towards it.
  EXPECT_FALSE(scene.group->pick(-1, 0.2f, 0.4f, 5, 9, 9, -4, nullptr));
}

TEST(Pick, RefusesAZeroSecondPoint) {
  Scene scene;
  EXPECT_EQ(
      textOf<std::invalid_argument>([&] { scene.group->pick(-1, 0, 0, 5, 0, 0, 0, nullptr); }),
      "No direction vector specified!");
}

TEST(Pick, AMissLeavesTheNode) {
  Scene scene;
  RayIntersection result;
  EXPECT_FALSE(scene.group->pick(-1, 5, 5, 5, 5, 5, 4, &result));
  EXPECT_FALSE(result.getIntersected());
  EXPECT_EQ(result.getDistance(), 0.0f);
}

TEST(Pick, BehindTheStartIsAMiss) {
  Scene scene;
  EXPECT_FALSE(scene.group->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 6, nullptr));
}

TEST(Pick, AGroupThatIsNotPickableHidesItsChildren) {
  Scene scene;
  scene.group->setPickingEnable(false);
  EXPECT_FALSE(scene.pick());
}

TEST(Pick, ARejectedInnerGroupHidesItsChildren) {
  Scene scene;
  const shared_ptr<Group> inner = Group::create();
  scene.group->removeChild(scene.mesh);
  inner->addChild(scene.mesh);
  scene.group->addChild(inner);
  EXPECT_TRUE(scene.pick());
  inner->setPickingEnable(false);
  EXPECT_FALSE(scene.pick());
  inner->setPickingEnable(true);
  inner->setRenderingEnable(false);
  EXPECT_FALSE(scene.pick());
  inner->setRenderingEnable(true);
  inner->setScope(0);
  EXPECT_FALSE(scene.pick());
}

TEST(Pick, AMeshThatIsNotPickableIsMissed) {
  Scene scene;
  scene.mesh->setPickingEnable(false);
  EXPECT_FALSE(scene.pick());
  scene.mesh->setPickingEnable(true);
  scene.mesh->setRenderingEnable(false);
  EXPECT_FALSE(scene.pick());
}

TEST(Pick, TheScopeArgumentChangesNothing) {
  Scene scene;
  EXPECT_TRUE(scene.pick(nullptr, 0));
}

TEST(Pick, TheGroupsOwnScopeChooses) {
  Scene scene;
  scene.group->setScope(0);
  EXPECT_FALSE(scene.pick());
  scene.group->setScope(2);
  scene.mesh->setScope(4);
  EXPECT_FALSE(scene.pick(nullptr, 4));
  scene.mesh->setScope(6);
  EXPECT_TRUE(scene.pick(nullptr, 4));
}

TEST(Pick, ARayInTheTrianglesPlaneMisses) {
  Scene scene;
  EXPECT_FALSE(scene.group->pick(-1, -5, 0.3f, 0, -4, 0.3f, 0, nullptr));
}

TEST(Pick, AResultWithADistanceTakesNearerHitsOnly) {
  Scene scene;
  RayIntersection result;
  EXPECT_TRUE(scene.pick(&result));
  const shared_ptr<Mesh> other = quadMesh(plainAppearance());
  scene.group->addChild(other);
  scene.group->removeChild(scene.mesh);
  // Just as far: the old hit stays, and counts as one.
  EXPECT_TRUE(scene.pick(&result));
  EXPECT_EQ(result.getIntersected(), scene.mesh);
  other->setTranslation(0, 0, 1);
  EXPECT_TRUE(scene.pick(&result));
  EXPECT_EQ(result.getIntersected(), other);
  EXPECT_FLOAT_EQ(result.getDistance(), 4.0f);
  // Nothing there, but the distance is left.
  EXPECT_TRUE(scene.group->pick(-1, 50, 50, 5, 50, 50, 4, &result));
  EXPECT_EQ(result.getIntersected(), other);
  // Without any candidate the answer is no all the same.
  scene.group->removeChild(other);
  EXPECT_FALSE(scene.pick(&result));
}

TEST(Pick, AMeshWithoutAppearanceIsSkipped) {
  Scene scene;
  const shared_ptr<Appearance> appearance = scene.mesh->getAppearance(0);
  scene.mesh->setAppearance(0, {});
  EXPECT_FALSE(scene.pick());
  scene.mesh->setAppearance(0, appearance);
  EXPECT_TRUE(scene.pick());
}

TEST(Pick, OfCoincidentTrianglesTheFirstWins) {
  const shared_ptr<IndexBuffer> submeshes[] = {quadStrip(), quadStrip()};
  const shared_ptr<Appearance> appearances[] = {plainAppearance(), plainAppearance()};
  const shared_ptr<Group> group = Group::create();
  group->addChild(Mesh::create(unitQuad(), submeshes, appearances, 2));
  group->addChild(quadMesh(plainAppearance()));
  RayIntersection result;
  EXPECT_TRUE(group->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, &result));
  EXPECT_EQ(result.getSubmeshIndex(), 0);
  EXPECT_EQ(result.getIntersected(), group->getChild(0));
}

TEST(Pick, TheNearestOfSeveralSubmeshesAndMeshesWins) {
  const shared_ptr<VertexBuffer> buffer = VertexBuffer::create();
  buffer->setPositions(shortArray(3, {-1, -1, 0, 1, -1, 0, -1, 1, 0, 1, 1, 0,  //
                                      -1, -1, 2, 1, -1, 2, -1, 1, 2, 1, 1, 2}),
                       1.0f, nullptr);
  const int length = 4;
  const shared_ptr<IndexBuffer> submeshes[] = {TriangleStripArray::create(0, &length, 1),
                                               TriangleStripArray::create(4, &length, 1)};
  const shared_ptr<Appearance> appearances[] = {plainAppearance(), plainAppearance()};
  const shared_ptr<Group> group = Group::create();
  const shared_ptr<Mesh> mesh = Mesh::create(buffer, submeshes, appearances, 2);
  group->addChild(quadMesh(plainAppearance()));
  group->addChild(mesh);
  group->addChild(quadMesh(plainAppearance()));
  RayIntersection result;
  EXPECT_TRUE(group->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, &result));
  EXPECT_EQ(result.getIntersected(), mesh);
  EXPECT_EQ(result.getSubmeshIndex(), 1);
  EXPECT_FLOAT_EQ(result.getDistance(), 3.0f);
}

TEST(Pick, CullsByThePolygonModeAndByItsDefaults) {
  struct Case {
    int culling, winding;
    bool front, back;
  };
  const Case cases[] = {
      {0, 0, true, false},
      {PolygonMode::CULL_BACK, PolygonMode::WINDING_CCW, true, false},
      {PolygonMode::CULL_FRONT, PolygonMode::WINDING_CCW, false, true},
      {PolygonMode::CULL_NONE, PolygonMode::WINDING_CCW, true, true},
      {PolygonMode::CULL_BACK, PolygonMode::WINDING_CW, false, true},
      {PolygonMode::CULL_FRONT, PolygonMode::WINDING_CW, true, false},
  };
  for (const Case& c : cases) {
    Scene scene;
    if (c.culling != 0) {
      const shared_ptr<PolygonMode> mode = PolygonMode::create();
      mode->setCulling(c.culling);
      mode->setWinding(c.winding);
      scene.mesh->getAppearance(0)->setPolygonMode(mode);
    }
    // Both triangles of the strip, from either side.
    for (float x : {-0.4f, 0.4f}) {
      EXPECT_EQ(scene.group->pick(-1, x, x, 5, x, x, 4, nullptr), c.front);
      EXPECT_EQ(scene.group->pick(-1, x, x, -5, x, x, -4, nullptr), c.back);
    }
  }
}

TEST(Pick, WorksInTheGroupsCoordinates) {
  Scene scene;
  const shared_ptr<Group> root = Group::create();
  root->addChild(scene.group);
  root->setTranslation(0, 0, 100);
  scene.group->setTranslation(50, 0, 0);
  scene.mesh->setTranslation(0, 0, -3);
  RayIntersection result;
  EXPECT_TRUE(scene.pick(&result));
  EXPECT_NEAR(result.getDistance(), 8.0f, 1e-4);
}

TEST(Pick, ASingularGroupRaises) {
  Scene scene;
  const shared_ptr<Group> root = Group::create();
  root->addChild(scene.group);
  scene.group->setScale(0, 1, 1);
  EXPECT_EQ(textOf<std::underflow_error>([&] { scene.pick(); }),
            "Unable to invert matrix -- singularity encountered in the matrix");
}

TEST(Pick, InterpolatesTheNormalsOfAnImplicitStrip) {
  Scene scene;
  scene.mesh->getVertexBuffer()->setNormals(
      byteArray(3, {127, 0, 0, 0, 127, 0, 0, 0, 127, 0, 0, 127}));
  RayIntersection result;
  // Inside the first triangle: weights 0.1, 0.6, 0.3 of the corners.
  EXPECT_TRUE(scene.group->pick(-1, 0.2f, -0.4f, 5, 0.2f, -0.4f, 4, &result));
  const float length = std::sqrt(0.01f + 0.36f + 0.09f);
  EXPECT_NEAR(result.getNormalX(), 0.1f / length, 1e-4);
  EXPECT_NEAR(result.getNormalY(), 0.6f / length, 1e-4);
  EXPECT_NEAR(result.getNormalZ(), 0.3f / length, 1e-4);
}

TEST(Pick, TakesOneVertexsNormalOfAnExplicitStrip) {
  const shared_ptr<VertexBuffer> buffer = unitQuad();
  buffer->setNormals(byteArray(3, {127, 0, 0, 0, 127, 0, 0, 0, 127, 0, 0, 127}));
  const shared_ptr<Group> group = Group::create();
  group->addChild(Mesh::create(buffer, indexedStrip({0, 1, 2, 3}), plainAppearance()));
  RayIntersection first;
  EXPECT_TRUE(group->pick(-1, 0.2f, -0.4f, 5, 0.2f, -0.4f, 4, &first));
  EXPECT_FLOAT_EQ(first.getNormalX(), 1.0f);
  RayIntersection second;
  EXPECT_TRUE(group->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, &second));
  EXPECT_FLOAT_EQ(second.getNormalY(), 1.0f);
}

TEST(Pick, WithoutNormalsTheNormalStays) {
  Scene scene;
  RayIntersection result;
  const float old[3] = {3, 4, 5};
  result.setNormal(old);
  EXPECT_TRUE(scene.pick(&result));
  EXPECT_EQ(result.getNormalX(), 3.0f);
}

TEST(Pick, InterpolatesTextureCoordinatesOfTheUnitsThatHaveThem) {
  const int before = maxTextureUnits;
  maxTextureUnits = 2;
  Scene scene;
  const float bias[3] = {1, 2, 0};
  scene.mesh->getVertexBuffer()->setTexCoords(1, shortArray(2, {0, 0, 10, 0, 0, 10, 10, 10}), 0.1f,
                                              bias);
  RayIntersection result;
  result.setTextureCoords(0, 7, 8);
  EXPECT_TRUE(scene.group->pick(-1, 0.2f, -0.4f, 5, 0.2f, -0.4f, 4, &result));
  EXPECT_NEAR(result.getTextureS(1), 1.6f, 1e-4);
  EXPECT_NEAR(result.getTextureT(1), 2.3f, 1e-4);
  EXPECT_EQ(result.getTextureS(0), 7.0f);
  EXPECT_EQ(result.getTextureT(0), 8.0f);
  maxTextureUnits = before;
}

TEST(Pick, AStripPastTheVerticesRaises) {
  const int length = 5;
  const shared_ptr<Group> group = Group::create();
  group->addChild(
      Mesh::create(unitQuad(), TriangleStripArray::create(0, &length, 1), plainAppearance()));
  EXPECT_EQ(textOf<std::out_of_range>([&] { group->pick(-1, 9, 9, 5, 9, 9, 4, nullptr); }),
            "VertexBuffer::getVertex(4): Invalid vertex index");
}

TEST(Pick, StripsWithoutATriangleAreMissed) {
  for (int length : {0, 1, 2}) {
    const shared_ptr<Group> group = Group::create();
    group->addChild(
        Mesh::create(unitQuad(), TriangleStripArray::create(0, &length, 1), plainAppearance()));
    EXPECT_FALSE(group->pick(-1, 0.2f, 0.4f, 5, 0.2f, 0.4f, 4, nullptr));
  }
}

TEST(PickThroughCamera, RefusesNoCamera) {
  Scene scene;
  EXPECT_EQ(textOf<std::invalid_argument>(
                [&] { scene.group->pickThroughCamera(-1, 0.5f, 0.5f, {}, nullptr); }),
            "Group.pick called with null camera argument ");
}

TEST(PickThroughCamera, GoesThroughThePointOfThePicture) {
  Scene scene;
  const shared_ptr<Camera> camera = Camera::create();
  camera->setPerspective(90, 1, 1, 100);
  camera->setTranslation(0, 0, 10);
  scene.group->addChild(camera);
  scene.mesh->setScale(4, 4, 1);
  RayIntersection result;
  // The picture's half is 10 wide at the quad, which covers 4 of it, doubled by the near point.
  EXPECT_TRUE(scene.group->pickThroughCamera(-1, 0.55f, 0.45f, camera, &result));
  EXPECT_EQ(result.getIntersected(), scene.mesh);
  float ray[6];
  result.getRay(ray);
  EXPECT_FLOAT_EQ(ray[2], 10.0f);
  EXPECT_NEAR(ray[3], 0.2f, 1e-4);
  EXPECT_NEAR(ray[4], 0.2f, 1e-4);
  EXPECT_NEAR(ray[5], 9.0f, 1e-4);
  EXPECT_FALSE(scene.group->pickThroughCamera(-1, 0.95f, 0.5f, camera, nullptr));
}

TEST(PickThroughCamera, TheProjectionCountsAlsoForANewCamera) {
  Scene scene;
  const shared_ptr<Camera> camera = Camera::create();
  float columns[16] = {0.25f, 0, 0, 0, 0, 0.25f, 0, 0, 0, 0, 0.5f, 0, 0, 0, 0, 1};
  camera->setGeneric(columns);
  camera->setTranslation(0, 0, 5);
  scene.group->addChild(camera);
  RayIntersection result;
  scene.group->pickThroughCamera(-1, 0.75f, 0.5f, camera, &result);
  float ray[6];
  result.getRay(ray);
  // (0.5, 0, -1) becomes (2, 0, -2), x is doubled, and the camera stands at z = 5.
  EXPECT_THAT(ray, ElementsAre(0, 0, 5, 4, 0, 3));
}

TEST(PickThroughCamera, AProjectionWithoutAnInverseRaises) {
  Scene scene;
  const shared_ptr<Camera> camera = Camera::create();
  const float zero[16] = {};
  camera->setGeneric(zero);
  EXPECT_EQ(textOf<std::underflow_error>(
                [&] { scene.group->pickThroughCamera(-1, 0.5f, 0.5f, camera, nullptr); }),
            "Unable to invert matrix -- singularity encountered in the matrix");
}

TEST(PickThroughCamera, ACameraOfAnotherTreeLooksFromTheOrigin) {
  Scene scene;
  const shared_ptr<Camera> camera = Camera::create();
  camera->setTranslation(100, 0, 0);
  RayIntersection result;
  scene.group->pickThroughCamera(-1, 0.75f, 0.5f, camera, &result);
  float ray[6];
  result.getRay(ray);
  EXPECT_THAT(ray, ElementsAre(0, 0, 0, 1, 0, -1));
}

}  // namespace
}  // namespace varnel_m3g
