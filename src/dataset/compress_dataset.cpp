#include "dataset/compress_dataset.hpp"

#include <algorithm>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/dataset_text.hpp"
#include "common/line_writer.hpp"

namespace benchlog {
namespace {

constexpr std::uint64_t kBytesPerStep = 8000;

void ShowCompressProgress(std::uint64_t datasetLength, Platform& platform) {
  Progress& progress = platform.dlgProcessing;
  progress.caption = "Compress MKDATA file";
  progress.lblProcessing = "Compressing File";
  progress.lblInfo = "Please wait...";
  progress.max = static_cast<int>(datasetLength / kBytesPerStep);
  progress.Show();
  progress.Refresh();
  platform.ui.DoEvents();
}

// The line as it is kept: without LFs and trailing blanks; empty when it is to be dropped.
std::string_view KeptLine(std::string_view line, std::string& scratch) {
  if (line.find('\n') != std::string_view::npos) {
    scratch.assign(line);
    scratch.erase(std::remove(scratch.begin(), scratch.end(), '\n'), scratch.end());
    line = scratch;
  }
  const auto last = line.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : line.substr(0, last + 1);
}

void CopyKeptLines(LineReader& in, LineWriter& out, Progress& progress) {
  std::string_view line;
  std::string scratch;
  std::int64_t count = 0;
  while (in.ReadLine(line)) {
    ++count;
    if (count % 100 == 0 && progress.value < progress.max) {
      progress.value = static_cast<int>(count / 100);
      progress.Refresh();
    }
    const std::string_view kept = KeptLine(line, scratch);
    if (!kept.empty()) out.WriteLine(kept);
  }
}

}  // namespace

std::string CompressDataset(const std::string& datasetPath, Platform& platform) {
  std::string errorText;
  try {
    errorText = "Unable to open .dat file for reading.";
    LineReader in(datasetPath);
    const std::uint64_t length = FileLength(datasetPath);
    errorText = "Unable to open a file in the product directory for writing.";
    LineWriter out(datasetPath);  // a work file beside the dataset, moved over it at Close()
    if (length > kBytesPerStep) ShowCompressProgress(length, platform);
    CopyKeptLines(in, out, platform.dlgProcessing);
    platform.dlgProcessing.Hide();
    errorText = "Unable to write to .dat file.";
    out.Close();
    return "";
  } catch (const RuntimeFailure& failure) {
    platform.dlgProcessing.Hide();
    platform.ui.MsgBox(errorText + "\r\n" + failure.description);
    return errorText;
  }
}

}  // namespace benchlog
