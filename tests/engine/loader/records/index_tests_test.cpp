// Every reference of every record: below the table's size, at it and above, and to an object of
// another class. The test of some fields is the loose one, which lets an index that equals the size
// through to the vector's own assertion.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "engine/loader/loader.h"
#include "tests/support/loading.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;

enum class Zero { ALLOWED, BAD_INDEX, BAD_TARGET };

struct Reference {
  std::string name;
  bool loose;
  Zero zero;
  const char* badIndex;
  const char* badTarget;
  /// Objects before the record; the last one is a valid target, the first a fog, which is none.
  std::vector<M3gRecord> before;
  /// The record with this index in the field.
  std::function<M3gRecord(std::int64_t)> record;
};

void PrintTo(const Reference& reference, std::ostream* stream) {
  *stream << reference.name;
}

M3gRecord aligned(std::int64_t z, std::int64_t y) {
  M3gRecord record(GROUP);
  record.object3D().transformable().boolean(true).boolean(true).byte(255).int32(-1);
  return record.boolean(true).byte(1).byte(2).int32(z).int32(y).int32(0);
}

/// An appearance with one field of five set, the last one the only texture.
M3gRecord appearanceWith(int field, std::int64_t index) {
  M3gRecord record(APPEARANCE);
  record.object3D().byte(0);
  for (int i = 0; i < 4; ++i) {
    record.int32(i == field ? index : 0);
  }
  if (field < 4) {
    return record.int32(0);
  }
  return record.int32(1).int32(index);
}

M3gRecord bufferWith(int field, std::int64_t index) {
  M3gRecord record(VERTEX_BUFFER);
  record.object3D().rgba(0).int32(field == 0 ? index : 0).floats({0, 0, 0, 1});
  record.int32(field == 1 ? index : 0).int32(field == 2 ? index : 0);
  if (field < 3) {
    return record.int32(0);
  }
  return record.int32(1).int32(index).floats({0, 0, 0, 1});
}

M3gRecord backgroundWith(std::int64_t image) {
  M3gRecord record(BACKGROUND);
  record.object3D().rgba(0).int32(image).byte(32).byte(32);
  return record.int32(0).int32(0).int32(0).int32(0).boolean(true).boolean(true);
}

