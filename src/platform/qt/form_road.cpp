// The end of a form's road.
#include "platform/qt/form_road.h"

namespace orvanta {

void FormRoad::close(std::function<void()> afterLast) {
  form_ = nullptr;
  afterLast_ = std::move(afterLast);
  if (entered_ == 0) afterLast_();
}

}  // namespace orvanta
