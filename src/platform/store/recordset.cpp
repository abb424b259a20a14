#include "platform/store/recordset.h"

#include "platform/text/errors.h"

namespace pantrigo {

namespace {

constexpr int objectClosed = 3420;

}  // namespace

void Recordset::Close() {
  if (!cursor_) throw RuntimeError(objectClosed);
  cursor_.reset();
}

Cursor& Recordset::cursor() const {
  if (!cursor_) throw RuntimeError(objectClosed);
  return *cursor_;
}

}  // namespace pantrigo
