#pragma once

#include <filesystem>

namespace pantrigo {

/// A fresh, empty folder among the temporary ones, removed with all that is in it when the object goes.
class CaseFolder {
 public:
  CaseFolder();
  ~CaseFolder();
  CaseFolder(const CaseFolder&) = delete;
  CaseFolder& operator=(const CaseFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace pantrigo
