// Scenes of OpenGL ES 2.0 for the referee.

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <GLES2/gl2.h>

#include "tests/gles/referee/report.h"

namespace {

const char* const vertexShader = R"(
attribute vec4 position;
attribute vec4 colour;
attribute vec2 coordinate;
uniform mat4 transform;
varying vec4 shade;
varying vec2 place;
void main() {
  shade = colour;
  place = coordinate;
  gl_Position = transform * position;
  gl_PointSize = 9.0;
}
)";

const char* const shadeShader = R"(
precision mediump float;
varying vec4 shade;
void main() { gl_FragColor = shade; }
)";

const char* const textureShader = R"(
precision mediump float;
uniform sampler2D image;
varying vec2 place;
varying vec4 shade;
void main() { gl_FragColor = texture2D(image, place) * shade; }
)";

const GLfloat unity[] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
const GLfloat quad[] = {-0.75f, -0.75f, 0.75f, -0.75f, -0.75f, 0.75f, 0.75f, 0.75f};
const GLfloat corners[] = {0, 0, 1, 0, 0, 1, 1, 1};

void clear() {
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
}

GLuint compiled(GLenum type, const char* source) {
  const GLuint shader = glCreateShader(type);
  glShaderSource(shader, 1, &source, nullptr);
  glCompileShader(shader);
  GLint done = 0;
  glGetShaderiv(shader, GL_COMPILE_STATUS, &done);
  if (!done) {
    char log[1000] = {};
    glGetShaderInfoLog(shader, sizeof log, nullptr, log);
    std::fprintf(stderr, "%s: %s\n", sceneName, log);
  }
  return shader;
}

GLuint usedProgram(const char* vertex, const char* fragment) {
  const GLuint program = glCreateProgram();
  const GLuint shaders[] = {compiled(GL_VERTEX_SHADER, vertex),
                            compiled(GL_FRAGMENT_SHADER, fragment)};
  for (const GLuint shader : shaders) {
    glAttachShader(program, shader);
    glDeleteShader(shader);
  }
  glBindAttribLocation(program, 0, "position");
  glBindAttribLocation(program, 1, "colour");
  glBindAttribLocation(program, 2, "coordinate");
  glLinkProgram(program);
  glUseProgram(program);
  glUniformMatrix4fv(glGetUniformLocation(program, "transform"), 1, GL_FALSE, unity);
  glVertexAttrib4f(1, 1, 1, 1, 1);
  return program;
}

void drawQuad() {
  glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, quad);
  glEnableVertexAttribArray(0);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
}

void drawTexturedQuad() {
  glVertexAttribPointer(2, 2, GL_FLOAT, GL_FALSE, 0, corners);
  glEnableVertexAttribArray(2);
  drawQuad();
}

template <class Component>
void drawColoursOf(GLenum type, double unit) {
  for (GLint size = 1; size <= 4; ++size) {
    for (const GLboolean normalized : {GL_FALSE, GL_TRUE}) {
      std::vector<Component> data;
      for (int i = 0; i < 4 * size; ++i) {
        data.push_back(static_cast<Component>((normalized ? unit : 1.0) * (i % 3) / 2.0));
      }
      clear();
      glVertexAttribPointer(1, size, type, normalized, 0, data.data());
      drawQuad();
      reportPicture();
    }
  }
}

void attributeTypes() {
  usedProgram(vertexShader, shadeShader);
  glEnableVertexAttribArray(1);
  drawColoursOf<GLbyte>(GL_BYTE, 127);
  drawColoursOf<GLubyte>(GL_UNSIGNED_BYTE, 255);
  drawColoursOf<GLshort>(GL_SHORT, 32767);
  drawColoursOf<GLushort>(GL_UNSIGNED_SHORT, 65535);
  drawColoursOf<GLfloat>(GL_FLOAT, 1);
}

void fixedAttributes() {
  usedProgram(vertexShader, shadeShader);
  glEnableVertexAttribArray(1);
  drawColoursOf<GLfixed>(GL_FIXED, 65536);
  const GLfixed places[] = {-0x8000, -0x8000, 0x10000, -0x8000, -0x8000, 0x10000, 0x8000, 0x8000};
  glDisableVertexAttribArray(1);
  clear();
  glVertexAttribPointer(0, 2, GL_FIXED, GL_FALSE, 0, places);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  reportPicture();
}

