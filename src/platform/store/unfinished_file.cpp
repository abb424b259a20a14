#include "platform/store/unfinished_file.h"

#include <string>
#include <system_error>

namespace pantrigo {

UnfinishedFile::~UnfinishedFile() {
  if (isKept_) return;
  for (const char* ending : {"", "-journal", "-wal", "-shm"}) {
    std::filesystem::path path = file_;
    path += ending;
    // The failure that led here is being reported already.
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
  }
}

}  // namespace pantrigo
