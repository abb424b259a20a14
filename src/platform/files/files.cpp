#include "platform/files/files.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace fs = std::filesystem;

namespace {

std::string withSlashes(std::string_view name) {
  std::string path(name);
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

/// Whether a name matches a mask of "*" and "?", both in small letters.
bool matches(std::u32string_view name, std::u32string_view mask) {
  std::size_t namePlace = 0;
  std::size_t maskPlace = 0;
  std::size_t star = std::u32string_view::npos;
  std::size_t starName = 0;
  while (namePlace < name.size()) {
    if (maskPlace < mask.size() && mask[maskPlace] == U'*') {
      star = maskPlace++;
      starName = namePlace;
    } else if (maskPlace < mask.size() && (mask[maskPlace] == U'?' || mask[maskPlace] == name[namePlace])) {
      ++maskPlace;
      ++namePlace;
    } else if (star != std::u32string_view::npos) {
      maskPlace = star + 1;
      namePlace = ++starName;
    } else {
      return false;
    }
  }
  return std::all_of(mask.begin() + static_cast<std::ptrdiff_t>(maskPlace), mask.end(),
                     [](char32_t rest) { return rest == U'*'; });
}

/// The entry of the folder with that name without regard to case, the least by code where there are several; an empty
/// path when there is none.
fs::path entryWithoutCase(const fs::path& folder, const std::string& name) {
  const std::string sought = LCase(name);
  fs::path found;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
    const fs::path candidate = entry->path().filename();
    if (LCase(candidate.string()) == sought && (found.empty() || candidate < found)) found = candidate;
  }
  return found;
}

/// Whether the user may write to the file: one marked as read-only is not removed, although its folder would allow it.
bool isWritable(const fs::path& file) {
  std::error_code failed;
  const fs::perms rights = fs::status(file, failed).permissions();
  return !failed && (rights & fs::perms::owner_write) != fs::perms::none;
}

/// The plain files of a folder that are not hidden; none when there is no such folder.
std::vector<std::string> plainFiles(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
    const std::string name = entry->path().filename().string();
    std::error_code ignored;
    if (!name.starts_with('.') && entry->is_regular_file(ignored)) names.push_back(name);
  }
  return names;
}

}  // namespace

Files::Files(fs::path currentFolder) : current_(fs::absolute(currentFolder)) {}

std::string Files::join(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && path.back() != '/' && path.back() != '\\') path += '/';
  return path + std::string(name);
}

void Files::changeFolder(std::string_view folder) {
  const fs::path path = resolve(folder);
  std::error_code failed;
  if (!fs::is_directory(path, failed)) throw RuntimeError(76);
  // A name that ended in a separator leaves an empty last part behind.
  current_ = path.has_filename() ? path : path.parent_path();
}

fs::path Files::resolve(std::string_view name) const {
  const fs::path path = (current_ / withSlashes(name)).lexically_normal();
  std::error_code failed;
  if (fs::exists(path, failed)) return path;
  fs::path found = path.root_path();
  for (const fs::path& part : path.relative_path()) {
    const bool exact = part.empty() || fs::exists(found / part, failed);
    const fs::path entry = exact ? part : entryWithoutCase(found, part.string());
    found /= !exact && entry.empty() ? part : entry;
  }
  return found;
}

std::vector<std::string> Files::matching(std::string_view mask) const {
  const fs::path path = withSlashes(mask);
  const std::string written = path.filename().string();
  if (written.find_first_of("*?") == std::string::npos) {
    const fs::path file = resolve(mask);
    std::error_code failed;
    if (written.empty() || file.filename().string().starts_with('.') || !fs::is_regular_file(file, failed)) return {};
    return {file.filename().string()};
  }
  const std::u32string nameMask = decodeUtf8(written == "*.*" ? "*" : LCase(written));
  std::vector<std::string> names = plainFiles(resolve(path.parent_path().string()));
  std::erase_if(names, [&](const std::string& name) { return !matches(decodeUtf8(LCase(name)), nameMask); });
  std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
    const std::string leftName = LCase(left);
    const std::string rightName = LCase(right);
    return leftName != rightName ? leftName < rightName : left < right;
  });
  return names;
}

std::string Files::Dir(std::string_view mask) const {
  const fs::path path = current_ / withSlashes(mask);
  std::error_code failed;
  if (mask.find_first_of("*?") == std::string_view::npos && fs::is_regular_file(path, failed))
    return path.filename().string();
  const std::vector<std::string> names = matching(mask);
  return names.empty() ? std::string() : names.front();
}

void Files::Kill(std::string_view mask) const {
  const std::vector<std::string> names = matching(mask);
  if (names.empty()) throw RuntimeError(53);
  const fs::path folder = resolve(fs::path(withSlashes(mask)).parent_path().string());
  for (const std::string& name : names) {
    std::error_code failed;
    if (!isWritable(folder / name) || !fs::remove(folder / name, failed)) throw RuntimeError(75);
  }
}

void Files::FileCopy(std::string_view source, std::string_view target) const {
  const fs::path from = resolve(source);
  const fs::path to = resolve(target);
  std::error_code failed;
  if (!fs::exists(from, failed)) throw RuntimeError(fs::is_directory(from.parent_path(), failed) ? 53 : 76);
  if (!fs::is_directory(to.parent_path(), failed)) throw RuntimeError(76);
  if (!fs::copy_file(from, to, fs::copy_options::overwrite_existing, failed)) throw RuntimeError(75);
  // The copy of a file from a read-only medium is the user's own and may be removed again.
  fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, failed);
}

std::string Files::readBytes(std::string_view name) const {
  const fs::path path = resolve(name);
  std::error_code failed;
  if (!fs::exists(path, failed)) throw RuntimeError(fs::is_directory(path.parent_path(), failed) ? 53 : 76);
  if (!fs::is_regular_file(path, failed)) throw RuntimeError(75);
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw RuntimeError(75);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace pantrigo
