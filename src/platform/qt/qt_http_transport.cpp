#include "platform/qt/qt_http_transport.hpp"

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
  // Sent with every request. A challenge is not answered: the same login again would be refused
  // again, and the program must see each refusal to ask the user (the body then says "Unauthorized").
  if (!UserName.empty()) {
    const QByteArray pair = QByteArray::fromStdString(UserName + ":" + Password);
    request.setRawHeader("Authorization", "Basic " + pair.toBase64());
  }
  std::unique_ptr<QNetworkReply> reply(manager_.get(request));

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
  // The connection broke during the answer: what came is not the whole answer, so it counts as none.
  const QNetworkReply::NetworkError error = reply.error();
  if (error != QNetworkReply::NoError && error < QNetworkReply::ProxyConnectionRefusedError) return "";
  const QByteArray bytes = reply.readAll();
  // Qt does not always see a connection that closes early: a body shorter than announced is no answer.
  const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
  if (announced.isValid() && bytes.size() < announced.toLongLong()) return "";
  std::string body(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const int code = status.toInt();
  if ((code == 401 || code == 403) && body.find("Unauthorized") == std::string::npos)
    body = "Unauthorized\r\n" + body;
  return body;
}

}  // namespace benchlog::qt
