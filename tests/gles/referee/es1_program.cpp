// Scenes of OpenGL ES 1.1 for the referee.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>

#include "tests/gles/referee/report.h"

namespace {

constexpr GLfixed one = 0x10000;

GLfixed fixed(double value) {
  return static_cast<GLfixed>(value * 65536);
}

// A strip of two triangles over most of the surface.
const GLfloat quad[] = {-0.75f, -0.75f, 0.75f, -0.75f, -0.75f, 0.75f, 0.75f, 0.75f};
const GLfloat coordinates[] = {0, 0, 1, 0, 0, 1, 1, 1};

void drawQuad() {
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, quad);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
}

void drawTexturedQuad() {
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glTexCoordPointer(2, GL_FLOAT, 0, coordinates);
  drawQuad();
}

void clear() {
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
}

// A sphere around the origin, with its normals.
struct Sphere {
  Sphere() {
    constexpr int rings = 12;
    constexpr int sectors = 16;
    for (int ring = 0; ring <= rings; ++ring) {
      for (int sector = 0; sector <= sectors; ++sector) {
        const double a = M_PI * ring / rings;
        const double b = 2 * M_PI * sector / sectors;
        for (const double value :
             {std::sin(a) * std::cos(b), std::cos(a), std::sin(a) * std::sin(b)}) {
          vertices.push_back(static_cast<GLfloat>(0.8 * value));
          normals.push_back(static_cast<GLbyte>(std::lround(value * 127)));
        }
      }
    }
    for (int ring = 0; ring < rings; ++ring) {
      for (int sector = 0; sector < sectors; ++sector) {
        const int at = ring * (sectors + 1) + sector;
        for (const int index :
             {at, at + 1, at + sectors + 1, at + 1, at + sectors + 2, at + sectors + 1}) {
          indices.push_back(static_cast<GLushort>(index));
        }
      }
    }
  }

  void draw() const {
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    glVertexPointer(3, GL_FLOAT, 0, vertices.data());
    glNormalPointer(GL_BYTE, 0, normals.data());
    glEnable(GL_DEPTH_TEST);
    glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(indices.size()), GL_UNSIGNED_SHORT,
                   indices.data());
  }

  std::vector<GLfloat> vertices;
  std::vector<GLbyte> normals;
  std::vector<GLushort> indices;
};

const Sphere& sphere() {
  static const Sphere instance;
  return instance;
}

// Arrays

template <class Component>
void drawVerticesOf(GLenum type, double unit, int size) {
  std::vector<Component> data;
  for (int corner = 0; corner < 4; ++corner) {
    const double record[] = {corner % 2 ? 1.0 : -1.0, corner / 2 ? 1.0 : -1.0, 0, 1};
    for (int i = 0; i < size; ++i) {
      data.push_back(static_cast<Component>(record[i] * unit));
    }
    data.push_back(Component(99));
  }
  glClear(GL_COLOR_BUFFER_BIT);
  glVertexPointer(size, type, static_cast<GLsizei>((size + 1) * sizeof(Component)), data.data());
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  reportPicture();
}

void vertexTypes() {
  glScalef(0.5f, 0.75f, 1);
  glColor4f(1, 0.5f, 0, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  for (int size = 2; size <= 4; ++size) {
    drawVerticesOf<GLbyte>(GL_BYTE, 1, size);
    drawVerticesOf<GLshort>(GL_SHORT, 1, size);
    drawVerticesOf<GLfixed>(GL_FIXED, 65536, size);
    drawVerticesOf<GLfloat>(GL_FLOAT, 1, size);
  }
}

void colourTypes() {
  const GLfloat floats[] = {1, 0, 0, 1, 0, 1, 0, 1, 0, 0, 1, 1, 1, 1, 1, 1};
  GLfixed fixeds[16];
  for (int i = 0; i < 16; ++i) {
    fixeds[i] = fixed(static_cast<double>(floats[i]) * 0.5);
  }
  glEnableClientState(GL_COLOR_ARRAY);
  glColorPointer(4, GL_FLOAT, 0, floats);
  drawQuad();
  reportPicture();
  clear();
  glColorPointer(4, GL_FIXED, 0, fixeds);
  drawQuad();
  reportPicture();
}

void byteColours() {
  const GLubyte bytes[] = {255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 128, 128, 128, 255};
  glEnableClientState(GL_COLOR_ARRAY);
  glColorPointer(4, GL_UNSIGNED_BYTE, 0, bytes);
  drawQuad();
  reportPicture();
}

template <class Component>
void drawNormalsOf(GLenum type, double unit) {
  std::vector<Component> data;
  for (int i = 0; i < 4; ++i) {
    data.push_back(static_cast<Component>((i % 2 ? 0.5 : -0.5) * unit));
    data.push_back(static_cast<Component>((i / 2 ? 0.5 : -0.5) * unit));
    data.push_back(static_cast<Component>(0.75 * unit));
  }
  clear();
  glNormalPointer(type, 0, data.data());
  drawQuad();
  reportPicture();
}

void normalTypes() {
  glEnable(GL_LIGHTING);
  glEnable(GL_LIGHT0);
  glEnable(GL_NORMALIZE);
  glEnableClientState(GL_NORMAL_ARRAY);
  drawNormalsOf<GLbyte>(GL_BYTE, 127);
  drawNormalsOf<GLshort>(GL_SHORT, 32767);
  drawNormalsOf<GLfixed>(GL_FIXED, 65536);
  drawNormalsOf<GLfloat>(GL_FLOAT, 1);
}

void chequer() {
  std::vector<GLubyte> texels;
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) {
      texels.push_back(static_cast<GLubyte>(x * 36));
      texels.push_back(static_cast<GLubyte>(y * 36));
      texels.push_back(static_cast<GLubyte>((x ^ y) & 1 ? 255 : 0));
      texels.push_back(static_cast<GLubyte>(255 - x * 16));
    }
  }
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 8, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  glEnable(GL_TEXTURE_2D);
}

