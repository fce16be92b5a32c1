#pragma once
// The three ways the program talks to the agency's web service, over the one transfer object
// (Platform::http). The service tells its failures in the body, so each operation searches the
// body for fixed words and hands back one failure text, ErrMsg: "" means success. The three differ
// on purpose (which words they know, whether and how often they try again), and callers rely on it:
//
//   body holds                 GetUrlOnce              GetPidBatches               GetUrlRetry
//   "Unauthorized"             login, fetch again      login, fetch, wait, retry   as GetPidBatches
//   login refused              "Internet access failed"  the same, return         "...failed!", stop
//   "INPUT INCOMPLETE"         "Invalid input data!"   the same, wait and retry    any case, stop
//   "ERROR REPORT"             -                       -                           any case, stop
//   "TEMPORARILY UNAVAILABLE"  -                       -                           any case, wait, retry
//   nothing                    "Request timeout..."    the same, wait and retry    the same
//
// A failure text is not cleared by a later good try: callers see the failure, and GetPidBatches
// drops that batch. The waits between tries last the setting "RetryWait" (5 seconds) and let the
// windows repaint.
#include <string>
#include <vector>

#include "platform/platform.hpp"

namespace benchlog {

inline constexpr const char* kLoginFailed = "Internet access failed";
inline constexpr const char* kInvalidInput = "Invalid input data!";
inline constexpr const char* kRequestTimeout = "Request timeout.\r\nNo response received.";
inline constexpr const char* kServletError = "Error running servlet.\r\nContact OCO to report problem.";
inline constexpr const char* kTemporarilyUnavailable = "Server is temporarily unavailable!";
inline constexpr int kTries = 5;
inline constexpr std::size_t kBatchSize = 100;
inline constexpr int kMaxBatches = 10;  // PIDs past the thousandth are never asked for

// One request, no retry. Leaves the hourglass on; the caller turns it off.
void GetUrlOnce(Platform& platform, const std::string& url, std::string& response, std::string& ErrMsg);

// The Descriptions of `pids` (pids[0] is the PID numbered 1), in batches of 100, five tries a batch,
// driving the progress dialog the caller has shown. Blank entries use up their number in the query.
// Returns what came before a failing batch together with the failure text.
void GetPidBatches(Platform& platform, const std::vector<std::string>& pids, std::string& response, std::string& ErrMsg);

// One URL, up to five tries, with the widest classification. The hourglass is on while it runs.
void GetUrlRetry(Platform& platform, const std::string& url, std::string& response, std::string& ErrMsg);

}  // namespace benchlog
