#ifndef VARNEL_TESTS_SUPPORT_FAKE_JAVA_H
#define VARNEL_TESTS_SUPPORT_FAKE_JAVA_H

#include <jni.h>

#include <cstdint>
#include <string>
#include <vector>

namespace varnel_test {

/// A virtual machine that knows the calls about global references, and notes them.
class FakeJava {
 public:
  FakeJava();
  FakeJava(const FakeJava&) = delete;
  FakeJava& operator=(const FakeJava&) = delete;

  JNIEnv* env() { return &environment.env; }
  JavaVM* vm() { return &machine.vm; }

  /// An object reference of the test's choice.
  static jobject object(std::intptr_t number) { return reinterpret_cast<jobject>(number); }

  bool attached = true;        ///< whether GetEnv succeeds
  bool attachSucceeds = true;  ///< whether AttachCurrentThread does
  /// The calls so far. The global reference of object n is n + 1000.
  std::vector<std::string> calls;

 private:
  struct Environment {
    JNIEnv env;
    FakeJava* owner;
  };
  struct Machine {
    JavaVM vm;
    FakeJava* owner;
  };

  static FakeJava& ownerOf(JNIEnv* env) { return *reinterpret_cast<Environment*>(env)->owner; }
  static FakeJava& ownerOf(JavaVM* vm) { return *reinterpret_cast<Machine*>(vm)->owner; }

  JNINativeInterface_ natives = {};
  JNIInvokeInterface_ invocations = {};
  Environment environment;
  Machine machine;
};

}  // namespace varnel_test

#endif
