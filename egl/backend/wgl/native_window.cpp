#include "egl/window/native_window.h"

#include <bit>
#include <cstdio>
#include <memory>
#include <vector>

#include "egl/backend/wgl/wgl_port.h"

namespace {

constexpr int clientWidth = 640;
constexpr int clientHeight = 480;
constexpr wchar_t mainClass[] = L"MainWClass";
constexpr wchar_t childClass[] = L"ChildWClass";
constexpr DWORD mainStyle = 0xCF0000;  // WS_OVERLAPPEDWINDOW

/// One window of the library's own.
struct NativeWindow {
  HWND window = nullptr;
  HWND parent = nullptr;  ///< null for a top-level window
  HDC device = nullptr;   ///< from its realising on
  bool closed = false;    ///< by its user or by another program
};

char errorText[256] = "Never called init";

std::vector<std::unique_ptr<NativeWindow>>& windows() {
  // Never destroyed: the windows live to process end.
  static auto* list = new std::vector<std::unique_ptr<NativeWindow>>();
  return *list;
}

NativeWindow* findWindow(HWND window) {
  for (auto& candidate : windows()) {
    if (candidate->window == window) {
      return candidate.get();
    }
  }
  return nullptr;
}

HWND handleOf(EGLNativeWindowType window) {
  return std::bit_cast<HWND>(window);
}

void setError(const char* text) {
  std::snprintf(errorText, sizeof errorText, "%s", text);
}

void setChildError() {
  char reason[200] = "";
  FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                 GetLastError(), 0, reason, sizeof reason, nullptr);
  std::snprintf(errorText, sizeof errorText, "Child: %s", reason);
}

void close(HWND window) {
  for (auto& candidate : windows()) {
    if (candidate->window == window || candidate->parent == window) {
      candidate->closed = true;
    }
  }
}

void resizeChildren(HWND parent, int width, int height) {
  for (auto& child : windows()) {
    if (child->parent == parent && !child->closed) {
      MoveWindow(child->window, 0, 0, width, height, TRUE);
    }
  }
}

LRESULT CALLBACK handleMessage(HWND window, UINT message, WPARAM word, LPARAM value) {
  switch (message) {
    case WM_CLOSE:
      // Hidden and not destroyed: OpenGL may still draw into it until its surface goes.
      close(window);
      ShowWindow(window, SW_HIDE);
      return 0;
    case WM_DESTROY:
      close(window);
      return 0;
    case WM_SIZE:
      resizeChildren(window, LOWORD(value), HIWORD(value));
      return 0;
    default:
      return DefWindowProcW(window, message, word, value);
  }
}

bool registerClass(const wchar_t* name) {
  WNDCLASSW made = {};
  made.style = CS_OWNDC;
  made.lpfnWndProc = handleMessage;
  made.hInstance = GetModuleHandleW(nullptr);
  made.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  made.lpszClassName = name;
  return RegisterClassW(&made) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

EGLNativeWindowType keep(HWND window, HWND parent) {
  auto made = std::make_unique<NativeWindow>();
  made->window = window;
  made->parent = parent;
  windows().push_back(std::move(made));
  return std::bit_cast<EGLNativeWindowType>(window);
}

}  // namespace

bool isClosedNativeWindow(HWND window) {
  const NativeWindow* known = findWindow(window);
  return known && known->closed;
}

const char* nativeWindowError() {
  return errorText;
}

EGLNativeWindowType createNativeWindow() {
  if (!registerClass(mainClass)) {
    setError("Bad class");
    return 0;
  }
  RECT outer = {0, 0, clientWidth, clientHeight};
  AdjustWindowRect(&outer, mainStyle, FALSE);
  const HWND window = CreateWindowExW(
      0, mainClass, L"Sample", mainStyle, CW_USEDEFAULT, CW_USEDEFAULT, outer.right - outer.left,
      outer.bottom - outer.top, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (!window) {
    setError("Bad class");
    return 0;
  }
  ShowWindow(window, SW_SHOW);
  return keep(window, nullptr);
}

EGLNativeWindowType createNativeChildWindow(EGLNativeWindowType parent) {
  const NativeWindow* known = findWindow(handleOf(parent));
  if (!known || known->closed || !registerClass(childClass)) {
    setError("Bad Child class");
    return 0;
  }
  RECT client = {};
  GetClientRect(known->window, &client);
  const HWND window =
      CreateWindowExW(0, childClass, L"", WS_CHILD | WS_VISIBLE, 0, 0, client.right, client.bottom,
                      known->window, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (!window) {
    setChildError();
    return 0;
  }
  return keep(window, known->window);
}

bool realizeNativeWindow(EGLNativeWindowType window, std::uintptr_t* deviceContext) {
  NativeWindow* known = findWindow(handleOf(window));
  if (!known || known->closed) {
    setError("Bad class");
    return false;
  }
  if (!known->device) {
    known->device = GetDC(known->window);
  }
  *deviceContext = reinterpret_cast<std::uintptr_t>(known->device);
  return known->device != nullptr;
}

void pumpNativeMessages(std::uintptr_t handle) {
  HWND target = nullptr;
  for (auto& window : windows()) {
    if (reinterpret_cast<std::uintptr_t>(window->window) == handle ||
        (window->device && reinterpret_cast<std::uintptr_t>(window->device) == handle)) {
      target = window->window;
    }
  }
  MSG message;
  while (target && PeekMessageW(&message, target, 0, 0, PM_REMOVE)) {
    DispatchMessageW(&message);
  }
}

void destroyNativeWindow(EGLNativeWindowType window) {
  const HWND handle = handleOf(window);
  auto& list = windows();
  for (auto at = list.begin(); at != list.end(); ++at) {
    if ((*at)->window == handle) {
      close(handle);
      if ((*at)->device) {
        ReleaseDC(handle, (*at)->device);
      }
      list.erase(at);
      DestroyWindow(handle);
      return;
    }
  }
}
