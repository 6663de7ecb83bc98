// The program's pictures for the desktop.
#pragma once

namespace orvanta {

/// Gives the program's windows and task buttons their icon, in every size that there is a drawing for; once. It is more
/// to send to the desktop than all the rest of a start, so that the first window does this when it has been painted.
void giveWindowIcon();

}  // namespace orvanta
