#include "engine/loader/file_name.h"

#include <system_error>

namespace varnel_m3g {

std::filesystem::path systemFileName(const char* name) {
  try {
    return reinterpret_cast<const char8_t*>(name);
  } catch (const std::system_error&) {
    return {};
  }
}

}  // namespace varnel_m3g
