#pragma once
// The export's text, held in memory a part at a time. A dataset of any size is read from the
// start in blocks into one buffer that is used again and again: touching fresh memory costs more
// than reading, so a whole 100 MB dataset is never in memory at once. A text already in memory
// (the Descriptions of chosen marks) is one window that is the whole text.
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

// A file to be read in blocks of `blockSize` bytes.
struct TextFile {
  static constexpr std::size_t kBlockSize = 1 << 20;
  std::string path;
  std::size_t blockSize = kBlockSize;
};

class TextBlocks {
 public:
  // A text in memory, which must outlive this object.
  explicit TextBlocks(std::string_view text);
  // Throws RuntimeFailure "File not found" when the file cannot be opened.
  explicit TextBlocks(const TextFile& file);
  ~TextBlocks();
  TextBlocks(const TextBlocks&) = delete;
  TextBlocks& operator=(const TextBlocks&) = delete;

  // The part of the text in memory, and the offset in the text of its first byte.
  std::string_view Window() const { return window_; }
  std::size_t WindowStart() const { return windowStart_; }
  // True when the window reaches the end of the text.
  bool AtEnd() const { return atEnd_; }

  // Drops the window's bytes before `keepFrom` (an offset in the window) and reads on behind what
  // is kept; the buffer grows only when what is kept fills it. False, with nothing changed, at
  // the end of the text. Offsets into the old window are then `keepFrom` less in the new one.
  bool More(std::size_t keepFrom);
  // Back to the start of the text.
  void Rewind();

 private:
  std::FILE* file_ = nullptr;
  std::size_t blockSize_ = 0;
  std::vector<char> buffer_;
  std::string_view window_;
  std::size_t windowStart_ = 0;
  bool atEnd_ = true;
};

}  // namespace benchlog
