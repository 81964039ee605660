#include "engine/render/render_queue.h"

#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class RenderQueueTest : public ::testing::Test {
 protected:
  ~RenderQueueTest() override { queue.clear(); }

  static boost::shared_ptr<Appearance> appearanceIn(int layer, int blending = 0) {
    auto appearance = plainAppearance();
    appearance->setLayer(layer);
    if (blending != 0) {
      appearance->setCompositingMode(CompositingMode::create());
      appearance->getCompositingMode()->setBlending(blending);
    }
    return appearance;
  }

  std::vector<boost::shared_ptr<Appearance>> contents() {
    std::vector<boost::shared_ptr<Appearance>> all;
    for (int bucket = 0; bucket < RenderQueue::bucketCount; ++bucket) {
      while (const boost::shared_ptr<Appearance> appearance = queue.next(bucket)) {
        all.push_back(appearance);
      }
      queue.empty(bucket);
    }
    return all;
  }

  std::vector<boost::shared_ptr<Appearance>> collected(Node& root) {
    queue.clear();
    queue.collect(root);
    return contents();
  }

  RenderQueue& queue = RenderQueue::get();
};

}  // namespace

TEST_F(RenderQueueTest, TheBucketFollowsFromLayerAndBlending) {
  const std::tuple<int, int, int> table[] = {
      {-63, 0, 0},
      {-63, CompositingMode::REPLACE, 0},
      {-63, CompositingMode::ALPHA, 1},
      {0, 0, 126},
      {0, CompositingMode::ALPHA_ADD, 127},
      {63, 0, 252},
      {63, CompositingMode::MODULATE, 253},
      {0, 999, 127},
  };
  for (const auto& [layer, blending, bucket] : table) {
    EXPECT_EQ(RenderQueue::bucketOf(*appearanceIn(layer, blending)), bucket);
  }
  auto masked = appearanceIn(0, CompositingMode::REPLACE);
  masked->getCompositingMode()->setAlphaThreshold(0.5f);
  masked->getCompositingMode()->setDepthTestEnable(false);
  EXPECT_EQ(RenderQueue::bucketOf(*masked), 126);
}

TEST_F(RenderQueueTest, ABucketKeepsTheOrderOfInsertionAndEachAppearanceOnce) {
  auto first = appearanceIn(0);
  auto second = appearanceIn(0);
  auto third = appearanceIn(0);
  queue.clear();
  for (const auto& appearance : {first, second, first, third, second}) {
    queue.insert(appearance);
  }
  EXPECT_THAT(contents(), ElementsAre(first, second, third));
  EXPECT_THAT(contents(), IsEmpty());
}

TEST_F(RenderQueueTest, ALeftOverQueueIsEmptiedByTheNextRender) {
  auto kept = appearanceIn(0);
  auto after = appearanceIn(0);
  queue.clear();
  queue.insert(kept);
  {
    auto dies = appearanceIn(0);
    queue.insert(dies);
  }
  queue.insert(after);
  queue.clear();
  queue.insert(after);
  queue.insert(kept);
  EXPECT_THAT(contents(), ElementsAre(after, kept));
}

TEST_F(RenderQueueTest, LayersAndBlendingOrderWhateverThePlaceInTheTree) {
  auto top = appearanceIn(63);
  auto blended = appearanceIn(0, CompositingMode::ALPHA);
  auto opaque = appearanceIn(0);
  auto bottom = appearanceIn(-63);
  auto group = Group::create();
  for (const auto& appearance : {top, blended, opaque, bottom}) {
    group->addChild(quadMesh(appearance));
  }
  EXPECT_THAT(collected(*group), ElementsAre(bottom, opaque, blended, top));
}

