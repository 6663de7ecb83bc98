// What names programs: a disc's autorun.inf, the desktop's lists and programs' files. None leads off the disc, or leaves a command
// that its own reader would take apart in another way.
#include <cstdlib>
#include <string>

#include "base/text.h"
#include "platform/linux/associations.h"
#include "web/browser.h"
#include "web/enhanced_disc.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::string way = orvanta::autorunFile(text);
  if (way.starts_with('/') || ("/" + way + "/").find("/../") != std::string::npos) std::abort();
  for (const std::string& choice : orvanta::choicesFor(text, "Default Applications", "text/html")) {
    if (choice.empty()) std::abort();
  }
  const auto command = orvanta::commandOf(text);
  if (!command) return 0;
  const std::string address = "http://x/ y";
  const auto arguments = orvanta::browserArguments(orvanta::splitCommand(*command, false), address);
  bool found = false;
  for (const std::string& argument : arguments) found = found || argument.find(address) != std::string::npos;
  if (arguments.empty() || !found || arguments.front().find(address) != std::string::npos) std::abort();
  return 0;
}
