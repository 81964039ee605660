#include "engine/scene/mesh.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "engine/scene/ray_intersection.h"
#include "tests/support/exception_text.h"
#include "tests/support/render_objects.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using varnel_test::textOf;

using Appearances = std::vector<shared_ptr<Appearance>>;

TEST(MeshCreate, RefusesNoVerticesFirst) {
  EXPECT_EQ(textOf<std::invalid_argument>([] { Mesh::create({}, {}, {}); }),
            "Mesh constructor called with vertices = null");
  EXPECT_EQ(textOf<std::invalid_argument>([] { Mesh::create({}, nullptr, nullptr, 0); }),
            "Mesh constructor called with vertices = null");
}

TEST(MeshCreate, RefusesNoSubmesh) {
  EXPECT_EQ(textOf<std::invalid_argument>([] { Mesh::create(unitQuad(), {}, {}); }),
            "Mesh constructor called with submesh = null");
  EXPECT_EQ(textOf<std::invalid_argument>([] { Mesh::create(unitQuad(), nullptr, nullptr, 0); }),
            "Mesh constructor called with submesh = null");
}

TEST(MeshCreate, RefusesAnEmptyArray) {
  const shared_ptr<IndexBuffer> submesh = quadStrip();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { Mesh::create(unitQuad(), &submesh, nullptr, 0); }),
            "Mesh constructor called with empty submesh array");
}

TEST(MeshCreate, RefusesANullEntryAfterTheAppearancesAreSet) {
  const shared_ptr<IndexBuffer> submeshes[] = {quadStrip(), {}};
  const shared_ptr<Appearance> appearances[] = {plainAppearance(), plainAppearance()};
  EXPECT_EQ(
      textOf<std::invalid_argument>([&] { Mesh::create(unitQuad(), submeshes, appearances, 2); }),
      "Mesh constructor called with submesh array containing null mesh entry");
  // The mesh that came to nothing is no user.
  EXPECT_TRUE(appearances[0]->getMeshes().empty());
}

TEST(MeshCreate, KeepsWhatItIsGiven) {
  const shared_ptr<VertexBuffer> vertices = unitQuad();
  const shared_ptr<IndexBuffer> submeshes[] = {quadStrip(), quadStrip()};
  const shared_ptr<Appearance> appearances[] = {plainAppearance(), {}};
  const shared_ptr<Mesh> mesh = Mesh::create(vertices, submeshes, appearances, 2);
  EXPECT_EQ(mesh->getVertexBuffer(), vertices);
  EXPECT_EQ(mesh->getSubmeshCount(), 2U);
  EXPECT_EQ(mesh->getIndexBuffer(0), submeshes[0]);
  EXPECT_EQ(mesh->getIndexBuffer(1), submeshes[1]);
  EXPECT_EQ(mesh->getAppearance(0), appearances[0]);
  EXPECT_FALSE(mesh->getAppearance(1));
}

TEST(MeshCreate, TakesNoAppearancesAtAll) {
  const shared_ptr<IndexBuffer> submesh = quadStrip();
  const shared_ptr<Mesh> mesh = Mesh::create(unitQuad(), &submesh, nullptr, 1);
  EXPECT_FALSE(mesh->getAppearance(0));
}

TEST(MeshIndex, TheCountPassesAndNamesASparePlace) {
  const shared_ptr<Mesh> mesh = quadMesh(plainAppearance());
  EXPECT_FALSE(mesh->getAppearance(1));
  EXPECT_FALSE(mesh->getIndexBuffer(1));
  const shared_ptr<Appearance> spare = plainAppearance();
  mesh->setAppearance(1, spare);
  EXPECT_EQ(mesh->getSubmeshCount(), 1U);
  EXPECT_EQ(mesh->getReferences(nullptr, 0), 3U);
  RayIntersection result;
  EXPECT_NO_THROW(mesh->pick(-1, 0.2f, 0.3f, 5, 0.2f, 0.3f, 4, &result));
  EXPECT_EQ(result.getSubmeshIndex(), 0);
}

TEST(MeshIndex, OthersAreOutOfBounds) {
  const shared_ptr<Mesh> mesh = quadMesh({});
  for (int index : {-1, 2}) {
    EXPECT_EQ(textOf<std::out_of_range>([&] { mesh->getAppearance(index); }),
              "Mesh.getAppearance() the index is out of bounds");
    EXPECT_EQ(textOf<std::out_of_range>([&] { mesh->getIndexBuffer(index); }),
              "Mesh.getIndexBuffer() the index is out of bounds");
    EXPECT_EQ(textOf<std::out_of_range>([&] { mesh->setAppearance(index, {}); }),
              "Mesh.setAppearance() the index is out of bounds");
  }
}

