#pragma once
// An answer of the simulator: status, extra headers and body, and its bytes on the wire. Every
// answer closes the connection behind it, so a client never waits for a second one.
#include <string>
#include <utility>
#include <vector>

namespace ocosim {

struct HttpAnswer {
  int status = 200;
  std::string contentType = "text/html";
  std::vector<std::pair<std::string, std::string>> headers;  // besides the standard ones
  std::string body;
};

// The status line and the headers, Content-Length giving the whole body, then the blank line.
std::string AnswerHead(const HttpAnswer& answer);

// A page of the service: `lines` joined by LF inside an HTML frame, each frame line starting
// with "<" (the program leaves such lines out of what it stores).
HttpAnswer HtmlPage(const std::string& title, const std::vector<std::string>& lines);
// A short answer of the simulator itself (control paths, unknown paths).
HttpAnswer TextAnswer(int status, const std::string& text);

}  // namespace ocosim
