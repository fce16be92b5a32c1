#include "export/frm_output_options.hpp"

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"

namespace benchlog {
namespace {

// The first `width` characters of every line of the zone table, in file order.
std::vector<std::string> ZoneLabels(const std::string& supportPath, std::size_t width) {
  std::vector<std::string> labels;
  const std::string path = supportPath + kZoneTableFile;
  if (!FileExists(path)) return labels;
  LineReader reader(path);
  std::string_view line;
  while (reader.ReadLine(line)) labels.push_back(Left(line, width));
  return labels;
}

long SettingLong(const SettingsStore& settings, const char* section, const char* key) {
  return static_cast<long>(Val(settings.GetSetting(section, key, "0")));
}

}  // namespace

bool SettingTruth(const std::string& text, bool defaultValue) {
  const std::string word = LCase(Trim(text));
  if (word == "true") return true;
  if (word == "false") return false;
  if (IsNumeric(word)) return Val(word) != 0;
  return defaultValue;
}

int CheckBoxValue(const std::string& text) {
  const double value = Val(text);
  return value == 1 || value == 2 ? static_cast<int>(value) : 0;
}

void frmOutputOptions::Load(SettingsStore& settings, const std::string& supportPath) {
  cboProjZoneList = ZoneLabels(supportPath, 10);
  SetAllStations(SettingTruth(settings.GetSetting(kSection, "AllStations", "True"), true));
  SetFileTypes(settings.GetSetting(kSection, "FileTypes", "0000000"));
  chkNRMarks = CheckBoxValue(settings.GetSetting(kSection, "PlotNRMks", "0"));
  chkLandmarks = CheckBoxValue(settings.GetSetting(kSection, "PlotLandMks", "0"));
  cboScale = settings.GetSetting(kSection, "Scale", "5280");
  // Each button is set in turn as the classic form did: a true one clears its group, a false one
  // only itself.
  const auto set = [&](bool& button, const char* key, const char* defaultValue, auto select) {
    if (SettingTruth(settings.GetSetting(kSection, key, defaultValue), false)) select();
    else button = false;
  };
  set(optFeet, "Feet", "False", [this] { SetUnits(true, false, false); });
  set(optMeters, "Meters", "True", [this] { SetUnits(false, true, false); });
  set(optUTM, "UTM", "False", [this] { SetUnits(false, false, true); });
  set(optElFeet, "ElevFeet", "False", [this] { SetElevationUnits(true, false); });
  set(optElM, "ElevM", "True", [this] { SetElevationUnits(false, true); });
  cboProjZone = settings.GetSetting(kSection, "Zone", "MD    1900");
  Top = SettingLong(settings, kSection, "Top");
  Left = SettingLong(settings, kSection, "Left");
  chkMicrostation_Click();
  settingsStore = &settings;
  Loaded = true;
}

void frmOutputOptions::Unload(SettingsStore& settings) const {
  settings.SaveSetting(kSection, "Top", std::to_string(Top));
  settings.SaveSetting(kSection, "Left", std::to_string(Left));
}

void frmOutputOptions::SetAllStations(bool all) {
  optAllSta = all;
  optSelectedSta = !all;
}

void frmOutputOptions::SetUnits(bool feet, bool meters, bool utm) {
  optFeet = feet;
  optMeters = meters;
  optUTM = utm;
}

void frmOutputOptions::SetElevationUnits(bool feet, bool meters) {
  optElFeet = feet;
  optElM = meters;
}

void frmOutputOptions::cmdOkay_Click() {
  if (!settingsStore) return;
  SettingsStore& settings = *settingsStore;
  settings.SaveSetting(kSection, "AllStations", TruthText(optAllSta));
  settings.SaveSetting(kSection, "FileTypes", FileTypes());
  settings.SaveSetting(kSection, "PlotNRMks", std::to_string(chkNRMarks));
  settings.SaveSetting(kSection, "PlotLandMks", std::to_string(chkLandmarks));
  settings.SaveSetting(kSection, "Scale", cboScale);
  settings.SaveSetting(kSection, "Feet", TruthText(optFeet));
  settings.SaveSetting(kSection, "Meters", TruthText(optMeters));
  settings.SaveSetting(kSection, "UTM", TruthText(optUTM));
  settings.SaveSetting(kSection, "ElevFeet", TruthText(optElFeet));
  settings.SaveSetting(kSection, "ElevM", TruthText(optElM));
  settings.SaveSetting(kSection, "Zone", cboProjZone);
  Unload(settings);
}

std::string frmOutputOptions::FileTypes() const {
  std::string digits;
  for (const int value : {chkHoriz, chkVert, chkDB, 0, chkStreetAtlas, chkMicrostation}) digits += std::to_string(value);
  return digits;
}

void frmOutputOptions::SetFileTypes(const std::string& fileTypes) {
  chkHoriz = CheckBoxValue(Mid(fileTypes, 1, 1));
  chkVert = CheckBoxValue(Mid(fileTypes, 2, 1));
  chkDB = CheckBoxValue(Mid(fileTypes, 3, 1));
  chkStreetAtlas = CheckBoxValue(Mid(fileTypes, 5, 1));
  chkMicrostation = CheckBoxValue(Mid(fileTypes, 6, 1));
}

}  // namespace benchlog
