#include "common/line_writer.hpp"

#include "common/runtime_failure.hpp"

namespace benchlog {
namespace {
constexpr std::size_t kBufferSize = 1 << 20;
}

LineWriter::LineWriter(const std::string& path) {
  file_ = std::fopen(path.c_str(), "wb");
  if (!file_) throw PathFileAccessError();
  std::setvbuf(file_, nullptr, _IONBF, 0);  // the buffer is ours
  buffer_.reserve(kBufferSize + 4096);
}

LineWriter::~LineWriter() {
  if (!file_) return;
  std::fwrite(buffer_.data(), 1, buffer_.size(), file_);
  std::fclose(file_);
}

void LineWriter::Flush() {
  if (std::fwrite(buffer_.data(), 1, buffer_.size(), file_) != buffer_.size()) throw PathFileAccessError();
  buffer_.clear();
}

void LineWriter::WriteLine(std::string_view text) {
  if (!file_) throw PathFileAccessError();
  buffer_.append(text).append("\r\n");
  if (buffer_.size() >= kBufferSize) Flush();
}

void LineWriter::Close() {
  if (!file_) return;
  std::FILE* file = file_;
  file_ = nullptr;
  const bool written = std::fwrite(buffer_.data(), 1, buffer_.size(), file) == buffer_.size();
  buffer_.clear();
  if (std::fclose(file) != 0 || !written) throw PathFileAccessError();
}

}  // namespace benchlog
