#ifndef VARNEL_TESTS_SUPPORT_X11_X_ERROR_COUNTER_H
#define VARNEL_TESTS_SUPPORT_X11_X_ERROR_COUNTER_H

/// An application's X error handler: counts the errors that reach it while it lives.
class XErrorCounter {
 public:
  XErrorCounter();
  ~XErrorCounter();
  XErrorCounter(const XErrorCounter&) = delete;
  XErrorCounter& operator=(const XErrorCounter&) = delete;

  int count() const;
  /// True if the process's handler is this one.
  bool isInstalled() const;
};

#endif
