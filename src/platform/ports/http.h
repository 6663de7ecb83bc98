// One HTTP question and its answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvanta {

/// Posted as a form. Redirects are not followed.
struct HttpRequest {
  std::string url;  ///< with or without "http://"; a port in it gives way to `port`
  uint16_t port = 80;
  std::string body;
  std::string proxy;  ///< "host:port", "" for none
  std::string user;   ///< for a proxy that asks who we are; never sent to others
  std::string password;
  size_t most = 0;  ///< bytes of a body; a longer one is an error
};

struct HttpReply {
  int status = 0;  ///< of HTTP; 0 when nothing came
  std::string body;
  std::string error;  ///< the system's words; "" when a reply is there, whatever its status
};

}  // namespace orvanta
