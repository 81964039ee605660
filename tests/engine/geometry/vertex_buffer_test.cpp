#include "engine/geometry/vertex_buffer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/geometry/vertex_array.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;
using varnel_test::referencesOf;
using varnel_test::TextureUnits;

using Array = boost::shared_ptr<VertexArray>;

const Array NONE;

Array newArray(int vertices, int components, int size = 2) {
  return VertexArray::create(vertices, components, size);
}

void expectScaleBias(const float* scaleBias, float scale, float x, float y, float z) {
  EXPECT_EQ(scaleBias[0], scale);
  EXPECT_EQ(scaleBias[1], x);
  EXPECT_EQ(scaleBias[2], y);
  EXPECT_EQ(scaleBias[3], z);
}

TEST(VertexBuffer, StartsEmptyAndWhite) {
  const auto buffer = VertexBuffer::create();
  float scaleBias[4] = {9, 9, 9, 9};
  EXPECT_FALSE(buffer->getPositions(scaleBias));
  expectScaleBias(scaleBias, 1, 0, 0, 0);
  EXPECT_FALSE(buffer->getNormals());
  EXPECT_FALSE(buffer->getColors());
  EXPECT_FALSE(buffer->getWorkingColors());
  EXPECT_EQ(buffer->getVertexCount(), 0);
  EXPECT_EQ(buffer->getDefaultColor(), -1);
  EXPECT_EQ(buffer->getCachedAlphaFactor(), -1.0f);
  EXPECT_TRUE(buffer->isDirty());
  EXPECT_FALSE(buffer->hasTexCoordTables());
  EXPECT_EQ(buffer->getPositionBias(), nullptr);
  EXPECT_TRUE(referencesOf(*buffer).empty());
}

TEST(VertexBuffer, TexCoordsOfAFreshBufferAreEmptyWithScaleOneAndNoBias) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  float scaleBias[4] = {9, 9, 9, 9};
  EXPECT_FALSE(buffer->getTexCoords(1, scaleBias));
  expectScaleBias(scaleBias, 1, 0, 0, 0);
  EXPECT_FALSE(buffer->getTexCoords(0, nullptr));
}

TEST(VertexBuffer, KeepsTheDefaultColorByteByByte) {
  const auto buffer = VertexBuffer::create();
  for (const int color :
       {static_cast<int>(0x80102030u), 0, -1, 0x7FFFFFFF, std::numeric_limits<int>::min()}) {
    buffer->clearDirty();
    buffer->setDefaultColor(color);
    EXPECT_EQ(buffer->getDefaultColor(), color);
    EXPECT_FALSE(buffer->isDirty());
  }
  buffer->setDefaultColor(static_cast<int>(0x80102030u));
  EXPECT_EQ(buffer->getDefaultColorBytes()[0], 0x10);
  EXPECT_EQ(buffer->getDefaultColorBytes()[1], 0x20);
  EXPECT_EQ(buffer->getDefaultColorBytes()[2], 0x30);
  EXPECT_EQ(buffer->getDefaultColorBytes()[3], 0x80);
}

TEST(VertexBuffer, SharesPositionsWithScaleAndBias) {
  const auto buffer = VertexBuffer::create();
  const auto positions = newArray(4, 3, 1);
  const float bias[3] = {1, -2, std::numeric_limits<float>::infinity()};
  buffer->clearDirty();
  buffer->setPositions(positions, -0.5f, bias);
  EXPECT_TRUE(buffer->isDirty());
  float scaleBias[4];
  EXPECT_EQ(buffer->getPositions(scaleBias), positions);
  expectScaleBias(scaleBias, -0.5f, 1, -2, std::numeric_limits<float>::infinity());
  EXPECT_EQ(buffer->getPositions(nullptr), positions);
  EXPECT_EQ(buffer->getVertexCount(), 4);
  buffer->setPositions(positions, NAN, bias);
  EXPECT_TRUE(std::isnan(buffer->getPositionScale()));
}

TEST(VertexBuffer, ANullBiasKeepsTheBiasOfThePositions) {
  const auto buffer = VertexBuffer::create();
  const auto positions = newArray(4, 3);
  const float bias[3] = {1, 2, 3};
  buffer->setPositions(positions, 2.0f, nullptr);
  EXPECT_EQ(buffer->getPositionBias(), nullptr);
  buffer->setPositions(positions, 2.0f, bias);
  buffer->setPositions(positions, 3.0f, nullptr);
  float scaleBias[4];
  buffer->getPositions(scaleBias);
  expectScaleBias(scaleBias, 3, 1, 2, 3);
}

