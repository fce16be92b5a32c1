#include "http_request.hpp"

#include <cctype>

namespace ocosim {
namespace {

std::string Lower(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return out;
}

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r')) text.remove_suffix(1);
  return text;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::size_t HeadEnd(std::string_view received) {
  const std::size_t crlf = received.find("\r\n\r\n");
  const std::size_t lf = received.find("\n\n");
  if (crlf != std::string_view::npos && (lf == std::string_view::npos || crlf < lf)) return crlf + 4;
  return lf == std::string_view::npos ? std::string_view::npos : lf + 2;
}

std::optional<HttpRequest> ParseRequestHead(std::string_view head) {
  HttpRequest request;
  bool first = true;
  while (!head.empty()) {
    const std::size_t end = head.find('\n');
    std::string_view line = head.substr(0, end);
    head = end == std::string_view::npos ? std::string_view() : head.substr(end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (first) {
      first = false;
      request.requestLine = std::string(line);
      const std::size_t a = line.find(' ');
      const std::size_t b = a == std::string_view::npos ? a : line.find(' ', a + 1);
      if (b == std::string_view::npos) return std::nullopt;
      request.method = std::string(line.substr(0, a));
      request.target = std::string(line.substr(a + 1, b - a - 1));
      const std::size_t mark = request.target.find('?');
      request.path = request.target.substr(0, mark);
      if (mark != std::string::npos) request.query = request.target.substr(mark + 1);
    } else if (const std::size_t colon = line.find(':'); colon != std::string_view::npos) {
      request.headers[Lower(TrimBlanks(line.substr(0, colon)))] = std::string(TrimBlanks(line.substr(colon + 1)));
    }
  }
  if (first) return std::nullopt;
  return request;
}

std::string PercentDecode(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '+') {
      out += ' ';
    } else if (text[i] == '%' && i + 2 < text.size() && HexValue(text[i + 1]) >= 0 && HexValue(text[i + 2]) >= 0) {
      out += static_cast<char>(HexValue(text[i + 1]) * 16 + HexValue(text[i + 2]));
      i += 2;
    } else {
      out += text[i];
    }
  }
  return out;
}

QueryPairs ParseQuery(std::string_view query) {
  QueryPairs pairs;
  while (!query.empty()) {
    const std::size_t amp = query.find('&');
    const std::string_view pair = query.substr(0, amp);
    query = amp == std::string_view::npos ? std::string_view() : query.substr(amp + 1);
    if (pair.empty()) continue;
    const std::size_t eq = pair.find('=');
    pairs.emplace_back(PercentDecode(pair.substr(0, eq)),
                       eq == std::string_view::npos ? std::string() : PercentDecode(pair.substr(eq + 1)));
  }
  return pairs;
}

std::string QueryValue(const QueryPairs& pairs, std::string_view name) {
  for (const auto& [key, value] : pairs)
    if (key == name) return value;
  return {};
}

}  // namespace ocosim
