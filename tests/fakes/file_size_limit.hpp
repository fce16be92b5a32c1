#pragma once
// Makes every write of this process past `bytes` fail, as a full disk would, for as long as the
// object lives: the file size limit of the process is lowered and the signal it raises ignored,
// so a write that crosses the limit is cut short and the next one fails ("File too large").
// Both are put back at the end.
#include <csignal>
#include <sys/resource.h>

namespace benchlog::testing {

class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : oldSignal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    rlimit lowered = old_;
    lowered.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &lowered);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, oldSignal_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit old_{};
  void (*oldSignal_)(int);
};

}  // namespace benchlog::testing