TEST(VertexBuffer, NullPositionsLeaveScaleAndBias) {
  const auto buffer = VertexBuffer::create();
  const float bias[3] = {1, 2, 3};
  const float other[3] = {7, 8, 9};
  buffer->setPositions(newArray(4, 3), 2.0f, bias);
  buffer->clearDirty();
  buffer->setPositions(NONE, 5.0f, other);
  EXPECT_TRUE(buffer->isDirty());
  float scaleBias[4];
  EXPECT_FALSE(buffer->getPositions(scaleBias));
  expectScaleBias(scaleBias, 2, 1, 2, 3);
  EXPECT_EQ(buffer->getVertexCount(), 0);
}

TEST(VertexBuffer, WithoutPositionsAnyLengthPassesAgain) {
  const auto buffer = VertexBuffer::create();
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  buffer->setNormals(newArray(4, 3));
  buffer->setColors(newArray(4, 4, 1));
  buffer->setPositions(NONE, 1.0f, nullptr);
  EXPECT_EQ(buffer->getVertexCount(), 0);
  buffer->setNormals(newArray(5, 3));
  buffer->setColors(newArray(6, 3, 1));
  buffer->setTexCoords(0, newArray(7, 2), 1.0f, nullptr);
  buffer->setPositions(newArray(8, 3), 1.0f, nullptr);
  EXPECT_EQ(buffer->getVertexCount(), 8);
}

TEST(VertexBuffer, RefusesPositionsOfAWrongShape) {
  const auto buffer = VertexBuffer::create();
  const float bias[3] = {1, 2, 3};
  const float other[3] = {7, 8, 9};
  const auto positions = newArray(4, 3);
  buffer->setPositions(positions, 2.0f, bias);
  buffer->clearDirty();
  for (const int components : {2, 4}) {
    expectFailure<std::invalid_argument>(
        [&] { buffer->setPositions(newArray(5, components), 5.0f, other); },
        "input vertex array must have 3 components");
  }
  for (const int vertices : {3, 5}) {
    expectFailure<std::invalid_argument>(
        [&] { buffer->setPositions(newArray(vertices, 3), 5.0f, other); },
        "input vertex array length doesn't match existing vertexCount");
  }
  float scaleBias[4];
  EXPECT_EQ(buffer->getPositions(scaleBias), positions);
  expectScaleBias(scaleBias, 2, 1, 2, 3);
  EXPECT_FALSE(buffer->isDirty());
}

TEST(VertexBuffer, SharesNormalsOfEitherSize) {
  const auto buffer = VertexBuffer::create();
  for (const int size : {1, 2}) {
    const auto normals = newArray(4, 3, size);
    buffer->clearDirty();
    buffer->setNormals(normals);
    EXPECT_EQ(buffer->getNormals(), normals);
    EXPECT_TRUE(buffer->isDirty());
  }
  buffer->clearDirty();
  buffer->setNormals(NONE);
  EXPECT_FALSE(buffer->getNormals());
  EXPECT_TRUE(buffer->isDirty());
}

TEST(VertexBuffer, RefusesNormalsOfAWrongShape) {
  const auto buffer = VertexBuffer::create();
  const auto normals = newArray(4, 3);
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  buffer->setNormals(normals);
  buffer->clearDirty();
  for (const int components : {2, 4}) {
    expectFailure<std::invalid_argument>([&] { buffer->setNormals(newArray(5, components)); },
                                         "normals array component size incorrect");
  }
  for (const int vertices : {3, 5}) {
    expectFailure<std::invalid_argument>([&] { buffer->setNormals(newArray(vertices, 3)); },
                                         "normals array size doesn't match vertex array");
  }
  EXPECT_EQ(buffer->getNormals(), normals);
  EXPECT_FALSE(buffer->isDirty());
}

