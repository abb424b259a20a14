#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/store/value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace pantrigo {

/// A prepared statement of the engine. Parameters count from 1, columns from 0. Texts that are bound must live until
/// the statement is reset.
class Statement {
 public:
  Statement(sqlite3* connection, std::string_view sql);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Binds a value as the store keeps it: Yes/No as -1 or 0, a number without a fraction as a whole number.
  void bind(int parameter, const Value& value);
  void bindWhole(int parameter, std::int64_t number);
  void bindNumber(int parameter, double number);
  void bindText(int parameter, std::string_view text);
  /// Hands an object to a function of the SQL text, which asks for it by the same kind.
  void bindObject(int parameter, const void* object, const char* kind);

  /// Runs to the next row; false at the end. Raises the run-time error that the engine's failure stands for.
  [[nodiscard]] bool step();
  /// Runs to the end.
  void run();
  void reset() noexcept;

  [[nodiscard]] bool isNull(int column) const;
  [[nodiscard]] std::int64_t whole(int column) const;
  [[nodiscard]] double number(int column) const;
  /// Holds until the next step.
  [[nodiscard]] std::string_view text(int column) const;

 private:
  sqlite3_stmt* handle_ = nullptr;
};

/// A statement while it runs: it is reset at the scope's end, so that no statement stands open between two calls and
/// holds back a checkpoint.
class Running {
 public:
  explicit Running(Statement& statement) : statement_(statement) {}
  ~Running() { statement_.reset(); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;
  [[nodiscard]] Statement* operator->() const { return &statement_; }
  [[nodiscard]] Statement& operator*() const { return statement_; }

 private:
  Statement& statement_;
};

enum class Access { ReadWrite, ReadOnly };

/// The engine's connection to one file, with the statements that were prepared on it.
class Connection {
 public:
  /// `engineFlags` are the engine's own for opening. The result code is raised as a run-time error when it fails.
  Connection(const std::string& fileName, int engineFlags, Access access);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// The statement of that text, prepared at its first use and kept. For the few texts that the store itself makes.
  [[nodiscard]] Statement& statement(const std::string& sql);
  /// The same for the texts made from the program's queries, whose number has no bound: they are dropped when they
  /// become many.
  [[nodiscard]] Statement& queryStatement(const std::string& sql);
  /// Finalises all statements; those handed out are gone.
  void dropStatements();
  /// Runs a text of one or more statements that give no rows.
  void execute(const char* sql);
  /// The first column of the first row, as a text.
  [[nodiscard]] std::string single(const char* sql);

  /// Removes a side file of the engine when the connection has closed.
  void removeAtClose(const std::filesystem::path& file) { leftOver_.path = file; }

  /// Error 3027 when the store was opened only for reading.
  void requireWritable() const;
  [[nodiscard]] bool isReadOnly() const { return access_ == Access::ReadOnly; }
  /// Rows that the last statement changed.
  [[nodiscard]] int changedRows() const;
  [[nodiscard]] sqlite3* handle() const { return handle_.get(); }

 private:
  struct Closer {
    void operator()(sqlite3* handle) const;
  };
  using Statements = std::unordered_map<std::string, std::unique_ptr<Statement>>;
  [[nodiscard]] Statement& find(Statements& statements, const std::string& sql);

  struct LeftOver {
    ~LeftOver();
    std::filesystem::path path;
  };

  // Members go from the last to the first: the statements, the handle, the side file.
  LeftOver leftOver_;
  std::unique_ptr<sqlite3, Closer> handle_;
  Access access_;
  Statements statements_;
  Statements queryStatements_;
};

}  // namespace pantrigo