template <class Component>
void drawCoordinatesOf(GLenum type, double unit) {
  for (int size = 2; size <= 4; ++size) {
    std::vector<Component> data;
    for (int i = 0; i < 4; ++i) {
      data.push_back(static_cast<Component>((i % 2) * unit));
      data.push_back(static_cast<Component>((i / 2) * unit));
      if (size > 2) {
        data.push_back(Component(0));
      }
      if (size > 3) {
        data.push_back(static_cast<Component>(unit));
      }
    }
    clear();
    glTexCoordPointer(size, type, 0, data.data());
    drawQuad();
    reportPicture();
  }
}

void coordinateTypes() {
  chequer();
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  drawCoordinatesOf<GLbyte>(GL_BYTE, 1);
  drawCoordinatesOf<GLshort>(GL_SHORT, 1);
  drawCoordinatesOf<GLfixed>(GL_FIXED, 65536);
  drawCoordinatesOf<GLfloat>(GL_FLOAT, 1);
}

void bufferObjects() {
  struct Record {
    GLbyte position[4];
    GLfixed colour[4];
    GLshort coordinate[2];
  };
  std::vector<Record> records;
  for (int i = 0; i < 4; ++i) {
    const GLbyte x = i % 2 ? 1 : -1;
    const GLbyte y = i / 2 ? 1 : -1;
    records.push_back({{x, y, 0, 1},
                       {i % 2 * one, i / 2 * one, one / 2, one},
                       {static_cast<GLshort>(i % 2), static_cast<GLshort>(i / 2)}});
  }
  const GLubyte indices[] = {7, 0, 1, 2, 3};
  GLuint names[2] = {};
  glGenBuffers(2, names);
  reportAnswer("before", {static_cast<double>(glIsBuffer(names[0]))});
  glBindBuffer(GL_ARRAY_BUFFER, names[0]);
  glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, names[1]);
  reportAnswer("after",
               {static_cast<double>(glIsBuffer(names[0])),
                static_cast<double>(glIsBuffer(names[1])), static_cast<double>(glIsBuffer(0))});
  glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(records.size() * sizeof(Record)),
               records.data(), GL_STATIC_DRAW);
  glBufferData(GL_ELEMENT_ARRAY_BUFFER, sizeof indices, indices, GL_DYNAMIC_DRAW);
  for (const GLenum target : {GL_ARRAY_BUFFER, GL_ELEMENT_ARRAY_BUFFER}) {
    GLint size = 0;
    GLint usage = 0;
    glGetBufferParameteriv(target, GL_BUFFER_SIZE, &size);
    glGetBufferParameteriv(target, GL_BUFFER_USAGE, &usage);
    reportAnswer("buffer", {static_cast<double>(size), static_cast<double>(usage)});
  }
  chequer();
  glScalef(0.75f, 0.75f, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glVertexPointer(3, GL_BYTE, sizeof(Record), nullptr);
  glColorPointer(4, GL_FIXED, sizeof(Record), reinterpret_cast<void*>(offsetof(Record, colour)));
  glTexCoordPointer(2, GL_SHORT, sizeof(Record),
                    reinterpret_cast<void*>(offsetof(Record, coordinate)));
  for (const GLenum name :
       {GL_VERTEX_ARRAY_BUFFER_BINDING, GL_COLOR_ARRAY_BUFFER_BINDING,
        GL_NORMAL_ARRAY_BUFFER_BINDING, GL_TEXTURE_COORD_ARRAY_BUFFER_BINDING}) {
    GLint bound = -1;
    glGetIntegerv(name, &bound);
    reportAnswer("bound", {bound == 0 ? 0.0 : 1.0});
  }
  void* pointer = nullptr;
  glGetPointerv(GL_COLOR_ARRAY_POINTER, &pointer);
  reportAnswer("pointer", {static_cast<double>(reinterpret_cast<std::size_t>(pointer))});
  glBindBuffer(GL_ARRAY_BUFFER, 0);
  glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_BYTE, reinterpret_cast<void*>(1));
  reportPicture();
  const GLbyte moved[] = {0, 0, 0, 1};
  glBindBuffer(GL_ARRAY_BUFFER, names[0]);
  glBufferSubData(GL_ARRAY_BUFFER, 0, 4, moved);
  glBindBuffer(GL_ARRAY_BUFFER, 0);
  glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
  clear();
  glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_BYTE, indices + 1);
  reportPicture();
  clear();
  glDrawArrays(GL_LINE_LOOP, 1, 3);
  reportPicture();
  glBufferSubData(GL_ARRAY_BUFFER, 0, 4, moved);
  reportAnswer("unbound", {static_cast<double>(glGetError())});
  glBindBuffer(GL_ARRAY_BUFFER, names[0]);
  glBufferSubData(GL_ARRAY_BUFFER, 100, 4, moved);
  reportAnswer("outside", {static_cast<double>(glGetError())});
  glDeleteBuffers(2, names);
  GLint bound = -1;
  glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
  reportAnswer("deleted", {static_cast<double>(bound), static_cast<double>(glIsBuffer(names[0])),
                           static_cast<double>(glIsBuffer(names[1]))});
}

void primitives() {
  const GLshort points[] = {-6, -6, 6, -6, -6, 0, 6, 0, -6, 6, 6, 6};
  glScalef(0.125f, 0.125f, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_SHORT, 0, points);
  for (const GLenum mode : {GL_POINTS, GL_LINES, GL_LINE_LOOP, GL_LINE_STRIP, GL_TRIANGLES,
                            GL_TRIANGLE_STRIP, GL_TRIANGLE_FAN}) {
    clear();
    glDrawArrays(mode, 0, 6);
    reportPicture();
  }
}

