// The CD Data window's contents as a web page.
#pragma once

#include <string>

#include "state/shared_state.h"
#include "windows/acdtabs.h"

namespace orvanta {

class Dialogs;
class Files;
struct Ports;

class HtmlExport {
 public:
  HtmlExport(Ports& ports, acdtabs& form, SharedState& state);

  /// Asks where to, and writes. A cancel, or a file that cannot be written, is silent.
  void run();
  /// The page as it stands. Texts go out as they were typed: nothing is escaped.
  std::string page() const;

 private:
  std::string facts() const;
  std::string tracks() const;
  std::string lyrics() const;

  Files& files_;
  Dialogs& dialogs_;
  acdtabs& form_;
  SharedState& state_;
};

}  // namespace orvanta