TEST(VertexBuffer, SharesColorsAndForgetsTheCachedAlpha) {
  const auto buffer = VertexBuffer::create();
  const auto rgba = newArray(4, 4, 1);
  buffer->setCachedAlphaFactor(0.5f);
  buffer->clearDirty();
  buffer->setColors(rgba);
  EXPECT_EQ(buffer->getColors(), rgba);
  EXPECT_EQ(rgba->rgbaCopy(), nullptr);
  EXPECT_EQ(buffer->getCachedAlphaFactor(), -1.0f);
  EXPECT_TRUE(buffer->isDirty());
  const auto rgb = newArray(4, 3, 1);
  buffer->setColors(rgb);
  EXPECT_EQ(buffer->getColors(), rgb);
  EXPECT_NE(rgb->rgbaCopy(), nullptr);
}

TEST(VertexBuffer, NullColorsKeepTheCachedAlpha) {
  const auto buffer = VertexBuffer::create();
  buffer->setColors(newArray(4, 4, 1));
  buffer->setCachedAlphaFactor(0.5f);
  buffer->clearDirty();
  buffer->setColors(NONE);
  EXPECT_FALSE(buffer->getColors());
  EXPECT_EQ(buffer->getCachedAlphaFactor(), 0.5f);
  EXPECT_TRUE(buffer->isDirty());
}

TEST(VertexBuffer, RefusesColorsOfAWrongShape) {
  const auto buffer = VertexBuffer::create();
  const auto colors = newArray(4, 4, 1);
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  buffer->setColors(colors);
  buffer->setCachedAlphaFactor(0.5f);
  buffer->clearDirty();
  const int shapes[][3] = {{4, 4, 2}, {4, 3, 2}, {4, 2, 1}, {4, 2, 2}, {9, 4, 2}};
  for (const auto& shape : shapes) {
    expectFailure<std::invalid_argument>(
        [&] { buffer->setColors(newArray(shape[0], shape[1], shape[2])); },
        "color array component size incorrect");
  }
  const auto longer = newArray(5, 3, 1);
  expectFailure<std::invalid_argument>([&] { buffer->setColors(longer); },
                                       "color array size doesn't match vertex array");
  EXPECT_EQ(longer->rgbaCopy(), nullptr);
  EXPECT_EQ(buffer->getColors(), colors);
  EXPECT_EQ(buffer->getCachedAlphaFactor(), 0.5f);
  EXPECT_FALSE(buffer->isDirty());
}

TEST(VertexBuffer, AWorkingCopyOfAnotherLengthIsDroppedWithItsColors) {
  const auto buffer = VertexBuffer::create();
  buffer->setColors(newArray(4, 4, 1));
  const auto working = newArray(4, 4, 1);
  buffer->setWorkingColors(working);
  buffer->setColors(newArray(4, 4, 1));
  EXPECT_EQ(buffer->getWorkingColors(), working);
  buffer->setColors(newArray(5, 4, 1));
  EXPECT_FALSE(buffer->getWorkingColors());
}

TEST(VertexBuffer, SharesTexCoordsPerUnit) {
  const TextureUnits limit(3);
  const auto buffer = VertexBuffer::create();
  const auto first = newArray(4, 2, 1);
  const auto last = newArray(4, 3, 2);
  const float bias[3] = {1, 2, 3};
  buffer->clearDirty();
  buffer->setTexCoords(0, first, 0.25f, nullptr);
  EXPECT_TRUE(buffer->isDirty());
  buffer->setTexCoords(2, last, 4.0f, bias);
  float scaleBias[4];
  EXPECT_EQ(buffer->getTexCoords(0, scaleBias), first);
  expectScaleBias(scaleBias, 0.25f, 0, 0, 0);
  EXPECT_FALSE(buffer->getTexCoords(1, scaleBias));
  expectScaleBias(scaleBias, 1, 0, 0, 0);
  EXPECT_EQ(buffer->getTexCoords(2, scaleBias), last);
  expectScaleBias(scaleBias, 4, 1, 2, 3);
}

TEST(VertexBuffer, NullTexCoordsAndNullBiasKeepWhatTheyLeaveOut) {
  const auto buffer = VertexBuffer::create();
  const float bias[3] = {1, 2, 3};
  const float other[3] = {7, 8, 9};
  const auto coords = newArray(4, 2);
  buffer->setTexCoords(0, coords, 2.0f, bias);
  buffer->setTexCoords(0, coords, 3.0f, nullptr);
  float scaleBias[4];
  buffer->getTexCoords(0, scaleBias);
  expectScaleBias(scaleBias, 3, 1, 2, 3);
  buffer->clearDirty();
  buffer->setTexCoords(0, NONE, 5.0f, other);
  EXPECT_TRUE(buffer->isDirty());
  EXPECT_FALSE(buffer->getTexCoords(0, scaleBias));
  expectScaleBias(scaleBias, 3, 1, 2, 3);
}