void bufferObjects() {
  usedProgram(vertexShader, shadeShader);
  struct Record {
    GLfixed position[2];
    GLubyte colour[4];
  };
  const Record records[] = {{{-0x8000, -0x8000}, {255, 0, 0, 255}},
                            {{0x8000, -0x8000}, {0, 255, 0, 255}},
                            {{-0x8000, 0x8000}, {0, 0, 255, 255}},
                            {{0x8000, 0x8000}, {255, 255, 0, 255}}};
  const GLushort indices[] = {9, 0, 1, 2, 3};
  GLuint names[2] = {};
  glGenBuffers(2, names);
  glBindBuffer(GL_ARRAY_BUFFER, names[0]);
  glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, names[1]);
  glBufferData(GL_ARRAY_BUFFER, sizeof records, records, GL_STREAM_DRAW);
  glBufferData(GL_ELEMENT_ARRAY_BUFFER, sizeof indices, indices, GL_STATIC_DRAW);
  for (const GLenum target : {GL_ARRAY_BUFFER, GL_ELEMENT_ARRAY_BUFFER}) {
    GLint size = 0;
    GLint usage = 0;
    glGetBufferParameteriv(target, GL_BUFFER_SIZE, &size);
    glGetBufferParameteriv(target, GL_BUFFER_USAGE, &usage);
    reportAnswer("buffer", {static_cast<double>(size), static_cast<double>(usage)});
  }
  glVertexAttribPointer(0, 2, GL_FIXED, GL_FALSE, sizeof(Record), nullptr);
  glVertexAttribPointer(1, 4, GL_UNSIGNED_BYTE, GL_TRUE, sizeof(Record),
                        reinterpret_cast<void*>(8));
  glEnableVertexAttribArray(0);
  glEnableVertexAttribArray(1);
  glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_SHORT, reinterpret_cast<void*>(2));
  reportPicture();
  for (const GLuint index : {0u, 1u, 2u}) {
    for (const GLenum name : {GL_VERTEX_ATTRIB_ARRAY_ENABLED, GL_VERTEX_ATTRIB_ARRAY_SIZE,
                              GL_VERTEX_ATTRIB_ARRAY_STRIDE, GL_VERTEX_ATTRIB_ARRAY_TYPE,
                              GL_VERTEX_ATTRIB_ARRAY_NORMALIZED}) {
      GLint asInteger = -1;
      GLfloat asFloat = -1;
      glGetVertexAttribiv(index, name, &asInteger);
      glGetVertexAttribfv(index, name, &asFloat);
      reportAnswer("attribute", {static_cast<double>(asInteger), static_cast<double>(asFloat)});
    }
    GLfloat constant[4] = {};
    glGetVertexAttribfv(index, GL_CURRENT_VERTEX_ATTRIB, constant);
    reportAnswer("constant", std::vector<double>(constant, constant + 4));
    void* pointer = nullptr;
    glGetVertexAttribPointerv(index, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
    reportAnswer("pointer", {static_cast<double>(reinterpret_cast<std::size_t>(pointer))});
  }
  glDeleteBuffers(2, names);
  reportAnswer("deleted", {static_cast<double>(glIsBuffer(names[0])),
                           static_cast<double>(glIsBuffer(names[1]))});
}

void constantsOfAttributes() {
  usedProgram(R"(
    attribute vec4 position;
    attribute vec4 colour;
    varying vec4 shade;
    void main() {
      shade = position;
      gl_Position = colour;
    })",
              shadeShader);
  const GLfloat values[] = {0.25f, 0.5f, 0.75f, 1};
  glVertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, 0, quad);
  glEnableVertexAttribArray(1);
  const auto draw = [] {
    clear();
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    reportPicture();
  };
  draw();
  glVertexAttrib1f(0, 0.5f);
  draw();
  glVertexAttrib2f(0, 0.5f, 0.25f);
  draw();
  glVertexAttrib3f(0, 0.5f, 0.25f, 1);
  draw();
  glVertexAttrib4f(0, 0.5f, 0.25f, 1, 0.5f);
  draw();
  glVertexAttrib1fv(0, values);
  draw();
  glVertexAttrib2fv(0, values);
  draw();
  glVertexAttrib3fv(0, values);
  draw();
  glVertexAttrib4fv(0, values);
  draw();
}

