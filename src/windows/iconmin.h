// ICONmin, the task button of a faceplate that is hidden: a window with nothing but a title.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct ICONmin : forms::Form {
  ICONmin() : Form("ICONmin") {}

  forms::WindowTraits traits() const override { return {.onTop = false, .inTaskbar = true, .bodyless = true, .behind = false}; }
};

}  // namespace orvanta
