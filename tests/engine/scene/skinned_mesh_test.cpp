#include "engine/scene/skinned_mesh.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/scene/group.h"
#include "engine/scene/ray_intersection.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "tests/engine/scene/mesh_parts.h"
#include "tests/engine/scene/skin_model.h"
#include "tests/support/allocation_count.h"
#include "tests/support/object_checks.h"
#include "tests/support/small_stack.h"

namespace varnel_m3g {
namespace {

using varnel_test::allocationCount;
using varnel_test::arrayOf;
using varnel_test::bufferOf;
using varnel_test::errorOutputOf;
using varnel_test::expectFailure;
using varnel_test::normalsOf;
using varnel_test::oneTriangle;
using varnel_test::positionsOf;
using varnel_test::SkinModel;
using varnel_test::valuesOf;

using Ints = std::vector<int>;

const Ints triangle = {100, 200, 300, -100, 0, 50, 7, 8, 9};

boost::shared_ptr<SkinnedMesh> meshOf(const boost::shared_ptr<VertexBuffer>& vertices,
                                      const boost::shared_ptr<Group>& skeleton) {
  return SkinnedMesh::create(vertices, oneTriangle(), boost::shared_ptr<Appearance>(), skeleton);
}

// What a world pass does before the buffers are asked for.
void updateWorld(SkinnedMesh& mesh) {
  mesh.updateWorldTransforms(true, Transform());
}

Ints deformed(SkinnedMesh& mesh) {
  updateWorld(mesh);
  return positionsOf(mesh.updateRenderBuffer());
}

struct Skinned : testing::Test {
  boost::shared_ptr<Group> skeleton = Group::create();
  boost::shared_ptr<Group> arm = Group::create();
  boost::shared_ptr<Group> hand = Group::create();
  boost::shared_ptr<VertexBuffer> vertices = bufferOf(triangle);
  boost::shared_ptr<SkinnedMesh> mesh;

