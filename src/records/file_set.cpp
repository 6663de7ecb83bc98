// Putting back is tried, not promised: a disk that is full may refuse that too. Each file is whole either way.
#include "records/file_set.h"

#include "platform/ports/files.h"

namespace orvanta {

Unwritten FileSet::commit() {
  for (size_t i = 0; i < wanted_.size(); ++i) {
    Wanted& file = wanted_[i];
    file.before = files_.read(file.path);
    const bool unreadable = !file.before && files_.exists(file.path);
    if (!unreadable && files_.write(file.path, file.bytes)) continue;
    const Unwritten failed{file.path, unreadable ? "it is there and cannot be read" : files_.reason()};
    putBack(i);
    return failed;
  }
  return {};
}

void FileSet::putBack(size_t count) {
  while (count-- > 0) {
    const Wanted& file = wanted_[count];
    if (file.before) {
      files_.write(file.path, *file.before);
    } else {
      files_.remove(file.path);
    }
  }
}

}  // namespace orvanta
