#pragma once
// Line input with the classic semantics, byte-exact: a line ends at CR, a CR LF counts as one end,
// and a lone LF stays inside the line. A last line without an end is still a line; a file that ends
// with its line end gives no empty line behind it.
#include <cstdio>
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
  bool ReadLine(std::string_view& line);
  bool ReadLine(std::string& line);

 private:
  bool Fill();

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
