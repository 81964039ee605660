/* Loaded before Wine. Mesa's software driver puts the front buffers of pbuffers into X pixmaps of
 * another depth, which the X server refuses; Xlib's own error handler would then end the process.
 * A hardware driver makes no such requests. */
#include <X11/Xlib.h>

enum { FIRST_EXTENSION = 128, SHM_PUT_IMAGE = 3 };

static XErrorHandler former;

static int handleError(Display* display, XErrorEvent* event) {
  if (event->error_code == BadMatch && event->request_code >= FIRST_EXTENSION &&
      event->minor_code == SHM_PUT_IMAGE) {
    return 0;
  }
  return former(display, event);
}

__attribute__((constructor)) static void install(void) {
  former = XSetErrorHandler(handleError);
}
