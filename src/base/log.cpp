// Topics are looked up in the environment once.
#include "base/log.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace orvanta {

bool logs(std::string_view topic) {
  static const std::string kTopics = [] {
    const char* set = std::getenv("ORVANTA_LOG");
    return set == nullptr ? std::string() : "," + std::string(set) + ",";
  }();
  return !kTopics.empty() && kTopics.find("," + std::string(topic) + ",") != std::string::npos;
}

void logLine(std::string_view topic, std::string_view text) {
  if (!logs(topic)) return;
  const auto now = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now().time_since_epoch());
  std::fprintf(stderr, "%.*s %lld %.*s\n", static_cast<int>(topic.size()), topic.data(), static_cast<long long>(now.count()),
               static_cast<int>(text.size()), text.data());
}

}  // namespace orvanta
