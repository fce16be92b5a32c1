#include "platform/qt/text_codec.hpp"

#include <array>

namespace benchlog::qt {
namespace {

// Unicode of the bytes 0x80 to 0x9F; the five unassigned bytes map to the C1 controls.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

QString ToQt(const std::string& text) {
  QString out;
  out.reserve(static_cast<qsizetype>(text.size()));
  for (unsigned char c : text) out += QChar(c >= 0x80 && c <= 0x9F ? kHigh[c - 0x80] : char16_t(c));
  return out;
}

std::string FromQt(const QString& text) {
  std::string out;
  out.reserve(static_cast<std::size_t>(text.size()));
  for (QChar ch : text) {
    const char16_t u = ch.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
      out += static_cast<char>(u);
      continue;
    }
    char mapped = '?';
    for (std::size_t i = 0; i < kHigh.size(); ++i)
      if (kHigh[i] == u) mapped = static_cast<char>(0x80 + i);
    out += mapped;
  }
  return out;
}

}  // namespace benchlog::qt
