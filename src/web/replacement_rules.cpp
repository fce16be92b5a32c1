#include "web/replacement_rules.hpp"

#include "common/text.hpp"

namespace benchlog {
namespace {

// Keeping "PID not found!" in the failure text (county, project) or clearing it at once (radius)
// ends the same way: the compression clears it, and the radius command, which does not compress,
// clears it itself. So the rules only tell whether other blanking failures stop the run.
const ReplacementRules kRules[] = {
    // county
    {".dat file is read-only", false, false, DownloadFailure::kLengthTestOnly, "", true, true, true,
     "Adding new data...", true, "Compressing file...", "Creating new index...", FinalMessage::kCounts, ""},
    // radius
    {"", true, false, DownloadFailure::kLengthTestOnly, "", true, true, true, "Adding new data...", false, "",
     "Creating new index...", FinalMessage::kCounts, "Import from Internet by Lat, Lon, Radius"},
    // project
    {"", false, true, DownloadFailure::kStop, "Import from Internet by Project", false, true, true,
     "Adding new data...", true, "", "", FinalMessage::kProjectCounts, ""},
    // by PID
    {"File is read-only", false, false, DownloadFailure::kIgnored, "", false, false, false, "Adding new data...",
     true, "", "", FinalMessage::kDone, ""},
    // CORS by state
    {"File is read-only", false, false, DownloadFailure::kIgnored, "", false, false, false,
     "Adding CORS stations...", true, "", "", FinalMessage::kDone, ""},
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
