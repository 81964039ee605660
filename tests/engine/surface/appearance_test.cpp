#include "engine/surface/appearance.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/scene/group.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;
using varnel_test::referencesOf;
using varnel_test::TextureUnits;

using Nodes = std::vector<boost::shared_ptr<Node>>;

boost::shared_ptr<Texture2D> newTexture() {
  return Texture2D::create(Image2D::create(Image2D::RGB, 1, 1));
}

TEST(Appearance, StartsEmptyInLayerZeroWithTheEnginesUnits) {
  for (const int units : {1, 2, 8}) {
    const TextureUnits limit(units);
    const auto appearance = Appearance::create();
    EXPECT_FALSE(appearance->getMaterial());
    EXPECT_FALSE(appearance->getPolygonMode());
    EXPECT_FALSE(appearance->getCompositingMode());
    EXPECT_FALSE(appearance->getFog());
    EXPECT_EQ(appearance->getLayer(), 0);
    EXPECT_EQ(appearance->getTextureUnitCount(), units);
    for (int i = 0; i <= units; ++i) {
      EXPECT_FALSE(appearance->getTexture(i));
    }
    EXPECT_TRUE(appearance->getMeshes().empty());
    EXPECT_TRUE(appearance->getRenderNext().expired());
    EXPECT_EQ(appearance->getQueuedInRender(), 0u);
    EXPECT_TRUE(referencesOf(*appearance).empty());
  }
}

TEST(Appearance, SharesItsAttributesAndTakesNull) {
  const auto appearance = Appearance::create();
  const auto material = Material::create();
  const auto polygonMode = PolygonMode::create();
  const auto compositingMode = CompositingMode::create();
  const auto fog = Fog::create();
  appearance->setMaterial(material);
  appearance->setPolygonMode(polygonMode);
  appearance->setCompositingMode(compositingMode);
  appearance->setFog(fog);
  EXPECT_EQ(appearance->getMaterial(), material);
  EXPECT_EQ(appearance->getPolygonMode(), polygonMode);
  EXPECT_EQ(appearance->getCompositingMode(), compositingMode);
  EXPECT_EQ(appearance->getFog(), fog);
  for (int i = 0; i < 2; ++i) {
    appearance->setMaterial(boost::shared_ptr<Material>());
    appearance->setPolygonMode(boost::shared_ptr<PolygonMode>());
    appearance->setCompositingMode(boost::shared_ptr<CompositingMode>());
    appearance->setFog(boost::shared_ptr<Fog>());
    EXPECT_FALSE(appearance->getMaterial());
    EXPECT_FALSE(appearance->getPolygonMode());
    EXPECT_FALSE(appearance->getCompositingMode());
    EXPECT_FALSE(appearance->getFog());
  }
}

