#ifndef VARNEL_TESTS_SUPPORT_TEMPORARY_FOLDER_H
#define VARNEL_TESTS_SUPPORT_TEMPORARY_FOLDER_H

#include <string>

namespace varnel_test {

/// A folder of its own for a test's files, removed with this object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  std::string path(const std::string& name) const { return folder + "/" + name; }
  /// Writes a file and returns its path.
  std::string write(const std::string& name, const std::string& bytes) const;

 private:
  std::string folder;
};

/// Makes another folder the current one for as long as this object lives.
class CurrentFolder {
 public:
  explicit CurrentFolder(const std::string& folder);
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;
  ~CurrentFolder();

 private:
  std::string former;
};

}  // namespace varnel_test

#endif