TEST_F(RenderQueueTest, SubmeshesWithoutAnAppearanceAreSkipped) {
  auto appearance = appearanceIn(0);
  const boost::shared_ptr<IndexBuffer> strips[] = {quadStrip(), quadStrip(), quadStrip()};
  const boost::shared_ptr<Appearance> appearances[] = {nullptr, appearance, appearance};
  auto mesh = Mesh::create(unitQuad(), strips, appearances, 3);
  EXPECT_THAT(collected(*mesh), ElementsAre(appearance));
}

TEST_F(RenderQueueTest, AlphaIsAProductOverTwoLevelsOnly) {
  auto parent = Group::create();
  auto child = Group::create();
  auto grandchild = Group::create();
  parent->addChild(child);
  child->addChild(grandchild);
  parent->setAlphaFactor(0.5f);
  child->setAlphaFactor(0.5f);
  queue.collect(*parent);
  EXPECT_EQ(child->getEffectiveAlpha(), 0.25f);
  EXPECT_EQ(grandchild->getEffectiveAlpha(), 0.5f);
}

TEST_F(RenderQueueTest, AHiddenParentHidesAllBelow) {
  auto root = Group::create();
  auto hidden = Group::create();
  auto child = Group::create();
  auto grandchild = Group::create();
  root->addChild(hidden);
  hidden->addChild(child);
  child->addChild(grandchild);
  hidden->setRenderingEnable(false);
  queue.collect(*root);
  EXPECT_FALSE(hidden->isEffectiveRenderingEnabled());
  EXPECT_FALSE(child->isEffectiveRenderingEnabled());
  EXPECT_FALSE(grandchild->isEffectiveRenderingEnabled());
  hidden->setRenderingEnable(true);
  queue.collect(*root);
  EXPECT_TRUE(grandchild->isEffectiveRenderingEnabled());
}

TEST_F(RenderQueueTest, TheRootOfTheRenderIsLeftAsItIs) {
  auto mesh = quadMesh(appearanceIn(0));
  mesh->setAlphaFactor(0.5f);
  mesh->setRenderingEnable(false);
  mesh->translate(1.0f, 2.0f, 3.0f);
  queue.collect(*mesh);
  EXPECT_EQ(mesh->getEffectiveAlpha(), 1.0f);
  EXPECT_TRUE(mesh->isEffectiveRenderingEnabled());
  EXPECT_EQ(mesh->worldTransform().data()[12], 0.0f);
}

TEST_F(RenderQueueTest, WorldTransformsAreComputedFromTheParents) {
  auto root = Group::create();
  auto parent = Group::create();
  auto child = Group::create();
  root->addChild(parent);
  parent->addChild(child);
  parent->setScale(2.0f, 2.0f, 2.0f);
  child->setTranslation(1.0f, 2.0f, 3.0f);
  queue.collect(*root);
  queue.collect(*root);
  const float* world = child->worldTransform().data();
  EXPECT_EQ(world[0], 2.0f);
  EXPECT_EQ(world[12], 2.0f);
  EXPECT_EQ(world[13], 4.0f);
  EXPECT_EQ(world[14], 6.0f);
}

TEST_F(RenderQueueTest, AChainOfAHundredThousandNodes) {
  auto root = Group::create();
  boost::shared_ptr<Group> last = root;
  for (int i = 0; i < 100000; ++i) {
    auto next = Group::create();
    last->addChild(next);
    last = next;
  }
  auto appearance = appearanceIn(0);
  last->addChild(quadMesh(appearance));
  EXPECT_THAT(collected(*root), ElementsAre(appearance));
}

TEST_F(RenderQueueTest, OneBucketTakesAHundredThousandAppearances) {
  auto root = Group::create();
  std::vector<boost::shared_ptr<Appearance>> appearances;
  auto vertices = unitQuad();
  auto strip = quadStrip();
  for (int i = 0; i < 100000; ++i) {
    appearances.push_back(appearanceIn(0));
    root->addChild(Mesh::create(vertices, strip, appearances.back()));
  }
  EXPECT_EQ(collected(*root), appearances);
}