void uniforms() {
  const GLuint program = usedProgram(vertexShader, R"(
    precision mediump float;
    uniform float f1[2]; uniform vec2 f2; uniform vec3 f3; uniform vec4 f4;
    uniform int i1; uniform ivec2 i2; uniform ivec3 i3; uniform ivec4 i4;
    uniform mat2 m2; uniform mat3 m3; uniform mat4 m4; uniform bool flag;
    void main() {
      vec4 sum = vec4(f1[0], f1[1], 0.0, 0.0) + vec4(f2, 0.0, 0.0) + vec4(f3, 0.0) + f4;
      sum += vec4(i1, i2, 0.0) * 0.125 + vec4(i3, 0.0) * 0.125 + vec4(i4) * 0.125;
      sum += vec4(m2 * vec2(0.25, 0.5), 0.0, 0.0) + vec4(m3 * vec3(0.125), 0.0) + m4 * vec4(0.0625);
      gl_FragColor = vec4(sum.xyz * 0.25, flag ? 1.0 : 0.5);
    })");
  const auto at = [program](const char* name) { return glGetUniformLocation(program, name); };
  const GLfloat floats[] = {0.5f,  0.25f,  0.125f, 0.375f, 0.25f,  0.125f, 0.5f,   0.125f,
                            0.25f, 0.125f, 0.5f,   0.25f,  0.125f, 0.25f,  0.375f, 0.5f};
  const GLint integers[] = {1, 2, 3, 1};
  glUniform1fv(at("f1"), 2, floats);
  glUniform2f(at("f2"), 0.25f, 0.5f);
  glUniform3f(at("f3"), 0.25f, 0.5f, 0.125f);
  glUniform4f(at("f4"), 0.125f, 0.25f, 0.25f, 1);
  glUniform1i(at("i1"), 1);
  glUniform2i(at("i2"), 1, 2);
  glUniform3i(at("i3"), 1, 2, 1);
  glUniform4i(at("i4"), 2, 1, 2, 1);
  glUniformMatrix2fv(at("m2"), 1, GL_FALSE, floats);
  glUniformMatrix3fv(at("m3"), 1, GL_FALSE, floats);
  glUniformMatrix4fv(at("m4"), 1, GL_FALSE, floats);
  glUniform1i(at("flag"), 1);
  drawQuad();
  reportPicture();
  glUniform1f(at("f1[1]"), 0.75f);
  glUniform2fv(at("f2"), 1, floats + 1);
  glUniform3fv(at("f3"), 1, floats + 2);
  glUniform4fv(at("f4"), 1, floats + 3);
  glUniform1iv(at("i1"), 1, integers + 1);
  glUniform2iv(at("i2"), 1, integers + 1);
  glUniform3iv(at("i3"), 1, integers + 1);
  glUniform4iv(at("i4"), 1, integers);
  clear();
  drawQuad();
  reportPicture();
  GLfloat matrix[16] = {};
  glGetUniformfv(program, at("m4"), matrix);
  reportAnswer("matrix", std::vector<double>(matrix, matrix + 16));
  GLint four[4] = {};
  glGetUniformiv(program, at("i4"), four);
  reportAnswer("vector", std::vector<double>(four, four + 4));
  reportAnswer("nowhere", {static_cast<double>(at("missing"))});
  glUniformMatrix4fv(at("m4"), 1, GL_TRUE, floats);
  reportAnswer("wrong", {static_cast<double>(glGetError())});
}

void chequer(GLenum target, int width, int height, unsigned seed) {
  std::vector<GLubyte> texels;
  for (int i = 0; i < width * height * 4; ++i) {
    seed = seed * 1103515245u + 12345u;
    texels.push_back(static_cast<GLubyte>(seed >> 16));
  }
  glTexImage2D(target, 0, GL_RGBA, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
}

void textures() {
  usedProgram(vertexShader, textureShader);
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  const std::vector<GLubyte> noise = {12, 200, 45, 99, 255, 31, 7, 180, 222, 64, 128, 16};
  const struct {
    GLenum format;
    GLenum type;
  } formats[] = {{GL_RGB, GL_UNSIGNED_BYTE},           {GL_RGB, GL_UNSIGNED_SHORT_5_6_5},
                 {GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4}, {GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1},
                 {GL_LUMINANCE, GL_UNSIGNED_BYTE},     {GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE},
                 {GL_ALPHA, GL_UNSIGNED_BYTE}};
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  for (const auto& item : formats) {
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(item.format), 2, 2, 0, item.format, item.type,
                 noise.data());
    clear();
    drawTexturedQuad();
    reportPicture();
  }
  chequer(GL_TEXTURE_2D, 8, 8, 1);
  glGenerateMipmap(GL_TEXTURE_2D);
  for (const GLenum filter :
       {GL_NEAREST, GL_LINEAR, GL_NEAREST_MIPMAP_NEAREST, GL_LINEAR_MIPMAP_NEAREST,
        GL_NEAREST_MIPMAP_LINEAR, GL_LINEAR_MIPMAP_LINEAR}) {
    for (const GLenum wrap : {GL_REPEAT, GL_CLAMP_TO_EDGE, GL_MIRRORED_REPEAT}) {
      glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, static_cast<GLint>(filter));
      glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, static_cast<GLfloat>(wrap));
      const GLfloat wide[] = {-2, 0, 3, 0, -2, 3, 3, 3};
      glVertexAttribPointer(2, 2, GL_FLOAT, GL_FALSE, 0, wide);
      glEnableVertexAttribArray(2);
      clear();
      drawQuad();
      reportPicture();
    }
  }
  // Neither size is a power of two.
  chequer(GL_TEXTURE_2D, 5, 3, 2);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  clear();
  drawTexturedQuad();
  reportPicture();
}

