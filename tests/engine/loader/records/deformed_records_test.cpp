#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/loader/m3g_object_input_stream.h"
#include "engine/scene/group.h"
#include "engine/scene/morphing_mesh.h"
#include "engine/scene/skinned_mesh.h"
#include "engine/scene/sprite3d.h"
#include "engine/surface/appearance.h"
#include "engine/surface/image2d.h"
#include "tests/support/loading.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;

struct Failure {
  const char* name;
  std::vector<M3gRecord> records;
  const char* text;
};

// Objects 2 to 5: an array of three vertices, a buffer of it, a strip, a second buffer.
std::vector<M3gRecord> parts() {
  return {anyVertexArray(), anyVertexBuffer(2), anyStrips(), anyVertexBuffer(2)};
}

std::vector<M3gRecord> with(std::vector<M3gRecord> records, const std::vector<M3gRecord>& more) {
  records.insert(records.end(), more.begin(), more.end());
  return records;
}

M3gRecord meshSection(int type) {
  M3gRecord record(type);
  record.plainNode().int32(3).int32(1).int32(4).int32(0);
  return record;
}

M3gRecord morphing(const std::vector<std::int64_t>& targets) {
  M3gRecord record = meshSection(MORPHING_MESH);
  record.int32(static_cast<std::int64_t>(targets.size()));
  for (const std::int64_t target : targets) {
    record.int32(target).float32(0.5F);
  }
  return record;
}

TEST(MorphingMeshRecord, HoldsTargetsThatDoNotCount) {
  const Loaded loaded = loadRecords(with(parts(), {morphing({5, 3})}));
  ASSERT_EQ(loaded.failure, "");
  const auto mesh = loaded.at<MorphingMesh>(6);
  ASSERT_TRUE(mesh);
  EXPECT_EQ(mesh->getMorphTargetCount(), 0);
  boost::shared_ptr<Object3D> references[8];
  ASSERT_EQ(mesh->getReferences(references, 8), 4U);
  EXPECT_EQ(references[2], loaded.at<VertexBuffer>(5));
  EXPECT_EQ(references[3], loaded.at<VertexBuffer>(3));
  const auto base = loaded.at<VertexBuffer>(3);
  EXPECT_EQ(mesh->updateRenderBuffer()->getPositions(nullptr), base->getPositions(nullptr));
  // The weights of the file come to light in a duplicate, which counts.
  const auto copy = boost::dynamic_pointer_cast<MorphingMesh>(mesh->duplicate());
  ASSERT_EQ(copy->getMorphTargetCount(), 2);
  EXPECT_EQ(copy->getMorphTarget(0), loaded.at<VertexBuffer>(5));
}

TEST(MorphingMeshRecord, NamesWhatIsWrong) {
  const char* badIndex =
      "std::runtime_error: MorphingMesh  file load... invalid MorphTarget index reference";
  const char* badTarget = "std::runtime_error: MorphingMesh.load -- null morph target";
  const Failure failures[] = {
      {"no targets", with(parts(), {morphing({})}),
       "std::runtime_error: MorphingMesh.load -- no morph targets"},
      {"target 0", with(parts(), {morphing({3, 0})}), badIndex},
      {"target beyond the table", with(parts(), {morphing({3, 7})}), badIndex},
      {"negative target", with(parts(), {morphing({-1})}), badIndex},
      {"target that is a strip", with(parts(), {morphing({4})}), badTarget},
      {"the file's header as target", with(parts(), {morphing({1})}), badTarget},
      {"a bad mesh",
       {anyStrips(), morphing({2})},
       "std::runtime_error: Mesh: file load... invalid VertexBuffer index reference"},
  };
  for (const Failure& failure : failures) {
    EXPECT_EQ(loadRecords(failure.records).failure, failure.text) << failure.name;
  }
}

