#ifndef VARNEL_ENGINE_OBJECT_LOG_H
#define VARNEL_ENGINE_OBJECT_LOG_H

#include <string>

namespace varnel_m3g {

/// Writes the text, a line end and a flush to the standard output.
void log(const std::string& text);

/// The same with a printf format; texts of any length are written whole.
void logf(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace varnel_m3g

#endif
