#include <functional>
#include <string>
#include <vector>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es1/context_state.h"
#include "gles/memory.h"
#include "tests/support/recording_driver.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<float> floatsAt(const void* address, std::size_t count) {
  const auto* values = static_cast<const float*>(address);
  return std::vector<float>(values, values + count);
}

// What the driver finds behind the last pointer of a function at the time of a draw.
struct SeenAtDraw {
  SeenAtDraw(RecordingDriver& recording, const char* pointer, std::size_t count,
             const char* draw = "glDrawArrays") {
    recording.onCall(draw, [this, &recording, pointer, count](const RecordingDriver::Call&) {
      values = floatsAt(recording.lastAddress(pointer), count);
    });
  }

  std::vector<float> values;
};

TEST(ClientArrays, ByteVerticesAreDrawnThroughAFloatCopy) {
  RecordingDriver recording;
  const SeenAtDraw seen(recording, "glVertexPointer", 6);
  const GLbyte vertices[] = {-128, 0, 127, 1, -1, 2};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices);
  EXPECT_THAT(recording.take(), ElementsAre("glEnableClientState(GL_VERTEX_ARRAY)"));
  glDrawArrays(GL_TRIANGLES, 0, 3);
  EXPECT_THAT(recording.take(), ElementsAre("glVertexPointer(2, GL_FLOAT, 0, <ptr>)",
                                            "glDrawArrays(GL_TRIANGLES, 0, 3)"));
  EXPECT_THAT(seen.values, ElementsAre(-128, 0, 127, 1, -1, 2));
}

TEST(ClientArrays, ShortVerticesAreForwardedAsTheyAre) {
  RecordingDriver recording;
  const GLshort vertices[] = {1, 2, 3, 4};
  glVertexPointer(2, GL_SHORT, 0, vertices);
  EXPECT_EQ(recording.lastAddress("glVertexPointer"), vertices);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_LINES, 0, 2);
  EXPECT_THAT(recording.take(),
              ElementsAre("glVertexPointer(2, GL_SHORT, 0, <ptr>)",
                          "glEnableClientState(GL_VERTEX_ARRAY)", "glDrawArrays(GL_LINES, 0, 2)"));
}

TEST(ClientArrays, OnlyTypesThatTheDriverLacksAreKeptBack) {
  const struct {
    std::function<void()> call;
    std::vector<std::string> expected;
  } cases[] = {
      {[] { glVertexPointer(3, GL_FLOAT, 16, nullptr); },
       {"glVertexPointer(3, GL_FLOAT, 16, null)"}},
      {[] { glVertexPointer(4, GL_SHORT, 8, nullptr); }, {"glVertexPointer(4, GL_SHORT, 8, null)"}},
      {[] { glVertexPointer(3, GL_FIXED, 0, nullptr); }, {}},
      {[] { glVertexPointer(3, GL_BYTE, 0, nullptr); }, {}},
      {[] { glNormalPointer(GL_BYTE, 0, nullptr); }, {"glNormalPointer(GL_BYTE, 0, null)"}},
      {[] { glNormalPointer(GL_SHORT, 0, nullptr); }, {"glNormalPointer(GL_SHORT, 0, null)"}},
      {[] { glNormalPointer(GL_FLOAT, 12, nullptr); }, {"glNormalPointer(GL_FLOAT, 12, null)"}},
      {[] { glNormalPointer(GL_FIXED, 0, nullptr); }, {}},
      {[] { glColorPointer(4, GL_FLOAT, 0, nullptr); }, {"glColorPointer(4, GL_FLOAT, 0, null)"}},
      {[] { glColorPointer(4, GL_FIXED, 0, nullptr); }, {}},
      {[] { glColorPointer(4, GL_UNSIGNED_BYTE, 0, nullptr); }, {}},
      {[] { glTexCoordPointer(2, GL_SHORT, 0, nullptr); },
       {"glTexCoordPointer(2, GL_SHORT, 0, null)"}},
      {[] { glTexCoordPointer(3, GL_FLOAT, 0, nullptr); },
       {"glTexCoordPointer(3, GL_FLOAT, 0, null)"}},
      {[] { glTexCoordPointer(2, GL_FIXED, 0, nullptr); }, {}},
      {[] { glTexCoordPointer(2, GL_BYTE, 0, nullptr); }, {}},
  };
  RecordingDriver recording;
  for (const auto& item : cases) {
    item.call();
    EXPECT_EQ(recording.take(), item.expected);
  }
}

