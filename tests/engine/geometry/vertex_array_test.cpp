#include "engine/geometry/vertex_array.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;

using Bytes = std::vector<signed char>;
using Shorts = std::vector<short>;

boost::shared_ptr<VertexArray> byteArray(int components, const Bytes& values) {
  const auto array =
      VertexArray::create(static_cast<int>(values.size()) / components, components, 1);
  array->set(0, array->getVertexCount(), values.data());
  return array;
}

boost::shared_ptr<VertexArray> shortArray(int components, const Shorts& values) {
  const auto array =
      VertexArray::create(static_cast<int>(values.size()) / components, components, 2);
  array->set(0, array->getVertexCount(), values.data());
  return array;
}

std::size_t total(const VertexArray& array) {
  return static_cast<std::size_t>(array.getVertexCount() * array.getComponentCount());
}

Bytes bytesOf(const VertexArray& array) {
  return Bytes(array.byteData(), array.byteData() + total(array));
}

Shorts shortsOf(const VertexArray& array) {
  return Shorts(array.shortData(), array.shortData() + total(array));
}

// Switches the storage of 8-bit arrays for the length of a block.
class WideBytes {
 public:
  WideBytes() { VertexArray::widenByteArrays = true; }
  ~WideBytes() { VertexArray::widenByteArrays = false; }
};

TEST(VertexArray, HasTheShapeThatItWasMadeWith) {
  const int shapes[][3] = {{1, 2, 1}, {1, 4, 2}, {65535, 4, 2}, {65535, 2, 1}, {7, 3, 1}};
  for (const auto& shape : shapes) {
    const auto array = VertexArray::create(shape[0], shape[1], shape[2]);
    EXPECT_EQ(array->getVertexCount(), shape[0]);
    EXPECT_EQ(array->getComponentCount(), shape[1]);
    EXPECT_EQ(array->getComponentType(), shape[2]);
    EXPECT_FALSE(array->isWidened());
    EXPECT_TRUE(array->isDirty());
    EXPECT_EQ(array->rgbaCopy(), nullptr);
    EXPECT_EQ(array->getReferences(nullptr, 0), 0u);
  }
}

TEST(VertexArray, RefusesBadShapesSizeFirstThenComponentsThenVertices) {
  const int most = std::numeric_limits<int>::max();
  const struct {
    int vertices, components, size;
    const char* text;
  } cases[] = {{1, 3, 0, "invalid componentSize argument"},
               {1, 3, 3, "invalid componentSize argument"},
               {1, 3, -1, "invalid componentSize argument"},
               {0, 1, 4, "invalid componentSize argument"},
               {1, 1, 1, "invalid numComponents argument"},
               {1, 5, 2, "invalid numComponents argument"},
               {65536, -1, 2, "invalid numComponents argument"},
               {0, 3, 1, "invalid numVertices argument"},
               {-1, 3, 1, "invalid numVertices argument"},
               {65536, 3, 2, "invalid numVertices argument"},
               {most, 4, 2, "invalid numVertices argument"}};
  for (const auto& c : cases) {
    expectFailure<std::invalid_argument>(
        [&] { VertexArray::create(c.vertices, c.components, c.size); }, c.text);
  }
}

TEST(VertexArray, ABadSizeTogetherWithABadCountReportsTheSize) {
  expectFailure<std::invalid_argument>([] { VertexArray::create(65536, 3, 3); },
                                       "invalid componentSize argument");
}

TEST(VertexArray, WritesAndReadsItsRange) {
  const auto bytes = VertexArray::create(4, 3, 1);
  const Bytes given = {1, -2, 3, 127, -128, 0};
  bytes->set(1, 2, given.data());
  EXPECT_EQ(bytesOf(*bytes), (Bytes{0, 0, 0, 1, -2, 3, 127, -128, 0, 0, 0, 0}));
  Bytes read(6, 99);
  bytes->get(1, 2, read.data());
  EXPECT_EQ(read, given);

  const auto shorts = VertexArray::create(3, 2, 2);
  const Shorts values = {32767, -32768, -1, 5};
  shorts->set(1, 2, values.data());
  EXPECT_EQ(shortsOf(*shorts), (Shorts{0, 0, 32767, -32768, -1, 5}));
  Shorts back(4, 99);
  shorts->get(1, 2, back.data());
  EXPECT_EQ(back, values);
}

