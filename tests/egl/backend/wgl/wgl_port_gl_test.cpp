// What only Windows shows of the port: its dummy window, the devices that pbuffers are made on, the
// formats without the extensions, and bitmaps that belong to a device.
#include "egl/backend/wgl/wgl_port.h"

#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "egl/backend/egl_backend.h"
#include "egl/backend/port.h"
#include "egl/window/native_window.h"
#include "tests/support/native_client.h"

namespace {

const EglBackend& egl = eglBackend();

class WglPort : public testing::Test {
 protected:
  void SetUp() override {
    display = egl.getDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(egl.initialize(display, nullptr, nullptr));
    EGLint count = 0;
    ASSERT_TRUE(egl.getConfigs(display, rows, 10, &count));
  }
  void TearDown() override { egl.terminate(display); }

  EGLSurface pbuffer() {
    const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
    return egl.createPbufferSurface(display, rows[0], size);
  }
  std::uint32_t pixelAt(int x, int y) {
    unsigned char pixel[4] = {};
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    return static_cast<std::uint32_t>(pixel[0]) << 16 | static_cast<std::uint32_t>(pixel[1]) << 8 |
           pixel[2];
  }
  /// Draws one colour on the surface and reads a pixel back as 0xRRGGBB.
  std::uint32_t drawOn(EGLSurface surface, int row) {
    EGLContext context = egl.createContext(display, rows[row], EGL_NO_CONTEXT, nullptr);
    if (!egl.makeCurrent(display, surface, surface, context)) {
      return 0;
    }
    glClearColor(1, 0, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    const std::uint32_t colour = pixelAt(1, 1);
    egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    return colour;
  }

  EGLDisplay display = EGL_NO_DISPLAY;
  EGLConfig rows[10] = {};
};

BOOL CALLBACK countWindow(HWND, LPARAM counted) {
  ++*reinterpret_cast<int*>(counted);
  return TRUE;
}

int windowsOfThisThread() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&count));
  return count;
}

bool dummyClassExists() {
  WNDCLASSW found = {};
  return GetClassInfoW(GetModuleHandleW(nullptr), L"egw_dummy_class", &found) != FALSE;
}

TEST_F(WglPort, TheDummyWindowAndItsClassAreGoneAfterTheProbe) {
  const int before = windowsOfThisThread();
  PortConnection* connection = portConnect(0);
  ASSERT_TRUE(portBeginProbe(connection));
  EXPECT_TRUE(dummyClassExists());
  const HWND dummy = FindWindowW(L"egw_dummy_class", L"egw_dummy_window");
  ASSERT_TRUE(dummy);
  EXPECT_FALSE(IsWindowVisible(dummy));
  RECT area = {};
  GetClientRect(dummy, &area);
  EXPECT_EQ(area.right, 64);
  EXPECT_EQ(area.bottom, 64);
  EXPECT_NE(wglGetCurrentContext(), nullptr);
  portEndProbe(connection);
  EXPECT_EQ(wglGetCurrentContext(), nullptr);
  EXPECT_FALSE(IsWindow(dummy));
  EXPECT_FALSE(dummyClassExists());
  EXPECT_EQ(windowsOfThisThread(), before);
}

TEST_F(WglPort, TheAdapterIsTheFirstDisplayDevices) {
  PortConnection* connection = portConnect(0);
  ASSERT_TRUE(portBeginProbe(connection));
  DISPLAY_DEVICEW device = {};
  device.cb = sizeof device;
  ASSERT_TRUE(EnumDisplayDevicesW(nullptr, 0, &device, 0));
  std::string description;
  for (const wchar_t* at = device.DeviceString; *at; ++at) {
    description += static_cast<char>(*at);
  }
  EXPECT_EQ(portAdapterName(connection), description);
  portEndProbe(connection);
}

TEST_F(WglPort, APbufferNeedsNoWindowOfItsThread) {
  const int before = windowsOfThisThread();
  EXPECT_EQ(drawOn(pbuffer(), 0), 0xFF00FFu);
  EXPECT_EQ(windowsOfThisThread(), before);
  EXPECT_FALSE(dummyClassExists());
}