// The first entry stands at index 2.
std::vector<Reference> allReferences() {
  const M3gRecord fog = anyFog();
  const std::vector<M3gRecord> meshParts = {fog, anyVertexBuffer(0), anyStrips(), anyAppearance()};
  return {
      {"Object3DTrack",
       true,
       Zero::BAD_TARGET,
       "Object3D file load.. invalid AnimationTrack refernece index",
       "Object3D file load.. invalid AnimationTrack being set as attribute",
       {fog, anySequence(), anyController(), anyTrack(3, 4)},
       [](std::int64_t index) {
         return M3gRecord(FOG).object3D(0, {index}).rgb(0).byte(80).float32(1);
       }},
      {"NodeZReference",
       false,
       Zero::ALLOWED,
       "Node: file loader... invalid zTarget reference index",
       "Node:  file loader... invlalid Z reference node",
       {fog, anyGroup()},
       [](std::int64_t index) { return aligned(index, 0); }},
      {"NodeYReference",
       false,
       Zero::ALLOWED,
       "Node: file loader... invalid yTarget reference index",
       "Node: file loader... invalid Y reference node",
       {fog, anyGroup()},
       [](std::int64_t index) { return aligned(0, index); }},
      {"TrackSequence",
       true,
       Zero::BAD_TARGET,
       "AnimationTrack:   file load... invalid KeyframeSequence reference index",
       "AnimationTrack:   file load... invalid KeyframeSequence being set as attribute",
       {fog, anyController(), anySequence()},
       [](std::int64_t index) { return anyTrack(index, 3); }},
      {"TrackController",
       true,
       Zero::BAD_TARGET,
       "AnimationTrack:   file load... invalid AnimationController reference index",
       "AnimationTrack:   file load... invalid AnimationController being set as attribute",
       {fog, anySequence(), anyController()},
       [](std::int64_t index) { return anyTrack(3, index); }},
      {"AppearanceCompositingMode",
       false,
       Zero::ALLOWED,
       "Appearance:.. invalid CompositingMode reference index",
       "Appearance:.. invalid CompositingMode being set as attribute",
       {fog, anyCompositingMode()},
       [](std::int64_t index) { return appearanceWith(0, index); }},
      {"AppearanceFog",
       false,
       Zero::ALLOWED,
       "Appearance:.. invliad Fog object reference index",
       "Appearance:.. invalid Fog object being set as attribute",
       {anyMaterial(), fog},
       [](std::int64_t index) { return appearanceWith(1, index); }},
      {"AppearancePolygonMode",
       false,
       Zero::ALLOWED,
       "Appearance:.. invalid PolygonMode reference index",
       "Appearance:.. invalid PolygonMode being set as attribute",
       {fog, anyPolygonMode()},
       [](std::int64_t index) { return appearanceWith(2, index); }},
      {"AppearanceMaterial",
       false,
       Zero::ALLOWED,
       "Appearance:.. invalid Material reference index",
       "Appearance:.. invalid Material being set as attribute",
       {fog, anyMaterial()},
       [](std::int64_t index) { return appearanceWith(3, index); }},
      {"AppearanceTexture",
       false,
       Zero::ALLOWED,
       "Appearance:.. invalid Texture2D reference index",
       "Appearance:.. invalid Texture2D being set as attribute",
       {fog, anyImage(), anyTexture(3)},
       [](std::int64_t index) { return appearanceWith(4, index); }},
      {"BackgroundImage",
       false,
       Zero::ALLOWED,
       "Background:.. invalid Image2D reference index",
       "Background:.. invalid Image2D reference index",
       {fog, anyImage()},
       backgroundWith},
      {"GroupChild",
       false,
       Zero::BAD_TARGET,
       "Group: file load... invalid Node reference index",
       "Group: file load... ID for child not ID for node",
       {fog, anyGroup()},
       [](std::int64_t index) { return M3gRecord(GROUP).plainNode().int32(1).int32(index); }},
      {"MeshVertexBuffer",
       false,
       Zero::BAD_INDEX,
       "Mesh: file load... invalid VertexBuffer index reference",
       "Mesh: file load... invalid VertexBuffer being set as attribute",
       {fog, anyStrips(), anyAppearance(), anyVertexBuffer(0)},
       [](std::int64_t index) { return anyMesh(index, 3, 4); }},
      {"MeshIndexBuffer",
       false,
       Zero::BAD_INDEX,
       "Mesh: file load... invalid IndexBuffer index reference",
       "Mesh: file load... invalid IndexBuffer being set as attribute",
       {fog, anyVertexBuffer(0), anyAppearance(), anyStrips()},
       [](std::int64_t index) { return anyMesh(3, index, 4); }},
      {"MeshAppearance", false, Zero::ALLOWED,
       "Mesh: file load... invalid Appearance index reference",
       "Mesh: file load... invalid Appearance being set as attribute", meshParts,
       [](std::int64_t index) { return anyMesh(3, 4, index); }},
      {"Texture2DImage",
       true,
       Zero::BAD_INDEX,
       "Texture2D: file loader... invalid Image2D reference index",
       "Texture2D: file loader...  invalid Image2D reference",
       {fog, anyImage()},
       anyTexture},
      {"VertexBufferPositions",
       false,
       Zero::ALLOWED,
       "VertexBuffer load .. Invalid positions index",
       "VertexBuffer load .. Invalid positions target",
       {fog, anyVertexArray()},
       [](std::int64_t index) { return bufferWith(0, index); }},
      {"VertexBufferNormals",
       false,
       Zero::ALLOWED,
       "VertexBuffer load .. Invalid normals index",
       "VertexBuffer load .. Invalid normals target",
       {fog, anyVertexArray()},
       [](std::int64_t index) { return bufferWith(1, index); }},
      {"VertexBufferColors",
       false,
       Zero::ALLOWED,
       "VertexBuffer load .. Invalid colors index",
       "VertexBuffer load .. Invalid colors target",
       {fog, anyVertexArray()},
       [](std::int64_t index) { return bufferWith(2, index); }},
      {"VertexBufferTexCoords",
       false,
       Zero::ALLOWED,
       "VertexBuffer load .. Invalid textures index",
       "VertexBuffer load .. Invalid textures target",
       {fog, anyVertexArray()},
       [](std::int64_t index) { return bufferWith(3, index); }},
      {"WorldCamera",
       true,
       Zero::ALLOWED,
       "World load .. invalid camera index",
       "World load .. invalid camera target",
       {fog, anyCamera()},
       [](std::int64_t index) {
         return M3gRecord(WORLD).plainNode().int32(0).int32(index).int32(0);
       }},
      {"WorldBackground",
       true,
       Zero::ALLOWED,
       "World load .. invalid background index",
       "World load .. invalid background target",
       {fog, anyBackground()},
       [](std::int64_t index) {
         return M3gRecord(WORLD).plainNode().int32(0).int32(0).int32(index);
       }},
  };
}

