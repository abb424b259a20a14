#include "measures/show_ingredients.h"
#include "platform/store/database.h"
#include "support/scratch_folder.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

using Lines = std::vector<std::string>;

/// The options in a store of their own, with a second recordset on them.
class StoredOptions : public MeasuresTest {
 protected:
  StoredOptions() {
    Database::createStore(folder_.path() / "PANTRIGO.MDB");
    database_ = Database::OpenDatabase(folder_.path() / "PANTRIGO.MDB");
    run.GLOBAL.gSystem = database_.OpenRecordset("System");
    other_ = database_.OpenRecordset("System");
    change({{"Measurement", "m"}, {"PartialFractions", "1"}, {"Fractions", false}, {"Cup", 250}, {"Tablespoon", 3}});
  }
  ~StoredOptions() override { database_.Close(); }

  void change(const Options& options) {
    other_.Edit();
    for (const auto& [name, value] : options) other_.Set(name, value);
    other_.Update();
  }

 private:
  ScratchFolder folder_;
  Database database_;
  Recordset other_;
};

TEST_F(StoredOptions, AChangeThroughAnotherRecordsetShowsInTheVeryNextCall) {
  setRows({entered("1 1/4", "lb", "butter"), entered("1", "cup", "milk")});
  EXPECT_EQ(shown(), (Lines{"567 g butter", "1 cup milk"}));
  change({{"Fractions", true}, {"PartialFractions", "4"}});
  EXPECT_EQ(shown(), (Lines{"567 g butter", "1 cup milk"}));
  change({{"Measurement", "u"}, {"Cup", 8}});
  EXPECT_EQ(shown(), (Lines{"1 1/4 lb butter", "1 cup milk"}));
  change({{"PartialFractions", "1"}});
  EXPECT_EQ(shown(), (Lines{"1 3/10 lb butter", "1 cup milk"}));
  change({{"Fractions", false}});
  EXPECT_EQ(shown(), (Lines{"1.3 lb butter", "1 cup milk"}));
  change({{"Measurement", "m"}, {"Cup", 125}, {"Centigrams", true}});
  EXPECT_EQ(shown(), (Lines{"567 g butter", "1 cup milk"}));
}

}  // namespace
}  // namespace pantrigo
