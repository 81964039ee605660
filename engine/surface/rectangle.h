#ifndef VARNEL_ENGINE_SURFACE_RECTANGLE_H
#define VARNEL_ENGINE_SURFACE_RECTANGLE_H

namespace varnel_m3g {

/// A rectangle of pixels.
struct Rectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

}  // namespace varnel_m3g

#endif
