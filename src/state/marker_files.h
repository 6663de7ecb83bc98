// Marker files of the data folder: they say by standing there, and hold one record, "0".
#pragma once

#include <string>

#include "base/text.h"
#include "platform/ports/files.h"

namespace orvanta {

/// A player runs; for the sibling programs.
constexpr const char* kRunningMarker = "audiocd.tmp";
/// Hand-over between two processes: stands until the new one has started.
constexpr const char* kHandOverMarker = "ejcd.tmp";

inline void setMarker(Files& files, const std::string& appDir, const char* marker) { files.write(joinPath(appDir, marker), "\"0\"\r\n"); }

inline void clearMarker(Files& files, const std::string& appDir, const char* marker) { files.remove(joinPath(appDir, marker)); }

}  // namespace orvanta
