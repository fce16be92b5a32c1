#include "plain_http_get.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>

namespace benchlog::testing {
namespace {

using Clock = std::chrono::steady_clock;

std::string Receive(int fd, int timeoutMs) {
  const auto limit = Clock::now() + std::chrono::milliseconds(timeoutMs);
  std::string received;
  while (Clock::now() < limit) {
    pollfd ready{fd, POLLIN, 0};
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(limit - Clock::now()).count();
    if (poll(&ready, 1, static_cast<int>(left > 0 ? left : 0)) <= 0) break;
    char buffer[8192];
    const ssize_t n = recv(fd, buffer, sizeof buffer, 0);
    if (n <= 0) break;
    received.append(buffer, static_cast<std::size_t>(n));
  }
  return received;
}

void ReadAnswer(const std::string& received, PlainHttpReply& reply) {
  reply.answered = !received.empty();
  const std::size_t end = received.find("\r\n\r\n");
  if (end == std::string::npos) return;
  reply.head = received.substr(0, end);
  reply.body = received.substr(end + 4);
  const std::size_t space = reply.head.find(' ');
  if (space != std::string::npos) reply.status = std::atoi(reply.head.c_str() + space + 1);
  const std::size_t length = reply.head.find("Content-Length: ");
  reply.complete = length != std::string::npos &&
                   std::strtoul(reply.head.c_str() + length + 16, nullptr, 10) == reply.body.size();
}

}  // namespace

PlainHttpReply PlainHttpGet(const std::string& url, int timeoutMs, const std::vector<std::string>& headers) {
  PlainHttpReply reply;
  const std::string rest = url.substr(url.find("//") + 2);
  const std::size_t slash = rest.find('/');
  const std::string hostPort = rest.substr(0, slash);
  const std::string target = slash == std::string::npos ? "/" : rest.substr(slash);
  const std::size_t colon = hostPort.find(':');
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(colon == std::string::npos ? 80 : std::atoi(hostPort.c_str() + colon + 1)));
  if (inet_pton(AF_INET, hostPort.substr(0, colon).c_str(), &address.sin_addr) != 1) return reply;

  const int fd = socket(AF_INET, SOCK_STREAM, 0);
  if (connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) {
    std::string request = "GET " + target + " HTTP/1.1\r\nHost: " + hostPort + "\r\nConnection: close\r\n";
    for (const std::string& header : headers) request += header + "\r\n";
    request += "\r\n";
    if (send(fd, request.data(), request.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(request.size()))
      ReadAnswer(Receive(fd, timeoutMs), reply);
  }
  close(fd);
  return reply;
}

}  // namespace benchlog::testing
