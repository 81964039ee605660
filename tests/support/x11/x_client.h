#ifndef VARNEL_TESTS_SUPPORT_X11_X_CLIENT_H
#define VARNEL_TESTS_SUPPORT_X11_X_CLIENT_H

#include "tests/support/native_client.h"

/// Another program on the X server, with what only an X client can do.
class XClient : public NativeClient {
 public:
  /// Ends the connection that owns the resource, as a user does who loses patience.
  void killOwner(std::uintptr_t resource);

  /// Makes a request that the server refuses, and waits for the error.
  void provokeError();

  /// A shown window of the first visual of the given depth; 0 if there is none.
  std::uintptr_t createWindowOfDepth(int width, int height, int depth);
};

#endif
