// The user's font and colour for the lists of the disc's windows.
#pragma once

#include "platform/forms/control.h"
#include "state/settings.h"

namespace orvanta {

/// Font group 3 and custom colour 7, where they are set.
inline void dressList(forms::ListBox& list, const Settings& settings) {
  const FontGroup& group = settings.fonts[kListFont];
  if (!group.fontName.empty()) {
    list.font = forms::Font{group.fontName, group.fontSize > 0 ? static_cast<double>(group.fontSize) : list.font.get().points,
                            group.fontBold != 0, group.fontItalic != 0, group.fontUnderline != 0};
    list.foreColor = group.fontColor;
  }
  if (settings.customColor[kCustomLists] != 0) list.backColor = settings.customColor[kCustomLists];
}

}  // namespace orvanta
