#include "platform/controls/file_controls.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

#include "platform/controls/toolkit.h"
#include "platform/files/files.h"
#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace fs = std::filesystem;

namespace {

constexpr int fileNotFound = 53;
constexpr int pathNotFound = 76;
constexpr std::string_view everyFile = "*.*";

/// Order of names in a folder: without regard to case, then by code.
struct ByName {
  bool operator()(const std::string& left, const std::string& right) const {
    const std::string leftName = LCase(left);
    const std::string rightName = LCase(right);
    return leftName != rightName ? leftName < rightName : left < right;
  }
};

/// The path of a folder that is there, without a separator at its end. Error 76 when it is not.
std::string folderPath(const Files& files, std::string_view name) {
  fs::path path = files.resolve(name);
  std::error_code failed;
  if (name.empty() || !fs::is_directory(path, failed)) throw RuntimeError(pathNotFound);
  if (!path.has_filename() && path.has_relative_path()) path = path.parent_path();
  return path.string();
}

std::vector<std::string> foldersIn(const std::string& path) {
  std::vector<std::string> names;
  std::error_code failed;
  for (fs::directory_iterator entry(path, failed), end; !failed && entry != end; entry.increment(failed)) {
    std::string name = entry->path().filename().string();
    std::error_code ignored;
    if (!name.starts_with('.') && entry->is_directory(ignored)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(), ByName());
  return names;
}

/// Whether a folder is the other one or lies in it.
bool holds(const std::string& outer, const fs::path& inner) {
  const fs::path path = outer;
  return std::mismatch(path.begin(), path.end(), inner.begin(), inner.end()).first == path.end();
}

/// The masks of a pattern, without the blanks around them.
std::vector<std::string> masksOf(std::string_view pattern) {
  std::vector<std::string> masks;
  while (!pattern.empty()) {
    const std::size_t end = std::min(pattern.find(';'), pattern.size());
    masks.push_back(Trim(pattern.substr(0, end)));
    pattern.remove_prefix(std::min(end + 1, pattern.size()));
  }
  return masks;
}

}  // namespace

std::string NameList::List(int row) const {
  return row >= 0 && row < ListCount() ? rows_[static_cast<std::size_t>(row)] : std::string();
}

void NameList::setListIndex(int row) {
  const int before = listIndex_;
  mark(row >= firstRow() && row < endRow() ? row : -1);
  if (listIndex_ != before && listIndex_ >= 0) Click();
}

void NameList::fill(std::vector<std::string> rows) {
  rows_ = std::move(rows);
  listIndex_ = -1;
  changed(Aspect::Rows);
}

void NameList::mark(int row) {
  listIndex_ = row;
  changed(Aspect::Selection);
}

void NameList::reset() {
  Control::reset();
  rows_.clear();
  listIndex_ = -1;
}

DriveList::DriveList(Holder holder, std::string_view name, Box box)
    : NameList(holder, ControlKind::DriveList, name, box) {}

void DriveList::startAt(const Files& files) {
  const Toolkit* system = toolkit();
  fill(system == nullptr ? std::vector<std::string>{} : system->drives());
  int nearest = -1;
  for (int row = 0; row < ListCount(); ++row) {
    if (holds(List(row), files.currentFolder()) && List(row).size() > List(nearest).size()) nearest = row;
  }
  drive_ = List(nearest);
  mark(nearest);
}

void DriveList::setDrive(std::string_view drive) {
  if (drive == drive_) return;
  drive_ = drive;
  const auto row = std::find(rows().begin(), rows().end(), drive_);
  mark(row == rows().end() ? -1 : static_cast<int>(row - rows().begin()));
  Change();
}

void DriveList::setListIndex(int row) {
  if (row >= 0 && row < ListCount()) setDrive(List(row));
}

void DriveList::reset() {
  NameList::reset();
  drive_.clear();
}

FolderList::FolderList(Holder holder, std::string_view name, Box box)
    : NameList(holder, ControlKind::FolderList, name, box) {}

void FolderList::startAt(const Files& files) {
  files_ = &files;
  show(folderPath(files, files.currentFolder().string()));
}

void FolderList::show(std::string path) {
  path_ = std::move(path);
  fill(foldersIn(path_));
}

void FolderList::setPath(std::string_view path) {
  if (files_ == nullptr) throw RuntimeError(pathNotFound);
  std::string found = folderPath(*files_, path);
  if (found == path_) return;
  show(std::move(found));
  Change();
}

void FolderList::enter(int row) {
  std::error_code failed;
  if (row >= firstRow() && row < endRow() && fs::is_directory(List(row), failed)) setPath(List(row));
}

std::string FolderList::List(int row) const {
  if (row >= 0) return row < ListCount() ? Files::join(path_, NameList::List(row)) : std::string();
  if (row < firstRow()) return {};
  fs::path path = path_;
  for (int up = row; up < -1; ++up) path = path.parent_path();
  return path.string();
}

std::string FolderList::name(int row) const {
  const fs::path path = List(row);
  return (path.has_filename() ? path.filename() : path).string();
}

int FolderList::firstRow() const {
  const fs::path path = path_;
  return -static_cast<int>(std::distance(path.begin(), path.end()));
}

void FolderList::setListIndex(int row) {
  const int before = ListIndex();
  mark(row >= firstRow() && row < endRow() ? row : -1);
  if (ListIndex() != before) Click();
}

void FolderList::reset() {
  NameList::reset();
  path_.clear();
}

FileList::FileList(Holder holder, std::string_view name, Box box)
    : NameList(holder, ControlKind::FileList, name, box), pattern_(everyFile) {}

void FileList::startAt(const Files& files) {
  files_ = &files;
  path_ = folderPath(files, files.currentFolder().string());
  Refresh();
}

void FileList::setPath(std::string_view path) {
  if (files_ == nullptr) throw RuntimeError(pathNotFound);
  std::string found = folderPath(*files_, path);
  const bool another = found != path_;
  path_ = std::move(found);
  Refresh();
  if (another) PathChange();
}

void FileList::setPattern(std::string_view pattern) {
  const bool another = pattern != pattern_;
  pattern_ = pattern;
  Refresh();
  if (another) PatternChange();
}

void FileList::setFileName(std::string_view name) {
  const auto row = std::find_if(rows().begin(), rows().end(),
                                [&](const std::string& listed) { return LCase(listed) == LCase(name); });
  if (row == rows().end() && !name.empty()) throw RuntimeError(fileNotFound);
  setListIndex(row == rows().end() ? -1 : static_cast<int>(row - rows().begin()));
}

void FileList::Refresh() {
  std::set<std::string, ByName> names;
  for (const std::string& mask : masksOf(pattern_)) {
    const bool inAnotherFolder = mask.find_first_of("/\\") != std::string::npos;
    if (files_ == nullptr || mask.empty() || inAnotherFolder) continue;
    for (std::string& name : files_->matching(Files::join(path_, mask))) names.insert(std::move(name));
  }
  fill({names.begin(), names.end()});
}

void FileList::reset() {
  NameList::reset();
  path_.clear();
  pattern_ = everyFile;
}

}  // namespace pantrigo
