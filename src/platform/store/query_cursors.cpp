#include "platform/store/query_cursors.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/store/names.h"
#include "platform/store/schema_sql.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

constexpr std::size_t noRow = std::numeric_limits<std::size_t>::max();

template <class Number>
void appendBytes(std::string& bytes, Number number) {
  char raw[sizeof number];
  std::memcpy(raw, &number, sizeof number);
  bytes.append(raw, sizeof number);
}

template <class Number>
Number takeBytes(const std::string& bytes, std::size_t& place) {
  Number number;
  std::memcpy(&number, bytes.data() + place, sizeof number);
  place += sizeof number;
  return number;
}

}  // namespace

void QueryCursor::setIndex(std::string_view) {
  requireOpen();
  throw RuntimeError(store_error::noSuchIndex);
}

void QueryCursor::seek(std::string_view, const std::vector<Value>&) {
  requireOpen();
  throw RuntimeError(store_error::noCurrentIndex);
}

bool QueryCursor::noMatch() const {
  requireOpen();
  return false;
}

bool QueryCursor::eof() {
  requireOpen();
  return isAtEnd();
}

void QueryCursor::moveNext() {
  if (eof()) throw RuntimeError(store_error::noCurrentRecord);
  ++passed_;
  reached_ = std::max(reached_, passed_);
  step();
}

void QueryCursor::moveFirst() {
  requireOpen();
  passed_ = 0;
  restart();
}

const Value& QueryCursor::field(std::string_view name) {
  requireOpen();
  const auto found = std::ranges::find_if(fields_, [name](const auto& field) { return isSameName(field.name, name); });
  if (found == fields_.end()) throw RuntimeError(store_error::noSuchField);
  if (isAtEnd()) throw RuntimeError(store_error::noCurrentRecord);
  return read(static_cast<std::size_t>(found - fields_.begin()));
}

void QueryCursor::setField(std::string_view, const Value&) {
  requireOpen();
  throw RuntimeError(store_error::noEditPending);
}

void QueryCursor::addNew() {
  requireOpen();
  throw RuntimeError(store_error::readOnly);
}

void QueryCursor::edit() {
  requireOpen();
  throw RuntimeError(store_error::readOnly);
}

void QueryCursor::update() {
  requireOpen();
  throw RuntimeError(store_error::noEditPending);
}

void QueryCursor::remove() {
  requireOpen();
  throw RuntimeError(store_error::readOnly);
}

long QueryCursor::recordCount() {
  requireOpen();
  return std::max(reached_, passed_ + (isAtEnd() ? 0 : 1));
}

RowsCursor::RowsCursor(std::shared_ptr<Database::State> state, const TableDescription& table,
                       std::vector<FieldDescription> fields, std::vector<std::int64_t> rowNumbers)
    : CountedCursor(std::move(state), std::move(fields), rowNumbers.size()),
      table_(table),
      rowNumbers_(std::move(rowNumbers)),
      readerRow_(noRow) {
  for (const FieldDescription& field : this->fields()) tableFields_.push_back(findField(table, field.name));
}

const Value& RowsCursor::read(std::size_t field) {
  if (readerRow_ != row()) {
    reader_.place(rowNumbers_[row()]);
    readerRow_ = row();
  }
  return reader_.field(state().access(table_), tableFields_[field]);
}

void PackedRows::append(const Value& value) {
  const auto mark = [this](Mark kind) { bytes_.push_back(static_cast<char>(kind)); };
  const auto& content = value.content();
  if (const auto* text = std::get_if<std::string>(&content)) {
    mark(Mark::Text);
    appendBytes(bytes_, static_cast<std::uint32_t>(text->size()));
    bytes_ += *text;
  } else if (const auto* number = std::get_if<double>(&content)) {
    mark(Mark::Number);
    appendBytes(bytes_, *number);
  } else if (const auto* truth = std::get_if<bool>(&content)) {
    mark(*truth ? Mark::True : Mark::False);
  } else {
    mark(Mark::Null);
  }
}

Value PackedRows::readValue(std::size_t& place) const {
  switch (static_cast<Mark>(bytes_[place++])) {
    case Mark::Null:
      return {};
    case Mark::False:
      return false;
    case Mark::True:
      return true;
    case Mark::Number:
      return takeBytes<double>(bytes_, place);
    case Mark::Text: {
      const std::size_t length = takeBytes<std::uint32_t>(bytes_, place);
      place += length;
      return bytes_.substr(place - length, length);
    }
  }
  return {};
}

void PackedRows::read(std::size_t row, std::vector<Value>& values) const {
  std::size_t place = starts_[row];
  for (Value& value : values) value = readValue(place);
}

ResultCursor::ResultCursor(std::shared_ptr<Database::State> state, std::vector<FieldDescription> fields,
                           PackedRows rows)
    : CountedCursor(std::move(state), std::move(fields), rows.size()),
      rows_(std::move(rows)),
      unpackedRow_(noRow),
      values_(this->fields().size()) {}

const Value& ResultCursor::read(std::size_t field) {
  if (unpackedRow_ != row()) {
    rows_.read(row(), values_);
    unpackedRow_ = row();
  }
  return values_[field];
}

}  // namespace pantrigo