  Skinned() {
    skeleton->addChild(arm);
    arm->addChild(hand);
    mesh = meshOf(vertices, skeleton);
  }
};

TEST_F(Skinned, ChecksAsAMeshFirstAndThenItsSkeleton) {
  const boost::shared_ptr<Group> none;
  const boost::shared_ptr<IndexBuffer> submeshes[] = {oneTriangle()};
  const auto several = [&](const boost::shared_ptr<VertexBuffer>& buffer,
                           const boost::shared_ptr<Group>& bones) {
    return SkinnedMesh::create(buffer, submeshes, nullptr, 1, bones);
  };
  const auto check = [&](auto make) {
    expectFailure<std::invalid_argument>([&] { make(boost::shared_ptr<VertexBuffer>(), none); },
                                         "Mesh constructor called with vertices = null");
    expectFailure<std::invalid_argument>([&] { make(vertices, none); }, "Null Skeleton");
    expectFailure<std::invalid_argument>([&] { make(vertices, World::create()); },
                                         "Skeleton can not be instance of World");
    expectFailure<std::invalid_argument>([&] { make(vertices, arm); },
                                         "Given skeleton already had a parent");
  };
  check(meshOf);
  check(several);
  EXPECT_EQ(several(vertices, Group::create())->getChildCount(), 1U);
}

TEST_F(Skinned, TheSkeletonIsTheOnlyChild) {
  EXPECT_EQ(mesh->getSkeleton(), skeleton);
  EXPECT_EQ(mesh->getChildCount(), 1U);
  EXPECT_EQ(skeleton->getParent(), mesh);
  EXPECT_EQ(hand->getRoot().lock(), mesh);
  const auto references = varnel_test::referencesOf(*mesh);
  EXPECT_EQ(std::count(references.begin(), references.end(), skeleton), 1);
}

TEST_F(Skinned, ChecksABindingInOrder) {
  const boost::shared_ptr<Node> none;
  expectFailure<std::invalid_argument>([&] { mesh->addTransform(none, 0, -1, 0); }, "NULL bone");
  expectFailure<std::invalid_argument>([&] { mesh->addTransform(arm, 0, -1, 0); }, "weight <= 0");
  expectFailure<std::invalid_argument>([&] { mesh->addTransform(arm, 1, -1, 0); },
                                       "numVertices <= 0");
  expectFailure<std::out_of_range>([&] { mesh->addTransform(arm, 1, -1, 1); }, "firstVertex < 0");
  const int beyond[][2] = {{65534, 2}, {0, 65536}, {2147483647, 2147483647}, {1, 2147483647}};
  for (const auto& run : beyond) {
    expectFailure<std::out_of_range>([&] { mesh->addTransform(arm, 1, run[0], run[1]); },
                                     "firstVertex+numVertices > 65535");
  }
  mesh->addTransform(arm, 1, 65533, 2);
  mesh->addTransform(arm, 1, 0, 65535);
}

TEST_F(Skinned, ABoneOutsideTheSkeletonFailsAndStaysInTheList) {
  const auto stranger = Group::create();
  expectFailure<std::invalid_argument>([&] { mesh->addTransform(stranger, 2, 1, 2); },
                                       "Given bone is not skeleton or its descendant");
  int indices[2] = {};
  float weights[2] = {9, 9};
  EXPECT_EQ(mesh->getBoneVertices(stranger, indices, weights, 2), 2);
  EXPECT_EQ(indices[0], 1);
  EXPECT_EQ(indices[1], 2);
  EXPECT_EQ(weights[0], 0.0F) << "it has no part of any vertex";
  EXPECT_EQ(deformed(*mesh), triangle);
}

TEST_F(Skinned, ABoneAddedLaterHasNoEntry) {
  const auto late = Group::create();
  hand->addChild(late);
  expectFailure<std::invalid_argument>([&] { mesh->addTransform(late, 1, 0, 1); },
                                       "Given bone is not skeleton or its descendant");
  Transform transform;
  expectFailure<std::invalid_argument>([&] { mesh->getBoneTransform(late, transform); },
                                       "getBone -- bone not found in the skeleton");
}

TEST_F(Skinned, WeightsOfOneVertexAreShared) {
  mesh->addTransform(arm, 1, 0, 1);
  mesh->addTransform(hand, 3, 0, 1);
  float weight = 0;
  EXPECT_EQ(mesh->getBoneVertices(arm, nullptr, &weight, 1), 1);
  EXPECT_EQ(weight, 0.25F);
  EXPECT_EQ(mesh->getBoneVertices(hand, nullptr, &weight, 1), 1);
  EXPECT_EQ(weight, 0.75F);
}

TEST_F(Skinned, TellsTheVerticesOfABone) {
  mesh->addTransform(arm, 1, 1, 2);
  mesh->addTransform(hand, 1, 0, 1);
  mesh->addTransform(arm, 1, 0, 2);
  EXPECT_EQ(mesh->getBoneVertices(arm, nullptr, nullptr, 0), 4);
  EXPECT_EQ(mesh->getBoneVertices(skeleton, nullptr, nullptr, 0), 0);
  int indices[] = {-1, -1, -1, -1, -1};
  EXPECT_EQ(mesh->getBoneVertices(arm, indices, nullptr, 4), 4);
  EXPECT_EQ(Ints(indices, indices + 5), (Ints{1, 2, 0, 1, -1}));
  float weights[4];
  EXPECT_EQ(mesh->getBoneVertices(arm, indices, weights, 4), 4);
  EXPECT_EQ(std::vector<float>(weights, weights + 4), (std::vector<float>{0.5F, 1, 0.5F, 0.5F}));
  const char* text = "Too small a value for nVertices in getBoneVertices";
  expectFailure<std::invalid_argument>([&] { mesh->getBoneVertices(arm, indices, weights, 3); },
                                       text);
  expectFailure<std::invalid_argument>([&] { mesh->getBoneVertices(arm, indices, nullptr, 1); },
                                       text);
  expectFailure<std::invalid_argument>([&] { mesh->getBoneVertices(arm, nullptr, weights, 0); },
                                       text);
}

TEST_F(Skinned, CountsRunsBeyondAnIntegerByTheLow32Bits) {
  const auto stranger = Group::create();
  for (int run = 0; run < 40000; ++run) {
    EXPECT_THROW(mesh->addTransform(stranger, 1, 0, 65535), std::invalid_argument);
  }
  EXPECT_EQ(mesh->getBoneVertices(stranger, nullptr, nullptr, 0),
            static_cast<int>(40000U * 65535U));
}

TEST_F(Skinned, ARunPastTheVerticesIsCountedAndTouchesNone) {
  mesh->addTransform(arm, 2, 2, 1000);
  EXPECT_EQ(mesh->getBoneVertices(arm, nullptr, nullptr, 0), 1000);
  std::vector<float> weights(1000);
  mesh->getBoneVertices(arm, nullptr, weights.data(), 1000);
  EXPECT_EQ(weights[999], 1.0F);
  mesh->addTransform(arm, 2, 5000, 10);
  EXPECT_EQ(deformed(*mesh), triangle);
}

TEST_F(Skinned, TheRestTransformIsTakenAtEachBinding) {
  arm->setTranslation(10, 0, 0);
  mesh->addTransform(hand, 1, 0, 1);
  Transform rest;
  mesh->getBoneTransform(hand, rest);
  EXPECT_EQ(rest.data()[12], -10.0F) << "to the bone from the mesh";
  arm->setTranslation(30, 0, 0);
  mesh->getBoneTransform(hand, rest);
  EXPECT_EQ(rest.data()[12], -10.0F);
  mesh->addTransform(hand, 1, 0, 1);
  mesh->getBoneTransform(hand, rest);
  EXPECT_FLOAT_EQ(rest.data()[12], -30.0F);
  expectFailure<std::invalid_argument>(
      [&] { mesh->getBoneTransform(boost::shared_ptr<Node>(), rest); },
      "getBone called with a null bone instance as an argument");
}

TEST_F(Skinned, ABoneThatCannotBeInvertedFails) {
  hand->setScale(0, 0, 0);
  expectFailure<std::underflow_error>(
      [&] { mesh->addTransform(hand, 1, 0, 1); },
      "Unable to invert matrix -- singularity encountered in the matrix");
}

TEST_F(Skinned, AnUnboundVertexStaysAtItsSource) {
  hand->setScale(2, 2, 2);
  mesh->addTransform(hand, 1, 0, 1);
  hand->setScale(4, 4, 4);
  EXPECT_EQ(deformed(*mesh), (Ints{200, 400, 600, -100, 0, 50, 7, 8, 9}));
}

TEST_F(Skinned, AnIdentityReproducesThePositionUpToEachBonesTruncation) {
  mesh->addTransform(arm, 1, 0, 3);
  EXPECT_EQ(deformed(*mesh), triangle);
  mesh->addTransform(hand, 1, 0, 3);
  mesh->addTransform(skeleton, 1, 0, 3);
  // Thirds of each coordinate, truncated as they are added: 100 goes 33, 66, 99 or 100.
  const Ints thirds = deformed(*mesh);
  for (std::size_t i = 0; i < thirds.size(); ++i) {
    EXPECT_NEAR(thirds[i], triangle[i], 2) << i;
    EXPECT_LE(std::abs(thirds[i]), std::abs(triangle[i]));
  }
}

TEST_F(Skinned, APureTranslationLeavesTheVertices) {
  mesh->addTransform(arm, 1, 0, 3);
  arm->setTranslation(1000, 2000, 3000);
  EXPECT_EQ(deformed(*mesh), triangle);
}

TEST_F(Skinned, ARotationActsTransposed) {
  mesh->addTransform(arm, 1, 0, 3);
  arm->setOrientation(90, 0, 0, 1);
  // A quarter turn about z would take x to y; transposed it takes x to -y.
  const Ints turned = deformed(*mesh);
  EXPECT_NEAR(turned[0], 200, 1);
  EXPECT_NEAR(turned[1], -100, 1);
  EXPECT_EQ(turned[2], 300);
}

TEST_F(Skinned, TheBoneIsTakenAsTheLastWorldPassLeftIt) {
  mesh->addTransform(arm, 1, 0, 3);
  deformed(*mesh);
  arm->setScale(2, 2, 2);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), triangle) << "no update is started";
  EXPECT_EQ(deformed(*mesh)[0], 200);
}

