// Arrivals as the network cuts them become replies as the handlers expect them: a line, or a whole list.
// Every line comes with CR LF, whatever the server ends its lines with.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

enum class Shape {
  Line,   ///< one line
  Reply,  ///< a line; of codes 210 and 211 all up to the line "."
  Mail,   ///< a mail server's reply: lines "250-..." up to the first without the dash
};

class ReplyShaper {
 public:
  /// False when more waits than any honest reply has: what came is dropped.
  bool take(std::string_view bytes);
  /// The next reply; nullopt while it is not whole.
  std::optional<std::string> next(Shape shape);
  void clear();

  static constexpr size_t kMost = size_t{4} << 20;  ///< bytes

 private:
  std::optional<std::string> nextUpTo(bool (*last)(std::string_view line));

  std::string waiting_;
  size_t start_ = 0;     ///< of the reply that comes next; what stands before it has been given
  size_t searched_ = 0;  ///< up to here is no end of it
};

/// Every line end as CR LF; a lone CR is none.
std::string withLineEnds(std::string_view bytes);

}  // namespace orvanta