void cubeMaps() {
  usedProgram(vertexShader, R"(
    precision mediump float;
    uniform samplerCube image;
    varying vec2 place;
    void main() {
      vec3 direction = vec3(cos(place.x * 6.283), place.y * 3.0 - 1.5, sin(place.x * 6.283));
      gl_FragColor = textureCube(image, direction);
    })");
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_CUBE_MAP, texture);
  glTexParameteri(GL_TEXTURE_CUBE_MAP, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_CUBE_MAP, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  for (unsigned face = 0; face < 6; ++face) {
    chequer(GL_TEXTURE_CUBE_MAP_POSITIVE_X + face, 1, 1, face + 7);
  }
  drawTexturedQuad();
  reportPicture();
}

void points() {
  usedProgram(vertexShader, R"(
    precision mediump float;
    varying vec4 shade;
    void main() { gl_FragColor = vec4(gl_PointCoord, shade.b, 1.0); })");
  const GLfloat places[] = {-0.5f, -0.5f, 0.5f, 0.25f};
  glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, places);
  glEnableVertexAttribArray(0);
  glDrawArrays(GL_POINTS, 0, 2);
  reportPicture();
}

void blending() {
  usedProgram(vertexShader, shadeShader);
  glVertexAttrib4f(1, 1, 0.5f, 0.25f, 0.5f);
  glEnable(GL_BLEND);
  glBlendColor(0.25f, 0.75f, 0.5f, 0.5f);
  for (const GLenum equation : {GL_FUNC_ADD, GL_FUNC_SUBTRACT, GL_FUNC_REVERSE_SUBTRACT}) {
    for (const GLenum factor :
         {GL_CONSTANT_COLOR, GL_ONE_MINUS_CONSTANT_ALPHA, GL_SRC_ALPHA_SATURATE}) {
      clear();
      glBlendEquation(equation);
      glBlendFunc(factor, GL_ONE);
      drawQuad();
      reportPicture();
      clear();
      glBlendEquationSeparate(equation, GL_FUNC_ADD);
      glBlendFuncSeparate(factor, GL_DST_COLOR, GL_ONE, GL_ZERO);
      drawQuad();
      reportPicture();
    }
  }
}

void stencilsAndDepths() {
  usedProgram(vertexShader, shadeShader);
  glEnable(GL_STENCIL_TEST);
  glStencilFuncSeparate(GL_FRONT_AND_BACK, GL_ALWAYS, 3, 255);
  glStencilOpSeparate(GL_FRONT, GL_KEEP, GL_KEEP, GL_REPLACE);
  glStencilOpSeparate(GL_BACK, GL_KEEP, GL_KEEP, GL_INVERT);
  glStencilMaskSeparate(GL_FRONT, 255);
  glEnable(GL_SCISSOR_TEST);
  glScissor(0, 0, 20, 20);
  drawQuad();
  glDisable(GL_SCISSOR_TEST);
  glStencilFunc(GL_EQUAL, 3, 255);
  glVertexAttrib4f(1, 0, 1, 1, 1);
  drawQuad();
  reportPicture();
  glDisable(GL_STENCIL_TEST);
  glEnable(GL_DEPTH_TEST);
  glDepthRangef(0.25f, 0.75f);
  glClearDepthf(0.5f);
  clear();
  glDepthFunc(GL_LEQUAL);
  drawQuad();
  reportPicture();
}

