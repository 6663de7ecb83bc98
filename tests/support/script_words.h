// Lines of a scenario as words, and what a deck did as lines.
#pragma once

#include <string>
#include <vector>

#include "tests/support/fakes.h"

namespace orvanta::test {

/// "insert=A" or "let-go", as it stands on a line of acts or of a start.
struct Word {
  std::string verb;
  std::string value;
  /// The value's parts between commas.
  Tape list() const;
  int number(size_t i = 0) const;
  std::vector<int> numbers() const;
};

/// Words of a line; between quotes blanks stand for themselves, \n and \t for what they are elsewhere. Behind " # " come remarks.
std::vector<Word> wordsOf(const std::string& line);
/// One after another; what comes again and again once, with its number.
std::string runs(const Tape& all, const char* between);
/// Of a file in the family's code page.
Tape linesOf(const std::string& bytes);

}  // namespace orvanta::test
