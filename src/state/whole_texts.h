// Texts that the code page or the form of the files cannot hold, kept whole in a companion file: "<file>.utf8", a line a
// field, "number<TAB>as the file holds it<TAB>whole". A line wins as long as the file still holds what was written
// for it; another program's edit wins over it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Any text as one line without a tab, and back.
std::string oneLine(std::string_view text);
std::string anyLines(std::string_view line);

class WholeTexts {
 public:
  explicit WholeTexts(std::string_view companion);
  /// The whole text of a field that the file holds as `held`: by its number, else by what it holds, since the lines of
  /// a list may have been moved by hand.
  std::string restored(int field, const std::string& held);

  /// A line of the companion.
  static std::string line(int field, std::string_view held, std::string_view whole);

 private:
  struct Line {
    int field;
    std::string held;
    std::string whole;
  };
  std::vector<Line> lines_;
};

}  // namespace orvanta
