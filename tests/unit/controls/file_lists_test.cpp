#include <gtest/gtest.h>

#include <filesystem>

#include "platform/controls/input.h"
#include "platform/files/files.h"
#include "support/quiet_toolkit.h"
#include "support/scratch_folder.h"

namespace pantrigo {
namespace {

struct FileForm : Form {
  FileForm() : Form("frmFiles", "Files", 3000, 2000) { sealDesign(); }
  DriveList dlbDrive{*this, "dlbDrive", {}};
  FolderList dlbPath{*this, "dlbPath", {}};
  FileList flbFile{*this, "flbFile", {}};
};

class DrivesToolkit : public QuietToolkit {
 public:
  [[nodiscard]] std::vector<std::string> drives() const override { return found; }
  std::vector<std::string> found = {"/"};
};

/// A form with the three lists over a folder with a few files, and a log of the events that are raised.
class FileListsTest : public testing::Test {
 protected:
  FileListsTest() {
    for (const char* file : {"b.txt", "A.TXT", "c.pgx", ".d.txt", "noext", "alpha/x.txt"}) scratch.write(file, "x");
    for (const char* folder : {"Beta", ".hidden", "alpha/inner"}) {
      std::filesystem::create_directories(scratch.path() / folder);
    }
    windows.Load(form);
    form.dlbDrive.startAt(files);
    form.dlbPath.startAt(files);
    form.flbFile.startAt(files);
    windows.Show(form);
    form.dlbDrive.Change = note("drive");
    form.dlbPath.Change = note("path");
    form.dlbPath.Click = note("path Click");
    form.dlbPath.DblClick = note("path DblClick");
    form.flbFile.Click = note("file Click");
    form.flbFile.DblClick = note("file DblClick");
    form.flbFile.PathChange = note("file path");
    form.flbFile.PatternChange = note("pattern");
  }

  std::function<void()> note(std::string text) {
    return [this, text = std::move(text)] { log.push_back(text); };
  }
  std::vector<std::string> raised() { return std::exchange(log, {}); }
  [[nodiscard]] std::vector<std::string> rows(const NameList& list) const {
    std::vector<std::string> texts;
    for (int row = 0; row < list.ListCount(); ++row) texts.push_back(list.List(row));
    return texts;
  }
  [[nodiscard]] std::string in(const char* name) const { return (scratch.path() / name).string(); }
  using Texts = std::vector<std::string>;

