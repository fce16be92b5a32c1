#include "export/find_descriptions.hpp"

#include "common/runtime_failure.hpp"
#include "common/text.hpp"

namespace benchlog {

void FindDescriptions(std::span<const std::string_view> lines, std::vector<std::size_t>& starts,
                      std::vector<std::string>& pids, std::size_t& count) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].empty() || lines[i].front() != '1') continue;
    if (i + 1 >= lines.size()) throw SubscriptOutOfRange();
    ++count;
    starts.push_back(i + 1);
    pids.push_back(Mid(lines[i + 1], 2, 6));
  }
}

std::vector<std::string_view> SplitCrLfViews(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = text.find("\r\n", begin);
    if (end == std::string_view::npos) break;
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 2;
  }
  lines.push_back(text.substr(begin));
  return lines;
}

}  // namespace benchlog