TEST(ClientArrays, UnsignedByteColoursAreCastAndNotScaled) {
  RecordingDriver recording;
  const SeenAtDraw seen(recording, "glColorPointer", 8);
  const GLubyte colours[] = {255, 0, 1, 128, 2, 3, 4, 5};
  glEnableClientState(GL_COLOR_ARRAY);
  glColorPointer(4, GL_UNSIGNED_BYTE, 0, colours);
  glDrawArrays(GL_POINTS, 0, 2);
  EXPECT_THAT(recording.calls("glColorPointer"),
              ElementsAre("glColorPointer(4, GL_FLOAT, 0, <ptr>)"));
  EXPECT_THAT(seen.values, ElementsAre(255, 0, 1, 128, 2, 3, 4, 5));
}

TEST(ClientArrays, FixedPointRecordsWithAStrideAreClosedUp) {
  RecordingDriver recording;
  const SeenAtDraw seen(recording, "glNormalPointer", 6);
  const GLfixed normals[] = {0x10000, 0, -0x8000, 99, 0, 0x4000, 0x10000, 99};
  glEnableClientState(GL_NORMAL_ARRAY);
  glNormalPointer(GL_FIXED, 4 * sizeof(GLfixed), normals);
  glDrawArrays(GL_POINTS, 0, 2);
  EXPECT_THAT(recording.calls("glNormalPointer"),
              ElementsAre("glNormalPointer(GL_FLOAT, 0, <ptr>)"));
  EXPECT_THAT(seen.values, ElementsAre(1, 0, -0.5f, 0, 0.25f, 1));
}

TEST(ClientArrays, ADrawReadsItsOwnRangeAlone) {
  RecordingDriver recording;
  // Elements 2 and 3 exist, and nothing before or after them: the address sanitizer watches.
  const std::vector<GLbyte> existing = {10, 11, 12, 13};
  const GLbyte* base = existing.data() - 4;
  std::vector<float> seen;
  recording.onCall("glDrawArrays", [&](const RecordingDriver::Call&) {
    const auto* floats = static_cast<const float*>(recording.lastAddress("glVertexPointer"));
    seen.assign(floats + 4, floats + 8);
  });
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, base);
  glDrawArrays(GL_LINES, 2, 2);
  EXPECT_THAT(seen, ElementsAre(10, 11, 12, 13));
}

TEST(ClientArrays, IndexedDrawsConvertUpToTheHighestIndex) {
  RecordingDriver recording;
  const SeenAtDraw seen(recording, "glVertexPointer", 8, "glDrawElements");
  const std::vector<GLbyte> vertices = {0, 1, 2, 3, 4, 5, 6, 7};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices.data());
  const GLubyte bytes[] = {0, 3, 1, 2};
  glDrawElements(GL_TRIANGLE_FAN, 4, GL_UNSIGNED_BYTE, bytes);
  EXPECT_THAT(seen.values, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
  const GLushort shorts[] = {3, 0, 2};
  glDrawElements(GL_TRIANGLES, 3, GL_UNSIGNED_SHORT, shorts);
  EXPECT_EQ(recording.lastAddress("glDrawElements"), shorts);
  EXPECT_THAT(recording.calls("glDrawElements"),
              ElementsAre("glDrawElements(GL_TRIANGLE_FAN, 4, GL_UNSIGNED_BYTE, <ptr>)",
                          "glDrawElements(GL_TRIANGLES, 3, GL_UNSIGNED_SHORT, <ptr>)"));
}

TEST(ClientArrays, AFewIndicesInAWideRangeAreConvertedAlone) {
  RecordingDriver recording;
  const SeenAtDraw seen(recording, "glVertexPointer", 12, "glDrawElements");
  std::vector<GLbyte> vertices(12);
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    vertices[i] = static_cast<GLbyte>(i);
  }
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices.data());
  glDrawArrays(GL_POINTS, 0, 6);
  for (GLbyte& component : vertices) {
    component = static_cast<GLbyte>(component + 50);
  }
  const GLushort indices[] = {5, 1};
  glDrawElements(GL_LINES, 2, GL_UNSIGNED_SHORT, indices);
  EXPECT_THAT(seen.values, ElementsAre(0, 1, 52, 53, 4, 5, 6, 7, 8, 9, 60, 61));
}

