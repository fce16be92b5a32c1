#include "web/replacement_files.hpp"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/mark_lookup.hpp"

namespace benchlog {
namespace {
namespace fs = std::filesystem;

constexpr std::size_t kChunk = 1 << 20;

// Lays the spans that reach into [from, from + bytes.size()) over `bytes`, in their order, so that
// a later span overwrites an earlier one where they overlap, as successive blankings would.
void BlankChunk(std::string& bytes, std::uint64_t from, const std::vector<BlankSpan>& spans) {
  const std::uint64_t to = from + bytes.size();
  for (const BlankSpan& span : spans) {
    const std::uint64_t begin = std::max(span.offset, from);
    const std::uint64_t end = std::min(span.offset + span.length, to);
    for (std::uint64_t p = begin; p < end; ++p) {
      const std::uint64_t k = p - span.offset;
      bytes[p - from] = k + 2 < span.length ? ' ' : k + 2 == span.length ? '\r' : '\n';
    }
  }
}

void CopyBlanked(const std::string& datasetPath, const std::vector<BlankSpan>& spans, LineWriter& out) {
  std::uint64_t position = 0;
  if (FileExists(datasetPath)) {
    std::FILE* in = std::fopen(datasetPath.c_str(), "rb");
    if (!in) throw PathFileAccessError();
    std::string chunk(kChunk, '\0');
    for (std::size_t n; (n = std::fread(chunk.data(), 1, kChunk, in)) > 0; position += n) {
      chunk.resize(n);
      BlankChunk(chunk, position, spans);
      out.Write(chunk);
      chunk.resize(kChunk);
    }
    const bool failed = std::ferror(in) != 0;
    std::fclose(in);
    if (failed) throw PathFileAccessError();
  }
  // A span past the end lengthens the file, as a write past its end would (zeros in any gap).
  std::uint64_t end = position;
  for (const BlankSpan& span : spans) end = std::max(end, span.offset + span.length);
  if (end > position) {
    std::string tail(end - position, '\0');
    BlankChunk(tail, position, spans);
    out.Write(tail);
  }
}

void SyncFolder(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

void RenameOver(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error) throw RuntimeFailure(kPathFileAccessError, "Path/File access error: " + to + ": " + error.message());
}

// A second name of the old dataset; a copy where the file system has no hard links.
void KeepBackup(const std::string& dataset, const std::string& backup) {
  std::error_code error;
  fs::remove(backup, error);
  fs::create_hard_link(dataset, backup, error);
  if (error) fs::copy_file(dataset, backup, fs::copy_options::overwrite_existing);
}

// The files a writer of `path` that was stopped half-way left beside it ("<path>.~...").
void RemoveWritersLeftovers(const std::string& path) {
  const fs::path target(path);
  const std::string prefix = target.filename().string() + ".~";
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(target.parent_path().empty() ? "." : target.parent_path(), error))
    if (entry.path().filename().string().rfind(prefix, 0) == 0) fs::remove(entry.path(), error);
}

}  // namespace

std::string PlanBlanking(const MarkIndex& markIndex, const std::string& datasetPath, bool datasetWritable,
                         const std::string& pid, std::vector<BlankSpan>& spans) {
  const MarkLocation at = LocateMark(markIndex, pid);
  if (at.position == 0) return "PID not found!";
  const std::int64_t start = at.start == 0 ? 1 : at.start;
  const std::int64_t next = at.next == 0 ? 1 : at.next;
  if (next - start <= 2) return "";
  if (!datasetWritable || !FileExists(datasetPath)) return "Unable to open .dat file for writing.";
  // A negative offset (a number read from other text of the index) cannot be written to.
  if (start < 1) return PathFileAccessError().description;
  spans.push_back({static_cast<std::uint64_t>(start - 1), static_cast<std::uint64_t>(next - start)});
  return "";
}

ReplacementPaths ReplacementPathsFor(const std::string& datasetPath, const std::string& indexPath) {
  return {datasetPath, indexPath, datasetPath + ".replacing", indexPath + ".replacing",
          datasetPath + ".before-update"};
}

void WriteWorkDataset(const ReplacementPaths& paths, const std::vector<BlankSpan>& spans,
                      const std::vector<std::string_view>& lines, const std::function<void(std::size_t)>& onLine) {
  LineWriter out(paths.workDataset);
  CopyBlanked(paths.dataset, spans, out);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    out.WriteLine(lines[i]);
    if (onLine) onLine(i);
  }
  out.Close();
}

void CommitReplacement(const ReplacementPaths& paths, bool backupToTrash, Shell& shell,
                       const std::function<void(const char*)>& step) {
  const auto at = [&step](const char* name) {
    if (step) step(name);
  };
  const bool backup = backupToTrash && FileExists(paths.dataset);
  if (backup) KeepBackup(paths.dataset, paths.backup);
  at("before removing the index");
  DeleteFileIfExists(paths.index);
  at("index removed");
  RenameOver(paths.workDataset, paths.dataset);
  at("dataset renamed");
  RenameOver(paths.workIndex, paths.index);
  SyncFolder(paths.dataset);
  SyncFolder(paths.index);
  at("index renamed");
  if (backup) shell.MoveToTrash(paths.backup);
}

void RemoveWorkFiles(const ReplacementPaths& paths) {
  for (const std::string& work : {paths.workDataset, paths.workIndex}) {
    DeleteFileIfExists(work);
    RemoveWritersLeftovers(work);
  }
}

}  // namespace benchlog
