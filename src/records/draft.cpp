// One line a text.
#include "records/draft.h"

#include "base/code_page.h"
#include "base/text.h"
#include "state/whole_texts.h"

namespace orvanta {

Draft parseDraft(const std::string& bytes) {
  Draft draft;
  if (!isUtf8(bytes)) return draft;
  for (const std::string& line : splitLines(bytes)) {
    const auto tab = line.find('\t');
    if (tab != std::string::npos) draft.emplace_back(line.substr(0, tab), anyLines(line.substr(tab + 1)));
  }
  return draft;
}

std::string draftBytes(const Draft& draft) {
  std::string bytes;
  for (const auto& [name, text] : draft) bytes += name + "\t" + oneLine(text) + "\n";
  return bytes;
}

}  // namespace orvanta
