// The program's pictures for the desktop.
#pragma once

#include <QIcon>

namespace orvanta {

/// Of its windows and task buttons, in every size that there is a drawing for.
QIcon applicationIcon();

}  // namespace orvanta
