#pragma once
// The program's one transfer object for the agency's web service. It keeps the URL and the
// credentials between requests, so that a login given once stays in force for the rest of the run.
#include <string>

namespace benchlog {

class HttpTransport {
 public:
  virtual ~HttpTransport() = default;

  std::string URL;
  std::string UserName;  // sent with every following request when not empty (HTTP basic authentication)
  std::string Password;

  // A blocking GET of URL. Returns the whole body as bytes; "" when nothing came back (no connection,
  // no answer within the time-out). A request the service refuses for want of a login yields a body
  // that holds the word "Unauthorized". The window repaints while the request runs.
  virtual std::string OpenURL() = 0;
};

}  // namespace benchlog
