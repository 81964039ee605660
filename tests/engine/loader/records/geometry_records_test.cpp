#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/object/engine_limits.h"
#include "tests/support/loading.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;
using testing::ElementsAre;
using testing::ElementsAreArray;

M3gRecord arrayHead(int componentSize, int componentCount, int encoding, int vertexCount) {
  M3gRecord record(VERTEX_ARRAY);
  record.object3D().byte(componentSize).byte(componentCount).byte(encoding);
  return record.int16(vertexCount);
}

std::vector<int> bytesOf(const Loaded& loaded) {
  const auto array = loaded.at<VertexArray>(2);
  std::vector<signed char> values(
      static_cast<std::size_t>(array->getVertexCount() * array->getComponentCount()));
  array->get(0, array->getVertexCount(), values.data());
  return std::vector<int>(values.begin(), values.end());
}

std::vector<int> shortsOf(const Loaded& loaded) {
  const auto array = loaded.at<VertexArray>(2);
  std::vector<short> values(
      static_cast<std::size_t>(array->getVertexCount() * array->getComponentCount()));
  array->get(0, array->getVertexCount(), values.data());
  return std::vector<int>(values.begin(), values.end());
}

std::vector<int> trianglesOf(const boost::shared_ptr<TriangleStripArray>& strips) {
  std::vector<int> indices(static_cast<std::size_t>(strips->getIndexCount()));
  strips->getIndices(indices.data());
  return indices;
}

TEST(VertexArrayRecord, OfBytesIsReadInFull) {
  const Loaded loaded = loadRecords({arrayHead(1, 2, 0, 3).raw("\x01\xFF\x7F\x80\x05\x06")});
  ASSERT_EQ(loaded.failure, "");
  const auto array = loaded.at<VertexArray>(2);
  EXPECT_EQ(array->getComponentType(), 1);
  EXPECT_EQ(array->getComponentCount(), 2);
  EXPECT_EQ(array->getVertexCount(), 3);
  EXPECT_TRUE(array->isDirty());
  EXPECT_FALSE(array->isWidened());
  EXPECT_THAT(bytesOf(loaded), ElementsAre(1, -1, 127, -128, 5, 6));
}

TEST(VertexArrayRecord, OfShortsIsReadInFull) {
  const Loaded loaded =
      loadRecords({arrayHead(2, 4, 0, 1).int16(1).int16(-1).int16(0x7FFF).int16(0x8000), anyFog()});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.at<VertexArray>(2)->getComponentType(), 2);
  EXPECT_THAT(shortsOf(loaded), ElementsAre(1, -1, 32767, -32768));
}

TEST(VertexArrayRecord, SumsUpByteDifferences) {
  const Loaded loaded = loadRecords(
      {arrayHead(1, 3, 1, 3).raw(std::string("\x0A\x14\x1E\xFF\xFF\xFF\x7F\x00\x01", 9))});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_THAT(bytesOf(loaded), ElementsAre(10, 20, 30, 9, 19, 29, -120, 19, 30));
}

TEST(VertexArrayRecord, SumsUpShortDifferences) {
  M3gRecord record = arrayHead(2, 2, 1, 3);
  for (const int value : {10, 32767, -1, 1, 0, 2}) {
    record.int16(value);
  }
  const Loaded loaded = loadRecords({record});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_THAT(shortsOf(loaded), ElementsAre(10, 32767, 9, -32768, 9, -32766));
}

TEST(VertexArrayRecord, MayHaveTheLargestCount) {
  const Loaded loaded = loadRecords({arrayHead(1, 4, 0, 65535).raw(std::string(4 * 65535, 'v'))});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.at<VertexArray>(2)->getVertexCount(), 65535);
}

