#include "common/text.hpp"

#include <algorithm>

namespace benchlog {

std::string Mid(std::string_view s, std::size_t start, std::size_t length) {
  const std::size_t from = start == 0 ? 0 : start - 1;
  if (from >= s.size()) return {};
  return std::string(s.substr(from, length));
}

std::string Mid(std::string_view s, std::size_t start) { return Mid(s, start, std::string_view::npos); }

std::string Left(std::string_view s, std::size_t length) { return std::string(s.substr(0, length)); }

std::string Right(std::string_view s, std::size_t length) {
  return length >= s.size() ? std::string(s) : std::string(s.substr(s.size() - length));
}

std::string LTrim(std::string_view s) {
  const auto first = s.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : std::string(s.substr(first));
}

std::string RTrim(std::string_view s) {
  const auto last = s.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(s.substr(0, last + 1));
}

std::string_view TrimView(std::string_view s) {
  const auto first = s.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

std::string Trim(std::string_view s) { return std::string(TrimView(s)); }

bool IsBlank(std::string_view s) { return s.find_first_not_of(' ') == std::string_view::npos; }

std::string UCase(std::string_view s) {
  std::string out(s);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c; });
  return out;
}

std::string LCase(std::string_view s) {
  std::string out(s);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; });
  return out;
}

std::string Space(std::size_t count) { return std::string(count, ' '); }

std::size_t InStr(std::string_view s, std::string_view pattern, std::size_t start) {
  const std::size_t from = start == 0 ? 0 : start - 1;
  if (from > s.size()) return 0;
  const auto found = s.find(pattern, from);
  return found == std::string_view::npos ? 0 : found + 1;
}

std::size_t InStrRev(std::string_view s, std::string_view pattern) {
  const auto found = s.rfind(pattern);
  return found == std::string_view::npos ? 0 : found + 1;
}

std::string ReplaceAll(std::string_view s, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(s);
  std::string out;
  out.reserve(s.size());
  std::size_t pos = 0;
  for (auto hit = s.find(from); hit != std::string_view::npos; hit = s.find(from, pos)) {
    out.append(s.substr(pos, hit - pos)).append(to);
    pos = hit + from.size();
  }
  out.append(s.substr(pos));
  return out;
}

bool StartsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }

std::vector<std::string_view> SplitViews(std::string_view s, std::string_view separator) {
  std::vector<std::string_view> parts;
  std::size_t pos = 0;
  for (auto hit = s.find(separator); hit != std::string_view::npos && !separator.empty();
       hit = s.find(separator, pos)) {
    parts.push_back(s.substr(pos, hit - pos));
    pos = hit + separator.size();
  }
  parts.push_back(s.substr(pos));
  return parts;
}

std::vector<std::string> Split(std::string_view s, std::string_view separator) {
  const std::vector<std::string_view> views = SplitViews(s, separator);
  return {views.begin(), views.end()};
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string out;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i) out.append(separator);
    out.append(parts[i]);
  }
  return out;
}

}  // namespace benchlog
