#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es2/gl2.h"
#include "tests/support/recording_driver.h"

using testing::ElementsAre;

namespace es2 = gles::es2;

namespace {

struct Case {
  std::function<void()> call;
  const char* expected;
};

const Case plainForwards[] = {
    {[] { es2::glBlendColor(1.5f, 2.5f, 3.5f, 4.5f); }, "glBlendColor(1.5, 2.5, 3.5, 4.5)"},
    {[] { es2::glBlendEquation(GL_TEXTURE_2D); }, "glBlendEquation(GL_TEXTURE_2D)"},
    {[] { es2::glBlendEquationSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D); },
     "glBlendEquationSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D)"},
    {[] { es2::glBlendFunc(GL_TEXTURE_2D, GL_TEXTURE_2D); },
     "glBlendFunc(GL_TEXTURE_2D, GL_TEXTURE_2D)"},
    {[] { es2::glBlendFuncSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D); },
     "glBlendFuncSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D)"},
    {[] { es2::glBindTexture(GL_TEXTURE_2D, 2); }, "glBindTexture(GL_TEXTURE_2D, 2)"},
    {[] { es2::glClear(GL_COLOR_BUFFER_BIT); }, "glClear(GL_COLOR_BUFFER_BIT)"},
    {[] { es2::glClearColor(1.5f, 2.5f, 3.5f, 4.5f); }, "glClearColor(1.5, 2.5, 3.5, 4.5)"},
    {[] { es2::glClearStencil(1); }, "glClearStencil(1)"},
    {[] { es2::glColorMask(1, 1, 1, 1); }, "glColorMask(1, 1, 1, 1)"},
    {[] { es2::glCopyTexImage2D(GL_TEXTURE_2D, 2, GL_TEXTURE_2D, 4, 5, 6, 7, 8); },
     "glCopyTexImage2D(GL_TEXTURE_2D, 2, GL_TEXTURE_2D, 4, 5, 6, 7, 8)"},
    {[] { es2::glCopyTexSubImage2D(GL_TEXTURE_2D, 2, 3, 4, 5, 6, 7, 8); },
     "glCopyTexSubImage2D(GL_TEXTURE_2D, 2, 3, 4, 5, 6, 7, 8)"},
    {[] { es2::glCullFace(GL_TEXTURE_2D); }, "glCullFace(GL_TEXTURE_2D)"},
    {[] { es2::glDeleteTextures(1, nullptr); }, "glDeleteTextures(1, null)"},
    {[] { es2::glDepthFunc(GL_TEXTURE_2D); }, "glDepthFunc(GL_TEXTURE_2D)"},
    {[] { es2::glDepthMask(1); }, "glDepthMask(1)"},
    {[] { es2::glDisable(GL_TEXTURE_2D); }, "glDisable(GL_TEXTURE_2D)"},
    {[] { es2::glEnable(GL_TEXTURE_2D); }, "glEnable(GL_TEXTURE_2D)"},
    {[] { es2::glFlush(); }, "glFlush()"},
    {[] { es2::glFrontFace(GL_TEXTURE_2D); }, "glFrontFace(GL_TEXTURE_2D)"},
    {[] { es2::glGenTextures(1, nullptr); }, "glGenTextures(1, null)"},
    {[] { es2::glGetString(GL_TEXTURE_2D); }, "glGetString(GL_TEXTURE_2D)"},
    {[] { es2::glGetTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_2D, nullptr); },
     "glGetTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_2D, nullptr); },
     "glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glHint(GL_TEXTURE_2D, GL_TEXTURE_2D); }, "glHint(GL_TEXTURE_2D, GL_TEXTURE_2D)"},
    {[] { es2::glIsEnabled(GL_TEXTURE_2D); }, "glIsEnabled(GL_TEXTURE_2D)"},
    {[] { es2::glIsTexture(1); }, "glIsTexture(1)"},
    {[] { es2::glLineWidth(1.5f); }, "glLineWidth(1.5)"},
    {[] { es2::glPolygonOffset(1.5f, 2.5f); }, "glPolygonOffset(1.5, 2.5)"},
    {[] { es2::glReadPixels(1, 2, 3, 4, GL_TEXTURE_2D, GL_TEXTURE_2D, nullptr); },
     "glReadPixels(1, 2, 3, 4, GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glSampleCoverage(1.5f, 1); }, "glSampleCoverage(1.5, 1)"},
    {[] { es2::glScissor(1, 2, 3, 4); }, "glScissor(1, 2, 3, 4)"},
    {[] { es2::glStencilFunc(GL_TEXTURE_2D, 2, 3); }, "glStencilFunc(GL_TEXTURE_2D, 2, 3)"},
    {[] { es2::glStencilFuncSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D, 3, 4); },
     "glStencilFuncSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D, 3, 4)"},
    {[] { es2::glStencilMask(1); }, "glStencilMask(1)"},
    {[] { es2::glStencilMaskSeparate(GL_TEXTURE_2D, 2); },
     "glStencilMaskSeparate(GL_TEXTURE_2D, 2)"},
    {[] { es2::glStencilOp(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D); },
     "glStencilOp(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D)"},
    {[] { es2::glStencilOpSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D); },
     "glStencilOpSeparate(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D)"},
    {[] {
       es2::glTexImage2D(GL_TEXTURE_2D, 2, GL_TEXTURE_2D, 4, 5, 6, GL_TEXTURE_2D, GL_TEXTURE_2D,
                         nullptr);
     },
     "glTexImage2D(GL_TEXTURE_2D, 2, GL_TEXTURE_2D, 4, 5, 6, GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_2D, 3.5f); },
     "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_2D, 3.5)"},
    {[] { es2::glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_2D, nullptr); },
     "glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_2D, 3); },
     "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_2D, 3)"},
    {[] { es2::glTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_2D, nullptr); },
     "glTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] {
       es2::glTexSubImage2D(GL_TEXTURE_2D, 2, 3, 4, 5, 6, GL_TEXTURE_2D, GL_TEXTURE_2D, nullptr);
     },
     "glTexSubImage2D(GL_TEXTURE_2D, 2, 3, 4, 5, 6, GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glViewport(1, 2, 3, 4); }, "glViewport(1, 2, 3, 4)"},
    {[] { es2::glActiveTexture(GL_TEXTURE_2D); }, "glActiveTexture(GL_TEXTURE_2D)"},
};

