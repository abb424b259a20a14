#include <gtest/gtest.h>

#include "program/program.h"
#include "support/quiet_toolkit.h"
#include "support/scratch_folder.h"
#include "unit/listing/naive_listing.h"

namespace pantrigo {
namespace {

/// Names of the filters' controls, in the order of the model's kinds and fields.
constexpr std::array<std::string_view, singleKinds.size()> combos{"cmbNationality", "cmbCourse", "cmbCooking",
                                                                  "cmbEase"};
constexpr std::array<std::string_view, listKinds.size()> lists{"lstHealth", "lstOther"};

int upTo(Random& random, int most) {
  return std::uniform_int_distribution<int>(0, most)(random);
}

/// A few characters of a word, whole ones.
std::string pieceOf(const std::string& word, std::size_t from) {
  constexpr std::size_t bytes = 4;
  const auto inside = [&](std::size_t place) { return place < word.size() && (word[place] & 0xC0) == 0x80; };
  while (inside(from)) ++from;
  std::size_t end = std::min(from + bytes, word.size());
  while (inside(end)) ++end;
  return word.substr(from, end - from);
}

/// A text for a box: a word, a piece of one, or a pattern.
std::string anyPattern(Random& random) {
  static constexpr std::array<std::string_view, 18> patterns{"p?e", "a*e", "[a-c]_",  "[!a-p]ie", "##", "[]x",
                                                             "*",   "]",   "%",       "'",        " ",  "!",
                                                             "-",   "σ",   "STRASSE", "ß",        "k",  "S"};
  if (upTo(random, 2) == 0) return std::string(patterns[static_cast<std::size_t>(upTo(random, patterns.size() - 1))]);
  const std::string word = anyWord(random);
  // Half a bracket is no pattern.
  return word.front() == '[' ? word : pieceOf(word, static_cast<std::size_t>(upTo(random, 2)));
}

std::string anyLimit(Random& random) {
  static constexpr std::array<std::string_view, 16> limits{"0",  "1",  "4",  "5.",   ".5", "-4",  "+5",    "1e1",
                                                           "13", "30", "60", "12.6", ".4", " 5 ", "99999", "1E7"};
  return std::string(limits[static_cast<std::size_t>(upTo(random, limits.size() - 1))]);
}

std::string anyCategoryText(Random& random) {
  static constexpr std::array<std::string_view, 6> typed{"CRÈME", "creme", "dinner  ", "CHEF'S", "none", " "};
  if (upTo(random, 2) == 0) return std::string(typed[static_cast<std::size_t>(upTo(random, typed.size() - 1))]);
  return std::string(categories[static_cast<std::size_t>(upTo(random, categories.size() - 1))]);
}

void setOne(Random& random, FilterRecord& filters) {
  const auto kind = static_cast<std::size_t>(upTo(random, singleKinds.size() - 1));
  const auto list = static_cast<std::size_t>(upTo(random, listKinds.size() - 1));
  const auto field = static_cast<std::size_t>(upTo(random, numberFields.size() - 1));
  switch (upTo(random, 9)) {
    case 0:
      filters.title = anyPattern(random);
      break;
    case 1:
      filters.ingredient = anyPattern(random);
      break;
    case 2:
      filters.source = anyPattern(random);
      break;
    case 3:
      filters.comments = anyPattern(random);
      break;
    case 4:
      filters.method = anyPattern(random);
      break;
    case 5:
      filters.mealOnly = true;
      break;
    case 6:
      filters.category[kind] = anyCategoryText(random);
      break;
    case 7:
    case 8:
      filters.selected[list].insert(upTo(random, categories.size() - 1));
      break;
    default:
      filters.limits[field] = anyLimit(random);
      filters.atLeast[field] = upTo(random, 1) == 1;
  }
}

FilterRecord anyFilters(Random& random) {
  FilterRecord filters;
  for (int count = upTo(random, 4); count > 0; --count) setOne(random, filters);
  return filters;
}

class Cookbook {
 public:
  explicit Cookbook(Random& random) : model_(makeModel(random, 120)) {
    writeModel(model_, folder_.path());
    program_.emplace(toolkit_, folder_.path());
    program_->start();
  }

  /// Sets the controls as the record says and has the list built; gives the titles listed.
  std::vector<std::string> list(const FilterRecord& filters) {
    act([&] { form().mnuClear.Click(); });
    act([&] { set(filters); });
    act([&] { form().mnuFilter.Click(); });
    std::vector<std::string> titles;
    for (int row = 0; row < form().lstTitles.ListCount(); ++row) titles.push_back(form().lstTitles.List(row));
    return titles;
  }

