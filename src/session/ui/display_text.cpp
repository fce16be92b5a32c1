#include "session/ui/display_text.hpp"

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

// A CR LF pair is one line break on screen, counted at its CR.
bool IsSecondHalfOfCrLf(const std::string& text, std::size_t i) {
  return text[i] == '\n' && i > 0 && text[i - 1] == '\r';
}

}  // namespace

QString ToDisplayText(const std::string& text) {
  QString shown = ToQt(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(QChar('\r'), QChar('\n'));
  return shown;
}

std::string FromDisplayText(const QString& text) {
  QString lines = text;
  lines.replace(QChar::ParagraphSeparator, QChar('\n'));
  lines.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  return FromQt(lines);
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
