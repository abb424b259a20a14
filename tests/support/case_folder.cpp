#include "support/case_folder.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace pantrigo {

namespace {

/// Where the folders are made: in memory where the system offers that and nobody has asked for another place, since a
/// store waits for the disk at every write.
std::filesystem::path baseFolder() {
  const std::filesystem::path inMemory = "/dev/shm";
  const bool placeAsked = std::getenv("TMPDIR") != nullptr;
  if (!placeAsked && access(inMemory.c_str(), W_OK) == 0) return inMemory;
  return std::filesystem::temp_directory_path();
}

}  // namespace

CaseFolder::CaseFolder() {
  std::string name = (baseFolder() / "pantrigo-case-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category(), name);
  path_ = std::filesystem::canonical(name);
}

CaseFolder::~CaseFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace pantrigo