TEST(VertexArray, OnlyWritesMarkItAsChanged) {
  const auto bytes = VertexArray::create(2, 2, 1);
  Bytes values(4);
  bytes->clearDirty();
  bytes->get(0, 2, values.data());
  EXPECT_FALSE(bytes->isDirty());
  bytes->set(0, 1, values.data());
  EXPECT_TRUE(bytes->isDirty());
  const auto shorts = VertexArray::create(2, 2, 2);
  Shorts wide(4);
  shorts->clearDirty();
  shorts->get(0, 2, wide.data());
  EXPECT_FALSE(shorts->isDirty());
  shorts->set(0, 1, wide.data());
  EXPECT_TRUE(shorts->isDirty());
}

// The four accesses behind one call; the values are of the size of the array or not.
void access(VertexArray& array, bool write, int size, int first, int count, bool null = false) {
  Bytes bytes(64);
  Shorts shorts(64);
  if (size == 1 && write) {
    array.set(first, count, null ? nullptr : bytes.data());
  } else if (size == 1) {
    array.get(first, count, null ? nullptr : bytes.data());
  } else if (write) {
    array.set(first, count, null ? nullptr : shorts.data());
  } else {
    array.get(first, count, null ? nullptr : shorts.data());
  }
}

TEST(VertexArray, RefusesRangesOutsideAndWritesNothing) {
  const int most = std::numeric_limits<int>::max();
  const int least = std::numeric_limits<int>::min();
  for (const int size : {1, 2}) {
    const auto array = VertexArray::create(4, 3, size);
    array->clearDirty();
    for (const bool write : {true, false}) {
      for (const int count : {-1, least}) {
        expectFailure<std::invalid_argument>([&] { access(*array, write, size, 0, count); },
                                             "negative number of vertices to be set");
        expectFailure<std::invalid_argument>([&] { access(*array, write, size, -1, count); },
                                             "negative number of vertices to be set");
      }
      for (const int first : {-1, least}) {
        expectFailure<std::out_of_range>([&] { access(*array, write, size, first, 1); },
                                         "negative index for first vertex");
        expectFailure<std::out_of_range>([&] { access(*array, write, size, first, 9); },
                                         "negative index for first vertex");
      }
      const int beyond[][2] = {{0, 5}, {4, 1}, {5, 0}, {1, most}, {most, 1}, {most, most}};
      for (const auto& range : beyond) {
        expectFailure<std::out_of_range>(
            [&] { access(*array, write, size, range[0], range[1]); },
            "Index out of range on values[firstVertex + numComponents");
      }
      EXPECT_FALSE(array->isDirty());
    }
  }
}

TEST(VertexArray, ARangeThatEndsAtTheLastVertexIsAccepted) {
  for (const int size : {1, 2}) {
    const auto array = VertexArray::create(4, 3, size);
    for (const bool write : {true, false}) {
      access(*array, write, size, 0, 4);
      access(*array, write, size, 3, 1);
      access(*array, write, size, 4, 0);
    }
  }
}

TEST(VertexArray, RefusesTheOtherComponentSizeBeforeTheRange) {
  const auto bytes = VertexArray::create(4, 3, 1);
  const auto shorts = VertexArray::create(4, 3, 2);
  expectFailure<std::logic_error>([&] { access(*bytes, true, 2, 0, -1); },
                                  " this is not a 16-bit VertexArray");
  expectFailure<std::logic_error>([&] { access(*bytes, false, 2, -1, 1); },
                                  " this is not an 8-bit VertexArray");
  expectFailure<std::logic_error>([&] { access(*shorts, true, 1, 0, 9); },
                                  " this is not an 8-bit VertexArray");
  expectFailure<std::logic_error>([&] { access(*shorts, false, 1, 0, 1); },
                                  " this is not an 8-bit VertexArray");
}

TEST(VertexArray, RefusesNullValuesFirst) {
  const auto array = VertexArray::create(4, 3, 1);
  for (const int size : {1, 2}) {
    for (const bool write : {true, false}) {
      expectFailure<std::invalid_argument>([&] { access(*array, write, size, -1, -1, true); },
                                           "values array is null");
    }
  }
}

TEST(VertexArray, DecodesOneVertexAsSignedNumbers) {
  const auto bytes = byteArray(4, {1, -2, 127, -128, 5, 6, 7, -1});
  const auto second = bytes->getVertex(1);
  EXPECT_EQ(std::vector<float>(second.get(), second.get() + 4),
            (std::vector<float>{5.0f, 6.0f, 7.0f, -1.0f}));
  const auto shorts = shortArray(2, {-32768, 32767, 1, -1});
  const auto first = shorts->getVertex(0);
  EXPECT_EQ(std::vector<float>(first.get(), first.get() + 2),
            (std::vector<float>{-32768.0f, 32767.0f}));
  float out[2];
  shorts->readVertex(1, out);
  EXPECT_EQ(out[0], 1.0f);
  EXPECT_EQ(out[1], -1.0f);
}

