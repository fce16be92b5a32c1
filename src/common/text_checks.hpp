#pragma once
// Small text utilities of the reports and the web replies.
#include <cstddef>
#include <string>
#include <string_view>

namespace benchlog {

// How many times `delimiter` stands in `text`; 0 for an empty text or delimiter.
std::size_t CountDelimiters(std::string_view text, std::string_view delimiter);
// Digits behind the first "." of the trimmed text; 0 when it has no point.
std::size_t DecimalCount(std::string_view numberText);
// The text without its CR LF pairs and without the plain table and page tags of a web reply
// (<BODY>, <HEAD>, <HTML>, <TABLE>, <TBODY>, <TD>, <TH>, <TITLE>, <TR> and their closing forms),
// in any letter case. A tag with attributes stays: this is no HTML parser.
std::string StripHtmlTags(std::string_view text);
// True when every character lies from "A" to "Z"; an empty text is all capitals.
bool IsAllCapitals(std::string_view text);

}  // namespace benchlog
