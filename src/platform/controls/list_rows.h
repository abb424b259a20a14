#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/collation.h"

namespace pantrigo {

/// Colours of a row, numbers of the sixteen-entry colour table: the text of an ordinary row, and text and ground of a
/// selected one. A row that was never coloured is dark blue, white on dark blue when selected.
struct RowColours {
  std::uint8_t foreColor = 1;
  std::uint8_t selForeColor = 15;
  std::uint8_t selBackColor = 1;
  friend bool operator==(const RowColours&, const RowColours&) = default;
};

struct ListRow {
  std::string text;
  RowColours colours;
  bool selected = false;
};

/// The rows of a list, each added at the end or at its place in the order of texts, behind the rows that are equal to
/// it. To everybody who looks, each added row is at its place at once. Inside, rows that were added one after the other
/// wait and are put into order together when a row is asked for by its number; only which row is the last is known all
/// the time, since the last row is what a list that is being filled is asked for.
class ListRows {
 public:
  [[nodiscard]] int count() const { return static_cast<int>(rows_.size() + waiting_.size()); }
  [[nodiscard]] bool holds(int row) const { return row >= 0 && row < count(); }

  /// A row that is there, by its number from 0. It stays where it is until a row is added or removed.
  [[nodiscard]] const ListRow& at(int row) const { return all()[static_cast<std::size_t>(row)]; }
  [[nodiscard]] ListRow& at(int row) { return all()[static_cast<std::size_t>(row)]; }
  /// The colours of a row that is there. Those of the last row are at hand without putting rows into order.
  [[nodiscard]] RowColours colours(int row) const { return coloured(row).colours; }
  void setColours(int row, RowColours colours) { coloured(row).colours = colours; }
  /// All rows in order, for as long as none is added or removed.
  [[nodiscard]] std::vector<ListRow>& all();
  [[nodiscard]] const std::vector<ListRow>& all() const;

  /// Whether rows are added at their place in the order of texts (else at the end). Where the rows that are there when
  /// it is turned on are in no order, the place is before the first row that sorts behind the added one.
  [[nodiscard]] bool sorted() const { return sorted_; }
  void setSorted(bool sorted);

  void add(std::string_view text);
  void remove(int row);
  /// Takes all rows away, and their memory; the next rows are added as before.
  void clear();

  /// The number of a row that is being followed, as rows are added above it; -1 for none.
  [[nodiscard]] int followed() const;
  void follow(int row);

 private:
  struct WaitingRow {
    TextPlace place;
    ListRow row;
  };

  void addInOrder(std::string_view text);
  void addBeforeGreater(std::string_view text);
  /// Puts the waiting rows to their places.
  void settle() const;
  void merge(const std::vector<WaitingRow*>& added) const;
  /// The number of rows, of the first `end` settled ones, that stay before an added text.
  [[nodiscard]] std::size_t placeOf(std::string_view text, std::size_t end) const;
  [[nodiscard]] ListRow& last() const;
  [[nodiscard]] ListRow& coloured(int row) const;

  // Settling changes where rows are kept, and nothing that can be seen.
  mutable std::vector<ListRow> rows_;
  mutable std::vector<WaitingRow> waiting_;
  mutable int followed_ = -1;
  /// Which waiting row is the last of all; -1 when a settled one is.
  mutable int lastWaiting_ = -1;
  /// Where the last row of all stands; nothing when it isn't known.
  std::optional<TextPlace> lastPlace_;
  bool sorted_ = false;
  /// Whether the settled rows are in the order of texts. Counts while `sorted_` is set.
  bool inOrder_ = true;
};

}  // namespace pantrigo
