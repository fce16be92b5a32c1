#pragma once
// dlgTypeControl ("Type of Control"): which marks a list asks for, as a type code made of a type
// part and a stability part ("X-0-0", "H-A-B"), left in the tag by Okay. Cancel and Esc leave an
// empty tag, which the commands take for a code like any other: the query then ends in an empty code.
#include <array>
#include <string>

#include "platform/dialog_model.hpp"
#include "web/key_filter.hpp"

namespace benchlog {

class dlgTypeControl : public DialogModel {
 public:
  static constexpr const char* kCaption = "Type of Control";
  static constexpr const char* kTypeFrame = "Type of Control";
  static constexpr const char* kStabilityFrame = "Stability";

  struct Choice {
    const char* caption;
    const char* part;
  };
  static constexpr std::array<Choice, 14> kTypes{{
      {"Any horizontal or vertical", "X-0"}, {"GPS sites only", "H-G"},
      {"Horizontal only", "H-0"},             {"Horizontal A order or better", "H-A"},
      {"Horizontal B order or better", "H-B"}, {"Horizontal 1 or better", "H-1"},
      {"Horizontal 2 or better", "H-2"},      {"Any Vertical", "V-0"},
      {"Vertical 1order only", "V-1"},        {"Vertical 2 or better", "V-2"},
      {"Tidal only", "TID"},                  {"FBN / CBN", "F-C"},
      {"PACS / SACS", "P-S"},                 {"CORS", "COR"},
  }};
  static constexpr std::array<Choice, 5> kStabilities{{
      {"Any ", "-0"}, {"A", "-A"}, {"B", "-B"}, {"C", "-C"}, {"D", "-D"},
  }};

  std::array<bool, kTypes.size()> Option1{true};       // the first choice is set at the start
  std::array<bool, kStabilities.size()> Option2{true};
  bool Visible = false;

  // The type part of the first set Option1 and the stability part of the first set Option2; a
  // group with none set adds nothing.
  std::string TypeCode() const;
  void SetOption1(std::size_t index);  // chooses one, clearing the others
  void SetOption2(std::size_t index);

  void cmdOkay_Click();      // the type code in the tag; hides
  void CancelButton_Click();  // an empty tag; hides
  KeyOutcome filterKey(int keyAscii);  // Esc is Cancel
};

}  // namespace benchlog
