#pragma once

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/store/database.h"
#include "platform/text/errors.h"
#include "support/raw_rows.h"

namespace pantrigo {

/// The number of the run-time error that a statement raises; 0 when it runs to its end.
template <class Statement>
int errorOf(Statement&& statement) {
  try {
    statement();
    return 0;
  } catch (const RuntimeError& error) {
    return error.number();
  }
}

/// The text of the run-time error that a statement raises; empty when it runs to its end.
template <class Statement>
std::string errorTextOf(Statement&& statement) {
  try {
    statement();
    return {};
  } catch (const RuntimeError& error) {
    return error.text();
  }
}

/// Makes every write fail that would bring a file beyond so many bytes, until the scope ends.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::uintmax_t bytes);
  ~FileSizeLimit();
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  sighandler_t handlerBefore_;
};

/// A folder of its own for each test.
class FolderTest : public testing::Test {
 protected:
  FolderTest();
  ~FolderTest() override;

  [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
  [[nodiscard]] std::filesystem::path file() const { return folder_ / "PANTRIGO.MDB"; }
  /// Names of the files in the folder, sorted.
  [[nodiscard]] std::vector<std::string> fileNames() const;
  void writeFile(const std::filesystem::path& path, const std::string& bytes) const;
  [[nodiscard]] std::string readFile(const std::filesystem::path& path) const;

 private:
  std::filesystem::path folder_;
};

/// A new store, open.
class StoreTest : public FolderTest {
 protected:
  StoreTest();

  void reopen();
  void addRecipe(long id, const Value& title, bool meal = false) const;
  /// The named field of all rows from the cursor's place to the end, as texts; "Null" for Null.
  static std::vector<std::string> rest(Recordset& cursor, std::string_view field);
  /// The same for the result of an SQL text.
  std::vector<std::string> queried(std::string_view sql, std::string_view field);

  Database database;
};

}  // namespace pantrigo
