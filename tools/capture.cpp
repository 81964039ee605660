// varnel-capture: writes what a window shows, as the X server has it, to a PNG file.

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr const char* kUsage =
    "usage: varnel-capture [--title TITLE] [--pid PID] FILE.png\n"
    "Writes what the window TITLE (\"Sample\" unless given) of process PID (any unless given)\n"
    "shows on the display DISPLAY to FILE.png.\n";

struct Picture {
  unsigned width = 0;
  unsigned height = 0;
  std::vector<png_byte> rgb;  // 3 bytes a pixel, top row first
};

/// X errors while the windows are searched and read are answers (a window has gone), not failures
/// of this program.
int ignoreError(Display*, XErrorEvent*) {
  return 0;
}

std::string titleOf(Display* display, Window window) {
  char* name = nullptr;
  std::string title;
  if (XFetchName(display, window, &name) != 0 && name != nullptr) {
    title = name;
    XFree(name);
  }
  return title;
}

/// The process that owns the window, or 0 if the window does not tell.
long processOf(Display* display, Window window) {
  const Atom property = XInternAtom(display, "_NET_WM_PID", True);
  if (property == None) {
    return 0;
  }
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* data = nullptr;
  long process = 0;
  if (XGetWindowProperty(display, window, property, 0, 1, False, XA_CARDINAL, &type, &format,
                         &count, &left, &data) == Success &&
      data != nullptr) {
    if (format == 32 && count == 1) {
      process = *reinterpret_cast<long*>(data);
    }
    XFree(data);
  }
  return process;
}

/// Breadth first, since a window manager may have put the window into a frame of its own.
Window findWindow(Display* display, const std::string& title, long process) {
  std::vector<Window> windows{DefaultRootWindow(display)};
  for (std::size_t i = 0; i < windows.size(); ++i) {
    const Window window = windows[i];
    if (titleOf(display, window) == title &&
        (process == 0 || processOf(display, window) == process)) {
      return window;
    }
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned count = 0;
    if (XQueryTree(display, window, &root, &parent, &children, &count) != 0 &&
        children != nullptr) {
      windows.insert(windows.end(), children, children + count);
      XFree(children);
    }
  }
  return None;
}

/// One channel of a pixel, scaled to 8 bits by its mask.
png_byte channel(unsigned long pixel, unsigned long mask) {
  if (mask == 0) {
    return 0;
  }
  while ((mask & 1) == 0) {
    mask >>= 1;
    pixel >>= 1;
  }
  return static_cast<png_byte>((pixel & mask) * 255 / mask);
}

bool readWindow(Display* display, Window window, Picture* picture) {
  XWindowAttributes attributes;
  if (XGetWindowAttributes(display, window, &attributes) == 0 ||
      attributes.map_state != IsViewable) {
    return false;
  }
  XImage* image = XGetImage(display, window, 0, 0, static_cast<unsigned>(attributes.width),
                            static_cast<unsigned>(attributes.height), AllPlanes, ZPixmap);
  if (image == nullptr) {
    return false;
  }
  const Visual* visual = attributes.visual;
  picture->width = static_cast<unsigned>(image->width);
  picture->height = static_cast<unsigned>(image->height);
  picture->rgb.reserve(std::size_t{3} * picture->width * picture->height);
  for (int y = 0; y < image->height; ++y) {
    for (int x = 0; x < image->width; ++x) {
      const unsigned long pixel = XGetPixel(image, x, y);
      picture->rgb.push_back(channel(pixel, visual->red_mask));
      picture->rgb.push_back(channel(pixel, visual->green_mask));
      picture->rgb.push_back(channel(pixel, visual->blue_mask));
    }
  }
  XDestroyImage(image);
  return true;
}

bool writePng(const char* name, const Picture& picture) {
  png_image image;
  std::memset(&image, 0, sizeof image);
  image.version = PNG_IMAGE_VERSION;
  image.width = picture.width;
  image.height = picture.height;
  image.format = PNG_FORMAT_RGB;
  return png_image_write_to_file(&image, name, 0, picture.rgb.data(), 0, nullptr) != 0;
}

}  // namespace

int main(int count, char** arguments) {
  std::string title = "Sample";
  long process = 0;
  const char* file = nullptr;
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    if (argument == "--help") {
      std::fputs(kUsage, stdout);
      return 0;
    }
    if ((argument == "--title" || argument == "--pid") && i + 1 < count) {
      ++i;
      if (argument == "--title") {
        title = arguments[i];
      } else {
        process = std::strtol(arguments[i], nullptr, 10);
      }
    } else if (!argument.starts_with("--") && file == nullptr) {
      file = arguments[i];
    } else {
      std::fputs(kUsage, stderr);
      return 2;
    }
  }
  if (file == nullptr) {
    std::fputs(kUsage, stderr);
    return 2;
  }

  const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
  if (!display) {
    std::fprintf(stderr, "varnel-capture: cannot open the display %s\n", XDisplayName(nullptr));
    return 1;
  }
  XSetErrorHandler(ignoreError);
  const Window window = findWindow(display.get(), title, process);
  if (window == None) {
    std::fprintf(stderr, "varnel-capture: no window is titled \"%s\"\n", title.c_str());
    return 1;
  }
  Picture picture;
  if (!readWindow(display.get(), window, &picture)) {
    std::fprintf(stderr, "varnel-capture: the window \"%s\" cannot be read\n", title.c_str());
    return 1;
  }
  if (!writePng(file, picture)) {
    std::fprintf(stderr, "varnel-capture: cannot write %s\n", file);
    return 1;
  }
  return 0;
}
