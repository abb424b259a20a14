#include "platform/store/row_search.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "platform/store/names.h"
#include "platform/store/schema_sql.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

using Tables = std::vector<const TableDescription*>;

bool contains(const Tables& tables, const TableDescription* table) {
  return std::ranges::find(tables, table) != tables.end();
}

/// Collects the fields that a condition names, but those of its own inner queries' tables.
class NamedFields {
 public:
  [[nodiscard]] static std::vector<SqlField> of(const SqlCondition& condition) {
    NamedFields named;
    named.visit(condition, {});
    return named.fields_;
  }

 private:
  void visit(const SqlCondition& condition, const Tables& inner) {
    std::visit([&](const auto& content) { one(content, inner); }, condition.content);
  }

  void name(const SqlField& field, const Tables& inner) {
    if (!contains(inner, findTable(field.table))) fields_.push_back(field);
  }

  void one(const SqlComparison& comparison, const Tables& inner) {
    for (const SqlOperand* operand : {&comparison.left, &comparison.right}) {
      if (const auto* field = std::get_if<SqlField>(operand)) name(*field, inner);
    }
  }

  void one(const SqlLike& like, const Tables& inner) { name(like.field, inner); }

  void one(const SqlIn& in, const Tables& outer) {
    Tables inner = outer;
    for (const std::string& table : in.select->tables) inner.push_back(findTable(table));
    for (const SqlField& field : in.select->fields) name(field, inner);
    if (in.select->where) visit(*in.select->where, inner);
  }

  void one(const SqlJoined& joined, const Tables& inner) {
    for (const SqlCondition& condition : joined.conditions) visit(condition, inner);
  }

  std::vector<SqlField> fields_;
};

Tables tablesOf(const SqlCondition& condition) {
  Tables tables;
  for (const SqlField& field : NamedFields::of(condition)) {
    const TableDescription* table = findTable(field.table);
    if (!contains(tables, table)) tables.push_back(table);
  }
  return tables;
}

/// One of the conditions that all have to hold, and the tables that it names.
struct Part {
  SqlCondition condition;
  Tables tables;
};

using Parts = std::vector<Part>;

void addParts(SqlCondition condition, Parts& parts) {
  auto* joined = std::get_if<SqlJoined>(&condition.content);
  if (joined != nullptr && joined->word == SqlJoined::Word::And) {
    for (SqlCondition& one : joined->conditions) addParts(std::move(one), parts);
    return;
  }
  Tables tables = tablesOf(condition);
  parts.push_back({std::move(condition), std::move(tables)});
}

Parts partsOf(SqlSelect& select) {
  Parts parts;
  if (select.where) addParts(std::move(*select.where), parts);
  return parts;
}

bool namesAll(const Parts& parts, const std::vector<std::string>& tables) {
  return std::ranges::all_of(tables, [&](const std::string& name) {
    return std::ranges::any_of(parts, [&](const Part& part) { return contains(part.tables, findTable(name)); });
  });
}

const IndexDescription* indexOn(const Column& column) {
  const auto found = std::ranges::find_if(column.table->indexes, [&](const IndexDescription& index) {
    return index.keyFields[1].empty() && isSameName(index.keyFields[0], column.field->name);
  });
  return found == column.table->indexes.end() ? nullptr : &*found;
}

bool isUnique(const Column& column) {
  const IndexDescription* index = indexOn(column);
  return index != nullptr && index->uniqueness == Uniqueness::Unique;
}

/// Takes out of the parts those that are tied, by way of others, to the first one without the root table's help.
Parts takeComponent(Parts& parts, const TableDescription* root) {
  Parts component;
  component.push_back(std::move(parts.front()));
  parts.erase(parts.begin());
  for (std::size_t known = 0; known < component.size(); ++known) {
    const Tables tables = component[known].tables;
    const auto isTied = [&](const Part& part) {
      return std::ranges::any_of(part.tables, [&](auto* table) { return table != root && contains(tables, table); });
    };
    for (std::size_t place = 0; place < parts.size();) {
      if (!isTied(parts[place])) {
        ++place;
        continue;
      }
      component.push_back(std::move(parts[place]));
      parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(place));
    }
  }
  return component;
}

/// The columns of an equality of whole numbers between the root and another table, the root's first.
std::optional<std::pair<Column, Column>> linkOf(const SqlCondition& condition, const TableDescription& root) {
  const auto* comparison = std::get_if<SqlComparison>(&condition.content);
  if (comparison == nullptr || comparison->sign != "=") return std::nullopt;
  const auto* left = std::get_if<SqlField>(&comparison->left);
  const auto* right = std::get_if<SqlField>(&comparison->right);
  if (left == nullptr || right == nullptr) return std::nullopt;
  const Scope scope({left->table, right->table}, nullptr);
  std::pair<Column, Column> link{resolve(*left, scope), resolve(*right, scope)};
  if (link.first.table != &root) std::swap(link.first, link.second);
  const bool areWhole =
      link.first.field->type == FieldType::LongInteger && link.second.field->type == FieldType::LongInteger;
  if (!areWhole) return std::nullopt;
  return link;
}