TEST(VertexArrayRecord, FailuresHaveTheirTexts) {
  const struct {
    M3gRecord record;
    const char* failure;
  } cases[] = {{arrayHead(0, 3, 0, 1), "std::runtime_error: invalid componentSize argument"},
               {arrayHead(3, 3, 0, 1), "std::runtime_error: invalid componentSize argument"},
               {arrayHead(1, 1, 0, 1), "std::runtime_error: invalid numComponents argument"},
               {arrayHead(1, 5, 0, 1), "std::runtime_error: invalid numComponents argument"},
               {arrayHead(1, 3, 0, 0), "std::runtime_error: invalid numVertices argument"},
               {arrayHead(1, 3, 2, 1).raw("abc"),
                "std::runtime_error: m3g.VertexArray.load() Illegal encoding encountered"},
               {arrayHead(2, 3, 255, 1).raw("abcdef"),
                "std::runtime_error: m3g.VertexArray.load() Illegal encoding encountered"}};
  for (const auto& each : cases) {
    EXPECT_EQ(loadRecords({each.record}).failure, each.failure);
  }
}

TEST(VertexArrayRecord, OfBytesMustBeComplete) {
  M3gSection section;
  section.objects = arrayHead(1, 3, 0, 2).raw("a").object();
  section.totalLength = 1000;
  EXPECT_EQ(loadBytes(M3gFile().section(section).bytes()).failure,
            "std::runtime_error: m3g.VertexArray.load() length mismatch when reading vertices");
}

TEST(VertexArrayRecord, OfBytesDoesNotLeaveItsInflatedSection) {
  M3gSection section;
  section.scheme = 1;
  section.objects = arrayHead(1, 3, 0, 2).raw("abcde").object();
  EXPECT_EQ(loadBytes(M3gFile().section(section).stored({anyFog()}).bytes()).failure,
            "std::runtime_error: m3g.VertexArray.load() length mismatch when reading vertices");
}

TEST(VertexArrayRecord, OfByteDifferencesGoesOnBehindItsInflatedSection) {
  M3gSection section;
  section.scheme = 1;
  section.objects = arrayHead(1, 3, 1, 2).raw("abcd").object();
  std::string bytes = section.bytes();
  bytes.resize(bytes.size() - 4);
  const Loaded loaded = loadBytes(M3gFile().bytes() + bytes + "\x02\x03");
  ASSERT_EQ(loaded.failure, "");
  EXPECT_THAT(bytesOf(loaded), ElementsAre('a', 'b', 'c', 'a' + 'd' - 256, 'b' + 2, 'c' + 3));
}

// An array each would take a thousand times the file's size and more.
TEST(VertexArrayRecord, HeadsWithoutValuesShareOneArray) {
  for (const int componentSize : {1, 2}) {
    M3gFile file;
    for (int i = 0; i < 100; ++i) {
      file.compressed({arrayHead(componentSize, 4, 1, 65535).raw("x")});
    }
    const Loaded loaded = loadBytes(file.bytes());
    EXPECT_EQ(loaded.failure, "") << componentSize;
    EXPECT_EQ(loaded.objects.size(), 2u) << componentSize;
  }
}

TEST(VertexArrayRecord, OfShortsIsFilledUpWithZeros) {
  std::string bytes = M3gFile().bytes();
  M3gSection section;
  section.objects = arrayHead(2, 3, 0, 65535).raw("ab").object();
  section.totalLength = 1000;
  bytes += section.bytes();
  bytes.resize(bytes.size() - 4);
  const Loaded loaded = loadBytes(bytes);
  ASSERT_EQ(loaded.failure, "");
  const std::vector<int> values = shortsOf(loaded);
  EXPECT_EQ(values[0], 'a' | 'b' << 8);
  EXPECT_EQ(values[1], 0);
  EXPECT_EQ(values[3 * 65535 - 1], 0);
}

M3gRecord stripsHead(int encoding) {
  return M3gRecord(TRIANGLE_STRIP_ARRAY).object3D().byte(encoding);
}

