#include "dataset/line_writer.hpp"

#include "common/runtime_failure.hpp"

namespace benchlog {

LineWriter::LineWriter(const std::string& path) : buffer_(1 << 20) {
  file_ = std::fopen(path.c_str(), "wb");
  if (!file_) throw PathFileAccessError();
  std::setvbuf(file_, buffer_.data(), _IOFBF, buffer_.size());
}

LineWriter::~LineWriter() {
  if (file_) std::fclose(file_);
}

void LineWriter::WriteLine(std::string_view text) {
  if (!file_) throw PathFileAccessError();
  if (std::fwrite(text.data(), 1, text.size(), file_) != text.size() || std::fwrite("\r\n", 1, 2, file_) != 2)
    throw PathFileAccessError();
}

void LineWriter::Close() {
  if (!file_) return;
  const bool failed = std::ferror(file_) != 0;
  const bool closeFailed = std::fclose(file_) != 0;
  file_ = nullptr;
  if (failed || closeFailed) throw PathFileAccessError();
}

}  // namespace benchlog
