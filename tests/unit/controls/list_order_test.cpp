#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/text/collation.h"

namespace pantrigo {
namespace {

struct ListForm : Form {
  ListForm() : Form("frmLists", "", 100, 100) { sealDesign(); }
  ListBox lstTitles{*this, "lstTitles", {}};
  ListBox lstMarks{*this, "lstMarks", {}, Selection::Multiple};
};

/// A list that puts each row to its place at once.
class PlainList {
 public:
  void AddItem(const std::string& text) {
    std::size_t place = rows.size();
    if (sorted) {
      place = 0;
      while (place < rows.size() && collate(text, rows[place].text) >= 0) ++place;
    }
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(place), ListRow{text, {}, false});
    if (listIndex >= 0 && static_cast<int>(place) <= listIndex) ++listIndex;
  }
  void RemoveItem(int row) {
    if (!holds(row)) return;
    rows.erase(rows.begin() + row);
    if (!holds(listIndex)) listIndex = -1;
  }
  void Clear() {
    rows.clear();
    listIndex = -1;
  }
  void setListIndex(int row) { listIndex = holds(row) ? row : -1; }
  void setForeColor(int row, int colour) {
    if (holds(row)) rows[static_cast<std::size_t>(row)].colours.foreColor = static_cast<std::uint8_t>(colour);
  }
  void setColours(int row, RowColours colours) {
    if (holds(row)) rows[static_cast<std::size_t>(row)].colours = colours;
  }
  void setSelected(int row, bool selected) {
    if (holds(row)) rows[static_cast<std::size_t>(row)].selected = selected;
  }
  [[nodiscard]] bool holds(int row) const { return row >= 0 && row < static_cast<int>(rows.size()); }

  std::vector<ListRow> rows;
  int listIndex = -1;
  bool sorted = false;
};

/// Does the same to a list and to the plain one, at random, and compares what can be asked for in between.
class ListOrder : public testing::TestWithParam<unsigned> {
 protected:
  [[nodiscard]] int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
  [[nodiscard]] int anyRow() { return number(-1, static_cast<int>(plain.rows.size())); }
  [[nodiscard]] std::string anyText() {
    static const std::string letters[] = {"a", "A", "b", "é", " ", "-", "c", "ß"};
    std::string text;
    for (int i = number(0, 3); i > 0; --i) text += letters[number(0, 7)];
    return text;
  }

  /// What a list is built by: the row at the number of rows before gets a colour.
  void addAndColour() {
    const int before = list().ListCount();
    const std::string text = anyText();
    const int colour = number(0, 15);
    list().AddItem(text);
    list().setRow(before);
    list().setForeColor(list().Row(), colour);
    plain.AddItem(text);
    plain.setForeColor(before, colour);
  }

  void change() {
    const int row = anyRow();
    switch (number(0, 15)) {
      case 0:
        list().RemoveItem(row);
        plain.RemoveItem(row);
        break;
      case 1:
        list().setListIndex(row);
        plain.setListIndex(row);
        break;
      case 2: {
        const RowColours colours{static_cast<std::uint8_t>(number(0, 15)), 2, 3};
        list().setColours(row, colours);
        plain.setColours(row, colours);
        break;
      }
      case 3:
        list().setForeColor(row, 6);
        plain.setForeColor(row, 6);
        break;
      case 4:
        list().setSelected(row, true);
        plain.setSelected(row, true);
        break;
      case 5:
        if (number(0, 9) > 0) break;
        list().setSorted(plain.sorted ? 0 : 1);
        plain.sorted = !plain.sorted;
        break;
      case 6:
        if (number(0, 19) > 0) break;
        list().Clear();
        plain.Clear();
        break;
      case 7:
        list().AddItem("m");
        plain.AddItem("m");
        break;
      default:
        addAndColour();
    }
  }

