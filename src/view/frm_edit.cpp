#include "view/frm_edit.hpp"

#include <algorithm>
#include <charconv>

#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "platform/platform.hpp"
#include "session/session.hpp"
#include "view/print_array.hpp"

namespace benchlog {
namespace {

constexpr const char* kSection = "frmEdit";

// A setting that is no whole number (edited by hand) gives the default.
long SettingNumber(const SettingsStore& settings, const char* key, long defaultValue) {
  const std::string text = settings.GetSetting(kSection, key, std::to_string(defaultValue));
  long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end != text.data() ? value : defaultValue;
}

// `text` with its first occurrence of `find` (or all, when `all`) replaced; exact comparison.
std::string ReplaceOccurrences(const std::string& text, const std::string& find, const std::string& with, bool all) {
  if (all) return ReplaceAll(text, find, with);
  std::string out = text;
  const std::size_t at = out.find(find);
  if (at != std::string::npos) out.replace(at, find.size(), with);
  return out;
}

// The text as the printer takes it in one piece: line under line, a new page when one is full. The
// line end behind the last line starts no line of its own.
PrintDocument TextPages(const std::string& text) {
  PrintDocument document = PageSetupForWidth(80);
  std::vector<std::string> lines = Split(text, kCrLf);
  if (lines.back().empty()) lines.pop_back();
  const auto perPage = static_cast<std::size_t>(document.linesPerPage);
  for (std::size_t first = 0; first < lines.size(); first += perPage)
    document.pages.emplace_back(lines.begin() + static_cast<std::ptrdiff_t>(first),
                                lines.begin() + static_cast<std::ptrdiff_t>(std::min(first + perPage, lines.size())));
  return document;
}

}  // namespace

void frmEdit::Load(const SettingsStore& settings) {
  placement.top = SettingNumber(settings, "Top", 0);
  placement.left = SettingNumber(settings, "Left", 0);
  placement.height = SettingNumber(settings, "Height", 8340);
  placement.width = SettingNumber(settings, "Width", 10650);
  loaded = true;
}

void frmEdit::SaveGeometry(SettingsStore& settings) const {
  settings.SaveSetting(kSection, "Top", std::to_string(placement.top));
  settings.SaveSetting(kSection, "Left", std::to_string(placement.left));
  settings.SaveSetting(kSection, "Height", std::to_string(placement.height));
  settings.SaveSetting(kSection, "Width", std::to_string(placement.width));
}

bool frmEdit::ViewFile(Ui& ui, const std::string& fName, bool edit) {
  Caption = fName;
  if (!FileExists(fName)) {
    ui.MsgBox("File not found!");
    return false;
  }
  Locked = true;
  editMenusVisible = false;
  placement.state = kMaximized;
  try {
    txtEdit = ReadWholeFile(fName);
  } catch (const RuntimeFailure& failure) {
    ui.MsgBox(failure.description);
    return false;
  }
  FileName = fName;
  Select(0, 0);
  TextChanged();
  Locked = !edit;
  editMenusVisible = edit;
  return true;
}

void frmEdit::SaveFile(Ui& ui, const std::string& fName) {
  std::string_view text = txtEdit;
  if (text.size() >= 2 && text.substr(text.size() - 2) == kCrLf) text.remove_suffix(2);
  try {
    LineWriter out(fName);
    out.WriteLine(text);
    out.Close();
  } catch (const RuntimeFailure& failure) {
    ui.MsgBox(failure.description);
    return;
  }
  ChangesSaved = true;
  undo.fill("");
}

void frmEdit::StoreOldText() {
  std::rotate(undo.rbegin(), undo.rbegin() + 1, undo.rend());
  undo[0] = txtEdit;
}

void frmEdit::mnuUndo() {
  if (IsBlank(undo[0])) return;
  txtEdit = std::move(undo[0]);
  std::rotate(undo.begin(), undo.begin() + 1, undo.end());
  undo.back().clear();
  Select(0, 0);
  TextChanged();
}

int frmEdit::KeyPress(int keyAscii) {
  StoreOldText();
  return keyAscii >= 'a' && keyAscii <= 'z' ? keyAscii - 'a' + 'A' : keyAscii;
}

void frmEdit::mnuSearchFind(Ui& ui) {
  searchString.clear();
  searchPosition = 0;
  FindNext(ui);
}

void frmEdit::FindNext(Ui& ui) {
  if (searchString.empty()) {
    dlgText& ask = findDialog;
    ask.Caption = "Find Text";
    ask.Label = "Enter string to search for:";
    ask.txtEntry.clear();
    ask.Tag.clear();
    ui.ShowModal(ask);
    if (ask.Tag == "Canceled") return;
    searchString = UCase(ask.Tag);
  }
  Search();
}

void frmEdit::Search() {
  const std::size_t found = InStr(UCase(txtEdit), searchString, searchPosition + 1);
  const std::size_t start = found >= 2 ? found - 1 : found;
  Select(start, searchString.size());
  searchPosition = start + searchString.size();
}

void frmEdit::mnuSearchReplace(Ui& ui) {
  diaReplace& ask = replaceDialog;
  ask.Tag.clear();
  ui.ShowModal(ask);
  if (ask.Tag != "Okay" || IsBlank(ask.txtFind)) return;
  StoreOldText();
  std::string replaced = ReplaceOccurrences(txtEdit, Trim(ask.txtFind), Trim(ask.txtReplace), !ask.optReplaceOnce);
  if (replaced == txtEdit) return;
  txtEdit = std::move(replaced);
  Select(0, 0);
  TextChanged();
}

std::string frmEdit::mnuCopy() const { return txtEdit.substr(SelStart, SelLength); }

std::string frmEdit::mnuCut() {
  std::string cut = mnuCopy();
  StoreOldText();
  ReplaceSelection("");
  return cut;
}

void frmEdit::mnuPaste(const std::string& clipboard) {
  StoreOldText();
  ReplaceSelection(clipboard);
}

void frmEdit::mnuPrint(Platform& platform) {
  try {
    ChoosePrinterOrCancel(platform);
    PlatformPrinter(platform).PrintText(TextPages(txtEdit));
    platform.ui.MsgBox("Printing complete");
  } catch (const RuntimeFailure& failure) {
    if (failure.number != kCancelError) platform.ui.MsgBox(failure.description);
  }
}

void frmEdit::CloseEditor(Ui& ui, SettingsStore& settings) {
  SaveGeometry(settings);
  if (!Locked && !ChangesSaved && ui.MsgBox("Save Changes?", MsgButtons::YesNo) == MsgResult::Yes) mnuSaveFile(ui);
}

void frmEdit::Select(std::size_t start, std::size_t length) {
  SelStart = std::min(start, txtEdit.size());
  SelLength = std::min(length, txtEdit.size() - SelStart);
}

void frmEdit::ReplaceSelection(const std::string& text) {
  const std::size_t at = SelStart;
  if (SelLength == 0 && text.empty()) return;
  txtEdit.replace(at, SelLength, text);
  Select(at + text.size(), 0);
  TextChanged();
}

frmEdit& EditForm(Session& session, Platform& platform) {
  frmEdit& edit = session.forms.Get<frmEdit>();
  edit.platform = &platform;
  if (!edit.loaded) edit.Load(platform.settings);
  return edit;
}

void mnuEditSA(Session& session, Platform& platform) {
  const std::string& path = session.outputs.SA6File;
  if (!FileExists(path)) {
    platform.ui.MsgBox("File not found!");
    return;
  }
  frmEdit& edit = EditForm(session, platform);
  if (!edit.ViewFile(platform.ui, path, true)) return;
  edit.Caption = "Edit Street Atlas File - " + path;
  platform.ui.ShowModal(edit);
}

}  // namespace benchlog
