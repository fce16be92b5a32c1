#pragma once
// A text file written line by line, each line ended by CR LF, through a large buffer of its own.
// The file is created anew (replacing one of the same name) when the writer is made and closed by
// Close() or the destructor (which writes out what was buffered); a write that fails throws "Path/
// File access error", so a caller never takes a short file for a whole one.
#include <cstdio>
#include <string>
#include <string_view>

namespace benchlog {

class LineWriter {
 public:
  explicit LineWriter(const std::string& path);  // throws RuntimeFailure 75 when it cannot create
  ~LineWriter();
  LineWriter(const LineWriter&) = delete;
  LineWriter& operator=(const LineWriter&) = delete;

  void WriteLine(std::string_view text);  // text and CR LF
  // Writes out the buffer and closes; throws RuntimeFailure 75 when not all could be written.
  void Close();

 private:
  void Flush();

  std::FILE* file_ = nullptr;
  std::string buffer_;
};

}  // namespace benchlog