TEST_F(WglPort, APbufferOutlivesTheWindowThatItWasMadeThrough) {
  EGLSurface surface = EGL_NO_SURFACE;
  {
    NativeClient client;
    client.createWindow(16, 16);
    surface = pbuffer();
  }
  EXPECT_EQ(drawOn(surface, 0), 0xFF00FFu);
}

TEST_F(WglPort, WithoutTheExtensionWindowsGetThePlainFormatAndPbuffersNone) {
  const auto former = wglExtensions.wglChoosePixelFormatARB;
  wglExtensions.wglChoosePixelFormatARB = nullptr;
  NativeClient client;
  const auto window = client.createWindow(16, 16);
  EGLSurface shown = egl.createWindowSurface(display, rows[6], nativeWindow(window), nullptr);
  EXPECT_NE(shown, EGL_NO_SURFACE);
  EXPECT_EQ(pbuffer(), EGL_NO_SURFACE);
  wglExtensions.wglChoosePixelFormatARB = former;
  EXPECT_EQ(drawOn(shown, 6), 0xFF00FFu);
  const HDC device = GetDC(reinterpret_cast<HWND>(window));
  PIXELFORMATDESCRIPTOR set = {};
  ASSERT_TRUE(DescribePixelFormat(device, GetPixelFormat(device), sizeof set, &set));
  constexpr DWORD wanted = PFD_DOUBLEBUFFER | PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL;
  EXPECT_EQ(wanted, 37u);
  EXPECT_EQ(set.dwFlags & wanted, wanted);
  EXPECT_GE(set.cDepthBits, 24);
  EXPECT_GE(set.cStencilBits, 8);
}

TEST_F(WglPort, ThePlainDescriptor) {
  const HDC screen = GetDC(nullptr);
  const PIXELFORMATDESCRIPTOR plain = plainDescriptor(screen, 24, 8);
  EXPECT_EQ(plain.nSize, 40);
  EXPECT_EQ(plain.nVersion, 1);
  EXPECT_EQ(plain.dwFlags, 37u);
  EXPECT_EQ(plain.iPixelType, PFD_TYPE_RGBA);
  EXPECT_EQ(plain.cColorBits, GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES));
  EXPECT_EQ(plain.cDepthBits, 24);
  EXPECT_EQ(plain.cStencilBits, 8);
  ReleaseDC(nullptr, screen);
}

TEST_F(WglPort, AWindowKeepsItsFormatForTheNextSurface) {
  NativeClient client;
  const auto window = nativeWindow(client.createWindow(16, 16));
  EGLSurface first = egl.createWindowSurface(display, rows[8], window, nullptr);
  ASSERT_NE(first, EGL_NO_SURFACE);
  EXPECT_TRUE(egl.destroySurface(display, first));
  // The window's format is set once and for all, and serves another configuration as well.
  EGLSurface second = egl.createWindowSurface(display, rows[7], window, nullptr);
  ASSERT_NE(second, EGL_NO_SURFACE);
  EXPECT_EQ(drawOn(second, 7), 0xFF00FFu);
}

/// A bitmap that is selected into a device, as applications keep theirs.
class SelectedBitmap {
 public:
  explicit SelectedBitmap(HBITMAP bitmap)
      : bitmap(bitmap), device(CreateCompatibleDC(nullptr)), former(SelectObject(device, bitmap)) {}
  ~SelectedBitmap() {
    SelectObject(device, former);
    DeleteDC(device);
    DeleteObject(bitmap);
  }
  SelectedBitmap(const SelectedBitmap&) = delete;
  SelectedBitmap& operator=(const SelectedBitmap&) = delete;

  EGLNativePixmapType pixmap() const {
    return nativePixmap(reinterpret_cast<std::uintptr_t>(bitmap));
  }
  void set(int x, int y, COLORREF colour) { SetPixel(device, x, y, colour); }
  COLORREF get(int x, int y) const { return GetPixel(device, x, y); }

 private:
  HBITMAP bitmap;
  HDC device;
  HGDIOBJ former;
};

HBITMAP screenBitmap() {
  const HDC screen = GetDC(nullptr);
  const HBITMAP made = CreateCompatibleBitmap(screen, 4, 4);
  ReleaseDC(nullptr, screen);
  return made;
}