/// Sorts conditions into a row search, or into a membership that hangs on it. Each gives whether that can be done.
class Sorter {
 public:
  [[nodiscard]] static bool sort(Parts parts, const TableDescription& root, std::vector<SqlCondition>& conditions,
                                 std::vector<Membership>& memberships) {
    Parts others;
    for (Part& part : parts) {
      const bool isOwn = part.tables.empty() || part.tables == Tables{&root};
      auto* in = std::get_if<SqlIn>(&part.condition.content);
      if (isOwn && in != nullptr && !part.tables.empty()) {
        if (!hangQuery(std::move(*in), root, memberships)) return false;
      } else if (isOwn) {
        conditions.push_back(std::move(part.condition));
      } else {
        others.push_back(std::move(part));
      }
    }
    while (!others.empty()) {
      if (!hang(takeComponent(others, &root), root, memberships)) return false;
    }
    return true;
  }

 private:
  /// An inner query is a test like a join; what its field has to equal is one condition more.
  static bool hangQuery(SqlIn in, const TableDescription& root, std::vector<Membership>& memberships) {
    SqlSelect& select = *in.select;
    const auto isRoot = [&](const std::string& table) { return findTable(table) == &root; };
    if (std::ranges::any_of(select.tables, isRoot)) return false;
    Parts parts = partsOf(select);
    addParts({SqlComparison{select.fields.front(), "=", in.literal}}, parts);
    if (!namesAll(parts, select.tables)) return false;
    Parts component = takeComponent(parts, &root);
    return parts.empty() && hang(std::move(component), root, memberships);
  }

  static bool hang(Parts component, const TableDescription& root, std::vector<Membership>& memberships) {
    const auto namesRoot = [&](const Part& part) { return contains(part.tables, &root); };
    if (std::ranges::count_if(component, namesRoot) != 1) return false;
    const auto place = std::ranges::find_if(component, namesRoot);
    if (place->tables.size() != 2) return false;
    const auto link = linkOf(place->condition, root);
    if (!link) return false;
    component.erase(place);
    Membership& membership = memberships.emplace_back(Membership{link->first, link->second});
    return sort(std::move(component), *link->second.table, membership.conditions, membership.memberships);
  }
};

/// Comparisons cost next to nothing, patterns the most.
bool isPattern(const SqlCondition& condition) {
  return !std::holds_alternative<SqlComparison>(condition.content);
}

/// Name in the engine's texts of a value that several memberships test.
constexpr std::string_view valueName = "MemberValue";

/// Writes the tests of rows.
class TestWriter {
 public:
  explicit TestWriter(EngineText& text) : conditions_(text) {}

  /// Looks the row's value up in all that satisfy the membership, which are gathered once.
  [[nodiscard]] std::string gathered(const Membership& membership) {
    return membership.outer.text() + " IN (" + allOf(membership) + ")";
  }

  /// Looks for rows that have the row's value: for few rows against many members.
  [[nodiscard]] std::string probed(const Membership& membership, std::string_view value) {
    const std::string link = membership.inner.text() + " = " + std::string(value);
    return "EXISTS (SELECT 1 FROM " + nameOf(*membership.inner.table) + " WHERE " + link +
           tests(membership, *membership.inner.table, " AND ") + ")";
  }

  /// The values that satisfy the membership.
  [[nodiscard]] std::string allOf(const Membership& membership) {
    return "SELECT " + membership.inner.text() + " FROM " + nameOf(*membership.inner.table) +
           tests(membership, *membership.inner.table, " WHERE ");
  }

  /// The values that satisfy the membership and others of the same outer column, which are probed for each value.
  [[nodiscard]] std::string allOf(const Membership& membership, const std::vector<const Membership*>& others) {
    std::string text = "SELECT " + membership.inner.text() + " AS " + std::string(valueName) + " FROM " +
                       nameOf(*membership.inner.table) + tests(membership, *membership.inner.table, " WHERE ");
    for (const Membership* other : others) text += " AND " + probed(*other, valueName);
    return text;
  }

  /// All conditions and memberships with AND between them, the cheap ones first; empty, or with `lead` in front.
  template <class Tested>
  [[nodiscard]] std::string tests(const Tested& tested, const TableDescription& table, std::string_view lead) {
    std::vector<std::string> texts = conditions(tested.conditions, table, false);
    for (const Membership& membership : tested.memberships) texts.push_back(gathered(membership));
    std::ranges::move(conditions(tested.conditions, table, true), std::back_inserter(texts));
    return joined(texts, lead);
  }

  [[nodiscard]] std::vector<std::string> conditions(const std::vector<SqlCondition>& conditions,
                                                    const TableDescription& table, bool patterns) {
    const Scope scope({nameOf(table)}, nullptr);
    std::vector<std::string> texts;
    for (const SqlCondition& condition : conditions) {
      if (isPattern(condition) == patterns) texts.push_back("(" + conditions_.write(condition, scope) + ")");
    }
    return texts;
  }