TEST(TriangleStripArrayRecord, MayBeImplicitInThreeSizes) {
  const struct {
    M3gRecord record;
    unsigned first;
  } cases[] = {{stripsHead(0).int32(70000), 70000},
               {stripsHead(1).byte(200), 200},
               {stripsHead(2).int16(60000), 60000}};
  for (auto each : cases) {
    const Loaded loaded = loadRecords({each.record.intArray({3, 4}), anyFog()});
    ASSERT_EQ(loaded.failure, "");
    const auto strips = loaded.at<TriangleStripArray>(2);
    EXPECT_FALSE(strips->isExplicit());
    EXPECT_EQ(strips->getFirstIndex(), each.first);
    ASSERT_EQ(strips->stripCount(), 2u);
    EXPECT_EQ(strips->stripStart(1), each.first + 3);
    EXPECT_EQ(strips->stripLength(1), 4u);
    EXPECT_EQ(strips->getIndexCount(), 9);
    EXPECT_EQ(loaded.objects.size(), 3u);
  }
}

TEST(TriangleStripArrayRecord, MayBeExplicitInThreeSizes) {
  const struct {
    M3gRecord record;
    std::vector<int> triangle;
  } cases[] = {{stripsHead(128).intArray({1, 65535, 3}), {1, 65535, 3}},
               {stripsHead(129).byteArray("\x01\xFF\x03"), {1, 255, 3}},
               {stripsHead(130).shortArray({1, 65535, 3}), {1, 65535, 3}}};
  for (auto each : cases) {
    const Loaded loaded = loadRecords({each.record.intArray({3}), anyFog()});
    ASSERT_EQ(loaded.failure, "");
    const auto strips = loaded.at<TriangleStripArray>(2);
    EXPECT_TRUE(strips->isExplicit());
    EXPECT_THAT(trianglesOf(strips), ElementsAreArray(each.triangle));
    EXPECT_EQ(loaded.objects.size(), 3u);
  }
}

TEST(TriangleStripArrayRecord, WithoutIndicesIsImplicitFromZero) {
  const Loaded loaded = loadRecords({stripsHead(128).intArray({}).intArray({3})});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_FALSE(loaded.at<TriangleStripArray>(2)->isExplicit());
  EXPECT_EQ(loaded.at<TriangleStripArray>(2)->getFirstIndex(), 0u);
}

TEST(TriangleStripArrayRecord, FailuresHaveTheirTexts) {
  const struct {
    M3gRecord record;
    const char* failure;
  } cases[] = {
      {stripsHead(3).intArray({3}),
       "std::runtime_error: m3g.TriangleStripArray.load() --  invalid encoding"},
      {stripsHead(131).intArray({3}),
       "std::runtime_error: m3g.TriangleStripArray.load() --  invalid encoding"},
      {stripsHead(1).byte(0).intArray({}),
       "std::invalid_argument: TriangleStripArray constructor.  Null stripLengths array passed "
       "in"},
      {stripsHead(129).byteArray("abc").intArray({2}),
       "std::invalid_argument: TriangleStripArray constructor.   strip length less than 3 elements "
       "-- can't make a triangle"},
      {stripsHead(129).byteArray("abc").intArray({4}),
       "std::invalid_argument: TriangleStripArray constructor.   indices array out of bounds "
       "error"},
      {stripsHead(129).byteArray("abc").intArray({0x7FFFFFFF}),
       "std::invalid_argument: TriangleStripArray constructor.   indices array out of bounds "
       "error"},
      {stripsHead(129).byteArray("abc").intArray({-1}),
       "std::invalid_argument: TriangleStripArray constructor.   indices array out of bounds "
       "error"},
      {stripsHead(128).intArray({0, 1, 65536}).intArray({3}),
       "std::out_of_range: TriangleStripArray constructor.   index greater than 65535 -- exceeds "
       "16 "
       "bit capacity"},
      {stripsHead(128).intArray({0, 1, -1}).intArray({3}),
       "std::out_of_range: TriangleStripArray constructor.   index greater than 65535 -- exceeds "
       "16 "
       "bit capacity"}};
  for (const auto& each : cases) {
    EXPECT_EQ(loadRecords({each.record}).failure, each.failure);
  }
}

