#pragma once
// The Descriptions of the export's text, parsed in order while the export computes and writes
// the marks before them. Reading and parsing are most of an export's work, so a second thread
// cuts the text into Descriptions, a few marks ahead, and parses what the export has not yet
// reached; the export parses a Description itself when it gets there first. The records are
// used again and again, so the work touches little fresh memory.
#include <atomic>
#include <cstddef>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "dataset/find_descriptions.hpp"
#include "export/parser/mark_record.hpp"
#include "dataset/text_blocks.hpp"
#include "support_files/support_files.hpp"

namespace benchlog {

// One Description, read by ClearMarkRecord and ParseDescription with all three groups.
struct ParsedMark {
  std::string pid;  // columns 2 to 7 of the line after the "1" line
  MarkRecord record;
};

class ParsedMarks {
 public:
  // Starts on `text` from where it stands; `text` must outlive this object, and nothing else may
  // use it meanwhile. `support` as for ParseDescription.
  ParsedMarks(TextBlocks& text, SupportFiles& support);
  // Stops the second thread, wherever it stands.
  ~ParsedMarks();
  ParsedMarks(const ParsedMarks&) = delete;
  ParsedMarks& operator=(const ParsedMarks&) = delete;

  // The next Description's mark, which the caller may change, valid until the next call; nullptr
  // when the text has no more. Throws what reading or parsing this Description threw.
  ParsedMark* Next();

 private:
  static constexpr std::size_t kAhead = 16;

  // A record and what parsing it works with.
  struct Slot {
    enum State { kFree, kCut, kParsing, kParsed };
    std::atomic<State> state{kFree};
    ParsedMark mark;
    std::string text;                     // the Description's lines, copied out of the text read
    std::vector<std::string_view> lines;  // into `text`
    bool end = false;                     // no Description left
    std::exception_ptr failure;           // what cutting or parsing threw, handed on in the mark's place
  };

  Slot& SlotOf(std::size_t mark) { return slots_[mark % kAhead]; }
  void Run(TextBlocks& text);
  // Cuts the next Description of `descriptions` into `slot`; true when there was one.
  static bool Cut(DescriptionStream& descriptions, std::vector<std::string_view>& lines, Slot& slot);
  // Parses the slot's Description if nobody has begun it; false when somebody has.
  bool TryParse(Slot& slot);

  SupportFiles& support_;
  const std::unique_ptr<Slot[]> slots_ = std::make_unique<Slot[]>(kAhead);
  std::atomic<std::size_t> taken_{0};  // marks handed out and done with, whose records may be reused
  std::atomic<bool> stop_{false};
  std::size_t next_ = 0;  // the mark Next hands out next
  std::thread thread_;
};

}  // namespace benchlog
