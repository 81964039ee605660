#include <cstring>

#include "egl/backend/wgl/wgl_port.h"

namespace {

HBITMAP bitmapOf(PortNativePixmap pixmap) {
  return reinterpret_cast<HBITMAP>(pixmap);
}

/// The layout as the graphics interface wants it: rows from top to bottom, with masks where 16-bit
/// pixels need them.
struct BitmapDescription {
  BITMAPINFOHEADER header;
  DWORD masks[3];
};

BitmapDescription describe(const PortPixmapLayout& layout) {
  BitmapDescription description = {};
  description.header.biSize = sizeof description.header;
  description.header.biWidth = layout.width;
  description.header.biHeight = -layout.height;
  description.header.biPlanes = 1;
  description.header.biBitCount = static_cast<WORD>(layout.bitsPerPixel);
  // The other masks of the layouts are what this field means without any.
  const bool masked = layout.bitsPerPixel == 16 && layout.redMask == 0xF800;
  description.header.biCompression = masked ? BI_BITFIELDS : BI_RGB;
  description.masks[0] = layout.redMask;
  description.masks[1] = layout.greenMask;
  description.masks[2] = layout.blueMask;
  return description;
}

BITMAPINFO* infoOf(BitmapDescription& description) {
  return reinterpret_cast<BITMAPINFO*>(&description);
}

/// A device of the screen's for the length of a call.
class ScreenDevice {
 public:
  ScreenDevice() : device(GetDC(nullptr)) {}
  ~ScreenDevice() { ReleaseDC(nullptr, device); }
  ScreenDevice(const ScreenDevice&) = delete;
  ScreenDevice& operator=(const ScreenDevice&) = delete;
  HDC get() const { return device; }

 private:
  HDC device;
};

constexpr DWORD fiveBitMasks[3] = {0x7C00, 0x03E0, 0x001F};

/// What a device tells of a bitmap, with room for the longest palette.
struct DeviceDescription {
  BITMAPINFOHEADER header = {};
  DWORD masks[256] = {};
};

/// The masks of a device's own bitmap of 16 bits a pixel, in `description` or constant.
const DWORD* masksOf(HBITMAP bitmap, DeviceDescription& description) {
  description.header.biSize = sizeof description.header;
  auto* info = reinterpret_cast<BITMAPINFO*>(&description);
  const ScreenDevice device;
  // The first call tells the form, the second one its masks.
  const bool told = GetDIBits(device.get(), bitmap, 0, 0, nullptr, info, DIB_RGB_COLORS) != 0 &&
                    GetDIBits(device.get(), bitmap, 0, 0, nullptr, info, DIB_RGB_COLORS) != 0;
  const bool masked = told && description.header.biBitCount == 16 &&
                      description.header.biCompression == BI_BITFIELDS && description.masks[0] != 0;
  return masked ? description.masks : fiveBitMasks;
}

/// Whether the form needs no palette, for which a description has no room.
bool hasNoPalette(const PortPixmapLayout& layout) {
  return layout.bitsPerPixel >= 16;
}

}  // namespace

bool portPixmapLayout(PortConnection*, PortNativePixmap pixmap, PortPixmapLayout* layout) {
  const HBITMAP bitmap = bitmapOf(pixmap);
  if (GetObjectType(bitmap) != OBJ_BITMAP) {
    return false;
  }
  DIBSECTION section = {};
  const int size = GetObjectW(bitmap, sizeof section, &section);
  if (size < static_cast<int>(sizeof section.dsBm)) {
    return false;
  }
  DeviceDescription description;
  layout->width = section.dsBm.bmWidth;
  layout->height = section.dsBm.bmHeight;
  layout->bitsPerPixel = section.dsBm.bmBitsPixel;
  layout->redMask = layout->greenMask = layout->blueMask = 0;
  if (size == static_cast<int>(sizeof section) && section.dsBmih.biCompression == BI_BITFIELDS) {
    layout->redMask = section.dsBitfields[0];
    layout->greenMask = section.dsBitfields[1];
    layout->blueMask = section.dsBitfields[2];
  } else if (layout->bitsPerPixel == 16) {
    // Without masks 16-bit pixels have five bits of each colour; a device's own bitmap may have
    // others, which only the device tells.
    const bool ownedByDevice = !section.dsBm.bmBits;
    const DWORD* masks = ownedByDevice ? masksOf(bitmap, description) : fiveBitMasks;
    layout->redMask = masks[0];
    layout->greenMask = masks[1];
    layout->blueMask = masks[2];
  }
  return true;
}

bool portReadPixmap(PortConnection*, PortNativePixmap pixmap, const PortPixmapLayout& layout,
                    void* rows) {
  if (!hasNoPalette(layout)) {
    return false;
  }
  BitmapDescription description = describe(layout);
  const ScreenDevice device;
  return GetDIBits(device.get(), bitmapOf(pixmap), 0, static_cast<UINT>(layout.height), rows,
                   infoOf(description), DIB_RGB_COLORS) == layout.height;
}

bool portWritePixmap(PortConnection*, PortNativePixmap pixmap, const PortPixmapLayout& layout,
                     const void* rows) {
  if (!hasNoPalette(layout)) {
    return false;
  }
  BitmapDescription description = describe(layout);
  const ScreenDevice device;
  return SetDIBits(device.get(), bitmapOf(pixmap), 0, static_cast<UINT>(layout.height), rows,
                   infoOf(description), DIB_RGB_COLORS) == layout.height;
}

void portFlushNative(PortConnection*) {
  GdiFlush();
}
