#pragma once
// A failure of the classic run time: a number and its description, thrown where it happens and
// trapped where a command's description traps it.
#include <stdexcept>
#include <string>

namespace benchlog {

struct RuntimeFailure : std::runtime_error {
  RuntimeFailure(int number, const std::string& description)
      : std::runtime_error(description), number(number), description(description) {}
  int number;
  std::string description;
};

// A file that could not be written whole: "Disk full" (61) when the disk or the quota is full,
// "Path/File access error" (75) for any other reason; the text names the file and the reason.
struct WriteFailure : RuntimeFailure {
  WriteFailure(const std::string& path, int osError);
};

enum FailureNumber : int {
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kInvalidProcedureCall = 5,
  kDiskFull = 61,
  kPathFileAccessError = 75,
  kCancelError = 32755,  // a cancelled common dialog
};

RuntimeFailure Overflow();
RuntimeFailure SubscriptOutOfRange();
RuntimeFailure DivisionByZero();
RuntimeFailure TypeMismatch();
RuntimeFailure FileNotFound();
RuntimeFailure InvalidProcedureCall();
RuntimeFailure PathFileAccessError();
RuntimeFailure CancelError();

}  // namespace benchlog
