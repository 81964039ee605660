#ifndef VARNEL_TESTS_SUPPORT_X11_X_CONNECTION_H
#define VARNEL_TESTS_SUPPORT_X11_X_CONNECTION_H

#include <X11/Xlib.h>

#include "tests/support/native_client.h"

struct NativeClient::Connection {
  Display* display = nullptr;
};

#endif