class IndexTests : public testing::TestWithParam<Reference> {
 protected:
  std::string fileWith(std::int64_t index) {
    std::vector<M3gRecord> records = GetParam().before;
    records.push_back(GetParam().record(index));
    return M3gFile().stored(records).bytes();
  }

  std::string failureWith(std::int64_t index) { return loadBytes(fileWith(index)).failure; }

  std::int64_t tableSize() const { return static_cast<std::int64_t>(GetParam().before.size()) + 2; }

  static std::string runtimeError(const char* text) {
    return std::string("std::runtime_error: ") + text;
  }
};

TEST_P(IndexTests, TheLastEntryPasses) {
  EXPECT_EQ(failureWith(tableSize() - 1), "");
}

TEST_P(IndexTests, TheSizeOfTheTable) {
  if (GetParam().loose) {
    const TemporaryFolder folder;
    const std::string name = folder.write("file.m3g", fileWith(tableSize()));
    ObjectTable objects;
    EXPECT_DEATH(Loader::load(name.c_str(), objects), "__n < this->size\\(\\)");
  } else {
    EXPECT_EQ(failureWith(tableSize()), runtimeError(GetParam().badIndex));
  }
}

TEST_P(IndexTests, AboveTheSizeOfTheTable) {
  for (const std::int64_t index : {tableSize() + 1, std::int64_t(0x7FFFFFFF), std::int64_t(-1)}) {
    EXPECT_EQ(failureWith(index), runtimeError(GetParam().badIndex)) << index;
  }
}

TEST_P(IndexTests, Zero) {
  const char* expected[] = {nullptr, GetParam().badIndex, GetParam().badTarget};
  const char* text = expected[static_cast<int>(GetParam().zero)];
  EXPECT_EQ(failureWith(0), text == nullptr ? "" : runtimeError(text));
}

TEST_P(IndexTests, TheEntryOfTheHeaderIsNoObject) {
  EXPECT_EQ(failureWith(1), runtimeError(GetParam().badTarget));
}

TEST_P(IndexTests, AnObjectOfAnotherClass) {
  EXPECT_EQ(failureWith(2), runtimeError(GetParam().badTarget));
}

INSTANTIATE_TEST_SUITE_P(AllReferences, IndexTests, testing::ValuesIn(allReferences()),
                         [](const testing::TestParamInfo<Reference>& info) {
                           return info.param.name;
                         });

}  // namespace
}  // namespace varnel_m3g
