#include "platform/store/store_errors.h"

#include <sqlite3.h>

#include "platform/text/errors.h"

namespace pantrigo {

int errorNumberOf(int engineResult) {
  // Running out of memory while reading or writing a file is told as a failure of the file.
  if (engineResult == SQLITE_IOERR_NOMEM) return store_error::outOfMemory;
  // The low byte of an extended result code is the plain one.
  switch (engineResult & 0xFF) {
    case SQLITE_CONSTRAINT:
      return store_error::duplicateKey;
    case SQLITE_FULL:
      return store_error::diskFull;
    case SQLITE_READONLY:
      return store_error::readOnly;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return store_error::fileInUse;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return store_error::notADatabase;
    case SQLITE_NOMEM:
      return store_error::outOfMemory;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
      return store_error::pathFileAccess;
    default:
      return store_error::engineFailure;
  }
}

void checkResult(int engineResult) {
  if (engineResult == SQLITE_OK || engineResult == SQLITE_ROW || engineResult == SQLITE_DONE) return;
  throw RuntimeError(errorNumberOf(engineResult));
}

void raiseNamed(int number, std::string_view name) {
  throw RuntimeError(number, errorText(number) + " " + std::string(name));
}

}  // namespace pantrigo
