#pragma once
// Text is bytes: one character of the single-byte code page is one char. Columns and positions
// count from 1; a slice past the end of a string is shorter or empty, never an error.
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

inline constexpr const char* kCrLf = "\r\n";

// Characters from 1-based column `start`, at most `length` of them. Start 0 counts as 1.
std::string Mid(std::string_view s, std::size_t start, std::size_t length);
// Characters from 1-based column `start` to the end.
std::string Mid(std::string_view s, std::size_t start);
std::string Left(std::string_view s, std::size_t length);
std::string Right(std::string_view s, std::size_t length);

// Trimming removes blanks (the space character) only, as the dataset format pads with blanks.
std::string Trim(std::string_view s);
std::string_view TrimView(std::string_view s);  // the same, as a part of `s`
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
bool IsBlank(std::string_view s);  // empty or all blanks

std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
std::string Space(std::size_t count);

// 1-based position of the first `pattern` at or after `start`, 0 when absent. An empty pattern
// is found at `start` (when start is within the text or just past its end).
std::size_t InStr(std::string_view s, std::string_view pattern, std::size_t start = 1);
// 1-based position of the last `pattern`, 0 when absent.
std::size_t InStrRev(std::string_view s, std::string_view pattern);

std::string ReplaceAll(std::string_view s, std::string_view from, std::string_view to);
bool StartsWith(std::string_view s, std::string_view prefix);

// Splits at every occurrence of `separator`; "a,b," gives "a", "b", "".
std::vector<std::string> Split(std::string_view s, std::string_view separator);
// The same parts as views into `s`.
std::vector<std::string_view> SplitViews(std::string_view s, std::string_view separator);
std::string Join(const std::vector<std::string>& parts, std::string_view separator);

}  // namespace benchlog