void framebuffers() {
  usedProgram(vertexShader, shadeShader);
  GLuint framebuffer = 0;
  GLuint renderbuffers[2] = {};
  GLuint texture = 0;
  glGenFramebuffers(1, &framebuffer);
  glGenRenderbuffers(2, renderbuffers);
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 16, 16, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  reportAnswer("is", {static_cast<double>(glIsFramebuffer(framebuffer)),
                      static_cast<double>(glIsRenderbuffer(renderbuffers[0]))});
  glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
  reportAnswer("empty", {static_cast<double>(glCheckFramebufferStatus(GL_FRAMEBUFFER))});
  glBindRenderbuffer(GL_RENDERBUFFER, renderbuffers[0]);
  glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, 16, 16);
  glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, renderbuffers[0]);
  glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
  reportAnswer("status", {static_cast<double>(glCheckFramebufferStatus(GL_FRAMEBUFFER))});
  reportAnswer("is", {static_cast<double>(glIsFramebuffer(framebuffer)),
                      static_cast<double>(glIsRenderbuffer(renderbuffers[0]))});
  for (const GLenum attachment :
       {GL_COLOR_ATTACHMENT0, GL_DEPTH_ATTACHMENT, GL_STENCIL_ATTACHMENT}) {
    GLint type = -1;
    glGetFramebufferAttachmentParameteriv(GL_FRAMEBUFFER, attachment,
                                          GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE, &type);
    reportAnswer("attachment", {static_cast<double>(type)});
  }
  glViewport(0, 0, 16, 16);
  glClearColor(0.5f, 0, 0, 1);
  clear();
  drawQuad();
  glBindFramebuffer(GL_FRAMEBUFFER, 0);
  glViewport(0, 0, refereeSide, refereeSide);
  usedProgram(vertexShader, textureShader);
  drawTexturedQuad();
  reportPicture();
  for (const GLenum format :
       {GL_RGBA4, GL_RGB5_A1, GL_RGB565, GL_DEPTH_COMPONENT16, GL_STENCIL_INDEX8}) {
    glBindRenderbuffer(GL_RENDERBUFFER, renderbuffers[1]);
    glRenderbufferStorage(GL_RENDERBUFFER, format, 8, 4);
    std::vector<double> values;
    for (const GLenum name : {GL_RENDERBUFFER_WIDTH, GL_RENDERBUFFER_HEIGHT,
                              GL_RENDERBUFFER_INTERNAL_FORMAT, GL_RENDERBUFFER_STENCIL_SIZE}) {
      GLint value = -1;
      glGetRenderbufferParameteriv(GL_RENDERBUFFER, name, &value);
      values.push_back(static_cast<double>(value));
    }
    values.push_back(static_cast<double>(glGetError()));
    reportAnswer("renderbuffer", values);
  }
  // Names that were never generated.
  glBindFramebuffer(GL_FRAMEBUFFER, 77);
  glBindRenderbuffer(GL_RENDERBUFFER, 78);
  reportAnswer("unknown", {static_cast<double>(glGetError())});
  glDeleteFramebuffers(1, &framebuffer);
  glDeleteRenderbuffers(2, renderbuffers);
}

