#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// What the six category kinds have in common. Everything that goes over the kinds, or is told one by name, goes by
/// this table.
struct CategoryKind {
  /// The kind's name, which is also its table, and for the first four the field of `Recipe`.
  std::string_view name;
  /// The id field, which is also the counter's key in `System`.
  std::string_view idField;
  std::string_view descriptionIndex;
  std::string_view idIndex;
  /// The index of `Recipe` on a single-valued kind's field, or the link table's index on the category's id.
  std::string_view useIndex;
  Recordset Global::*cursor;

  // Single-valued kinds: the combo boxes. Null for the two kinds with link tables.
  ComboBox FrmBrowse::*browseCombo;
  ComboBox FrmDetail::*detailCombo;

  // Kinds with a link table. Null or empty for the others.
  std::string_view linkTable;
  std::string_view linkRecipeIndex;
  Recordset Global::*linkCursor;
  ListBox FrmBrowse::*browseList;
  ListBox FrmDetail::*detailList;
  Label FrmBrowse::*browseLabel;
  Label FrmDetail::*detailLabel;
  /// The label's caption without its mark.
  std::string_view labelCaption;

  [[nodiscard]] bool isLinked() const { return !linkTable.empty(); }
};

inline constexpr std::size_t categoryKindCount = 6;

/// Nationality, Course, Cooking, Ease, Health, Other, in this order.
[[nodiscard]] const std::array<CategoryKind, categoryKindCount>& categoryKinds();

/// The kind of that name. Error 5 for another name.
[[nodiscard]] const CategoryKind& categoryKind(std::string_view name);

/// The description of a category by its id; empty for Null and for an id whose row is missing.
[[nodiscard]] std::string categoryDescription(Global& global, const CategoryKind& kind, const Value& id);

/// Puts the kind's cursor on the category of that description; gives whether there is one. Letter case and trailing
/// blanks don't count.
[[nodiscard]] bool seekCategory(Global& global, const CategoryKind& kind, std::string_view description);

/// Adds a category to the store under the next id of its kind, and gives the id. The counter is stored first, so that a
/// failure after it leaves a gap.
Value addCategory(Global& global, const CategoryKind& kind, std::string_view description);

/// Appends a description to the list or combo box of a kind on the main window, respectively on the detail window.
void addToBrowse(Run& run, const CategoryKind& kind, std::string_view description);
void addToDetail(Run& run, const CategoryKind& kind, std::string_view description);

/// The descriptions that the main window's list or combo box of a kind holds, in its order.
[[nodiscard]] std::vector<std::string> browseRows(const Run& run, const CategoryKind& kind);

/// Gives the label of a kind's list on the main window, respectively on the detail window, its caption, with a "~"
/// behind it when a row of the list is selected. Does nothing for a kind that has no list.
void markBrowseLabel(Run& run, const CategoryKind& kind);
void markDetailLabel(Run& run, const CategoryKind& kind);

}  // namespace pantrigo