TEST_F(Skinned, TheMeshsOwnTransformCountsThroughTheBones) {
  mesh->addTransform(arm, 1, 0, 3);
  mesh->setScale(3, 3, 3);
  EXPECT_EQ(deformed(*mesh)[0], 300) << "bones are taken relative to the root";
}

TEST_F(Skinned, TheApplicationsArraysNeverChange) {
  vertices->setNormals(arrayOf({1, 2, 3, 4, 5, 6, 7, 8, 9}, 3, 1));
  mesh->addTransform(arm, 1, 0, 3);
  arm->setScale(2, 2, 2);
  deformed(*mesh);
  EXPECT_EQ(positionsOf(vertices), triangle);
  EXPECT_EQ(normalsOf(vertices), (Ints{1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(normalsOf(mesh->getRenderBuffer()), (Ints{2, 4, 6, 8, 10, 12, 14, 16, 18}));
  EXPECT_NE(mesh->getRenderBuffer()->getPositions(nullptr), vertices->getPositions(nullptr));
}

TEST_F(Skinned, SharesColoursTextureCoordinatesScaleAndBias) {
  const float bias[] = {1, 2, 3};
  mesh->updateRenderBuffer();
  vertices->setPositions(vertices->getPositions(nullptr), 0.5F, bias);
  vertices->setColors(arrayOf(Ints(12, 5), 4, 1));
  vertices->setDefaultColor(0x12345678);
  vertices->setTexCoords(0, arrayOf(Ints(6, 1), 2, 1), 0.25F, bias);
  const auto buffer = mesh->updateRenderBuffer();
  float scaleBias[4];
  buffer->getPositions(scaleBias);
  EXPECT_EQ(std::vector<float>(scaleBias, scaleBias + 4), (std::vector<float>{0.5F, 1, 2, 3}));
  EXPECT_EQ(buffer->getColors(), vertices->getColors());
  EXPECT_EQ(buffer->getDefaultColor(), 0x12345678);
  EXPECT_EQ(buffer->getTexCoords(0, scaleBias), vertices->getTexCoords(0, nullptr));
  EXPECT_EQ(scaleBias[0], 0.25F);
  EXPECT_EQ(scaleBias[2], 2.0F);
  vertices->setColors(boost::shared_ptr<VertexArray>());
  vertices->setTexCoords(0, boost::shared_ptr<VertexArray>(), 1, nullptr);
  mesh->updateRenderBuffer();
  EXPECT_FALSE(buffer->getColors());
  EXPECT_FALSE(buffer->getTexCoords(0, nullptr));
}

TEST_F(Skinned, FollowsABufferThatChangesItsShape) {
  mesh->addTransform(arm, 1, 0, 3);
  deformed(*mesh);
  const auto replace = [&](const Ints& positions, int size) {
    vertices->setPositions(boost::shared_ptr<VertexArray>(), 1.0F, nullptr);
    vertices->setPositions(arrayOf(positions, 3, size), 1.0F, nullptr);
  };
  arm->setScale(2, 2, 2);
  replace({1, 2, 3}, 2);
  EXPECT_EQ(deformed(*mesh), (Ints{2, 4, 6}));
  replace({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 1);
  EXPECT_EQ(deformed(*mesh), (Ints{2, 4, 6, 8, 10, 12, 14, 16, 18, 10, 11, 12}))
      << "only the vertices of the time of binding move";
  vertices->setPositions(boost::shared_ptr<VertexArray>(), 1.0F, nullptr);
  EXPECT_EQ(deformed(*mesh), Ints());
}

TEST_F(Skinned, ReportsOverflowsAndWraps) {
  const auto buffer = bufferOf({20000, -20000, 20000, 1, 1, 1, 1, 1, 1});
  const auto bones = Group::create();
  const auto big = meshOf(buffer, bones);
  big->addTransform(bones, 1, 0, 3);
  bones->setScale(2, 2, 2);
  Ints result;
  const std::string text = errorOutputOf([&] { result = deformed(*big); });
  EXPECT_EQ(text,
            "++++++++++++++++++++++ X overflow!!  40000.00\n"
            "++++++++++++++++++++++ Y overflow!!  -40000.00\n");
  EXPECT_EQ(result, (Ints{-25536, 25536, -25536, 2, 2, 2, 2, 2, 2}))
      << "z wraps before it is looked at and is not reported";
}

TEST_F(Skinned, TheEndsOfTheWidthCountAsOverflow) {
  const auto buffer = bufferOf({32767, -32768, 32767, 32766, -32767, 32766, 0, 0, -32768});
  const auto bones = Group::create();
  const auto big = meshOf(buffer, bones);
  big->addTransform(bones, 1, 0, 3);
  const std::string text = errorOutputOf([&] { deformed(*big); });
  EXPECT_EQ(text,
            "++++++++++++++++++++++ X overflow!!  32767.00\n"
            "++++++++++++++++++++++ Y overflow!!  -32768.00\n"
            "++++++++++++++++++++++ Z overflow!!  32767.00\n"
            "++++++++++++++++++++++ Z overflow!!  -32768.00\n");
}

TEST_F(Skinned, SurvivesValuesBeyondEveryInteger) {
  mesh->addTransform(arm, 1, 0, 3);
  for (const float scale : {1e9F, 1e30F, -1e30F}) {
    arm->setScale(scale, scale, scale);
    errorOutputOf([&] { deformed(*mesh); });
  }
}

TEST_F(Skinned, ADuplicateCannotBeMade) {
  expectFailure<std::invalid_argument>([&] { mesh->duplicate(); },
                                       "Given skeleton already had a parent");
  EXPECT_EQ(errorOutputOf([&] { mesh->duplicateImpl(meshOf(vertices, Group::create())); }),
            "SkinnedMesh.duplicateImpl()  is not fully implemented!!\n");
}

TEST_F(Skinned, PicksTheDeformedShape) {
  mesh->setAppearance(0, Appearance::create());
  mesh->addTransform(arm, 1, 0, 3);
  arm->setScale(2, 2, 2);
  deformed(*mesh);
  EXPECT_EQ(positionsOf(mesh->getRenderBuffer())[0], 200);
  RayIntersection hit;
  // Inside the doubled triangle and outside the source.
  const float from[] = {4, 130, 1000};
  const float to[] = {4, 130, -1000};
  mesh->pickRay(from, to, Transform(), hit);
  EXPECT_NE(hit.getDistance(), 0.0F);
}

TEST_F(Skinned, DumpsItsSkeletonAndTheNumberOfItsRuns) {
  skeleton->setUserID(9);
  mesh->addTransform(arm, 1, 0, 1);
  mesh->addTransform(hand, 1, 0, 1);
  const std::string text = varnel_test::outputOf([&] { mesh->dump(); });
  EXPECT_NE(text.find("SkinnedMesh Object\n==================\nSkeleton ID: 9\n"
                      "TransformReferenceCount: 2\n"),
            std::string::npos)
      << text;
}

TEST_F(Skinned, AllocatesNothingWhileTheShapesStay) {
  vertices->setNormals(arrayOf(Ints(9, 3), 3, 1));
  vertices->setColors(arrayOf(Ints(9, 3), 3, 1));
  vertices->setTexCoords(0, arrayOf(Ints(6, 1), 2, 1), 1.0F, nullptr);
  mesh->addTransform(arm, 1, 0, 3);
  mesh->addTransform(hand, 1, 0, 2);
  deformed(*mesh);
  const unsigned long before = allocationCount();
  for (int frame = 0; frame < 100; ++frame) {
    mesh->updateRenderBuffer();
  }
  EXPECT_EQ(allocationCount(), before);
}

TEST(SkinnedMeshGrowth, ASkeletonOfAnyDepthServesOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    const auto skeleton = Group::create();
    boost::shared_ptr<Group> end = skeleton;
    for (int depth = 0; depth < 100000; ++depth) {
      const auto bone = Group::create();
      end->addChild(bone);
      end = bone;
    }
    const auto mesh = meshOf(bufferOf(triangle), skeleton);
    mesh->addTransform(end, 1, 0, 3);
    EXPECT_EQ(deformed(*mesh), triangle);
  });
}

// Random bones, runs, weights and transforms, in all four pairs of widths, bit for bit.
TEST(SkinnedMeshModel, AgreesWithAPlainComputation) {
  std::mt19937 engine(11);
  const auto integer = [&engine](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(engine);
  };
  const auto real = [&engine](float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(engine);
  };
  int overflowing = 0;
  for (int round = 0; round < 200; ++round) {
    const int vertexCount = integer(1, 400);
    const int positionSize = round % 4 < 2 ? 2 : 1;
    const int normalSize = round % 2 == 0 ? 1 : 2;
    const bool withNormals = round % 5 != 0;
    const int reach = positionSize == 1 ? 100 : round % 3 == 0 ? 30000 : 5000;
    Ints positions;
    Ints normals;
    for (int i = 0; i < 3 * vertexCount; ++i) {
      positions.push_back(integer(-reach, reach));
      normals.push_back(integer(-127, 127));
    }
    const auto buffer = bufferOf(positions, positionSize);
    if (withNormals) {
      buffer->setNormals(arrayOf(normals, 3, normalSize));
    }
    const auto skeleton = Group::create();
    std::vector<boost::shared_ptr<Group>> bones = {skeleton};
    for (int b = integer(0, 12); b > 0; --b) {
      const auto bone = Group::create();
      bones[static_cast<std::size_t>(integer(0, static_cast<int>(bones.size()) - 1))]->addChild(
          bone);
      bones.push_back(bone);
    }
    const auto mesh = meshOf(buffer, skeleton);
    const auto pose = [&] {
      for (const auto& bone : bones) {
        bone->setTranslation(real(-9, 9), real(-9, 9), real(-9, 9));
        bone->setOrientation(real(-180, 180), real(-1, 1), real(-1, 1), 1);
        bone->setScale(real(0.5F, 1.5F), real(0.5F, 1.5F), real(0.5F, 1.5F));
      }
    };
    pose();
    SkinModel model(positions, 8 * positionSize, withNormals ? normals : Ints(), 8 * normalSize);
    struct Run {
      boost::shared_ptr<Group> bone;
      int weight;
      int first;
      int count;
    };
    std::vector<Run> runs;
    for (int n = integer(0, 20); n > 0; --n) {
      runs.push_back(
          {bones[static_cast<std::size_t>(integer(0, static_cast<int>(bones.size()) - 1))],
           integer(1, 255), integer(0, vertexCount), integer(1, vertexCount)});
      const Run& run = runs.back();
      mesh->addTransform(run.bone, run.weight, run.first, run.count);
    }
    pose();
    updateWorld(*mesh);
    for (const Run& run : runs) {
      Transform rest;
      mesh->getBoneTransform(run.bone, rest);
      Transform bone = run.bone->worldTransform();
      bone.postMultiply(rest);
      SkinModel::Binding binding = {{}, run.weight, run.first, run.count};
      bone.get(binding.matrix.data());
      model.bind(binding);
    }
    model.deform();
    boost::shared_ptr<VertexBuffer> result;
    const std::string text = errorOutputOf([&] { result = mesh->updateRenderBuffer(); });
    ASSERT_EQ(positionsOf(result), model.positions) << "round " << round;
    ASSERT_EQ(normalsOf(result), model.normals) << "round " << round;
    ASSERT_EQ(text, model.overflows) << "round " << round;
    overflowing += text.empty() ? 0 : 1;
  }
  EXPECT_GT(overflowing, 20);
}

}  // namespace
}  // namespace varnel_m3g
