#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace pantrigo {

class Files;

/// A list of names of which at most one is picked: what the lists of drives, folders and files share. Picking a row by
/// code raises `Click` when it differs.
class NameList : public Control {
 public:
  [[nodiscard]] int ListCount() const { return static_cast<int>(rows_.size()); }
  /// The text of a row, empty out of range.
  [[nodiscard]] virtual std::string List(int row) const;
  /// The number of the first row, and that of the row behind the last.
  [[nodiscard]] virtual int firstRow() const { return 0; }
  [[nodiscard]] int endRow() const { return ListCount(); }
  /// The picked row, -1 for none.
  [[nodiscard]] int ListIndex() const { return listIndex_; }
  /// A row out of range counts as -1.
  virtual void setListIndex(int row);

  [[nodiscard]] bool takesFocus() const override { return true; }
  void reset() override;

 protected:
  using Control::Control;
  [[nodiscard]] const std::vector<std::string>& rows() const { return rows_; }
  /// Takes other rows; none is picked then.
  void fill(std::vector<std::string> rows);
  /// Picks a row without an event.
  void mark(int row);

 private:
  std::vector<std::string> rows_;
  int listIndex_ = -1;
};

/// The drives to choose from: the root and the mounted volumes, each by the folder where it is mounted. A drive set by
/// code or picked raises `Change` when it differs; it need not be in the list.
class DriveList : public NameList {
 public:
  DriveList(Holder holder, std::string_view name, Box box);

  /// Lists the drives as they are now, and picks the one that holds the current folder, without an event. To be called
  /// when the form is loaded.
  void startAt(const Files& files);

  [[nodiscard]] const std::string& Drive() const { return drive_; }
  void setDrive(std::string_view drive);
  void setListIndex(int row) override;
  void reset() override;

  Event<> Change;

 private:
  std::string drive_;
};

/// The folders inside a folder. Rows count from 0; -1 is the folder itself, -2 the one that holds it, and so on up to
/// the root. `List` gives whole paths. Hidden folders are left out.
class FolderList : public NameList {
 public:
  FolderList(Holder holder, std::string_view name, Box box);

  /// Shows the current folder, without an event. To be called when the form is loaded; the files are those that later
  /// paths are resolved against, and must outlive the control.
  void startAt(const Files& files);

  /// The folder, without a separator at its end but for the root.
  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Goes to a folder; raises `Change` when it is another one. Error 76 when there is no such folder.
  void setPath(std::string_view path);
  /// Goes to the folder of a row, as a double click does; nothing when it is gone by now.
  void enter(int row);

  [[nodiscard]] std::string List(int row) const override;
  /// The name of a row's folder alone; that of the root is a separator.
  [[nodiscard]] std::string name(int row) const;
  [[nodiscard]] int firstRow() const override;
  void setListIndex(int row) override;
  void reset() override;

  Event<> Change;

 private:
  void show(std::string path);

  const Files* files_ = nullptr;
  std::string path_;
};

/// The plain files of a folder whose names match a pattern, sorted by name. A pattern is one mask or several with ";"
/// between them; any text will do, and one that is no mask takes the file of that name. Hidden files are left out.
class FileList : public NameList {
 public:
  FileList(Holder holder, std::string_view name, Box box);

  /// Lists the current folder, without an event. To be called when the form is loaded, as with a list of folders.
  void startAt(const Files& files);

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Lists another folder. Error 76 when there is no such folder.
  void setPath(std::string_view path);
  [[nodiscard]] const std::string& Pattern() const { return pattern_; }
  void setPattern(std::string_view pattern);
  /// The name of the picked file, without a folder; empty for none.
  [[nodiscard]] std::string FileName() const { return List(ListIndex()); }
  /// Picks the file of that name, without regard to case; the empty name picks none. Error 53 when it isn't listed.
  void setFileName(std::string_view name);
  /// Reads the folder again.
  void Refresh();
  void reset() override;

  Event<> PathChange;
  Event<> PatternChange;

 private:
  const Files* files_ = nullptr;
  std::string path_;
  std::string pattern_;
};

}  // namespace pantrigo
