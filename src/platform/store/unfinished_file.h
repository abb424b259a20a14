#pragma once

#include <filesystem>

namespace pantrigo {

/// A file of a store that is being made: unless it was kept, it is removed at the scope's end, the engine's side files
/// with it. Whatever has it open has to be closed by then.
class UnfinishedFile {
 public:
  explicit UnfinishedFile(std::filesystem::path file) : file_(std::move(file)) {}
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  void keep() { isKept_ = true; }

 private:
  std::filesystem::path file_;
  bool isKept_ = false;
};

}  // namespace pantrigo
