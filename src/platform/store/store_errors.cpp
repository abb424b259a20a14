#include "platform/store/store_errors.h"

#include <sqlite3.h>

#include "platform/text/errors.h"

namespace pantrigo {

int errorNumberOf(int engineResult) {
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
    default:
      return store_error::cannotOpen;
  }
}

void checkResult(int engineResult) {
  if (engineResult == SQLITE_OK || engineResult == SQLITE_ROW || engineResult == SQLITE_DONE) return;
  throw RuntimeError(errorNumberOf(engineResult));
}

}  // namespace pantrigo
