#include <cstring>
#include <vector>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/memory.h"
#include "tests/support/recording_driver.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const void* offset(std::size_t bytes) {
  return reinterpret_cast<const void*>(bytes);
}

// The floats of the driver's buffer loads, in their order.
struct Loads {
  explicit Loads(RecordingDriver& recording) {
    recording.onCall("glBufferData", [this](const RecordingDriver::Call& call) {
      const std::size_t from = call.text.find(", ") + 2;
      const std::size_t bytes = std::stoul(call.text.substr(from));
      const auto* begin = static_cast<const unsigned char*>(call.addresses.back());
      all.emplace_back(begin, begin + bytes);
    });
  }

  std::vector<float> floats(std::size_t load) const {
    std::vector<float> values(all.at(load).size() / sizeof(float));
    std::memcpy(values.data(), all[load].data(), values.size() * sizeof(float));
    return values;
  }

  std::vector<std::vector<unsigned char>> all;
};

GLuint filledBuffer(GLenum target, const std::vector<unsigned char>& bytes) {
  GLuint name = 0;
  glGenBuffers(1, &name);
  glBindBuffer(target, name);
  glBufferData(target, static_cast<GLsizeiptr>(bytes.size()), bytes.data(), GL_STATIC_DRAW);
  return name;
}

TEST(Buffers, OfTypesThatTheDriverHasAreLoadedAtOnce) {
  RecordingDriver recording;
  const Loads loads(recording);
  const float data[] = {1, 2, 3, 4};
  glBindBuffer(GL_ARRAY_BUFFER, 7);
  glBufferData(GL_ARRAY_BUFFER, sizeof data, data, GL_STATIC_DRAW);
  glVertexPointer(2, GL_FLOAT, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_LINES, 0, 2);
  EXPECT_THAT(recording.take(),
              ElementsAre("glBindBuffer(GL_ARRAY_BUFFER, 7)",
                          "glBufferData(GL_ARRAY_BUFFER, 16, <ptr>, GL_STATIC_DRAW)",
                          "glVertexPointer(2, GL_FLOAT, 0, null)",
                          "glEnableClientState(GL_VERTEX_ARRAY)", "glDrawArrays(GL_LINES, 0, 2)"));
  EXPECT_THAT(loads.floats(0), ElementsAre(1, 2, 3, 4));
}

