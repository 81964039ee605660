#ifndef VARNEL_TESTS_SUPPORT_RECORDING_DRIVER_H
#define VARNEL_TESTS_SUPPORT_RECORDING_DRIVER_H

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "gles/driver/driver.h"
#include "gles/function_table.h"

/// Stands in for the desktop driver while it lives: each call of the layers becomes a line of text,
/// such as "glEnable(GL_FOG)", "glFogf(GL_FOG_MODE, 2048)", "glDrawArrays(GL_TRIANGLE_STRIP, 0,
/// 4)".
///
/// Enumerants are written by name, floats in their shortest form, and values behind a pointer as
/// "[1, 0, 0, 0.5]" where their number is known (matrices, planes, light and material parameters,
/// names to delete); any other pointer is "<ptr>" or "null". A fresh OpenGL ES 1.1 and 2.0 context
/// state is current meanwhile. What was installed before comes back at the end. One at a time.
class RecordingDriver {
 public:
  RecordingDriver();
  ~RecordingDriver();
  RecordingDriver(const RecordingDriver&) = delete;
  RecordingDriver& operator=(const RecordingDriver&) = delete;

  /// One recorded call. Addresses are those of the arguments that are pointers, in their order.
  struct Call {
    std::string name;
    std::string text;
    std::vector<const void*> addresses;
  };

  /// All calls since the start or the last `clear`.
  const std::vector<Call>& records() const { return calls_; }
  /// Their texts.
  std::vector<std::string> calls() const;
  /// The texts of the calls of one function.
  std::vector<std::string> calls(const std::string& name) const;
  /// The texts since the last `clear`, and clears.
  std::vector<std::string> take();
  /// Forgets the calls so far; answers and names stay.
  void clear() { calls_.clear(); }

  /// Sets what any `glGet...` answers for a parameter. A parameter without an answer leaves the
  /// caller's values alone.
  void answer(unsigned parameter, std::vector<double> values);
  /// Sets what `glGetString` answers.
  void answerString(unsigned name, const std::string& text);
  /// Sets what a function returns, as a number.
  void answerResult(const std::string& function, unsigned value);
  /// Adds an error that a later `glGetError` answers, oldest first.
  void raise(unsigned error) { errors_.push_back(error); }

  /// Runs at each call of a function, once it is recorded; for looking at what its pointers hold.
  void onCall(const std::string& function, std::function<void(const Call&)> action);

  /// The address that the last call of a function was given; null if it had none.
  const void* lastAddress(const std::string& function) const;

  /// Gives the driver no such function from now on.
  void lack(const std::string& function);

  /// The context states that are current.
  void* es1State() const { return es1State_; }
  void* es2State() const { return es2State_; }
  /// Makes no context state current, or those again.
  void setStatesCurrent(bool areCurrent);

 private:
  friend struct Recorder;

  gles::DriverTable formerDriver_;
  void* formerEs1State_;
  void* formerEs2State_;
  int formerStackDepth_;
  GlFunctionTable es1_{};
  GlFunctionTable es2_{};
  void* es1State_ = nullptr;
  void* es2State_ = nullptr;
  std::vector<Call> calls_;
  std::map<unsigned, std::vector<double>> answers_;
  std::map<unsigned, std::string> strings_;
  std::map<std::string, unsigned> results_;
  std::map<std::string, std::function<void(const Call&)>> actions_;
  std::deque<unsigned> errors_;
  unsigned nextName_ = 1;
};

#endif  // VARNEL_TESTS_SUPPORT_RECORDING_DRIVER_H
