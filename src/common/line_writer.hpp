#pragma once
// The one way the program writes a file. Every write and the close are checked, and a failure
// throws a WriteFailure (a RuntimeFailure) whose text names the file and the system's reason
// ("No space left on device"), so that a short file is never taken for a whole one.
//
// A writer that replaces a file writes a work file beside it, in the same folder; Close() writes
// out the buffer, syncs the work file to the disk, renames it over the file and syncs the folder.
// Until then the old file stays as it was, and a writer that is destroyed without Close() (a
// failure on the way) removes its work file. A writer that appends remembers the file's length
// and cuts the file back to it when a write fails or when it is destroyed without Close().
//
// Text goes through a buffer of 1 MB, so a large file costs one system call per megabyte.
#include <cstdint>
#include <string>
#include <string_view>

namespace benchlog {

class LineWriter {
 public:
  enum class Mode { kReplace, kAppend };

  // kReplace: creates the work file beside `path` (an existing read-only `path` is refused with
  // "Path/File access error"). kAppend: opens `path` for appending, creating it when missing.
  explicit LineWriter(const std::string& path, Mode mode = Mode::kReplace);
  ~LineWriter();
  LineWriter(const LineWriter&) = delete;
  LineWriter& operator=(const LineWriter&) = delete;

  void Write(std::string_view bytes);     // the bytes as they are
  void WriteLine(std::string_view text);  // text and CR LF
  // Writes out what is buffered, so that the work file (WorkPath) holds everything written.
  void Flush();
  // Finishes the file as described above; throws WriteFailure when any step fails, leaving the
  // old file as it was.
  void Close();
  // Drops what was written: removes the work file, or cuts an appended file back to its old
  // length. The destructor does the same when Close() was not reached.
  void Abandon() noexcept;

  const std::string& WorkPath() const { return workPath_; }  // the file being written now
  std::uint64_t BytesWritten() const { return written_ + buffer_.size(); }

 private:
  [[noreturn]] void Fail(int osError);
  void StartWriteBack(std::uint64_t offset, std::size_t length) const;

  std::string path_;      // the file to make or extend
  std::string workPath_;  // where the bytes go: the work file, or `path_` itself when appending
  Mode mode_;
  int fd_ = -1;
  bool finished_ = false;  // closed, or abandoned after a failure
  std::uint64_t startLength_ = 0;  // the length of an appended file before this writer
  std::uint64_t written_ = 0;      // bytes handed to the system so far
  std::string buffer_;
};

// Overwrites `bytes` in an existing file from the 0-based `offset`, checking the write and the
// close. Throws "Path/File access error" when the file cannot be opened, WriteFailure otherwise.
void OverwriteAt(const std::string& path, std::uint64_t offset, std::string_view bytes);

}  // namespace benchlog
