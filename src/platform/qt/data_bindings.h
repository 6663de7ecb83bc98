// Which class serves which kind of control in a data window: tables of rows.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "platform/qt/data_binding.h"

namespace orvanta {

struct BindingRow {
  forms::Kind kind;
  std::string_view hint;  ///< "" fits any
  std::unique_ptr<Binding> (*make)(FormRoad&, forms::Control&, QWidget& parent, double factor);
};

template <class B, class C>
std::unique_ptr<Binding> made(FormRoad& road, forms::Control& control, QWidget& parent, double factor) {
  return std::make_unique<B>(road, static_cast<C&>(control), parent, factor);
}

/// Makes the control's widget on `parent`, sizes by the factor; nullptr for a kind that data windows do not have.
std::unique_ptr<Binding> bind(FormRoad& road, forms::Control& control, QWidget& parent, double factor);

// Of a kind the first row that fits.
std::span<const BindingRow> fieldBindings();
std::span<const BindingRow> keyBindings();

/// Design pixels at the window's scale.
inline int sized(int design, double factor) { return static_cast<int>(design * factor); }

}  // namespace orvanta
