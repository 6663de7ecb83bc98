// A library that is loaded when it is first needed: what it brings along costs a start time and memory that most have no
// use for.
#pragma once

#include <dlfcn.h>

#include <type_traits>

namespace orvanta {

class LateLibrary {
 public:
  /// `name` with its version, as the system's loader looks it up. It stays for the rest of the process.
  explicit LateLibrary(const char* name) : library_(dlopen(name, RTLD_LAZY | RTLD_LOCAL)), whole_(library_ != nullptr) {}

  template <class Call>
  void find(Call*& call, const char* name) {
    if (library_ != nullptr) call = reinterpret_cast<Call*>(dlsym(library_, name));
    whole_ = whole_ && call != nullptr;
  }

  /// Is there, with every call that was looked for.
  bool whole() const { return whole_; }

 private:
  void* library_;
  bool whole_;
};

}  // namespace orvanta
