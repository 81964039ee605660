#include "tests/support/x11/x_error_counter.h"

#include <X11/Xlib.h>

namespace {

int errors = 0;
XErrorHandler former = nullptr;

int countError(Display*, XErrorEvent*) {
  ++errors;
  return 0;
}

}  // namespace

XErrorCounter::XErrorCounter() {
  errors = 0;
  former = XSetErrorHandler(countError);
}

XErrorCounter::~XErrorCounter() {
  XSetErrorHandler(former);
}

int XErrorCounter::count() const {
  return errors;
}

bool XErrorCounter::isInstalled() const {
  XErrorHandler present = XSetErrorHandler(countError);
  XSetErrorHandler(present);
  return present == countError;
}
