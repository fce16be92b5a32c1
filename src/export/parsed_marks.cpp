#include "export/parsed_marks.hpp"

#include "export/parser/parse_description.hpp"

namespace benchlog {

ParsedMarks::ParsedMarks(TextBlocks& text, SupportFiles& support)
    : support_(support), descriptions_(text) {}

ParsedMarks::~ParsedMarks() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
  }
  room_.notify_one();
  thread_.join();
}

bool ParsedMarks::Fill(Slot& slot) {
  slot.end = false;
  slot.failure = nullptr;
  try {
    if (!descriptions_.Next()) {
      slot.end = true;
      return false;
    }
    descriptions_.Lines(cut_);
    slot.mark.pid.assign(descriptions_.Pid());
    // The lines are copied out, for the text read moves on; their views move along.
    const char* const begin = cut_.front().data();
    slot.text.assign(begin, static_cast<std::size_t>(cut_.back().data() + cut_.back().size() - begin));
    slot.lines.clear();
    for (const std::string_view line : cut_)
      slot.lines.emplace_back(slot.text.data() + (line.data() - begin), line.size());
    ClearMarkRecord(slot.mark.record);
    std::string parseError;  // every Description found has at least its first line
    ParseDescription(slot.mark.pid, slot.lines, 0, ParseGroups{}, parseError, slot.mark.record, support_);
    return true;
  } catch (...) {
    slot.failure = std::current_exception();
    return false;
  }
}

void ParsedMarks::Run() {
  std::unique_lock lock(mutex_);
  while (!ended_) {
    room_.wait(lock, [this] { return stop_ || made_ < taken_ + kAhead; });
    if (stop_) return;
    Slot& slot = SlotOf(made_);
    lock.unlock();
    const bool filled = Fill(slot);
    lock.lock();
    ended_ = !filled;
    if (++made_ % kBatch == 0 || ended_) ready_.notify_one();
  }
}

ParsedMark* ParsedMarks::Next() {
  // The first marks are parsed here, in turn; past them the second thread fills the ring.
  if (!thread_.joinable() && made_ == next_ && !ended_) {
    if (next_ < kOnThisThread) {
      ended_ = !Fill(SlotOf(made_++));
    } else {
      taken_ = next_;
      thread_ = std::thread([this] { Run(); });
    }
  }
  if (thread_.joinable()) {
    std::unique_lock lock(mutex_);
    taken_ = next_;  // the mark handed out before is done with
    if (taken_ % kBatch == 0) room_.notify_one();
    ready_.wait(lock, [this] { return made_ > next_; });
  }
  Slot& slot = SlotOf(next_);
  if (slot.failure) std::rethrow_exception(slot.failure);
  if (slot.end) return nullptr;
  ++next_;
  return &slot.mark;
}

}  // namespace benchlog
