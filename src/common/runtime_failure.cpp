#include "common/runtime_failure.hpp"

namespace benchlog {

RuntimeFailure Overflow() { return {kOverflow, "Overflow"}; }
RuntimeFailure SubscriptOutOfRange() { return {kSubscriptOutOfRange, "Subscript out of range"}; }
RuntimeFailure DivisionByZero() { return {kDivisionByZero, "Division by zero"}; }
RuntimeFailure TypeMismatch() { return {kTypeMismatch, "Type mismatch"}; }
RuntimeFailure FileNotFound() { return {kFileNotFound, "File not found"}; }
RuntimeFailure InvalidProcedureCall() { return {kInvalidProcedureCall, "Invalid procedure call or argument"}; }
RuntimeFailure PathFileAccessError() { return {kPathFileAccessError, "Path/File access error"}; }
RuntimeFailure CancelError() { return {kCancelError, "Cancel was selected."}; }

}  // namespace benchlog
