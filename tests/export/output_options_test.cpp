// frmOutputOptions and frmCDT as models: what they read from the settings, and the boxes shown.
// Their buttons are pressed by the offscreen window tests.
#include <gtest/gtest.h>

#include <set>

#include "export/frm_cdt.hpp"
#include "export/frm_output_options.hpp"
#include "fakes/fakes.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {
namespace {

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

}  // namespace
}  // namespace benchlog::testing