  void compareOne() {
    const int row = anyRow();
    const bool there = plain.holds(row);
    const ListRow expected = there ? plain.rows[static_cast<std::size_t>(row)] : ListRow{};
    switch (number(0, 6)) {
      case 0:
        ASSERT_EQ(list().List(row), expected.text);
        break;
      case 1:
        ASSERT_EQ(list().Colours(row), expected.colours);
        break;
      case 2:
        ASSERT_EQ(list().ListIndex(), plain.listIndex);
        break;
      case 3:
        ASSERT_EQ(list().ListCount(), static_cast<int>(plain.rows.size()));
        break;
      default:
        break;
    }
  }

  void compareAll() {
    ASSERT_EQ(list().ListCount(), static_cast<int>(plain.rows.size()));
    ASSERT_EQ(list().ListIndex(), plain.listIndex);
    for (int row = -1; row <= list().ListCount(); ++row) {
      const ListRow expected = plain.holds(row) ? plain.rows[static_cast<std::size_t>(row)] : ListRow{};
      ASSERT_EQ(list().List(row), expected.text) << row;
      ASSERT_EQ(list().Colours(row), expected.colours) << row;
      ASSERT_EQ(list().Selected(row), list().multiple() ? expected.selected : row >= 0 && row == plain.listIndex)
          << row;
    }
  }

  [[nodiscard]] ListBox& list() { return GetParam() % 2 == 0 ? form.lstTitles : form.lstMarks; }

  std::mt19937 random{GetParam()};
  ListForm form;
  PlainList plain;
};

TEST_P(ListOrder, IsThatOfRowsPutToTheirPlacesOneByOne) {
  for (int round = 0; round < 40; ++round) {
    for (int step = number(1, 120); step > 0; --step) {
      change();
      ASSERT_NO_FATAL_FAILURE(compareOne());
    }
    ASSERT_NO_FATAL_FAILURE(compareAll());
  }
}

INSTANTIATE_TEST_SUITE_P(Random, ListOrder, testing::Range(1U, 61U));

TEST(SortedList, ColoursTheRowThatIsLastAtThatMoment) {
  ListForm form;
  form.lstTitles.setSorted(1);
  int added = 0;
  for (const auto& [title, colour] : {std::pair{"Pear", 6}, {"Apple", 2}, {"Quince", 3}, {"Beet", 4}}) {
    form.lstTitles.AddItem(title);
    form.lstTitles.setForeColor(added++, colour);
  }
  const std::pair<const char*, int> expected[] = {{"Apple", 1}, {"Beet", 1}, {"Pear", 2}, {"Quince", 4}};
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(form.lstTitles.List(row), expected[row].first);
    EXPECT_EQ(form.lstTitles.Colours(row).foreColor, expected[row].second);
  }
}

TEST(SortedList, PutsAnEqualTextBehindTheEarlierOnes) {
  ListForm form;
  form.lstTitles.setSorted(1);
  for (const char* title : {"b", "A", "a", "B", "a "}) form.lstTitles.AddItem(title);
  const std::string expected[] = {"A", "a", "a ", "b", "B"};
  for (int row = 0; row < 5; ++row) EXPECT_EQ(form.lstTitles.List(row), expected[row]);
}

TEST(SortedList, KeepsTheSelectionOnItsRow) {
  ListForm form;
  form.lstTitles.setSorted(1);
  for (const char* title : {"m", "z"}) form.lstTitles.AddItem(title);
  form.lstTitles.setListIndex(0);
  for (const char* title : {"a", "n", "m", "b"}) form.lstTitles.AddItem(title);
  EXPECT_EQ(form.lstTitles.ListIndex(), 2);
  EXPECT_EQ(form.lstTitles.List(form.lstTitles.ListIndex()), "m");
}

TEST(SortedList, IsEmptyAndUnsortedAfterItsFormIsLoadedAnew) {
  ListForm form;
  form.lstTitles.setSorted(1);
  for (const char* title : {"b", "a"}) form.lstTitles.AddItem(title);
  form.lstTitles.reset();
  EXPECT_EQ(form.lstTitles.ListCount(), 0);
  EXPECT_EQ(form.lstTitles.ListIndex(), -1);
  for (const char* title : {"b", "a"}) form.lstTitles.AddItem(title);
  EXPECT_EQ(form.lstTitles.List(0), "b");
}

}  // namespace
}  // namespace pantrigo
