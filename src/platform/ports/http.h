// One HTTP request at a time.
#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

struct HttpRequest {
  std::string url;  ///< with scheme, host and path
  uint16_t port = 80;
  std::string method = "POST";
  std::string body;
  std::string proxy;  ///< "host:port", "" for none
  std::string user;
  std::string password;
};

class HttpEvents {
 public:
  virtual ~HttpEvents() = default;
  /// The whole reply body, bytes.
  virtual void httpCompleted(const std::string& body) = 0;
  virtual void httpFailed(const std::string& reason) = 0;
};

class Http {
 public:
  virtual ~Http() = default;
  virtual void setEvents(HttpEvents* events) = 0;
  /// Returns at once; a request under way is given up first.
  virtual void execute(const HttpRequest& request) = 0;
  virtual void cancel() = 0;
};

}  // namespace orvanta
