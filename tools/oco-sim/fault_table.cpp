#include "fault_table.hpp"

#include <cstdlib>

namespace ocosim {

std::optional<Fault> ParseFault(const std::string& text) {
  static const std::map<std::string, FaultKind> kKinds = {
      {"unauthorized", FaultKind::kUnauthorized},
      {"input-incomplete", FaultKind::kInputIncomplete},
      {"error-report", FaultKind::kErrorReport},
      {"temporarily-unavailable", FaultKind::kTemporarilyUnavailable},
      {"empty", FaultKind::kEmpty},
      {"silent", FaultKind::kSilent},
      {"cut", FaultKind::kCut},
  };
  if (const auto kind = kKinds.find(text); kind != kKinds.end()) return Fault{kind->second, 0};
  if (text.rfind("slow=", 0) == 0) {
    char* end = nullptr;
    const long ms = std::strtol(text.c_str() + 5, &end, 10);
    if (end != text.c_str() + 5 && *end == '\0' && ms >= 0) return Fault{FaultKind::kSlow, static_cast<int>(ms)};
  }
  return std::nullopt;
}

HttpAnswer UnauthorizedAnswer() {
  HttpAnswer answer = HtmlPage("401 Unauthorized", {"<H1>Unauthorized</H1>",
                                                    "This server could not verify that you are authorized to "
                                                    "access the document requested."});
  answer.status = 401;
  answer.headers.emplace_back("WWW-Authenticate", "Basic realm=\"OCO\"");
  return answer;
}

HttpAnswer FaultAnswer(FaultKind kind) {
  switch (kind) {
    case FaultKind::kUnauthorized:
      return UnauthorizedAnswer();
    case FaultKind::kInputIncomplete:
      return HtmlPage("OCO", {" INPUT INCOMPLETE - please give every field of the request."});
    case FaultKind::kErrorReport: {
      HttpAnswer answer = HtmlPage("OCO servlet - Error report",
                                   {"<H1>HTTP Status 500 - Error report</H1>", " The servlet failed to run."});
      answer.status = 500;
      return answer;
    }
    case FaultKind::kTemporarilyUnavailable: {
      HttpAnswer answer = HtmlPage("503 Service Temporarily Unavailable",
                                   {"<H1>Service Temporarily Unavailable</H1>",
                                    " The server is down for maintenance. Please try again later."});
      answer.status = 503;
      return answer;
    }
    default:
      return TextAnswer(200, "");
  }
}

void FaultTable::Set(const std::string& prefix, Fault fault, int count) { faults_[prefix] = Entry{fault, count}; }

std::optional<Fault> FaultTable::Take(const std::string& path) {
  auto best = faults_.end();
  for (auto it = faults_.begin(); it != faults_.end(); ++it)
    if (it->second.remaining > 0 && path.rfind(it->first, 0) == 0 &&
        (best == faults_.end() || it->first.size() > best->first.size()))
      best = it;
  if (best == faults_.end()) return std::nullopt;
  const Fault fault = best->second.fault;
  if (--best->second.remaining == 0) faults_.erase(best);
  return fault;
}

}  // namespace ocosim
