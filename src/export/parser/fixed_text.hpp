#pragma once
// FixedText<Width>: a text field of fixed width, left-justified and padded with blanks, as the
// working record of a mark keeps its values. Storing a value cuts it to the width or pads it with
// blanks, so no field can ever hold a text of another width. A NUL stored into a field becomes a
// blank: readers of the record always see the field with its NULs turned into blanks.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace benchlog {

template <std::size_t Width>
class FixedText {
 public:
  static constexpr std::size_t kWidth = Width;

  FixedText() noexcept { Clear(); }

  // Stores `value`, cut to the width or padded on the right with blanks.
  FixedText& operator=(std::string_view value) noexcept {
    const std::size_t count = std::min(value.size(), Width);
    if (count > 0) std::memcpy(chars_.data(), value.data(), count);
    std::memset(chars_.data() + count, ' ', Width - count);
    if constexpr (Width <= 64) {
      for (std::size_t i = 0; i < count; ++i)
        if (chars_[i] == '\0') chars_[i] = ' ';
    } else {
      char* const end = chars_.data() + count;
      for (char* at = chars_.data(); (at = static_cast<char*>(std::memchr(at, '\0', end - at))) != nullptr;) *at++ = ' ';
    }
    return *this;
  }

  void Clear() noexcept { chars_.fill(' '); }

  // The whole field, always `Width` characters; valid while the field lives.
  std::string_view View() const noexcept { return {chars_.data(), Width}; }
  std::string Str() const { return std::string(View()); }
  // The field without its leading and trailing blanks, as a view into the field.
  std::string_view Trimmed() const noexcept {
    std::string_view text = View();
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
  }
  bool IsBlank() const noexcept { return View().find_first_not_of(' ') == std::string_view::npos; }

  // True when the field holds `value` as storing it would leave it: "W" equals a 1-wide "W",
  // "12" equals a 4-wide "12  ".
  bool operator==(std::string_view value) const noexcept {
    if (value.size() > Width) value = value.substr(0, Width);
    const std::string_view text = View();
    if (text.substr(0, value.size()) != value) return false;
    return text.find_first_not_of(' ', value.size()) == std::string_view::npos;
  }

 private:
  std::array<char, Width> chars_;
};

}  // namespace benchlog
