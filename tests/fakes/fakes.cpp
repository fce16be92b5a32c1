#include "fakes/fakes.hpp"

#include <algorithm>
#include <stdexcept>

#include "app/menu_tree.hpp"
#include "common/runtime_failure.hpp"

namespace benchlog::testing {

std::string MemorySettings::GetSetting(const std::string& section, const std::string& key,
                                       const std::string& defaultValue) const {
  const auto found = values.find(section + "/" + key);
  return found == values.end() ? defaultValue : found->second;
}

void MemorySettings::SaveSetting(const std::string& section, const std::string& key, const std::string& value) {
  values[section + "/" + key] = value;
}

bool MemorySettings::Has(const std::string& section, const std::string& key) const {
  return values.count(section + "/" + key) != 0;
}

namespace {
template <class T>
T Next(std::deque<T>& queue, const std::string& what) {
  if (queue.empty()) throw std::logic_error("ScriptedUi: no answer scripted for " + what);
  T answer = std::move(queue.front());
  queue.pop_front();
  return answer;
}
}  // namespace

MsgResult ScriptedUi::MsgBox(const MessageRequest& request) {
  messages.push_back(request);
  if (request.buttons == MsgButtons::Ok) return MsgResult::Ok;
  return Next(msgAnswers, "message box \"" + request.text + "\"");
}

std::string ScriptedUi::InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) {
  inputs.push_back(prompt + "|" + title + "|" + defaultText);
  return Next(inputAnswers, "input box \"" + prompt + "\"");
}

std::string ScriptedUi::FileDialog(const FileDialogRequest& request) {
  fileDialogs.push_back(request);
  std::string answer = Next(fileAnswers, "file dialog \"" + request.title + "\"");
  if (answer.empty()) throw CancelError();
  return answer;
}

std::optional<std::uint32_t> ScriptedUi::ColorDialog(const std::string& title, std::uint32_t) {
  colorTitles.push_back(title);
  return Next(colorAnswers, "colour dialog \"" + title + "\"");
}

void ScriptedUi::ShowModal(DialogModel& model) {
  modals.push_back(&model);
  Next(modalActions, std::string("modal dialog ") + typeid(model).name())(model);
}

std::vector<std::string> ScriptedUi::MessageTexts() const {
  std::vector<std::string> texts;
  for (const auto& m : messages) texts.push_back(m.text);
  return texts;
}

std::string Describe(const FileDialogRequest& r) {
  return (r.save ? "save|" : "open|") + r.title + "|" + r.filter + "|" + r.initDir;
}

std::string Describe(const Progress& p) {
  return (p.Visible() ? "" : "hidden: ") + p.lblProcessing + "|" + p.lblInfo + "|" + std::to_string(p.value) + "/" +
         std::to_string(p.max);
}

FakePlatform::FakePlatform(const std::string& appPath)
    : platform{ui, settings, clock, shell, progress, AppPaths{appPath, appPath.empty() ? "" : appPath + "/"}} {
  progress.observer = [this](const Progress& p) { progressHistory.push_back(p); };
  platform.http = &http;
  platform.database = &database;
  platform.printer = &printer;
  platform.pictures = &pictures;
}

bool RecordingPrinter::ChoosePrinter(const std::string& title) {
  dialogs.push_back(title);
  if (accept.empty()) return true;
  const bool answer = accept.front();
  accept.pop_front();
  return answer;
}

PictureSize FakePictureReader::Read(const std::string& path) {
  read.push_back(path);
  const auto found = sizes.find(path);
  if (found == sizes.end()) throw RuntimeFailure(481, "Invalid picture: " + path);
  return found->second;
}

void RecordingDatabase::Create(const std::string& newPath, const std::string& newTable,
                               const std::vector<DatabaseColumn>& newColumns) {
  if (newColumns.empty()) throw RuntimeFailure(5, "Invalid procedure call");
  path = newPath, table = newTable, columns = newColumns;
  rows.clear();
  open = true;
}

void RecordingDatabase::AddRow(const DatabaseRow& row) {
  for (const auto& field : row.fields) {
    const bool known = std::any_of(columns.begin(), columns.end(), [&](const DatabaseColumn& c) { return c.name == field.first; });
    if (!known) throw RuntimeFailure(3265, "Item not found in this collection: " + field.first);
  }
  rows.push_back(row);
}

std::optional<std::string> RecordingDatabase::Field(std::size_t index, const std::string& name) const {
  for (const auto& field : rows.at(index).fields)
    if (field.first == name) return field.second;
  return std::nullopt;
}

std::string ScriptedHttp::OpenURL() {
  requests.push_back({URL, UserName, Password});
  if (answers.empty()) throw std::logic_error("ScriptedHttp: no answer queued for " + URL);
  std::string body = std::move(answers.front());
  answers.pop_front();
  return body;
}

TestSession::TestSession() { InitMenuState(menu); }

}  // namespace benchlog::testing
