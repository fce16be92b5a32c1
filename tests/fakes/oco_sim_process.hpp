#pragma once
// oco-sim, the local stand-in for the agency's web service, as a child process of a test: started on
// a free port of 127.0.0.1 with a dataset, ready once the constructor returns, killed with the object.
#include <string>
#include <sys/types.h>
#include <vector>

namespace benchlog::testing {

class OcoSimProcess {
 public:
  // Starts build/bin/oco-sim with --port 0, --dataset `datasetPath` and `extraArguments` (such as
  // "--user", "u", "--password", "p"), and waits up to 10 seconds until it accepts connections.
  // Throws std::runtime_error when it does not.
  explicit OcoSimProcess(const std::string& datasetPath, const std::vector<std::string>& extraArguments = {});
  ~OcoSimProcess();
  OcoSimProcess(const OcoSimProcess&) = delete;
  OcoSimProcess& operator=(const OcoSimProcess&) = delete;

  int Port() const { return port_; }
  // "http://127.0.0.1:<port>", the value of the setting "ServiceAddress" that reaches it.
  std::string BaseUrl() const;

 private:
  void Stop();

  pid_t pid_ = -1;
  int output_ = -1;  // the read end of its standard output, kept open so that it can always write
  int port_ = 0;
};

// The executable the build makes beside the program.
std::string OcoSimExecutable();

}  // namespace benchlog::testing
