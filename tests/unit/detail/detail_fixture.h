#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "program/program.h"
#include "support/quiet_toolkit.h"
#include "support/raw_rows.h"
#include "support/scratch_folder.h"

namespace pantrigo {

/// The detail window of a program that runs over a cookbook of its own, without a person: questions are answered Yes.
class DetailTest : public testing::Test {
 protected:
  ~DetailTest() override { close(); }

  [[nodiscard]] const std::filesystem::path& folder() const { return folder_.path(); }
  [[nodiscard]] std::filesystem::path file() const;

  /// Makes the cookbook: the recipe "Apple Pie", in the first of two health categories.
  void makeCookbook();
  void start();
  /// Shows a recipe, as a double click on its title does.
  void show(std::string_view title);
  /// Ends the program when it still runs.
  void close();
  [[nodiscard]] pantrigo::Run& run() { return program_->run(); }
  [[nodiscard]] FrmDetail& form() { return run().frmDetail; }
  void press(MenuEntry& entry);
  [[nodiscard]] bool ended() const { return program_->ended(); }
  /// The number of the run-time error that ended the program; 0 for none.
  [[nodiscard]] int error();

  /// Lets the store's file take no more pages than it has, as on a full disk.
  void fillDisk();
  /// What the engine says of the closed file: "ok" when it is sound.
  [[nodiscard]] std::string soundness() const;
  /// All rows of a table of the closed file.
  [[nodiscard]] std::vector<RawRow> rows(std::string_view table) const;

 private:
  class Agreeing : public QuietToolkit {
   public:
    BoxAnswer showBox(const MessageBox&) override { return BoxAnswer::Yes; }
  };

  ScratchFolder folder_;
  Agreeing toolkit_;
  std::unique_ptr<Program> program_;
};

}  // namespace pantrigo
