#include "dataset/compress_dataset.hpp"

#include <algorithm>
#include <stdexcept>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "session/dataset_paths.hpp"
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
  bool madeWorkFile = false;
  const std::string workFile = JoinPath(platform.paths.appPath, kCompressWorkFile);
  try {
    {
      errorText = "Unable to open .dat file for reading.";
      LineReader in(datasetPath);
      const std::uint64_t length = FileLength(datasetPath);
      errorText = "Unable to open a file in the product directory for writing.";
      if (IsSameFile(datasetPath, workFile)) throw PathFileAccessError();  // never write over the dataset
      LineWriter out(workFile);
      madeWorkFile = true;
      if (length > kBytesPerStep) ShowCompressProgress(length, platform);
      CopyKeptLines(in, out, platform.dlgProcessing);
      out.Close();
    }
    platform.dlgProcessing.Hide();
    errorText = "Unable to write to .dat file.";
    ReplaceFile(workFile, datasetPath);
    return "";
  } catch (const std::exception& failure) {
    platform.dlgProcessing.Hide();
    if (madeWorkFile) DeleteFileIfExists(workFile);
    platform.ui.MsgBox(errorText + "\r\n" + failure.what());
    return errorText;
  }
}

}  // namespace benchlog
