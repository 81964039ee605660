#include "egl/backend/glx/pixel_format.h"

#include <algorithm>

namespace {

bool drawsTo(const PixelFormat& format, const PixelFormatRequest& request) {
  if (request.visual && format.visual != request.visual) {
    return false;
  }
  return request.window ? format.drawsToWindow : format.drawsToPbuffer;
}

bool meets(const PixelFormat& format, const PixelFormatRequest& request) {
  return drawsTo(format, request) && (format.accelerated || !request.accelerated) &&
         format.doubleBuffer == request.doubleBuffer && format.red >= request.red &&
         format.green >= request.green && format.blue >= request.blue &&
         format.alpha >= request.alpha && format.depth >= request.depth &&
         format.stencil >= request.stencil && format.sampleBuffers >= request.sampleBuffers &&
         format.samples >= request.samples && (format.bindsRgb || !request.bindsRgb) &&
         (format.bindsRgba || !request.bindsRgba);
}

int excess(int present, int wanted) {
  return std::max(present - wanted, 0);
}

int lack(int present, int wanted) {
  return std::max(wanted - present, 0);
}

/// Colours weigh most: a wrong width of theirs shows. Samples that nobody asked for cost time.
int surplus(const PixelFormat& format, const PixelFormatRequest& request) {
  const int colours = excess(format.red, request.red) + excess(format.green, request.green) +
                      excess(format.blue, request.blue) + excess(format.alpha, request.alpha);
  const int samples = excess(format.sampleBuffers, request.sampleBuffers) * 64 +
                      excess(format.samples, request.samples) * 8;
  const int others = excess(format.depth, request.depth) + excess(format.stencil, request.stencil);
  // Windows with an alpha channel of their own shine through under a compositor.
  const int translucent = request.window && format.visualDepth > 24 ? 4 : 0;
  // Mesa puts a pbuffer into a pixmap of all its bits, but with images of the visual's depth.
  const int bits = format.red + format.green + format.blue + format.alpha;
  const int shallow = !request.window && format.visualDepth && format.visualDepth < bits ? 4 : 0;
  return colours * 16 + samples + others + translucent + shallow;
}

int shortage(const PixelFormat& format, const PixelFormatRequest& request) {
  int sum = 0;
  sum += format.doubleBuffer == request.doubleBuffer ? 0 : 4096;
  sum += format.accelerated || !request.accelerated ? 0 : 2048;
  sum += lack(format.depth, request.depth) * 32;
  sum += (lack(format.red, request.red) + lack(format.green, request.green) +
          lack(format.blue, request.blue) + lack(format.alpha, request.alpha)) *
         16;
  sum += lack(format.stencil, request.stencil) * 8;
  sum += lack(format.samples, request.samples);
  return sum;
}

}  // namespace

std::vector<std::size_t> choosePixelFormats(const std::vector<PixelFormat>& formats,
                                            const PixelFormatRequest& request, std::size_t limit) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < formats.size(); ++i) {
    if (meets(formats[i], request)) {
      found.push_back(i);
    }
  }
  std::stable_sort(found.begin(), found.end(), [&](std::size_t a, std::size_t b) {
    return surplus(formats[a], request) < surplus(formats[b], request);
  });
  if (found.size() > limit) {
    found.resize(limit);
  }
  return found;
}

int nearestPixelFormat(const std::vector<PixelFormat>& formats, const PixelFormatRequest& request) {
  int best = -1;
  int bestCost = 0;
  for (std::size_t i = 0; i < formats.size(); ++i) {
    if (!drawsTo(formats[i], request)) {
      continue;
    }
    const int cost = shortage(formats[i], request) * 1024 + surplus(formats[i], request);
    if (best < 0 || cost < bestCost) {
      best = static_cast<int>(i);
      bestCost = cost;
    }
  }
  return best;
}
