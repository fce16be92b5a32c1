#include "web/ui/key_typing.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

// The key's character code in the program's code page; 0 when it types no character.
int KeyAscii(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return kKeyEnter;
  if (key.key() == Qt::Key_Backspace) return kKeyBackspace;
  if (key.key() == Qt::Key_Escape || key.text().size() != 1 || !key.text()[0].isPrint()) return 0;
  return static_cast<unsigned char>(FromQt(key.text())[0]);
}

}  // namespace

KeyTyping::KeyTyping(QLineEdit* edit, Filter filter, After after)
    : QObject(edit), edit_(edit), filter_(std::move(filter)), after_(std::move(after)) {
  edit->installEventFilter(this);
}

bool KeyTyping::eventFilter(QObject* watched, QEvent* event) {
  if (watched != edit_ || event->type() != QEvent::KeyPress) return false;
  const int typed = KeyAscii(*static_cast<QKeyEvent*>(event));
  if (typed == 0) return false;
  const KeyOutcome outcome = filter_(typed);
  if (outcome.beep) QApplication::beep();
  const bool asTyped = outcome.key == typed;
  if (outcome.key != 0 && !asTyped) edit_->insert(ToQt(std::string(1, static_cast<char>(outcome.key))));
  after_(outcome);
  return !asTyped;
}

}  // namespace benchlog::qt
