#include "export/parsed_marks.hpp"

#include <algorithm>
#include <chrono>

#include "export/find_descriptions.hpp"
#include "export/parse_description.hpp"

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

namespace benchlog {
namespace {

// Waits until `done()` is true: the other thread is normally a few microseconds from it, so the
// wait spins first, then gives way to other threads, then sleeps in short steps (it never
// blocks on the other thread, so it cannot miss a wake-up).
template <typename Done>
void WaitUntil(Done&& done) {
  for (int round = 0; !done(); ++round) {
    if (round < 4000) {
#if defined(__x86_64__) || defined(__i386__)
      _mm_pause();
#endif
    } else if (round < 5000) {
      std::this_thread::yield();
    } else {
      std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
  }
}

// The current Description's lines copied into the mark, with their views moved along.
void CopyLines(const std::vector<std::string_view>& lines, ParsedMark& mark) {
  const char* const begin = lines.front().data();
  mark.text.assign(begin, static_cast<std::size_t>(lines.back().data() + lines.back().size() - begin));
  mark.lines.clear();
  for (const std::string_view line : lines)
    mark.lines.emplace_back(mark.text.data() + (line.data() - begin), line.size());
}

}  // namespace

ParsedMarks::ParsedMarks(TextBlocks& text, const std::string& supportPath)
    : supportPath_(supportPath), thread_([this, &text] { Run(text); }) {}

ParsedMarks::~ParsedMarks() {
  stop_ = true;
  thread_.join();
}

bool ParsedMarks::TryParse(ParsedMark& mark) {
  ParsedMark::State expected = ParsedMark::kCut;
  // A plain look first: a failed exchange would take the record's line from the other thread.
  if (mark.state != expected || !mark.state.compare_exchange_strong(expected, ParsedMark::kParsing)) return false;
  try {
    ClearMarkRecord(mark.record);
    std::string parseError;  // every Description found has at least its first line
    ParseDescription(mark.pid, mark.lines, 0, ParseGroups{}, parseError, mark.record, supportPath_);
  } catch (...) {
    mark.failure = std::current_exception();
  }
  mark.state = ParsedMark::kParsed;
  return true;
}

void ParsedMarks::Run(TextBlocks& text) {
  DescriptionStream descriptions(text);
  std::vector<std::string_view> lines;
  std::size_t cut = 0;  // marks cut so far
  bool ended = false;
  while (!stop_) {
    bool worked = false;
    // Cuts the next Description while a record is free.
    if (!ended && cut < taken_ + kAhead) {
      ParsedMark& mark = Slot(cut++);
      mark.failure = nullptr;
      try {
        mark.end = !descriptions.Next();
        if (!mark.end) {
          descriptions.Lines(lines);
          mark.pid.assign(descriptions.Pid());
          CopyLines(lines, mark);
        }
      } catch (...) {
        mark.end = true;
        mark.failure = std::current_exception();
      }
      ended = mark.end;
      mark.state = ended ? ParsedMark::kParsed : ParsedMark::kCut;
      worked = true;
    }
    // Then parses the last mark cut that nobody has begun: the export parses the first ones
    // itself when it gets to them, so the two meet in between.
    for (std::size_t i = cut; i > taken_ && !worked; --i) worked = TryParse(Slot(i - 1));
    if (ended && !worked) return;
    if (!worked) WaitUntil([&] { return stop_ || cut < taken_ + kAhead; });
  }
}

ParsedMark* ParsedMarks::Next() {
  if (next_ > 0) {
    Slot(next_ - 1).state = ParsedMark::kFree;  // the mark handed out before is done with
    taken_ = next_;
  }
  ParsedMark& mark = Slot(next_);
  WaitUntil([&] {
    TryParse(mark);
    return mark.state == ParsedMark::kParsed;
  });
  if (mark.failure) std::rethrow_exception(mark.failure);
  if (mark.end) return nullptr;
  ++next_;
  return &mark;
}

}  // namespace benchlog
