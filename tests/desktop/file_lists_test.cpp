#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/qt_toolkit.h"
#include "desktop/text_conversion.h"

namespace pantrigo {

namespace {

struct FileForm : Form {
  FileForm() : Form("frmFiles", "Files", 6000, 4200) { sealDesign(); }
  Frame fmeFiles{*this, "fmeFiles", "Select file:", {120, 60, 5760, 4000}};
  DriveList dlbDrive{fmeFiles, "dlbDrive", {120, 300, 2700, 315}};
  FolderList dlbPath{fmeFiles, "dlbPath", {120, 700, 2700, 3200}};
  FileList flbFile{fmeFiles, "flbFile", {2900, 300, 2700, 3600}};
};

/// A form with the three lists in a window, over a folder with a few files.
class FileListsWindowTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder.isValid());
    ASSERT_TRUE(QDir(folder.path()).mkpath("inner/deep"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("other"));
    for (const char* name : {"a.txt", "b.txt", "c.pgx"}) {
      QFile file(folder.filePath(name));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    toolkit.attach(windows);
    windows.Load(form);
    form.dlbDrive.startAt(files);
    form.dlbPath.startAt(files);
    form.flbFile.startAt(files);
    form.dlbPath.Change = [this] { form.flbFile.setPath(form.dlbPath.Path()); };
    form.flbFile.DblClick = [this] { chosen = form.flbFile.FileName(); };
    windows.Show(form);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(toolkit.view(form)));
  }
  void TearDown() override { toolkit.dropAllViews(); }

  template <class Widget>
  [[nodiscard]] Widget& widget(const Control& control) {
    return dynamic_cast<Widget&>(*toolkit.view(form)->widgetOf(control));
  }
  /// The middle of the row with that text.
  [[nodiscard]] QPoint place(const Control& control, const char* text) {
    auto& list = widget<QListWidget>(control);
    return list.visualItemRect(list.findItems(text, Qt::MatchExactly).front()).center();
  }
  void click(const Control& control, const char* text) {
    QTest::mouseClick(widget<QListWidget>(control).viewport(), Qt::LeftButton, {}, place(control, text));
  }
  void doubleClick(const Control& control, const char* text) {
    const QPoint point = place(control, text);
    QTest::mouseClick(widget<QListWidget>(control).viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(widget<QListWidget>(control).viewport(), Qt::LeftButton, {}, point);
  }

  QTemporaryDir folder;
  Files files{folder.path().toStdString()};
  QtToolkit toolkit;
  EventLoop loop{toolkit};
  Windows windows{loop};
  FileForm form;
  std::string chosen;
};

TEST_F(FileListsWindowTest, ShowsTheWayToTheFolderAndWhatIsInIt) {
  const auto& folders = widget<QListWidget>(form.dlbPath);
  EXPECT_EQ(folders.item(0)->text(), "/");
  EXPECT_EQ(folders.item(folders.count() - 3)->text(), QDir(folder.path()).dirName());
  EXPECT_EQ(folders.item(folders.count() - 2)->text(), "inner");
  EXPECT_EQ(folders.item(folders.count() - 1)->text(), "other");
  EXPECT_EQ(widget<QListWidget>(form.flbFile).count(), 3);
  EXPECT_EQ(widget<QComboBox>(form.dlbDrive).currentText(), "/");
  QDir().mkpath(PANTRIGO_PICTURE_FOLDER);
  EXPECT_TRUE(toolkit.view(form)->grab().save(PANTRIGO_PICTURE_FOLDER "/file_lists.png"));
}

TEST_F(FileListsWindowTest, AClickMarksAFolderAndADoubleClickEntersIt) {
  click(form.dlbPath, "inner");
  EXPECT_EQ(form.dlbPath.ListIndex(), 0);
  EXPECT_EQ(form.dlbPath.Path(), folder.path().toStdString());
  doubleClick(form.dlbPath, "inner");
  EXPECT_EQ(form.dlbPath.Path(), folder.filePath("inner").toStdString());
  EXPECT_EQ(widget<QListWidget>(form.flbFile).count(), 0);
  doubleClick(form.dlbPath, QDir(folder.path()).dirName().toUtf8());
  EXPECT_EQ(form.dlbPath.Path(), folder.path().toStdString());
  EXPECT_EQ(widget<QListWidget>(form.flbFile).count(), 3);
}

TEST_F(FileListsWindowTest, KeysMoveAndEnter) {
  click(form.dlbPath, "inner");
  auto& folders = widget<QListWidget>(form.dlbPath);
  QTest::keyClick(&folders, Qt::Key_Down);
  EXPECT_EQ(form.dlbPath.ListIndex(), 1);
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(form.dlbPath.Path(), folder.filePath("other").toStdString());
}

TEST_F(FileListsWindowTest, AFileIsPickedAndChosen) {
  click(form.flbFile, "b.txt");
  EXPECT_EQ(form.flbFile.FileName(), "b.txt");
  EXPECT_EQ(windows.active()->ActiveControl(), &form.flbFile);
  doubleClick(form.flbFile, "c.pgx");
  EXPECT_EQ(chosen, "c.pgx");
}

TEST_F(FileListsWindowTest, FocusPicksNothing) {
  widget<QListWidget>(form.flbFile).setFocus(Qt::TabFocusReason);
  EXPECT_EQ(windows.active()->ActiveControl(), &form.flbFile);
  EXPECT_EQ(form.flbFile.ListIndex(), -1);
  EXPECT_EQ(form.flbFile.FileName(), "");
}

TEST_F(FileListsWindowTest, ADriveThatIsNotListedIsShown) {
  form.dlbDrive.setDrive("/media/gone");
  EXPECT_EQ(widget<QComboBox>(form.dlbDrive).currentIndex(), -1);
  EXPECT_EQ(widget<QComboBox>(form.dlbDrive).placeholderText(), "/media/gone");
}

}  // namespace

}  // namespace pantrigo
