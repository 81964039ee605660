#include <functional>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/function_table.h"
#include "tests/support/recording_driver.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

int copyBacks = 0;

TEST(MatrixStack, ForwardsInOtherModesThanTexture) {
  RecordingDriver recording;
  recording.answer(0x0D39, {1});
  glMatrixMode(GL_PROJECTION);
  glPushMatrix();
  glPopMatrix();
  EXPECT_THAT(recording.take(),
              ElementsAre("glMatrixMode(GL_PROJECTION)", "glPushMatrix()", "glPopMatrix()"));
}

TEST(MatrixStack, OfTexturesForwardsWhereTheDriversIsDeepEnough) {
  RecordingDriver recording;
  recording.answer(0x0D39, {2});
  glMatrixMode(GL_TEXTURE);
  glPushMatrix();
  glPopMatrix();
  glPushMatrix();
  EXPECT_THAT(recording.take(), ElementsAre("glMatrixMode(GL_TEXTURE)",
                                            "glGetIntegerv(GL_MAX_TEXTURE_STACK_DEPTH, <ptr>)",
                                            "glPushMatrix()", "glPopMatrix()", "glPushMatrix()"));
}

TEST(MatrixStack, OfTexturesGivesTheFormerMatrixBackOnADriverOfDepthOne) {
  RecordingDriver recording;
  recording.answer(0x0D39, {1});
  recording.answer(GL_TEXTURE_MATRIX, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
  glMatrixMode(GL_TEXTURE);
  glPushMatrix();
  recording.answer(GL_TEXTURE_MATRIX, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  recording.clear();
  glPopMatrix();
  EXPECT_THAT(
      recording.take(),
      ElementsAre("glLoadMatrixf([1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16])"));
}

TEST(MatrixStack, OfTexturesIsOneForEachUnit) {
  RecordingDriver recording;
  recording.answer(0x0D39, {1});
  const auto answerMatrix = [&recording](double value) {
    recording.answer(GL_TEXTURE_MATRIX, std::vector<double>(16, value));
  };
  glMatrixMode(GL_TEXTURE);
  answerMatrix(1);
  glPushMatrix();
  glActiveTexture(GL_TEXTURE1);
  answerMatrix(2);
  glPushMatrix();
  glActiveTexture(GL_TEXTURE0);
  recording.clear();
  glPopMatrix();
  glActiveTexture(GL_TEXTURE1);
  glPopMatrix();
  EXPECT_THAT(recording.calls("glLoadMatrixf"),
              ElementsAre("glLoadMatrixf([1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1])",
                          "glLoadMatrixf([2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2])"));
}

TEST(PixelStore, IsForwardedAndTheAlignmentsRemembered) {
  RecordingDriver recording;
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, false);
  EXPECT_EQ(table.getPackAlignment(), 4);
  glPixelStorei(GL_PACK_ALIGNMENT, 2);
  EXPECT_EQ(table.getPackAlignment(), 2);
  glPixelStorei(GL_PACK_ALIGNMENT, 3);  // The driver refuses it.
  EXPECT_EQ(table.getPackAlignment(), 2);
  EXPECT_THAT(recording.take(), ElementsAre("glPixelStorei(GL_PACK_ALIGNMENT, 2)",
                                            "glPixelStorei(GL_PACK_ALIGNMENT, 3)"));
  recording.setStatesCurrent(false);
  EXPECT_EQ(table.getPackAlignment(), 4);
}

TEST(Finish, CopiesTheSurfaceBackOnceAfterADraw) {
  RecordingDriver recording;
  copyBacks = 0;
  setCopyBackHook([] { ++copyBacks; });
  glFinish();
  EXPECT_EQ(copyBacks, 0);
  glDrawArrays(GL_POINTS, 0, 1);
  glFinish();
  EXPECT_EQ(copyBacks, 1);
  glFinish();
  EXPECT_EQ(copyBacks, 1);
  const GLubyte index = 0;
  glDrawElements(GL_POINTS, 1, GL_UNSIGNED_BYTE, &index);
  glFinish();
  EXPECT_EQ(copyBacks, 2);
  EXPECT_THAT(recording.calls("glFinish").size(), testing::Eq(4u));
  setCopyBackHook(nullptr);
}

TEST(NoCurrentState, TrackedCommandsDoNotTouchTheDriver) {
  RecordingDriver recording;
  recording.setStatesCurrent(false);
  GLuint names[] = {1};
  GLint value = 5;
  void* pointer = names;
  GLbyte data[4] = {};
  const std::function<void()> calls[] = {
      [&] { glVertexPointer(2, GL_SHORT, 0, data); },
      [&] { glNormalPointer(GL_BYTE, 0, data); },
      [&] { glColorPointer(4, GL_FLOAT, 0, data); },
      [&] { glTexCoordPointer(2, GL_FLOAT, 0, data); },
      [] { glEnableClientState(GL_VERTEX_ARRAY); },
      [] { glDisableClientState(GL_VERTEX_ARRAY); },
      [] { glClientActiveTexture(GL_TEXTURE1); },
      [] { glActiveTexture(GL_TEXTURE1); },
      [&] { glGetPointerv(GL_VERTEX_ARRAY_POINTER, &pointer); },
      [] { glDrawArrays(GL_POINTS, 0, 1); },
      [&] { glDrawElements(GL_POINTS, 1, GL_UNSIGNED_BYTE, data); },
      [] { glMatrixMode(GL_TEXTURE); },
      [] { glPushMatrix(); },
      [] { glPopMatrix(); },
      [] { glPixelStorei(GL_PACK_ALIGNMENT, 1); },
      [] { glFinish(); },
      [] { glBindBuffer(GL_ARRAY_BUFFER, 1); },
      [&] { glBufferData(GL_ARRAY_BUFFER, 4, data, GL_STATIC_DRAW); },
      [&] { glBufferSubData(GL_ARRAY_BUFFER, 0, 4, data); },
      [&] { glDeleteBuffers(1, names); },
      [&] { glGenBuffers(1, names); },
      [&] { glGetBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &value); },
      [] { EXPECT_EQ(glIsBuffer(1), GL_FALSE); },
      [&] { glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGB8_OES, 1, 1, 0, 4, data); },
      [&] { glCompressedTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 1, 1, 0x83F0, 4, data); },
  };
  for (const auto& call : calls) {
    call();
    EXPECT_THAT(recording.take(), IsEmpty());
  }
  EXPECT_EQ(value, 5);
  EXPECT_EQ(pointer, names);
}

