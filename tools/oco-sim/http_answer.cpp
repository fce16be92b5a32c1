#include "http_answer.hpp"

namespace ocosim {
namespace {

const char* Reason(int status) {
  switch (status) {
    case 200: return "OK";
    case 400: return "Bad Request";
    case 401: return "Unauthorized";
    case 404: return "Not Found";
    case 500: return "Internal Server Error";
    case 503: return "Service Unavailable";
    default: return "Unknown";
  }
}

}  // namespace

std::string AnswerHead(const HttpAnswer& answer) {
  std::string head = "HTTP/1.1 " + std::to_string(answer.status) + " " + Reason(answer.status) + "\r\n";
  head += "Server: oco-sim\r\n";
  head += "Content-Type: " + answer.contentType + "\r\n";
  head += "Content-Length: " + std::to_string(answer.body.size()) + "\r\n";
  head += "Connection: close\r\n";
  for (const auto& [name, value] : answer.headers) head += name + ": " + value + "\r\n";
  return head + "\r\n";
}

HttpAnswer HtmlPage(const std::string& title, const std::vector<std::string>& lines) {
  HttpAnswer answer;
  answer.body = "<HTML>\n<HEAD><TITLE>" + title + "</TITLE></HEAD>\n<BODY>\n<PRE>\n";
  for (const std::string& line : lines) answer.body += line + "\n";
  answer.body += "</PRE>\n</BODY>\n</HTML>\n";
  return answer;
}

HttpAnswer TextAnswer(int status, const std::string& text) {
  HttpAnswer answer;
  answer.status = status;
  answer.contentType = "text/plain";
  answer.body = text;
  return answer;
}

}  // namespace ocosim
