#include "dataset/build_mark_index.hpp"

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "session/dataset_paths.hpp"
#include "dataset/dataset_text.hpp"
#include "dataset/index_line_rules.hpp"
#include "common/line_writer.hpp"
#include "dataset/picture_folder.hpp"

namespace benchlog {
namespace {

class IndexBuilder {
 public:
  IndexBuilder(const std::string& datasetPath, MarkIndex& markIndex, Progress& progress)
      : datasetPath_(datasetPath), pictures_(FolderOf(datasetPath)), markIndex_(markIndex), progress_(progress) {}

  void Run(const std::string& indexPath) {
    markIndex_.Clear();
    LineReader reader(datasetPath_);  // opened first, so a missing dataset leaves the old index file
    if (IsSameFile(datasetPath_, indexPath)) throw PathFileAccessError();  // never write over the dataset
    LineWriter out(indexPath);
    std::string_view line;
    while (reader.ReadLine(line)) {
      if (!IsHeaderLine(line)) {
        length_ += CountedLength(line);
        if (IsDataLine(line)) ApplyIndexLineRules(line, fields_);
      } else if (fields_.Pid.empty()) {
        position_ = 1;  // the first Description: what stood before it belongs to none
        length_ = CountedLength(line);
      } else {
        FinishDescription(out);
        length_ = CountedLength(line);
        Advance();
      }
    }
    FinishLastDescription(out);
    out.Close();
  }

 private:
  void SetPictureFlags() {
    fields_.PhotoFlag = pictures_.Has(PhotoPathFor("", fields_.Pid)) ? "Y" : " ";
    fields_.SketchFlag = pictures_.Has(SketchPathFor("", fields_.Pid)) ? "Y" : " ";
  }

  void Store(std::size_t element, LineWriter& out) {
    fields_.DescriptionOffset = position_;
    std::string record = FormatIndexRecord(fields_);
    out.WriteLine(record);
    markIndex_.Set(element, std::move(record));
  }

  void FinishDescription(LineWriter& out) {
    SetPictureFlags();
    ApplyLandmarkRule(fields_);
    Store(count_, out);
    position_ += length_;
    ++count_;
    ResetForNextDescription(fields_);
  }

  // The last Description has no landmark rule, and its record goes one element further on, so
  // the element at the old count stays empty; the sentinel follows it.
  void FinishLastDescription(LineWriter& out) {
    SetPictureFlags();
    ++count_;
    Store(count_, out);
    std::string sentinel = SentinelRecord(FileLength(datasetPath_));
    out.WriteLine(sentinel);
    markIndex_.Set(count_ + 1, std::move(sentinel));
  }

  void Advance() {
    if (progress_.max > progress_.value) {
      ++progress_.value;
      progress_.Refresh();
    }
  }

  const std::string& datasetPath_;
  const PictureFolder pictures_;  // the dataset's folder
  MarkIndex& markIndex_;
  Progress& progress_;
  IndexRecord fields_;
  std::uint64_t position_ = 0;
  std::uint64_t length_ = 0;
  std::size_t count_ = 0;
};

}  // namespace

bool BuildMarkIndex(const std::string& datasetPath, const std::string& indexPath, MarkIndex& markIndex,
                    Platform& platform) {
  try {
    IndexBuilder(datasetPath, markIndex, platform.dlgProcessing).Run(indexPath);
    platform.dlgProcessing.Hide();
    return true;
  } catch (const RuntimeFailure& failure) {
    platform.dlgProcessing.Hide();
    platform.ui.MsgBox(failure.description, MsgButtons::Ok, MsgIcon::Critical, "Create Mark Index");
    return false;
  }
}

void BuildMarkIndexBehindProgress(const std::string& label, const std::string& datasetPath,
                                  const std::string& indexPath, MarkIndex& markIndex, Platform& platform) {
  Progress& progress = platform.dlgProcessing;
  const std::uint64_t length = FileLength(datasetPath);
  progress.lblProcessing = label;
  progress.lblInfo = "Please wait...";
  progress.max = static_cast<int>(length / 5000);
  progress.value = 1;
  progress.Show();
  platform.ui.DoEvents();
  BuildMarkIndex(datasetPath, indexPath, markIndex, platform);
  progress.Hide();
}

void LoadIndexFile(const std::string& indexPath, MarkIndex& markIndex) {
  markIndex.Assign(SplitCrLf(ReadWholeFile(indexPath)));
}

}  // namespace benchlog
