#ifndef VARNEL_EGL_BACKEND_GLX_PIXEL_FORMAT_H
#define VARNEL_EGL_BACKEND_GLX_PIXEL_FORMAT_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "egl/backend/port.h"

// Choosing among native framebuffer configurations, without asking the window system anything.

/// One native framebuffer configuration as plain numbers.
struct PixelFormat {
  std::uintptr_t visual = 0;  ///< visual that its windows must have; 0 without windows
  int visualDepth = 0;        ///< bits of that visual's pixels
  bool drawsToWindow = false;
  bool drawsToPbuffer = false;
  bool accelerated = false;
  bool doubleBuffer = false;
  int red = 0, green = 0, blue = 0, alpha = 0;
  int depth = 0, stencil = 0;
  int sampleBuffers = 0, samples = 0;
  bool bindsRgb = false, bindsRgba = false;  ///< pbuffers of it can become textures
};

/// What a surface wants of its configuration, and where it is to draw.
struct PixelFormatRequest : PortFormatRequest {
  bool window = false;        ///< must draw to windows, else to pbuffers
  std::uintptr_t visual = 0;  ///< visual that it must have; 0: any
  bool accelerated = true;
};

/// Indexes of the formats that meet the request, at most `limit`: the one with the fewest bits
/// beyond it comes first, and of equals the earlier one.
std::vector<std::size_t> choosePixelFormats(const std::vector<PixelFormat>& formats,
                                            const PixelFormatRequest& request, std::size_t limit);

/// Index of the format that comes nearest to the request although it may not meet it: only the kind
/// of drawable and the visual are demanded. -1 if there is none.
int nearestPixelFormat(const std::vector<PixelFormat>& formats, const PixelFormatRequest& request);

#endif