// Objects 6 and 7: a bone and the skeleton above it.
std::vector<M3gRecord> bones() {
  M3gRecord skeleton(GROUP);
  skeleton.plainNode().intArray({6});
  return with(parts(), {anyGroup(), skeleton});
}

M3gRecord skinned(std::int64_t skeleton, const std::vector<std::vector<std::int64_t>>& references,
                  std::int64_t claimed = -1) {
  M3gRecord record = meshSection(SKINNED_MESH);
  record.int32(skeleton).int32(claimed < 0 ? static_cast<std::int64_t>(references.size())
                                           : claimed);
  for (const auto& reference : references) {
    for (const std::int64_t field : reference) {
      record.int32(field);
    }
  }
  return record;
}

TEST(SkinnedMeshRecord, BindsRunsToTheBonesOfItsSkeleton) {
  const Loaded loaded = loadRecords(with(bones(), {skinned(7, {{6, 0, 2, 1}, {7, 1, 1, 3}})}));
  ASSERT_EQ(loaded.failure, "");
  const auto mesh = loaded.at<SkinnedMesh>(8);
  ASSERT_TRUE(mesh);
  EXPECT_EQ(mesh->getSkeleton(), loaded.at<Group>(7));
  EXPECT_EQ(loaded.at<Group>(7)->getParent(), mesh);
  float weights[2];
  EXPECT_EQ(mesh->getBoneVertices(loaded.at<Node>(6), nullptr, weights, 2), 2);
  EXPECT_EQ(weights[0], 1.0F);
  EXPECT_EQ(weights[1], 0.25F);
  EXPECT_EQ(loaded.err,
            "weight sum and norm\n"
            "0 sum:1 norm:    1.00\n"
            "1 sum:4 norm:    0.25\n"
            "2 sum:0 norm:    0.00\n"
            "\n");
  EXPECT_NE(mesh->updateRenderBuffer()->getPositions(nullptr),
            loaded.at<VertexBuffer>(3)->getPositions(nullptr));
}

TEST(SkinnedMeshRecord, NamesWhatIsWrong) {
  const char* badSkeleton =
      "std::runtime_error: SkinnedMesh: file load... invalid Skeleton reference index";
  const char* badNode =
      "std::runtime_error: SkinnedMesh: file load... invalid Transform node reference index";
  M3gRecord owner(GROUP);
  owner.plainNode().intArray({7});
  const Failure failures[] = {
      {"skeleton 0", with(bones(), {skinned(0, {})}), badSkeleton},
      {"skeleton at the table's size", with(bones(), {skinned(8, {})}), badSkeleton},
      {"skeleton that is a buffer", with(bones(), {skinned(3, {})}),
       "std::runtime_error: SkinnedMesh: file load...  invalid Skeleton target"},
      {"skeleton that is a mesh", with(bones(), {anyMesh(3, 4, 0), skinned(8, {})}),
       "std::runtime_error: SkinnedMesh: file load...  invalid Skeleton target"},
      {"skeleton with a parent", with(bones(), {owner, skinned(7, {})}),
       "std::invalid_argument: Attempt to add a skeleton that already has a parent"},
      {"node 0", with(bones(), {skinned(7, {{0, 0, 1, 1}})}), badNode},
      {"node at the table's size", with(bones(), {skinned(7, {{8, 0, 1, 1}})}), badNode},
      {"node that is a buffer", with(bones(), {skinned(7, {{3, 0, 1, 1}})}),
       "std::runtime_error: SkinnedMesh: file load ... invalid bone target"},
      {"node outside the skeleton", with(bones(), {anyGroup(), skinned(7, {{8, 0, 1, 1}})}),
       "std::invalid_argument: Given bone is not skeleton or its descendant"},
      {"no weight", with(bones(), {skinned(7, {{6, 0, 1, 0}})}),
       "std::invalid_argument: weight <= 0"},
      {"no vertices", with(bones(), {skinned(7, {{6, 0, 0, 1}})}),
       "std::invalid_argument: numVertices <= 0"},
      {"a vertex before the first", with(bones(), {skinned(7, {{6, -1, 1, 1}})}),
       "std::out_of_range: firstVertex < 0"},
      {"vertices beyond the last", with(bones(), {skinned(7, {{6, 65534, 2, 1}})}),
       "std::out_of_range: firstVertex+numVertices > 65535"},
      {"more references than the file holds", with(bones(), {skinned(7, {}, 0x7FFFFFFF)}), badNode},
  };
  for (const Failure& failure : failures) {
    EXPECT_EQ(loadRecords(failure.records).failure, failure.text) << failure.name;
  }
}

