#include "support/store_access.h"

#include <array>
#include <fstream>
#include <string_view>

#include "core/start_up.h"
#include "newstore/make_store.h"
#include "platform/files/files.h"
#include "support/case_folder.h"

namespace pantrigo {

namespace {

constexpr std::array<std::string_view, 3> sideFileEndings{"-wal", "-shm", "-journal"};

}  // namespace

StoreTemplate::StoreTemplate() {
  const CaseFolder folder;
  NewStore task;
  task.store = folder.path() / storeName;
  task.unitWords = std::filesystem::path(PANTRIGO_DATA_FOLDER) / "units.txt";
  makeStore(task);
  bytes_ = Files(folder.path()).readBytes(storeName);
}

void StoreTemplate::copyTo(const std::filesystem::path& file) const {
  for (const std::string_view ending : sideFileEndings) std::filesystem::remove(file.string() + std::string(ending));
  std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes_;
}

Database& IdleStore::database() {
  if (!database_) {
    database_ = Database::OpenDatabase(file_);
    // A case's folder doesn't outlive the case: nothing here has to survive a loss of power.
    database_->setDurability(Database::Durability::AtCheckpoint);
  }
  return *database_;
}

void IdleStore::release() {
  if (database_) database_->Close();
  database_.reset();
}

void changeSystem(const Database& database, const RawRow& changes) {
  // Every field of the one row names it.
  constexpr std::string_view anyField = "RecipeId";
  const Value held = rawRows(database, "System").at(0).at(std::string(anyField));
  changeRawRows(database, "System", anyField, held, changes);
}

bool isSideFile(const std::string& name) {
  for (const std::string_view ending : sideFileEndings) {
    if (name == std::string(storeName) + std::string(ending)) return true;
  }
  return false;
}

}  // namespace pantrigo