TEST(Appearance, TakesLayersFromMinus63To63) {
  const auto appearance = Appearance::create();
  for (const int layer : {-63, 63, 0, 1}) {
    appearance->setLayer(layer);
    EXPECT_EQ(appearance->getLayer(), layer);
  }
  for (const int layer :
       {-64, 64, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    expectFailure<std::out_of_range>([&] { appearance->setLayer(layer); }, "Invalid layer value");
    EXPECT_EQ(appearance->getLayer(), 1);
  }
}

TEST(Appearance, HoldsATexturePerUnit) {
  const TextureUnits limit(2);
  const auto appearance = Appearance::create();
  const auto texture = newTexture();
  appearance->setTexture(1, texture);
  EXPECT_FALSE(appearance->getTexture(0));
  EXPECT_EQ(appearance->getTexture(1), texture);
  EXPECT_EQ(appearance->textureAt(1), texture);
  appearance->setTexture(1, boost::shared_ptr<Texture2D>());
  EXPECT_FALSE(appearance->getTexture(1));
}

TEST(Appearance, RefusesTextureIndicesAboveTheUnitCount) {
  const TextureUnits limit(2);
  const auto appearance = Appearance::create();
  const auto texture = newTexture();
  appearance->setTexture(0, texture);
  expectFailure<std::out_of_range>([&] { appearance->setTexture(3, newTexture()); },
                                   "Index out texture units boundary: 3 2");
  expectFailure<std::out_of_range>([&] { appearance->getTexture(std::numeric_limits<int>::max()); },
                                   "Index out texture units boundary: 2147483647 2");
  EXPECT_EQ(appearance->getTexture(0), texture);
  EXPECT_FALSE(appearance->getTexture(1));
}

TEST(Appearance, TextureIndicesThatPassTheTestButHaveNoPlaceAreHarmless) {
  const TextureUnits limit(2);
  const auto appearance = Appearance::create();
  for (const int index : {2, -1, std::numeric_limits<int>::min()}) {
    appearance->setTexture(index, newTexture());
    EXPECT_FALSE(appearance->getTexture(index));
    EXPECT_FALSE(appearance->textureAt(index));
  }
  EXPECT_TRUE(referencesOf(*appearance).empty());
}

TEST(Appearance, StaysInItsOwnTableWhenTheEngineHasMoreUnits) {
  const auto appearance = [] {
    const TextureUnits limit(1);
    return Appearance::create();
  }();
  const TextureUnits limit(8);
  const auto texture = newTexture();
  appearance->setTexture(0, texture);
  appearance->setTexture(1, newTexture());
  for (int i = 1; i < 8; ++i) {
    EXPECT_FALSE(appearance->textureAt(i));
  }
  expectFailure<std::out_of_range>([&] { appearance->setTexture(2, newTexture()); },
                                   "Index out texture units boundary: 2 1");
  const auto copy = duplicateOf(*appearance);
  EXPECT_EQ(copy->getTexture(0), texture);
  EXPECT_EQ(copy->getTextureUnitCount(), 8);
}

TEST(Appearance, ADuplicateMadeWithFewerUnitsTakesWhatFits) {
  const auto texture = newTexture();
  const auto appearance = [&] {
    const TextureUnits limit(4);
    const auto made = Appearance::create();
    made->setTexture(1, texture);
    made->setTexture(3, newTexture());
    return made;
  }();
  const TextureUnits limit(2);
  const auto copy = duplicateOf(*appearance);
  EXPECT_EQ(copy->getTextureUnitCount(), 2);
  EXPECT_EQ(copy->getTexture(1), texture);
}

TEST(Appearance, ResetEmptiesLayerAndTextures) {
  const auto appearance = Appearance::create();
  appearance->setLayer(5);
  appearance->setTexture(0, newTexture());
  appearance->setUserID(3);
  const TextureUnits limit(3);
  appearance->reset();
  EXPECT_EQ(appearance->getLayer(), 0);
  EXPECT_EQ(appearance->getUserID(), 0);
  EXPECT_EQ(appearance->getTextureUnitCount(), 3);
  EXPECT_FALSE(appearance->getTexture(0));
}

TEST(Appearance, RefersToMaterialPolygonModeCompositingModeFogAndTextures) {
  const TextureUnits limit(3);
  const auto appearance = Appearance::create();
  const auto texture0 = newTexture();
  const auto texture2 = newTexture();
  appearance->setTexture(2, texture2);
  appearance->setTexture(0, texture0);
  appearance->setFog(Fog::create());
  appearance->setCompositingMode(CompositingMode::create());
  appearance->setPolygonMode(PolygonMode::create());
  appearance->setMaterial(Material::create());
  const std::vector<boost::shared_ptr<Object3D>> expected = {appearance->getMaterial(),
                                                             appearance->getPolygonMode(),
                                                             appearance->getCompositingMode(),
                                                             appearance->getFog(),
                                                             texture0,
                                                             texture2};
  EXPECT_EQ(referencesOf(*appearance), expected);
  boost::shared_ptr<Object3D> references[6];
  for (unsigned room = 0; room < 6; ++room) {
    expectFailure<std::invalid_argument>([&] { appearance->getReferences(references, room); },
                                         "Appearance::getReferences: reference count exceeded.");
  }
  appearance->setPolygonMode(boost::shared_ptr<PolygonMode>());
  EXPECT_EQ(appearance->getReferences(nullptr, 0), 5u);
}

TEST(Appearance, DumpsWhatIsSet) {
  const TextureUnits limit(2);
  const auto appearance = Appearance::create();
  EXPECT_EQ(outputOf([&] { appearance->dump(); }), baseDump() +
                                                       "Appearance Object\n"
                                                       "=================\n"
                                                       "Layer: 0\n");
  appearance->setLayer(12);
  appearance->setCompositingMode(CompositingMode::create());
  appearance->getCompositingMode()->setUserID(1);
  appearance->setFog(Fog::create());
  appearance->getFog()->setUserID(2);
  appearance->setPolygonMode(PolygonMode::create());
  appearance->getPolygonMode()->setUserID(3);
  appearance->setMaterial(Material::create());
  appearance->getMaterial()->setUserID(4);
  appearance->setTexture(1, newTexture());
  appearance->getTexture(1)->setUserID(5);
  EXPECT_EQ(outputOf([&] { appearance->dump(); }), baseDump() +
                                                       "Appearance Object\n"
                                                       "=================\n"
                                                       "Layer: 12\n"
                                                       "CompositingMode ID: 1\n"
                                                       "Fog ID:             2\n"
                                                       "PolygonMode ID:     3\n"
                                                       "Material ID:        4\n"
                                                       "Texture[1] ID: 5\n");
}

TEST(Appearance, DuplicateSharesTheAttributesAndHasNoUsers) {
  const TextureUnits limit(2);
  const auto appearance = Appearance::create();
  const auto node = Group::create();
  appearance->setUserID(10);
  appearance->setLayer(-7);
  appearance->setCompositingMode(CompositingMode::create());
  appearance->setFog(Fog::create());
  appearance->setPolygonMode(PolygonMode::create());
  appearance->setMaterial(Material::create());
  appearance->setTexture(0, newTexture());
  appearance->setTexture(1, newTexture());
  appearance->addMeshReference(node);
  appearance->setRenderNext(appearance);
  appearance->setQueuedInRender(5);
  const auto copy = duplicateOf(*appearance);
  EXPECT_EQ(copy->getUserID(), 10);
  EXPECT_EQ(copy->getLayer(), -7);
  EXPECT_EQ(referencesOf(*copy), referencesOf(*appearance));
  EXPECT_TRUE(copy->getMeshes().empty());
  EXPECT_TRUE(copy->getRenderNext().expired());
  EXPECT_EQ(copy->getQueuedInRender(), 0u);
  copy->setTexture(0, boost::shared_ptr<Texture2D>());
  copy->setFog(boost::shared_ptr<Fog>());
  copy->setLayer(1);
  EXPECT_TRUE(appearance->getTexture(0));
  EXPECT_TRUE(appearance->getFog());
  EXPECT_EQ(appearance->getLayer(), -7);
}

TEST(Appearance, AMeshRegisteredTwiceNeedsTwoRemovals) {
  const auto appearance = Appearance::create();
  const boost::shared_ptr<Node> node = Group::create();
  appearance->addMeshReference(node);
  appearance->addMeshReference(node);
  EXPECT_EQ(appearance->getMeshes(), Nodes{node});
  appearance->removeMeshReference(node);
  EXPECT_EQ(appearance->getMeshes(), Nodes{node});
  appearance->removeMeshReference(node);
  EXPECT_TRUE(appearance->getMeshes().empty());
  appearance->removeMeshReference(node);
  EXPECT_TRUE(appearance->getMeshes().empty());
}

TEST(Appearance, ListsItsMeshesInTheOrderOfRegistration) {
  const auto appearance = Appearance::create();
  Nodes nodes;
  for (int i = 0; i < 200; ++i) {
    nodes.push_back(Group::create());
  }
  // The addresses must not decide.
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    std::swap(nodes[i], nodes[(i * 37) % nodes.size()]);
  }
  for (const auto& node : nodes) {
    appearance->addMeshReference(node);
  }
  appearance->addMeshReference(nodes[3]);
  EXPECT_EQ(appearance->getMeshes(), nodes);
  appearance->removeMeshReference(nodes[5]);
  appearance->addMeshReference(nodes[5]);
  Nodes expected = nodes;
  expected.erase(expected.begin() + 5);
  expected.push_back(nodes[5]);
  Nodes out = {nodes[0]};
  appearance->getMeshes(out);
  EXPECT_EQ(out, expected);
}

