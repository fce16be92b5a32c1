#include "view/ui/display_text.hpp"

namespace benchlog::qt {
namespace {

// Windows-1252 at 0x80..0x9F; the other bytes are their Latin-1 characters. Undefined bytes keep
// their control character, so that they still come back as themselves.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QChar FromByte(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? QChar(kHighControls[byte - 0x80]) : QChar(byte);
}

char ToByte(QChar c) {
  const char16_t u = c.unicode();
  if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return static_cast<char>(u);
  for (int i = 0; i < 32; ++i)
    if (kHighControls[i] == u) return static_cast<char>(0x80 + i);
  return '?';
}

// The display length of the byte at `i`: a CR LF pair is one line break, counted at its CR.
bool IsSecondHalfOfCrLf(const std::string& text, std::size_t i) {
  return text[i] == '\n' && i > 0 && text[i - 1] == '\r';
}

}  // namespace

QString ToDisplayText(const std::string& text) {
  QString out;
  out.reserve(static_cast<qsizetype>(text.size()));
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsSecondHalfOfCrLf(text, i)) continue;
    out.append(text[i] == '\r' ? QChar('\n') : FromByte(static_cast<unsigned char>(text[i])));
  }
  return out;
}

std::string FromDisplayText(const QString& text) {
  std::string out;
  out.reserve(static_cast<std::size_t>(text.size()) + static_cast<std::size_t>(text.count('\n')));
  for (const QChar c : text) {
    if (c == QChar('\n') || c == QChar::ParagraphSeparator) {
      out += "\r\n";
    } else {
      out += ToByte(c);
    }
  }
  return out;
}

std::size_t ModelPosition(const std::string& text, int displayPosition) {
  std::size_t i = 0;
  for (int shown = 0; i < text.size() && shown < displayPosition; ++i) {
    if (!IsSecondHalfOfCrLf(text, i)) ++shown;
  }
  if (i < text.size() && IsSecondHalfOfCrLf(text, i)) ++i;
  return i;
}

int DisplayPosition(const std::string& text, std::size_t modelPosition) {
  int shown = 0;
  for (std::size_t i = 0; i < text.size() && i < modelPosition; ++i)
    if (!IsSecondHalfOfCrLf(text, i)) ++shown;
  return shown;
}

}  // namespace benchlog::qt
