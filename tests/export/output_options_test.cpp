// frmOutputOptions and frmCDT as models: their settings, option groups, frames and buttons.
#include <gtest/gtest.h>

#include <set>

#include "export/frm_cdt.hpp"
#include "export/frm_output_options.hpp"
#include "fakes/fakes.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {
namespace {

std::string Saved(const MemorySettings& settings, const std::string& section, const std::string& key) {
  return settings.GetSetting(section, key, "<none>");
}

TEST(OutputOptions, DefaultsOfAFirstRun) {
  MemorySettings settings;
  frmOutputOptions form;
  form.Load(settings, SourceSupport());
  EXPECT_TRUE(form.optAllSta);
  EXPECT_FALSE(form.optSelectedSta);
  EXPECT_EQ(form.FileTypes(), "000000");
  EXPECT_EQ(form.chkNRMarks, 0);
  EXPECT_EQ(form.chkLandmarks, 0);
  EXPECT_EQ(form.cboScale, "5280");
  EXPECT_EQ(form.cboScaleList, (std::vector<std::string>{"1000", "1320", "2000", "2640", "5280"}));
  EXPECT_TRUE(!form.optFeet && form.optMeters && !form.optUTM);
  EXPECT_TRUE(!form.optElFeet && form.optElM);
  EXPECT_EQ(form.cboProjZone, "MD    1900");
  EXPECT_FALSE(form.fraScaleVisible);
  // The zone list: the first ten characters of each line of the zone table.
  EXPECT_EQ(form.cboProjZoneList.front().size(), 10u);
  EXPECT_NE(std::find(form.cboProjZoneList.begin(), form.cboProjZoneList.end(), "NC    3200"),
            form.cboProjZoneList.end());
}

// "FileTypes" is read by characters 1, 2, 3, 5 and 6; the fourth is ignored and written "0".
TEST(OutputOptions, FileTypesDigits) {
  struct Case {
    const char* saved;
    int horiz, vert, db, streetAtlas, microstation;
    const char* written;
  };
  for (const Case c : {Case{"0000000", 0, 0, 0, 0, 0, "000000"}, Case{"110000", 1, 1, 0, 0, 0, "110000"},
                       Case{"001111", 0, 0, 1, 1, 1, "001011"}, Case{"1X1 1", 1, 0, 1, 1, 0, "101010"},
                       Case{"2", 2, 0, 0, 0, 0, "200000"}, Case{"9", 0, 0, 0, 0, 0, "000000"},
                       Case{"", 0, 0, 0, 0, 0, "000000"}}) {
    MemorySettings settings;
    settings.SaveSetting("frmOutputOptions", "FileTypes", c.saved);
    frmOutputOptions form;
    form.Load(settings, SourceSupport());
    EXPECT_EQ(form.chkHoriz, c.horiz) << c.saved;
    EXPECT_EQ(form.chkVert, c.vert) << c.saved;
    EXPECT_EQ(form.chkDB, c.db) << c.saved;
    EXPECT_EQ(form.chkStreetAtlas, c.streetAtlas) << c.saved;
    EXPECT_EQ(form.chkMicrostation, c.microstation) << c.saved;
    EXPECT_EQ(form.FileTypes(), c.written) << c.saved;
  }
}

// The option buttons are set from their keys in turn, as a group: a true one clears the others.
TEST(OutputOptions, OptionGroupsFromTheSettings) {
  struct Case {
    const char *feet, *meters, *utm;
    bool optFeet, optMeters, optUTM;
  };
  for (const Case c : {Case{"True", "False", "False", true, false, false},
                       Case{"False", "False", "True", false, false, true},
                       Case{"True", "True", "False", false, true, false},   // the later key wins
                       Case{"False", "False", "False", false, false, false}}) {
    MemorySettings settings;
    settings.SaveSetting("frmOutputOptions", "Feet", c.feet);
    settings.SaveSetting("frmOutputOptions", "Meters", c.meters);
    settings.SaveSetting("frmOutputOptions", "UTM", c.utm);
    settings.SaveSetting("frmOutputOptions", "ElevFeet", "True");
    settings.SaveSetting("frmOutputOptions", "ElevM", "False");
    settings.SaveSetting("frmOutputOptions", "AllStations", "False");
    frmOutputOptions form;
    form.Load(settings, SourceSupport());
    EXPECT_EQ(form.optFeet, c.optFeet);
    EXPECT_EQ(form.optMeters, c.optMeters);
    EXPECT_EQ(form.optUTM, c.optUTM);
    EXPECT_TRUE(form.optElFeet && !form.optElM);
    EXPECT_TRUE(!form.optAllSta && form.optSelectedSta);
  }
}

TEST(OutputOptions, TheScaleFrameFollowsTheMicrostationBox) {
  MemorySettings settings;
  settings.SaveSetting("frmOutputOptions", "FileTypes", "000001");
  frmOutputOptions form;
  form.Load(settings, SourceSupport());
  EXPECT_TRUE(form.fraScaleVisible);
  form.chkMicrostation = 0;
  form.chkMicrostation_Click();
  EXPECT_FALSE(form.fraScaleVisible);
  form.chkMicrostation = 1;
  form.chkMicrostation_Click();
  EXPECT_TRUE(form.fraScaleVisible);
}

TEST(OutputOptions, OkaySavesEveryControlAndLeavesTheTag) {
  MemorySettings settings;
  frmOutputOptions form;
  form.Load(settings, SourceSupport());
  form.SetAllStations(false);
  form.chkHoriz = 1;
  form.chkMicrostation = 1;
  form.chkNRMarks = 1;
  form.cboScale = "1:2400";
  form.SetUnits(true, false, false);
  form.SetElevationUnits(true, false);
  form.cboProjZone = "NC    3200";
  form.Top = 1200;
  form.Left = 3000;
  form.Tag = "Canceled";
  form.cmdOkay_Click();
  EXPECT_EQ(form.Tag, "Canceled");
  const std::pair<const char*, const char*> expected[] = {
      {"AllStations", "False"}, {"FileTypes", "100001"}, {"PlotNRMks", "1"}, {"PlotLandMks", "0"},
      {"Scale", "1:2400"},      {"Feet", "True"},        {"Meters", "False"}, {"UTM", "False"},
      {"ElevFeet", "True"},     {"ElevM", "False"},      {"Zone", "NC    3200"}, {"Top", "1200"},
      {"Left", "3000"}};
  for (const auto& [key, value] : expected) EXPECT_EQ(Saved(settings, "frmOutputOptions", key), value) << key;
  form.cmdCancel_Click();
  EXPECT_EQ(form.Tag, "Canceled");
}

TEST(Cdt, StateAtLoad) {
  MemorySettings settings;
  frmCDT form;
  form.Load(settings, SourceSupport());
  EXPECT_TRUE(form.OptHoriz && !form.Optvert && !form.optBoth);
  std::set<std::string> ticked;
  for (const auto& box : frmCDT::Boxes())
    if (form.*box.value) ticked.insert(box.name);
  EXPECT_EQ(ticked, std::set<std::string>{"chkDesig"});
  EXPECT_EQ(form.cboUTMZoneList.front(), "01");
  EXPECT_EQ(form.cboUTMZoneList.back(), "24");
  EXPECT_EQ(form.cboSPCZoneList.front().size(), 5u);
  EXPECT_EQ(form.cboSPCZone, "MD   ");
  EXPECT_EQ(form.cboUTMZone, "18");
  EXPECT_TRUE(form.optUSFt && !form.optMeters && !form.optIFt);
}

TEST(Cdt, SettingsOfItsSection) {
  MemorySettings settings;
  settings.SaveSetting("Settings", "Zone", "NC   ");
  settings.SaveSetting("Settings", "UTMZone", "17");
  settings.SaveSetting("Settings", "optMeters", "True");
  settings.SaveSetting("Settings", "optSurveyFt", "False");
  settings.SaveSetting("frmCDT", "Top", "450");
  frmCDT form;
  form.Load(settings, SourceSupport());
  EXPECT_EQ(form.cboSPCZone, "NC   ");
  EXPECT_EQ(form.cboUTMZone, "17");
  EXPECT_TRUE(!form.optUSFt && form.optMeters && !form.optIFt);
  EXPECT_EQ(form.Top, 450);

  form.cboUTMZone = "16";
  form.Tag = "Canceled";
  form.cmdOkay_Click();
  EXPECT_EQ(form.Tag, "");
  EXPECT_EQ(Saved(settings, "Settings", "UTMZone"), "16");
  EXPECT_EQ(Saved(settings, "Settings", "Zone"), "NC   ");
  form.cmdCancel_Click();
  EXPECT_EQ(form.Tag, "Canceled");
}

TEST(Cdt, VerticalOnlyHidesTheBoxesOfHorizontalControl) {
  frmCDT form;
  const std::set<std::string> hidden{"chkHorizO",   "chkLaplace", "chkSPCConv", "chkSPCScale", "chkUTMConv",
                                     "chkUTMScale", "chkX",       "chkSpcMdOnly", "chk27LatLon"};
  const auto visible = [&form] {
    std::set<std::string> names;
    for (const auto& box : frmCDT::Boxes())
      if (form.BoxVisible(box)) names.insert(box.name);
    return names;
  };
  form.Optvert_Click();
  EXPECT_TRUE(form.Optvert && !form.OptHoriz && !form.optBoth);
  EXPECT_EQ(visible().size(), frmCDT::Boxes().size() - hidden.size());
  for (const auto& name : hidden) EXPECT_EQ(visible().count(name), 0u) << name;
  form.optBoth_Click();
  EXPECT_EQ(visible().size(), frmCDT::Boxes().size());
  form.Optvert_Click();
  form.OptHoriz_Click();
  EXPECT_EQ(visible().size(), frmCDT::Boxes().size());
}

TEST(Cdt, CheckAllAndClearAll) {
  frmCDT form;
  form.Optvert_Click();
  form.cmdCheckAll_Click();
  for (const auto& box : frmCDT::Boxes()) EXPECT_EQ(form.*box.value, 1) << box.name;
  EXPECT_TRUE(form.optBoth && !form.Optvert);
  EXPECT_TRUE(form.horizontalBoxesVisible);
  form.Optvert_Click();
  form.cmdClearAll_Click();
  for (const auto& box : frmCDT::Boxes()) EXPECT_EQ(form.*box.value, 0) << box.name;
  EXPECT_TRUE(form.Optvert) << "Clear All leaves the buttons";
}

}  // namespace
}  // namespace benchlog::testing
