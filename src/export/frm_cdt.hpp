#pragma once
// frmCDT ("Create Microsoft Access Database"): which columns the export's database gets and which
// marks get a row, as a model. The export also takes its UTM choices from here (the zone in
// cboUTMZone and the box chkUTM), even when no database is made.
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"

namespace benchlog {

class frmCDT : public DialogModel {
 public:
  static constexpr const char* kSection = "frmCDT";
  static constexpr const char* kCaption = "Create Microsoft Access Database";

  // Which marks get a row: one of three buttons.
  bool OptHoriz = true;  // "Horizontal Control Only"
  bool Optvert = false;  // "Vertical Control Only"
  bool optBoth = false;  // "All Control"

  // The column boxes, in the table's column order (0 clear, 1 ticked). Only chkDesig starts ticked.
  int chkFbnCbn = 0, chkDesig = 1, chkPid = 0, chkState = 0, chkCounty = 0, chkQuad = 0;
  int chkLatLon = 0, chkLatLonDeg = 0, chkElevM = 0, chkElevF = 0, chkX = 0, chkLaplace = 0;
  int chkEllipht = 0, chkGeoidHt = 0, chkDynaHt = 0, chkGrav = 0, chkHorizO = 0, chkVertO = 0;
  int chkEllipO = 0, chkNRA = 0, chkSPC = 0, chkSPCScale = 0, chkSPCConv = 0, chkSPCCGF = 0;
  int chkUTM = 0, chkUTMScale = 0, chkUTMConv = 0, chkutmCGF = 0, chkMarkCode = 0, chkSetCode = 0;
  int chkStamping = 0, chkStabCode = 0, chkSattelite = 0, chkRecYear = 0, chkCond = 0, chkDescText = 0;
  // The frame fraSuper, "Superseded Data": kept, but adds no column.
  int chk27LatLon = 0, chk29ElevFt = 0, chk29Mt = 0, chk8829Ft = 0, chk8829M = 0, chkSpcMdOnly = 0;

  // Units and zone of the dialog's own: kept, but the export's values come from frmOutputOptions.
  bool optUSFt = true;
  bool optMeters = false;
  bool optIFt = false;
  std::vector<std::string> cboSPCZoneList;  // the first 5 characters of each line of "Zones.txt"
  std::string cboSPCZone;
  std::vector<std::string> cboUTMZoneList;  // "01" to "24"
  std::string cboUTMZone;

  // While Optvert is chosen the boxes that only horizontal control can fill are hidden.
  bool horizontalBoxesVisible = true;

  long Top = 0;
  long Left = 0;
  bool Loaded = false;
  SettingsStore* settingsStore = nullptr;  // where Okay and Unload save, set by Load

  // A check box of the dialog: its control name, its caption and where its value lives.
  struct Box {
    const char* name;
    const char* caption;
    int frmCDT::*value;
  };
  // Every check box: the columns in table order, then the superseded frame.
  static const std::vector<Box>& Boxes();
  // False for the boxes Optvert hides, while it is chosen.
  bool BoxVisible(const Box& box) const;
  static bool HiddenByVertical(const Box& box);

  // Position from "Top" and "Left" of section "frmCDT"; the zone lists from `supportPath` +
  // "Zones.txt"; cboSPCZone from "Zone" and cboUTMZone from "UTMZone" of section "Settings"
  // (defaults "MD   " and "18", the zones of the options' default "MD    1900"); optMeters from
  // "optMeters" (default "False") and optUSFt from "optSurveyFt" (default "True").
  void Load(SettingsStore& settings, const std::string& supportPath);
  void Unload(SettingsStore& settings) const;  // saves "Top" and "Left"

  void OptHoriz_Click();
  void Optvert_Click();
  void optBoth_Click();
  void SetUnits(bool usFeet, bool meters, bool internationalFeet);
  // Ticks every box and chooses optBoth.
  void cmdCheckAll_Click();
  // Clears every box; the buttons stay.
  void cmdClearAll_Click();
  // Saves "Zone" and "UTMZone" under "Settings" and clears the tag; the window hides.
  void cmdOkay_Click();
  // The tag becomes "Canceled"; the window hides.
  void cmdCancel_Click() { Tag = "Canceled"; }
};

}  // namespace benchlog