void shaders() {
  const GLuint shader = glCreateShader(GL_FRAGMENT_SHADER);
  const char* parts[] = {"precision mediump float;\n", "void main() { gl_Frag",
                         "Color = vec4(1.0); }xyz"};
  const GLint lengths[] = {-1, 21, 20};
  glShaderSource(shader, 3, parts, lengths);
  glCompileShader(shader);
  for (const GLenum name :
       {GL_SHADER_TYPE, GL_DELETE_STATUS, GL_COMPILE_STATUS, GL_SHADER_SOURCE_LENGTH}) {
    GLint value = -1;
    glGetShaderiv(shader, name, &value);
    reportAnswer("shader", {static_cast<double>(value)});
  }
  char source[200] = {};
  GLsizei length = 0;
  glGetShaderSource(shader, sizeof source, &length, source);
  reportAnswer("source", {static_cast<double>(length), static_cast<double>(std::strlen(source))});
  glGetShaderSource(shader, 5, &length, source);
  reportAnswer("source", {static_cast<double>(length), static_cast<double>(source[3]),
                          static_cast<double>(source[4])});
  const char* wrong = "precision mediump float;\n\nvoid main() { nonsense; }\n";
  glShaderSource(shader, 1, &wrong, nullptr);
  glCompileShader(shader);
  GLint done = -1;
  glGetShaderiv(shader, GL_COMPILE_STATUS, &done);
  char log[1000] = {};
  glGetShaderInfoLog(shader, sizeof log, nullptr, log);
  // The message names the line as the client counts it.
  reportAnswer("wrong", {static_cast<double>(done), std::strstr(log, "0:3(") ? 1.0 : 0.0});
  const GLuint program = usedProgram(vertexShader, textureShader);
  for (const GLenum name :
       {GL_DELETE_STATUS, GL_LINK_STATUS, GL_ATTACHED_SHADERS, GL_ACTIVE_ATTRIBUTES,
        GL_ACTIVE_ATTRIBUTE_MAX_LENGTH, GL_ACTIVE_UNIFORMS, GL_ACTIVE_UNIFORM_MAX_LENGTH}) {
    GLint value = -1;
    glGetProgramiv(program, name, &value);
    reportAnswer("program", {static_cast<double>(value)});
  }
  glValidateProgram(program);
  GLint valid = 0;
  glGetProgramiv(program, GL_VALIDATE_STATUS, &valid);
  reportAnswer("valid", {static_cast<double>(valid)});
  for (GLuint i = 0; i < 3; ++i) {
    GLint size = -1;
    GLenum type = 0;
    char name[50] = {};
    glGetActiveAttrib(program, i, sizeof name, &length, &size, &type, name);
    reportAnswer(std::string("attribute:") + name,
                 {static_cast<double>(length), static_cast<double>(size), static_cast<double>(type),
                  static_cast<double>(glGetAttribLocation(program, name))});
  }
  for (GLuint i = 0; i < 2; ++i) {
    GLint size = -1;
    GLenum type = 0;
    char name[50] = {};
    glGetActiveUniform(program, i, sizeof name, &length, &size, &type, name);
    reportAnswer(
        std::string("uniform:") + name,
        {static_cast<double>(length), static_cast<double>(size), static_cast<double>(type)});
  }
  GLuint attached[4] = {};
  GLsizei count = 0;
  glGetAttachedShaders(program, 4, &count, attached);
  reportAnswer("attached", {static_cast<double>(count)});
  glGetShaderiv(attached[0], GL_DELETE_STATUS, &done);
  glGetShaderSource(attached[0], sizeof source, &length, source);
  reportAnswer("attached", {static_cast<double>(done), static_cast<double>(length)});
  reportAnswer(
      "is", {static_cast<double>(glIsShader(attached[0])),
             static_cast<double>(glIsProgram(program)), static_cast<double>(glIsShader(program))});
  glDetachShader(program, attached[0]);
  reportAnswer("is", {static_cast<double>(glIsShader(attached[0]))});
  for (const GLenum type : {GL_VERTEX_SHADER, GL_FRAGMENT_SHADER}) {
    for (GLenum precision = GL_LOW_FLOAT; precision <= GL_HIGH_INT; ++precision) {
      GLint range[2] = {-1, -1};
      GLint bits = -1;
      glGetShaderPrecisionFormat(type, precision, range, &bits);
      reportAnswer("precision", {static_cast<double>(range[0]), static_cast<double>(range[1]),
                                 static_cast<double>(bits)});
    }
  }
  glReleaseShaderCompiler();
}

