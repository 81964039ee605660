#include "engine/geometry/triangle_strip_array.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <vector>

#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::errorOutputOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;

using Ints = std::vector<int>;

boost::shared_ptr<TriangleStripArray> implicitStrips(int first, const Ints& lengths) {
  return TriangleStripArray::create(first, lengths.data(), static_cast<int>(lengths.size()));
}

boost::shared_ptr<TriangleStripArray> explicitStrips(const Ints& indices, const Ints& lengths) {
  return TriangleStripArray::create(indices.data(), static_cast<int>(indices.size()),
                                    lengths.data(), static_cast<int>(lengths.size()));
}

// The triangle list, with a guard behind the told count.
Ints indicesOf(TriangleStripArray& strips) {
  const int count = std::max(strips.getIndexCount(), 0);
  Ints indices(static_cast<std::size_t>(count) + 1, -77);
  strips.getIndices(indices.data());
  EXPECT_EQ(indices.back(), -77);
  indices.pop_back();
  return indices;
}

TEST(TriangleStripArray, AStripOfThreeGivesOneTriangleOfFourTwo) {
  EXPECT_EQ(indicesOf(*implicitStrips(5, {3})), (Ints{5, 6, 7}));
  EXPECT_EQ(indicesOf(*implicitStrips(5, {4})), (Ints{5, 6, 7, 7, 6, 8}));
  EXPECT_EQ(indicesOf(*explicitStrips({9, 4, 2}, {3})), (Ints{9, 4, 2}));
  EXPECT_EQ(indicesOf(*explicitStrips({9, 4, 2, 7}, {4})), (Ints{9, 4, 2, 2, 4, 7}));
}

TEST(TriangleStripArray, TheWindingAlternatesAndStartsAnewWithEachStrip) {
  EXPECT_EQ(indicesOf(*implicitStrips(0, {5, 4})),
            (Ints{0, 1, 2, 2, 1, 3, 2, 3, 4, 5, 6, 7, 7, 6, 8}));
  EXPECT_EQ(indicesOf(*explicitStrips({10, 11, 12, 13, 14, 1, 2, 3}, {5, 3})),
            (Ints{10, 11, 12, 12, 11, 13, 12, 13, 14, 1, 2, 3}));
}

TEST(TriangleStripArray, ImplicitStripsFollowEachOther) {
  const auto strips = implicitStrips(10, {3, 4});
  EXPECT_FALSE(strips->isExplicit());
  EXPECT_EQ(strips->getFirstIndex(), 10u);
  ASSERT_EQ(strips->stripCount(), 2u);
  EXPECT_EQ(strips->stripStart(0), 10u);
  EXPECT_EQ(strips->stripStart(1), 13u);
  EXPECT_EQ(strips->stripLength(0), 3u);
  EXPECT_EQ(strips->stripLength(1), 4u);
  EXPECT_EQ(strips->highestIndex(0), 12);
  EXPECT_EQ(strips->highestIndex(1), 16);
  EXPECT_EQ(strips->getIndexCount(), 9);
  EXPECT_EQ(strips->getReferences(nullptr, 0), 0u);
}

TEST(TriangleStripArray, ExplicitStripsHoldTheirIndices) {
  const auto strips = explicitStrips({0, 65535, 2, 3, 4, 5, 1}, {3, 4});
  EXPECT_TRUE(strips->isExplicit());
  ASSERT_EQ(strips->stripCount(), 2u);
  EXPECT_EQ(strips->stripIndices(0)[1], 65535);
  EXPECT_EQ(strips->stripIndices(1)[0], 3);
  EXPECT_EQ(strips->highestIndex(0), 65535);
  EXPECT_EQ(strips->highestIndex(1), 5);
  EXPECT_EQ(strips->getIndexCount(), 9);
}

TEST(TriangleStripArray, RefusesMissingLengths) {
  const int length = 3;
  const int indices[] = {0, 1, 2};
  const char* const null = "TriangleStripArray constructor.  Null stripLengths array passed in";
  const char* const empty =
      "TriangleStripArray constructor.  stripLengths array is empty (length = 0)";
  expectFailure<std::invalid_argument>([&] { TriangleStripArray::create(0, nullptr, 0); }, null);
  expectFailure<std::invalid_argument>([&] { TriangleStripArray::create(indices, 3, nullptr, 1); },
                                       null);
  expectFailure<std::invalid_argument>([&] { TriangleStripArray::create(0, &length, 0); }, empty);
  expectFailure<std::invalid_argument>([&] { TriangleStripArray::create(indices, 3, &length, 0); },
                                       empty);
}