TEST(VertexArray, RefusesVerticesOutside) {
  const auto array = VertexArray::create(4, 3, 1);
  for (const int index :
       {-1, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    expectFailure<std::out_of_range>([&] { array->getVertex(index); }, "Invalid vertex index");
  }
}

TEST(VertexArray, WideningTakesBytesAsUnsigned) {
  const auto array = byteArray(3, {1, -1, -128, 127, 0, -2});
  array->clearDirty();
  array->widenTo16Bit();
  EXPECT_TRUE(array->isWidened());
  EXPECT_EQ(array->getComponentType(), 1);
  EXPECT_EQ(shortsOf(*array), (Shorts{1, 255, 128, 127, 0, 254}));
  array->widenTo16Bit();
  EXPECT_EQ(shortsOf(*array), (Shorts{1, 255, 128, 127, 0, 254}));
  const Bytes vertex = {9, 9, 9};
  array->set(0, 1, vertex.data());
  EXPECT_FALSE(array->isWidened());
  EXPECT_TRUE(array->isDirty());
}

TEST(VertexArray, ExpandsThreeByteRecordsToRgba) {
  const auto array = byteArray(3, {1, 2, 3, -1, -2, -3});
  array->expandToRgba();
  const unsigned char expected[] = {1, 2, 3, 255, 255, 254, 253, 255};
  ASSERT_NE(array->rgbaCopy(), nullptr);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(array->rgbaCopy()[i], expected[i]);
  }
  const Bytes vertex = {7, 7, 7};
  array->set(0, 1, vertex.data());
  EXPECT_EQ(array->rgbaCopy()[0], 1) << "the copy is made anew only when asked for";
  array->expandToRgba();
  EXPECT_EQ(array->rgbaCopy()[0], 7);
}

TEST(VertexArray, ExpandingRecordsOfTwoBytesReadsNothingOutside) {
  const auto array = byteArray(2, {1, 2, 3, 4});
  array->expandToRgba();
  EXPECT_EQ(array->rgbaCopy(), nullptr);
}

TEST(VertexArray, CopiesIntoATargetOfItsShape) {
  const auto source = shortArray(3, {1, -2, 3, 4, 5, -32768});
  const auto target = VertexArray::create(2, 3, 2);
  target->clearDirty();
  EXPECT_EQ(source->copyInto(target), target);
  EXPECT_EQ(shortsOf(*target), shortsOf(*source));
  EXPECT_TRUE(target->isDirty());
}

TEST(VertexArray, CopiesIntoANewArrayWhenTheTargetIsNullOrOfAnotherShape) {
  const auto source = byteArray(3, {1, -2, 3, 4, 5, -128});
  const boost::shared_ptr<VertexArray> targets[] = {
      boost::shared_ptr<VertexArray>(), VertexArray::create(3, 3, 1), VertexArray::create(2, 2, 1),
      VertexArray::create(2, 3, 2)};
  for (const auto& target : targets) {
    const auto copy = source->copyInto(target);
    ASSERT_TRUE(copy);
    EXPECT_NE(copy, target);
    EXPECT_NE(copy, source);
    EXPECT_EQ(copy->getVertexCount(), 2);
    EXPECT_EQ(copy->getComponentCount(), 3);
    EXPECT_EQ(copy->getComponentType(), 1);
    EXPECT_EQ(bytesOf(*copy), bytesOf(*source));
  }
}

TEST(VertexArray, ACopyTakesTheStorageOfItsSource) {
  const auto source = byteArray(3, {1, -1, 3});
  const auto target = VertexArray::create(1, 3, 1);
  source->widenTo16Bit();
  source->copyInto(target);
  EXPECT_TRUE(target->isWidened());
  EXPECT_EQ(shortsOf(*target), (Shorts{1, 255, 3}));
  byteArray(3, {4, 5, 6})->copyInto(target);
  EXPECT_FALSE(target->isWidened());
  EXPECT_EQ(bytesOf(*target), (Bytes{4, 5, 6}));
}

