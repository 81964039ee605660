#ifndef VARNEL_TESTS_SUPPORT_JAVA_FUNCTION_H
#define VARNEL_TESTS_SUPPORT_JAVA_FUNCTION_H

#include <jni.h>

namespace varnel_test {

/// Puts a function of the tests' own into a slot of a Java function table, in the table's calling
/// convention. `function` is a lambda that captures nothing.
template <class Result, class... Arguments, class Function>
void answerBy(Result(JNICALL*& slot)(Arguments...), Function) {
  struct Call {
    static Result JNICALL of(Arguments... arguments) { return Function{}(arguments...); }
  };
  slot = Call::of;
}

}  // namespace varnel_test

#endif
