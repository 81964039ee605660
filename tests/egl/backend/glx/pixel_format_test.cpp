#include "egl/backend/glx/pixel_format.h"

#include <gtest/gtest.h>

namespace {

PixelFormat format(int colour, int alpha, int depth, int stencil) {
  PixelFormat made;
  made.drawsToWindow = true;
  made.drawsToPbuffer = true;
  made.accelerated = true;
  made.visual = 33;
  made.visualDepth = 24;
  made.red = made.blue = colour;
  made.green = colour == 5 ? 6 : colour;
  made.alpha = alpha;
  made.depth = depth;
  made.stencil = stencil;
  return made;
}

PixelFormatRequest request8888() {
  PixelFormatRequest request;
  request.red = request.green = request.blue = request.alpha = 8;
  request.depth = 24;
  request.stencil = 8;
  return request;
}

using Indexes = std::vector<std::size_t>;

TEST(PixelFormat, SizesAreMinimaAndTheFewestBitsBeyondThemComeFirst) {
  const std::vector<PixelFormat> formats = {format(8, 8, 32, 8), format(8, 0, 24, 8),
                                            format(8, 8, 24, 8), format(10, 8, 24, 8)};
  EXPECT_EQ(choosePixelFormats(formats, request8888(), 16), (Indexes{2, 0, 3}));
  EXPECT_EQ(choosePixelFormats(formats, request8888(), 1), (Indexes{2}));
}

TEST(PixelFormat, A565RowGetsA565Format) {
  PixelFormatRequest request;
  request.red = request.blue = 5;
  request.green = 6;
  const std::vector<PixelFormat> formats = {format(8, 8, 0, 0), format(5, 0, 24, 8)};
  EXPECT_EQ(choosePixelFormats(formats, request, 16), (Indexes{1, 0}));
}

TEST(PixelFormat, EqualsStayInOrder) {
  const std::vector<PixelFormat> formats(20, format(8, 8, 24, 8));
  EXPECT_EQ(choosePixelFormats(formats, request8888(), 3), (Indexes{0, 1, 2}));
}

TEST(PixelFormat, SamplesAreGivenOnlyWhenAsked) {
  std::vector<PixelFormat> formats = {format(8, 8, 24, 8), format(8, 8, 24, 8)};
  formats[0].sampleBuffers = 1;
  formats[0].samples = 4;
  EXPECT_EQ(choosePixelFormats(formats, request8888(), 16), (Indexes{1, 0}));
  PixelFormatRequest request = request8888();
  request.sampleBuffers = 1;
  request.samples = 4;
  EXPECT_EQ(choosePixelFormats(formats, request, 16), (Indexes{0}));
}

TEST(PixelFormat, BufferingVisualAndDrawableMustFit) {
  std::vector<PixelFormat> formats(5, format(8, 8, 24, 8));
  formats[0].doubleBuffer = true;
  formats[1].visual = 44;
  formats[2].drawsToWindow = false;
  formats[3].accelerated = false;
  PixelFormatRequest request = request8888();
  request.window = true;
  request.visual = 33;
  EXPECT_EQ(choosePixelFormats(formats, request, 16), (Indexes{4}));
  request.doubleBuffer = true;
  EXPECT_EQ(choosePixelFormats(formats, request, 16), (Indexes{0}));
}

TEST(PixelFormat, WindowsPreferOpaqueVisualsAndPbuffersDeepOnes) {
  std::vector<PixelFormat> formats(2, format(8, 8, 24, 8));
  formats[1].visualDepth = 32;
  PixelFormatRequest request = request8888();
  EXPECT_EQ(choosePixelFormats(formats, request, 16), (Indexes{1, 0}));
  request.window = true;
  EXPECT_EQ(choosePixelFormats(formats, request, 16), (Indexes{0, 1}));
}

TEST(PixelFormat, TheNearestFitsTheWindowAboveAll) {
  std::vector<PixelFormat> formats(3, format(8, 8, 24, 8));
  formats[0].visual = 44;
  formats[0].doubleBuffer = true;
  formats[1].alpha = 0;
  formats[1].doubleBuffer = true;
  formats[2].alpha = 0;
  PixelFormatRequest request = request8888();
  request.window = true;
  request.visual = 33;
  request.doubleBuffer = true;
  EXPECT_TRUE(choosePixelFormats(formats, request, 16).empty());
  EXPECT_EQ(nearestPixelFormat(formats, request), 1);
  request.visual = 55;
  EXPECT_EQ(nearestPixelFormat(formats, request), -1);
}

TEST(PixelFormat, TheNearestGivesUpSamplesBeforeDepth) {
  std::vector<PixelFormat> formats = {format(8, 8, 0, 0), format(8, 8, 24, 8)};
  formats[0].sampleBuffers = 1;
  formats[0].samples = 4;
  PixelFormatRequest request = request8888();
  request.sampleBuffers = 1;
  request.samples = 4;
  EXPECT_EQ(nearestPixelFormat(formats, request), 1);
}

}  // namespace
