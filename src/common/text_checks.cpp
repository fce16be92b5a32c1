#include "common/text_checks.hpp"

#include "common/text.hpp"

namespace benchlog {
namespace {

char UpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool MatchesAt(std::string_view text, std::size_t at, std::string_view upperTag) {
  if (at + upperTag.size() > text.size()) return false;
  for (std::size_t i = 0; i < upperTag.size(); ++i)
    if (UpperAscii(text[at + i]) != upperTag[i]) return false;
  return true;
}

// One left-to-right pass, as a replace does: what the removal joins is not looked at again. Every
// tag opens with '<', so the text between two of them is copied whole.
std::string RemoveIgnoringCase(std::string_view text, std::string_view upperTag) {
  std::string out;
  out.reserve(text.size());
  std::size_t copied = 0;
  for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
    if (MatchesAt(text, at, upperTag)) {
      out.append(text, copied, at - copied);
      at += upperTag.size();
      copied = at;
    } else {
      ++at;
    }
  }
  out.append(text, copied);
  return out;
}

}  // namespace

std::size_t CountDelimiters(std::string_view text, std::string_view delimiter) {
  if (text.empty() || delimiter.empty()) return 0;
  std::size_t count = 0;
  for (auto at = text.find(delimiter); at != std::string_view::npos; at = text.find(delimiter, at + delimiter.size()))
    ++count;
  return count;
}

std::size_t DecimalCount(std::string_view numberText) {
  const std::string trimmed = Trim(numberText);
  const std::size_t point = InStr(trimmed, ".");
  return point == 0 ? 0 : trimmed.size() - point;
}

std::string StripHtmlTags(std::string_view text) {
  static constexpr std::string_view kTags[] = {
      "<BODY>",  "<HEAD>",  "<HTML>",  "<TABLE>",  "<TBODY>",  "<TD>",  "<TH>",  "<TITLE>",  "<TR>",
      "</BODY>", "</HEAD>", "</HTML>", "</TABLE>", "</TBODY>", "</TD>", "</TH>", "</TITLE>", "</TR>"};
  std::string out = ReplaceAll(text, "\r\n", "");
  for (std::string_view tag : kTags) out = RemoveIgnoringCase(out, tag);
  return out;
}

bool IsAllCapitals(std::string_view text) {
  for (char c : text)
    if (c < 'A' || c > 'Z') return false;
  return true;
}

}  // namespace benchlog
