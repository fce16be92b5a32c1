#pragma once
// The replacement of Descriptions that ends the five update commands: download the Descriptions of
// the PIDs, take the old ones out, add the new text without the service's page around it, squeeze
// the dataset, index it and report. The dataset is not changed in place: the new one is made in
// work files beside the dataset and its index and put in place at the end (replacement_files.hpp),
// so a run that fails or is stopped leaves the dataset and its index exactly as they were.
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"
#include "web/replacement_rules.hpp"

namespace benchlog {

struct ReplacementOptions {
  // Called between the steps with the step's name. Empty in the program; tests stop the run there.
  std::function<void(const char*)> betweenSteps;
};

// The refusals before a command asks anything: a read-only dataset (the command's own words,
// critical, title "Update from Internet") and a dataset whose lines end in LF alone. True when
// the command is refused, the user having been told.
bool RefusedForReplacement(ReplaceCommand command, const std::string& datasetPath, Ui& ui);

// Runs the sequence for `pids` (pids[0] is the PID numbered 1; at most 1,000 are fetched), with
// `notUpdated` the number of marks the keep rule refused. Every outcome is shown to the user; on
// success the index in `dataset` describes the new dataset.
void ReplaceDescriptionsOf(ReplaceCommand command, const std::vector<std::string>& pids, std::size_t notUpdated,
                           DatasetState& dataset, Platform& platform, const ReplacementOptions& options = {});

}  // namespace benchlog