void errors() {
  const auto report = [](const char* name) {
    reportAnswer(name, {static_cast<double>(glGetError())});
  };
  GLint value = -1;
  GLint range[2] = {};
  void* pointer = nullptr;
  const GLuint shader = glCreateShader(GL_VERTEX_SHADER);
  glEnable(0x9999);
  report("enable");
  glVertexAttribPointer(99, 4, GL_FLOAT, GL_FALSE, 0, nullptr);
  report("index");
  glVertexAttribPointer(0, 5, GL_FIXED, GL_FALSE, 0, nullptr);
  report("size");
  glVertexAttribPointer(0, 4, GL_FIXED, GL_FALSE, -1, nullptr);
  report("stride");
  glVertexAttribPointer(0, 4, 0x9999, GL_FALSE, 0, nullptr);
  report("type");
  glEnableVertexAttribArray(99);
  report("enableArray");
  glGetVertexAttribPointerv(0, GL_VERTEX_ATTRIB_ARRAY_SIZE, &pointer);
  report("pointerName");
  glGetVertexAttribPointerv(99, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
  report("pointerIndex");
  glGetVertexAttribiv(99, GL_VERTEX_ATTRIB_ARRAY_SIZE, &value);
  report("attributeIndex");
  glGetVertexAttribiv(0, 0x9999, &value);
  report("attributeName");
  glGetShaderPrecisionFormat(0x9999, GL_LOW_FLOAT, range, &value);
  report("precision");
  glShaderBinary(1, &shader, 0x9999, range, 4);
  report("binary");
  glCreateShader(0x9999);
  report("createShader");
  glCompileShader(999);
  report("compileShader");
  glUseProgram(999);
  report("useProgram");
  glGetShaderSource(999, 1, nullptr, nullptr);
  report("shaderSource");
  glDrawArrays(GL_TRIANGLES, 0, -1);
  report("drawArrays");
  glDrawElements(GL_TRIANGLES, 3, GL_FLOAT, quad);
  report("drawElements");
  glBindFramebuffer(0x9999, 1);
  report("bindFramebuffer");
  glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA4, 1, 1);
  report("noRenderbuffer");
  glBlendEquation(0x9999);
  report("blendEquation");
  glBufferData(GL_ARRAY_BUFFER, 4, quad, GL_STATIC_DRAW);
  report("noBuffer");
}

