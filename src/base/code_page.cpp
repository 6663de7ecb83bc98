// The code page by its table: 0x80..0x9F are the odd ones, all else is Latin-1.
#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orvanta {

namespace {

constexpr uint32_t kBroken = 0xFFFD;
constexpr std::array<uint16_t, 32> kHigh = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                            0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                            0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

void append(std::string& out, uint32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | c >> 6);
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | c >> 12);
    out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

/// Takes one character off the front; kBroken, and one byte, for anything malformed.
uint32_t next(std::string_view& text) {
  const auto lead = static_cast<uint8_t>(text.front());
  const size_t length = lead < 0x80                   ? 1
                        : lead >= 0xC2 && lead < 0xE0 ? 2
                        : lead >= 0xE0 && lead < 0xF0 ? 3
                        : lead >= 0xF0 && lead < 0xF5 ? 4
                                                      : 0;
  uint32_t c = length == 1 ? lead : length == 2 ? lead & 0x1FU : length == 3 ? lead & 0x0FU : lead & 0x07U;
  bool good = length > 0 && text.size() >= length;
  for (size_t i = 1; good && i < length; ++i) {
    const auto byte = static_cast<uint8_t>(text[i]);
    good = (byte & 0xC0) == 0x80;
    c = c << 6 | (byte & 0x3FU);
  }
  good = good && !(length == 3 && (c < 0x800 || (c >= 0xD800 && c < 0xE000))) && !(length == 4 && (c < 0x10000 || c > 0x10FFFF));
  text.remove_prefix(good ? length : 1);
  return good ? c : kBroken;
}

/// The page's byte for a character; -1 when it has none.
int pageByte(uint32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c < 0x100)) return static_cast<int>(c);
  const auto* found = c == kBroken ? kHigh.end() : std::find(kHigh.begin(), kHigh.end(), c);
  return found == kHigh.end() ? -1 : static_cast<int>(0x80 + (found - kHigh.begin()));
}

/// U+0100 to U+017F without their marks.
constexpr std::string_view kPlainLatin =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(kPlainLatin.size() == 128);

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const bool replacement = bytes.substr(0, 3) == "\xEF\xBF\xBD";
    if (next(bytes) == kBroken && !replacement) return false;
  }
  return true;
}

std::string fromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char raw : bytes) {
    const auto byte = static_cast<uint8_t>(raw);
    append(text, byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80U] : byte);
  }
  return text;
}

std::string toWindows1252(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const uint32_t c = next(text);
    const int byte = pageByte(c);
    bytes += byte >= 0 ? static_cast<char>(byte) : c >= 0x100 && c < 0x180 ? kPlainLatin[c - 0x100] : '?';
  }
  return bytes;
}

bool fitsWindows1252(std::string_view text) {
  while (!text.empty()) {
    if (pageByte(next(text)) < 0) return false;
  }
  return true;
}

}  // namespace orvanta
