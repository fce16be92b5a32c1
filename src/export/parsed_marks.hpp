#pragma once
// The Descriptions of the export's text, parsed in order. Reading and parsing are most of an
// export's work, so past the first few marks a second thread cuts and parses the Descriptions a
// few marks ahead of the export, into a small ring of records that are used again and again. A
// short text (a few chosen marks) is parsed on the caller's thread alone.
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
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
  // True once the second thread has been started.
  bool Threaded() const { return thread_.joinable(); }

  // Marks parsed ahead of the export, and how many the caller's thread parses before a second
  // thread takes over: a thread pays for its start only over more than about 30 marks.
  static constexpr std::size_t kAhead = 32;
  static constexpr std::size_t kOnThisThread = 64;
  // Each thread wakes the other once per half a ring of marks, not for every mark: a wake-up for
  // every mark made the export half as slow again.
  static constexpr std::size_t kBatch = kAhead / 2;

 private:
  // A record and the Description's text it was parsed from.
  struct Slot {
    ParsedMark mark;
    std::string text;                     // the Description's lines, copied out of the text read
    std::vector<std::string_view> lines;  // into `text`
    bool end = false;                     // no Description left
    std::exception_ptr failure;           // what cutting or parsing threw, handed on in the mark's place
  };

  Slot& SlotOf(std::size_t mark) { return slots_[mark % kAhead]; }
  // Cuts and parses the next Description into `slot`; false when there is none or it failed.
  bool Fill(Slot& slot);
  void Run();

  SupportFiles& support_;
  DescriptionStream descriptions_;
  std::vector<std::string_view> cut_;  // the lines the stream hands out, before they are copied
  const std::unique_ptr<Slot[]> slots_ = std::make_unique<Slot[]>(kAhead);

  // Once the thread runs, these four are the mutex's.
  std::mutex mutex_;
  std::condition_variable ready_;  // marks were filled
  std::condition_variable room_;   // slots were freed, or the thread is to stop
  std::size_t made_ = 0;           // marks filled, the end or a failure included
  std::size_t taken_ = 0;          // marks the caller is done with, whose slots may be filled again
  bool ended_ = false;             // the last slot filled holds the end or a failure
  bool stop_ = false;

  std::size_t next_ = 0;  // the mark Next hands out next
  std::thread thread_;
};

}  // namespace benchlog
