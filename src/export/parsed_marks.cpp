#include "export/parsed_marks.hpp"

#include <chrono>

#include "export/parser/parse_description.hpp"

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

}  // namespace

ParsedMarks::ParsedMarks(TextBlocks& text, SupportFiles& support)
    : support_(support), thread_([this, &text] { Run(text); }) {}

ParsedMarks::~ParsedMarks() {
  stop_ = true;
  thread_.join();
}

bool ParsedMarks::Cut(DescriptionStream& descriptions, std::vector<std::string_view>& lines, Slot& slot) {
  if (!descriptions.Next()) return false;
  descriptions.Lines(lines);
  slot.mark.pid.assign(descriptions.Pid());
  // The lines are copied out, for the text read moves on; their views move along.
  const char* const begin = lines.front().data();
  slot.text.assign(begin, static_cast<std::size_t>(lines.back().data() + lines.back().size() - begin));
  slot.lines.clear();
  for (const std::string_view line : lines)
    slot.lines.emplace_back(slot.text.data() + (line.data() - begin), line.size());
  return true;
}

bool ParsedMarks::TryParse(Slot& slot) {
  Slot::State expected = Slot::kCut;
  // A plain look first: a failed exchange would take the slot's cache line from the other thread.
  if (slot.state != expected || !slot.state.compare_exchange_strong(expected, Slot::kParsing)) return false;
  try {
    ClearMarkRecord(slot.mark.record);
    std::string parseError;  // every Description found has at least its first line
    ParseDescription(slot.mark.pid, slot.lines, 0, ParseGroups{}, parseError, slot.mark.record, support_);
  } catch (...) {
    slot.failure = std::current_exception();
  }
  slot.state = Slot::kParsed;
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
      Slot& slot = SlotOf(cut++);
      slot.failure = nullptr;
      try {
        slot.end = !Cut(descriptions, lines, slot);
      } catch (...) {
        slot.end = true;
        slot.failure = std::current_exception();
      }
      ended = slot.end;
      slot.state = ended ? Slot::kParsed : Slot::kCut;
      worked = true;
    }
    // Then parses the last mark cut that nobody has begun: the export parses the first ones
    // itself when it gets to them, so the two meet in between.
    for (std::size_t i = cut; i > taken_ && !worked; --i) worked = TryParse(SlotOf(i - 1));
    if (ended && !worked) return;
    if (!worked) WaitUntil([&] { return stop_ || cut < taken_ + kAhead; });
  }
}

ParsedMark* ParsedMarks::Next() {
  if (next_ > 0) {
    SlotOf(next_ - 1).state = Slot::kFree;  // the mark handed out before is done with
    taken_ = next_;
  }
  Slot& slot = SlotOf(next_);
  WaitUntil([&] {
    TryParse(slot);
    return slot.state == Slot::kParsed;
  });
  if (slot.failure) std::rethrow_exception(slot.failure);
  if (slot.end) return nullptr;
  ++next_;
  return &slot.mark;
}

}  // namespace benchlog
