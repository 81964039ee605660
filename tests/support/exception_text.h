#ifndef VARNEL_TESTS_SUPPORT_EXCEPTION_TEXT_H
#define VARNEL_TESTS_SUPPORT_EXCEPTION_TEXT_H

#include <exception>
#include <string>
#include <typeinfo>

namespace varnel_test {

/// The text of the exception that the call raises, which must be of just this type; other outcomes
/// are told in words.
template <class Exception, class Call>
std::string textOf(Call call) {
  try {
    call();
  } catch (const std::exception& e) {
    return typeid(e) == typeid(Exception) ? e.what() : std::string("another type: ") + e.what();
  }
  return "nothing raised";
}

}  // namespace varnel_test

#endif
