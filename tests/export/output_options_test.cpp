// frmOutputOptions and frmCDT as models: what they read from the settings, and the boxes shown.
// Their buttons are pressed by the offscreen window tests.
#include <gtest/gtest.h>

#include <set>

#include "export/frm_cdt.hpp"
#include "export/frm_output_options.hpp"
#include "fakes/fakes.hpp"
#include "common/text.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"

namespace benchlog::testing {
namespace {

TEST(OutputOptions, DefaultsOfAFirstRun) {
  MemorySettings settings;
  frmOutputOptions form;
  form.Load(settings, SourceSupport());
  EXPECT_EQ(form.chkNRMarks, 0);
  EXPECT_EQ(form.chkLandmarks, 0);
  EXPECT_EQ(form.cboScale, "5280");
  EXPECT_EQ(form.cboScaleList, (std::vector<std::string>{"1000", "1320", "2000", "2640", "5280"}));
  EXPECT_EQ(form.cboProjZone, "MD    1900");
  EXPECT_FALSE(form.fraScaleVisible);
  // The zone list: the first ten characters of each line of the zone table.
  EXPECT_EQ(form.cboProjZoneList.front().size(), 10u);
  EXPECT_NE(std::find(form.cboProjZoneList.begin(), form.cboProjZoneList.end(), "NC    3200"),
            form.cboProjZoneList.end());
}

TEST(OutputOptions, BoxesAndOptionsFromTheSettings) {
  const auto bits = [](std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) text += std::to_string(value);
    return text;
  };
  for (const auto& c : ReadRows("export/output_options.txt", 12, '|')) {
    MemorySettings settings;
    for (const auto& entry : Split(c[0], ";"))
      if (!entry.empty()) settings.SaveSetting("frmOutputOptions", entry.substr(0, entry.find('=')), entry.substr(entry.find('=') + 1));
    frmOutputOptions form;
    form.Load(settings, SourceSupport());
    EXPECT_EQ(bits({form.chkHoriz, form.chkVert, form.chkDB, form.chkStreetAtlas, form.chkMicrostation}), c[1]) << c[0];
    EXPECT_EQ(form.FileTypes(), c[2]) << c[0];
    EXPECT_EQ(bits({form.optFeet, form.optMeters, form.optUTM, form.optElFeet, form.optElM, form.optAllSta, form.optSelectedSta}),
              c[3]) << c[0];
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
