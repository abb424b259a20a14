#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pantrigo {

/// The files that a run of the program sees. The run has a current folder of its own; the process's folder is never
/// changed. Names are UTF-8, resolved against the current folder, and "\" separates folders as "/" does. A name is
/// looked up without regard to case, the exact spelling first.
class Files {
 public:
  explicit Files(std::filesystem::path currentFolder);

  [[nodiscard]] const std::filesystem::path& currentFolder() const { return current_; }

  /// Changes the run's current folder (`ChDir`). Error 76 when there is no such folder.
  void changeFolder(std::string_view folder);

  /// Joins a folder and a name; a folder that ends in a separator gets no second one.
  [[nodiscard]] static std::string join(std::string_view folder, std::string_view name);

  /// The path a name stands for: that of the file found without regard to case, else the name as it is spelled.
  [[nodiscard]] std::filesystem::path resolve(std::string_view name) const;

  /// `Dir`: the bare name of the first plain file that matches the mask ("*" and "?"), in the folder that the mask
  /// names; empty when there is none or no such folder.
  [[nodiscard]] std::string Dir(std::string_view mask) const;

  /// All plain, not hidden files that match, sorted by name without regard to case. "*.*" takes every name; a mask
  /// without a wildcard takes one file at most; an empty one takes none.
  [[nodiscard]] std::vector<std::string> matching(std::string_view mask) const;

  /// `Kill`: removes all files that match. Error 53 when none does, 75 when one can't be removed.
  void Kill(std::string_view mask) const;

  /// `FileCopy`: byte for byte, overwriting. Error 53 for a missing source, 76 for a missing folder, 75 otherwise.
  void FileCopy(std::string_view source, std::string_view target) const;

  /// All bytes of a file. Errors 53, 76, 75.
  [[nodiscard]] std::string readBytes(std::string_view name) const;

 private:
  std::filesystem::path current_;
};

}  // namespace pantrigo