TEST(Buffers, OfFixedPointAreConvertedOnceAndBoundForTheDraw) {
  RecordingDriver recording;
  const Loads loads(recording);
  const GLfixed data[] = {0x10000, 0x8000, -0x10000, 0};
  glBindBuffer(GL_ARRAY_BUFFER, 70);
  glBufferData(GL_ARRAY_BUFFER, sizeof data, data, GL_DYNAMIC_DRAW);
  glVertexPointer(2, GL_FIXED, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  recording.clear();
  glDrawArrays(GL_LINES, 0, 2);
  EXPECT_THAT(recording.take(),
              ElementsAre("glGenBuffers(1, <ptr>)", "glBindBuffer(GL_ARRAY_BUFFER, 1)",
                          "glBufferData(GL_ARRAY_BUFFER, 16, <ptr>, GL_DYNAMIC_DRAW)",
                          "glBindBuffer(GL_ARRAY_BUFFER, 70)", "glBindBuffer(GL_ARRAY_BUFFER, 1)",
                          "glVertexPointer(2, GL_FLOAT, 0, null)",
                          "glBindBuffer(GL_ARRAY_BUFFER, 70)", "glDrawArrays(GL_LINES, 0, 2)"));
  EXPECT_THAT(loads.floats(1), ElementsAre(1, 0.5f, -1, 0));
  glDrawArrays(GL_LINES, 0, 2);
  EXPECT_THAT(
      recording.take(),
      ElementsAre("glBindBuffer(GL_ARRAY_BUFFER, 1)", "glVertexPointer(2, GL_FLOAT, 0, null)",
                  "glBindBuffer(GL_ARRAY_BUFFER, 70)", "glDrawArrays(GL_LINES, 0, 2)"));
}

TEST(Buffers, AreConvertedAgainAfterEachUploadAndPatch) {
  RecordingDriver recording;
  const Loads loads(recording);
  filledBuffer(GL_ARRAY_BUFFER, {1, 2, 3, 4});
  glVertexPointer(2, GL_BYTE, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_LINES, 0, 2);
  const GLbyte patch[] = {9, -9};
  glBufferSubData(GL_ARRAY_BUFFER, 1, 2, patch);
  glDrawArrays(GL_LINES, 0, 2);
  const GLbyte whole[] = {5, 6};
  glBufferData(GL_ARRAY_BUFFER, 2, whole, GL_STATIC_DRAW);
  glDrawArrays(GL_POINTS, 0, 1);
  ASSERT_EQ(loads.all.size(), 5u);
  EXPECT_THAT(loads.floats(1), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(loads.floats(2), ElementsAre(1, 9, -9, 4));
  EXPECT_THAT(loads.floats(4), ElementsAre(5, 6));
}

TEST(Buffers, KeepInterleavedArraysOfOtherTypes) {
  RecordingDriver recording;
  const Loads loads(recording);
  // Two records of 12 bytes: a vertex of two shorts, a colour of four bytes, a fixed coordinate.
  const std::vector<unsigned char> data = {1, 0, 2, 0, 10, 11, 12, 13, 0, 0, 1, 0,
                                           3, 0, 4, 0, 20, 21, 22, 23, 0, 0, 2, 0};
  const GLuint name = filledBuffer(GL_ARRAY_BUFFER, data);
  glVertexPointer(2, GL_SHORT, 12, offset(0));
  glColorPointer(4, GL_UNSIGNED_BYTE, 12, offset(4));
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  EXPECT_THAT(recording.calls("glVertexPointer"),
              ElementsAre("glVertexPointer(2, GL_SHORT, 12, null)"));
  glBindBuffer(GL_ARRAY_BUFFER, 0);
  recording.clear();
  glDrawArrays(GL_LINES, 0, 2);
  EXPECT_THAT(recording.calls("glVertexPointer"), IsEmpty());
  EXPECT_THAT(recording.calls("glColorPointer"),
              ElementsAre("glColorPointer(4, GL_FLOAT, 0, null)"));
  ASSERT_EQ(loads.all.size(), 2u);
  EXPECT_EQ(loads.all[0], data);
  EXPECT_THAT(loads.floats(1), ElementsAre(10, 11, 12, 13, 20, 21, 22, 23));
  GLint size = 0;
  glBindBuffer(GL_ARRAY_BUFFER, name);
  recording.answer(GL_BUFFER_SIZE, {24});
  glGetBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &size);
  EXPECT_EQ(size, 24);
}

TEST(Buffers, HaveAStreamForEachLayout) {
  RecordingDriver recording;
  const Loads loads(recording);
  filledBuffer(GL_ARRAY_BUFFER, {1, 2, 3, 4, 5, 6});
  glVertexPointer(2, GL_BYTE, 0, offset(0));
  glTexCoordPointer(3, GL_BYTE, 0, offset(3));
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glDrawArrays(GL_POINTS, 0, 1);
  glDrawArrays(GL_POINTS, 0, 1);
  ASSERT_EQ(loads.all.size(), 3u);
  EXPECT_THAT(loads.floats(1), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_THAT(loads.floats(2), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_THAT(recording.calls("glTexCoordPointer"),
              ElementsAre("glTexCoordPointer(3, GL_FLOAT, 0, <ptr>)",
                          "glTexCoordPointer(3, GL_FLOAT, 0, <ptr>)"));
}

TEST(Buffers, ArraysInOneRasterShareAStream) {
  RecordingDriver recording;
  const Loads loads(recording);
  filledBuffer(GL_ARRAY_BUFFER, {9, 1, 2, 3, 4, 5, 6});
  glEnableClientState(GL_VERTEX_ARRAY);
  std::vector<std::size_t> begins;
  recording.onCall("glVertexPointer", [&begins](const RecordingDriver::Call& call) {
    begins.push_back(reinterpret_cast<std::size_t>(call.addresses.back()));
  });
  for (const std::size_t at : {5, 1, 3}) {
    glVertexPointer(2, GL_BYTE, 0, offset(at));
    glDrawArrays(GL_POINTS, 0, 1);
  }
  ASSERT_EQ(loads.all.size(), 2u);
  EXPECT_THAT(loads.floats(1), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_THAT(begins, ElementsAre(16u, 0u, 8u));
}

TEST(Buffers, AConversionNeverReadsPastTheCopy) {
  RecordingDriver recording;
  const Loads loads(recording);
  // Seven bytes hold three records of three with the last one cut; what is missing counts as 0.
  filledBuffer(GL_ARRAY_BUFFER, {1, 2, 3, 4, 5, 6, 7});
  glVertexPointer(3, GL_BYTE, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_POINTS, 0, 3);
  EXPECT_THAT(loads.floats(1), ElementsAre(1, 2, 3, 4, 5, 6, 7, 0, 0));
}

TEST(Buffers, AnOffsetBeyondTheDataDropsTheArray) {
  RecordingDriver recording;
  filledBuffer(GL_ARRAY_BUFFER, {1, 2, 3});
  glVertexPointer(3, GL_BYTE, 0, offset(3));
  glEnableClientState(GL_VERTEX_ARRAY);
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.take(),
              ElementsAre("glDisableClientState(GL_VERTEX_ARRAY)", "glDrawArrays(GL_POINTS, 0, 1)",
                          "glEnableClientState(GL_VERTEX_ARRAY)"));
}

TEST(Buffers, NullDataDoNothing) {
  RecordingDriver recording;
  glBindBuffer(GL_ARRAY_BUFFER, 4);
  recording.clear();
  glBufferData(GL_ARRAY_BUFFER, 64, nullptr, GL_STATIC_DRAW);
  EXPECT_THAT(recording.take(), IsEmpty());
}

TEST(Buffers, APatchThatDoesNotFitIsLeftToTheDriver) {
  RecordingDriver recording;
  const Loads loads(recording);
  filledBuffer(GL_ARRAY_BUFFER, {1, 2, 3, 4});
  recording.clear();
  const GLbyte patch[] = {9, 9};
  glBufferSubData(GL_ARRAY_BUFFER, 3, 2, patch);
  glBufferSubData(GL_ARRAY_BUFFER, -1, 2, patch);
  EXPECT_THAT(recording.take(), ElementsAre("glBufferSubData(GL_ARRAY_BUFFER, 3, 2, <ptr>)",
                                            "glBufferSubData(GL_ARRAY_BUFFER, -1, 2, <ptr>)"));
  glVertexPointer(2, GL_BYTE, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(loads.floats(1), ElementsAre(1, 2, 3, 4));
}

TEST(Buffers, OfIndicesStayOnTheClientsSide) {
  RecordingDriver recording;
  const GLuint name = filledBuffer(GL_ELEMENT_ARRAY_BUFFER, {0, 0, 1, 0, 2, 0});
  EXPECT_THAT(recording.take(), ElementsAre("glGenBuffers(1, <ptr>)"));
  std::vector<GLushort> seen;
  recording.onCall("glDrawElements", [&seen](const RecordingDriver::Call& call) {
    const auto* indices = static_cast<const GLushort*>(call.addresses.back());
    seen.assign(indices, indices + 2);
  });
  glDrawElements(GL_LINES, 2, GL_UNSIGNED_SHORT, offset(2));
  EXPECT_THAT(seen, ElementsAre(1, 2));
  recording.clear();
  GLint value = 0;
  glGetIntegerv(GL_ELEMENT_ARRAY_BUFFER_BINDING, &value);
  EXPECT_EQ(value, static_cast<GLint>(name));
  glGetBufferParameteriv(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_SIZE, &value);
  EXPECT_EQ(value, 6);
  glGetBufferParameteriv(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_USAGE, &value);
  EXPECT_EQ(value, GL_STATIC_DRAW);
  EXPECT_EQ(glIsBuffer(name), GL_TRUE);
  EXPECT_THAT(recording.take(), IsEmpty());
}

TEST(Buffers, ADrawThatWouldReadPastTheIndicesIsLeftOut) {
  RecordingDriver recording;
  filledBuffer(GL_ELEMENT_ARRAY_BUFFER, {0, 1, 2});
  glDrawElements(GL_TRIANGLES, 4, GL_UNSIGNED_BYTE, offset(0));
  glDrawElements(GL_TRIANGLES, 3, GL_UNSIGNED_BYTE, offset(1));
  glDrawElements(GL_TRIANGLES, 2, GL_UNSIGNED_SHORT, offset(0));
  glDrawElements(GL_TRIANGLES, 1, GL_UNSIGNED_BYTE, offset(~std::size_t{0}));
  EXPECT_THAT(recording.calls("glDrawElements"), IsEmpty());
}

TEST(Buffers, FilledAsIndicesAreLoadedWhenBoundForArrays) {
  RecordingDriver recording;
  const Loads loads(recording);
  const GLuint name = filledBuffer(GL_ELEMENT_ARRAY_BUFFER, {1, 2, 3, 4});
  EXPECT_THAT(loads.all, IsEmpty());
  glBindBuffer(GL_ARRAY_BUFFER, name);
  ASSERT_EQ(loads.all.size(), 1u);
  EXPECT_THAT(loads.all[0], ElementsAre(1, 2, 3, 4));
}

TEST(Buffers, ADeletedOneIsNoSourceAnyMore) {
  RecordingDriver recording;
  const GLuint name = filledBuffer(GL_ARRAY_BUFFER, {1, 2, 3, 4});
  glVertexPointer(2, GL_BYTE, 0, offset(2));
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_POINTS, 0, 1);
  recording.clear();
  glDeleteBuffers(1, &name);
  EXPECT_THAT(recording.take(), ElementsAre("glDeleteBuffers(1, [2])", "glDeleteBuffers(1, [1])"));
  GLint bound = -1;
  glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
  EXPECT_EQ(bound, 0);
  glGetIntegerv(GL_VERTEX_ARRAY_BUFFER_BINDING, &bound);
  EXPECT_EQ(bound, 0);
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.take(),
              ElementsAre("glDisableClientState(GL_VERTEX_ARRAY)", "glDrawArrays(GL_POINTS, 0, 1)",
                          "glEnableClientState(GL_VERTEX_ARRAY)"));
}

TEST(Buffers, AStreamMovesAwayFromANameThatTheClientTakes) {
  RecordingDriver recording;
  filledBuffer(GL_ARRAY_BUFFER, {1, 2});
  glVertexPointer(2, GL_BYTE, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_EQ(glIsBuffer(2), GL_FALSE);
  glBindBuffer(GL_ARRAY_BUFFER, 2);
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.calls(), Contains("glBindBuffer(GL_ARRAY_BUFFER, 3)"));
}

TEST(Buffers, AFailedConversionDropsTheArrayAndIsNotTriedAgain) {
  RecordingDriver recording;
  filledBuffer(GL_ARRAY_BUFFER, {1, 2});
  glVertexPointer(2, GL_BYTE, 0, nullptr);
  glEnableClientState(GL_VERTEX_ARRAY);
  auto* const former = gles::reallocate;
  gles::reallocate = [](void*, std::size_t) -> void* { return nullptr; };
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  gles::reallocate = former;
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.calls("glVertexPointer"), IsEmpty());
  EXPECT_THAT(recording.calls("glDisableClientState").size(), testing::Eq(2u));
  const GLbyte fresh[] = {3, 4};
  glBufferData(GL_ARRAY_BUFFER, 2, fresh, GL_STATIC_DRAW);
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.calls("glVertexPointer"),
              ElementsAre("glVertexPointer(2, GL_FLOAT, 0, null)"));
}

TEST(Buffers, OfUnknownTargetsAreLeftToTheDriver) {
  RecordingDriver recording;
  const GLbyte data[] = {1};
  glBindBuffer(0x88EB, 1);
  glBufferData(0x88EB, 1, data, GL_STATIC_DRAW);
  glBufferData(GL_ARRAY_BUFFER, 1, data, GL_STATIC_DRAW);  // Nothing is bound.
  EXPECT_THAT(
      recording.take(),
      ElementsAre("glBindBuffer(0x88EB, 1)", "glBufferData(0x88EB, 1, <ptr>, GL_STATIC_DRAW)",
                  "glBufferData(GL_ARRAY_BUFFER, 1, <ptr>, GL_STATIC_DRAW)"));
}

}  // namespace
