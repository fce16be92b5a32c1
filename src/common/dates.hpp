#pragma once
// Calendar dates as the data sheets write them. ReadDate accepts the texts the classic run time
// takes for dates (US order): "m/d/yyyy", "m/d/yy", "m-d-yyyy", "yyyy/m/d", "yyyy-m-d",
// "Mon d, yyyy", "Month d yyyy", "d Mon yyyy", "d-Mon-yyyy", "yyyy Mon d", "Mon yyyy" (day 1) and
// "m/yyyy" (day 1). Month names may be cut to three letters or more, in any case. Two-digit years 00-29 are 2000-2029, 30-99 are 1930-1999. A day that the month does
// not have is no date.
#include <optional>
#include <string>
#include <string_view>

namespace benchlog {

struct Date {
  int year = 1899;
  int month = 12;
  int day = 30;  // the zero date of the classic run time
  bool operator==(const Date&) const = default;
};

std::optional<Date> ReadDate(std::string_view text);
bool IsDate(std::string_view text);
// "yyyymmdd"; the zero date gives "18991230".
std::string FormatYyyymmdd(const Date& date);
// ReadDate formatted as "yyyymmdd", or the zero date "18991230" when the text is no date.
std::string DateTextToYyyymmdd(std::string_view text);

}  // namespace benchlog
