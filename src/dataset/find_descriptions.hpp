#pragma once
// Cutting the export's text into Descriptions. Lines are the pieces between CR LF pairs (a lone
// CR or LF stays inside its line; a final CR LF leaves an empty last line). Every line whose first
// character is "1" opens a Description: its PID is columns 2 to 7 of the line after it, and the
// parser is handed the lines from that one on, as `DescriptionLines` cuts them. Descriptions are
// found in order as the text is read, so only a window of it is ever in memory.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "dataset/text_blocks.hpp"

namespace benchlog {

class DescriptionStream {
 public:
  explicit DescriptionStream(TextBlocks& text) : text_(text) {}

  // Moves to the next line that starts with "1"; false when there is none left. Throws
  // RuntimeFailure "Subscript out of range" when that line is the last line of the text (a text
  // that ends in CR LF never has one there).
  bool Next();
  // Columns 2 to 7 of the line after the current "1" line.
  std::string_view Pid() const { return pid_; }
  // The current Description's lines, as `DescriptionLines` cuts them, reading on as far as they
  // go; they stay valid until the next call of `Next` or `Lines`.
  void Lines(std::vector<std::string_view>& lines);

 private:
  std::size_t InWindow(std::size_t offset) const { return offset - text_.WindowStart(); }
  // Reads on, keeping the window from two bytes before text offset `keepFrom` (a header is known
  // by the CR LF in front of it); false at the end of the text.
  bool ReadOn(std::size_t keepFrom);

  TextBlocks& text_;
  // Text offsets: where the next header is looked for, the current header and the line after it.
  std::size_t scanFrom_ = 0;
  std::size_t header_ = 0;
  std::size_t start_ = 0;
  std::string pid_;
};

// How many Descriptions the text holds, read from its start; throws as `DescriptionStream::Next`.
std::size_t CountDescriptions(TextBlocks& text);

// The offset of the first line start at or after `from` whose first character is "1": offset 0
// when `textStart` (the window begins the text) and it holds "1", otherwise a "1" just after CR LF.
// npos when the window has none.
std::size_t FindHeader(std::string_view window, std::size_t from, bool textStart);

// The line of `text` that starts at byte `offset` (without its CR LF), and in `next` the offset
// of the line after it, or npos when it is the last line.
std::string_view LineAt(std::string_view text, std::size_t offset, std::size_t& next);

// The lines the parser reads for the Description of `pid` whose first line starts at byte
// `start`: the run of lines whose columns 2 to 7 are the PID (the first one always is, since the
// PID was taken from it), then the line after the run when there is one, which the parser reads
// only as the continuation of a wrapped note. Replaces what `lines` held. True when the last line
// taken ends with CR LF, false when it runs to the end of `text`.
bool DescriptionLines(std::string_view text, std::size_t start, std::string_view pid,
                      std::vector<std::string_view>& lines);

}  // namespace benchlog
