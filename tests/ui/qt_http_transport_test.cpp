// The Qt transfer object against a tiny HTTP server inside the test: bodies come back byte for
// byte, the login goes with the request, a refusal reads as "Unauthorized", and silence or a closed
// port gives "".
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include "fakes/fakes.hpp"
#include "platform/qt/qt_http_transport.hpp"

using namespace benchlog;

namespace {

// Answers every request with `response` (raw bytes, status line included) and closes; with an
// empty response it stays silent. Keeps the head of each request.
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
  QList<QByteArray> heads;

 private:
  void Serve(QTcpSocket& socket) {
    buffer_ += socket.readAll();
    const qsizetype end = buffer_.indexOf("\r\n\r\n");
    if (end < 0) return;
    heads.append(buffer_.left(end));
    buffer_.clear();
    if (response_.isEmpty()) return;
    socket.write(response_);
    socket.disconnectFromHost();
  }
  QTcpServer server_;
  QByteArray response_;
  QByteArray buffer_;
};

QByteArray Response(const QByteArray& status, const QByteArray& body, const QByteArray& extra = "") {
  return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
         "\r\nConnection: close\r\n" + extra + "\r\n" + body;
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
    QTest::newRow("a challenge comes back as the refusal")
        << Response("401 Unauthorized", "no", "WWW-Authenticate: Basic realm=\"oco\"\r\n") << "ann"
        << QByteArray("Unauthorized") << false;
    QTest::newRow("500 comes as it came") << Response("500 Internal Server Error", "ERROR REPORT 7") << ""
                                          << QByteArray("ERROR REPORT 7") << true;
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

  void loginGoesWithTheRequest() {
    TinyServer server(Response("200 OK", "ok"));
    testing::MemorySettings settings;
    qt::QtHttpTransport transport(settings);
    transport.URL = server.Url().toStdString();
    QCOMPARE(transport.OpenURL(), std::string("ok"));
    transport.UserName = "ann";
    transport.Password = "s3cret";
    QCOMPARE(transport.OpenURL(), std::string("ok"));
    QCOMPARE(server.heads.size(), 2);
    QVERIFY(server.heads[0].startsWith("GET /cgi-bin/ds_pids.prl?1=AB1234 HTTP/1.1"));
    QVERIFY(!server.heads[0].toLower().contains("authorization:"));
    // "ann:s3cret" in base 64, worked out by hand.
    QVERIFY2(server.heads[1].contains("Authorization: Basic YW5uOnMzY3JldA=="), server.heads[1].constData());
  }

  void silenceAndAClosedPortGiveNothing() {
    testing::MemorySettings settings;
    settings.SaveSetting("Settings", "RequestTimeout", "0.5");
    qt::QtHttpTransport transport(settings);

    TinyServer silent("");
    transport.URL = silent.Url().toStdString();
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(transport.OpenURL(), std::string());
    QVERIFY2(clock.elapsed() >= 450 && clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(silent.heads.size(), 1);

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
