// Every seed, every input that ever failed, and damaged variants of the good files: whatever the
// bytes, a load ends as tests/support/fuzz_input.h says. The sanitizers watch in their build.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/support/fuzz_input.h"
#include "tests/support/m3g_writer.h"

namespace varnel_m3g {
namespace {

namespace fs = std::filesystem;
using Load = std::function<void(const std::uint8_t*, std::size_t)>;

const std::string fuzzFolder = std::string(VARNEL_SOURCE_DIR) + "/tests/fuzz";

std::vector<std::string> filesOf(const std::string& folder, const std::string& extension = "") {
  std::vector<std::string> files;
  if (fs::is_directory(folder)) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      const bool wanted = extension.empty() || entry.path().extension() == extension;
      if (entry.is_regular_file() && wanted && entry.path().filename().string()[0] != '.') {
        files.push_back(entry.path().string());
      }
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// Loads quietly.
void loadBytes(const Load& load, const std::string& bytes) {
  load(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

class Corpus : public testing::Test {
 protected:
  void SetUp() override {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
  }

  void TearDown() override {
    testing::internal::GetCapturedStderr();
    testing::internal::GetCapturedStdout();
  }

  /// Loads all inputs of a kind and returns their number.
  static std::size_t replay(const std::string& kind, const Load& load) {
    std::size_t count = 0;
    for (const char* folder : {"/corpus/", "/findings/"}) {
      for (const std::string& file : filesOf(fuzzFolder + folder + kind)) {
        loadBytes(load, varnel_test::readFile(file));
        ++count;
      }
    }
    return count;
  }

  /// Loads a file cut at up to `most` lengths, all of them where it has no more.
  static void cut(const std::string& bytes, std::size_t most, const Load& load) {
    const std::size_t step = std::max<std::size_t>(1, bytes.size() / most);
    for (std::size_t length = 0; length < bytes.size(); length += step) {
      loadBytes(load, bytes.substr(0, length));
    }
  }

  /// Loads a file `times` times with one to eight bytes or bits changed, after the first `kept`.
  static void damage(const std::string& bytes, std::size_t kept, int times, const Load& load) {
    std::mt19937 random(20260101);
    for (int i = 0; i < times && bytes.size() > kept; ++i) {
      std::string damaged = bytes;
      for (unsigned changes = 1 + random() % 8; changes != 0; --changes) {
        char& byte = damaged[kept + random() % (damaged.size() - kept)];
        const unsigned kind = random() % 4;
        byte = static_cast<char>(kind == 0   ? random()
                                 : kind == 1 ? 0xFF
                                 : kind == 2 ? 0
                                             : byte ^ 1 << random() % 8);
      }
      loadBytes(load, damaged);
    }
  }

  static std::size_t harm(const std::vector<std::string>& files, std::size_t kept,
                          const Load& load) {
    for (const std::string& file : files) {
      const std::string bytes = varnel_test::readFile(file);
      cut(bytes, 1500, load);
      damage(bytes, kept, 400, load);
    }
    return files.size();
  }
};

constexpr std::size_t m3gIdentifier = 12;
constexpr std::size_t pngSignature = 8;

TEST_F(Corpus, M3gInputsEnd) {
  EXPECT_GE(replay("loader", varnel_test::loadAsM3g), 7u);
}

TEST_F(Corpus, PngInputsEnd) {
  EXPECT_GE(replay("png", varnel_test::loadAsPng), 7u);
}

TEST_F(Corpus, JpegInputsEnd) {
  EXPECT_GE(replay("jpeg", varnel_test::loadAsJpeg), 6u);
}

TEST_F(Corpus, DamagedM3gFilesEnd) {
  EXPECT_GE(harm(filesOf(fuzzFolder + "/corpus/loader"), m3gIdentifier, varnel_test::loadAsM3g),
            7u);
}

TEST_F(Corpus, DamagedSampleScenesEnd) {
  const std::string samples = std::string(VARNEL_SOURCE_DIR) + "/samples";
  for (const char* name : {"triangle.m3g", "sections.m3g", "external.m3g"}) {
    EXPECT_EQ(harm({samples + "/" + name}, m3gIdentifier, varnel_test::loadAsM3g), 1u);
  }
}

TEST_F(Corpus, DamagedFilesOfOthersEnd) {
  const char* folder = std::getenv("VARNEL_SAMPLES");
  if (folder == nullptr) {
    GTEST_SKIP() << "VARNEL_SAMPLES is not set";
  }
  EXPECT_GT(harm(filesOf(folder, ".m3g"), m3gIdentifier, varnel_test::loadAsM3g), 0u);
}

TEST_F(Corpus, DamagedPngFilesEnd) {
  EXPECT_GE(harm(filesOf(fuzzFolder + "/corpus/png"), pngSignature, varnel_test::loadAsPng), 7u);
}

TEST_F(Corpus, DamagedJpegFilesEnd) {
  EXPECT_GE(harm(filesOf(fuzzFolder + "/corpus/jpeg"), 2, varnel_test::loadAsJpeg), 6u);
}

}  // namespace
}  // namespace varnel_m3g
