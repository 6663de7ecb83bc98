// Whether programs work in a folder.
#pragma once

#include <string>

namespace orvanta {

/// True while a process of this user has its program, its working folder or an open file in `folder` or below it.
bool folderInUse(const std::string& folder);

}  // namespace orvanta