  ScratchFolder scratch;
  Files files{scratch.path()};
  DrivesToolkit toolkit;
  EventLoop loop{toolkit};
  Windows windows{loop};
  FileForm form;
  Texts log;
};

TEST_F(FileListsTest, FoldersAreSortedByNameAndHiddenOnesLeftOut) {
  EXPECT_EQ(form.dlbPath.Path(), scratch.path().string());
  EXPECT_EQ(rows(form.dlbPath), (Texts{in("alpha"), in("Beta")}));
  EXPECT_EQ(form.dlbPath.name(0), "alpha");
}

TEST_F(FileListsTest, RowsBelowZeroAreTheFolderAndThoseThatHoldIt) {
  const FolderList& folders = form.dlbPath;
  EXPECT_EQ(folders.List(-1), scratch.path().string());
  EXPECT_EQ(folders.List(-2), scratch.path().parent_path().string());
  EXPECT_EQ(folders.List(folders.firstRow()), "/");
  EXPECT_EQ(folders.name(folders.firstRow()), "/");
  EXPECT_EQ(folders.List(folders.firstRow() - 1), "");
  EXPECT_EQ(folders.List(2), "");
}

TEST_F(FileListsTest, AClickOnlyMarksAFolderAndADoubleClickEntersIt) {
  userPicks(windows, form.dlbPath, 0);
  EXPECT_EQ(form.dlbPath.Path(), scratch.path().string());
  EXPECT_EQ(raised(), Texts{"path Click"});
  userDoubleClicks(windows, form.dlbPath);
  EXPECT_EQ(form.dlbPath.Path(), in("alpha"));
  EXPECT_EQ(rows(form.dlbPath), Texts{in("alpha/inner")});
  EXPECT_EQ(form.dlbPath.ListIndex(), -1);
  EXPECT_EQ(raised(), (Texts{"path DblClick", "path"}));
}

TEST_F(FileListsTest, EnterEntersThePickedFolder) {
  userMovesTo(windows, form.dlbPath, -2);
  raised();
  userKey(windows, form, keyReturn);
  EXPECT_EQ(form.dlbPath.Path(), scratch.path().parent_path().string());
  EXPECT_EQ(raised(), Texts{"path"});
}

TEST_F(FileListsTest, AFolderThatIsGoneIsNotEntered) {
  userPicks(windows, form.dlbPath, 1);
  std::filesystem::remove(scratch.path() / "Beta");
  raised();
  userDoubleClicks(windows, form.dlbPath);
  EXPECT_EQ(form.dlbPath.Path(), scratch.path().string());
  EXPECT_EQ(raised(), Texts{"path DblClick"});
}

TEST_F(FileListsTest, APathSetByCodeIsFoundWithoutRegardToCase) {
  form.dlbPath.setPath("ALPHA\\");
  EXPECT_EQ(form.dlbPath.Path(), in("alpha"));
  EXPECT_EQ(raised(), Texts{"path"});
  form.dlbPath.setPath(in("alpha"));
  EXPECT_TRUE(raised().empty());
  form.dlbPath.setPath("/");
  EXPECT_EQ(form.dlbPath.Path(), "/");
  EXPECT_EQ(form.dlbPath.firstRow(), -1);
}

TEST_F(FileListsTest, AFolderThatIsMissingIsAnError) {
  EXPECT_EQ(errorOf([&] { form.dlbPath.setPath("missing"); }), 76);
  EXPECT_EQ(errorOf([&] { form.dlbPath.setPath(""); }), 76);
  EXPECT_EQ(errorOf([&] { form.flbFile.setPath("b.txt"); }), 76);
  EXPECT_EQ(form.dlbPath.Path(), scratch.path().string());
}

TEST_F(FileListsTest, FilesAreThoseThatMatchThePattern) {
  const std::pair<const char*, Texts> patterns[] = {
      {"*.*", {"A.TXT", "b.txt", "c.pgx", "noext"}},
      {"*.txt", {"A.TXT", "b.txt"}},
      {"*.pgx ; *.TXT;*.txt", {"A.TXT", "b.txt", "c.pgx"}},
      {"?.txt", {"A.TXT", "b.txt"}},
      {"NOEXT", {"noext"}},
      {"missing", {}},
      {"", {}},
      {";;", {}},
      {"alpha/x.txt", {}},
      {"..", {}},
      {"*", {"A.TXT", "b.txt", "c.pgx", "noext"}},
  };
  for (const auto& [pattern, expected] : patterns) {
    form.flbFile.setPattern(pattern);
    EXPECT_EQ(form.flbFile.Pattern(), pattern);
    EXPECT_EQ(rows(form.flbFile), expected) << pattern;
  }
}

TEST_F(FileListsTest, AnotherPatternOrPathDropsThePickAndRaisesItsEvent) {
  userPicks(windows, form.flbFile, 1);
  EXPECT_EQ(form.flbFile.FileName(), "b.txt");
  EXPECT_EQ(raised(), Texts{"file Click"});
  form.flbFile.setPattern("*.txt");
  EXPECT_EQ(form.flbFile.FileName(), "");
  EXPECT_EQ(form.flbFile.ListIndex(), -1);
  form.flbFile.setPath("alpha");
  EXPECT_EQ(rows(form.flbFile), Texts{"x.txt"});
  EXPECT_EQ(raised(), (Texts{"pattern", "file path"}));
  form.flbFile.setPath("alpha");
  EXPECT_TRUE(raised().empty());
}

TEST_F(FileListsTest, AFileCanBePickedByItsName) {
  form.flbFile.setFileName("B.TXT");
  EXPECT_EQ(form.flbFile.ListIndex(), 1);
  EXPECT_EQ(raised(), Texts{"file Click"});
  EXPECT_EQ(errorOf([&] { form.flbFile.setFileName("missing.txt"); }), 53);
  form.flbFile.setFileName("");
  EXPECT_EQ(form.flbFile.FileName(), "");
}

TEST_F(FileListsTest, RefreshReadsTheFolderAgain) {
  scratch.write("new.txt", "x");
  form.flbFile.setPattern("*.txt");
  EXPECT_EQ(form.flbFile.ListCount(), 3);
  std::filesystem::remove(scratch.path() / "new.txt");
  form.flbFile.Refresh();
  EXPECT_EQ(form.flbFile.ListCount(), 2);
}

TEST_F(FileListsTest, TheDriveAtTheStartIsTheNearestThatHoldsTheCurrentFolder) {
  EXPECT_EQ(form.dlbDrive.Drive(), "/");
  const std::string near = scratch.path().parent_path().string();
  toolkit.found = {"/", near + "x", near, scratch.path().string() + "x"};
  form.dlbDrive.startAt(files);
  EXPECT_EQ(form.dlbDrive.Drive(), near);
  EXPECT_EQ(form.dlbDrive.ListIndex(), 2);
  EXPECT_TRUE(raised().empty());
}

TEST_F(FileListsTest, AnotherDriveRaisesChange) {
  toolkit.found = {"/", "/media/stick"};
  form.dlbDrive.startAt(files);
  userPicks(windows, form.dlbDrive, 1);
  EXPECT_EQ(form.dlbDrive.Drive(), "/media/stick");
  userPicks(windows, form.dlbDrive, 1);
  EXPECT_EQ(raised(), Texts{"drive"});
  form.dlbDrive.setDrive("/elsewhere");
  EXPECT_EQ(form.dlbDrive.Drive(), "/elsewhere");
  EXPECT_EQ(form.dlbDrive.ListIndex(), -1);
  EXPECT_EQ(raised(), Texts{"drive"});
}

TEST_F(FileListsTest, ListsAreEmptyWhenTheFormIsLoadedAnew) {
  form.flbFile.setPattern("*.txt");
  windows.Unload(form);
  windows.Load(form);
  EXPECT_EQ(form.flbFile.ListCount(), 0);
  EXPECT_EQ(form.flbFile.Pattern(), "*.*");
  EXPECT_EQ(form.dlbPath.Path(), "");
  EXPECT_EQ(form.dlbDrive.ListCount(), 0);
}

}  // namespace
}  // namespace pantrigo
