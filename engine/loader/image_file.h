#ifndef VARNEL_ENGINE_LOADER_IMAGE_FILE_H
#define VARNEL_ENGINE_LOADER_IMAGE_FILE_H

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace varnel_m3g {

/// Bytes at the start of a PNG file that name its kind.
constexpr std::size_t imageSignatureLength = 8;

/// An image file that is open for reading, closed with this object. It may not exist.
class ImageFile {
 public:
  /// The name is in UTF-8.
  explicit ImageFile(const char* name);
  ImageFile(const ImageFile&) = delete;
  ImageFile& operator=(const ImageFile&) = delete;
  ~ImageFile() {
    if (file != nullptr) {
      std::fclose(file);
    }
  }

  explicit operator bool() const { return file != nullptr; }
  std::FILE* get() const { return file; }

  /// Bytes in the whole file, 0 if that is unknown; the reading position is kept.
  std::uint64_t size() const;

 private:
  std::FILE* file;
};

/// Whether a file of that size can hold an image of that size. Both formats pack a picture into at
/// least 1/2048 of its bytes, so that a small file which claims a large picture is damaged or
/// hostile; pictures of up to 16 MiB pass whatever their file. The size is refused as well where
/// the store of an image could not be counted in an int.
bool fitsImageFile(std::uint64_t width, std::uint64_t height, std::uint64_t rowBytes,
                   std::uint64_t fileSize);

}  // namespace varnel_m3g

#endif
