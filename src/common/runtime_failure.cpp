#include "common/runtime_failure.hpp"

#include <cerrno>
#include <cstring>

namespace benchlog {

namespace {

bool IsDiskFull(int osError) { return osError == ENOSPC || osError == EDQUOT; }

std::string WriteFailureText(const std::string& path, int osError) {
  return std::string(IsDiskFull(osError) ? "Disk full" : "Path/File access error") + ": could not write " + path +
         " (" + std::strerror(osError) + ")";
}

}  // namespace

WriteFailure::WriteFailure(const std::string& path, int osError)
    : RuntimeFailure(IsDiskFull(osError) ? kDiskFull : kPathFileAccessError, WriteFailureText(path, osError)) {}

RuntimeFailure Overflow() { return {kOverflow, "Overflow"}; }
RuntimeFailure SubscriptOutOfRange() { return {kSubscriptOutOfRange, "Subscript out of range"}; }
RuntimeFailure DivisionByZero() { return {kDivisionByZero, "Division by zero"}; }
RuntimeFailure TypeMismatch() { return {kTypeMismatch, "Type mismatch"}; }
RuntimeFailure FileNotFound() { return {kFileNotFound, "File not found"}; }
RuntimeFailure InvalidProcedureCall() { return {kInvalidProcedureCall, "Invalid procedure call or argument"}; }
RuntimeFailure PathFileAccessError() { return {kPathFileAccessError, "Path/File access error"}; }
RuntimeFailure CancelError() { return {kCancelError, "Cancel was selected."}; }

}  // namespace benchlog
