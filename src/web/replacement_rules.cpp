#include "web/replacement_rules.hpp"

#include "common/text.hpp"

namespace benchlog {
namespace {

// The failure text keeps what the last blanking said until the compression clears it; so a later
// run-time failure of the county, project, By PID and CORS commands shows "PID not found!" when the
// last PID was not in the dataset. The radius command, which does not compress, clears it at once.
// In the order of ReplaceCommand: county, radius, project, by PID, CORS by state.
const ReplacementRules kRules[] = {
    {.readOnlyText = ".dat file is read-only", .backupToTrash = false, .noDataIsFailureText = false,
     .downloadFailure = DownloadFailure::kLengthTestOnly, .downloadFailureTitle = "", .lengthTest = true,
     .blankFailureStops = true, .notFoundCleared = false, .blankProgress = true, .addingCaption = "Adding new data...",
     .compress = true, .compressCaption = "Compressing file...", .indexCaption = "Creating new index...",
     .finalMessage = FinalMessage::kCounts, .errorTitle = ""},
    {.readOnlyText = "", .backupToTrash = true, .noDataIsFailureText = false,
     .downloadFailure = DownloadFailure::kLengthTestOnly, .downloadFailureTitle = "", .lengthTest = true,
     .blankFailureStops = true, .notFoundCleared = true, .blankProgress = true, .addingCaption = "Adding new data...",
     .compress = false, .compressCaption = "", .indexCaption = "Creating new index...",
     .finalMessage = FinalMessage::kCounts, .errorTitle = "Import from Internet by Lat, Lon, Radius"},
    {.readOnlyText = "", .backupToTrash = false, .noDataIsFailureText = true, .downloadFailure = DownloadFailure::kStop,
     .downloadFailureTitle = "Import from Internet by Project", .lengthTest = false, .blankFailureStops = true,
     .notFoundCleared = false, .blankProgress = true, .addingCaption = "Adding new data...", .compress = true,
     .compressCaption = "", .indexCaption = "", .finalMessage = FinalMessage::kProjectCounts, .errorTitle = ""},
    {.readOnlyText = "File is read-only", .backupToTrash = false, .noDataIsFailureText = false,
     .downloadFailure = DownloadFailure::kIgnored, .downloadFailureTitle = "", .lengthTest = false,
     .blankFailureStops = false, .notFoundCleared = false, .blankProgress = false,
     .addingCaption = "Adding new data...", .compress = true, .compressCaption = "", .indexCaption = "",
     .finalMessage = FinalMessage::kDone, .errorTitle = ""},
    {.readOnlyText = "File is read-only", .backupToTrash = false, .noDataIsFailureText = false,
     .downloadFailure = DownloadFailure::kIgnored, .downloadFailureTitle = "", .lengthTest = false,
     .blankFailureStops = false, .notFoundCleared = false, .blankProgress = false,
     .addingCaption = "Adding CORS stations...", .compress = true, .compressCaption = "", .indexCaption = "",
     .finalMessage = FinalMessage::kDone, .errorTitle = ""},
};

const char* const kRefusedLine = "additional data was in the original description.";

}  // namespace

const ReplacementRules& RulesFor(ReplaceCommand command) { return kRules[static_cast<int>(command)]; }

MessageRequest FinalMessageOf(const ReplacementRules& rules, std::size_t updated, std::size_t notUpdated) {
  MessageRequest message;
  if (rules.finalMessage == FinalMessage::kDone || (rules.finalMessage == FinalMessage::kProjectCounts && notUpdated < 1)) {
    message.text = "Done!";
  } else if (rules.finalMessage == FinalMessage::kCounts) {
    message.text = std::to_string(updated) + " Descriptions were updated.";
    if (notUpdated > 0)
      message.text = std::to_string(notUpdated) + " Descriptions were not updated because" + kCrLf + kRefusedLine +
                     kCrLf + message.text;
  } else {
    message.title = "Update By Project";
    message.text = std::to_string(notUpdated) + " descriptions were not updated because" + kCrLf + kRefusedLine +
                   kCrLf + std::to_string(updated) + " descriptions updated.";
  }
  return message;
}

}  // namespace benchlog
