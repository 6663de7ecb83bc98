// The CD Data window's contents as a web page.
#pragma once

#include <string>

#include "state/shared_state.h"
#include "windows/acdtabs.h"

namespace orvanta {

class Dialogs;
class Files;

class HtmlExport {
 public:
  HtmlExport(Files& files, Dialogs& dialogs, acdtabs& form, const Settings& settings)
      : files_(files), dialogs_(dialogs), form_(form), settings_(settings) {}

  /// Asks where to, and writes the page of the window's disc. A cancel is silent.
  void run(const DiscState& disc);
  /// The page as it stands. Texts go out as they were typed: nothing is escaped.
  std::string page(const DiscState& disc) const;

 private:
  std::string facts(const DiscState& disc) const;
  std::string tracks(const DiscState& disc) const;
  std::string lyrics() const;

  Files& files_;
  Dialogs& dialogs_;
  acdtabs& form_;
  const Settings& settings_;
};

}  // namespace orvanta
