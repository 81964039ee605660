// In a file of its own, since Xlib's internal header needs the macros that the port undefines.
#include <X11/Xlibint.h>

void forgetDisplayLocks(Display* display) {
  display->lock_fns = nullptr;
}
