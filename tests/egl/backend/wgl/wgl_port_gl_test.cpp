// What only Windows shows of the port: its dummy window, the devices that pbuffers are made on, the
// formats without the extensions, and bitmaps that belong to a device.
#include "egl/backend/wgl/wgl_port.h"

#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "egl/backend/egl_backend.h"
#include "egl/backend/port.h"
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
  /// Draws one colour on the surface and reads a pixel back as 0xRRGGBB.
  std::uint32_t drawOn(EGLSurface surface, int row) {
    EGLContext context = egl.createContext(display, rows[row], EGL_NO_CONTEXT, nullptr);
    if (!egl.makeCurrent(display, surface, surface, context)) {
      return 0;
    }
    glClearColor(1, 0, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    unsigned char pixel[4] = {};
    glReadPixels(1, 1, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    return static_cast<std::uint32_t>(pixel[0]) << 16 | static_cast<std::uint32_t>(pixel[1]) << 8 |
           pixel[2];
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

TEST_F(WglPort, ADevicesOwnBitmapTakesWhatWasDrawn) {
  const HDC screen = GetDC(nullptr);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, 4, 4);
  const auto pixmap = nativePixmap(reinterpret_cast<std::uintptr_t>(bitmap));
  EGLSurface surface = egl.createPixmapSurface(display, rows[4], pixmap, nullptr);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  EGLContext context = egl.createContext(display, rows[4], EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, context));
  const GLfloat corners[] = {-1, -1, 3, -1, -1, 3};
  glColor4f(1, 0, 1, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, corners);
  glDrawArrays(GL_TRIANGLES, 0, 3);
  EXPECT_TRUE(egl.waitClient());
  const HDC memory = CreateCompatibleDC(screen);
  const HGDIOBJ former = SelectObject(memory, bitmap);
  EXPECT_EQ(GetPixel(memory, 1, 1), RGB(255, 0, 255));
  SelectObject(memory, former);
  DeleteDC(memory);
  DeleteObject(bitmap);
  ReleaseDC(nullptr, screen);
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
