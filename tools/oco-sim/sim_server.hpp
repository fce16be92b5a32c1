#pragma once
// The simulator's HTTP/1.1 server: one request per connection, answered from the service's paths,
// the fault table and the control paths under /sim/:
//   /sim/fault?path=<prefix>&kind=<kind>&count=<n>  spoil the next n (default 1) requests of a path
//   /sim/reset                                      clear the faults and the log
//   /sim/log                                        the request lines received so far, one a line
// /sim/ requests are neither logged nor spoiled nor asked for a login.
#include <QObject>
#include <QTcpServer>
#include <string>
#include <vector>

#include "fault_table.hpp"
#include "http_request.hpp"
#include "service_paths.hpp"

class QTcpSocket;

namespace ocosim {

struct Login {
  std::string user;  // empty: no login asked for
  std::string password;
};

class SimServer : public QObject {
  Q_OBJECT

 public:
  SimServer(ServiceData data, Login login, QObject* parent = nullptr);
  // Listens on 127.0.0.1; port 0 takes a free one. False with the reason in `error`.
  bool Listen(quint16 port, std::string& error);
  quint16 Port() const { return server_.serverPort(); }

 private:
  void Accept();
  void Read(QTcpSocket* socket);
  void Handle(QTcpSocket* socket, const HttpRequest& request);
  HttpAnswer Control(const HttpRequest& request);
  HttpAnswer Service(const HttpRequest& request) const;
  bool LoggedIn(const HttpRequest& request) const;
  static void Send(QTcpSocket* socket, const HttpAnswer& answer, bool cut = false);

  QTcpServer server_;
  ServiceData data_;
  Login login_;
  FaultTable faults_;
  std::vector<std::string> log_;
};

}  // namespace ocosim
