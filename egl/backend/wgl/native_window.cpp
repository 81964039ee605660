#include "egl/window/native_window.h"

#include <bit>
#include <cstdio>
#include <memory>
#include <new>
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

char errorText[1024] = "Never called init";

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

void setChildError(DWORD code) {
  wchar_t text[256] = L"";
  FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text,
                 256, nullptr);
  char reason[3 * 256] = "";
  WideCharToMultiByte(CP_UTF8, 0, text, -1, reason, sizeof reason, nullptr, nullptr);
  std::snprintf(errorText, sizeof errorText, "Child: %s", reason);
}

void forget(HWND window) {
  auto& list = windows();
  for (auto at = list.begin(); at != list.end(); ++at) {
    if ((*at)->window == window) {
      list.erase(at);
      return;
    }
  }
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
    case WM_NCDESTROY:
      // The system may give its handle to another window.
      forget(window);
      return DefWindowProcW(window, message, word, value);
    case WM_SIZE:
      if (word != SIZE_MINIMIZED) {
        resizeChildren(window, LOWORD(value), HIWORD(value));
      }
      return 0;
    default:
      return DefWindowProcW(window, message, word, value);
  }
}

/// Keeps this module loaded: windows may live to process end, and their procedure with them.
void pinOwnModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                     reinterpret_cast<LPCWSTR>(&handleMessage), &module);
}

bool registerClass(const wchar_t* name) {
  pinOwnModule();
  WNDCLASSW made = {};
  made.style = CS_OWNDC;
  made.lpfnWndProc = handleMessage;
  made.hInstance = ownModule();
  made.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  made.lpszClassName = name;
  return RegisterClassW(&made) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

/// Enters a new window in the list; destroyed where there is no memory for that.
EGLNativeWindowType keep(HWND window, HWND parent) {
  try {
    auto made = std::make_unique<NativeWindow>();
    made->window = window;
    made->parent = parent;
    windows().push_back(std::move(made));
  } catch (const std::bad_alloc&) {
    DestroyWindow(window);
    return 0;
  }
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
      outer.bottom - outer.top, nullptr, nullptr, ownModule(), nullptr);
  if (!window) {
    setError("Bad class");
    return 0;
  }
  ShowWindow(window, SW_SHOW);
  if (!IsWindowVisible(window)) {
    ShowWindow(window, SW_SHOW);  // the first one of a process obeys whoever started that
  }
  return keep(window, nullptr);
}

EGLNativeWindowType createNativeChildWindow(EGLNativeWindowType parent) {
  const HWND outer = handleOf(parent);
  if (isClosedNativeWindow(outer) || !registerClass(childClass)) {
    setError("Bad Child class");
    return 0;
  }
  RECT client = {};
  if (!GetClientRect(outer, &client)) {
    setChildError(GetLastError());
    return 0;
  }
  const HWND window = CreateWindowExW(0, childClass, L"", WS_CHILD | WS_VISIBLE, 0, 0, client.right,
                                      client.bottom, outer, nullptr, ownModule(), nullptr);
  if (!window) {
    setChildError(GetLastError());
    return 0;
  }
  return keep(window, outer);
}

bool realizeNativeWindow(EGLNativeWindowType window, std::uintptr_t* deviceContext) {
  NativeWindow* known = findWindow(handleOf(window));
  if (known && !known->closed && !known->device) {
    known->device = GetDC(known->window);
  }
  if (!known || known->closed || !known->device) {
    setError("Bad class");
    return false;
  }
  *deviceContext = reinterpret_cast<std::uintptr_t>(known->device);
  return true;
}

void pumpNativeMessages(std::uintptr_t handle) {
  HWND target = nullptr;
  HWND parent = nullptr;
  for (auto& window : windows()) {
    if (reinterpret_cast<std::uintptr_t>(window->window) == handle ||
        (window->device && reinterpret_cast<std::uintptr_t>(window->device) == handle)) {
      target = window->window;
      parent = window->parent;
    }
  }
  MSG message;
  while (target && PeekMessageW(&message, target, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // It belongs to the thread's own loop, which any filter lets through.
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    DispatchMessageW(&message);
  }
  RECT outer = {};
  RECT inner = {};
  if (parent && !IsIconic(parent) && GetClientRect(parent, &outer) &&
      GetClientRect(target, &inner) && !EqualRect(&outer, &inner)) {
    MoveWindow(target, 0, 0, outer.right, outer.bottom, TRUE);
  }
}

void destroyNativeWindow(EGLNativeWindowType window) {
  const HWND handle = handleOf(window);
  NativeWindow* known = findWindow(handle);
  if (!known) {
    return;
  }
  close(handle);
  if (known->device) {
    ReleaseDC(handle, known->device);
    known->device = nullptr;
  }
  DestroyWindow(handle);  // forgotten with its last message
}
