// A mark that is put back by itself.
#pragma once

#include <utility>

namespace orvanta {

/// Sets a value for as long as it lives.
template <class T>
class Meanwhile {
 public:
  Meanwhile(T& value, T now) : value_(value), before_(std::exchange(value, now)) {}
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;
  ~Meanwhile() { value_ = before_; }

 private:
  T& value_;
  T before_;
};

}  // namespace orvanta
