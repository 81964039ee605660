#include "gles/es2/shader_source.h"

#include <gtest/gtest.h>

using gles::es2::desktopSource;
using gles::es2::versionedSource;

namespace {

const std::string prelude =
    "#version 120\n"
    "#define VARNEL_ES 1\n"
    "#define VARNEL_FRAGMENT_PRECISION_HIGH 1\n"
    "#line 0\n";

TEST(VersionedSource, HasTheVersionOfOpenGlEsInFront) {
  EXPECT_EQ(versionedSource("void main() {}\n"), "#version 100\n#line 1\nvoid main() {}\n");
  EXPECT_EQ(versionedSource(""), "#version 100\n#line 1\n");
}

TEST(VersionedSource, KeepsAVersionOfItsOwn) {
  EXPECT_EQ(versionedSource("#version 100\nvoid main() {}"), "#version 100\nvoid main() {}");
  EXPECT_EQ(versionedSource("// a\n # version 100\n"), "// a\n # version 100\n");
  EXPECT_EQ(versionedSource("// #version 100\n"), "#version 100\n#line 1\n// #version 100\n");
}

TEST(DesktopSource, TakesPrecisionOutAndKeepsTheLines) {
  const struct {
    const char* source;
    const char* expected;
  } cases[] = {
      {"precision mediump float;\nvoid main() {}", " \nvoid main() {}"},
      {"precision\n highp\n int ;\nx", "\n\n \nx"},
      {"uniform lowp vec4 c;", "uniform   vec4 c;"},
      {"varying mediump vec2 v; // highp", "varying   vec2 v; // highp"},
      {"/* precision mediump float; */ x", "/* precision mediump float; */ x"},
      {"float precisionOf; float highp2;", "float precisionOf; float highp2;"},
      {"#version 100\nfoo", " \nfoo"},
      {"#ifdef GL_ES\nprecision mediump float;\n#endif\n", "#ifdef VARNEL_ES\n \n#endif\n"},
      {"#ifdef GL_FRAGMENT_PRECISION_HIGH\n#endif",
       "#ifdef VARNEL_FRAGMENT_PRECISION_HIGH\n#endif"},
      {"precision", "precision"},
      {"precision mediump", "precision  "},
      {"/", "/"},
      {"/*", "/*"},
      {"a /* b", "a /* b"},
      {"//", "//"},
      {"", ""},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(desktopSource(item.source), prelude + item.expected);
  }
}

}  // namespace