TEST(TriangleStripArray, RefusesMissingIndicesBeforeTheLengths) {
  const int index = 0;
  const char* const text = "TriangleStripArray constructor.  Null or empty indices array passed in";
  expectFailure<std::invalid_argument>([&] { TriangleStripArray::create(nullptr, 3, nullptr, 0); },
                                       text);
  expectFailure<std::invalid_argument>([&] { TriangleStripArray::create(&index, 0, nullptr, 0); },
                                       text);
}

TEST(TriangleStripArray, RefusesExplicitStripsShorterThanThree) {
  for (const Ints& lengths : std::vector<Ints>{{2}, {3, 0}, {3, 2}, {1, 3}}) {
    expectFailure<std::invalid_argument>(
        [&] {
          explicitStrips({0, 1, 2, 3, 4, 5, 6}, lengths);
        },
        "TriangleStripArray constructor.   strip length less than 3 elements -- can't make a "
        "triangle");
  }
}

TEST(TriangleStripArray, RefusesFewerIndicesThanTheLengthsAddUpTo) {
  const int most = std::numeric_limits<int>::max();
  for (const Ints& lengths : std::vector<Ints>{{6}, {3, 3}, {most}, {-1}, {3, most, most}}) {
    expectFailure<std::invalid_argument>(
        [&] {
          explicitStrips({0, 1, 2, 3, 4}, lengths);
        },
        "TriangleStripArray constructor.   indices array out of bounds error");
  }
}

TEST(TriangleStripArray, IgnoresIndicesPastTheLastStrip) {
  const auto strips = explicitStrips({0, 1, 2, 70000, -1}, {3});
  EXPECT_EQ(indicesOf(*strips), (Ints{0, 1, 2}));
}

