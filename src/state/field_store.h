// A file of fields together with its companion, read and saved as one.
#pragma once

#include <optional>
#include <string>

#include "platform/ports/files.h"
#include "state/field_file.h"

namespace orvanta {

struct FieldBytes {
  std::string bytes;
  std::string companion;

  /// Reads in here: it must stand as long as the reader does.
  FieldReader reader() const& { return FieldReader(bytes, companion); }
  FieldReader reader() const&& = delete;
};

/// nullopt when the file is missing or cannot be read; a missing companion is an empty one.
std::optional<FieldBytes> readFieldFile(const Files& files, const std::string& path);

/// False: both files hold what they held before.
bool writeFieldFile(Files& files, const std::string& path, const FieldWriter& fields);

/// True when both are gone afterwards.
bool removeFieldFile(Files& files, const std::string& path);

}  // namespace orvanta
