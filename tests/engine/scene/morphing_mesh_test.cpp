#include "engine/scene/morphing_mesh.h"

#include <gtest/gtest.h>

#include <boost/pointer_cast.hpp>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/object/engine_limits.h"
#include "engine/scene/ray_intersection.h"
#include "engine/surface/appearance.h"
#include "tests/engine/scene/mesh_parts.h"
#include "tests/support/allocation_count.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::allocationCount;
using varnel_test::arrayOf;
using varnel_test::bufferOf;
using varnel_test::expectFailure;
using varnel_test::normalsOf;
using varnel_test::oneTriangle;
using varnel_test::positionsOf;
using varnel_test::referencesOf;
using varnel_test::valuesOf;

using Buffers = std::vector<boost::shared_ptr<VertexBuffer>>;
using Ints = std::vector<int>;

const Ints triangle = {0, 0, 0, 100, 0, 0, 0, 100, 0};

Ints plus(Ints values, int difference) {
  for (int& value : values) {
    value += difference;
  }
  return values;
}

// The form whose targets count.
boost::shared_ptr<MorphingMesh> meshOf(const boost::shared_ptr<VertexBuffer>& base,
                                       const Buffers& targets) {
  const boost::shared_ptr<IndexBuffer> submeshes[] = {oneTriangle()};
  return MorphingMesh::create(base, targets.data(), static_cast<int>(targets.size()), submeshes,
                              nullptr, 1);
}

boost::shared_ptr<MorphingMesh> oneSubmeshOf(const boost::shared_ptr<VertexBuffer>& base,
                                             const Buffers& targets) {
  return MorphingMesh::create(base, targets.data(), static_cast<int>(targets.size()), oneTriangle(),
                              boost::shared_ptr<Appearance>());
}

TEST(MorphingMesh, ChecksAsAMeshFirstAndThenItsTargets) {
  const auto base = bufferOf(triangle);
  const Buffers none;
  const Buffers withHole = {base, boost::shared_ptr<VertexBuffer>(), base};
  const boost::shared_ptr<IndexBuffer> submeshes[] = {oneTriangle()};
  const auto one = [&](const boost::shared_ptr<VertexBuffer>& b,
                       const boost::shared_ptr<VertexBuffer>* targets, int count) {
    MorphingMesh::create(b, targets, count, submeshes[0], boost::shared_ptr<Appearance>());
  };
  const auto several = [&](const boost::shared_ptr<VertexBuffer>& b,
                           const boost::shared_ptr<VertexBuffer>* targets, int count) {
    MorphingMesh::create(b, targets, count, submeshes, nullptr, 1);
  };
  const auto check = [&](auto make) {
    expectFailure<std::invalid_argument>(
        [&] { make(boost::shared_ptr<VertexBuffer>(), nullptr, 0); },
        "Mesh constructor called with vertices = null");
    expectFailure<std::invalid_argument>([&] { make(base, nullptr, 0); },
                                         "NULL targets for MorphingMesh");
    expectFailure<std::invalid_argument>([&] { make(base, &base, 0); },
                                         "Empty targets for MorphingMesh");
    expectFailure<std::invalid_argument>([&] { make(base, withHole.data(), 3); },
                                         "NULL targets[1] for MorphingMesh");
  };
  check(one);
  check(several);
}

TEST(MorphingMesh, OnlyTheFormForSeveralSubmeshesCountsItsTargets) {
  const auto base = bufferOf(triangle);
  const Buffers targets = {bufferOf(plus(triangle, 10)), bufferOf(plus(triangle, 20))};
  const auto several = meshOf(base, targets);
  EXPECT_EQ(several->getMorphTargetCount(), 2);
  EXPECT_EQ(several->getMorphTarget(1), targets[1]);
  EXPECT_FALSE(several->getMorphTarget(-1));
  expectFailure<std::out_of_range>([&] { several->getMorphTarget(2); },
                                   "Given index 2; number of targets: 2");

  const auto one = oneSubmeshOf(base, targets);
  EXPECT_EQ(one->getMorphTargetCount(), 0);
  expectFailure<std::out_of_range>([&] { one->getMorphTarget(0); },
                                   "Given index 0; number of targets: 0");
  const float ones[] = {1, 1};
  one->setWeights(ones);
  float read[] = {7, 7};
  one->getWeights(read);
  EXPECT_EQ(read[0], 7.0F) << "nothing is copied";
  EXPECT_EQ(positionsOf(one->updateRenderBuffer()), triangle) << "the base shape";
}

