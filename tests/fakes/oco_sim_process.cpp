#include "oco_sim_process.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

extern char** environ;

namespace benchlog::testing {
namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kStartLimit = std::chrono::seconds(10);

// Reads the first line the process writes ("oco-sim listening on http://127.0.0.1:<port>") and
// gives the port, 0 when none comes before the limit or the process ends first.
int ReadPort(int fd, Clock::time_point limit) {
  std::string text;
  while (text.find('\n') == std::string::npos && Clock::now() < limit) {
    pollfd ready{fd, POLLIN, 0};
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(limit - Clock::now()).count();
    if (poll(&ready, 1, static_cast<int>(left > 0 ? left : 0)) <= 0) break;
    char buffer[256];
    const ssize_t n = read(fd, buffer, sizeof buffer);
    if (n <= 0) break;
    text.append(buffer, static_cast<std::size_t>(n));
  }
  const std::size_t colon = text.rfind(':');
  return colon == std::string::npos ? 0 : std::atoi(text.c_str() + colon + 1);
}

bool Accepts(int port) {
  const int fd = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const bool connected = connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  close(fd);
  return connected;
}

}  // namespace

std::string OcoSimExecutable() { return BENCHLOG_BINARY_DIR "/bin/oco-sim"; }

OcoSimProcess::OcoSimProcess(const std::string& datasetPath, const std::vector<std::string>& extraArguments) {
  std::vector<std::string> arguments = {OcoSimExecutable(), "--port", "0", "--dataset", datasetPath};
  arguments.insert(arguments.end(), extraArguments.begin(), extraArguments.end());
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);

  int pipeEnds[2];
  if (pipe(pipeEnds) != 0) throw std::runtime_error("oco-sim: no pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, pipeEnds[0]);
  const int spawned = posix_spawn(&pid_, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(pipeEnds[1]);
  output_ = pipeEnds[0];
  if (spawned != 0) {
    pid_ = -1;
    Stop();
    throw std::runtime_error("oco-sim: cannot start " + arguments[0]);
  }

  const auto limit = Clock::now() + kStartLimit;
  port_ = ReadPort(output_, limit);
  while (port_ > 0 && !Accepts(port_) && Clock::now() < limit) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  if (port_ <= 0 || !Accepts(port_)) {
    Stop();
    throw std::runtime_error("oco-sim did not start with dataset " + datasetPath);
  }
}

OcoSimProcess::~OcoSimProcess() { Stop(); }

void OcoSimProcess::Stop() {
  if (pid_ > 0) {
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
  }
  if (output_ >= 0) close(output_);
  output_ = -1;
}

std::string OcoSimProcess::BaseUrl() const { return "http://127.0.0.1:" + std::to_string(port_); }

}  // namespace benchlog::testing