const Case uniformForwards[] = {
    {[] { es2::glUniform1f(1, 2.5f); }, "glUniform1f(1, 2.5)"},
    {[] { es2::glUniform1fv(1, 2, nullptr); }, "glUniform1fv(1, 2, null)"},
    {[] { es2::glUniform1i(1, 2); }, "glUniform1i(1, 2)"},
    {[] { es2::glUniform1iv(1, 2, nullptr); }, "glUniform1iv(1, 2, null)"},
    {[] { es2::glUniform2f(1, 2.5f, 3.5f); }, "glUniform2f(1, 2.5, 3.5)"},
    {[] { es2::glUniform2fv(1, 2, nullptr); }, "glUniform2fv(1, 2, null)"},
    {[] { es2::glUniform2i(1, 2, 3); }, "glUniform2i(1, 2, 3)"},
    {[] { es2::glUniform2iv(1, 2, nullptr); }, "glUniform2iv(1, 2, null)"},
    {[] { es2::glUniform3f(1, 2.5f, 3.5f, 4.5f); }, "glUniform3f(1, 2.5, 3.5, 4.5)"},
    {[] { es2::glUniform3fv(1, 2, nullptr); }, "glUniform3fv(1, 2, null)"},
    {[] { es2::glUniform3i(1, 2, 3, 4); }, "glUniform3i(1, 2, 3, 4)"},
    {[] { es2::glUniform3iv(1, 2, nullptr); }, "glUniform3iv(1, 2, null)"},
    {[] { es2::glUniform4f(1, 2.5f, 3.5f, 4.5f, 5.5f); }, "glUniform4f(1, 2.5, 3.5, 4.5, 5.5)"},
    {[] { es2::glUniform4fv(1, 2, nullptr); }, "glUniform4fv(1, 2, null)"},
    {[] { es2::glUniform4i(1, 2, 3, 4, 5); }, "glUniform4i(1, 2, 3, 4, 5)"},
    {[] { es2::glUniform4iv(1, 2, nullptr); }, "glUniform4iv(1, 2, null)"},
    {[] { es2::glUniformMatrix2fv(1, 2, 1, nullptr); }, "glUniformMatrix2fv(1, 2, 1, null)"},
    {[] { es2::glUniformMatrix3fv(1, 2, 1, nullptr); }, "glUniformMatrix3fv(1, 2, 1, null)"},
    {[] { es2::glUniformMatrix4fv(1, 2, 1, nullptr); }, "glUniformMatrix4fv(1, 2, 1, null)"},
};