TEST(MorphingMesh, WeightsBeginAtZeroAndAreNotLimited) {
  const auto mesh = meshOf(bufferOf(triangle), {bufferOf(plus(triangle, 10))});
  float read[] = {7};
  mesh->getWeights(read);
  EXPECT_EQ(read[0], 0.0F);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), triangle);
  for (const float weight : {-2.0F, 3.0F}) {
    mesh->setWeights(&weight);
    mesh->getWeights(read);
    EXPECT_EQ(read[0], weight);
    EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()),
              plus(triangle, static_cast<int>(10 * weight)));
  }
  expectFailure<std::invalid_argument>([&] { mesh->setWeights(nullptr); },
                                       "MorphMesh::setWeight called with null weights array");
  expectFailure<std::invalid_argument>([&] { mesh->getWeights(nullptr); },
                                       "MorphMesh::getWeight called with null weights array");
}

TEST(MorphingMesh, OppositeTargetsOfEqualWeightYieldTheBase) {
  const auto mesh =
      meshOf(bufferOf(triangle), {bufferOf(plus(triangle, 10)), bufferOf(plus(triangle, -10))});
  const float weights[] = {0.5F, 0.5F};
  mesh->setWeights(weights);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), triangle);
}

TEST(MorphingMesh, BlendsOnceUntilWeightsAreSet) {
  const auto base = bufferOf(triangle);
  const auto target = bufferOf(plus(triangle, 10));
  const auto mesh = meshOf(base, {target});
  const float weights[] = {1};
  mesh->setWeights(weights);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), plus(triangle, 10));
  // A change of contents alone is not seen.
  target->getPositions(nullptr)->set(0, 3, std::vector<short>(9, static_cast<short>(500)).data());
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), plus(triangle, 10));
  // The same weights mark the blend as needed all the same.
  mesh->setWeights(weights);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), Ints(9, 500));
}

TEST(MorphingMesh, TakesScaleAndBiasFromTheBase) {
  const float baseBias[] = {1, 2, 3};
  const float targetBias[] = {7, 8, 9};
  const auto base = VertexBuffer::create();
  base->setPositions(arrayOf(triangle, 3, 2), 0.5F, baseBias);
  const auto target = VertexBuffer::create();
  target->setPositions(arrayOf(plus(triangle, 10), 3, 2), 4.0F, targetBias);
  const auto mesh = meshOf(base, {target});
  const float weights[] = {1};
  mesh->setWeights(weights);
  float scaleBias[4];
  mesh->updateRenderBuffer()->getPositions(scaleBias);
  EXPECT_EQ(std::vector<float>(scaleBias, scaleBias + 4), (std::vector<float>{0.5F, 1, 2, 3}));
}

TEST(MorphingMesh, AnAttributeThatOneTargetLacksIsSharedWithTheBase) {
  const auto base = bufferOf(triangle);
  base->setNormals(arrayOf(triangle, 3, 1));
  const auto full = bufferOf(plus(triangle, 10));
  full->setNormals(arrayOf(plus(triangle, 10), 3, 1));
  const auto bare = bufferOf(plus(triangle, 20));
  const auto mesh = meshOf(base, {full, bare});
  const float weights[] = {1, 0};
  mesh->setWeights(weights);
  const auto blended = mesh->updateRenderBuffer();
  EXPECT_EQ(blended->getNormals(), base->getNormals());
  EXPECT_EQ(positionsOf(blended), plus(triangle, 10));
}

TEST(MorphingMesh, TargetsOfDifferentShapesLeaveTheBase) {
  const auto base = bufferOf(triangle);
  struct Case {
    const char* what;
    Buffers targets;
  };
  const Case cases[] = {
      {"unlike each other in size", {bufferOf(plus(triangle, 10)), bufferOf(triangle, 1)}},
      {"unlike the base in size", {bufferOf(triangle, 1)}},
      {"unlike the base in length", {bufferOf({1, 2, 3})}},
  };
  for (const Case& c : cases) {
    const auto mesh = meshOf(base, c.targets);
    const float weights[] = {1, 1};
    mesh->setWeights(weights);
    EXPECT_EQ(mesh->updateRenderBuffer()->getPositions(nullptr), base->getPositions(nullptr))
        << c.what;
  }
}