TEST(VertexBufferRecord, IsReadInFull) {
  const int former = maxTextureUnits;
  maxTextureUnits = 2;
  M3gRecord record(VERTEX_BUFFER);
  record.object3D().rgba(0x80102030).int32(2).floats({1, 2, 3}).float32(0.5f).int32(3).int32(4);
  record.int32(2).int32(5).floats({4, 5, 6}).float32(2).int32(0).floats({7, 8, 9}).float32(3);
  const Loaded loaded = loadRecords(
      {anyVertexArray(), anyVertexArray(), anyVertexArray(), anyVertexArray(), record, anyFog()});
  ASSERT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 7u);
  const auto buffer = loaded.at<VertexBuffer>(6);
  EXPECT_EQ(static_cast<unsigned>(buffer->getDefaultColor()), 0x80102030u);
  float scaleBias[4];
  EXPECT_EQ(buffer->getPositions(scaleBias), loaded.at<VertexArray>(2));
  EXPECT_THAT(scaleBias, ElementsAre(0.5f, 1, 2, 3));
  EXPECT_EQ(buffer->getNormals(), loaded.at<VertexArray>(3));
  EXPECT_EQ(buffer->getColors(), loaded.at<VertexArray>(4));
  EXPECT_EQ(buffer->getTexCoords(0, scaleBias), loaded.at<VertexArray>(5));
  EXPECT_THAT(scaleBias, ElementsAre(2, 4, 5, 6));
  EXPECT_FALSE(buffer->getTexCoords(1, nullptr));
  maxTextureUnits = former;
}

TEST(VertexBufferRecord, WithoutPositionsReadsTheirScaleAllTheSame) {
  const Loaded loaded = loadRecords({anyVertexBuffer(0), anyFog()});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_FALSE(loaded.at<VertexBuffer>(2)->getPositions(nullptr));
  EXPECT_EQ(loaded.at<VertexBuffer>(2)->getVertexCount(), 0);
}

TEST(VertexBufferRecord, RefusesWhatTheSettersRefuse) {
  const auto buffer = [](int positions, int normals, int colors, int texCoords) {
    M3gRecord record(VERTEX_BUFFER);
    record.object3D().rgba(0).int32(positions).floats({0, 0, 0, 1}).int32(normals).int32(colors);
    record.int32(texCoords);
    for (int i = 0; i < texCoords; ++i) {
      record.int32(2).floats({0, 0, 0, 1});
    }
    return record;
  };
  const M3gRecord pairs = arrayHead(1, 2, 0, 1).raw("ab");
  const M3gRecord shorts = arrayHead(2, 3, 0, 3).raw("abcdefghijklmnopqr");
  const struct {
    std::vector<M3gRecord> records;
    const char* failure;
  } cases[] = {
      {{pairs, buffer(2, 0, 0, 0)},
       "std::invalid_argument: input vertex array must have 3 components"},
      {{anyVertexArray(3), pairs, buffer(2, 3, 0, 0)},
       "std::invalid_argument: normals array component size incorrect"},
      {{anyVertexArray(3), anyVertexArray(4), buffer(2, 3, 0, 0)},
       "std::invalid_argument: normals array size doesn't match vertex array"},
      {{anyVertexArray(3), shorts, buffer(2, 0, 3, 0)},
       "std::invalid_argument: color array component size incorrect"},
      {{anyVertexArray(3), anyVertexArray(4), buffer(2, 0, 3, 0)},
       "std::invalid_argument: color array size doesn't match vertex array"},
      {{anyVertexArray(3), buffer(2, 0, 0, maxTextureUnits)}, ""},
      {{anyVertexArray(3), buffer(2, 0, 0, maxTextureUnits + 1)},
       "std::invalid_argument: VertexBuffer.setTexCoords() -- Texture unit index exceeds system "
       "limits"}};
  for (const auto& each : cases) {
    EXPECT_EQ(loadRecords(each.records).failure, each.failure);
  }
}

}  // namespace
}  // namespace varnel_m3g
