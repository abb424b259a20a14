#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/store/value.h"

namespace pantrigo {

/// What a cursor can do; the store's table and query cursors implement it, and a test or a benchmark may bring its own.
class Cursor {
 public:
  virtual ~Cursor() = default;
  virtual void setIndex(std::string_view name) = 0;
  virtual void seek(std::string_view comparison, const std::vector<Value>& key) = 0;
  [[nodiscard]] virtual bool noMatch() const = 0;
  [[nodiscard]] virtual bool eof() = 0;
  virtual void moveNext() = 0;
  virtual void moveFirst() = 0;
  [[nodiscard]] virtual const Value& field(std::string_view name) = 0;
  virtual void setField(std::string_view name, const Value& value) = 0;
  virtual void addNew() = 0;
  virtual void edit() = 0;
  virtual void update() = 0;
  virtual void remove() = 0;
  [[nodiscard]] virtual long recordCount() = 0;
};

/// A cursor of the store, under the operations that the logic uses. Copies share one cursor. One that was never opened,
/// or was closed, answers every operation with error 3420.
class Recordset {
 public:
  Recordset() = default;
  explicit Recordset(std::shared_ptr<Cursor> cursor) : cursor_(std::move(cursor)) {}

  /// Selects a named index for `Seek` and the order of `MoveNext`; the position is undefined until the next `Seek`.
  /// Drops a pending edit. Error 3015 for an unknown name.
  void Index(std::string_view name) { cursor().setIndex(name); }

  /// Positions on the first row in index order that satisfies the comparison ("=", ">" or ">="). One value a key field.
  /// Error 3019 without an index, 5 for another comparison, 3421 for a key that does not convert; after an error
  /// nothing is found. An empty text equals no number. Drops a pending edit.
  void Seek(std::string_view comparison, std::initializer_list<Value> key) { cursor().seek(comparison, key); }
  void Seek(std::string_view comparison, const Value& key) { cursor().seek(comparison, {key}); }

  /// Whether the last `Seek` found nothing; the position is then undefined.
  [[nodiscard]] bool NoMatch() const { return cursor().noMatch(); }

  /// Whether the cursor is past the last row.
  [[nodiscard]] bool Eof() const { return cursor().eof(); }

  /// Steps in the current order. `MoveNext` past the end is error 3021. Both drop a pending edit.
  void MoveNext() { cursor().moveNext(); }
  void MoveFirst() { cursor().moveFirst(); }

  /// Reads a field of the current row, or of the row being added or edited; the reference holds until the cursor is
  /// next used. Errors: 3021 without a current row, 3167 on a deleted row, 3265 for an unknown field.
  [[nodiscard]] const Value& Field(std::string_view name) const { return cursor().field(name); }

  /// Writes a field of the row being added or edited, converted to the field's type. Errors: 3020 without `AddNew` or
  /// `Edit`, 3421 for a text that does not convert, 3163 for a text that is too long, 3265, 6 out of a long integer's
  /// range.
  void Set(std::string_view name, const Value& value) { cursor().setField(name, value); }

  /// Starts a new row; the current row stays current after `Update`. Drops a pending edit.
  void AddNew() { cursor().addNew(); }
  /// Starts a change of the current row. Drops a pending edit. Errors: 3021 without a row, 3167 on a deleted one.
  void Edit() { cursor().edit(); }
  /// Writes the new or changed row; durable when it returns. Errors: 3020, 3022 for a duplicate key, 3026 disk full,
  /// 3027, 75 when the file can't be written.
  void Update() { cursor().update(); }
  /// Removes the current row, which stays current but dead until the next move.
  void Delete() { cursor().remove(); }

  /// Rows reached so far: 0 for an empty result, at least 1 otherwise.
  [[nodiscard]] long RecordCount() const { return cursor().recordCount(); }

  /// Lets go of the cursor, which is closed, and drops a pending edit, once no copy of this object holds it any more.
  /// Error 3420 when it is not open.
  void Close();

  [[nodiscard]] bool isOpen() const { return cursor_ != nullptr; }

 private:
  [[nodiscard]] Cursor& cursor() const;

  std::shared_ptr<Cursor> cursor_;
};

}  // namespace pantrigo
