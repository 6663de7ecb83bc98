// One likeness for each byte of the code page's upper half.
#include "cddb/plain_ascii.h"

#include <array>

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

}  // namespace

std::string plainAscii(std::string_view text) {
  constexpr unsigned char kHalf = 0x80;
  constexpr char kHighest = 126;
  std::string plain;
  for (const char c : toWindows1252(text)) {
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