TEST(VertexBuffer, RefusesTexCoordsOfAWrongUnitOrShape) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  const float bias[3] = {1, 2, 3};
  const float other[3] = {7, 8, 9};
  const auto coords = newArray(4, 2);
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  buffer->setTexCoords(1, coords, 2.0f, bias);
  buffer->clearDirty();
  for (const int unit : {2, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    for (const auto& array : {coords, newArray(5, 4), NONE}) {
      expectFailure<std::invalid_argument>(
          [&] { buffer->setTexCoords(unit, array, 5.0f, other); },
          "VertexBuffer.setTexCoords() -- Texture unit index exceeds system limits");
    }
  }
  expectFailure<std::invalid_argument>(
      [&] {
        buffer->setTexCoords(1, boost::shared_ptr<VertexArray>(new VertexArray), 5.0f, other);
      },
      "VertexBuffer.setTexCoords() -- input texture coord array has incorrect component size");
  expectFailure<std::invalid_argument>(
      [&] { buffer->setTexCoords(1, newArray(5, 4), 5.0f, other); },
      "VertexBuffer.setTexCoords() -- input texture coord array must have 2 or 3 components");
  expectFailure<std::invalid_argument>(
      [&] { buffer->setTexCoords(1, newArray(5, 3), 5.0f, other); },
      "VertexBuffer.setTexCoords() -- input texture coord array length doesn't match existing "
      "vertexCount");
  float scaleBias[4];
  EXPECT_EQ(buffer->getTexCoords(1, scaleBias), coords);
  expectScaleBias(scaleBias, 2, 1, 2, 3);
  EXPECT_FALSE(buffer->isDirty());
}

TEST(VertexBuffer, AFailedSetTexCoordsLeavesTheTablesMade) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  EXPECT_FALSE(buffer->hasTexCoordTables());
  expectFailure<std::invalid_argument>(
      [&] { buffer->setTexCoords(2, newArray(4, 2), 1.0f, nullptr); },
      "VertexBuffer.setTexCoords() -- Texture unit index exceeds system limits");
  EXPECT_TRUE(buffer->hasTexCoordTables());
  EXPECT_FALSE(buffer->getTexCoords(1, nullptr));
}

TEST(VertexBuffer, RefusesToReadUnitsOutsideTheLimits) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  float scaleBias[4] = {9, 9, 9, 9};
  for (const int unit : {2, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    expectFailure<std::out_of_range>([&] { buffer->getTexCoords(unit, scaleBias); },
                                     "Texture index is out of range");
  }
  expectScaleBias(scaleBias, 9, 9, 9, 9);
}

TEST(VertexBuffer, TablesMadeWithFewerUnitsGrow) {
  const auto buffer = VertexBuffer::create();
  const auto coords = newArray(4, 2);
  const float bias[3] = {1, 2, 3};
  {
    const TextureUnits limit(1);
    buffer->setTexCoords(0, coords, 2.0f, bias);
  }
  const TextureUnits limit(8);
  float scaleBias[4];
  EXPECT_FALSE(buffer->getTexCoords(7, scaleBias));
  expectScaleBias(scaleBias, 1, 0, 0, 0);
  EXPECT_EQ(duplicateOf(*buffer)->getTexCoords(0, nullptr), coords);
  buffer->setTexCoords(7, coords, 4.0f, nullptr);
  EXPECT_EQ(buffer->getTexCoords(7, scaleBias), coords);
  expectScaleBias(scaleBias, 4, 0, 0, 0);
  EXPECT_EQ(buffer->getTexCoords(0, scaleBias), coords);
  expectScaleBias(scaleBias, 2, 1, 2, 3);
}