TEST(MeshSetAppearance, CountsTheUses) {
  const shared_ptr<IndexBuffer> submeshes[] = {quadStrip(), quadStrip()};
  const shared_ptr<Appearance> shared = plainAppearance();
  const shared_ptr<Appearance> appearances[] = {shared, shared};
  const shared_ptr<Mesh> mesh = Mesh::create(unitQuad(), submeshes, appearances, 2);
  EXPECT_THAT(shared->getMeshes(), ElementsAre(mesh));
  mesh->setAppearance(0, {});
  EXPECT_THAT(shared->getMeshes(), ElementsAre(mesh));
  mesh->setAppearance(1, plainAppearance());
  EXPECT_TRUE(shared->getMeshes().empty());
}

TEST(MeshSetAppearance, TheSameOneAgainStaysRegisteredOnce) {
  const shared_ptr<Appearance> appearance = plainAppearance();
  const shared_ptr<Mesh> mesh = quadMesh(appearance);
  mesh->setAppearance(0, appearance);
  EXPECT_THAT(appearance->getMeshes(), ElementsAre(mesh));
  mesh->setAppearance(0, {});
  EXPECT_TRUE(appearance->getMeshes().empty());
}

TEST(MeshGetReferences, ListsAppearancesSubmeshesAndVertices) {
  const shared_ptr<VertexBuffer> vertices = unitQuad();
  const shared_ptr<IndexBuffer> submeshes[] = {quadStrip(), quadStrip()};
  const shared_ptr<Appearance> shared = plainAppearance();
  const shared_ptr<Appearance> appearances[] = {shared, shared};
  const shared_ptr<Mesh> mesh = Mesh::create(vertices, submeshes, appearances, 2);
  ASSERT_EQ(mesh->getReferences(nullptr, 0), 5U);
  shared_ptr<Object3D> references[5];
  EXPECT_EQ(mesh->getReferences(references, 5), 5U);
  EXPECT_THAT(references, ElementsAre(shared, shared, submeshes[0], submeshes[1], vertices));
}

TEST(MeshGetReferences, TheRoomEndsWithTheTextOfItsPlace) {
  const shared_ptr<Mesh> mesh = quadMesh(plainAppearance());
  shared_ptr<Object3D> references[3];
  const std::string walk = "Object3D::processArrayReferences: number of references exceeds max";
  EXPECT_EQ(textOf<std::range_error>([&] { mesh->getReferences(references, 0); }), walk);
  EXPECT_EQ(textOf<std::range_error>([&] { mesh->getReferences(references, 1); }), walk);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { mesh->getReferences(references, 2); }),
            "Mesh::getReferences: max reference count exceeded.");
}

TEST(MeshDuplicate, SharesVerticesSubmeshesAndAppearances) {
  const shared_ptr<Appearance> appearance = plainAppearance();
  const shared_ptr<Mesh> mesh = quadMesh(appearance);
  mesh->setScope(3);
  const shared_ptr<Mesh> copy = boost::dynamic_pointer_cast<Mesh>(mesh->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getVertexBuffer(), mesh->getVertexBuffer());
  EXPECT_EQ(copy->getIndexBuffer(0), mesh->getIndexBuffer(0));
  EXPECT_EQ(copy->getAppearance(0), appearance);
  EXPECT_EQ(copy->getScope(), 3);
  EXPECT_THAT(appearance->getMeshes(), ElementsAre(mesh, copy));
}

TEST(MeshRenderBuffer, IsTheVertexBufferAfterTheFirstStep) {
  const shared_ptr<Mesh> mesh = quadMesh({});
  EXPECT_EQ(mesh->updateRenderBuffer(), mesh->getVertexBuffer());
  EXPECT_EQ(mesh->getRenderBuffer(), mesh->getVertexBuffer());
}

TEST(MeshLife, AnAppearanceForgetsADeadMesh) {
  const shared_ptr<Appearance> appearance = plainAppearance();
  quadMesh(appearance);
  EXPECT_TRUE(appearance->getMeshes().empty());
}

}  // namespace
}  // namespace varnel_m3g