TEST(VertexArray, CopyingIntoItselfChangesNothing) {
  const auto array = byteArray(2, {1, 2});
  EXPECT_EQ(array->copyInto(array), array);
  EXPECT_EQ(bytesOf(*array), (Bytes{1, 2}));
}

TEST(VertexArray, ScalesAlphasOfFourComponentsWithTruncation) {
  const auto source = byteArray(4, {1, 2, 3, -1, 4, 5, 6, 100, 7, 8, 9, 0});
  const struct {
    float factor;
    unsigned char first, second, third;
  } cases[] = {{0.5f, 127, 50, 0},   {1.0f, 255, 100, 0}, {0.0f, 0, 0, 0},
               {0.999f, 254, 99, 0}, {2.0f, 254, 200, 0},  // the low byte of 510
               {-1.0f, 1, 156, 0}};
  for (const auto& c : cases) {
    const auto target = byteArray(4, {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9});
    target->scaleAlphaFrom(*source, c.factor);
    EXPECT_EQ(bytesOf(*target), (Bytes{9, 9, 9, static_cast<signed char>(c.first), 9, 9, 9,
                                       static_cast<signed char>(c.second), 9, 9, 9,
                                       static_cast<signed char>(c.third)}))
        << c.factor;
  }
}

TEST(VertexArray, ScalingAlphasLeavesThreeComponentsUnchanged) {
  const auto source = byteArray(3, {1, 2, 3});
  const auto target = byteArray(3, {4, 5, 6});
  target->scaleAlphaFrom(*source, 0.5f);
  EXPECT_EQ(bytesOf(*target), (Bytes{4, 5, 6}));
}

TEST(VertexArray, ScalingAlphasStaysInsideBothArrays) {
  const auto source = byteArray(4, {0, 0, 0, 100});
  const auto target = byteArray(4, {9, 9, 9, 9, 9, 9, 9, 9});
  target->scaleAlphaFrom(*source, 0.5f);
  EXPECT_EQ(bytesOf(*target), (Bytes{9, 9, 9, 50, 9, 9, 9, 9}));
  for (const float factor :
       {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
        std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::max()}) {
    target->scaleAlphaFrom(*source, factor);
  }
}

TEST(VertexArray, PrintsShortsLineByLine) {
  const auto array = shortArray(3, {1, -2, 3, 4, 5, -6});
  EXPECT_EQ(outputOf([&] { array->printValues(); }), "1 -2 3\n4 5 -6\n");
  const auto bytes = VertexArray::create(1, 2, 1);
  EXPECT_EQ(outputOf([&] { bytes->printValues(); }),
            "For this VertexArray, componentSize=1 not handled\n");
}

TEST(VertexArray, DumpsItsFields) {
  const auto array = VertexArray::create(65535, 4, 2);
  array->setUserID(12);
  EXPECT_EQ(outputOf([&] { array->dump(); }), baseDump(12) +
                                                  "VertexArray Object\n"
                                                  "==================\n"
                                                  "ComponentSize:  2\n"
                                                  "ComponentCount: 4\n"
                                                  "VertexCount:    65535\n");
}

TEST(VertexArray, DuplicateSharesNothing) {
  const auto array = shortArray(2, {1, 2, 3, 4});
  array->setUserID(5);
  const auto copy = duplicateOf(*array);
  EXPECT_EQ(copy->getUserID(), 5);
  EXPECT_EQ(shortsOf(*copy), (Shorts{1, 2, 3, 4}));
  const Shorts vertex = {9, 9};
  copy->set(0, 1, vertex.data());
  EXPECT_EQ(shortsOf(*array), (Shorts{1, 2, 3, 4}));
}

TEST(VertexArray, WideStorageOfBytesKeepsTheirValues) {
  const WideBytes wide;
  const auto array = VertexArray::create(2, 3, 1);
  const Bytes values = {1, -2, 127, -128, 0, 5};
  array->set(0, 2, values.data());
  EXPECT_EQ(shortsOf(*array), (Shorts{1, -2, 127, -128, 0, 5}));
  Bytes read(6);
  array->get(0, 2, read.data());
  EXPECT_EQ(read, values);
  const auto vertex = array->getVertex(1);
  EXPECT_EQ(std::vector<float>(vertex.get(), vertex.get() + 3),
            (std::vector<float>{-128.0f, 0.0f, 5.0f}));
  EXPECT_EQ(outputOf([&] { array->printValues(); }), "1 -2 127\n-128 0 5\n");
}

}  // namespace
}  // namespace varnel_m3g
