#include "export/ui/model_controls.hpp"

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

QButtonGroup* Group(QObject* owner, std::initializer_list<QRadioButton*> buttons) {
  auto* group = new QButtonGroup(owner);
  int id = 0;
  for (QRadioButton* button : buttons) group->addButton(button, id++);
  return group;
}

void SetOptions(QButtonGroup* group, std::initializer_list<bool> chosen) {
  group->setExclusive(false);
  int id = 0;
  for (const bool on : chosen) group->button(id++)->setChecked(on);
  group->setExclusive(true);
}

void FillCombo(QComboBox* combo, const std::vector<std::string>& list, const std::string& text) {
  combo->clear();
  for (const auto& item : list) combo->addItem(ToQt(item));
  const QString shown = ToQt(text);
  int index = combo->findText(shown);
  if (index < 0 && !combo->isEditable()) {
    combo->insertItem(0, shown);
    index = 0;
  }
  if (combo->isEditable()) combo->setEditText(shown);
  else combo->setCurrentIndex(index);
}

QComboBox* Combo(QWidget* parent, const char* name, bool editable, std::map<std::string, QWidget*>& controls) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setEditable(editable);
  controls[name] = combo;
  return combo;
}

QPushButton* Button(QWidget* parent, const char* name, const char* caption, std::map<std::string, QWidget*>& controls) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  controls[name] = button;
  return button;
}

}  // namespace benchlog::qt
