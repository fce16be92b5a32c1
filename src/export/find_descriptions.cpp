#include "export/find_descriptions.hpp"

#include <cstring>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/dataset_text.hpp"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace benchlog {
namespace {

// Calls `found(offset)` for every "1" that follows a CR LF, in order. Most lines of a dataset
// begin with a blank, so the text is scanned 16 bytes at a time for an LF followed by "1".
template <class Found>
void ForEachHeaderAfterLineEnd(std::string_view text, Found&& found) {
  const char* const begin = text.data();
  const std::size_t size = text.size();
  const auto check = [&](std::size_t lf) {
    if (lf >= 1 && begin[lf - 1] == '\r' && lf + 1 < size && begin[lf + 1] == '1') found(lf + 1);
  };
  std::size_t at = 0;
#ifdef __SSE2__
  const __m128i lineFeed = _mm_set1_epi8('\n');
  const __m128i one = _mm_set1_epi8('1');
  for (; at + 17 <= size; at += 16) {
    const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(begin + at));
    const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(begin + at + 1));
    auto mask = static_cast<unsigned>(
        _mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(here, lineFeed), _mm_cmpeq_epi8(next, one))));
    for (; mask; mask &= mask - 1) check(at + static_cast<std::size_t>(__builtin_ctz(mask)));
  }
#endif
  for (; at < size; ++at)
    if (begin[at] == '\n') check(at);
}

}  // namespace

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

void FindDescriptions(std::string_view text, std::vector<std::size_t>& starts, std::vector<std::string>& pids,
                      std::size_t& count) {
  // A line starts the text or follows a CR LF; only those whose first character is "1" matter.
  const auto header = [&](std::size_t offset) {
    std::size_t next = 0;
    LineAt(text, offset, next);
    if (next == std::string_view::npos) throw SubscriptOutOfRange();
    std::size_t after = 0;
    ++count;
    starts.push_back(next);
    pids.push_back(Mid(LineAt(text, next, after), 2, 6));
  };
  if (!text.empty() && text.front() == '1') header(0);
  ForEachHeaderAfterLineEnd(text, header);
}

void DescriptionLines(std::string_view text, std::size_t start, std::string_view pid,
                      std::vector<std::string_view>& lines) {
  lines.clear();
  std::size_t offset = start;
  while (offset != std::string_view::npos) {
    std::size_t next = 0;
    const std::string_view line = LineAt(text, offset, next);
    lines.push_back(line);
    if (LinePid(line) != pid) break;
    offset = next;
  }
}

}  // namespace benchlog
