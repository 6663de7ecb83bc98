// Telling encodings apart. Programs write sheets and lists in their desktop's own.
#include "base/foreign_text.h"

#include "base/code_page.h"

namespace orvanta {

namespace {

constexpr char32_t kUnknown = 0xFFFD;

void putUtf8(std::string& out, char32_t c) {
  const auto tail = [&](unsigned shift) { out += static_cast<char>(0x80U | (c >> shift & 0x3FU)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0U | c >> 6U);
    tail(0);
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0U | c >> 12U);
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0U | c >> 18U);
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

std::string fromUtf16(std::string_view bytes, bool bigEndian) {
  const auto byte = [&](size_t at) -> char32_t { return static_cast<unsigned char>(bytes[at]); };
  const auto unit = [&](size_t at) -> char32_t {
    if (at + 1 >= bytes.size()) return 0;
    return bigEndian ? byte(at) << 8U | byte(at + 1) : byte(at + 1) << 8U | byte(at);
  };
  std::string out;
  for (size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const char32_t high = unit(at);
    const char32_t low = unit(at + 2);
    const bool pair = high >= 0xD800 && high < 0xDC00 && low >= 0xDC00 && low < 0xE000;
    if (pair) {
      putUtf8(out, 0x10000 + ((high - 0xD800) << 10U) + (low - 0xDC00));
      at += 2;
    } else {
      putUtf8(out, high >= 0xD800 && high < 0xE000 ? kUnknown : high);
    }
  }
  return out;
}

std::string foreignText(std::string_view bytes) {
  const auto begins = [&](std::string_view mark) { return bytes.substr(0, mark.size()) == mark; };
  if (begins("\xFF\xFE") || begins("\xFE\xFF")) return fromUtf16(bytes.substr(2), bytes[0] == '\xFE');
  if (bytes.size() > 1 && (bytes[0] == '\0') != (bytes[1] == '\0')) return fromUtf16(bytes, bytes[0] == '\0');
  if (begins("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  return isUtf8(bytes) ? std::string(bytes) : fromWindows1252(bytes);
}

}  // namespace orvanta
