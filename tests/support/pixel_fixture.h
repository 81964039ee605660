#ifndef VARNEL_TESTS_SUPPORT_PIXEL_FIXTURE_H
#define VARNEL_TESTS_SUPPORT_PIXEL_FIXTURE_H

#include <gtest/gtest.h>

#include "engine/render/graphics3d.h"
#include "tests/support/gl_target.h"
#include "tests/support/render_objects.h"
#include "tests/support/tolerances.h"

/// R, G, B, A, 0 to 1 each before clamping.
using Color = std::array<double, 4>;

/// The renderer on a small surface of the software driver. The camera looks along -z from z = 5
/// with a view volume of 2 by 2 and a depth of 10, so that the unit quad fills the target.
class PixelTest : public ::testing::Test {
 protected:
  explicit PixelTest(int width = 32, int height = 32);
  ~PixelTest() override;

  /// Ends the frame, if one is open, and begins another on a cleared target.
  void beginFrame(const boost::shared_ptr<varnel_m3g::Background>& background = nullptr);
  /// Draws a mesh in a group of its own, as it stands in a tree.
  void draw(const boost::shared_ptr<varnel_m3g::Mesh>& mesh);
  /// Begins a frame, draws the unit quad and reads the pixel at the centre.
  Pixel quadPixel(const boost::shared_ptr<varnel_m3g::Appearance>& appearance, int defaultColor);

  GlTarget gl;
  varnel_m3g::Graphics3D& graphics = varnel_m3g::Graphics3D::getInstance();
  boost::shared_ptr<varnel_m3g::Camera> camera = varnel_m3g::Camera::create();
};

/// A quad of this default colour (0xAARRGGBB).
boost::shared_ptr<varnel_m3g::Mesh> coloredQuad(
    const boost::shared_ptr<varnel_m3g::Appearance>& appearance, unsigned argb);

/// The channels of 0xAARRGGBB.
Color colorOf(unsigned argb);

/// Fails unless each channel, clamped and scaled to 255, is as near as the tolerance says.
void expectPixel(const Pixel& actual, const Color& expected, int tolerance, const char* what = "");

#endif