const Case programForwards[] = {
    {[] { es2::glAttachShader(1, 2); }, "glAttachShader(1, 2)"},
    {[] { es2::glBindAttribLocation(1, 2, "name"); }, "glBindAttribLocation(1, 2, \"name\")"},
    {[] { es2::glCompileShader(1); }, "glCompileShader(1)"},
    {[] { es2::glCreateProgram(); }, "glCreateProgram()"},
    {[] { es2::glDeleteProgram(1); }, "glDeleteProgram(1)"},
    {[] { es2::glDetachShader(1, 2); }, "glDetachShader(1, 2)"},
    {[] { es2::glGetActiveAttrib(1, 2, 3, nullptr, nullptr, nullptr, nullptr); },
     "glGetActiveAttrib(1, 2, 3, null, null, null, null)"},
    {[] { es2::glGetActiveUniform(1, 2, 3, nullptr, nullptr, nullptr, nullptr); },
     "glGetActiveUniform(1, 2, 3, null, null, null, null)"},
    {[] { es2::glGetAttachedShaders(1, 2, nullptr, nullptr); },
     "glGetAttachedShaders(1, 2, null, null)"},
    {[] { es2::glGetAttribLocation(1, "name"); }, "glGetAttribLocation(1, \"name\")"},
    {[] { es2::glGetProgramInfoLog(1, 2, nullptr, nullptr); },
     "glGetProgramInfoLog(1, 2, null, null)"},
    {[] { es2::glGetShaderInfoLog(1, 2, nullptr, nullptr); },
     "glGetShaderInfoLog(1, 2, null, null)"},
    {[] { es2::glGetUniformfv(1, 2, nullptr); }, "glGetUniformfv(1, 2, null)"},
    {[] { es2::glGetUniformiv(1, 2, nullptr); }, "glGetUniformiv(1, 2, null)"},
    {[] { es2::glGetUniformLocation(1, "name"); }, "glGetUniformLocation(1, \"name\")"},
    {[] { es2::glIsProgram(1); }, "glIsProgram(1)"},
    {[] { es2::glIsShader(1); }, "glIsShader(1)"},
    {[] { es2::glLinkProgram(1); }, "glLinkProgram(1)"},
    {[] { es2::glUseProgram(1); }, "glUseProgram(1)"},
    {[] { es2::glValidateProgram(1); }, "glValidateProgram(1)"},
    {[] { es2::glGetProgramiv(1, GL_TEXTURE_2D, nullptr); },
     "glGetProgramiv(1, GL_TEXTURE_2D, null)"},
};

const Case framebufferForwards[] = {
    {[] { es2::glBindFramebuffer(GL_TEXTURE_2D, 2); }, "glBindFramebufferEXT(GL_TEXTURE_2D, 2)"},
    {[] { es2::glBindRenderbuffer(GL_TEXTURE_2D, 2); }, "glBindRenderbufferEXT(GL_TEXTURE_2D, 2)"},
    {[] { es2::glCheckFramebufferStatus(GL_TEXTURE_2D); },
     "glCheckFramebufferStatusEXT(GL_TEXTURE_2D)"},
    {[] { es2::glDeleteFramebuffers(1, nullptr); }, "glDeleteFramebuffersEXT(1, null)"},
    {[] { es2::glDeleteRenderbuffers(1, nullptr); }, "glDeleteRenderbuffersEXT(1, null)"},
    {[] { es2::glFramebufferRenderbuffer(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, 4); },
     "glFramebufferRenderbufferEXT(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, 4)"},
    {[] { es2::glFramebufferTexture2D(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, 4, 5); },
     "glFramebufferTexture2DEXT(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, 4, 5)"},
    {[] { es2::glGenFramebuffers(1, nullptr); }, "glGenFramebuffersEXT(1, null)"},
    {[] { es2::glGenRenderbuffers(1, nullptr); }, "glGenRenderbuffersEXT(1, null)"},
    {[] { es2::glGenerateMipmap(GL_TEXTURE_2D); }, "glGenerateMipmapEXT(GL_TEXTURE_2D)"},
    {[] {
       es2::glGetFramebufferAttachmentParameteriv(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D,
                                                  nullptr);
     },
     "glGetFramebufferAttachmentParameterivEXT(GL_TEXTURE_2D, GL_TEXTURE_2D, GL_TEXTURE_2D, null)"},
    {[] { es2::glIsFramebuffer(1); }, "glIsFramebufferEXT(1)"},
    {[] { es2::glIsRenderbuffer(1); }, "glIsRenderbufferEXT(1)"},
};

