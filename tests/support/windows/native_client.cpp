#include "tests/support/native_client.h"

#include <windows.h>

#include <cstring>
#include <map>
#include <stdexcept>

struct NativeClient::Connection {
  /// A bitmap with its pixels in memory; the lowest row is the first.
  struct Bitmap {
    HBITMAP handle = nullptr;
    unsigned char* bits = nullptr;
    int height = 0;
    std::size_t pixelBytes = 0;
    std::size_t rowBytes = 0;

    unsigned char* pixel(int x, int y) const {
      GdiFlush();
      return bits + static_cast<std::size_t>(height - 1 - y) * rowBytes +
             static_cast<std::size_t>(x) * pixelBytes;
    }
  };

  std::map<std::uintptr_t, Bitmap> bitmaps;
  std::map<std::uintptr_t, HDC> windows;
};

namespace {

constexpr wchar_t clientClass[] = L"varnel_test_client";

HWND handleOf(std::uintptr_t window) {
  return reinterpret_cast<HWND>(window);
}

void registerClass() {
  WNDCLASSW bare = {};
  bare.style = CS_OWNDC;
  bare.lpfnWndProc = DefWindowProcW;
  bare.hInstance = GetModuleHandleW(nullptr);
  bare.lpszClassName = clientClass;
  if (!RegisterClassW(&bare) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
    throw std::runtime_error("no window class");
  }
}

std::string narrow(const wchar_t* text) {
  std::string narrowed;
  for (; *text; ++text) {
    narrowed += static_cast<char>(*text);
  }
  return narrowed;
}

}  // namespace

NativeClient::NativeClient() : connection(std::make_unique<Connection>()) {
  registerClass();
}

NativeClient::~NativeClient() {
  for (const auto& [pixmap, bitmap] : connection->bitmaps) {
    DeleteObject(bitmap.handle);
  }
  for (const auto& [window, device] : connection->windows) {
    DestroyWindow(handleOf(window));
  }
}

std::uintptr_t NativeClient::displayOf(std::uintptr_t window) const {
  return reinterpret_cast<std::uintptr_t>(connection->windows.at(window));
}

bool NativeClient::showsOpenGlOfChildren() {
  const bool isWine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return !isWine;
}

std::uint32_t NativeClient::pixel(std::uintptr_t window, int x, int y) {
  // From the screen: a window's own device does not know what OpenGL has drawn.
  POINT place = {x, y};
  ClientToScreen(handleOf(window), &place);
  const HDC screen = GetDC(nullptr);
  const COLORREF colour = GetPixel(screen, place.x, place.y);
  ReleaseDC(nullptr, screen);
  return static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
         static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
}

std::string NativeClient::title(std::uintptr_t window) {
  wchar_t text[100] = {};
  GetWindowTextW(handleOf(window), text, 100);
  return narrow(text);
}

std::string NativeClient::className(std::uintptr_t window) {
  wchar_t text[100] = {};
  GetClassNameW(handleOf(window), text, 100);
  return narrow(text);
}

long NativeClient::process(std::uintptr_t window) {
  DWORD id = 0;
  GetWindowThreadProcessId(handleOf(window), &id);
  return static_cast<long>(id);
}

bool NativeClient::isShown(std::uintptr_t window) {
  return IsWindowVisible(handleOf(window)) != FALSE;
}

bool NativeClient::exists(std::uintptr_t window) {
  return IsWindow(handleOf(window)) != FALSE;
}

void NativeClient::askToClose(std::uintptr_t window) {
  PostMessageW(handleOf(window), WM_CLOSE, 0, 0);
}

void NativeClient::destroyWindow(std::uintptr_t window) {
  DestroyWindow(handleOf(window));
  connection->windows.erase(window);
}

void NativeClient::resizeWindow(std::uintptr_t window, int width, int height) {
  RECT outer = {};
  RECT inner = {};
  GetWindowRect(handleOf(window), &outer);
  GetClientRect(handleOf(window), &inner);
  SetWindowPos(handleOf(window), nullptr, 0, 0, outer.right - outer.left - inner.right + width,
               outer.bottom - outer.top - inner.bottom + height,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

std::uintptr_t NativeClient::createWindow(int width, int height) {
  const HWND window =
      CreateWindowExW(WS_EX_TOPMOST, clientClass, L"", WS_POPUP | WS_VISIBLE, 0, 0, width, height,
                      nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (!window) {
    throw std::runtime_error("no window");
  }
  const auto id = reinterpret_cast<std::uintptr_t>(window);
  connection->windows[id] = GetDC(window);
  return id;
}

bool NativeClient::hasDepth(int) {
  return true;
}

std::uintptr_t NativeClient::createPixmap(int width, int height, int depth) {
  struct {
    BITMAPINFOHEADER header;
    DWORD masks[256];  // or a palette
  } description = {};
  Connection::Bitmap bitmap;
  bitmap.height = height;
  bitmap.pixelBytes = static_cast<std::size_t>(depth + 7) / 8;
  bitmap.rowBytes = (static_cast<std::size_t>(width) * bitmap.pixelBytes + 3) / 4 * 4;
  description.header.biSize = sizeof description.header;
  description.header.biWidth = width;
  description.header.biHeight = height;
  description.header.biPlanes = 1;
  description.header.biBitCount = static_cast<WORD>(8 * bitmap.pixelBytes);
  description.header.biCompression = depth == 16 ? BI_BITFIELDS : BI_RGB;
  if (depth == 16) {
    description.masks[0] = 0xF800;
    description.masks[1] = 0x07E0;
    description.masks[2] = 0x001F;
  }
  void* bits = nullptr;
  bitmap.handle = CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&description),
                                   DIB_RGB_COLORS, &bits, nullptr, 0);
  if (!bitmap.handle) {
    throw std::runtime_error("no bitmap");
  }
  bitmap.bits = static_cast<unsigned char*>(bits);
  const auto id = reinterpret_cast<std::uintptr_t>(bitmap.handle);
  connection->bitmaps[id] = bitmap;
  return id;
}

void NativeClient::freePixmap(std::uintptr_t pixmap) {
  DeleteObject(connection->bitmaps.at(pixmap).handle);
  connection->bitmaps.erase(pixmap);
}

void NativeClient::setRaw(std::uintptr_t pixmap, int x, int y, unsigned long value) {
  const Connection::Bitmap& bitmap = connection->bitmaps.at(pixmap);
  std::memcpy(bitmap.pixel(x, y), &value, bitmap.pixelBytes);
}

unsigned long NativeClient::raw(std::uintptr_t pixmap, int x, int y) {
  const Connection::Bitmap& bitmap = connection->bitmaps.at(pixmap);
  unsigned long value = 0;
  std::memcpy(&value, bitmap.pixel(x, y), bitmap.pixelBytes);
  return value;
}
