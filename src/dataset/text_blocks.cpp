#include "dataset/text_blocks.hpp"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

#include "common/runtime_failure.hpp"

namespace benchlog {

TextBlocks::TextBlocks(std::string_view text) : window_(text) {}

TextBlocks::TextBlocks(const TextFile& file) : blockSize_(file.blockSize) {
  file_ = std::fopen(file.path.c_str(), "rb");
  if (!file_) throw FileNotFound();
  // A small file needs no block of full size: one byte more than the file reads it whole.
  struct stat info {};
  if (::fstat(::fileno(file_), &info) == 0 && info.st_size >= 0)
    blockSize_ = std::min(blockSize_, static_cast<std::size_t>(info.st_size) + 1);
  try {
    Rewind();
  } catch (...) {
    std::fclose(file_);
    throw;
  }
}

TextBlocks::~TextBlocks() {
  if (file_) std::fclose(file_);
}

void TextBlocks::Rewind() {
  if (!file_) return;  // a text in memory is always whole
  std::rewind(file_);
  window_ = {};
  windowStart_ = 0;
  atEnd_ = false;
  More(0);
}

bool TextBlocks::More(std::size_t keepFrom) {
  if (atEnd_) return false;
  // The window always begins the buffer.
  const std::size_t kept = window_.size() - keepFrom;
  if (kept > 0) std::memmove(buffer_.data(), buffer_.data() + keepFrom, kept);
  if (buffer_.size() < kept + blockSize_) buffer_.resize(kept + blockSize_);
  const std::size_t got = std::fread(buffer_.data() + kept, 1, blockSize_, file_);
  if (got < blockSize_) {
    if (std::ferror(file_)) throw PathFileAccessError();
    atEnd_ = true;
  }
  windowStart_ += keepFrom;
  window_ = std::string_view(buffer_.data(), kept + got);
  return true;
}

}  // namespace benchlog
