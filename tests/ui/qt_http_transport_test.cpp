// The Qt transfer object against a tiny HTTP server inside the test: bodies come back byte for
// byte and a refusal reads as "Unauthorized".
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include "fakes/fakes.hpp"
#include "platform/qt/qt_http_transport.hpp"

using namespace benchlog;

namespace {

// Answers every request with `response` (raw bytes, status line included) and closes.
class TinyServer : public QObject {
 public:
  explicit TinyServer(QByteArray response) : response_(std::move(response)) {
    QVERIFY(server_.listen(QHostAddress::LocalHost));
    connect(&server_, &QTcpServer::newConnection, this, [this] {
      while (QTcpSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Serve(*socket); });
      }
    });
  }
  QString Url() const { return QString("http://127.0.0.1:%1/cgi-bin/ds_pids.prl?1=AB1234").arg(server_.serverPort()); }

 private:
  void Serve(QTcpSocket& socket) {
    buffer_ += socket.readAll();
    const qsizetype end = buffer_.indexOf("\r\n\r\n");
    if (end < 0) return;
    buffer_.clear();
    socket.write(response_);
    socket.disconnectFromHost();
  }
  QTcpServer server_;
  QByteArray response_;
  QByteArray buffer_;
};

QByteArray Response(const QByteArray& status, const QByteArray& body) {
  return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
         "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray AllBytes() {
  QByteArray bytes;
  for (int b = 1; b < 256; ++b) bytes.append(static_cast<char>(b));
  bytes.append('\0');
  return bytes;
}

}  // namespace

class QtHttpTransportTest : public QObject {
  Q_OBJECT

 private slots:
  void answers_data() {
    QTest::addColumn<QByteArray>("response");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<bool>("exact");  // else `expected` must stand in the body
    QTest::newRow("every byte, 0x80 to 0xFF too") << Response("200 OK", AllBytes()) << "" << AllBytes() << true;
    QTest::newRow("401 without the word") << Response("401 Unauthorised", "Go away") << "" << QByteArray("Unauthorized") << false;
    QTest::newRow("403 keeps a body with the word")
        << Response("403 Forbidden", "<h1>Unauthorized</h1>") << "ann" << QByteArray("<h1>Unauthorized</h1>") << true;
  }

  void answers() {
    QFETCH(QByteArray, response);
    QFETCH(QString, user);
    QFETCH(QByteArray, expected);
    QFETCH(bool, exact);
    TinyServer server(response);
    testing::MemorySettings settings;
    qt::QtHttpTransport transport(settings);
    transport.URL = server.Url().toStdString();
    transport.UserName = user.toStdString();
    transport.Password = "s3cret";
    const std::string body = transport.OpenURL();
    const QByteArray got(body.data(), static_cast<qsizetype>(body.size()));
    if (exact) QCOMPARE(got, expected);
    else QVERIFY2(got.contains(expected), got.constData());
  }

  // Silence, the login sent along and the service's refusals are seen against oco-sim
  // (tests/e2e/web_transfers_e2e_test.cpp); a port where nobody listens gives nothing at once.
  void aClosedPortGivesNothing() {
    testing::MemorySettings settings;
    qt::QtHttpTransport transport(settings);
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const quint16 port = closed.serverPort();
    closed.close();
    transport.URL = "http://127.0.0.1:" + std::to_string(port) + "/";
    QCOMPARE(transport.OpenURL(), std::string());
  }
};

QTEST_MAIN(QtHttpTransportTest)
#include "qt_http_transport_test.moc"