HBITMAP memoryBitmap(LONG height) {
  BITMAPINFO description = {};
  description.bmiHeader.biSize = sizeof description.bmiHeader;
  description.bmiHeader.biWidth = 4;
  description.bmiHeader.biHeight = height;
  description.bmiHeader.biPlanes = 1;
  description.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  return CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &bits, nullptr, 0);
}

TEST_F(WglPort, BitmapsOfEveryKindComeInAndGoBack) {
  const std::pair<const char*, HBITMAP> kinds[] = {
      {"the screen's", screenBitmap()},
      {"lowest row first", memoryBitmap(4)},
      {"highest row first", memoryBitmap(-4)},
  };
  for (const auto& [kind, handle] : kinds) {
    SCOPED_TRACE(kind);
    ASSERT_TRUE(handle);
    SelectedBitmap bitmap(handle);
    for (int i = 0; i < 16; ++i) {
      bitmap.set(i % 4, i / 4, RGB(0, 0, 255));
    }
    bitmap.set(0, 0, RGB(255, 0, 0));
    bitmap.set(3, 0, RGB(0, 255, 0));
    EGLSurface surface = egl.createPixmapSurface(display, rows[4], bitmap.pixmap(), nullptr);
    ASSERT_NE(surface, EGL_NO_SURFACE);
    EGLContext context = egl.createContext(display, rows[4], EGL_NO_CONTEXT, nullptr);
    ASSERT_TRUE(egl.makeCurrent(display, surface, surface, context));
    ASSERT_TRUE(egl.waitNative(EGL_CORE_NATIVE_ENGINE)) << std::hex << egl.getError();
    EXPECT_EQ(pixelAt(0, 3), 0xFF0000u);
    EXPECT_EQ(pixelAt(3, 3), 0x00FF00u);
    EXPECT_EQ(pixelAt(1, 1), 0x0000FFu);
    // A triangle over the lower left half.
    const GLfloat corners[] = {-1, -1, 1, -1, -1, 1};
    glColor4f(1, 0, 1, 1);
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(2, GL_FLOAT, 0, corners);
    glDrawArrays(GL_TRIANGLES, 0, 3);
    EXPECT_TRUE(egl.waitClient());
    EXPECT_EQ(bitmap.get(0, 3), RGB(255, 0, 255));
    EXPECT_EQ(bitmap.get(3, 0), RGB(0, 255, 0));
    egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    egl.destroySurface(display, surface);
  }
}

TEST_F(WglPort, ABitmapOf16BitsOfADeviceHasTheMasksThatTheDeviceTells) {
  const HBITMAP bitmap = CreateBitmap(4, 4, 1, 16, nullptr);
  ASSERT_TRUE(bitmap);
  const auto pixmap = reinterpret_cast<std::uintptr_t>(bitmap);
  PortPixmapLayout layout;
  ASSERT_TRUE(portPixmapLayout(portConnect(0), pixmap, &layout));
  // The device's form of pure green, by its own conversion.
  BITMAPINFO full = {};
  full.bmiHeader.biSize = sizeof full.bmiHeader;
  full.bmiHeader.biWidth = 4;
  full.bmiHeader.biHeight = -4;
  full.bmiHeader.biPlanes = 1;
  full.bmiHeader.biBitCount = 32;
  const std::vector<std::uint32_t> green(16, 0x00FF00);
  const HDC screen = GetDC(nullptr);
  ASSERT_EQ(SetDIBits(screen, bitmap, 0, 4, green.data(), &full, DIB_RGB_COLORS), 4);
  ReleaseDC(nullptr, screen);
  std::uint16_t words[16] = {};
  ASSERT_EQ(GetBitmapBits(bitmap, sizeof words, words), static_cast<LONG>(sizeof words));
  EXPECT_EQ(layout.greenMask, words[0]);

  EGLSurface surface = egl.createPixmapSurface(display, rows[5], nativePixmap(pixmap), nullptr);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  EGLContext context = egl.createContext(display, rows[5], EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, context));
  ASSERT_TRUE(egl.waitNative(EGL_CORE_NATIVE_ENGINE));
  EXPECT_EQ(pixelAt(1, 1), 0x00FF00u);
  const GLfloat corners[] = {-1, -1, 3, -1, -1, 3};
  glColor4f(0, 0, 1, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, corners);
  glDrawArrays(GL_TRIANGLES, 0, 3);
  EXPECT_TRUE(egl.waitClient());
  ASSERT_EQ(GetBitmapBits(bitmap, sizeof words, words), static_cast<LONG>(sizeof words));
  EXPECT_EQ(words[0] & (layout.redMask | layout.greenMask | layout.blueMask), layout.blueMask);
  egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  egl.destroySurface(display, surface);
  DeleteObject(bitmap);
}