// Textures

void drawTexture(GLenum format, GLenum type, const void* texels, int width, int height) {
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), width, height, 0, format, type,
               texels);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  clear();
  drawTexturedQuad();
  reportPicture();
  glTexSubImage2D(GL_TEXTURE_2D, 0, 1, 1, 2, 1, format, type, texels);
  clear();
  drawTexturedQuad();
  reportPicture();
  glDeleteTextures(1, &texture);
}

const struct {
  GLenum format;
  GLenum type;
} textureFormats[] = {
    {GL_RGB, GL_UNSIGNED_BYTE},
    {GL_RGB, GL_UNSIGNED_SHORT_5_6_5},
    {GL_RGBA, GL_UNSIGNED_BYTE},
    {GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4},
    {GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1},
    {GL_LUMINANCE, GL_UNSIGNED_BYTE},
    {GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE},
    {GL_ALPHA, GL_UNSIGNED_BYTE},
};

std::vector<GLubyte> noise(std::size_t count) {
  std::vector<GLubyte> bytes(count);
  unsigned state = 12345;
  for (GLubyte& byte : bytes) {
    state = state * 1103515245u + 12345u;
    byte = static_cast<GLubyte>(state >> 16);
  }
  return bytes;
}

void formatsAndEnvironments() {
  const std::vector<GLubyte> texels = noise(4 * 4 * 4);
  const GLfloat environmentColour[] = {0.25f, 0.5f, 0.75f, 1};
  glEnable(GL_TEXTURE_2D);
  glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, environmentColour);
  glColor4f(0.9f, 0.6f, 0.3f, 0.8f);
  for (const GLenum mode : {GL_MODULATE, GL_REPLACE, GL_BLEND, GL_ADD, GL_DECAL}) {
    glTexEnvx(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, static_cast<GLfixed>(mode));
    for (const auto& item : textureFormats) {
      // What decal does with the others is undefined.
      if (mode != GL_DECAL || item.format == GL_RGB || item.format == GL_RGBA) {
        drawTexture(item.format, item.type, texels.data(), 4, 4);
      }
    }
  }
}

void combiners() {
  chequer();
  glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_COMBINE);
  const GLfixed colour[] = {one / 4, one / 2, one, one / 2};
  glTexEnvxv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, colour);
  glColor4x(one / 2, one, one / 4, one);
  for (const GLenum function : {GL_REPLACE, GL_MODULATE, GL_ADD, GL_ADD_SIGNED, GL_INTERPOLATE,
                                GL_SUBTRACT, GL_DOT3_RGB, GL_DOT3_RGBA}) {
    glTexEnvx(GL_TEXTURE_ENV, GL_COMBINE_RGB, static_cast<GLfixed>(function));
    glTexEnvi(GL_TEXTURE_ENV, GL_SRC0_RGB, GL_TEXTURE);
    glTexEnvf(GL_TEXTURE_ENV, GL_SRC1_RGB, GL_PRIMARY_COLOR);
    glTexEnvx(GL_TEXTURE_ENV, GL_SRC2_RGB, GL_CONSTANT);
    glTexEnvx(GL_TEXTURE_ENV, GL_OPERAND2_RGB, GL_SRC_COLOR);
    for (const GLfixed scale : {one, 2 * one, 4 * one}) {
      glTexEnvx(GL_TEXTURE_ENV, GL_RGB_SCALE, scale);
      clear();
      drawTexturedQuad();
      reportPicture();
    }
  }
  for (const GLenum name :
       {GL_TEXTURE_ENV_MODE, GL_COMBINE_RGB, GL_COMBINE_ALPHA, GL_SRC0_RGB, GL_SRC2_RGB,
        GL_OPERAND0_RGB, GL_OPERAND2_RGB, GL_RGB_SCALE, GL_ALPHA_SCALE}) {
    GLfixed asFixed = -1;
    GLint asInteger = -1;
    GLfloat asFloat = -1;
    glGetTexEnvxv(GL_TEXTURE_ENV, name, &asFixed);
    glGetTexEnviv(GL_TEXTURE_ENV, name, &asInteger);
    glGetTexEnvfv(GL_TEXTURE_ENV, name, &asFloat);
    reportAnswer("environment", {static_cast<double>(asFixed), static_cast<double>(asInteger),
                                 static_cast<double>(asFloat)});
  }
}

void twoUnits() {
  chequer();
  const GLubyte stripe[] = {255, 128, 64, 64, 128, 255};
  GLuint texture = 0;
  glActiveTexture(GL_TEXTURE1);
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 2, 1, 0, GL_RGB, GL_UNSIGNED_BYTE, stripe);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  glEnable(GL_TEXTURE_2D);
  const GLbyte second[] = {0, 0, 2, 0, 0, 2, 2, 2};
  glClientActiveTexture(GL_TEXTURE1);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glTexCoordPointer(2, GL_BYTE, 0, second);
  glMatrixMode(GL_TEXTURE);
  glPushMatrix();
  glScalex(one / 2, one, one);
  glRotatex(30 * one, 0, 0, one);
  glClientActiveTexture(GL_TEXTURE0);
  drawTexturedQuad();
  reportPicture();
  glPopMatrix();
  clear();
  drawTexturedQuad();
  reportPicture();
  glClientActiveTexture(GL_TEXTURE1);
  glDisableClientState(GL_TEXTURE_COORD_ARRAY);
  glMultiTexCoord4x(GL_TEXTURE1, one / 4, 0, 0, one);
  glClientActiveTexture(GL_TEXTURE0);
  clear();
  drawTexturedQuad();
  reportPicture();
}

