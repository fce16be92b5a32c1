#include "web/replacement_sequence.hpp"

#include <string_view>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/dataset_size_limit.hpp"
#include "dataset/line_ends.hpp"
#include "web/replacement_files.hpp"
#include "web/response_lines.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

constexpr int kInternalError = 51;

// One run of the sequence: what every step reads and leaves for the next.
class Replacement {
 public:
  Replacement(ReplaceCommand command, const std::vector<std::string>& pids, DatasetState& dataset,
              Platform& platform, const ReplacementOptions& options)
      : rules_(RulesFor(command)),
        pids_(pids),
        dataset_(dataset),
        platform_(platform),
        progress_(platform.dlgProcessing),
        paths_(ReplacementPathsFor(dataset.DatFile, dataset.IndexFile)),
        options_(options) {}

  void Run(std::size_t notUpdated) {
    try {
      RemoveWorkFiles(paths_);
      if (!Download()) return;
      if (rules_.lengthTest && response_.size() < kMinimumAnswerLength) return ErrorExit(kInsufficientData);
      if (!PlanBlankings()) return ErrorExit(errMsg_);
      WriteNewDataset();
      progress_.Hide();
      if (rules_.compress && !Compress()) return ErrorExit(errMsg_);
      if (!FitsTheSizeLimit() || !Index()) return Abandon();
      Commit();
      progress_.Hide();
      platform_.ui.SetHourglass(false);
      platform_.ui.MsgBox(FinalMessageOf(rules_, pids_.size(), notUpdated));
    } catch (const RuntimeFailure& failure) {
      ErrorExit(errMsg_, failure);
    } catch (const std::exception& failure) {
      ErrorExit(errMsg_, RuntimeFailure(kInternalError, failure.what()));
    }
  }

 private:
  void Step(const char* name) const {
    if (options_.betweenSteps) options_.betweenSteps(name);
  }

  void Captions(const char* processing) {
    if (*processing == '\0') return;
    progress_.lblProcessing = processing;
    progress_.lblInfo.clear();
  }

  // False when the run ends here, the user having been told.
  bool Download() {
    progress_.max = static_cast<int>(pids_.size());
    progress_.value = 1;
    Captions("Retrieving data ...");
    progress_.Show();
    if (!pids_.empty()) GetPidBatches(platform_, pids_, response_, errMsg_);  // no PIDs: nothing to send
    Step("downloaded");
    if (response_.empty() && errMsg_.empty()) {
      if (!rules_.noDataIsFailureText) {
        StopWith(kNoDataReturned, "Get Data From Internet");
        return false;
      }
      errMsg_ = kNoDataReturned;
    }
    if (rules_.downloadFailure == DownloadFailure::kStop && !errMsg_.empty()) {
      StopWith(errMsg_, rules_.downloadFailureTitle);
      return false;
    }
    return true;
  }

  void StopWith(const std::string& text, const char* title) {
    progress_.Hide();
    platform_.ui.SetHourglass(false);
    platform_.ui.MsgBox(text, MsgButtons::Ok, MsgIcon::Critical, title);
  }

  // Works out what the blanking of each PID would overwrite; false when a blanking failure ends
  // the run (errMsg_ holds it). "PID not found!" is no failure: the new Description is added.
  bool PlanBlankings() {
    progress_.value = 1;
    Captions("Deleting old data...");
    progress_.Refresh();
    const bool writable = !IsReadOnly(dataset_.DatFile);
    for (std::size_t i = 1; i <= pids_.size(); ++i) {
      errMsg_ = PlanBlanking(dataset_.markIndex, dataset_.DatFile, writable, pids_[i - 1], spans_);
      if (rules_.blankFailureStops && !errMsg_.empty() && errMsg_ != kPidNotFound) return false;
      if (rules_.blankProgress && i % 50 == 0) {
        progress_.value = static_cast<int>(i);
        progress_.Refresh();
        platform_.ui.DoEvents();
      }
    }
    if (rules_.notFoundCleared && errMsg_ == kPidNotFound) errMsg_.clear();
    Step("blankings planned");
    return true;
  }

