#pragma once

#include <span>
#include <string_view>

namespace pantrigo {

/// The types a field can have. Text takes up to 255 characters, a memo any number.
enum class FieldType { LongInteger, Number, YesNo, Text, Memo };

struct FieldDescription {
  std::string_view name;
  FieldType type;
};

enum class Uniqueness { Duplicates, Unique };

struct IndexDescription {
  std::string_view name;
  /// One or two key fields, in order; the second is empty where there is one.
  std::string_view keyFields[2];
  Uniqueness uniqueness;
  /// A field that is carried along in the index so that a walk need not touch the rows; empty when none.
  std::string_view carried;
};

struct TableDescription {
  std::string_view name;
  std::span<const FieldDescription> fields;
  std::span<const IndexDescription> indexes;
  /// Fields that nearly every walk through an index asks for: they are read along with a row's place.
  std::span<const std::string_view> companions = {};
};

/// All eleven tables, in the order in which a new store is made.
[[nodiscard]] std::span<const TableDescription> storeTables();

/// The table of that name, without regard to case; null when there is none.
[[nodiscard]] const TableDescription* findTable(std::string_view name);

/// Key under which the file's header marks it as a store of this program ("application id"), and the schema's version.
inline constexpr int storeApplicationId = 0x50616E74;  // "Pant"
inline constexpr int storeSchemaVersion = 1;

}  // namespace pantrigo