  [[nodiscard]] static std::string joined(const std::vector<std::string>& texts, std::string_view lead) {
    std::string result;
    for (const std::string& text : texts) result += (result.empty() ? std::string(lead) : " AND ") + text;
    return result;
  }

  [[nodiscard]] static std::string nameOf(const TableDescription& table) { return std::string(table.name); }

 private:
  ConditionWriter conditions_;
};

/// Whether an index holds all fields that the conditions name.
bool covers(const IndexDescription& index, const std::vector<SqlCondition>& conditions) {
  const auto isHeld = [&](const SqlField& field) {
    return isSameName(field.field, index.keyFields[0]) || isSameName(field.field, index.keyFields[1]) ||
           isSameName(field.field, index.carried);
  };
  return std::ranges::all_of(conditions, [&](const SqlCondition& condition) {
    return std::ranges::all_of(NamedFields::of(condition), isHeld);
  });
}

/// What follows a table's name for a walk through all its rows: an index that spares the rows themselves, if one does.
std::string wholeWalk(const RowSearch& search) {
  const auto& indexes = search.table->indexes;
  const auto found =
      std::ranges::find_if(indexes, [&](const IndexDescription& index) { return covers(index, search.conditions); });
  return found == indexes.end() ? " NOT INDEXED" : " INDEXED BY " + std::string(found->name);
}

}  // namespace

std::optional<RowSearch> makeRowSearch(SqlSelect select) {
  const Scope scope(select.tables, nullptr);
  const std::vector<Column> columns = selectedColumns(select, scope);
  RowSearch search{columns.front().table};
  const auto isOfTable = [&](const Column& column) { return column.table == search.table; };
  if (!select.isDistinct || !std::ranges::all_of(columns, isOfTable)) return std::nullopt;
  Parts parts = partsOf(select);
  std::erase_if(select.tables, [&](const std::string& table) { return findTable(table) == search.table; });
  if (!namesAll(parts, select.tables)) return std::nullopt;
  if (!Sorter::sort(std::move(parts), *search.table, search.conditions, search.memberships)) return std::nullopt;
  const auto hasIndex = [](const Membership& membership) { return indexOn(membership.outer) != nullptr; };
  if (!std::ranges::all_of(search.memberships, hasIndex)) return std::nullopt;
  return search;
}

bool isLookUp(const Membership& membership) {
  return isUnique(membership.inner) && membership.memberships.empty();
}

EngineText memberValuesText(const Membership& membership) {
  EngineText text;
  text.sql = TestWriter(text).allOf(membership);
  return text;
}

EngineText membershipExceedsText(const Membership& membership) {
  EngineText text;
  TestWriter writer(text);
  std::string rows = isUnique(membership.inner) ? std::string() : writer.allOf(membership);
  if (rows.empty()) {
    // Where each row has at most one, as a recipe has one course, the rows that have it are what counts.
    rows = "SELECT 1 FROM " + TestWriter::nameOf(*membership.outer.table) + " INDEXED BY " +
           std::string(indexOn(membership.outer)->name) + " WHERE " + writer.gathered(membership);
  }
  text.sql = rows + " LIMIT 1 OFFSET ?" + plainText(static_cast<long>(text.parameters.size()) + 1);
  return text;
}

EngineText rowSearchText(const RowSearch& search, std::size_t firstMembership) {
  EngineText text;
  TestWriter writer(text);
  const std::string start = std::string("SELECT ") + rowNumberColumn + " FROM " + TestWriter::nameOf(*search.table);
  if (search.memberships.empty()) {
    text.sql = start + wholeWalk(search) + writer.tests(search, *search.table, " WHERE ");
    return text;
  }
  const Membership& first = search.memberships[firstMembership];
  // What is tested by the same value, as all sets of recipes by the id, is tested before any row is looked up.
  std::vector<const Membership*> sameValue;
  std::vector<const Membership*> others;
  for (const Membership& other : search.memberships) {
    if (&other != &first) (other.outer == first.outer && !isUnique(other.inner) ? sameValue : others).push_back(&other);
  }
  std::vector<std::string> tests{first.outer.text() + " IN (" + writer.allOf(first, sameValue) + ")"};
  const auto add = [&](std::vector<std::string> more) { std::ranges::move(more, std::back_inserter(tests)); };
  add(writer.conditions(search.conditions, *search.table, false));
  for (const Membership* other : others) {
    tests.push_back(isUnique(other->inner) ? writer.gathered(*other) : writer.probed(*other, other->outer.text()));
  }
  add(writer.conditions(search.conditions, *search.table, true));
  text.sql = start + " INDEXED BY " + std::string(indexOn(first.outer)->name) + TestWriter::joined(tests, " WHERE ");
  return text;
}

}  // namespace pantrigo
