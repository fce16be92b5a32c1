#pragma once
// Small pieces the export's windows share: check box values as the models keep them (0 clear,
// 1 ticked, 2 greyed), option groups whose models may have no button chosen, and combo boxes
// filled from a model's list and text.
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace benchlog::qt {

inline Qt::CheckState CheckStateOf(int value) {
  return value == 1 ? Qt::Checked : value == 2 ? Qt::PartiallyChecked : Qt::Unchecked;
}

inline int CheckValueOf(int state) {
  return state == Qt::Checked ? 1 : state == Qt::PartiallyChecked ? 2 : 0;
}

// An exclusive group of the buttons, in order.
QButtonGroup* Group(QObject* owner, std::initializer_list<QRadioButton*> buttons);
// Sets the buttons of a group from the model, allowing none to be chosen.
void SetOptions(QButtonGroup* group, std::initializer_list<bool> chosen);
// Fills a combo box with `list` and shows `text` (added in front when the list lacks it).
void FillCombo(QComboBox* combo, const std::vector<std::string>& list, const std::string& text);

QComboBox* Combo(QWidget* parent, const char* name, bool editable, std::map<std::string, QWidget*>& controls);
QPushButton* Button(QWidget* parent, const char* name, const char* caption, std::map<std::string, QWidget*>& controls);

}  // namespace benchlog::qt