TEST(ClientArrays, WideIndicesAreRefusedByTheDriver) {
  RecordingDriver recording;
  const GLuint indices[] = {0, 1, 2};
  glDrawElements(GL_TRIANGLES, 3, 0x1405, indices);
  EXPECT_THAT(recording.take(), ElementsAre("glDrawElements(GL_TRIANGLES, 3, GL_FLOAT, null)"));
}

TEST(ClientArrays, DisabledArraysAreNotConverted) {
  RecordingDriver recording;
  const GLbyte vertices[] = {1, 2};
  glVertexPointer(2, GL_BYTE, 0, vertices);
  glEnableClientState(GL_VERTEX_ARRAY);
  glDisableClientState(GL_VERTEX_ARRAY);
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.take(), ElementsAre("glDrawArrays(GL_POINTS, 0, 1)"));
}

TEST(ClientArrays, ConversionFollowsTheDataOfEachDraw) {
  RecordingDriver recording;
  const SeenAtDraw seen(recording, "glVertexPointer", 2);
  GLbyte vertices[] = {1, 2};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices);
  glDrawArrays(GL_POINTS, 0, 1);
  vertices[0] = 9;
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(seen.values, ElementsAre(9, 2));
}

TEST(ClientArrays, TextureCoordinatesBelongToTheClientsUnit) {
  RecordingDriver recording;
  const GLbyte first[] = {1, 2};
  const GLbyte second[] = {3, 4};
  glTexCoordPointer(2, GL_BYTE, 0, first);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glClientActiveTexture(GL_TEXTURE1);
  glTexCoordPointer(2, GL_BYTE, 0, second);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(
      recording.take(),
      ElementsAre("glClientActiveTexture(GL_TEXTURE0)", "glTexCoordPointer(2, GL_FLOAT, 0, <ptr>)",
                  "glClientActiveTexture(GL_TEXTURE1)", "glTexCoordPointer(2, GL_FLOAT, 0, <ptr>)",
                  "glDrawArrays(GL_POINTS, 0, 1)"));
}

TEST(ClientArrays, UnitsBeyondTheSecondAreThereIfTheDriverHasThem) {
  RecordingDriver recording;
  recording.answer(GL_MAX_TEXTURE_UNITS, {8});
  const GLshort coordinates[] = {1, 2};
  glClientActiveTexture(GL_TEXTURE7);
  glTexCoordPointer(2, GL_SHORT, 0, coordinates);
  void* pointer = nullptr;
  glGetPointerv(GL_TEXTURE_COORD_ARRAY_POINTER, &pointer);
  EXPECT_EQ(pointer, coordinates);
  // A ninth is not: the driver refuses it, and the seventh stays active.
  glClientActiveTexture(GL_TEXTURE8);
  pointer = nullptr;
  glGetPointerv(GL_TEXTURE_COORD_ARRAY_POINTER, &pointer);
  EXPECT_EQ(pointer, coordinates);
  EXPECT_THAT(
      recording.calls("glClientActiveTexture"),
      ElementsAre("glClientActiveTexture(GL_TEXTURE7)", "glClientActiveTexture(GL_TEXTURE8)"));
}

TEST(ClientArrays, PointersAreAnsweredAsTheyWereGiven) {
  RecordingDriver recording;
  const GLbyte data[4] = {};
  glVertexPointer(2, GL_BYTE, 0, data);
  glNormalPointer(GL_BYTE, 0, data + 1);
  glColorPointer(4, GL_UNSIGNED_BYTE, 0, data + 2);
  glTexCoordPointer(2, GL_BYTE, 0, data + 3);
  const GLenum names[] = {GL_VERTEX_ARRAY_POINTER, GL_NORMAL_ARRAY_POINTER, GL_COLOR_ARRAY_POINTER,
                          GL_TEXTURE_COORD_ARRAY_POINTER};
  for (int i = 0; i < 4; ++i) {
    void* pointer = nullptr;
    glGetPointerv(names[i], &pointer);
    EXPECT_EQ(pointer, data + i);
  }
}

TEST(ClientArrays, GetPointervOfAnUnknownNameWritesZero) {
  RecordingDriver recording;
  int something = 0;
  void* pointer = &something;
  glGetPointerv(GL_FOG, &pointer);
  EXPECT_EQ(pointer, nullptr);
}