TEST(TriangleStripArray, RefusesIndicesOutsideSixteenBits) {
  for (const int index :
       {65536, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    expectFailure<std::out_of_range>(
        [&] {
          explicitStrips({0, 1, index}, {3});
        },
        "TriangleStripArray constructor.   index greater than 65535 -- exceeds 16 bit capacity");
  }
}

TEST(TriangleStripArray, ReportsWhatComesFirst) {
  // A bad index in the first strip before the bad length of the second.
  expectFailure<std::out_of_range>(
      [&] {
        explicitStrips({0, 1, -1, 3}, {3, 1});
      },
      "TriangleStripArray constructor.   index greater than 65535 -- exceeds 16 bit capacity");
  expectFailure<std::out_of_range>(
      [&] {
        explicitStrips({0, 1, -1}, {9});
      },
      "TriangleStripArray constructor.   index greater than 65535 -- exceeds 16 bit capacity");
}

TEST(TriangleStripArray, AcceptsShortImplicitStripsAndCountsThemAsTold) {
  const struct {
    Ints lengths;
    int count;
  } cases[] = {{{2}, 0}, {{1}, -3}, {{0}, -6}, {{2, 3}, 3}, {{1, 4}, 3}, {{1, 3}, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(implicitStrips(0, c.lengths)->getIndexCount(), c.count);
  }
}

TEST(TriangleStripArray, NeverWritesMoreIndicesThanItCounts) {
  EXPECT_EQ(indicesOf(*implicitStrips(0, {1, 4})), (Ints{1, 2, 3}));
  EXPECT_TRUE(indicesOf(*implicitStrips(0, {1})).empty());
  EXPECT_TRUE(indicesOf(*implicitStrips(0, {0, 0, 5})).empty());
  EXPECT_TRUE(indicesOf(*implicitStrips(0, {-1})).empty());
}

TEST(TriangleStripArray, FindsTheHighestIndexOfStripsOfAnyLength) {
  const auto strips = implicitStrips(4, {0, 1, 2, std::numeric_limits<int>::max()});
  EXPECT_EQ(strips->highestIndex(0), -1);
  EXPECT_EQ(strips->highestIndex(1), 4);
  EXPECT_EQ(strips->highestIndex(2), 6);
  EXPECT_EQ(strips->highestIndex(3), 7LL + 2147483647LL - 1);
  EXPECT_EQ(implicitStrips(-1, {3})->highestIndex(0), 4294967297LL);
  EXPECT_EQ(implicitStrips(-1, {-1})->highestIndex(0), 8589934589LL);
}

TEST(TriangleStripArray, StartsBeyondThirtyTwoBitsWrap) {
  const auto strips = implicitStrips(-1, {3, 3});
  EXPECT_EQ(strips->getFirstIndex(), 4294967295u);
  EXPECT_EQ(strips->stripStart(0), 4294967295u);
  EXPECT_EQ(strips->stripStart(1), 2u);
}

TEST(TriangleStripArray, RefusesANullArrayForTheIndices) {
  const auto strips = implicitStrips(0, {3});
  expectFailure<std::invalid_argument>(
      [&] { strips->getIndices(nullptr); },
      "TriangleStripArray.getIndices() -- indices array argument  is null");
}

TEST(TriangleStripArray, PrintsItsIndices) {
  EXPECT_EQ(outputOf([&] { implicitStrips(0, {4})->printIndices(); }),
            "TriStripArray -- implicit --  Index Count = 6\n [ 0, 1, 2, 2, 1, 3,  ] \n");
  EXPECT_EQ(outputOf([&] {
              explicitStrips({7, 8, 9}, {3})->printIndices();
            }),
            "TriStripArray -- implicit --  Index Count = 3\n [ 7, 8, 9,  ] \n");
  EXPECT_EQ(outputOf([&] { implicitStrips(0, {1})->printIndices(); }),
            "TriStripArray -- implicit --  Index Count = -3\n [  ] \n");
}

TEST(TriangleStripArray, DumpsItsFields) {
  const auto strips = implicitStrips(10, {3, 4});
  strips->setUserID(2);
  EXPECT_EQ(outputOf([&] { strips->dump(); }), baseDump(2) +
                                                   "IndexBuffer Object\n"
                                                   "==================\n"
                                                   "EncodingExplicit: False\n"
                                                   "FirstIndex: 10\n"
                                                   "StripLengths: 2\n"
                                                   "TriangleStripArray Object\n"
                                                   "=========================\n");
  EXPECT_EQ(outputOf([&] {
              explicitStrips({0, 1, 2}, {3})->dump();
            }),
            baseDump() +
                "IndexBuffer Object\n"
                "==================\n"
                "EncodingExplicit: True\n"
                "StripLengths: 1\n"
                "TriangleStripArray Object\n"
                "=========================\n");
}

TEST(TriangleStripArray, DuplicateCopiesTheStrips) {
  const auto implicit = implicitStrips(10, {3, 4});
  implicit->setUserID(33);
  const auto copy = duplicateOf(*implicit);
  EXPECT_EQ(copy->getUserID(), 33);
  EXPECT_FALSE(copy->isExplicit());
  EXPECT_EQ(copy->getFirstIndex(), 10u);
  EXPECT_EQ(copy->stripStart(1), 13u);
  EXPECT_EQ(copy->highestIndex(1), 16);
  EXPECT_EQ(indicesOf(*copy), indicesOf(*implicit));

  const auto listed = explicitStrips({5, 6, 7, 8, 1, 2, 3}, {4, 3});
  const auto second = duplicateOf(*listed);
  EXPECT_TRUE(second->isExplicit());
  EXPECT_EQ(second->stripLength(0), 4u);
  EXPECT_EQ(second->highestIndex(0), 8);
  EXPECT_NE(second->stripIndices(0), listed->stripIndices(0));
  EXPECT_EQ(indicesOf(*second), indicesOf(*listed));
}

class BareIndexBuffer : public IndexBuffer {
 public:
  jobject createJavaPeer(JNIEnv*) override { return nullptr; }
  int getIndexCount() override { return 0; }
  void getIndices(int*) override {}
  void intersect(const float*, const float*, const Transform&, RayIntersection&, const PolygonMode*,
                 VertexBuffer&) override {}
  void printIndices() override {}
};

TEST(IndexBuffer, HasNoDuplicateOfItsOwn) {
  const boost::shared_ptr<IndexBuffer> buffer(new BareIndexBuffer);
  boost::shared_ptr<Object3D> copy = buffer;
  EXPECT_EQ(errorOutputOf([&] { copy = buffer->duplicate(); }),
            "TriangleStripArray -- Duplicate not Implemented\n");
  EXPECT_FALSE(copy);
}

}  // namespace
}  // namespace varnel_m3g
