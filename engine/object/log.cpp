#include "engine/object/log.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

namespace varnel_m3g {

void log(const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

void logf(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  std::vector<char> text(length < 0 ? 1 : static_cast<std::size_t>(length) + 1);
  if (length >= 0) {
    std::vsnprintf(text.data(), text.size(), format, again);
  }
  va_end(again);
  log(text.data());
}

}  // namespace varnel_m3g
