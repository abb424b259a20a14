#include "detail_fixture.h"

#include "core/start_up.h"
#include "newstore/make_store.h"
#include "platform/store/store_state.h"

namespace pantrigo {

std::filesystem::path DetailTest::file() const {
  return folder() / storeName;
}

void DetailTest::makeCookbook() {
  makeStore({file(), {}, {}});
  Database database = Database::OpenDatabase(file());
  addRawRow(database, "Health", {{"HealthId", 1}, {"Description", "Low salt"}});
  addRawRow(database, "Health", {{"HealthId", 2}, {"Description", "Vegetarian"}});
  addRawRow(database, "Recipe",
            {{"RecipeId", 1}, {"Title", "Apple Pie"}, {"Method", "Bake."}, {"Comment", "Good."}, {"Serves", 4}});
  addRawRow(database, "RecipeHealth", {{"RecipeId", 1}, {"HealthId", 1}});
  database.Close();
}

void DetailTest::start() {
  close();
  program_ = std::make_unique<Program>(toolkit_, folder());
  program_->start();
}

void DetailTest::show(std::string_view title) {
  run().loop.dispatch([&] {
    run().GLOBAL.gSelectedTitle = title;
    run().GLOBAL.gKeepDetailOnActivate = false;
    run().windows.Hide(form());
    run().windows.Show(form());
  });
}

void DetailTest::close() {
  if (program_ == nullptr) return;
  program_->run().loop.dispatch([&] { program_->run().loop.End(); });
  program_.reset();
}

void DetailTest::press(MenuEntry& entry) {
  run().loop.dispatch([&] { entry.Click(); });
}

int DetailTest::error() {
  const auto& error = run().loop.error();
  return error.has_value() ? error->number() : 0;
}

void DetailTest::fillDisk() {
  Connection& connection = StoreAccess::state(run().GLOBAL.gDatabase).connection();
  const std::string pages = connection.single("PRAGMA page_count");
  static_cast<void>(connection.single(("PRAGMA max_page_count=" + pages).c_str()));
}

std::string DetailTest::soundness() const {
  Database database = Database::OpenDatabase(file());
  const std::string answer = StoreAccess::state(database).connection().single("PRAGMA integrity_check");
  database.Close();
  return answer;
}

std::vector<RawRow> DetailTest::rows(std::string_view table) const {
  Database database = Database::OpenDatabase(file());
  std::vector<RawRow> found = rawRows(database, table);
  database.Close();
  return found;
}

}  // namespace pantrigo