TEST(VertexBuffer, UnitsThatTheEngineNoLongerHasAreOutOfSight) {
  const auto buffer = VertexBuffer::create();
  const auto first = newArray(4, 2);
  const auto last = newArray(4, 2);
  const TextureUnits limit(8);
  buffer->setTexCoords(0, first, 2.0f, nullptr);
  buffer->setTexCoords(2, last, 3.0f, nullptr);
  {
    const TextureUnits fewer(2);
    EXPECT_EQ(referencesOf(*buffer), (std::vector<boost::shared_ptr<Object3D>>{first}));
    EXPECT_FALSE(buffer->getArray(3 + 2));
    EXPECT_EQ(outputOf([&] { buffer->dump(); }).find("Texture 2"), std::string::npos);
    EXPECT_EQ(duplicateOf(*buffer)->getTexCoords(0, nullptr), first);
  }
  EXPECT_EQ(referencesOf(*buffer), (std::vector<boost::shared_ptr<Object3D>>{first, last}));
  EXPECT_EQ(buffer->getArray(3 + 2), last);
}

TEST(VertexBuffer, SelectsItsArraysByNumber) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  for (int selector = -2; selector < 8; ++selector) {
    EXPECT_FALSE(buffer->getArray(selector));
  }
  const auto positions = newArray(4, 3);
  const auto normals = newArray(4, 3);
  const auto colors = newArray(4, 4, 1);
  const auto coords = newArray(4, 2);
  buffer->setPositions(positions, 1.0f, nullptr);
  buffer->setNormals(normals);
  buffer->setColors(colors);
  buffer->setTexCoords(1, coords, 1.0f, nullptr);
  EXPECT_EQ(buffer->getArray(0), positions);
  EXPECT_EQ(buffer->getArray(1), normals);
  EXPECT_EQ(buffer->getArray(2), colors);
  EXPECT_FALSE(buffer->getArray(3));
  EXPECT_EQ(buffer->getArray(4), coords);
  for (const int selector :
       {5, 6, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    EXPECT_FALSE(buffer->getArray(selector));
  }
}

std::vector<float> floats(const std::unique_ptr<float[]>& values, int count) {
  return values ? std::vector<float>(values.get(), values.get() + count) : std::vector<float>();
}

TEST(VertexBuffer, DecodesPositions) {
  const auto buffer = VertexBuffer::create();
  const auto positions = newArray(2, 3);
  const short values[6] = {1, 2, 3, -4, 5, 32767};
  positions->set(0, 2, values);
  buffer->setPositions(positions, 0.5f, nullptr);
  EXPECT_EQ(floats(buffer->getVertex(1), 3), (std::vector<float>{-2, 2.5f, 16383.5f}));
  const float bias[3] = {10, 20, 30};
  buffer->setPositions(positions, 0.5f, bias);
  EXPECT_EQ(floats(buffer->getVertex(0), 3), (std::vector<float>{10.5f, 21, 31.5f}));
}

TEST(VertexBuffer, RefusesVerticesOutsideWithTheNumber) {
  const auto buffer = VertexBuffer::create();
  expectFailure<std::out_of_range>([&] { buffer->getVertex(0); },
                                   "VertexBuffer::getVertex(0): Invalid vertex index");
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  expectFailure<std::out_of_range>([&] { buffer->getVertex(-1); },
                                   "VertexBuffer::getVertex(-1): Invalid vertex index");
  expectFailure<std::out_of_range>([&] { buffer->getVertex(4); },
                                   "VertexBuffer::getVertex(4): Invalid vertex index");
  expectFailure<std::out_of_range>([&] { buffer->getVertex(std::numeric_limits<int>::min()); },
                                   "VertexBuffer::getVertex(-2147483648): Invalid vertex index");
}

TEST(VertexBuffer, GivesNormalsAsTheyAreStored) {
  const auto buffer = VertexBuffer::create();
  buffer->setPositions(newArray(2, 3), 7.0f, nullptr);
  EXPECT_FALSE(buffer->getNormal(1));
  const auto normals = newArray(2, 3, 1);
  const signed char values[6] = {0, 0, 0, 127, -128, 1};
  normals->set(0, 2, values);
  buffer->setNormals(normals);
  EXPECT_EQ(floats(buffer->getNormal(1), 3), (std::vector<float>{127, -128, 1}));
  for (const int index : {-1, 2}) {
    expectFailure<std::out_of_range>([&] { buffer->getNormal(index); }, "Invalid normal index");
  }
}

