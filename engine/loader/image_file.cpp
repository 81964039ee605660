#include "engine/loader/image_file.h"

#include <algorithm>
#include <limits>

#include "engine/loader/file_name.h"

namespace varnel_m3g {

#ifdef _WIN32
ImageFile::ImageFile(const char* name) : file(_wfopen(systemFileName(name).c_str(), L"rb")) {}
#else
ImageFile::ImageFile(const char* name) : file(std::fopen(name, "rb")) {}
#endif

std::uint64_t ImageFile::size() const {
  const long position = std::ftell(file);
  if (position < 0 || std::fseek(file, 0, SEEK_END) != 0) {
    return 0;
  }
  const long end = std::ftell(file);
  std::fseek(file, position, SEEK_SET);
  return end < 0 ? 0 : static_cast<std::uint64_t>(end);
}

bool fitsImageFile(std::uint64_t width, std::uint64_t height, std::uint64_t rowBytes,
                   std::uint64_t fileSize) {
  constexpr std::uint64_t alwaysAccepted = 16u << 20;
  constexpr std::uint64_t densestPacking = 2048;
  // Image2D keeps 4 bytes a pixel.
  const std::uint64_t bytes = std::max(rowBytes, width * 4) * height;
  return bytes <= std::numeric_limits<std::int32_t>::max() &&
         bytes <= alwaysAccepted + densestPacking * fileSize;
}

}  // namespace varnel_m3g
