#include "tests/support/fuzz_input.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <zlib.h>

#include <boost/pointer_cast.hpp>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>

#include "engine/loader/loader.h"
#include "engine/object/object3d.h"
#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VARNEL_LEAK_CHECK
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define VARNEL_LEAK_CHECK
#endif
#ifdef VARNEL_LEAK_CHECK
#include <sanitizer/lsan_interface.h>
#endif

namespace {

std::jmp_buf assertionJump;
bool catchingAssertions = false;

}  // namespace

// In the place of the library's own, in the programs that link this file: while a load runs, the
// subscript assertion goes back to its start.
namespace std {
void __glibcxx_assert_fail(const char* file, int line, const char* function,
                           const char* condition) noexcept {
  if (catchingAssertions && strcmp(condition, "__n < this->size()") == 0) {
    longjmp(assertionJump, 1);
  }
  fprintf(stderr, "%s:%d: %s: Assertion '%s' failed.\n", file, line, function, condition);
  abort();
}
}  // namespace std

namespace varnel_test {
namespace {

using varnel_m3g::Image2D;
using varnel_m3g::Loader;
using varnel_m3g::ObjectTable;

/// The lowest file descriptor that is free.
int nextDescriptor() {
  const int descriptor = ::open("/dev/null", O_RDONLY);
  ::close(descriptor);
  return descriptor;
}

void releaseImages(ObjectTable& objects) {
  for (const boost::shared_ptr<varnel_m3g::Object3D>& object : objects) {
    const boost::shared_ptr<Image2D> image = boost::dynamic_pointer_cast<Image2D>(object);
    if (image && image->getTexture() != nullptr) {
      image->getTexture()->releaseImage();
    }
  }
}

/// Runs a load; false if it met the assertion. What it holds then is lost.
bool runLoad(const std::function<void(const char*, ObjectTable&)>& load, const char* name,
             ObjectTable& objects) {
  if (setjmp(assertionJump) != 0) {
    catchingAssertions = false;
    return false;
  }
  catchingAssertions = true;
  try {
    load(name, objects);
  } catch (const std::invalid_argument&) {
  } catch (const std::out_of_range&) {
  } catch (const std::runtime_error&) {
  }
  catchingAssertions = false;
  return true;
}

void loadAs(const std::function<void(const char*, ObjectTable&)>& load, const std::uint8_t* data,
            std::size_t size) {
#ifdef VARNEL_LEAK_CHECK
  const __lsan::ScopedDisabler noLeakCheck;
#endif
  const int file = memfd_create("input", 0);
  if (file < 0 || ::write(file, data, size) != static_cast<ssize_t>(size)) {
    std::perror("memfd_create");
    std::abort();
  }
  const std::string name = "/proc/self/fd/" + std::to_string(file);
  const int streamDescriptor = nextDescriptor();
  ObjectTable objects;
  if (!runLoad(load, name.c_str(), objects)) {
    ::close(streamDescriptor);
  }
  releaseImages(objects);
  ::close(file);
}

/// A PNG file with the right sum behind each chunk, so that changed chunks are looked into.
std::string withChunkSums(const std::uint8_t* data, std::size_t size) {
  std::string file(data, data + size);
  constexpr std::size_t signature = 8;
  constexpr std::size_t around = 12;  // length, type and sum of a chunk
  for (std::size_t at = signature; at + around <= size;) {
    const std::size_t length = std::size_t(data[at]) << 24 | std::size_t(data[at + 1]) << 16 |
                               std::size_t(data[at + 2]) << 8 | data[at + 3];
    if (length > size - at - around) {
      break;
    }
    const uLong sum = crc32(0, data + at + 4, static_cast<uInt>(length + 4));
    for (std::size_t i = 0; i < 4; ++i) {
      file[at + 8 + length + i] = static_cast<char>(sum >> (24 - 8 * i));
    }
    at += around + length;
  }
  return file;
}

}  // namespace

void loadAsM3g(const std::uint8_t* data, std::size_t size) {
  loadAs([](const char* name, ObjectTable& objects) { Loader::load(name, objects); }, data, size);
}

void loadAsPng(const std::uint8_t* data, std::size_t size) {
  const auto load = [](const char* name, ObjectTable& objects) {
    objects.push_back(Loader::readPNG(name));
  };
  loadAs(load, data, size);
  const std::string repaired = withChunkSums(data, size);
  loadAs(load, reinterpret_cast<const std::uint8_t*>(repaired.data()), repaired.size());
}

void loadAsJpeg(const std::uint8_t* data, std::size_t size) {
  loadAs([](const char* name, ObjectTable& objects) { objects.push_back(Loader::readJPEG(name)); },
         data, size);
}

}  // namespace varnel_test
