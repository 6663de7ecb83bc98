// Signals as something to be waited for: none interrupts what runs, and none is lost.
#pragma once

#include "platform/linux/unique_fd.h"

namespace orvanta {

class Signals {
 public:
  /// Made before any other thread, so that all hold them back. One that was ignored at the start stays ignored.
  Signals();
  /// To be waited on for reading.
  int fd() const { return fd_.get(); }

  enum class What { None, End, ChildEnded };
  /// What has come, End for a wish that this program should end.
  What next();

 private:
  UniqueFd fd_;
};

}  // namespace orvanta