TEST(ClientArrays, LayoutsAreAnsweredAsTheyWereGiven) {
  RecordingDriver recording;
  glVertexPointer(3, GL_BYTE, 5, &recording);
  glColorPointer(4, GL_UNSIGNED_BYTE, 8, &recording);
  const struct {
    GLenum name;
    int expected;
  } cases[] = {
      {GL_VERTEX_ARRAY_SIZE, 3},
      {GL_VERTEX_ARRAY_TYPE, GL_BYTE},
      {GL_VERTEX_ARRAY_STRIDE, 5},
      {GL_COLOR_ARRAY_SIZE, 4},
      {GL_COLOR_ARRAY_TYPE, GL_UNSIGNED_BYTE},
      {GL_COLOR_ARRAY_STRIDE, 8},
      {GL_NORMAL_ARRAY_TYPE, GL_FLOAT},
      {GL_TEXTURE_COORD_ARRAY_SIZE, 4},
  };
  for (const auto& item : cases) {
    GLint integer = -1;
    GLfloat number = -1;
    GLfixed fixed = -1;
    glGetIntegerv(item.name, &integer);
    glGetFloatv(item.name, &number);
    glGetFixedv(item.name, &fixed);
    EXPECT_EQ(integer, item.expected);
    EXPECT_EQ(number, static_cast<float>(item.expected));
    EXPECT_EQ(fixed, item.expected * 0x10000);
  }
}

TEST(ClientArrays, BadSizesAndStridesReachTheDriverAloneForItsError) {
  RecordingDriver recording;
  const GLbyte data[4] = {};
  glVertexPointer(3, GL_BYTE, 0, data);
  glVertexPointer(5, GL_BYTE, 0, data + 1);
  glVertexPointer(2, GL_FIXED, -4, data + 1);
  EXPECT_THAT(recording.take(), ElementsAre("glVertexPointer(5, GL_FLOAT, 0, <ptr>)",
                                            "glVertexPointer(2, GL_FLOAT, -4, <ptr>)"));
  void* pointer = nullptr;
  glGetPointerv(GL_VERTEX_ARRAY_POINTER, &pointer);
  EXPECT_EQ(pointer, data);
}

TEST(ClientArrays, AnArrayWithoutDataIsOffForTheDraw) {
  RecordingDriver recording;
  glEnableClientState(GL_COLOR_ARRAY);
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.take(),
              ElementsAre("glDisableClientState(GL_COLOR_ARRAY)", "glDrawArrays(GL_POINTS, 0, 1)",
                          "glEnableClientState(GL_COLOR_ARRAY)"));
}

TEST(ClientArrays, AnArrayIsOffForTheDrawWhenMemoryIsShort) {
  RecordingDriver recording;
  const GLbyte vertices[] = {1, 2};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices);
  recording.clear();
  auto* const former = gles::reallocate;
  gles::reallocate = [](void*, std::size_t) -> void* { return nullptr; };
  glDrawArrays(GL_POINTS, 0, 1);
  gles::reallocate = former;
  EXPECT_THAT(recording.take(),
              ElementsAre("glDisableClientState(GL_VERTEX_ARRAY)", "glDrawArrays(GL_POINTS, 0, 1)",
                          "glEnableClientState(GL_VERTEX_ARRAY)"));
}

TEST(ClientArrays, BadCountsReachTheDriverForItsError) {
  RecordingDriver recording;
  const GLbyte vertices[] = {1, 2};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices);
  recording.clear();
  glDrawArrays(GL_POINTS, -1, 4);
  glDrawArrays(GL_POINTS, 0, -4);
  glDrawElements(GL_POINTS, -1, GL_UNSIGNED_BYTE, vertices);
  EXPECT_THAT(recording.take(),
              ElementsAre("glDrawArrays(GL_POINTS, -1, 4)", "glDrawArrays(GL_POINTS, 0, -4)",
                          "glDrawElements(GL_POINTS, -1, GL_UNSIGNED_BYTE, null)"));
}

TEST(ClientArrays, ConvertedArraysAreInClientMemoryWhateverBufferIsBound) {
  RecordingDriver recording;
  const GLbyte vertices[] = {1, 2};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, vertices);
  glBindBuffer(GL_ARRAY_BUFFER, 3);
  recording.clear();
  glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(
      recording.take(),
      ElementsAre("glBindBuffer(GL_ARRAY_BUFFER, 0)", "glVertexPointer(2, GL_FLOAT, 0, <ptr>)",
                  "glBindBuffer(GL_ARRAY_BUFFER, 3)", "glDrawArrays(GL_POINTS, 0, 1)"));
}

}  // namespace