TEST(VertexBuffer, NormalsShorterThanThePositionsAreNotReadPastTheirEnd) {
  const auto buffer = VertexBuffer::create();
  buffer->setNormals(newArray(2, 3, 1));
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  expectFailure<std::out_of_range>([&] { buffer->getNormal(3); }, "Invalid vertex index");
}

TEST(VertexBuffer, DecodesTexCoords) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  buffer->setPositions(newArray(2, 3), 1.0f, nullptr);
  EXPECT_FALSE(buffer->getTexCoord(0, 0));
  const auto two = newArray(2, 2, 1);
  const signed char bytes[4] = {1, 2, -3, 4};
  two->set(0, 2, bytes);
  const auto three = newArray(2, 3);
  const short shorts[6] = {1, 2, 3, 4, 5, 6};
  three->set(0, 2, shorts);
  const float bias[3] = {100, 200, 300};
  buffer->setTexCoords(0, two, 2.0f, bias);
  buffer->setTexCoords(1, three, 0.5f, nullptr);
  EXPECT_EQ(floats(buffer->getTexCoord(1, 0), 2), (std::vector<float>{94, 208}));
  EXPECT_EQ(floats(buffer->getTexCoord(1, 1), 3), (std::vector<float>{2, 2.5f, 3}));
  for (const int index : {-1, 2}) {
    expectFailure<std::out_of_range>([&] { buffer->getTexCoord(index, 5); },
                                     "Invalid vertex index");
  }
  for (const int unit : {-1, 2}) {
    expectFailure<std::out_of_range>([&] { buffer->getTexCoord(0, unit); },
                                     "Invalid texture index");
  }
}

TEST(VertexBuffer, RefersToTexCoordsColorsNormalsPositions) {
  const TextureUnits limit(3);
  const auto buffer = VertexBuffer::create();
  const auto positions = newArray(4, 3);
  const auto normals = newArray(4, 3);
  const auto colors = newArray(4, 4, 1);
  const auto first = newArray(4, 2);
  const auto last = newArray(4, 2);
  buffer->setPositions(positions, 1.0f, nullptr);
  buffer->setNormals(normals);
  buffer->setColors(colors);
  buffer->setWorkingColors(newArray(4, 4, 1));
  buffer->setTexCoords(2, last, 1.0f, nullptr);
  buffer->setTexCoords(0, first, 1.0f, nullptr);
  EXPECT_EQ(referencesOf(*buffer),
            (std::vector<boost::shared_ptr<Object3D>>{first, last, colors, normals, positions}));
  boost::shared_ptr<Object3D> references[5];
  for (unsigned room = 0; room < 5; ++room) {
    expectFailure<std::invalid_argument>([&] { buffer->getReferences(references, room); },
                                         "VertexBuffer::getReferences maxReferences too small");
  }
}

TEST(VertexBuffer, DumpsItsFields) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  EXPECT_EQ(outputOf([&] { buffer->dump(); }), baseDump() +
                                                   "VertexBuffer Object\n"
                                                   "===================\n"
                                                   "DefaultColor:  (0xFF, 0xFF, 0xFF, 0xFF)\n"
                                                   "Positions ID: 0\n"
                                                   "PotitionBias: [  0.0000   0.0000   0.0000]\n"
                                                   "PositionScale:   1.0000\n");
  const float bias[3] = {1, -2, 0.5f};
  const auto positions = newArray(4, 3);
  positions->setUserID(1);
  const auto normals = newArray(4, 3);
  normals->setUserID(2);
  const auto colors = newArray(4, 4, 1);
  colors->setUserID(3);
  const auto coords = newArray(4, 2);
  coords->setUserID(4);
  buffer->setUserID(77);
  buffer->setDefaultColor(static_cast<int>(0x80010A20u));
  buffer->setPositions(positions, 0.25f, bias);
  buffer->setNormals(normals);
  buffer->setColors(colors);
  buffer->setTexCoords(1, coords, 8.0f, bias);
  EXPECT_EQ(outputOf([&] { buffer->dump(); }), baseDump(77) +
                                                   "VertexBuffer Object\n"
                                                   "===================\n"
                                                   "DefaultColor:  (0x 1, 0x A, 0x20, 0x80)\n"
                                                   "Positions ID: 1\n"
                                                   "PotitionBias: [  1.0000  -2.0000   0.5000]\n"
                                                   "PositionScale:   0.2500\n"
                                                   "Normals ID: 2\n"
                                                   "Colors  ID: 3\n"
                                                   "Texture 1\n"
                                                   "\tTexCoords ID: 4\n"
                                                   "\tTexCoordBias: [  1.0000  -2.0000   0.5000]\n"
                                                   "\tTexCoordScale:   8.0000\n");
}

