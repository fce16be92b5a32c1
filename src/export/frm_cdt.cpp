#include "export/frm_cdt.hpp"

#include <algorithm>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "export/frm_output_options.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"

namespace benchlog {

const std::vector<frmCDT::Box>& frmCDT::Boxes() {
  static const std::vector<Box> boxes{
      {"chkFbnCbn", "FBN/CBN", &frmCDT::chkFbnCbn},
      {"chkDesig", "Designation", &frmCDT::chkDesig},
      {"chkPid", "PID", &frmCDT::chkPid},
      {"chkState", "State", &frmCDT::chkState},
      {"chkCounty", "County", &frmCDT::chkCounty},
      {"chkQuad", "USGS Quad", &frmCDT::chkQuad},
      {"chkLatLon", "Latitude / Longitude", &frmCDT::chkLatLon},
      {"chkLatLonDeg", "Lat / Lon Dec Degrees", &frmCDT::chkLatLonDeg},
      {"chkElevM", "Elevation (meters)", &frmCDT::chkElevM},
      {"chkElevF", "Elevation (feet)", &frmCDT::chkElevF},
      {"chkX", "X Y Z (meters)", &frmCDT::chkX},
      {"chkLaplace", "Laplace Correction (sec)", &frmCDT::chkLaplace},
      {"chkEllipht", "Ellipsoidal Height (meters)", &frmCDT::chkEllipht},
      {"chkGeoidHt", "Geoid Height (meters)", &frmCDT::chkGeoidHt},
      {"chkDynaHt", "Dynamic Height (meters)", &frmCDT::chkDynaHt},
      {"chkGrav", "Modeled Grav (mgal)", &frmCDT::chkGrav},
      {"chkHorizO", "Horizontal order", &frmCDT::chkHorizO},
      {"chkVertO", "Vertical order", &frmCDT::chkVertO},
      {"chkEllipO", "Ellipsoidal order", &frmCDT::chkEllipO},
      {"chkNRA", "Network Rel Accuracy", &frmCDT::chkNRA},
      {"chkSPC", "NAD 83 State Plane Coordinates", &frmCDT::chkSPC},
      {"chkSPCScale", "Scale Factor", &frmCDT::chkSPCScale},
      {"chkSPCConv", "Convergence", &frmCDT::chkSPCConv},
      {"chkSPCCGF", "Combined Grid Factor", &frmCDT::chkSPCCGF},
      {"chkUTM", "UTM Coord (meters)", &frmCDT::chkUTM},
      {"chkUTMScale", "Scale Factor", &frmCDT::chkUTMScale},
      {"chkUTMConv", "Convergence", &frmCDT::chkUTMConv},
      {"chkutmCGF", "Combined Grid Factor", &frmCDT::chkutmCGF},
      {"chkMarkCode", "Marker Code", &frmCDT::chkMarkCode},
      {"chkSetCode", "Setting Code", &frmCDT::chkSetCode},
      {"chkStamping", "Stamping", &frmCDT::chkStamping},
      {"chkStabCode", "Stability Code", &frmCDT::chkStabCode},
      {"chkSattelite", "Satellite Suitability", &frmCDT::chkSattelite},
      {"chkRecYear", "Year Last Recovered", &frmCDT::chkRecYear},
      {"chkCond", "Condition", &frmCDT::chkCond},
      {"chkDescText", "Descriptive Text", &frmCDT::chkDescText},
      {"chk27LatLon", "NAD 27 Lat / Lon", &frmCDT::chk27LatLon},
      {"chk29ElevFt", "NGVD 29 Elevation (feet)", &frmCDT::chk29ElevFt},
      {"chk29Mt", "NGVD 29 Elevation (meters)", &frmCDT::chk29Mt},
      {"chk8829Ft", "NAVD 88 - NGVD 29 (feet)", &frmCDT::chk8829Ft},
      {"chk8829M", "NAVD 88 - NGVD 29 (meters)", &frmCDT::chk8829M},
      {"chkSpcMdOnly", "NAD 27 SPC (MD Only)", &frmCDT::chkSpcMdOnly},
  };
  return boxes;
}

bool frmCDT::HiddenByVertical(const Box& box) {
  static constexpr std::string_view kHidden[] = {"chkHorizO",   "chkLaplace", "chkSPCConv",
                                                 "chkSPCScale", "chkUTMConv", "chkUTMScale",
                                                 "chkX",        "chkSpcMdOnly", "chk27LatLon"};
  return std::find(std::begin(kHidden), std::end(kHidden), box.name) != std::end(kHidden);
}

bool frmCDT::BoxVisible(const Box& box) const { return horizontalBoxesVisible || !HiddenByVertical(box); }

void frmCDT::Load(SettingsStore& settings, const std::string& supportPath) {
  Top = static_cast<long>(Val(settings.GetSetting(kSection, "Top", "0")));
  Left = static_cast<long>(Val(settings.GetSetting(kSection, "Left", "0")));
  cboSPCZoneList.clear();
  const std::string zones = supportPath + kZoneTableFile;
  if (FileExists(zones)) {
    LineReader reader(zones);
    std::string_view line;
    while (reader.ReadLine(line)) cboSPCZoneList.push_back(benchlog::Left(line, 5));
  }
  cboSPCZone = settings.GetSetting("Settings", "Zone", "MD   ");
  cboUTMZoneList.clear();
  for (int zone = 1; zone <= 24; ++zone)
    cboUTMZoneList.push_back({static_cast<char>('0' + zone / 10), static_cast<char>('0' + zone % 10)});
  cboUTMZone = settings.GetSetting("Settings", "UTMZone", "18");
  // As the classic group: a true button clears the others, a false one only itself.
  if (SettingTruth(settings.GetSetting("Settings", "optMeters", "False"), false)) SetUnits(false, true, false);
  else optMeters = false;
  if (SettingTruth(settings.GetSetting("Settings", "optSurveyFt", "True"), false)) SetUnits(true, false, false);
  else optUSFt = false;
  settingsStore = &settings;
  Loaded = true;
}

void frmCDT::Unload(SettingsStore& settings) const {
  settings.SaveSetting(kSection, "Top", std::to_string(Top));
  settings.SaveSetting(kSection, "Left", std::to_string(Left));
}

void frmCDT::OptHoriz_Click() {
  OptHoriz = true;
  Optvert = optBoth = false;
  horizontalBoxesVisible = true;
}

void frmCDT::Optvert_Click() {
  Optvert = true;
  OptHoriz = optBoth = false;
  horizontalBoxesVisible = false;
}

void frmCDT::optBoth_Click() {
  optBoth = true;
  OptHoriz = Optvert = false;
  horizontalBoxesVisible = true;
}

void frmCDT::SetUnits(bool usFeet, bool meters, bool internationalFeet) {
  optUSFt = usFeet;
  optMeters = meters;
  optIFt = internationalFeet;
}

void frmCDT::cmdCheckAll_Click() {
  for (const Box& box : Boxes()) this->*box.value = 1;
  optBoth_Click();
}

void frmCDT::cmdClearAll_Click() {
  for (const Box& box : Boxes()) this->*box.value = 0;
}

void frmCDT::cmdOkay_Click() {
  if (settingsStore) {
    settingsStore->SaveSetting("Settings", "Zone", cboSPCZone);
    settingsStore->SaveSetting("Settings", "UTMZone", cboUTMZone);
  }
  Tag.clear();
}

}  // namespace benchlog
