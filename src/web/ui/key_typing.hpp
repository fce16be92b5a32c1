#pragma once
// Feeds what the user types into a line edit through a model's key filter: a key the filter changes
// is typed as changed, a swallowed key is not typed, a refused key beeps. Keys that type nothing
// (arrows, Esc) are left to the edit and the dialog.
#include <QObject>
#include <functional>

#include "web/key_filter.hpp"

class QLineEdit;

namespace benchlog::qt {

class KeyTyping final : public QObject {
 public:
  using Filter = std::function<KeyOutcome(int keyAscii)>;
  using After = std::function<void(const KeyOutcome&)>;
  // Filters the keys of `edit` (which owns this object); `after` runs behind every filtered key.
  KeyTyping(QLineEdit* edit, Filter filter, After after);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* edit_;
  Filter filter_;
  After after_;
};

}  // namespace benchlog::qt