TEST(VertexBuffer, PrintsItsArrays) {
  const auto buffer = VertexBuffer::create();
  const auto array = newArray(1, 3);
  const short values[3] = {1, 2, 3};
  array->set(0, 1, values);
  buffer->setPositions(array, 2.0f, nullptr);
  buffer->setNormals(array);
  buffer->setColors(newArray(1, 3, 1));
  buffer->setTexCoords(0, array, 1.0f, nullptr);
  EXPECT_EQ(outputOf([&] { buffer->printContents(); }),
            "Default color: 0xFFFFFFFF\n"
            "Examine the VertexArray for vertices: \n"
            "1 2 3\n"
            "positionScale: 2.000000\n"
            "Vertex bias: 0.000000 0.000000 0.000000\n"
            "There is normal\n"
            "1 2 3\n"
            "There is color\n"
            "For this VertexArray, componentSize=1 not handled\n"
            "Examine texture vertex array\n"
            "1 2 3\n"
            "Texture bias 0.000000 0.000000 0.000000\n"
            "texture scale 1.000000\n");
}

TEST(VertexBuffer, DuplicateSharesTheArraysAndCopiesTheRest) {
  const TextureUnits limit(2);
  const auto buffer = VertexBuffer::create();
  const float bias[3] = {1, 2, 3};
  buffer->setUserID(6);
  buffer->setDefaultColor(0x01020304);
  buffer->setPositions(newArray(4, 3), 2.0f, bias);
  buffer->setNormals(newArray(4, 3));
  buffer->setColors(newArray(4, 4, 1));
  buffer->setTexCoords(1, newArray(4, 2), 3.0f, bias);
  buffer->setWorkingColors(newArray(4, 4, 1));
  buffer->setCachedAlphaFactor(0.5f);
  const auto copy = duplicateOf(*buffer);
  EXPECT_EQ(copy->getUserID(), 6);
  EXPECT_EQ(copy->getDefaultColor(), 0x01020304);
  EXPECT_EQ(referencesOf(*copy), referencesOf(*buffer));
  EXPECT_FALSE(copy->getWorkingColors());
  EXPECT_EQ(copy->getCachedAlphaFactor(), -1.0f);
  float scaleBias[4];
  copy->getPositions(scaleBias);
  expectScaleBias(scaleBias, 2, 1, 2, 3);
  copy->getTexCoords(1, scaleBias);
  expectScaleBias(scaleBias, 3, 1, 2, 3);
  const float other[3] = {7, 8, 9};
  copy->setPositions(newArray(4, 3), 5.0f, other);
  copy->setTexCoords(1, NONE, 1.0f, nullptr);
  copy->setDefaultColor(0);
  buffer->getPositions(scaleBias);
  expectScaleBias(scaleBias, 2, 1, 2, 3);
  EXPECT_TRUE(buffer->getTexCoords(1, nullptr));
  EXPECT_EQ(buffer->getDefaultColor(), 0x01020304);
}

TEST(VertexBuffer, TheDuplicateOfAnInconsistentBufferFailsInTheSetters) {
  const auto buffer = VertexBuffer::create();
  buffer->setTexCoords(0, newArray(5, 2), 1.0f, nullptr);
  buffer->setPositions(newArray(4, 3), 1.0f, nullptr);
  expectFailure<std::invalid_argument>(
      [&] { buffer->duplicate(); },
      "VertexBuffer.setTexCoords() -- input texture coord array length doesn't match existing "
      "vertexCount");
}

TEST(VertexBuffer, KeepsTheRenderersNotes) {
  const auto buffer = VertexBuffer::create();
  const auto working = newArray(4, 4, 1);
  buffer->setWorkingColors(working);
  buffer->setCachedAlphaFactor(0.25f);
  EXPECT_EQ(buffer->getWorkingColors(), working);
  EXPECT_EQ(buffer->getCachedAlphaFactor(), 0.25f);
}

}  // namespace
}  // namespace varnel_m3g
