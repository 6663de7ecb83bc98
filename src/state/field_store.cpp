// The companion is written first, with the old lines behind the new ones: whichever of the two states a save that
// breaks in the middle leaves behind, each text finds its line.
#include "state/field_store.h"

namespace orvanta {

namespace {

std::string companionOf(const std::string& path) { return path + ".utf8"; }

bool put(Files& files, const std::string& path, const std::string& bytes) {
  return bytes.empty() ? files.remove(path) : files.write(path, bytes);
}

}  // namespace

std::optional<FieldBytes> readFieldFile(const Files& files, const std::string& path) {
  auto bytes = files.read(path);
  if (!bytes) return std::nullopt;
  return FieldBytes{std::move(*bytes), files.read(companionOf(path)).value_or("")};
}

bool writeFieldFile(Files& files, const std::string& path, const FieldWriter& fields) {
  const std::string companion = companionOf(path);
  const std::string old = files.read(companion).value_or("");
  const std::string fresh = fields.companion();
  const bool changes = fresh != old;
  if (changes && !fresh.empty() && !files.write(companion, fresh + old)) return false;
  if (!files.write(path, fields.bytes())) {
    if (changes && !fresh.empty()) put(files, companion, old);
    return false;
  }
  // Old lines that stay behind do no harm as long as nothing holds what they were written for.
  if (changes && !old.empty()) put(files, companion, fresh);
  return true;
}

bool removeFieldFile(Files& files, const std::string& path) { return files.remove(path) && files.remove(companionOf(path)); }

}  // namespace orvanta
