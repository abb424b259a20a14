#pragma once

#include <string_view>

namespace pantrigo {

/// The numbers of the run-time errors that the store raises.
namespace store_error {
inline constexpr int invalidCall = 5;
inline constexpr int overflow = 6;
inline constexpr int outOfMemory = 7;
inline constexpr int engineFailure = 51;
inline constexpr int pathFileAccess = 75;
inline constexpr int invalidPattern = 93;
inline constexpr int noSuchIndex = 3015;
inline constexpr int noCurrentIndex = 3019;
inline constexpr int noEditPending = 3020;
inline constexpr int noCurrentRecord = 3021;
inline constexpr int duplicateKey = 3022;
inline constexpr int fileNotFound = 3024;
inline constexpr int diskFull = 3026;
inline constexpr int readOnly = 3027;
inline constexpr int fileInUse = 3045;
inline constexpr int cannotOpen = 3051;
inline constexpr int sqlSyntax = 3075;
inline constexpr int noSuchTable = 3078;
inline constexpr int fieldTooSmall = 3163;
inline constexpr int recordDeleted = 3167;
inline constexpr int noSuchField = 3265;
inline constexpr int notADatabase = 3343;
inline constexpr int objectClosed = 3420;
inline constexpr int dataTypeConversion = 3421;
}  // namespace store_error

/// The error number that a result code of the engine stands for: 51 for what no other number names.
[[nodiscard]] int errorNumberOf(int engineResult);

/// Raises a run-time error whose text ends with the name of the table, field or index that it is about.
[[noreturn]] void raiseNamed(int number, std::string_view name);

/// Raises the run-time error of an engine's result code, unless the code tells of success.
void checkResult(int engineResult);

}  // namespace pantrigo
