#pragma once
// A GET of oco-sim through the program's own transfer, for the tests' set-up and look-ups (faults,
// the request log). `user` and `password` go with it when given.
#include <string>

#include "fakes/fakes.hpp"
#include "platform/qt/qt_http_transport.hpp"

namespace benchlog::testing {

inline std::string SimGet(const std::string& url, const std::string& user = "", const std::string& password = "") {
  MemorySettings settings;
  qt::QtHttpTransport transport(settings);
  transport.URL = url;
  transport.UserName = user;
  transport.Password = password;
  return transport.OpenURL();
}

}  // namespace benchlog::testing