void filtersAndMipmaps() {
  chequer();
  glTexParameterx(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, GL_TRUE);
  const std::vector<GLubyte> texels = noise(8 * 8 * 4);
  glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 8, 8, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
  glMatrixMode(GL_TEXTURE);
  glScalef(3, 3, 1);
  for (const GLenum wrap : {GL_REPEAT, GL_CLAMP_TO_EDGE}) {
    for (const GLenum filter :
         {GL_NEAREST, GL_LINEAR, GL_NEAREST_MIPMAP_NEAREST, GL_LINEAR_MIPMAP_NEAREST,
          GL_NEAREST_MIPMAP_LINEAR, GL_LINEAR_MIPMAP_LINEAR}) {
      glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, static_cast<GLfloat>(filter));
      glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, static_cast<GLfixed>(wrap));
      glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, static_cast<GLint>(wrap));
      clear();
      drawTexturedQuad();
      reportPicture();
      GLfixed asFixed = 0;
      GLint asInteger = 0;
      GLfloat asFloat = 0;
      glGetTexParameterxv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &asFixed);
      glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, &asInteger);
      glGetTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &asFloat);
      reportAnswer("parameter", {static_cast<double>(asFixed), static_cast<double>(asInteger),
                                 static_cast<double>(asFloat)});
    }
  }
}

void copiedTextures() {
  chequer();
  drawTexturedQuad();
  glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 4, 4, 16, 16, 0);
  glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 2, 2, 12, 12, 4, 4);
  clear();
  drawTexturedQuad();
  reportPicture();
}

void palettedTextures() {
  glEnable(GL_TEXTURE_2D);
  for (GLenum format = GL_PALETTE4_RGB8_OES; format <= GL_PALETTE8_RGB5_A1_OES; ++format) {
    const bool four = format < GL_PALETTE8_RGB8_OES;
    const unsigned kind = (format - GL_PALETTE4_RGB8_OES) % 5;
    const std::size_t entry = kind == 0 ? 3 : kind == 1 ? 4 : 2;
    const std::size_t size = (four ? 16 : 256) * entry + (four ? 32 : 64);
    const std::vector<GLubyte> data = noise(size);
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glCompressedTexImage2D(GL_TEXTURE_2D, 0, format, 8, 8, 0, static_cast<GLsizei>(size),
                           data.data());
    clear();
    drawTexturedQuad();
    reportPicture();
    glDeleteTextures(1, &texture);
  }
}

// Lights, fog and what else a fragment meets

void lights() {
  glMatrixMode(GL_PROJECTION);
  glFrustumx(-one / 4, one / 4, -one / 4, one / 4, one / 2, 10 * one);
  glMatrixMode(GL_MODELVIEW);
  glTranslatex(0, 0, fixed(-2));
  glEnable(GL_LIGHTING);
  glEnable(GL_NORMALIZE);
  glEnable(GL_LIGHT1);
  const GLfloat ambient[] = {0.1f, 0.2f, 0.1f, 1};
  glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient);
  const GLfixed diffuse[] = {one / 2, one / 4, one / 8, one};
  const GLfixed specular[] = {one, one, one, one};
  // Dim enough that no vertex has more than full colour, which not all clamp before interpolation.
  const GLfixed gloss[] = {one / 4, one / 4, one / 2, one};
  glMaterialxv(GL_FRONT_AND_BACK, GL_DIFFUSE, diffuse);
  glMaterialxv(GL_FRONT_AND_BACK, GL_SPECULAR, gloss);
  glMaterialx(GL_FRONT_AND_BACK, GL_SHININESS, 16 * one);
  glLightxv(GL_LIGHT1, GL_DIFFUSE, specular);
  glLightxv(GL_LIGHT1, GL_SPECULAR, specular);
  const GLfixed directional[] = {one, one, one, 0};
  glLightxv(GL_LIGHT1, GL_POSITION, directional);
  sphere().draw();
  reportPicture();
  const GLfloat positional[] = {1, 1, 1, 1};
  glLightfv(GL_LIGHT1, GL_POSITION, positional);
  glLightx(GL_LIGHT1, GL_LINEAR_ATTENUATION, one / 2);
  glLightf(GL_LIGHT1, GL_QUADRATIC_ATTENUATION, 0.25f);
  clear();
  sphere().draw();
  reportPicture();
  const GLfixed direction[] = {-one, -one, -one};
  glLightxv(GL_LIGHT1, GL_SPOT_DIRECTION, direction);
  glLightx(GL_LIGHT1, GL_SPOT_CUTOFF, 25 * one);
  glLightx(GL_LIGHT1, GL_SPOT_EXPONENT, 3 * one);
  clear();
  sphere().draw();
  reportPicture();
  glEnable(GL_COLOR_MATERIAL);
  glColor4ub(0, 128, 255, 255);
  glLightModelx(GL_LIGHT_MODEL_TWO_SIDE, 1);
  glFrontFace(GL_CW);
  glEnable(GL_CULL_FACE);
  glCullFace(GL_FRONT);
  glShadeModel(GL_FLAT);
  clear();
  sphere().draw();
  reportPicture();
  for (const GLenum name :
       {GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_POSITION, GL_SPOT_DIRECTION, GL_SPOT_EXPONENT,
        GL_SPOT_CUTOFF, GL_CONSTANT_ATTENUATION, GL_LINEAR_ATTENUATION, GL_QUADRATIC_ATTENUATION}) {
    GLfixed values[5] = {-9, -9, -9, -9, -9};
    glGetLightxv(GL_LIGHT1, name, values);
    reportAnswer("light", std::vector<double>(values, values + 5));
  }
  for (const GLenum name : {GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_EMISSION, GL_SHININESS}) {
    GLfixed values[5] = {-9, -9, -9, -9, -9};
    glGetMaterialxv(GL_FRONT, name, values);
    reportAnswer("material", std::vector<double>(values, values + 5));
  }
}

