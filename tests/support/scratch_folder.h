#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/text/errors.h"

namespace pantrigo {

/// A folder of its own for one test, gone with everything in it at the end.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "pantrigo-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder");
    path_ = std::filesystem::canonical(pattern);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code failure;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, failure);
    std::filesystem::remove_all(path_, failure);
  }

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// Writes a file, with the folders above it; the name is relative to the folder.
  void write(std::string_view name, std::string_view bytes) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
  }

 private:
  std::filesystem::path path_;
};

/// The number of the run-time error that the call raises; 0 when it raises none.
int errorOf(auto&& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace pantrigo
