#pragma once
// Faults on demand: for the next N requests whose path starts with a prefix, the simulator answers
// as a failing service would instead of with the page asked for. Set over /sim/fault, cleared by
// /sim/reset. When several prefixes match a request, the longest one's fault applies.
#include <map>
#include <optional>
#include <string>

#include "http_answer.hpp"

namespace ocosim {

enum class FaultKind {
  kUnauthorized,            // 401 with "WWW-Authenticate: Basic" and "Unauthorized" in the body
  kInputIncomplete,         // 200, "INPUT INCOMPLETE" in the body
  kErrorReport,             // 500, a servlet's "Error report" page
  kTemporarilyUnavailable,  // 503, "Service Temporarily Unavailable"
  kEmpty,                   // 200 with an empty body
  kSilent,                  // the request is read and never answered
  kSlow,                    // the right answer, after a delay
  kCut,                     // the head of the right answer and half its body, then the connection closes
};

struct Fault {
  FaultKind kind = FaultKind::kEmpty;
  int delayMs = 0;  // kSlow only
};

// Reads a kind as /sim/fault names it: "unauthorized", "input-incomplete", "error-report",
// "temporarily-unavailable", "empty", "silent", "cut", or "slow=<milliseconds>".
std::optional<Fault> ParseFault(const std::string& text);

// The answer of a fault that replaces the page (the first five kinds).
HttpAnswer FaultAnswer(FaultKind kind);
// The answer to a request without the right login.
HttpAnswer UnauthorizedAnswer();

class FaultTable {
 public:
  // Sets the fault for `prefix` for the next `count` requests, replacing the one it had.
  void Set(const std::string& prefix, Fault fault, int count);
  void Clear() { faults_.clear(); }
  // The fault of the longest prefix of `path` that still has requests to spoil, used up by one.
  std::optional<Fault> Take(const std::string& path);

 private:
  struct Entry {
    Fault fault;
    int remaining = 0;
  };
  std::map<std::string, Entry> faults_;
};

}  // namespace ocosim
