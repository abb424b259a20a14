#include "unit/store/store_fixture.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace pantrigo {

namespace fs = std::filesystem;

FileSizeLimit::FileSizeLimit(std::uintmax_t bytes) : handlerBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
  getrlimit(RLIMIT_FSIZE, &before_);
  rlimit limit = before_;
  limit.rlim_cur = bytes;
  setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit() {
  setrlimit(RLIMIT_FSIZE, &before_);
  std::signal(SIGXFSZ, handlerBefore_);
}

FolderTest::FolderTest() {
  std::string name = (fs::temp_directory_path() / "store-test-XXXXXX").string();
  folder_ = mkdtemp(name.data());
}

FolderTest::~FolderTest() {
  std::error_code failure;
  fs::permissions(folder_, fs::perms::owner_all, failure);
  fs::remove_all(folder_, failure);
}

std::vector<std::string> FolderTest::fileNames() const {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename());
  std::ranges::sort(names);
  return names;
}

void FolderTest::writeFile(const fs::path& path, const std::string& bytes) const {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string FolderTest::readFile(const fs::path& path) const {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

StoreTest::StoreTest() {
  Database::createStore(file());
  database = Database::OpenDatabase(file());
}

void StoreTest::reopen() {
  database.Close();
  database = Database::OpenDatabase(file());
}

void StoreTest::addRecipe(long id, const Value& title, bool meal) const {
  addRawRow(database, "Recipe", {{"RecipeId", id}, {"Title", title}, {"Meal", meal}});
}

std::vector<std::string> StoreTest::rest(Recordset& cursor, std::string_view field) {
  std::vector<std::string> texts;
  for (; !cursor.Eof(); cursor.MoveNext()) {
    const Value& value = cursor.Field(field);
    texts.push_back(value.isNull() ? "Null" : value.text());
  }
  return texts;
}

std::vector<std::string> StoreTest::queried(std::string_view sql, std::string_view field) {
  Recordset result = database.OpenRecordset(sql);
  return rest(result, field);
}

}  // namespace pantrigo
