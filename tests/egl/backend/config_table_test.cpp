#include "egl/backend/config_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string rowText(const EgwConfig& row) {
  std::string text;
  for (const EGLint value :
       {row.id, row.surfaceBits, row.sampleBuffers, row.samples, row.red, row.green, row.blue,
        row.alpha, row.depth, row.stencil, row.bindRgb, row.bindRgba}) {
    text += std::to_string(value) + " ";
  }
  return text;
}

std::vector<int> match(const std::vector<EGLint>& attributes) {
  int rows[10];
  const int count = matchConfigs(defaultConfigTable(), attributes.data(), rows);
  return count < 0 ? std::vector<int>{-1} : std::vector<int>(rows, rows + count);
}

TEST(ConfigTable, TenRowsOfTwelveIntegers) {
  static_assert(sizeof(EgwConfig) == 12 * 4);
  const char* rows[] = {"0 1 0 0 8 8 8 8 24 8 0 0 ", "1 1 0 0 8 8 8 8 24 8 0 1 ",
                        "2 1 0 0 5 6 5 0 24 8 0 0 ", "3 1 0 0 5 6 5 0 24 8 1 0 ",
                        "4 2 0 0 8 8 8 8 24 8 0 0 ", "5 2 0 0 5 6 5 0 24 8 0 0 ",
                        "6 4 0 0 8 8 8 8 24 8 0 0 ", "7 4 1 4 8 8 8 8 24 8 0 0 ",
                        "8 4 0 0 5 6 5 0 24 8 0 0 ", "9 4 1 4 5 6 5 0 24 8 0 0 "};
  const EgwConfigTable table = defaultConfigTable();
  for (std::size_t i = 0; i < table.size(); ++i) {
    EXPECT_EQ(rowText(table[i]), rows[i]);
  }
}

TEST(ConfigTable, OnlyAdaptersThatBeginWithIntelAreExceptions) {
  EXPECT_TRUE(needsIntelException("Intel(R) HD Graphics"));
  EXPECT_TRUE(needsIntelException("Intel"));
  EXPECT_FALSE(needsIntelException("Inte"));
  EXPECT_FALSE(needsIntelException("intel"));
  EXPECT_FALSE(needsIntelException("Mesa Intel(R) UHD Graphics"));
  EXPECT_FALSE(needsIntelException(""));
  EXPECT_FALSE(needsIntelException(nullptr));
}

TEST(ConfigTable, OnAnIntelAdapterRow0AnswersDepth0) {
  EgwConfigTable table = defaultConfigTable();
  applyIntelException(table);
  EXPECT_EQ(configAttribute(table[0], EGL_DEPTH_SIZE), 0);
  EXPECT_EQ(rowText(table[0]), "0 1 0 0 5 6 5 0 0 0 0 0 ");
  EXPECT_EQ(rowText(table[1]), "1 1 0 0 5 6 5 0 0 0 1 0 ");
  EXPECT_EQ(rowText(table[4]), "4 2 0 0 5 6 5 0 0 0 0 0 ");
  for (const std::size_t i : {2u, 3u, 5u, 6u, 7u, 8u, 9u}) {
    EXPECT_EQ(rowText(table[i]), rowText(defaultConfigTable()[i]));
  }
}

TEST(ConfigTable, Attributes) {
  struct Row {
    EGLint attribute, row7, row5;
  };
  const Row rows[] = {
      {EGL_CONFIG_ID, 7, 5},
      {EGL_SURFACE_TYPE, 4, 2},
      {EGL_SAMPLE_BUFFERS, 1, 0},
      {EGL_SAMPLES, 4, 0},
      {EGL_RED_SIZE, 8, 5},
      {EGL_GREEN_SIZE, 8, 6},
      {EGL_BLUE_SIZE, 8, 5},
      {EGL_ALPHA_SIZE, 8, 0},
      {EGL_DEPTH_SIZE, 24, 24},
      {EGL_STENCIL_SIZE, 8, 8},
      {EGL_BIND_TO_TEXTURE_RGB, 0, 0},
      {EGL_BIND_TO_TEXTURE_RGBA, 0, 0},
      {EGL_BUFFER_SIZE, 32, 16},
      {EGL_CONFIG_CAVEAT, EGL_NONE, EGL_NONE},
      {EGL_TRANSPARENT_TYPE, EGL_NONE, EGL_NONE},
      {EGL_LEVEL, 0, 0},
      {EGL_TRANSPARENT_RED_VALUE, 0, 0},
      {EGL_TRANSPARENT_GREEN_VALUE, 0, 0},
      {EGL_TRANSPARENT_BLUE_VALUE, 0, 0},
      {EGL_MIN_SWAP_INTERVAL, 0, 0},
      {EGL_MAX_SWAP_INTERVAL, 1, 1},
      {EGL_MAX_PBUFFER_WIDTH, 1024, 1024},
      {EGL_MAX_PBUFFER_HEIGHT, 1024, 1024},
      {EGL_MAX_PBUFFER_PIXELS, 0x100000, 0x100000},
      {EGL_NATIVE_RENDERABLE, 0, 1},
      {EGL_RENDERABLE_TYPE, 5, 5},
      {EGL_CONFORMANT, 0, 0},
      {EGL_NATIVE_VISUAL_ID, 0, 0},
      {0x7777, 0, 0},
  };
  const EgwConfigTable table = defaultConfigTable();
  for (const Row& row : rows) {
    EXPECT_EQ(configAttribute(table[7], row.attribute), row.row7) << std::hex << row.attribute;
    EXPECT_EQ(configAttribute(table[5], row.attribute), row.row5) << std::hex << row.attribute;
  }
}

