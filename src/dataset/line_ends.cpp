#include "dataset/line_ends.hpp"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/dataset_size_limit.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kBlockSize = 1 << 16;
constexpr const char* kTitle = "Line Ends";

// Calls `take(block)` for each 64 KB piece of the file in turn.
template <typename Take>
void ForEachBlock(const std::string& path, Take&& take) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!file) throw FileNotFound();
  std::vector<char> buffer(kBlockSize);
  for (std::size_t n; (n = std::fread(buffer.data(), 1, buffer.size(), file.get())) > 0;)
    take(std::string_view(buffer.data(), n));
  if (std::ferror(file.get())) throw PathFileAccessError();
}

// Calls `found(offset, lone)` for each LF of the block; `before` is the byte in front of the
// block (0 at the start of the file), so that a CR LF split between two blocks is one pair.
template <typename Found>
void ForEachLf(std::string_view block, char before, Found&& found) {
  const char* begin = block.data();
  const char* end = begin + block.size();
  for (const char* p = begin; (p = static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(end - p)))); ++p)
    found(static_cast<std::size_t>(p - begin), (p == begin ? before : p[-1]) != '\r');
}

std::string Question(const std::string& path, const std::string& onNo) {
  return "The file " + path +
         " has lines that end in a line feed (LF) alone, as text files made on Linux do. The program reads "
         "lines that end in CR LF and would take this file for one long line." + kCrLf + kCrLf +
         "Convert it to CR LF line ends now? A copy of the file as it is now is kept beside it as " +
         LfBackupPath(path) + "." + kCrLf + kCrLf + onNo;
}

}  // namespace

LineEndCounts CountLineEnds(const std::string& path) {
  LineEndCounts counts;
  char before = 0;
  ForEachBlock(path, [&](std::string_view block) {
    ForEachLf(block, before, [&](std::size_t, bool lone) { ++(lone ? counts.loneLf : counts.crLf); });
    counts.length += block.size();
    before = block.back();
  });
  return counts;
}

bool IsLfOnly(const LineEndCounts& counts) { return counts.loneLf > counts.crLf; }

std::string ConversionSizeRefusal(const LineEndCounts& counts) { return SizeLimitRefusal(counts.length + counts.loneLf); }

std::string LfBackupPath(const std::string& path) { return path + ".lf.bak"; }

void ConvertToCrLf(const std::string& path) {
  LineWriter copy(LfBackupPath(path));
  LineWriter converted(path);  // refuses a read-only file before anything is written
  char before = 0;
  ForEachBlock(path, [&](std::string_view block) {
    copy.Write(block);
    std::size_t from = 0;
    ForEachLf(block, before, [&](std::size_t at, bool lone) {
      if (!lone) return;
      converted.Write(block.substr(from, at - from));
      converted.Write("\r");
      from = at;  // the LF goes with the next piece
    });
    converted.Write(block.substr(from));
    before = block.back();
  });
  copy.Close();
  converted.Close();
}

LineEndAnswer OfferCrLfConversion(const std::string& path, const std::string& onNo, Platform& platform) {
  if (!FileExists(path)) return LineEndAnswer::kNotAsked;
  const LineEndCounts counts = CountLineEnds(path);
  if (!IsLfOnly(counts)) return LineEndAnswer::kNotAsked;
  if (platform.ui.MsgBox(Question(path, onNo), MsgButtons::YesNo, MsgIcon::Question, kTitle) == MsgResult::No)
    return LineEndAnswer::kDeclined;
  if (const std::string refusal = ConversionSizeRefusal(counts); !refusal.empty()) {
    platform.ui.MsgBox(refusal, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
    return LineEndAnswer::kFailed;
  }
  try {
    ConvertToCrLf(path);
  } catch (const RuntimeFailure& failure) {
    platform.ui.MsgBox("The file " + path + " was not converted and is as it was." + kCrLf + failure.description,
                       MsgButtons::Ok, MsgIcon::Critical, kTitle);
    return LineEndAnswer::kFailed;
  }
  return LineEndAnswer::kConverted;
}

bool RefusedForLfLineEnds(const std::string& datasetPath, Ui& ui) {
  if (!FileExists(datasetPath) || !IsLfOnly(CountLineEnds(datasetPath))) return false;
  ui.MsgBox("The dataset " + datasetPath +
                " has lines that end in a line feed (LF) alone, and this command would join all its lines into "
                "one. Nothing was changed." + kCrLf + kCrLf +
                "Open the dataset again and answer Yes to convert it to CR LF line ends; a copy of the file as it "
                "is now is kept beside it.",
            MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
  return true;
}

}  // namespace benchlog
