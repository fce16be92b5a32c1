#pragma once
// The five commands that end in the replacement of Descriptions (county, radius, project, by PID,
// CORS by state) run one sequence; where they differ, and users rely on each difference, the
// difference is a field of ReplacementRules, so that the sequence reads the same for all five.
#include <string>

#include "platform/ui.hpp"

namespace benchlog {

enum class ReplaceCommand { kCounty, kRadius, kProject, kByPid, kCorsByState };

// What the sequence does with the failure text of the download.
enum class DownloadFailure {
  kLengthTestOnly,  // looked at only by the length test, which replaces it
  kStop,            // shown as a critical message under downloadFailureTitle; the command ends
  kIgnored,         // never read: the old Descriptions go even when the download failed
};

enum class FinalMessage { kCounts, kProjectCounts, kDone };

struct ReplacementRules {
  const char* readOnlyText;  // the refusal of a read-only dataset; "" when there is no such test
  bool backupToTrash;        // the dataset as it stood goes to the desktop's trash
  bool noDataIsFailureText;  // no answer at all becomes the failure text "No data returned!"
  DownloadFailure downloadFailure;
  const char* downloadFailureTitle;
  bool lengthTest;           // an answer under 3,000 characters is "Insufficient data received"
  bool blankFailureStops;    // a blanking failure other than "PID not found!" ends the run
  bool notFoundCleared;      // "PID not found!" is cleared at once, not left for the next failure to show
  bool blankProgress;        // the bar follows the blanking, with events let through
  const char* addingCaption;
  bool compress;
  const char* compressCaption;  // "" leaves the captions as they stand
  const char* indexCaption;     // likewise
  FinalMessage finalMessage;
  const char* errorTitle;  // "" for a plain message of the failure text
};

const ReplacementRules& RulesFor(ReplaceCommand command);

inline constexpr std::size_t kMinimumAnswerLength = 3000;
inline constexpr const char* kNoDataReturned = "No data returned!";
inline constexpr const char* kInsufficientData = "Insufficient data received";
inline constexpr const char* kPidNotFound = "PID not found!";

// The closing message: `updated` is the number of PIDs asked for, `notUpdated` the number the
// keep rule refused.
MessageRequest FinalMessageOf(const ReplacementRules& rules, std::size_t updated, std::size_t notUpdated);

}  // namespace benchlog
