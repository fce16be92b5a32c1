#pragma once
// The program's transfer object over a bare HTTP GET, standing in for the Qt transfer in tests that
// run whole web commands against oco-sim. No login: the tests' service asks for none.
#include "fakes/plain_http_get.hpp"
#include "platform/http_transport.hpp"

namespace benchlog::testing {

class PlainTransport final : public HttpTransport {
 public:
  std::string OpenURL() override { return PlainHttpGet(URL).body; }
};

}  // namespace benchlog::testing
