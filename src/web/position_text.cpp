#include "web/position_text.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

constexpr unsigned char kLowestCode = 46;   // "."
constexpr unsigned char kHighestFirst = 57;  // "9"
constexpr double kMaxMinutesOrSeconds = 59;

bool CharactersPass(std::string_view s) {
  for (std::size_t i = 1; i <= s.size(); ++i) {
    if (Mid(s, i, 12) == "/") return false;  // only a last "/" is alone in its 12 characters
    if (static_cast<unsigned char>(s[i - 1]) < kLowestCode) return false;
    if (static_cast<unsigned char>(s[0]) > kHighestFirst) return false;
  }
  return true;
}

}  // namespace

bool ValidPositionText(std::string_view s, double limit) {
  if (!CharactersPass(s)) return false;
  const std::size_t point = InStr(s, ".");
  const std::size_t p = point == 0 ? s.size() + 1 : point;
  const std::size_t k = p > 5 ? p - 5 : 0;
  if (Val(Left(s, k)) > limit) return false;
  if (Val(Mid(s, k + 1, 2)) > kMaxMinutesOrSeconds) return false;
  return Val(Mid(s, k + 3, 2)) <= kMaxMinutesOrSeconds;
}

}  // namespace benchlog