void fog() {
  const GLfixed colour[] = {one, one, 0, one};
  const GLfixed corners[] = {-one, -one, -one,     one, -one, -one,
                             -one, one,  -4 * one, one, one,  -4 * one};
  glMatrixMode(GL_PROJECTION);
  glOrthox(-one, one, -one, one, 0, 5 * one);
  glEnable(GL_FOG);
  glFogxv(GL_FOG_COLOR, colour);
  glFogx(GL_FOG_DENSITY, fixed(0.4));
  glFogx(GL_FOG_START, one);
  glFogx(GL_FOG_END, fixed(3.5));
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(3, GL_FIXED, 0, corners);
  for (const GLenum mode : {GL_EXP, GL_EXP2, GL_LINEAR}) {
    glFogx(GL_FOG_MODE, static_cast<GLfixed>(mode));
    clear();
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    reportPicture();
  }
}

void clipPlanes() {
  const GLfixed first[] = {one, 0, 0, one / 4};
  const GLfloat second[] = {0, -1, 0, 0.5f};
  glClipPlanex(GL_CLIP_PLANE0, first);
  glTranslatef(0.1f, 0, 0);
  glClipPlanef(GL_CLIP_PLANE1, second);
  glEnable(GL_CLIP_PLANE0);
  drawQuad();
  reportPicture();
  glEnable(GL_CLIP_PLANE1);
  clear();
  drawQuad();
  reportPicture();
  for (const GLenum plane : {GL_CLIP_PLANE0, GL_CLIP_PLANE1, GL_CLIP_PLANE2}) {
    GLfixed asFixed[4] = {-9, -9, -9, -9};
    GLfloat asFloat[4] = {-9, -9, -9, -9};
    glGetClipPlanex(plane, asFixed);
    glGetClipPlanef(plane, asFloat);
    reportAnswer("plane", std::vector<double>(asFixed, asFixed + 4));
    reportAnswer("plane", std::vector<double>(asFloat, asFloat + 4));
  }
}

void points() {
  const GLfloat places[] = {-0.5f, -0.5f, -0.5f, 0.5f, -0.5f, 0,
                            -0.5f, 0.5f,  0.5f,  0.5f, 0.5f,  0.75f};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(3, GL_FLOAT, 0, places);
  glPointSizex(5 * one);
  glDrawArrays(GL_POINTS, 0, 4);
  reportPicture();
  const GLfixed attenuation[] = {0, one, 0};
  glPointParameterxv(GL_POINT_DISTANCE_ATTENUATION, attenuation);
  glPointParameterx(GL_POINT_SIZE_MIN, 2 * one);
  glPointParameterf(GL_POINT_SIZE_MAX, 7);
  clear();
  glDrawArrays(GL_POINTS, 0, 4);
  reportPicture();
  chequer();
  glEnable(GL_POINT_SPRITE_OES);
  glTexEnvi(GL_POINT_SPRITE_OES, GL_COORD_REPLACE_OES, GL_TRUE);
  clear();
  glDrawArrays(GL_POINTS, 0, 4);
  reportPicture();
}

void linesAndOffsets() {
  const GLfloat ends[] = {-0.8f, -0.4f, 0.8f, 0.6f};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, ends);
  glLineWidthx(3 * one);
  glDrawArrays(GL_LINES, 0, 2);
  reportPicture();
  clear();
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_LESS);
  drawQuad();
  glColor4f(1, 0, 0, 1);
  drawQuad();
  reportPicture();
  glEnable(GL_POLYGON_OFFSET_FILL);
  glPolygonOffsetx(-one, -4 * one);
  drawQuad();
  reportPicture();
}

void blendingAndMasks() {
  glColor4x(one, one / 2, one / 4, one / 2);
  glEnable(GL_BLEND);
  const GLenum factors[] = {
      GL_ZERO, GL_ONE, GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_DST_ALPHA, GL_ONE_MINUS_DST_ALPHA};
  for (const GLenum source : factors) {
    for (const GLenum destination : factors) {
      clear();
      glBlendFunc(source, destination);
      drawQuad();
      reportPicture();
    }
  }
  glDisable(GL_BLEND);
  glColorMask(1, 0, 1, 0);
  clear();
  drawQuad();
  glColorMask(1, 1, 1, 1);
  reportPicture();
  glEnable(GL_COLOR_LOGIC_OP);
  for (GLenum operation = GL_CLEAR; operation <= GL_SET; ++operation) {
    clear();
    glLogicOp(operation);
    drawQuad();
    reportPicture();
  }
}

void testsOfFragments() {
  glColor4f(1, 1, 0, 0.5f);
  glEnable(GL_ALPHA_TEST);
  for (GLenum function = GL_NEVER; function <= GL_ALWAYS; ++function) {
    clear();
    glAlphaFuncx(function, fixed(0.25));
    drawQuad();
    reportPicture();
  }
  glDisable(GL_ALPHA_TEST);
  glEnable(GL_STENCIL_TEST);
  glClearStencil(1);
  clear();
  glStencilFunc(GL_ALWAYS, 2, 0xFF);
  glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
  glEnable(GL_SCISSOR_TEST);
  glScissor(4, 8, 12, 10);
  drawQuad();
  glDisable(GL_SCISSOR_TEST);
  glStencilFunc(GL_EQUAL, 2, 0xFF);
  glStencilMask(1);
  glStencilOp(GL_KEEP, GL_KEEP, GL_INCR);
  glColor4f(0, 1, 1, 1);
  drawQuad();
  reportPicture();
  glDepthRangex(one / 4, one / 2);
  glClearDepthx(one / 3);
  clear();
  glDisable(GL_STENCIL_TEST);
  glEnable(GL_DEPTH_TEST);
  glRotatex(60 * one, 0, one, 0);
  drawQuad();
  reportPicture();
}

