#include "dataset/description_file.hpp"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/mark_lookup.hpp"

namespace benchlog {
namespace {

// A file opened for one operation and closed at its end, however it ends.
struct OpenFile {
  OpenFile(const std::string& path, const char* mode) : file(std::fopen(path.c_str(), mode)) {}
  ~OpenFile() {
    if (file) std::fclose(file);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  std::FILE* file;
};

bool SeekTo(std::FILE* file, std::int64_t bytePosition) {
  return std::fseek(file, static_cast<long>(bytePosition - 1), SEEK_SET) == 0;
}

}  // namespace

std::string GetDescription(const MarkIndex& markIndex, const std::string& datasetPath, const std::string& pid,
                           std::string& text) {
  const MarkLocation at = LocateMark(markIndex, pid);
  if (at.position == 0) return "PID not found!";
  const std::int64_t length = at.next - at.start;
  if (!FileExists(datasetPath) || at.start < 1) return "";
  if (length < 1) return "Invalid description Length!";
  OpenFile in(datasetPath, "rb");
  if (!in.file || !SeekTo(in.file, at.start)) throw PathFileAccessError();
  // A damaged index can give any length: no more is read than the file holds after the start.
  const std::uint64_t fileLength = FileLength(datasetPath);
  const auto start = static_cast<std::uint64_t>(at.start);
  const std::uint64_t held = start <= fileLength ? fileLength - start + 1 : 0;
  std::string buffer(std::min(static_cast<std::uint64_t>(length), held), '\0');
  buffer.resize(std::fread(buffer.data(), 1, buffer.size(), in.file));
  text = std::move(buffer);
  return "";
}

std::string BlankDescription(const MarkIndex& markIndex, const std::string& datasetPath, const std::string& pid) {
  const MarkLocation at = LocateMark(markIndex, pid);
  if (at.position == 0) return "PID not found!";
  const std::int64_t start = at.start == 0 ? 1 : at.start;
  const std::int64_t next = at.next == 0 ? 1 : at.next;
  const std::int64_t length = next - start;
  if (length <= 2) return "";
  if (!FileExists(datasetPath) || IsReadOnly(datasetPath)) return "Unable to open .dat file for writing.";
  try {
    OverwriteAt(datasetPath, static_cast<std::uint64_t>(start - 1), std::string(static_cast<std::size_t>(length - 2), ' ') + "\r\n");
    return "";
  } catch (const RuntimeFailure& failure) {
    return failure.description;
  }
}

}  // namespace benchlog
