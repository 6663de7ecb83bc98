// The names of an image's files: from a sheet to the disk, and from there to a person's eyes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvanta {

struct ImagePath {
  std::filesystem::path path;
  std::string error;  ///< why there is none
};

/// Resolves `name` inside `folder`, links followed. What is not there as written is looked for in any
/// letter case, and with its accents composed or apart. What leads out of the folder is refused.
ImagePath resolveInside(const std::string& folder, const std::string& name);

/// A name or path as a message can show it: on one line, a long one without its middle.
std::string shown(std::string_view name);

/// The same in quotes.
std::string inQuotes(std::string_view name);

}  // namespace orvanta