void matrices() {
  const GLfixed skew[] = {one, 0, 0, 0, one / 4, one, 0, 0, 0, 0, one, 0, 0, 0, 0, one};
  glMatrixMode(GL_PROJECTION);
  glLoadMatrixx(skew);
  glPushMatrix();
  glOrthof(-2, 2, -2, 2, -1, 1);
  glMatrixMode(GL_MODELVIEW);
  glMultMatrixx(skew);
  glTranslatex(one / 8, 0, 0);
  glRotatef(20, 0, 0, 1);
  drawQuad();
  reportPicture();
  for (const GLenum name : {GL_MODELVIEW_MATRIX, GL_PROJECTION_MATRIX, GL_TEXTURE_MATRIX}) {
    GLfloat asFloat[16] = {};
    glGetFloatv(name, asFloat);
    reportAnswer("matrix", std::vector<double>(asFloat, asFloat + 16));
  }
  glMatrixMode(GL_PROJECTION);
  glPopMatrix();
  clear();
  drawQuad();
  reportPicture();
  glPopMatrix();
  reportAnswer("underflow", {static_cast<double>(glGetError())});
}

void readPixels() {
  drawQuad();
  constexpr std::size_t rowBytes = 24;  // 5 pixels, on multiples of 8
  std::vector<GLubyte> row(3 * rowBytes, 77);
  glPixelStorei(GL_PACK_ALIGNMENT, 8);
  glReadPixels(2, 2, 5, 3, GL_RGBA, GL_UNSIGNED_BYTE, row.data());
  glPixelStorei(GL_PACK_ALIGNMENT, 1);
  glReadPixels(2, 2, 5, 3, GL_RGBA, GL_UNSIGNED_BYTE, row.data());
  reportAnswer("row", std::vector<double>(row.begin(), row.end()));
}

void errors() {
  const auto report = [](const char* name) {
    reportAnswer(name, {static_cast<double>(glGetError())});
  };
  glEnable(0x9999);
  report("enable");
  glMatrixMode(0x9999);
  report("matrixMode");
  glDrawArrays(GL_TRIANGLES, 0, -1);
  report("drawArrays");
  glDrawElements(GL_TRIANGLES, 3, GL_FLOAT, quad);
  report("drawElements");
  glVertexPointer(5, GL_FIXED, 0, quad);
  report("vertexPointer");
  glVertexPointer(2, GL_BYTE, -1, quad);
  report("stride");
  glBindBuffer(0x9999, 1);
  report("bindBuffer");
  glLightx(GL_LIGHT0, GL_SPOT_CUTOFF, 100 * one);
  report("spotCutoff");
  glLightf(0x9999, GL_SPOT_CUTOFF, 1);
  report("light");
  glFogx(GL_FOG_MODE, 1);
  report("fogMode");
  glPointSizex(-one);
  report("pointSize");
  glLineWidth(0);
  report("lineWidth");
  glActiveTexture(0x9999);
  report("activeTexture");
  glClientActiveTexture(0x9999);
  report("clientActiveTexture");
  glPixelStorei(GL_UNPACK_ALIGNMENT, 3);
  report("pixelStore");
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_REPEAT);
  report("minFilter");
  glAlphaFunc(1, 0);
  report("alphaFunc");
  glBlendFunc(0x9999, GL_ONE);
  report("blendFunc");
  GLfixed unchanged = 77;
  glGetFixedv(0x9999, &unchanged);
  report("getFixed");
  reportAnswer("unchanged", {static_cast<double>(unchanged)});
}

// Answers

