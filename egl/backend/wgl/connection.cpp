#include <memory>
#include <vector>

#include "egl/backend/wgl/wgl_port.h"

WglExtensions wglExtensions;

namespace {

std::vector<std::unique_ptr<PortConnection>>& connections() {
  // Never destroyed: the OpenGL library's own clean-up at process end may come after ours.
  static auto* list = new std::vector<std::unique_ptr<PortConnection>>();
  return *list;
}

}  // namespace

PortConnection* portConnect(PortNativeDisplay native) {
  auto& list = connections();
  const HDC display = reinterpret_cast<HDC>(native);
  for (auto& connection : list) {
    if (connection->display == display) {
      return connection.get();
    }
  }
  if (display && GetObjectType(display) != OBJ_DC && GetObjectType(display) != OBJ_MEMDC) {
    return nullptr;
  }
  auto connection = std::make_unique<PortConnection>();
  connection->display = display;
  list.push_back(std::move(connection));
  return list.back().get();
}

void portDisconnect(PortConnection* connection) {
  for (const HGLRC root : connection->shareRoots) {
    wglDeleteContext(root);
  }
  connection->shareRoots.clear();
  if (!connection->display) {
    return;
  }
  auto& list = connections();
  for (auto at = list.begin(); at != list.end(); ++at) {
    if (at->get() == connection) {
      list.erase(at);
      return;
    }
  }
}

HINSTANCE ownModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&ownModule), &module);
  return module;
}

void* portGetProcAddress(const char* name) {
  // Drivers answer a missing function with null, 1, 2, 3 or -1, and those of OpenGL 1.1 too.
  const auto address = reinterpret_cast<std::intptr_t>(wglGetProcAddress(name));
  if (address < -1 || address > 3) {
    return reinterpret_cast<void*>(address);
  }
  const HMODULE library = GetModuleHandleW(L"opengl32.dll");
  return library ? reinterpret_cast<void*>(GetProcAddress(library, name)) : nullptr;
}