TEST(MorphingMesh, ColoursClampAndPositionBytesWrap) {
  const auto base = bufferOf({100, 0, 0, 0, 0, 0, 0, 0, 0}, 1);
  base->setColors(arrayOf({-56, 10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 4, 1));
  const auto target = bufferOf({127, 0, 0, 0, 0, 0, 0, 0, 0}, 1);
  target->setColors(arrayOf({-1, 5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 4, 1));
  const auto mesh = meshOf(base, {target});
  const float weights[] = {3};
  mesh->setWeights(weights);
  const auto blended = mesh->updateRenderBuffer();
  EXPECT_EQ(positionsOf(blended)[0], 100 + 81 - 256);
  const auto colors = valuesOf(blended->getColors());
  EXPECT_EQ(colors[0], -1) << "200 + 3 * 55 clamps to 255";
  EXPECT_EQ(colors[1], 0) << "10 - 3 * 5 clamps to 0";
}

TEST(MorphingMesh, BlendsTextureCoordinatesOfEachUnit) {
  const varnel_test::TextureUnits units(2);
  const float bias[] = {1, 2, 3};
  const auto base = bufferOf(triangle);
  const auto target = bufferOf(triangle);
  for (int unit = 0; unit < 2; ++unit) {
    base->setTexCoords(unit, arrayOf({0, 0, 10, 10, 20, 20}, 2, 2), 0.25F, bias);
    target->setTexCoords(unit, arrayOf(Ints(6, 100 * (unit + 1)), 2, 2), 1.0F, nullptr);
  }
  const auto mesh = meshOf(base, {target});
  const float weights[] = {1};
  mesh->setWeights(weights);
  const auto blended = mesh->updateRenderBuffer();
  for (int unit = 0; unit < 2; ++unit) {
    float scaleBias[4];
    EXPECT_EQ(valuesOf(blended->getTexCoords(unit, scaleBias)), Ints(6, 100 * (unit + 1)));
    EXPECT_EQ(scaleBias[0], 0.25F);
    EXPECT_EQ(scaleBias[3], 3.0F);
  }
}

TEST(MorphingMesh, NeverWritesIntoAnArrayOfTheApplication) {
  const auto base = bufferOf(triangle);
  const auto bare = VertexBuffer::create();
  const auto mesh = meshOf(base, {bare});
  mesh->updateRenderBuffer();
  const auto shared = base->getPositions(nullptr);
  EXPECT_EQ(mesh->updateRenderBuffer()->getPositions(nullptr), shared);
  // The base gets another array and the target one too: the blend may not go into the old one.
  base->setPositions(arrayOf(plus(triangle, 1), 3, 2), 1.0F, nullptr);
  bare->setPositions(arrayOf(plus(triangle, 3), 3, 2), 1.0F, nullptr);
  const float weights[] = {1};
  mesh->setWeights(weights);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), plus(triangle, 3));
  EXPECT_EQ(valuesOf(shared), triangle);
  EXPECT_EQ(positionsOf(base), plus(triangle, 1));
}

TEST(MorphingMesh, FollowsABaseThatChangesItsLength) {
  const auto base = bufferOf(triangle);
  const auto mesh = meshOf(base, {bufferOf(triangle)});
  mesh->updateRenderBuffer();
  base->setPositions(boost::shared_ptr<VertexArray>(), 1.0F, nullptr);
  base->setPositions(arrayOf({1, 2, 3, 4, 5, 6}, 3, 2), 1.0F, nullptr);
  const float weights[] = {0};
  mesh->setWeights(weights);
  EXPECT_EQ(positionsOf(mesh->updateRenderBuffer()), (Ints{1, 2, 3, 4, 5, 6}));
}

TEST(MorphingMesh, AllocatesNothingWhileTheShapesStay) {
  const auto base = bufferOf(triangle);
  base->setNormals(arrayOf(triangle, 3, 1));
  base->setColors(arrayOf(Ints(9, 50), 3, 1));
  base->setTexCoords(0, arrayOf(Ints(6, 1), 2, 1), 1.0F, nullptr);
  Buffers targets;
  for (int t = 0; t < 3; ++t) {
    targets.push_back(bufferOf(plus(triangle, t)));
    targets.back()->setNormals(arrayOf(plus(triangle, t), 3, 1));
    targets.back()->setColors(arrayOf(Ints(9, 50 + t), 3, 1));
    targets.back()->setTexCoords(0, arrayOf(Ints(6, t), 2, 1), 1.0F, nullptr);
  }
  const auto mesh = meshOf(base, targets);
  mesh->updateRenderBuffer();
  const unsigned long before = allocationCount();
  for (int frame = 0; frame < 100; ++frame) {
    const float weights[] = {0.01F * static_cast<float>(frame), 0.5F, 1};
    mesh->setWeights(weights);
    mesh->updateRenderBuffer();
  }
  EXPECT_EQ(allocationCount(), before);
}

TEST(MorphingMesh, PicksTheBaseShape) {
  const auto mesh = meshOf(bufferOf(triangle), {bufferOf(plus(triangle, 1000))});
  mesh->setAppearance(0, Appearance::create());
  const float weights[] = {1};
  mesh->setWeights(weights);
  mesh->updateRenderBuffer();
  EXPECT_EQ(positionsOf(mesh->getRenderBuffer()), triangle);
  RayIntersection hit;
  const float from[] = {10, 10, 100};
  const float to[] = {10, 10, -100};
  mesh->pickRay(from, to, Transform(), hit);
  EXPECT_NE(hit.getDistance(), 0.0F);
}

