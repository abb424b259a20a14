#include "platform/text/errors.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pantrigo {

namespace {

struct ErrorText {
  int number;
  std::string_view text;
};

/// The run-time errors of the platform and of its store, by number.
constexpr ErrorText errorTexts[] = {
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {11, "Division by zero"},
    {13, "Type mismatch"},
    {51, "Internal error"},
    {52, "Bad file name or number"},
    {53, "File not found"},
    {55, "File already open"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {71, "Disk not ready"},
    {75, "Path/File access error"},
    {76, "Path not found"},
    {91, "Object variable not set"},
    {93, "Invalid pattern string"},
    {94, "Invalid use of Null"},
    {400, "Form already displayed; can't show modally"},
    {438, "Object doesn't support this property or method"},
    {481, "Invalid picture"},
    {3015, "No such index in the table."},
    {3019, "Operation invalid without a current index."},
    {3020, "Update or a field write without AddNew or Edit."},
    {3021, "No current record."},
    {3022, "The change would create duplicate values in the index."},
    {3024, "The cookbook's file PANTRIGO.MDB was not found in the folder of the program's start."},
    {3026, "Not enough space on disk."},
    {3027, "Can't update. The store is read-only."},
    {3045, "Couldn't use the store; file already in use."},
    {3051, "Couldn't open the store."},
    {3075, "Syntax error in the query's text."},
    {3078, "A table of the store couldn't be found."},
    {3163, "The field is too small to accept the amount of data you attempted to add."},
    {3167, "Record is deleted."},
    {3265, "Field not found in this table."},
    {3315, "Field can't be a zero-length string."},
    {3343, "Unrecognized store format: the file is damaged, empty, or no cookbook."},
    {3420, "Object is closed."},
    {3421, "Data type conversion error."},
};

}  // namespace

std::string errorText(int number) {
  const auto* found = std::find_if(std::begin(errorTexts), std::end(errorTexts),
                                   [&](const ErrorText& row) { return row.number == number; });
  return found == std::end(errorTexts) ? "Application-defined error" : std::string(found->text);
}

RuntimeError::RuntimeError(int number) : RuntimeError(number, errorText(number)) {}

RuntimeError::RuntimeError(int number, std::string text) : number_(number), text_(std::move(text)) {}

}  // namespace pantrigo