  void WriteNewDataset() {
    const std::vector<std::string_view> lines = SplitViews(response_, "\n");
    upperBound_ = static_cast<int>(lines.size()) - 1;
    if (upperBound_ > 100) {
      progress_.value = 1;
      progress_.max = upperBound_ / 100;
      Captions(rules_.addingCaption);
      progress_.Refresh();
    }
    std::vector<std::string_view> kept;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (IsDescriptionLine(lines[i])) kept.push_back(lines[i]);
      if ((i + 1) % 100 == 0 && progress_.max > progress_.value) {
        ++progress_.value;
        progress_.Refresh();
      }
    }
    WriteWorkDataset(paths_, spans_, kept, {});
    Step("work dataset written");
  }

  bool Compress() {
    progress_.barVisible = false;
    Captions(rules_.compressCaption);
    progress_.Refresh();
    errMsg_ = CompressDataset(paths_.workDataset, platform_);
    Step("compressed");
    return errMsg_.empty();
  }

  // A dataset past the size limit would give wrong look-ups: it is refused, the old one staying.
  bool FitsTheSizeLimit() {
    const std::string refusal = SizeLimitRefusal(FileLength(paths_.workDataset));
    if (refusal.empty()) return true;
    progress_.Hide();
    platform_.ui.MsgBox(refusal, MsgButtons::Ok, MsgIcon::Exclamation, "Update from Internet");
    return false;
  }

  // False when the build failed; it has told the user.
  bool Index() {
    progress_.barVisible = true;
    progress_.value = 1;
    progress_.max = upperBound_;
    Captions(rules_.indexCaption);
    progress_.Refresh();
    const bool built = BuildMarkIndex(paths_.workDataset, paths_.workIndex, newIndex_, platform_);
    Step("indexed");
    return built;
  }

  // From the rename of the dataset on, the new index in memory is the one that describes it, even
  // when a later step fails.
  void Commit() {
    CommitReplacement(paths_, rules_.backupToTrash, platform_.shell, [this](const char* name) {
      if (std::string_view(name) == "dataset renamed") dataset_.markIndex = std::move(newIndex_);
      Step(name);
    });
  }

  void Abandon() {
    RemoveWorkFiles(paths_);
    progress_.Hide();
    platform_.ui.SetHourglass(false);
  }

  void ErrorExit(const std::string& errMsg, const RuntimeFailure& failure = RuntimeFailure(0, "")) {
    Abandon();
    if (!errMsg.empty() && *rules_.errorTitle != '\0')
      platform_.ui.MsgBox(errMsg, MsgButtons::Ok, MsgIcon::Critical, rules_.errorTitle);
    else if (!errMsg.empty())
      platform_.ui.MsgBox(errMsg);
    else
      platform_.ui.MsgBox(failure.description, MsgButtons::Ok, MsgIcon::Critical,
                          "Error " + std::to_string(failure.number));
  }

  const ReplacementRules& rules_;
  const std::vector<std::string>& pids_;
  DatasetState& dataset_;
  Platform& platform_;
  Progress& progress_;
  const ReplacementPaths paths_;
  const ReplacementOptions& options_;
  std::string response_, errMsg_;
  std::vector<BlankSpan> spans_;
  int upperBound_ = 0;  // of the answer's lines
  MarkIndex newIndex_;
};

}  // namespace

bool RefusedForReplacement(ReplaceCommand command, const std::string& datasetPath, Ui& ui) {
  const ReplacementRules& rules = RulesFor(command);
  if (*rules.readOnlyText != '\0' && FileExists(datasetPath) && IsReadOnly(datasetPath)) {
    ui.MsgBox(rules.readOnlyText, MsgButtons::Ok, MsgIcon::Critical, "Update from Internet");
    return true;
  }
  return RefusedForLfLineEnds(datasetPath, ui);
}

void ReplaceDescriptionsOf(ReplaceCommand command, const std::vector<std::string>& pids, std::size_t notUpdated,
                           DatasetState& dataset, Platform& platform, const ReplacementOptions& options) {
  Replacement(command, pids, dataset, platform, options).Run(notUpdated);
}

}  // namespace benchlog
