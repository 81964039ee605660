#include "tests/gles/referee/report.h"

#include <cstdio>
#include <cstring>

#include <EGL/egl.h>

#if defined(REFEREE_ES2)
#include <GLES2/gl2.h>
#else
#include <GLES/gl.h>
#endif

const char* sceneName = "";

void reportPicture() {
  std::vector<unsigned char> bytes(refereeSide * refereeSide * 4);
  glPixelStorei(GL_PACK_ALIGNMENT, 4);
  glReadPixels(0, 0, refereeSide, refereeSide, GL_RGBA, GL_UNSIGNED_BYTE, bytes.data());
  std::printf("picture %s ", sceneName);
  for (const unsigned char byte : bytes) {
    std::printf("%02x", byte);
  }
  std::printf("\n");
}

void reportAnswer(const std::string& name, const std::vector<double>& values) {
  std::printf("answer %s %s", sceneName, name.c_str());
  for (const double value : values) {
    std::printf(" %.9g", value);
  }
  std::printf("\n");
}

namespace {

bool isWanted(const char* name, int argumentCount, char** arguments) {
  for (int i = 1; i < argumentCount; ++i) {
    if (std::strcmp(arguments[i], name) == 0) {
      return true;
    }
  }
  return argumentCount < 2;
}

bool runScene(EGLDisplay display, EGLConfig config, int version, const Scene& scene) {
  const EGLint size[] = {EGL_WIDTH, refereeSide, EGL_HEIGHT, refereeSide, EGL_NONE};
  const EGLint attributes[] = {EGL_CONTEXT_CLIENT_VERSION, version, EGL_NONE};
  const EGLSurface surface = eglCreatePbufferSurface(display, config, size);
  const EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, attributes);
  if (!eglMakeCurrent(display, surface, surface, context)) {
    std::fprintf(stderr, "%s: no current context (0x%x)\n", scene.name,
                 static_cast<unsigned>(eglGetError()));
    return false;
  }
  sceneName = scene.name;
  glViewport(0, 0, refereeSide, refereeSide);
  glClearColor(0.125f, 0.25f, 0.5f, 1);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
  scene.run();
  reportAnswer("error", {static_cast<double>(glGetError())});
  eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglDestroyContext(display, context);
  eglDestroySurface(display, surface);
  return true;
}

}  // namespace

int runScenes(int version, const std::vector<Scene>& scenes, int argumentCount, char** arguments) {
  const EGLint wanted[] = {EGL_RED_SIZE,
                           8,
                           EGL_GREEN_SIZE,
                           8,
                           EGL_BLUE_SIZE,
                           8,
                           EGL_ALPHA_SIZE,
                           8,
                           EGL_DEPTH_SIZE,
                           16,
                           EGL_STENCIL_SIZE,
                           8,
                           EGL_SURFACE_TYPE,
                           EGL_PBUFFER_BIT,
                           EGL_RENDERABLE_TYPE,
                           version == 2 ? EGL_OPENGL_ES2_BIT : EGL_OPENGL_ES_BIT,
                           EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  const EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  if (!eglInitialize(display, nullptr, nullptr) || !eglBindAPI(EGL_OPENGL_ES_API) ||
      !eglChooseConfig(display, wanted, &config, 1, &count) || count < 1) {
    std::fprintf(stderr, "no EGL configuration (0x%x)\n", static_cast<unsigned>(eglGetError()));
    return 1;
  }
  sceneName = "commands";
  reportAnswer("count", {static_cast<double>(countCommands())});
  for (const Scene& scene : scenes) {
    if (isWanted(scene.name, argumentCount, arguments) &&
        !runScene(display, config, version, scene)) {
      return 1;
    }
  }
  eglTerminate(display);
  return 0;
}
