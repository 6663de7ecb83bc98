// Both are one pass, character for character.
#include "records/escape.h"

namespace orvanta {

namespace {

std::string swapped(std::string text, char quote, char comma, char toQuote, char toComma) {
  for (char& c : text) {
    if (c == quote) {
      c = toQuote;
    } else if (c == comma) {
      c = toComma;
    }
  }
  return text;
}

}  // namespace

std::string escapeField(std::string text) { return swapped(std::move(text), '"', ',', '`', '~'); }

std::string unescapeField(std::string text) { return swapped(std::move(text), '`', '~', '"', ','); }

}  // namespace orvanta
