#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es1/context_state.h"
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

}  // namespace
