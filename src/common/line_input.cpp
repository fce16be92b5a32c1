#include "common/line_input.hpp"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"

namespace benchlog {
LineReader::LineReader(const std::string& path) {
  file_ = std::fopen(path.c_str(), "rb");
  if (!file_) throw FileNotFound();
  // A small file is read whole into a buffer one byte longer than itself.
  struct stat info {};
  const bool sized = ::fstat(::fileno(file_), &info) == 0 && info.st_size >= 0;
  buffer_.resize(sized ? std::min(kBufferSize, static_cast<std::size_t>(info.st_size) + 1) : kBufferSize);
}

LineReader::~LineReader() {
  if (file_) std::fclose(file_);
}

bool LineReader::Fill() {
  if (eof_) return false;
  begin_ = 0;
  end_ = std::fread(buffer_.data(), 1, buffer_.size(), file_);
  if (end_ == 0) eof_ = true;
  return end_ > 0;
}

bool LineReader::ReadLineAcrossBlocks(std::string_view& line) {
  carry_.clear();
  bool carrying = false;
  for (;;) {
    if (begin_ == end_ && !Fill()) {
      if (!carrying) return false;
      line = carry_;
      return true;
    }
    const char* start = buffer_.data() + begin_;
    const auto* cr = static_cast<const char*>(std::memchr(start, '\r', end_ - begin_));
    if (!cr) {
      carry_.append(start, end_ - begin_);
      carrying = true;
      begin_ = end_;
      continue;
    }
    const std::size_t length = static_cast<std::size_t>(cr - start);
    // A CR at the very end of the buffer: keep the line before refilling to look for its LF.
    const bool inCarry = carrying || begin_ + length + 1 == end_;
    if (inCarry) carry_.append(start, length);
    begin_ += length + 1;
    if (begin_ == end_) Fill();
    if (begin_ < end_ && buffer_[begin_] == '\n') ++begin_;
    line = inCarry ? std::string_view(carry_) : std::string_view(start, length);
    return true;
  }
}

bool LineReader::ReadLine(std::string& line) {
  std::string_view view;
  if (!ReadLine(view)) return false;
  line.assign(view);
  return true;
}

std::vector<std::string> SplitCrLf(std::string_view text) { return Split(text, "\r\n"); }

}  // namespace benchlog
