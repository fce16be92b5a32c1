#include "session/ui/display_text.hpp"

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

// A CR LF pair is one line break on screen, counted at its CR.
bool IsSecondHalfOfCrLf(const std::string& text, std::size_t i) {
  return text[i] == '\n' && i > 0 && text[i - 1] == '\r';
}

// The widget's line and paragraph separators as the one line break of ToDisplayText.
QString WithPlainBreaks(QString shown) {
  shown.replace(QChar::ParagraphSeparator, QChar('\n'));
  shown.replace(QChar::LineSeparator, QChar('\n'));
  return shown;
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

void ApplyDisplayEdit(std::string& text, int position, int removed, const QString& inserted) {
  // The widget may report more than was changed (a whole block): what stands alike on both sides
  // keeps its bytes.
  const std::size_t from = ModelPosition(text, position);
  const std::size_t to = ModelPosition(text, position + removed);
  const QString before = ToDisplayText(text.substr(from, to - from));
  const QString after = WithPlainBreaks(inserted);
  qsizetype head = 0;
  while (head < before.size() && head < after.size() && before[head] == after[head]) ++head;
  qsizetype tail = 0;
  while (tail < before.size() - head && tail < after.size() - head &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  const std::size_t changedFrom = ModelPosition(text, position + static_cast<int>(head));
  const std::size_t changedTo = ModelPosition(text, position + static_cast<int>(before.size() - tail));
  text.replace(changedFrom, changedTo - changedFrom, FromDisplayText(after.mid(head, after.size() - head - tail)));
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