const struct {
  const char* name;
  GLenum value;
  int count;
} stateNames[] = {
#define NAME(name, count) \
  { #name, name, count }
    NAME(GL_ACTIVE_TEXTURE, 1),
    NAME(GL_ALIASED_LINE_WIDTH_RANGE, 2),
    NAME(GL_ALPHA_BITS, 1),
    NAME(GL_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_BLEND, 1),
    NAME(GL_BLEND_COLOR, 4),
    NAME(GL_BLEND_DST_ALPHA, 1),
    NAME(GL_BLEND_DST_RGB, 1),
    NAME(GL_BLEND_EQUATION_ALPHA, 1),
    NAME(GL_BLEND_EQUATION_RGB, 1),
    NAME(GL_BLEND_SRC_ALPHA, 1),
    NAME(GL_BLEND_SRC_RGB, 1),
    NAME(GL_COLOR_CLEAR_VALUE, 4),
    NAME(GL_COLOR_WRITEMASK, 4),
    NAME(GL_CULL_FACE, 1),
    NAME(GL_CULL_FACE_MODE, 1),
    NAME(GL_CURRENT_PROGRAM, 1),
    NAME(GL_DEPTH_BITS, 1),
    NAME(GL_DEPTH_CLEAR_VALUE, 1),
    NAME(GL_DEPTH_FUNC, 1),
    NAME(GL_DEPTH_RANGE, 2),
    NAME(GL_DEPTH_TEST, 1),
    NAME(GL_DEPTH_WRITEMASK, 1),
    NAME(GL_DITHER, 1),
    NAME(GL_ELEMENT_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_FRAMEBUFFER_BINDING, 1),
    NAME(GL_FRONT_FACE, 1),
    NAME(GL_GENERATE_MIPMAP_HINT, 1),
    NAME(GL_LINE_WIDTH, 1),
    NAME(GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS, 1),
    NAME(GL_MAX_CUBE_MAP_TEXTURE_SIZE, 1),
    NAME(GL_MAX_FRAGMENT_UNIFORM_VECTORS, 1),
    NAME(GL_MAX_RENDERBUFFER_SIZE, 1),
    NAME(GL_MAX_TEXTURE_IMAGE_UNITS, 1),
    NAME(GL_MAX_TEXTURE_SIZE, 1),
    NAME(GL_MAX_VARYING_VECTORS, 1),
    NAME(GL_MAX_VERTEX_ATTRIBS, 1),
    NAME(GL_MAX_VERTEX_TEXTURE_IMAGE_UNITS, 1),
    NAME(GL_MAX_VERTEX_UNIFORM_VECTORS, 1),
    NAME(GL_MAX_VIEWPORT_DIMS, 2),
    NAME(GL_NUM_COMPRESSED_TEXTURE_FORMATS, 1),
    NAME(GL_NUM_SHADER_BINARY_FORMATS, 1),
    NAME(GL_PACK_ALIGNMENT, 1),
    NAME(GL_POLYGON_OFFSET_FACTOR, 1),
    NAME(GL_POLYGON_OFFSET_FILL, 1),
    NAME(GL_POLYGON_OFFSET_UNITS, 1),
    NAME(GL_RED_BITS, 1),
    NAME(GL_RENDERBUFFER_BINDING, 1),
    NAME(GL_SAMPLES, 1),
    NAME(GL_SAMPLE_ALPHA_TO_COVERAGE, 1),
    NAME(GL_SAMPLE_BUFFERS, 1),
    NAME(GL_SAMPLE_COVERAGE, 1),
    NAME(GL_SAMPLE_COVERAGE_INVERT, 1),
    NAME(GL_SAMPLE_COVERAGE_VALUE, 1),
    NAME(GL_SCISSOR_BOX, 4),
    NAME(GL_SCISSOR_TEST, 1),
    NAME(GL_SHADER_COMPILER, 1),
    NAME(GL_STENCIL_BACK_FAIL, 1),
    NAME(GL_STENCIL_BACK_FUNC, 1),
    NAME(GL_STENCIL_BACK_PASS_DEPTH_FAIL, 1),
    NAME(GL_STENCIL_BACK_PASS_DEPTH_PASS, 1),
    NAME(GL_STENCIL_BACK_REF, 1),
    NAME(GL_STENCIL_BACK_VALUE_MASK, 1),
    NAME(GL_STENCIL_BACK_WRITEMASK, 1),
    NAME(GL_STENCIL_BITS, 1),
    NAME(GL_STENCIL_CLEAR_VALUE, 1),
    NAME(GL_STENCIL_FAIL, 1),
    NAME(GL_STENCIL_FUNC, 1),
    NAME(GL_STENCIL_PASS_DEPTH_FAIL, 1),
    NAME(GL_STENCIL_PASS_DEPTH_PASS, 1),
    NAME(GL_STENCIL_REF, 1),
    NAME(GL_STENCIL_TEST, 1),
    NAME(GL_STENCIL_VALUE_MASK, 1),
    NAME(GL_STENCIL_WRITEMASK, 1),
    NAME(GL_SUBPIXEL_BITS, 1),
    NAME(GL_TEXTURE_BINDING_2D, 1),
    NAME(GL_TEXTURE_BINDING_CUBE_MAP, 1),
    NAME(GL_UNPACK_ALIGNMENT, 1),
    NAME(GL_VIEWPORT, 4),
    NAME(GL_IMPLEMENTATION_COLOR_READ_FORMAT, 1),
    NAME(GL_IMPLEMENTATION_COLOR_READ_TYPE, 1),
#undef NAME
};

template <class Value>
void reportState(const char* kind, void (*query)(GLenum, Value*)) {
  for (const auto& item : stateNames) {
    std::vector<Value> values(static_cast<std::size_t>(item.count) + 1, Value(77));
    query(item.value, values.data());
    std::vector<double> answered(values.begin(), values.end());
    answered.push_back(static_cast<double>(glGetError()));
    reportAnswer(std::string(kind) + ":" + item.name, answered);
  }
}

void state() {
  reportState<GLint>("integer", glGetIntegerv);
  reportState<GLfloat>("float", glGetFloatv);
  reportState<GLboolean>("boolean", glGetBooleanv);
  glBindBuffer(GL_ARRAY_BUFFER, 1);
  glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 2);
  glStencilFuncSeparate(GL_BACK, GL_LESS, 2, 3);
  glStencilMaskSeparate(GL_BACK, 9);
  glBlendEquationSeparate(GL_FUNC_SUBTRACT, GL_FUNC_REVERSE_SUBTRACT);
  glBlendFuncSeparate(GL_ONE, GL_SRC_COLOR, GL_CONSTANT_ALPHA, GL_DST_ALPHA);
  glBlendColor(0.5f, 0.25f, 0.125f, 1);
  glSampleCoverage(0.25f, GL_TRUE);
  reportState<GLint>("integer", glGetIntegerv);
  reportState<GLfloat>("float", glGetFloatv);
}

const std::vector<Scene> scenes = {
    {"attribute-types", attributeTypes},
    {"fixed-attributes", fixedAttributes},
    {"buffer-objects", bufferObjects},
    {"constants-of-attributes", constantsOfAttributes},
    {"uniforms", uniforms},
    {"textures", textures},
    {"cube-maps", cubeMaps},
    {"points", points},
    {"blending", blending},
    {"stencils-and-depths", stencilsAndDepths},
    {"framebuffers", framebuffers},
    {"shaders", shaders},
    {"errors", errors},
    {"state", state},
};

}  // namespace

int main(int argumentCount, char** arguments) {
  return runScenes(2, scenes, argumentCount, arguments);
}
