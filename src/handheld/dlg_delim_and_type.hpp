#pragma once
// dlgDelimAndType ("Import Delimited File"): the user tells what the columns of a delimited file
// hold and which character separates them. Okay leaves the delimiter in the tag; Cancel and Esc
// leave it empty. The slots, the delimiter and the attributes are kept in the settings section of
// the dialog's name, so the next file of the same kind needs no new answers.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "platform/ui.hpp"

namespace benchlog {

// What a key typed in the dialog becomes: the character that reaches the control (0 swallows it),
// a beep for a refused key, and a move to the next control (Enter acts as a tab).
struct DialogKey {
  int key = 0;
  bool beep = false;
  bool nextControl = false;
};

class dlgDelimAndType : public DialogModel {
 public:
  static constexpr const char* kSection = "dlgDelimAndType";
  static constexpr const char* kCaption = "Import Delimited File";
  static constexpr std::size_t kSlots = 10;
  static constexpr const char* kOther = "Other (ignore)";
  static const std::vector<std::string> kDataTypes;   // the list of every slot, in its order
  static const std::vector<std::string> kDelimiters;  // the list of cboDelimChar

  std::string txtSampleData;
  std::string cboDelimChar;
  std::array<std::string, kSlots> cboDataType;  // "Col 1:" to "Col 10:"
  // Attributes: horizontal order, datum, source, technique; orthometric height likewise.
  std::vector<std::string> cboHOrderList, cboHDatumList, cboHSourceList, cboHTechList;
  std::vector<std::string> cboVOrderList, cboVDatumList, cboOHtSourceList, cboVTechList;
  std::string cboHOrder, cboHDatum, cboHSource, cboHTech, cboVOrder, cboVDatum, cboOHtSource, cboVTech;
  // State plane frame, shown once a slot is given a text starting with "SPC".
  bool fraSPCVisible = false;
  std::vector<std::string> cboUnitsList{"M", "sFT", "iFT"};
  std::vector<std::string> cboSPCZoneList;  // the ten-character zone codes of the zone table
  std::string cboUnits, cboSPCZone;
  std::optional<long> Top, Left;  // twips; none: centred
  bool Visible = false;

  // Fills the lists (the zones from `supportPath` + "Zones.txt"; a missing table leaves that list
  // empty) and restores every stored text and the position.
  void Load(const SettingsStore& settings, const std::string& supportPath);
  // A slot's text as chosen or typed.
  void SetDataType(std::size_t slot, const std::string& text);
  // A zone chosen: the units become the zone's foot unit letters, or "M" when it has none.
  void SetSpcZone(const std::string& zone, const std::string& supportPath);
  // The first of the last two characters of the delimiter entry; a blank there is the tab.
  std::string Delimiter() const;

  DialogKey filterKey(int keyAscii);
  // Checks the slots against the delimiter and each other, asking `ui` where they fail; when they
  // pass, stores the settings, puts the delimiter in the tag and hides.
  void OKButton_Click(Ui& ui, SettingsStore& settings);
  void CancelButton_Click();  // an empty tag; hides
};

}  // namespace benchlog