TEST(Appearance, DropsUsersThatHaveDied) {
  const auto appearance = Appearance::create();
  const boost::shared_ptr<Node> first = Group::create();
  boost::shared_ptr<Node> second = Group::create();
  const boost::shared_ptr<Node> third = Group::create();
  appearance->addMeshReference(first);
  appearance->addMeshReference(second);
  appearance->addMeshReference(third);
  second.reset();
  EXPECT_EQ(appearance->getMeshes(), (Nodes{first, third}));
  EXPECT_EQ(appearance->getMeshes(), (Nodes{first, third}));
  appearance->removeMeshReference(first);
  EXPECT_EQ(appearance->getMeshes(), Nodes{third});
}

TEST(Appearance, ManyUsersThatComeAndGoLeaveTheLivingInOrder) {
  const auto appearance = Appearance::create();
  Nodes living;
  for (int i = 0; i < 100000; ++i) {
    const boost::shared_ptr<Node> node = Group::create();
    appearance->addMeshReference(node);
    if (i % 100 == 0) {
      living.push_back(node);
    }
  }
  EXPECT_EQ(appearance->getMeshes(), living);
}

TEST(Appearance, DoesNotOwnItsUsers) {
  const auto appearance = Appearance::create();
  boost::shared_ptr<Node> node = Group::create();
  const long uses = node.use_count();
  appearance->addMeshReference(node);
  EXPECT_EQ(node.use_count(), uses);
}

TEST(Appearance, CarriesTheRenderersLinkAndMark) {
  const auto appearance = Appearance::create();
  auto next = Appearance::create();
  appearance->setRenderNext(next);
  EXPECT_EQ(appearance->getRenderNext().lock(), next);
  next.reset();
  EXPECT_TRUE(appearance->getRenderNext().expired());
  appearance->setQueuedInRender(12);
  EXPECT_EQ(appearance->getQueuedInRender(), 12u);
}

}  // namespace
}  // namespace varnel_m3g
