#pragma once
// The web service's transfer object on this system, over Qt's network access. A request blocks its
// caller, but the windows keep painting while it runs; the user's input waits until it ends, so no
// other command can start in between.
#include <QNetworkAccessManager>

#include "platform/http_transport.hpp"
#include "platform/settings_store.hpp"

class QNetworkReply;

namespace benchlog::qt {

class QtHttpTransport final : public HttpTransport {
 public:
  // The time-out is "RequestTimeout" of section "Settings" (seconds, default 60), read at each request.
  explicit QtHttpTransport(const SettingsStore& settings);

  // A GET of URL, with basic authentication sent along when UserName is set. A refusal (401, 403) gives a body
  // holding "Unauthorized"; another error status gives the body as it came; no connection or no
  // answer within the time-out gives "", and so does an answer cut short by a broken connection. The bytes come back untouched.
  std::string OpenURL() override;

 private:
  int TimeoutMilliseconds() const;
  static std::string BodyOf(QNetworkReply& reply, bool timedOut);

  const SettingsStore& settings_;
  QNetworkAccessManager manager_;
};

}  // namespace benchlog::qt
