#pragma once
// Line input with the classic semantics, byte-exact: a line ends at CR, a CR LF counts as one end,
// and a lone LF stays inside the line. A last line without an end is still a line; a file that ends
// with its line end gives no empty line behind it.
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

class LineReader {
 public:
  static constexpr std::size_t kBufferSize = 1 << 16;  // bytes read from the file at a time

  explicit LineReader(const std::string& path);  // throws RuntimeFailure "File not found"
  ~LineReader();
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  // The next line without its end, valid until the next call; false at the end of the file.
  // The usual case is inline (a dataset has millions of lines): a CR with a byte behind it in the buffer.
  bool ReadLine(std::string_view& line) {
    if (begin_ < end_) {
      const char* start = buffer_.data() + begin_;
      const auto* cr = static_cast<const char*>(std::memchr(start, '\r', end_ - begin_));
      if (cr && cr + 1 < buffer_.data() + end_) {
        line = std::string_view(start, static_cast<std::size_t>(cr - start));
        begin_ = static_cast<std::size_t>(cr - buffer_.data()) + 1;
        if (buffer_[begin_] == '\n') ++begin_;
        return true;
      }
    }
    return ReadLineAcrossBlocks(line);
  }
  bool ReadLine(std::string& line);

 private:
  bool Fill();
  bool ReadLineAcrossBlocks(std::string_view& line);  // a line that a block's end cuts, or the last one

  std::FILE* file_ = nullptr;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool eof_ = false;
  std::string carry_;
};

// Splits a text at every CR LF; a final CR LF leaves an empty last element.
std::vector<std::string> SplitCrLf(std::string_view text);

}  // namespace benchlog
