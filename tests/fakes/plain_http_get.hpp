#pragma once
// A bare HTTP/1.1 GET over a socket, for tests that look at exactly what a local service sends:
// the target goes out byte for byte, and the answer comes back as it arrived, cut short or not.
#include <string>
#include <vector>

namespace benchlog::testing {

struct PlainHttpReply {
  bool answered = false;  // some byte came back before the connection closed or the time ran out
  bool complete = false;  // the head and a body as long as its Content-Length
  int status = 0;
  std::string head;  // status line and headers, without the blank line
  std::string body;
};

// GET of "http://<host>:<port><target>" (host a dotted IPv4 address), with `headers` ("Name: value")
// added. Waits at most `timeoutMs` for the answer to end.
PlainHttpReply PlainHttpGet(const std::string& url, int timeoutMs = 5000, const std::vector<std::string>& headers = {});

}  // namespace benchlog::testing
