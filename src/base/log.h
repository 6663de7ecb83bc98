// The developers' log on standard error: off unless ORVANTA_LOG names the topic, as in
// ORVANTA_LOG=device,start. Never a file.
#pragma once

#include <string_view>

namespace orvanta {

bool logs(std::string_view topic);
/// "topic microseconds text", the time being the steady clock's.
void logLine(std::string_view topic, std::string_view text);

}  // namespace orvanta
