#pragma once
// frmOutputOptions: the options of the export, as a model. Which marks (all or a selection),
// which outputs, the units of the plane coordinates and of the elevations, the state plane zone
// and the plotting scale of the Microstation script. Every control is kept in the settings store
// under section "frmOutputOptions" and read back when the form loads.
//
// The form is never unloaded during a run: Okay saves and hides it without touching the tag;
// Cancel hides it with the tag "Canceled". So after one Cancel every later export of the run ends
// at the options, whichever button is pressed; the export relies on reading the tag that way.
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"

namespace benchlog {

class frmOutputOptions : public DialogModel {
 public:
  static constexpr const char* kSection = "frmOutputOptions";

  // Which marks: the two buttons of one group.
  bool optAllSta = true;
  bool optSelectedSta = false;
  // The outputs and the map options. Check box values: 0 clear, 1 ticked, 2 greyed; only 1
  // counts as ticked.
  int chkHoriz = 0;
  int chkVert = 0;
  int chkDB = 0;
  int chkStreetAtlas = 0;
  int chkMicrostation = 0;
  int chkNRMarks = 0;
  int chkLandmarks = 0;
  // The plotting scale of the script: a list, but free text is accepted.
  std::vector<std::string> cboScaleList{"1000", "1320", "2000", "2640", "5280"};
  std::string cboScale = "5280";
  bool fraScaleVisible = false;  // only while chkMicrostation is ticked
  // Plane coordinates: one of three buttons.
  bool optFeet = false;
  bool optMeters = true;
  bool optUTM = false;
  // Elevations of the vertical listing: one of two buttons.
  bool optElFeet = false;
  bool optElM = true;
  // The state plane zone: the first 10 characters of each line of "Zones.txt" ("MD    1900").
  std::vector<std::string> cboProjZoneList;
  std::string cboProjZone = "MD    1900";
  // The form's position in twips, kept under "Top" and "Left".
  long Top = 0;
  long Left = 0;

  bool Loaded = false;                      // Load has run
  SettingsStore* settingsStore = nullptr;   // where Okay and Unload save, set by Load

  // Reads every control from the settings (defaults as declared above; "FileTypes" "0000000")
  // and fills the zone list from `supportPath` + "Zones.txt" (an absent table leaves the list
  // empty). The scale frame follows chkMicrostation.
  void Load(SettingsStore& settings, const std::string& supportPath);
  // Saves "Top" and "Left".
  void Unload(SettingsStore& settings) const;

  // Option buttons as the classic groups behave: choosing one clears the others of its group.
  void SetAllStations(bool all);
  void SetUnits(bool feet, bool meters, bool utm);
  void SetElevationUnits(bool feet, bool meters);

  void chkMicrostation_Click() { fraScaleVisible = chkMicrostation == 1; }
  // Saves every control and the position; the window hides. The tag is left as it was.
  void cmdOkay_Click();
  // The tag becomes "Canceled"; the window hides.
  void cmdCancel_Click() { Tag = "Canceled"; }

  // The six digits saved under "FileTypes": horizontal, vertical, database, "0" (a place that
  // once stood for an output no longer offered), Street Atlas, Microstation.
  std::string FileTypes() const;
  // Takes the check boxes from a "FileTypes" text: characters 1, 2, 3, 5 and 6, each read as a
  // number; anything that is no digit gives 0, and a digit above 2 gives 0 as well, since a check
  // box holds only 0, 1 or 2.
  void SetFileTypes(const std::string& fileTypes);
};

// A yes/no setting as the settings store holds it: "True"/"False" in any case, or a number
// (not 0 is true); anything else gives `defaultValue`.
bool SettingTruth(const std::string& text, bool defaultValue);
inline const char* TruthText(bool value) { return value ? "True" : "False"; }

// A check box value read from a setting: 0, 1 or 2; anything else 0.
int CheckBoxValue(const std::string& text);

}  // namespace benchlog