const struct {
  const char* name;
  GLenum value;
  int count;
} stateNames[] = {
#define NAME(name, count) \
  { #name, name, count }
    NAME(GL_ACTIVE_TEXTURE, 1),
    NAME(GL_ALIASED_LINE_WIDTH_RANGE, 2),
    NAME(GL_ALIASED_POINT_SIZE_RANGE, 2),
    NAME(GL_ALPHA_BITS, 1),
    NAME(GL_ALPHA_TEST, 1),
    NAME(GL_ALPHA_TEST_FUNC, 1),
    NAME(GL_ALPHA_TEST_REF, 1),
    NAME(GL_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_BLEND, 1),
    NAME(GL_BLEND_DST, 1),
    NAME(GL_BLEND_SRC, 1),
    NAME(GL_BLUE_BITS, 1),
    NAME(GL_CLIENT_ACTIVE_TEXTURE, 1),
    NAME(GL_CLIP_PLANE0, 1),
    NAME(GL_COLOR_ARRAY, 1),
    NAME(GL_COLOR_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_COLOR_ARRAY_SIZE, 1),
    NAME(GL_COLOR_ARRAY_STRIDE, 1),
    NAME(GL_COLOR_ARRAY_TYPE, 1),
    NAME(GL_COLOR_CLEAR_VALUE, 4),
    NAME(GL_COLOR_LOGIC_OP, 1),
    NAME(GL_COLOR_MATERIAL, 1),
    NAME(GL_COLOR_WRITEMASK, 4),
    NAME(GL_CULL_FACE, 1),
    NAME(GL_CULL_FACE_MODE, 1),
    NAME(GL_CURRENT_COLOR, 4),
    NAME(GL_CURRENT_NORMAL, 3),
    NAME(GL_CURRENT_TEXTURE_COORDS, 4),
    NAME(GL_DEPTH_BITS, 1),
    NAME(GL_DEPTH_CLEAR_VALUE, 1),
    NAME(GL_DEPTH_FUNC, 1),
    NAME(GL_DEPTH_RANGE, 2),
    NAME(GL_DEPTH_TEST, 1),
    NAME(GL_DEPTH_WRITEMASK, 1),
    NAME(GL_DITHER, 1),
    NAME(GL_ELEMENT_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_FOG, 1),
    NAME(GL_FOG_COLOR, 4),
    NAME(GL_FOG_DENSITY, 1),
    NAME(GL_FOG_END, 1),
    NAME(GL_FOG_HINT, 1),
    NAME(GL_FOG_MODE, 1),
    NAME(GL_FOG_START, 1),
    NAME(GL_FRONT_FACE, 1),
    NAME(GL_GENERATE_MIPMAP_HINT, 1),
    NAME(GL_GREEN_BITS, 1),
    NAME(GL_LIGHT0, 1),
    NAME(GL_LIGHTING, 1),
    NAME(GL_LIGHT_MODEL_AMBIENT, 4),
    NAME(GL_LIGHT_MODEL_TWO_SIDE, 1),
    NAME(GL_LINE_SMOOTH, 1),
    NAME(GL_LINE_SMOOTH_HINT, 1),
    NAME(GL_LINE_WIDTH, 1),
    NAME(GL_LOGIC_OP_MODE, 1),
    NAME(GL_MATRIX_MODE, 1),
    NAME(GL_MAX_CLIP_PLANES, 1),
    NAME(GL_MAX_LIGHTS, 1),
    NAME(GL_MAX_MODELVIEW_STACK_DEPTH, 1),
    NAME(GL_MAX_PROJECTION_STACK_DEPTH, 1),
    NAME(GL_MAX_TEXTURE_SIZE, 1),
    NAME(GL_MAX_TEXTURE_STACK_DEPTH, 1),
    NAME(GL_MAX_TEXTURE_UNITS, 1),
    NAME(GL_MAX_VIEWPORT_DIMS, 2),
    NAME(GL_MODELVIEW_MATRIX, 16),
    NAME(GL_MODELVIEW_STACK_DEPTH, 1),
    NAME(GL_MULTISAMPLE, 1),
    NAME(GL_NORMALIZE, 1),
    NAME(GL_NORMAL_ARRAY, 1),
    NAME(GL_NORMAL_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_NORMAL_ARRAY_STRIDE, 1),
    NAME(GL_NORMAL_ARRAY_TYPE, 1),
    NAME(GL_NUM_COMPRESSED_TEXTURE_FORMATS, 1),
    NAME(GL_PACK_ALIGNMENT, 1),
    NAME(GL_PERSPECTIVE_CORRECTION_HINT, 1),
    NAME(GL_POINT_DISTANCE_ATTENUATION, 3),
    NAME(GL_POINT_FADE_THRESHOLD_SIZE, 1),
    NAME(GL_POINT_SIZE, 1),
    NAME(GL_POINT_SIZE_MAX, 1),
    NAME(GL_POINT_SIZE_MIN, 1),
    NAME(GL_POINT_SMOOTH, 1),
    NAME(GL_POINT_SMOOTH_HINT, 1),
    NAME(GL_POINT_SPRITE_OES, 1),
    NAME(GL_POLYGON_OFFSET_FACTOR, 1),
    NAME(GL_POLYGON_OFFSET_FILL, 1),
    NAME(GL_POLYGON_OFFSET_UNITS, 1),
    NAME(GL_PROJECTION_MATRIX, 16),
    NAME(GL_PROJECTION_STACK_DEPTH, 1),
    NAME(GL_RED_BITS, 1),
    NAME(GL_RESCALE_NORMAL, 1),
    NAME(GL_SAMPLES, 1),
    NAME(GL_SAMPLE_ALPHA_TO_COVERAGE, 1),
    NAME(GL_SAMPLE_ALPHA_TO_ONE, 1),
    NAME(GL_SAMPLE_BUFFERS, 1),
    NAME(GL_SAMPLE_COVERAGE, 1),
    NAME(GL_SAMPLE_COVERAGE_INVERT, 1),
    NAME(GL_SAMPLE_COVERAGE_VALUE, 1),
    NAME(GL_SCISSOR_BOX, 4),
    NAME(GL_SCISSOR_TEST, 1),
    NAME(GL_SHADE_MODEL, 1),
    NAME(GL_SMOOTH_LINE_WIDTH_RANGE, 2),
    NAME(GL_SMOOTH_POINT_SIZE_RANGE, 2),
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
    NAME(GL_TEXTURE_2D, 1),
    NAME(GL_TEXTURE_BINDING_2D, 1),
    NAME(GL_TEXTURE_COORD_ARRAY, 1),
    NAME(GL_TEXTURE_COORD_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_TEXTURE_COORD_ARRAY_SIZE, 1),
    NAME(GL_TEXTURE_COORD_ARRAY_STRIDE, 1),
    NAME(GL_TEXTURE_COORD_ARRAY_TYPE, 1),
    NAME(GL_TEXTURE_MATRIX, 16),
    NAME(GL_TEXTURE_STACK_DEPTH, 1),
    NAME(GL_UNPACK_ALIGNMENT, 1),
    NAME(GL_VERTEX_ARRAY, 1),
    NAME(GL_VERTEX_ARRAY_BUFFER_BINDING, 1),
    NAME(GL_VERTEX_ARRAY_SIZE, 1),
    NAME(GL_VERTEX_ARRAY_STRIDE, 1),
    NAME(GL_VERTEX_ARRAY_TYPE, 1),
    NAME(GL_VIEWPORT, 4),
    NAME(GL_IMPLEMENTATION_COLOR_READ_FORMAT_OES, 1),
    NAME(GL_IMPLEMENTATION_COLOR_READ_TYPE_OES, 1),
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

void initialState() {
  reportState<GLint>("integer", glGetIntegerv);
  reportState<GLfloat>("float", glGetFloatv);
  reportState<GLfixed>("fixed", glGetFixedv);
  reportState<GLboolean>("boolean", glGetBooleanv);
}

void changedState() {
  const GLfloat ambient[] = {0.5f, 0.25f, 0.125f, 1};
  const GLfloat attenuation[] = {0.5f, 0.25f, 0.125f};
  glAlphaFunc(GL_GREATER, 0.25f);
  glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
  glClearColor(0.5f, 0.25f, 0.125f, 1);
  glClearDepthf(0.5f);
  glClearStencil(5);
  glColor4f(0.5f, 0.25f, 0.125f, 1);
  glColorMask(1, 0, 1, 0);
  glCullFace(GL_FRONT);
  glDepthFunc(GL_GREATER);
  glDepthMask(0);
  glDepthRangef(0.25f, 0.75f);
  glFogfv(GL_FOG_COLOR, ambient);
  glFogf(GL_FOG_MODE, GL_LINEAR);
  glFogf(GL_FOG_DENSITY, 0.5f);
  glFogf(GL_FOG_START, 2);
  glFogf(GL_FOG_END, 3);
  glFrontFace(GL_CW);
  for (const GLenum hint : {GL_FOG_HINT, GL_LINE_SMOOTH_HINT, GL_PERSPECTIVE_CORRECTION_HINT,
                            GL_POINT_SMOOTH_HINT, GL_GENERATE_MIPMAP_HINT}) {
    glHint(hint, GL_NICEST);
  }
  glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient);
  glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1);
  glLineWidth(2);
  glLogicOp(GL_XOR);
  glNormal3f(0.5f, 0, 0.25f);
  glMultiTexCoord4f(GL_TEXTURE0, 0.5f, 0.25f, 0, 1);
  glPixelStorei(GL_PACK_ALIGNMENT, 8);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 2);
  glPointParameterfv(GL_POINT_DISTANCE_ATTENUATION, attenuation);
  glPointParameterf(GL_POINT_FADE_THRESHOLD_SIZE, 2);
  glPointParameterf(GL_POINT_SIZE_MIN, 2);
  glPointParameterf(GL_POINT_SIZE_MAX, 9);
  glPointSize(3);
  glPolygonOffset(1.5f, -2);
  glSampleCoverage(0.5f, 1);
  glScissor(1, 2, 3, 4);
  glShadeModel(GL_FLAT);
  glStencilFunc(GL_EQUAL, 3, 15);
  glStencilMask(7);
  glStencilOp(GL_INCR, GL_DECR, GL_REPLACE);
  glViewport(5, 6, 7, 8);
  for (const GLenum capability : {GL_ALPHA_TEST,
                                  GL_BLEND,
                                  GL_CLIP_PLANE0,
                                  GL_COLOR_LOGIC_OP,
                                  GL_COLOR_MATERIAL,
                                  GL_CULL_FACE,
                                  GL_DEPTH_TEST,
                                  GL_FOG,
                                  GL_LIGHT0,
                                  GL_LIGHTING,
                                  GL_LINE_SMOOTH,
                                  GL_NORMALIZE,
                                  GL_POINT_SMOOTH,
                                  GL_POINT_SPRITE_OES,
                                  GL_POLYGON_OFFSET_FILL,
                                  GL_RESCALE_NORMAL,
                                  GL_SAMPLE_ALPHA_TO_COVERAGE,
                                  GL_SAMPLE_ALPHA_TO_ONE,
                                  GL_SAMPLE_COVERAGE,
                                  GL_SCISSOR_TEST,
                                  GL_STENCIL_TEST,
                                  GL_TEXTURE_2D}) {
    glEnable(capability);
    reportAnswer("enabled", {static_cast<double>(glIsEnabled(capability))});
  }
  glDisable(GL_MULTISAMPLE);
  glDisable(GL_DITHER);
  glMatrixMode(GL_PROJECTION);
  glPushMatrix();
  glScalef(0.5f, 2, 4);
  glMatrixMode(GL_TEXTURE);
  glTranslatef(0.5f, 2, 4);
  glMatrixMode(GL_MODELVIEW);
  glPushMatrix();
  glPushMatrix();
  glRotatef(90, 0, 0, 1);
  glActiveTexture(GL_TEXTURE1);
  glClientActiveTexture(GL_TEXTURE1);
  glVertexPointer(3, GL_FIXED, 12, quad);
  glNormalPointer(GL_SHORT, 8, quad);
  glColorPointer(4, GL_UNSIGNED_BYTE, 16, quad);
  glTexCoordPointer(3, GL_BYTE, 4, quad);
  for (const GLenum array :
       {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_COLOR_ARRAY, GL_TEXTURE_COORD_ARRAY}) {
    glEnableClientState(array);
    reportAnswer("enabled", {static_cast<double>(glIsEnabled(array))});
  }
  glBindBuffer(GL_ARRAY_BUFFER, 3);
  glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 4);
  glBindTexture(GL_TEXTURE_2D, 5);
  initialState();
}

const std::vector<Scene> scenes = {
    {"vertex-types", vertexTypes},
    {"colour-types", colourTypes},
    {"byte-colours", byteColours},
    {"normal-types", normalTypes},
    {"coordinate-types", coordinateTypes},
    {"buffer-objects", bufferObjects},
    {"primitives", primitives},
    {"formats-and-environments", formatsAndEnvironments},
    {"combiners", combiners},
    {"two-units", twoUnits},
    {"filters-and-mipmaps", filtersAndMipmaps},
    {"copied-textures", copiedTextures},
    {"paletted-textures", palettedTextures},
    {"lights", lights},
    {"fog", fog},
    {"clip-planes", clipPlanes},
    {"points", points},
    {"lines-and-offsets", linesAndOffsets},
    {"blending-and-masks", blendingAndMasks},
    {"tests-of-fragments", testsOfFragments},
    {"matrices", matrices},
    {"read-pixels", readPixels},
    {"errors", errors},
    {"initial-state", initialState},
    {"changed-state", changedState},
};

}  // namespace

int main(int argumentCount, char** arguments) {
  return runScenes(1, scenes, argumentCount, arguments);
}
