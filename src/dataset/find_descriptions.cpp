#include "dataset/find_descriptions.hpp"

#include <algorithm>
#include <cstring>

#include "common/runtime_failure.hpp"
#include "dataset/dataset_text.hpp"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace benchlog {

std::size_t FindHeader(std::string_view window, std::size_t from, bool textStart) {
  const char* const begin = window.data();
  const std::size_t size = window.size();
  if (from == 0 && textStart && size > 0 && begin[0] == '1') return 0;
  // A header at `at` + 1 has an LF at `at` and a CR before it. Most lines begin with a blank, so
  // the window is scanned 16 bytes at a time for an LF followed by "1".
  std::size_t at = from < 2 ? 1 : from - 1;
  const auto isHeader = [&](std::size_t lf) { return begin[lf - 1] == '\r'; };
#ifdef __SSE2__
  const __m128i lineFeed = _mm_set1_epi8('\n');
  const __m128i one = _mm_set1_epi8('1');
  for (; at + 17 <= size; at += 16) {
    const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(begin + at));
    const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(begin + at + 1));
    auto mask = static_cast<unsigned>(
        _mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(here, lineFeed), _mm_cmpeq_epi8(next, one))));
    for (; mask; mask &= mask - 1) {
      const std::size_t lf = at + static_cast<std::size_t>(__builtin_ctz(mask));
      if (isHeader(lf)) return lf + 1;
    }
  }
#endif
  for (; at + 1 < size; ++at)
    if (begin[at] == '\n' && begin[at + 1] == '1' && isHeader(at)) return at + 1;
  return std::string_view::npos;
}

std::string_view LineAt(std::string_view text, std::size_t offset, std::size_t& next) {
  std::size_t end = offset;
  for (;;) {
    const void* found = std::memchr(text.data() + end, '\r', text.size() - end);
    if (!found) {
      next = std::string_view::npos;
      return text.substr(offset);
    }
    end = static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
    if (end + 1 < text.size() && text[end + 1] == '\n') break;
    ++end;  // a lone CR stays inside the line
  }
  next = end + 2;
  return text.substr(offset, end - offset);
}

bool DescriptionLines(std::string_view text, std::size_t start, std::string_view pid,
                      std::vector<std::string_view>& lines) {
  lines.clear();
  std::size_t offset = start;
  for (;;) {
    std::size_t next = 0;
    const std::string_view line = LineAt(text, offset, next);
    lines.push_back(line);
    if (next == std::string_view::npos) return false;
    if (LinePid(line) != pid) return true;
    offset = next;
  }
}

bool DescriptionStream::ReadOn(std::size_t keepFrom) {
  const std::size_t keep = InWindow(keepFrom);
  return text_.More(keep < 2 ? 0 : keep - 2);
}

bool DescriptionStream::Next() {
  for (;;) {
    const std::string_view window = text_.Window();
    const std::size_t found = FindHeader(window, InWindow(scanFrom_), text_.WindowStart() == 0);
    if (found == std::string_view::npos) {
      // Every line start in the window has been looked at.
      scanFrom_ = text_.WindowStart() + window.size();
      if (!ReadOn(scanFrom_)) return false;
      continue;
    }
    std::size_t next = 0;
    std::size_t after = 0;
    LineAt(window, found, next);
    const std::string_view pidLine =
        next == std::string_view::npos ? std::string_view() : LineAt(window, next, after);
    if (next == std::string_view::npos || after == std::string_view::npos) {
      // The header's line or the line after it may go on behind the window.
      scanFrom_ = text_.WindowStart() + found;
      if (ReadOn(scanFrom_)) continue;
      if (next == std::string_view::npos) throw SubscriptOutOfRange();
    }
    header_ = text_.WindowStart() + found;
    start_ = text_.WindowStart() + next;
    scanFrom_ = header_ + 1;
    pid_.assign(LinePid(pidLine));
    return true;
  }
}

void DescriptionStream::Lines(std::vector<std::string_view>& lines) {
  while (!DescriptionLines(text_.Window(), InWindow(start_), pid_, lines) && ReadOn(header_)) {
  }
  // Every line start from the current header to the end of these lines is the start of one of
  // them, so the next header is the first of them that starts with "1", or lies behind them.
  const char* const window = text_.Window().data();
  const auto offsetOf = [&](const char* at) { return text_.WindowStart() + static_cast<std::size_t>(at - window); };
  std::size_t resume = scanFrom_;
  for (const std::string_view line : lines) {
    resume = offsetOf(line.data());
    if (!line.empty() && line[0] == '1') break;
    resume += line.size();
  }
  scanFrom_ = std::max(scanFrom_, resume);
}

std::size_t CountDescriptions(TextBlocks& text) {
  DescriptionStream stream(text);
  std::size_t count = 0;
  while (stream.Next()) ++count;
  return count;
}

}  // namespace benchlog
