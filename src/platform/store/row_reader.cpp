#include "platform/store/row_reader.h"

#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

const Value& RowReader::field(TableAccess& access, int field) {
  if (stamp_ != access.changeNumber()) {
    known_ = 0;
    stamp_ = access.changeNumber();
  }
  if ((known_ & fieldBit(field)) == 0) {
    values_.resize(access.table().fields.size());
    const FieldSet read = access.read(rowNumber_, field, values_);
    if (read == 0) throw RuntimeError(store_error::recordDeleted);
    known_ |= read;
  }
  return values_[static_cast<std::size_t>(field)];
}

}  // namespace pantrigo
