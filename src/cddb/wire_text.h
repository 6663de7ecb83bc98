// Text as it comes from servers and goes to them.
#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// UTF-8 from a server's bytes: those that are UTF-8 are taken for it, all else is the code page. A byte
/// order mark goes.
std::string fromWire(std::string_view bytes);

/// A server's line to be shown: without its line end and other control characters, and no longer than a box can hold.
std::string lineAsText(std::string_view line);

/// Words for a box, and what the server or the system said as a paragraph of its own.
std::string withReason(const std::string& text, const std::string& reason);

/// A value for a protocol line, in the code page. Control characters become blanks, so that nothing
/// typed can begin a command of its own.
std::string toWire(std::string_view text);

/// A line without blanks at both ends, and without a first character that servers' lines never begin
/// with: a leftover of what stood before.
std::string_view cleanStart(std::string_view line);

/// The first letter in upper case: "rock" gives "Rock".
std::string capitalised(std::string_view text);

/// The server's number at the start of a line; 0 for none.
int replyCode(std::string_view line);
/// From here on a server says no.
inline constexpr int kFirstRefusal = 400;

}  // namespace orvanta