  void setKilojoules(bool kilojoules) {
    Recordset& system = program_->run().GLOBAL.gSystem;
    system.Edit();
    system.Set("Kilojoules", kilojoules);
    system.Update();
  }

  [[nodiscard]] const std::vector<ModelRecipe>& model() const { return model_; }
  [[nodiscard]] FrmBrowse& form() { return program_->run().frmBrowse; }
  [[nodiscard]] bool ended() { return program_->ended(); }
  [[nodiscard]] std::string sqlText() { return program_->run().GLOBAL.gSqlText; }

 private:
  void act(const std::function<void()>& action) { program_->run().loop.dispatch(action); }

  template <class Kind>
  Kind& control(std::string_view name) {
    return static_cast<Kind&>(*form().control(name));
  }

  /// The tick goes first: it clears the other filters.
  void set(const FilterRecord& filters) {
    form().chkMeal.setValue(filters.mealOnly);
    control<TextBox>("txtTitle").setText(filters.title);
    control<TextBox>("txtIngredient").setText(filters.ingredient);
    control<TextBox>("txtSource").setText(filters.source);
    control<TextBox>("txtComments").setText(filters.comments);
    control<TextBox>("txtMethod").setText(filters.method);
    for (std::size_t kind = 0; kind < combos.size(); ++kind) {
      control<ComboBox>(combos[kind]).setText(filters.category[kind]);
    }
    for (std::size_t kind = 0; kind < lists.size(); ++kind) {
      for (const int row : filters.selected[kind]) control<ListBox>(lists[kind]).setSelected(row, true);
    }
    for (std::size_t field = 0; field < numberFields.size(); ++field) {
      const std::string name(numberFields[field]);
      const std::string signName = field == 0 ? "lblPrepareSign" : field == 1 ? "lblCookSign" : "lbl" + name + "Sign";
      control<TextBox>("txt" + name).setText(filters.limits[field]);
      control<Label>(signName).setCaption(filters.atLeast[field] ? ">=" : "<=");
    }
  }

  ScratchFolder folder_;
  QuietToolkit toolkit_;
  std::vector<ModelRecipe> model_;
  std::optional<Program> program_;
};

TEST(Listing, RandomFiltersListWhatALookAtEveryRecipeFinds) {
  constexpr int cookbooks = 5;
  constexpr int records = 1100;
  Random random(20011);
  int nonEmpty = 0;
  for (int book = 0; book < cookbooks; ++book) {
    Cookbook cookbook(random);
    const bool kilojoules = book % 2 == 0;
    cookbook.setKilojoules(kilojoules);
    for (int record = 0; record < records; ++record) {
      const FilterRecord filters = anyFilters(random);
      const std::vector<std::string> expected = naiveTitles(cookbook.model(), filters, kilojoules);
      ASSERT_EQ(cookbook.list(filters), expected)
          << "cookbook " << book << ", record " << record << ": " << cookbook.sqlText();
      ASSERT_FALSE(cookbook.ended());
      ASSERT_EQ(cookbook.form().fmeList.Caption(), std::to_string(expected.size()) + " recipe(s) displayed");
      nonEmpty += expected.empty() ? 0 : 1;
    }
  }
  EXPECT_GT(nonEmpty, cookbooks * records / 4);
}

/// Keeps what the main window showed the first time that it asked to be painted.
class FirstPaint : public FormListener {
 public:
  explicit FirstPaint(FrmBrowse& form) : form_(form) { form_.setListener(this); }
  ~FirstPaint() override { form_.setListener(nullptr); }
  FirstPaint(const FirstPaint&) = delete;
  FirstPaint& operator=(const FirstPaint&) = delete;

  void controlChanged(Control&, Aspect) override {}
  void formChanged(Aspect) override {}
  void focusChanged() override {}
  void refresh() override {
    if (++paints > 1) return;
    caption = form_.fmeList.Caption();
    rows = form_.lstTitles.ListCount();
    pointer = form_.MousePointer();
    busy = form_.mbBusy;
  }

  int paints = 0;
  std::string caption;
  int rows = -1;
  int pointer = -1;
  bool busy = true;

 private:
  FrmBrowse& form_;
};

TEST(Listing, TheEmptiedListAsksToWaitBeforeItIsFilled) {
  Random random(20011);
  Cookbook cookbook(random);
  const FirstPaint first(cookbook.form());
  ASSERT_FALSE(cookbook.list({}).empty());
  ASSERT_GE(first.paints, 1);
  EXPECT_EQ(first.caption, "Please wait, list being built");
  EXPECT_EQ(first.rows, 0);
  EXPECT_EQ(first.pointer, pointerHourglass);
  EXPECT_FALSE(first.busy);
}

}  // namespace
}  // namespace pantrigo
