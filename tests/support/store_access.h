#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/store/database.h"
#include "support/raw_rows.h"

namespace pantrigo {

/// A new store, made once by the program that makes stores, of which each case takes a copy.
class StoreTemplate {
 public:
  /// Makes it, with the unit words of the data folder.
  StoreTemplate();
  /// Puts a copy there, in place of a store that may be there.
  void copyTo(const std::filesystem::path& file) const;

 private:
  std::string bytes_;
};

/// The store of a case, open between two calls of a script while no run of the program holds it.
class IdleStore {
 public:
  explicit IdleStore(std::filesystem::path file) : file_(std::move(file)) {}
  ~IdleStore() { release(); }
  IdleStore(const IdleStore&) = delete;
  IdleStore& operator=(const IdleStore&) = delete;

  /// The open store. Errors of `OpenDatabase`.
  [[nodiscard]] Database& database();
  /// Closes it, so that it is one file again for whoever comes next.
  void release();

  [[nodiscard]] const std::filesystem::path& file() const { return file_; }

 private:
  std::filesystem::path file_;
  std::optional<Database> database_;
};

/// Changes the one row of `System`.
void changeSystem(const Database& database, const RawRow& changes);

/// Whether a name is that of a file that an open store keeps beside it.
[[nodiscard]] bool isSideFile(const std::string& name);

}  // namespace pantrigo