TEST(DeformedMeshRecords, AreReadSafelyAtEveryLength) {
  for (const std::vector<M3gRecord>& records :
       {with(parts(), {morphing({5, 3})}),
        with(bones(), {skinned(7, {{6, 0, 2, 1}, {7, 1, 1, 3}})})}) {
    const std::string whole = M3gFile().stored(records).bytes();
    const std::size_t head = M3gFile().bytes().size();
    for (std::size_t length = head; length < whole.size(); ++length) {
      loadBytes(whole.substr(0, length));
    }
  }
}

// No file reaches this record, so it is read by itself. The table is that of a file with an image
// and an appearance.
class SpriteRecord : public testing::Test {
 protected:
  std::string failureOf(const M3gRecord& record) {
    const TemporaryFolder folder;
    M3gObjectInputStream stream;
    stream.open(folder.write("sprite", record.data()), std::ios::binary);
    sprite.reset(new Sprite3D);
    try {
      sprite->load(stream, table);
    } catch (const std::exception& e) {
      return e.what();
    }
    return "";
  }

  static M3gRecord record(std::int64_t imageIndex, std::int64_t appearanceIndex, int width = 0) {
    M3gRecord result(SPRITE_3D);
    result.plainNode().int32(imageIndex).int32(appearanceIndex).boolean(true);
    return result.int32(5).int32(6).int32(width).int32(0);
  }

  boost::shared_ptr<Image2D> image = Image2D::create(Image2D::RGB, 2, 2);
  boost::shared_ptr<Appearance> appearance = Appearance::create();
  ObjectTable table = {boost::shared_ptr<Object3D>(), boost::shared_ptr<Object3D>(), image,
                       appearance};
  boost::shared_ptr<Sprite3D> sprite;
};

TEST_F(SpriteRecord, FillsASprite) {
  ASSERT_EQ(failureOf(record(2, 3)), "");
  EXPECT_EQ(sprite->getImage(), image);
  EXPECT_EQ(sprite->getAppearance(), appearance);
  EXPECT_TRUE(sprite->isScaled());
  EXPECT_EQ(sprite->getCropX(), 5);
  EXPECT_EQ(sprite->getCropY(), 6);
  ASSERT_EQ(failureOf(record(2, 0)), "");
  EXPECT_FALSE(sprite->getAppearance());
}

TEST_F(SpriteRecord, NamesWhatIsWrong) {
  EXPECT_EQ(failureOf(record(0, 3)), "Sprite3D: file loader... invalid Image2D reference index");
  EXPECT_EQ(failureOf(record(4, 3)), "Sprite3D: file loader... invalid Image2D reference index");
  EXPECT_EQ(failureOf(record(3, 3)), "Sprite3D: file loader... invalid Image2D reference");
  EXPECT_EQ(failureOf(record(2, 4)), "Sprite3D: file loader... invalid Apperance reference index");
  EXPECT_EQ(failureOf(record(2, 2)), "Sprite3D: file loader... invalid Appearance reference");
  EXPECT_EQ(failureOf(record(2, 3, 1)),
            "m3g.Sprite3D.setCrop .. width and/or height exceed limits");
}

}  // namespace
}  // namespace varnel_m3g