TEST(FunctionTable, HasThirteenEntriesInTheirOrder) {
  static_assert(sizeof(GlFunctionTable) == 13 * sizeof(void (*)()));
  RecordingDriver recording;
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, true);
  table.noOperation();
  table.glFinish();
  table.glPixelStorei(GL_PACK_ALIGNMENT, 1);
  int value = 0;
  unsigned char pixel[4];
  table.glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  table.glGetIntegerv(GL_MAX_LIGHTS, &value);
  table.glBindTexture(GL_TEXTURE_2D, 3);
  table.glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, 0x1000, &value);
  table.glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  EXPECT_THAT(recording.take(),
              ElementsAre("glFinish()", "glPixelStorei(GL_PACK_ALIGNMENT, 1)",
                          "glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, <ptr>)",
                          "glGetIntegerv(GL_MAX_LIGHTS, <ptr>)", "glBindTexture(GL_TEXTURE_2D, 3)",
                          "glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, 0x1000, <ptr>)",
                          "glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, <ptr>)"));
  EXPECT_EQ(table.getPackAlignment(), 1);
  table.destroyContextState(nullptr);
}

TEST(FunctionTable, StatesDoNotMeet) {
  RecordingDriver recording;
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, false);
  void* const other = table.createContextState();
  glPixelStorei(GL_PACK_ALIGNMENT, 8);
  table.setCurrentContextState(other);
  EXPECT_EQ(table.getPackAlignment(), 4);
  table.setCurrentContextState(recording.es1State());
  EXPECT_EQ(table.getPackAlignment(), 8);
  table.setCurrentContextState(other);
  table.destroyContextState(other);
  recording.clear();
  glFinish();
  EXPECT_THAT(recording.take(), IsEmpty());
}

}  // namespace