TEST_F(WglPort, ThePumpLeavesTheEndOfTheThreadsLoopToIt) {
  const EGLNativeWindowType window = createNativeWindow();
  ASSERT_TRUE(window);
  PostQuitMessage(7);
  pumpNativeMessages(idOf(window));
  MSG message = {};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
  destroyNativeWindow(window);
}

TEST_F(WglPort, TheWindowsStyle) {
  const EGLNativeWindowType window = createNativeWindow();
  ASSERT_TRUE(window);
  const auto handle = reinterpret_cast<HWND>(idOf(window));
  EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(handle, GWL_STYLE)) & 0xCF0000, 0xCF0000u);
  EXPECT_TRUE(IsWindowVisible(handle));
  destroyNativeWindow(window);
  EXPECT_FALSE(IsWindow(handle));
}

TEST_F(WglPort, AnIconicWindowAndItsChildKeepTheirSurfacesSizes) {
  const EGLNativeWindowType window = createNativeWindow();
  ASSERT_TRUE(window);
  const EGLNativeWindowType child = createNativeChildWindow(window);
  ASSERT_TRUE(child);
  EGLSurface outer = egl.createWindowSurface(display, rows[6], window, nullptr);
  EGLSurface inner = egl.createWindowSurface(display, rows[6], child, nullptr);
  ShowWindow(reinterpret_cast<HWND>(idOf(window)), SW_MINIMIZE);
  ASSERT_TRUE(IsIconic(reinterpret_cast<HWND>(idOf(window))));
  pumpNativeMessages(idOf(child));
  for (EGLSurface surface : {outer, inner}) {
    EGLint width = 0;
    EGLint height = 0;
    EXPECT_TRUE(egl.querySurface(display, surface, EGL_WIDTH, &width));
    EXPECT_TRUE(egl.querySurface(display, surface, EGL_HEIGHT, &height));
    EXPECT_EQ(width, 640);
    EXPECT_EQ(height, 480);
    egl.destroySurface(display, surface);
  }
  destroyNativeWindow(child);
  destroyNativeWindow(window);
}

struct CurrentWork {
  EGLDisplay display;
  EGLSurface surface;
  EGLContext context;
  EGLBoolean done;
};

DWORD WINAPI makeCurrentAndEnd(void* given) {
  auto* work = static_cast<CurrentWork*>(given);
  work->done = eglInitialize(work->display, nullptr, nullptr) &&
               eglMakeCurrent(work->display, work->surface, work->surface, work->context);
  return 0;
}

TEST_F(WglPort, AThreadOfTheSystemsOwnLeavesNothingCurrent) {
  const EGLDisplay shared = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  ASSERT_TRUE(eglInitialize(shared, nullptr, nullptr));
  const EGLint wanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE};
  const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  ASSERT_TRUE(eglChooseConfig(shared, wanted, &config, 1, &count));
  CurrentWork work = {shared, eglCreatePbufferSurface(shared, config, size),
                      eglCreateContext(shared, config, EGL_NO_CONTEXT, nullptr), EGL_FALSE};
  const HANDLE thread = CreateThread(nullptr, 0, makeCurrentAndEnd, &work, 0, nullptr);
  ASSERT_TRUE(thread);
  EXPECT_EQ(WaitForSingleObject(thread, 60000), WAIT_OBJECT_0);
  CloseHandle(thread);
  ASSERT_TRUE(work.done);
  EXPECT_TRUE(eglMakeCurrent(shared, work.surface, work.surface, work.context));
  eglTerminate(shared);
}

}  // namespace
