#include "export/find_descriptions.hpp"

#include <cstring>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/dataset_text.hpp"

namespace benchlog {

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
  for (std::size_t at = text.find("\r\n1"); at != std::string_view::npos; at = text.find("\r\n1", at + 2))
    header(at + 2);
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
