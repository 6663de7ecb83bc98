// Texts beyond the code page, whole, in a file of our own beside the family's: lines of "field<TAB>as the family
// holds it<TAB>whole". A line wins as long as the family still holds what was written for it, so that another
// program's edit wins over it.
#pragma once

#include <string>
#include <vector>

#include "state/disc_texts.h"

namespace orvanta {

struct WholeText {
  std::string field;
  std::string held;
  std::string whole;
};

std::vector<WholeText> parseWholeTexts(const std::string& bytes);
std::string wholeTextsBytes(const std::vector<WholeText>& lines);

/// What a field comes back as when the family's file is read again.
std::string asRead(const std::string& text);

/// Of the fields of `texts` as the files hold them, those that have a line become whole.
void makeWhole(DiscTexts& texts, const std::vector<WholeText>& lines);

/// The lines that `texts` need.
std::vector<WholeText> linesFor(const DiscTexts& texts);

/// Lines for the moment in which some files are new and some still old: those of `fresh`, and of `old` those that still
/// hold. A new text that looks in the files like an old one gets a line of its own.
std::vector<WholeText> linesForBoth(const DiscTexts& fresh, const DiscTexts& held, const std::vector<WholeText>& old);

}  // namespace orvanta
