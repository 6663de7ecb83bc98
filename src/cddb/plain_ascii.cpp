// One likeness for each byte of the code page's upper half.
#include "cddb/plain_ascii.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "base/code_page.h"

namespace orvanta {

namespace {

constexpr std::array<const char*, 128> kLikeness = {
    "EUR", "?",  "'", "f",   "\"", "...", "+",  "+", "^",  "0/00", "S", "<",  "OE",  "?",   "Z",   "?",   //
    "?",   "'",  "'", "\"",  "\"", "*",   "-",  "-", "~",  "TM",   "s", ">",  "oe",  "?",   "z",   "Y",   //
    " ",   "!",  "c", "GBP", "?",  "Y",   "|",  "S", "\"", "(C)",  "a", "<<", "-",   "-",   "(R)", "-",   //
    "o",   "+-", "2", "3",   "'",  "u",   "P",  ".", ",",  "1",    "o", ">>", "1/4", "1/2", "3/4", "?",   //
    "A",   "A",  "A", "A",   "Ae", "A",   "AE", "C", "E",  "E",    "E", "E",  "I",   "I",   "I",   "I",   //
    "D",   "N",  "O", "O",   "O",  "O",   "Oe", "x", "O",  "U",    "U", "U",  "Ue",  "Y",   "Th",  "ss",  //
    "a",   "a",  "a", "a",   "ae", "a",   "ae", "c", "e",  "e",    "e", "e",  "i",   "i",   "i",   "i",   //
    "d",   "n",  "o", "o",   "o",  "o",   "oe", "/", "o",  "u",    "u", "u",  "ue",  "y",   "th",  "y"};

/// What stands in pasted titles and is in no code page, as UTF-8.
constexpr std::pair<std::string_view, std::string_view> kPasted[] = {
    {"\xE2\x80\x90", "-"}, {"\xE2\x80\x91", "-"},  {"\xE2\x80\x92", "-"}, {"\xE2\x80\x95", "-"},  // hyphens and bars
    {"\xE2\x88\x92", "-"}, {"\xE2\x80\xB2", "'"},  {"\xE2\x80\x89", " "}, {"\xE2\x80\xAF", " "},  // minus, prime, thin blanks
    {"\xE2\x80\x8B", ""},  {"\xC8\x98", "S"},      {"\xC8\x99", "s"},     {"\xC8\x9A", "T"},
    {"\xC8\x9B", "t"},     {"\xEF\xAC\x81", "fi"}, {"\xEF\xAC\x82", "fl"}};

/// Marks of their own, U+0300 to U+036F, go; their letter stays.
bool isMark(std::string_view text) {
  if (text.size() < 2) return false;
  const auto lead = static_cast<unsigned char>(text[0]);
  return lead == 0xCC || (lead == 0xCD && static_cast<unsigned char>(text[1]) < 0xB0);
}

std::string withoutPasted(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    if (isMark(text)) {
      text.remove_prefix(2);
      continue;
    }
    const auto* found = std::find_if(std::begin(kPasted), std::end(kPasted), [&](const auto& row) { return text.starts_with(row.first); });
    const bool pasted = found != std::end(kPasted);
    plain += pasted ? found->second : text.substr(0, 1);
    text.remove_prefix(pasted ? found->first.size() : 1);
  }
  return plain;
}

}  // namespace

std::string plainAscii(std::string_view text) {
  constexpr unsigned char kHalf = 0x80;
  constexpr char kHighest = 126;
  std::string plain;
  for (const char c : toWindows1252(withoutPasted(text))) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= kHalf) {
      plain += kLikeness.at(byte - kHalf);
    } else {
      plain += c > kHighest ? '?' : c;
    }
  }
  return plain;
}

}  // namespace orvanta
