#include "sim_server.hpp"

#include <QByteArray>
#include <QTcpSocket>
#include <QTimer>

namespace ocosim {
namespace {

constexpr qsizetype kLargestHead = 64 * 1024;
const char* const kReceived = "ocosim.received";

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

}  // namespace

SimServer::SimServer(ServiceData data, Login login, QObject* parent)
    : QObject(parent), data_(std::move(data)), login_(std::move(login)) {
  connect(&server_, &QTcpServer::newConnection, this, &SimServer::Accept);
}

bool SimServer::Listen(quint16 port, std::string& error) {
  if (server_.listen(QHostAddress::LocalHost, port)) return true;
  error = server_.errorString().toStdString();
  return false;
}

void SimServer::Accept() {
  while (QTcpSocket* socket = server_.nextPendingConnection()) {
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(socket); });
  }
}

// Gathers the head; a connection carries one request, so what follows it is not read.
void SimServer::Read(QTcpSocket* socket) {
  QByteArray received = socket->property(kReceived).toByteArray() + socket->readAll();
  const std::string text = received.toStdString();
  const std::size_t end = HeadEnd(text);
  if (end == std::string::npos) {
    if (received.size() > kLargestHead) Send(socket, TextAnswer(400, "Request head too large\n"));
    else socket->setProperty(kReceived, received);
    return;
  }
  disconnect(socket, &QTcpSocket::readyRead, this, nullptr);
  const auto request = ParseRequestHead(std::string_view(text).substr(0, end));
  if (!request) return Send(socket, TextAnswer(400, "Bad request line\n"));
  Handle(socket, *request);
}

void SimServer::Handle(QTcpSocket* socket, const HttpRequest& request) {
  if (request.path.rfind("/sim/", 0) == 0) return Send(socket, Control(request));
  log_.push_back(request.requestLine);
  const std::optional<Fault> fault = faults_.Take(request.path);
  if (!fault) return Send(socket, Service(request));
  switch (fault->kind) {
    case FaultKind::kSilent:
      return;  // the client's time-out ends it; the socket goes when the client closes
    case FaultKind::kSlow: {
      const HttpAnswer answer = Service(request);
      QTimer::singleShot(fault->delayMs, socket, [socket, answer] { Send(socket, answer); });
      return;
    }
    case FaultKind::kCut:
      return Send(socket, Service(request), true);
    default:
      return Send(socket, FaultAnswer(fault->kind));
  }
}

HttpAnswer SimServer::Control(const HttpRequest& request) {
  if (request.path == "/sim/log") return TextAnswer(200, Joined(log_));
  if (request.path == "/sim/reset") {
    faults_.Clear();
    log_.clear();
    return TextAnswer(200, "OK\n");
  }
  if (request.path == "/sim/fault") {
    const QueryPairs query = ParseQuery(request.query);
    const std::string path = QueryValue(query, "path");
    const std::optional<Fault> fault = ParseFault(QueryValue(query, "kind"));
    const std::string count = QueryValue(query, "count");
    const int n = count.empty() ? 1 : std::atoi(count.c_str());
    if (path.empty() || !fault || n < 1) return TextAnswer(400, "Usage: /sim/fault?path=<prefix>&kind=<kind>&count=<n>\n");
    faults_.Set(path, *fault, n);
    return TextAnswer(200, "OK\n");
  }
  return TextAnswer(404, "No such control path: " + request.path + "\n");
}

HttpAnswer SimServer::Service(const HttpRequest& request) const {
  if (!LoggedIn(request)) return UnauthorizedAnswer();
  return AnswerServicePath(data_, request);
}

bool SimServer::LoggedIn(const HttpRequest& request) const {
  if (login_.user.empty()) return true;
  const auto header = request.headers.find("authorization");
  if (header == request.headers.end() || header->second.rfind("Basic ", 0) != 0) return false;
  const QByteArray given = QByteArray::fromBase64(QByteArray::fromStdString(header->second.substr(6)));
  return given.toStdString() == login_.user + ":" + login_.password;
}

// Writes the answer and closes once it is out; `cut` sends the whole head but half the body.
void SimServer::Send(QTcpSocket* socket, const HttpAnswer& answer, bool cut) {
  const std::string body = cut ? answer.body.substr(0, answer.body.size() / 2) : answer.body;
  socket->write(QByteArray::fromStdString(AnswerHead(answer) + body));
  socket->disconnectFromHost();
}

}  // namespace ocosim
