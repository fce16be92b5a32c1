#pragma once
// frmListings: the multiple-choice list lstChoices of the stations a county or radius list offers,
// and an "Ok" button. Ok hides the dialog and the caller reads the selection; Esc unloads it, which
// leaves the list empty for the reader.
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "web/key_filter.hpp"

namespace benchlog {

// A control's place in the dialog's inner area, in twips.
struct TwipsRect {
  long left = 0, top = 0, width = 0, height = 0;
  bool operator==(const TwipsRect&) const = default;
};

class frmListings : public DialogModel {
 public:
  static constexpr const char* kSection = "frmListings";
  static constexpr const char* kRunCaption = "Select Station(s) to import:";
  static constexpr long kRunWidth = 4752;        // twips
  static constexpr long kRunHeightPixels = 480;
  static constexpr long kMargin = 40;            // twips, on every side
  static constexpr long kListLessThanInner = 350;  // the list's height is the inner height less this
  static constexpr long kButtonGap = 20;         // between the list and the button

  std::string caption;
  std::vector<std::string> lstChoices;
  std::vector<bool> selected;  // one flag per entry
  long Top = 0, Left = 0;      // twips
  long Width = 0;              // twips; the window centres itself across the screen at this width
  long HeightPixels = 0;
  bool Loaded = false;
  bool Visible = false;
  SettingsStore* settingsStore = nullptr;

  void Load(SettingsStore& settings);  // "Top" and "Left", default "0"
  // Empties the list; in normal window state stores "Top" and "Left" when they are not negative.
  void Unload(bool normalState = true);
  void Clear();
  void AddItem(std::string entry);
  bool Selected(std::size_t i) const { return i < selected.size() && selected[i]; }

  // What the caller sets for a run: the width, the height, the caption.
  void SetUpForRun();
  // The list and the button in an inner area of that size: the list fills the width within the
  // margins and stands kListLessThanInner shorter than the area; the button takes the full width
  // 20 twips below it, down to the bottom margin.
  static TwipsRect ListPlace(long innerWidth, long innerHeight);
  static TwipsRect ButtonPlace(long innerWidth, long innerHeight);

  KeyOutcome filterKey(int keyAscii);  // Esc unloads
  void cmdOkay_Click() { Visible = false; }
};

}  // namespace benchlog
