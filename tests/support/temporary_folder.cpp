#include "tests/support/temporary_folder.h"

#include <filesystem>
#include <random>
#include <string>

#include "tests/support/m3g_writer.h"

namespace varnel_test {

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  do {
    const std::string name = "varnel-" + std::to_string(random());
    folder = (std::filesystem::temp_directory_path() / name).string();
  } while (!std::filesystem::create_directory(folder));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}

std::string TemporaryFolder::write(const std::string& name, const std::string& bytes) const {
  writeFile(path(name), bytes);
  return path(name);
}

CurrentFolder::CurrentFolder(const std::string& folder)
    : former(std::filesystem::current_path().string()) {
  std::filesystem::current_path(folder);
}

CurrentFolder::~CurrentFolder() {
  std::error_code ignored;
  std::filesystem::current_path(former, ignored);
}

}  // namespace varnel_test
