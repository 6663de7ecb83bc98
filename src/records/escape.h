// What a quoted field of the disc's files cannot hold, and what stands for it there.
#pragma once

#include <string>

namespace orvanta {

/// A double quote becomes a backquote, a comma a tilde.
std::string escapeField(std::string text);

/// And back. Real backquotes and tildes come back as quotes and commas; that is the price of the form.
std::string unescapeField(std::string text);

}  // namespace orvanta