TEST(MorphingMesh, ReportsItsTargetsLast) {
  const auto base = bufferOf(triangle);
  const Buffers targets = {bufferOf(triangle), bufferOf(triangle)};
  for (const auto& mesh : {meshOf(base, targets), oneSubmeshOf(base, targets)}) {
    const auto references = referencesOf(*mesh);
    ASSERT_EQ(references.size(), 4U);
    EXPECT_EQ(references[1], base);
    EXPECT_EQ(references[2], targets[0]);
    EXPECT_EQ(references[3], targets[1]);
    boost::shared_ptr<Object3D> room[3];
    expectFailure<std::range_error>(
        [&] { mesh->getReferences(room, 3); },
        "Object3D::processArrayReferences: number of references exceeds max");
  }
}

TEST(MorphingMesh, ADuplicateSharesTheTargetsThatAreHeld) {
  const auto base = bufferOf(triangle);
  const Buffers targets = {bufferOf(plus(triangle, 10)), bufferOf(plus(triangle, 20))};
  const auto several = meshOf(base, targets);
  const float weights[] = {0.25F, 0.5F};
  several->setWeights(weights);
  const auto copy = boost::dynamic_pointer_cast<MorphingMesh>(several->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getVertexBuffer(), base);
  EXPECT_EQ(copy->getMorphTarget(1), targets[1]);
  float read[2];
  copy->getWeights(read);
  EXPECT_EQ(read[0], 0.25F);
  EXPECT_EQ(read[1], 0.5F);

  const auto ofOne =
      boost::dynamic_pointer_cast<MorphingMesh>(oneSubmeshOf(base, targets)->duplicate());
  EXPECT_EQ(ofOne->getMorphTargetCount(), 2) << "made by the other form";
}

// All attributes in random shapes beside a sum that goes component by component.
TEST(MorphingMesh, AgreesWithAPlainSumOverRandomData) {
  std::mt19937 engine(7);
  const auto integer = [&engine](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(engine);
  };
  for (int round = 0; round < 300; ++round) {
    const int vertices = integer(1, 90);
    const int targetCount = integer(1, 5);
    const int positionSize = integer(1, 2);
    const auto values = [&](int components, int size) {
      Ints result;
      for (int i = 0; i < vertices * components; ++i) {
        result.push_back(size == 1 ? integer(-128, 127) : integer(-32768, 32767));
      }
      return result;
    };
    struct Shape {
      Ints positions;
      Ints normals;
      Ints colors;
    };
    std::vector<Shape> shapes;
    Buffers buffers;
    for (int t = 0; t <= targetCount; ++t) {
      shapes.push_back({values(3, positionSize), values(3, 1), values(4, 1)});
      buffers.push_back(bufferOf(shapes.back().positions, positionSize));
      buffers.back()->setNormals(arrayOf(shapes.back().normals, 3, 1));
      buffers.back()->setColors(arrayOf(shapes.back().colors, 4, 1));
    }
    const auto mesh = meshOf(buffers[0], Buffers(buffers.begin() + 1, buffers.end()));
    std::vector<float> weights;
    for (int t = 0; t < targetCount; ++t) {
      weights.push_back(std::uniform_real_distribution<float>(-2, 2)(engine));
    }
    mesh->setWeights(weights.data());
    const auto blended = mesh->updateRenderBuffer();

    const auto expected = [&](Ints Shape::*attribute, auto read, auto store) {
      Ints result;
      for (std::size_t i = 0; i < (shapes[0].*attribute).size(); ++i) {
        const int start = read((shapes[0].*attribute)[i]);
        long sum = start;
        for (std::size_t t = 0; t < weights.size(); ++t) {
          const int difference = read((shapes[t + 1].*attribute)[i]) - start;
          sum += static_cast<long>(std::trunc(difference * static_cast<double>(weights[t])));
        }
        result.push_back(store(sum));
      }
      return result;
    };
    const auto same = [](int value) { return value; };
    const auto low8 = [](long sum) { return static_cast<int>(static_cast<signed char>(sum)); };
    const auto low16 = [](long sum) { return static_cast<int>(static_cast<short>(sum)); };
    const auto clamped = [](long sum) {
      const long within = sum < 0 ? 0 : sum > 255 ? 255 : sum;
      return static_cast<int>(static_cast<signed char>(within));
    };
    ASSERT_EQ(positionsOf(blended), positionSize == 1 ? expected(&Shape::positions, same, low8)
                                                      : expected(&Shape::positions, same, low16));
    ASSERT_EQ(normalsOf(blended), expected(&Shape::normals, same, low8));
    ASSERT_EQ(valuesOf(blended->getColors()),
              expected(
                  &Shape::colors, [](int value) { return value & 255; }, clamped));
  }
}

}  // namespace
}  // namespace varnel_m3g
