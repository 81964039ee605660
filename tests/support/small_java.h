#ifndef VARNEL_TESTS_SUPPORT_SMALL_JAVA_H
#define VARNEL_TESTS_SUPPORT_SMALL_JAVA_H

#include <jni.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace varnel_test {

/// A Java environment in the process, with as much of a virtual machine as the natives use: classes
/// by name, peers that hold a handle, strings and arrays of objects. It keeps all that it makes to
/// its own end; references of every kind are the objects themselves.
class SmallJava {
 public:
  struct Object {
    std::string className;
    jlong handle = 0;
    std::string text;
    std::vector<jobject> elements;
  };

  SmallJava();
  SmallJava(const SmallJava&) = delete;
  SmallJava& operator=(const SmallJava&) = delete;

  JNIEnv* env() { return &environment.env; }

  jobject newObject(const std::string& className, jlong handle = 0);
  jstring newString(const std::string& text);
  jclass classOf(const std::string& name);
  static Object& get(jobject reference) { return *reinterpret_cast<Object*>(reference); }

  /// Called for each peer that a native constructs, as the peer's constructor would act.
  std::function<void(jobject)> constructed;
  /// Class and text of the pending exception; empty without one.
  std::string exception;
  /// What static methods with a name and a value were called with, booleans as 0 and 1.
  std::map<std::string, int> values;

 private:
  struct Environment {
    JNIEnv env;
    SmallJava* owner;
  };
  struct Machine {
    JavaVM vm;
    SmallJava* owner;
  };

  static SmallJava& ownerOf(JNIEnv* env) { return *reinterpret_cast<Environment*>(env)->owner; }
  void fillNatives();

  JNINativeInterface_ natives = {};
  JNIInvokeInterface_ invocations = {};
  Environment environment;
  Machine machine;
  std::vector<std::unique_ptr<Object>> objects;
  std::map<std::string, jclass> classes;
};

}  // namespace varnel_test

#endif
