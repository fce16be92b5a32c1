#include "platform/qt/qt_http_transport.hpp"

#include <QAuthenticator>
#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <memory>

#include "common/number_text.hpp"

namespace benchlog::qt {
namespace {

constexpr int kDefaultTimeoutSeconds = 60;
constexpr double kMaxTimeoutSeconds = 86400;  // a day; more would overflow the timer

QString Latin1(const std::string& text) { return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())); }

}  // namespace

QtHttpTransport::QtHttpTransport(const SettingsStore& settings) : settings_(settings) {}

int QtHttpTransport::TimeoutMilliseconds() const {
  const double seconds = Val(settings_.GetSetting("Settings", "RequestTimeout", "60"));
  if (!(seconds > 0) || !std::isfinite(seconds)) return kDefaultTimeoutSeconds * 1000;
  return static_cast<int>(std::lround(std::min(seconds, kMaxTimeoutSeconds) * 1000));
}

std::string QtHttpTransport::OpenURL() {
  QNetworkRequest request(QUrl(Latin1(URL)));
  // Sent with the request, so that a service that does not challenge still sees the login.
  if (!UserName.empty()) {
    const QByteArray pair = QByteArray::fromStdString(UserName + ":" + Password);
    request.setRawHeader("Authorization", "Basic " + pair.toBase64());
  }
  std::unique_ptr<QNetworkReply> reply(manager_.get(request));

  // A challenge is answered once; a second one means the login was refused.
  bool answered = false;
  QObject::connect(&manager_, &QNetworkAccessManager::authenticationRequired, reply.get(),
                   [this, &answered, target = reply.get()](QNetworkReply* asking, QAuthenticator* auth) {
                     if (asking != target || answered || UserName.empty()) return;
                     answered = true;
                     auth->setUser(Latin1(UserName));
                     auth->setPassword(Latin1(Password));
                   });

  QEventLoop loop;
  QTimer timer;
  timer.setSingleShot(true);
  bool timedOut = false;
  QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
  QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
    timedOut = true;
    loop.quit();
  });
  timer.start(TimeoutMilliseconds());
  if (!reply->isFinished()) loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (timedOut) reply->abort();
  return BodyOf(*reply, timedOut);
}

std::string QtHttpTransport::BodyOf(QNetworkReply& reply, bool timedOut) {
  const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
  if (timedOut || !status.isValid()) return "";  // no connection, or no answer in time
  const QByteArray bytes = reply.readAll();
  std::string body(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const int code = status.toInt();
  if ((code == 401 || code == 403) && body.find("Unauthorized") == std::string::npos)
    body = "Unauthorized\r\n" + body;
  return body;
}

}  // namespace benchlog::qt
