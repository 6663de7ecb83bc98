// A value of a control or form that is assigned and read like a variable. A change is told to the
// owner, which marks itself for its view; assigning an equal value does nothing.
#pragma once

#include <utility>

namespace orvanta::forms {

enum class Change { Geometry, Visibility, Enabled, Text, Look, Rows, Selection };

class PropertyOwner {
 public:
  virtual void propertyChanged(Change change) = 0;

 protected:
  ~PropertyOwner() = default;
};

template <class T>
class Property {
 public:
  Property(PropertyOwner& owner, Change change, T value = {}) : owner_(owner), value_(std::move(value)), change_(change) {}
  Property(const Property&) = delete;
  ~Property() = default;

  Property& operator=(const Property& other) {
    if (this != &other) *this = other.value_;
    return *this;
  }
  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    owner_.propertyChanged(change_);
    return *this;
  }

  const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor): it reads as the value

  friend bool operator==(const Property& a, const T& b) { return a.value_ == b; }

 private:
  PropertyOwner& owner_;
  T value_;
  Change change_;
};

}  // namespace orvanta::forms
