#include "common/dates.hpp"

#include <array>
#include <cstdio>
#include <vector>

#include "common/text.hpp"

namespace benchlog {
namespace {

constexpr std::array<const char*, 12> kMonths = {"JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
                                                 "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};

bool IsLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysIn(int year, int month) {
  static constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeap(year) ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

std::optional<Date> Make(int year, int month, int day) {
  if (year < 100) year += year < 30 ? 2000 : 1900;
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > DaysIn(year, month)) return std::nullopt;
  return Date{year, month, day};
}

// A month name or its first three letters or more, in any case; 0 when it is none.
int MonthOfName(const std::string& word) {
  if (word.size() < 3) return 0;
  const std::string upper = UCase(word);
  for (std::size_t m = 0; m < kMonths.size(); ++m)
    if (std::string_view(kMonths[m]).substr(0, upper.size()) == upper) return static_cast<int>(m) + 1;
  return 0;
}

struct Token {
  std::string text;
  bool number;
};

// Cuts the text into numbers and words at blanks, commas, "/", "-" and ".".
std::optional<std::vector<Token>> Tokens(std::string_view text) {
  std::vector<Token> tokens;
  std::string current;
  bool number = false;
  auto flush = [&] {
    if (!current.empty()) tokens.push_back({current, number});
    current.clear();
  };
  for (char c : text) {
    const bool digit = c >= '0' && c <= '9';
    const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    if (digit || letter) {
      if (!current.empty() && number != digit) flush();
      number = digit;
      current += c;
    } else if (c == ' ' || c == ',' || c == '/' || c == '-' || c == '.') {
      flush();
    } else {
      return std::nullopt;
    }
  }
  flush();
  return tokens;
}

}  // namespace

std::optional<Date> ReadDate(std::string_view text) {
  const auto tokens = Tokens(text);
  if (!tokens || tokens->empty() || tokens->size() > 3) return std::nullopt;
  std::vector<int> numbers;
  int month = 0;
  for (const auto& token : *tokens) {
    if (token.number) {
      if (token.text.size() > 4) return std::nullopt;
      numbers.push_back(std::stoi(token.text));
    } else {
      if (month != 0 || (month = MonthOfName(token.text)) == 0) return std::nullopt;
    }
  }
  const auto& t = *tokens;
  if (month == 0 && numbers.size() == 3) {
    if (t[0].text.size() >= 3) return Make(numbers[0], numbers[1], numbers[2]);  // year first
    return Make(numbers[2], numbers[0], numbers[1]);
  }
  if (month == 0 && numbers.size() == 2 && t[1].text.size() == 4) return Make(numbers[1], numbers[0], 1);
  if (month != 0 && numbers.size() == 2) {
    // "yyyy Mon d" has the year first; "Mon d yyyy" and "d Mon yyyy" have it last.
    const bool yearFirst = (t[0].number ? t[0] : t[1]).text.size() >= 3;
    return yearFirst ? Make(numbers[0], month, numbers[1]) : Make(numbers[1], month, numbers[0]);
  }
  if (month != 0 && numbers.size() == 1 && !t[0].number && t[1].text.size() == 4) return Make(numbers[0], month, 1);
  return std::nullopt;
}

bool IsDate(std::string_view text) { return ReadDate(text).has_value(); }

std::string FormatYyyymmdd(const Date& date) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%04d%02d%02d", date.year, date.month, date.day);
  return buffer;
}

std::string DateTextToYyyymmdd(std::string_view text) { return FormatYyyymmdd(ReadDate(text).value_or(Date{})); }

}  // namespace benchlog