TEST(ConfigTable, SurfaceBitsAreComparedForEquality) {
  EXPECT_EQ(match({EGL_SURFACE_TYPE, 6, EGL_NONE}), std::vector<int>{});
  EXPECT_EQ(match({EGL_SURFACE_TYPE, 2, EGL_NONE}), (std::vector<int>{4, 5}));
  EXPECT_EQ(match({EGL_SURFACE_TYPE, 0, EGL_NONE}), std::vector<int>{});
  EXPECT_EQ(match({EGL_SURFACE_TYPE, -1, EGL_NONE}),
            (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(ConfigTable, MatchesStayInTheTablesOrder) {
  EXPECT_EQ(match({EGL_NONE}), (std::vector<int>{6, 7, 8, 9}));
  EXPECT_EQ(match({EGL_ALPHA_SIZE, 1, EGL_NONE}), (std::vector<int>{6, 7}));
  EXPECT_EQ(match({EGL_GREEN_SIZE, 7, EGL_ALPHA_SIZE, -1, EGL_NONE}), (std::vector<int>{6, 7}));
  EXPECT_EQ(match({EGL_SAMPLES, 2, EGL_NONE}), (std::vector<int>{7, 9}));
  EXPECT_EQ(match({EGL_SAMPLE_BUFFERS, 1, EGL_SAMPLES, 4, EGL_NONE}), (std::vector<int>{7, 9}));
  EXPECT_EQ(match({EGL_SAMPLES, 5, EGL_NONE}), std::vector<int>{});
  EXPECT_EQ(match({EGL_DEPTH_SIZE, 25, EGL_NONE}), std::vector<int>{});
  EXPECT_EQ(match({EGL_STENCIL_SIZE, 8, EGL_NONE}), (std::vector<int>{6, 7, 8, 9}));
  EXPECT_EQ(match({EGL_SURFACE_TYPE, 1, EGL_BIND_TO_TEXTURE_RGBA, 1, EGL_NONE}),
            std::vector<int>{1});
  EXPECT_EQ(match({EGL_SURFACE_TYPE, 1, EGL_BIND_TO_TEXTURE_RGB, 1, EGL_NONE}),
            std::vector<int>{3});
  EXPECT_EQ(match({EGL_SURFACE_TYPE, 1, EGL_BIND_TO_TEXTURE_RGB, 0, EGL_NONE}),
            (std::vector<int>{0, 1, 2}));
}

TEST(ConfigTable, ANullListAsksForWindows) {
  int rows[10];
  EXPECT_EQ(matchConfigs(defaultConfigTable(), nullptr, rows), 4);
  EXPECT_EQ(rows[0], 6);
}

TEST(ConfigTable, AttributesOutsideTheRangeAreRefused) {
  EXPECT_EQ(match({EGL_BUFFER_SIZE, 99, EGL_NONE}), (std::vector<int>{6, 7, 8, 9}));
  EXPECT_EQ(match({EGL_BUFFER_SIZE - 1, 0, EGL_NONE}), std::vector<int>{-1});
  EXPECT_EQ(match({EGL_BIND_TO_TEXTURE_RGBA + 1, 0, EGL_NONE}), std::vector<int>{-1});
  EXPECT_EQ(match({EGL_RENDERABLE_TYPE, 1, EGL_NONE}), std::vector<int>{-1});
}

}  // namespace
