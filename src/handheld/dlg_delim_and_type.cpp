#include "handheld/dlg_delim_and_type.hpp"

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"

namespace benchlog {
namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kEscape = 27;

std::vector<std::string> ZoneCodes(const std::string& supportPath) {
  std::vector<std::string> codes;
  const std::string path = supportPath + kZoneTableFile;
  if (!FileExists(path)) return codes;
  LineReader reader(path);
  for (std::string_view line; reader.ReadLine(line);)
    if (!IsBlank(line)) codes.push_back(Left(line, 10));
  return codes;
}

std::optional<long> StoredPosition(const SettingsStore& settings, const char* key) {
  const std::string text = settings.GetSetting(dlgDelimAndType::kSection, key, "");
  if (text.empty()) return std::nullopt;
  return static_cast<long>(Val(text));
}

std::string SlotKey(std::size_t slot) { return "Col " + std::to_string(slot); }

}  // namespace

const std::vector<std::string> dlgDelimAndType::kDataTypes{
    "Point number", "Descritption", "Designation", "PID", "Date Adjusted (MM/DD/YY)", "E/W Hemisphere",
    "Feature Name", "N/S Hemisphere", "Lat (DD.ddddddddd)", "Lat (NDD.ddddddddd)", "Lat (DD MM SS.sssss)",
    "Lat (DD-MM-SS.sssss)", "Lat (DD,MM,SS.sssss)", "Lat (DD MM SS.sssss N)", "Lat (NDD MM SS.sssss)",
    "Lat (NDD-MM-SS.sssss)", "Lat (NDD,MM,SS.sssss)", "Lat (NDDMMSS.sssss)", "Lon (DDD.ddddddddd)",
    "Lon (WDDD.ddddddddd)", "Lon (DDD MM SS.sssss)", "Lon (DDD-MM-SS.sssss)", "Lon (DDD,MM,SS.sssss)",
    "Lon (DDD MM SS.sssss W)", "Lon (WDDD MM SS.sssss)", "Lon (WDDD-MM-SS.sssss)", "Lon (WDDD,MM,SS.sssss)",
    "Lon (WDDDMMSS.sssss)", "LL (NDD MM SS.s WDDD MM SS.s)", "SPC (NNNNNNN.nnn)", "SPC (EEEEEEE.eee)",
    "Orthometric Height", "GPS Suitable", "Set Agency (XXXXXX)", "Rec Agency (XXXXXX)", "Other (ignore)"};

const std::vector<std::string> dlgDelimAndType::kDelimiters{
    "Asterisk (*)", "BackSlash (\\)", "Colon (:)", "Comma (,)", "Dash (-)", "Equal (=)", "Exclaimation (!)",
    "Pipe (|)", "Pound (#)", "SemiColon (;)", "Slash (/)", "Tab      ", "Underscore (_)"};

void dlgDelimAndType::Load(const SettingsStore& settings, const std::string& supportPath) {
  cboHOrderList = {"4"};
  cboHDatumList = {"NAD 83", "NAD 27"};
  cboHSourceList = {"O"};
  cboHTechList = {"W", "X"};
  cboVOrderList = {"1", "2", "3", "4"};
  cboVDatumList = {"NAVD 88", "NGVD 29"};
  cboOHtSourceList = {"GPS", "LEVEL"};
  cboVTechList = {"W", "X"};
  cboSPCZoneList = ZoneCodes(supportPath);
  Top = StoredPosition(settings, "Top");
  Left = StoredPosition(settings, "Left");
  cboDelimChar = settings.GetSetting(kSection, "DelimChar", "");
  cboHOrder = settings.GetSetting(kSection, "Order", "");
  cboHSource = settings.GetSetting(kSection, "Source", "");
  cboHDatum = settings.GetSetting(kSection, "Datum", "");
  cboHTech = settings.GetSetting(kSection, "Technique", "");
  for (std::size_t slot = 0; slot < kSlots; ++slot)
    SetDataType(slot, settings.GetSetting(kSection, SlotKey(slot), ""));
}

void dlgDelimAndType::SetDataType(std::size_t slot, const std::string& text) {
  cboDataType.at(slot) = text;
  if (StartsWith(text, "SPC")) fraSPCVisible = true;
}

void dlgDelimAndType::SetSpcZone(const std::string& zone, const std::string& supportPath) {
  cboSPCZone = zone;
  std::string line;
  FindZoneLine(benchlog::Left(zone, 5), Mid(zone, 7, 4), line, supportPath);
  const std::string unit = Trim(ZoneFootUnit(line));
  cboUnits = unit.empty() ? "M" : unit;
}

std::string dlgDelimAndType::Delimiter() const {
  const std::string first = benchlog::Left(Right(cboDelimChar, 2), 1);
  return first == " " ? "\t" : first;
}

DialogKey dlgDelimAndType::filterKey(int keyAscii) {
  if (keyAscii == 0 || keyAscii == kBackspace || keyAscii == ' ') return {keyAscii};
  if (keyAscii == kEnter) return {0, false, true};
  if (keyAscii == kEscape) {
    CancelButton_Click();
    return {};
  }
  if (keyAscii >= 'a' && keyAscii <= 'z') return {keyAscii - 'a' + 'A'};
  const bool passes = keyAscii == '+' || keyAscii == '-' || keyAscii == '.' || keyAscii == '/' ||
                      keyAscii == '=' || (keyAscii >= '0' && keyAscii <= '9') || (keyAscii >= 'A' && keyAscii <= 'Z');
  if (passes) return {keyAscii};
  return {0, true, false};
}

void dlgDelimAndType::OKButton_Click(Ui& ui, SettingsStore& settings) {
  const std::string delimiter = Delimiter();
  for (const auto& text : cboDataType) {
    if (InStr(text, delimiter) > 0) {
      ui.MsgBox(std::string("Delimiting character is invalid with this data type:") + kCrLf + text);
      return;
    }
  }
  for (std::size_t i = 0; i < kSlots; ++i) {
    for (std::size_t j = i + 1; j < kSlots; ++j) {
      const std::string& text = cboDataType[i];
      if (text.empty() || text == kOther || text != cboDataType[j]) continue;
      if (ui.MsgBox("Data type duplicated!", MsgButtons::OkCancel, MsgIcon::None, "Error") == MsgResult::Ok) return;
      // Cancel hides the dialog with an empty tag, yet the checks and the storing go on.
      CancelButton_Click();
    }
  }
  if (Top) settings.SaveSetting(kSection, "Top", std::to_string(*Top));
  if (Left) settings.SaveSetting(kSection, "Left", std::to_string(*Left));
  settings.SaveSetting(kSection, "DelimChar", cboDelimChar);
  settings.SaveSetting(kSection, "Order", cboHOrder);
  settings.SaveSetting(kSection, "Source", cboHSource);
  settings.SaveSetting(kSection, "Datum", cboHDatum);
  settings.SaveSetting(kSection, "Technique", cboHTech);
  for (std::size_t slot = 0; slot < kSlots; ++slot) settings.SaveSetting(kSection, SlotKey(slot), cboDataType[slot]);
  Tag = delimiter;
  Visible = false;
}

void dlgDelimAndType::CancelButton_Click() {
  Tag.clear();
  Visible = false;
}

}  // namespace benchlog
