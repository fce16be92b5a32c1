#pragma once
// dlgLatLonRad ("Import By Location"): the point and radius of a radius list. Text1(0) holds the
// latitude and Text1(1) the longitude as the user types them, hemisphere letter first
// ("N391544.5"); Text1(2) the radius in miles. Okay sets the tag "Okay"; Cancel and Esc leave an
// empty tag, which the radius command does not take for a cancel.
#include <array>
#include <string>

#include "platform/dialog_model.hpp"
#include "session/configuration.hpp"
#include "web/key_filter.hpp"

namespace benchlog {

class dlgLatLonRad : public DialogModel {
 public:
  static constexpr const char* kCaption = "Import By Location";
  static constexpr std::array<const char*, 3> kLabels{"Latitude (HDDMMSS)", "Longitude (HDDDMMSS)", "Radius (Miles)"};
  static constexpr const char* kRadiusTip = "Up to 20 miles";

  std::array<std::string, 3> Text1;
  bool Loaded = false;
  bool Visible = false;

  // At load Text1(0) and Text1(1) take the configured hemispheres ("HEMI1=", "HEMI2=").
  void Load(const Configuration& config);

  // A key typed in a box: the null key, backspace and blank pass; Enter moves on to the next control
  // and is swallowed; ".", digits, "E", "N", "S" and "W" pass, "e", "n", "s" and "w" become
  // capitals; Esc is Cancel; anything else beeps and is dropped.
  KeyOutcome filterKey(int keyAscii);
  // The selection of a box that gets the focus: 0-based start and length. Everything but the first
  // character, so that the hemisphere letter stays; nothing in an empty box.
  static std::pair<int, int> SelectionOnFocus(const std::string& text);

  void OKButton_Click();      // tag "Okay"; hides
  void CancelButton_Click();  // an empty tag; hides
};

}  // namespace benchlog
