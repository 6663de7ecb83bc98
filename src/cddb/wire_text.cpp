// Servers speak ASCII lines with texts in whatever their contributors typed.
#include "cddb/wire_text.h"

#include "base/code_page.h"
#include "base/text.h"

namespace orvanta {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Digits, letters, and all beyond ASCII, where artists' names may begin too.
bool beginsLines(char c) {
  const bool beyondAscii = static_cast<unsigned char>(c) >= 0x80;
  return beyondAscii || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

std::string fromWire(std::string_view bytes) {
  if (!isUtf8(bytes)) return fromWindows1252(bytes);
  std::string text(bytes);
  for (auto mark = text.find(kByteOrderMark); mark != std::string::npos; mark = text.find(kByteOrderMark, mark)) {
    text.erase(mark, kByteOrderMark.size());
  }
  return text;
}

std::string lineAsText(std::string_view line) {
  constexpr size_t kMost = 500;  // characters; honest lines have 256 bytes
  return std::string(trim(firstCharacters(withoutControls(fromWire(line)), kMost)));
}

std::string withReason(const std::string& text, const std::string& reason) { return reason.empty() ? text : text + "\n\n" + reason; }

std::string toWire(std::string_view text) { return toWindows1252(trim(withoutControls(text))); }

std::string_view cleanStart(std::string_view line) {
  line = trim(line);
  if (!line.empty() && !beginsLines(line.front())) line = trim(line.substr(1));
  return line;
}

std::string capitalised(std::string_view text) { return upper(text.substr(0, 1)).append(text.substr(text.empty() ? 0 : 1)); }

int replyCode(std::string_view line) {
  int code = 0;
  for (const char c : trim(line).substr(0, 3)) {
    if (c < '0' || c > '9') return 0;
    code = code * 10 + (c - '0');
  }
  return code;
}

}  // namespace orvanta