template <std::size_t count>
void expectForwarded(const Case (&cases)[count]) {
  RecordingDriver recording;
  for (const Case& item : cases) {
    item.call();
    EXPECT_THAT(recording.take(), ElementsAre(item.expected));
  }
}

TEST(Es2Forwards, OfStateAndTexturesReachTheDriver) {
  expectForwarded(plainForwards);
}

TEST(Es2Forwards, OfUniformsReachTheDriver) {
  expectForwarded(uniformForwards);
}

TEST(Es2Forwards, OfProgramsReachTheDriver) {
  expectForwarded(programForwards);
}

TEST(Es2Forwards, OfFramebuffersReachTheDriversExtension) {
  expectForwarded(framebufferForwards);
}

TEST(Es2Forwards, OfDoublePrecisionAreWidened) {
  RecordingDriver recording;
  es2::glClearDepthf(0.5f);
  es2::glDepthRangef(0.25f, 0.75f);
  EXPECT_THAT(recording.take(), ElementsAre("glClearDepth(0.5)", "glDepthRange(0.25, 0.75)"));
}

TEST(Es2Forwards, OfConstantAttributesReachTheDriver) {
  RecordingDriver recording;
  const float values[] = {1, 2, 3, 4};
  es2::glVertexAttrib1f(1, 1);
  es2::glVertexAttrib2f(2, 1, 2);
  es2::glVertexAttrib3f(3, 1, 2, 3);
  es2::glVertexAttrib4f(4, 1, 2, 3, 4);
  es2::glVertexAttrib1fv(1, values);
  es2::glVertexAttrib2fv(2, values);
  es2::glVertexAttrib3fv(3, values);
  es2::glVertexAttrib4fv(4, values);
  EXPECT_THAT(recording.take(),
              ElementsAre("glVertexAttrib1f(1, 1)", "glVertexAttrib2f(2, 1, 2)",
                          "glVertexAttrib3f(3, 1, 2, 3)", "glVertexAttrib4f(4, 1, 2, 3, 4)",
                          "glVertexAttrib1fv(1, [1])", "glVertexAttrib2fv(2, [1, 2])",
                          "glVertexAttrib3fv(3, [1, 2, 3])", "glVertexAttrib4fv(4, [1, 2, 3, 4])"));
}

TEST(Es2Forwards, DoNothingWhereTheDriverHasNoSuchFunction) {
  RecordingDriver recording;
  for (const char* name :
       {"glCreateShader", "glShaderSource", "glUseProgram", "glUniform1f", "glBindFramebufferEXT",
        "glCheckFramebufferStatusEXT", "glVertexAttribPointer", "glGenBuffers", "glBlendColor"}) {
    recording.lack(name);
  }
  GLuint name = 7;
  EXPECT_EQ(es2::glCreateShader(GL_VERTEX_SHADER), 0u);
  es2::glShaderSource(1, 0, nullptr, nullptr);
  es2::glUseProgram(1);
  es2::glUniform1f(0, 1);
  es2::glBindFramebuffer(GL_FRAMEBUFFER, 1);
  EXPECT_EQ(es2::glCheckFramebufferStatus(GL_FRAMEBUFFER), 0u);
  es2::glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, nullptr);
  es2::glGenBuffers(1, &name);
  es2::glBlendColor(0, 0, 0, 0);
  EXPECT_EQ(name, 7u);
  EXPECT_THAT(recording.take(), testing::IsEmpty());
}

}  // namespace
