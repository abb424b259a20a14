#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/store/recordset.h"
#include "platform/store/row_reader.h"
#include "platform/store/schema.h"
#include "platform/store/store_state.h"

namespace pantrigo {

/// What the cursors over results of SQL texts have in common: they go through rows from the first to the last, have no
/// index, and can't be written.
class QueryCursor : public Cursor {
 public:
  void setIndex(std::string_view name) override;
  void seek(std::string_view comparison, const std::vector<Value>& key) override;
  [[nodiscard]] bool noMatch() const override;
  [[nodiscard]] bool eof() override;
  void moveNext() override;
  void moveFirst() override;
  [[nodiscard]] const Value& field(std::string_view name) override;
  void setField(std::string_view name, const Value& value) override;
  void addNew() override;
  void edit() override;
  void update() override;
  void remove() override;
  [[nodiscard]] long recordCount() override;

 protected:
  QueryCursor(std::shared_ptr<Database::State> state, std::vector<FieldDescription> fields)
      : state_(std::move(state)), fields_(std::move(fields)) {}

  [[nodiscard]] Database::State& state() const { return *state_; }
  [[nodiscard]] const std::vector<FieldDescription>& fields() const { return fields_; }

 private:
  [[nodiscard]] virtual bool isAtEnd() = 0;
  /// Goes to the next row, or to the end.
  virtual void step() = 0;
  /// Goes back to the first row.
  virtual void restart() = 0;
  /// A field of the current row, by its place among the result's.
  [[nodiscard]] virtual const Value& read(std::size_t field) = 0;

  void requireOpen() const { static_cast<void>(state_->connection()); }

  std::shared_ptr<Database::State> state_;
  std::vector<FieldDescription> fields_;
  /// How many rows the cursor has left behind since it was at the first, and most rows reached so far.
  long passed_ = 0;
  long reached_ = 0;
};

/// A result whose rows are counted when it is opened.
class CountedCursor : public QueryCursor {
 protected:
  CountedCursor(std::shared_ptr<Database::State> state, std::vector<FieldDescription> fields, std::size_t rowCount)
      : QueryCursor(std::move(state), std::move(fields)), rowCount_(rowCount) {}

  /// From 0.
  [[nodiscard]] std::size_t row() const { return row_; }

 private:
  [[nodiscard]] bool isAtEnd() override { return row_ >= rowCount_; }
  void step() override { ++row_; }
  void restart() override { row_ = 0; }

  std::size_t rowCount_;
  std::size_t row_ = 0;
};

/// A result that is rows of one table. Which rows is settled at the opening; their fields are read as they are then.
class RowsCursor final : public CountedCursor {
 public:
  RowsCursor(std::shared_ptr<Database::State> state, const TableDescription& table,
             std::vector<FieldDescription> fields, std::vector<std::int64_t> rowNumbers);

 private:
  [[nodiscard]] const Value& read(std::size_t field) override;

  const TableDescription& table_;
  /// Place in the table of each field of the result.
  std::vector<int> tableFields_;
  std::vector<std::int64_t> rowNumbers_;
  RowReader reader_;
  std::size_t readerRow_;
};

/// Rows of values, packed one behind the other to take little room.
class PackedRows {
 public:
  void beginRow() { starts_.push_back(bytes_.size()); }
  /// Adds a value to the last row.
  void append(const Value& value);

  [[nodiscard]] std::size_t size() const { return starts_.size(); }
  /// Reads the first values of a row, as many as `values` has.
  void read(std::size_t row, std::vector<Value>& values) const;

 private:
  /// A mark of what follows, then the bytes of a number or of a text's length and the text.
  enum class Mark : char { Null, False, True, Number, Text };

  [[nodiscard]] Value readValue(std::size_t& place) const;

  std::string bytes_;
  std::vector<std::size_t> starts_;
};

/// A result of which each row is drawn from several tables, or stands for several rows. It is as it was at the opening.
class ResultCursor final : public CountedCursor {
 public:
  ResultCursor(std::shared_ptr<Database::State> state, std::vector<FieldDescription> fields, PackedRows rows);

 private:
  [[nodiscard]] const Value& read(std::size_t field) override;

  PackedRows rows_;
  /// The row that was unpacked last, and its values.
  std::size_t unpackedRow_;
  std::vector<Value> values_;
};

}  // namespace pantrigo
