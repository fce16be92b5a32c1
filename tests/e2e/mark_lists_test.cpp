// The county, radius and project commands against oco-sim on the sample dataset: the dialogs played
// by a script, the queries checked byte for byte in the service's log, the lists and the keep rule's
// refusals. The lists were read off the sample by hand (ORANGE county, NC, FIPS 135, has 29 marks).
#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "dataset/load_dataset_index.hpp"
#include "e2e/sim_client.hpp"
#include "web/dlg_lat_lon_rad.hpp"
#include "web/dlg_type_control.hpp"
#include "web/frm_listings.hpp"
#include "web/frm_options.hpp"
#include "web/station_choice.hpp"

namespace benchlog::testing {
namespace {

const std::string kList = "GET /cgi-bin/get_mark_list.prl?";

class MarkListsTest : public SampleSimTest {
 protected:
  void SetUp() override {
    SampleSimTest::SetUp();
    fake.platform.paths.supportPath = SourceSupport();
    session.dataset.DatFile = folder.Write("sample.dat", ReadWholeFile(SampleDataset()));
    LoadDatasetIndex(session, fake.platform);
    fake.ui.messages.clear();
  }

  // Gives the local record of `pid` an order code (column 8 horizontal, 10 vertical) that the
  // service's list lacks.
  void SetLocalOrder(const std::string& pid, std::size_t column, char code) {
    auto& index = session.dataset.markIndex;
    for (std::size_t i = 0; i < index.Size(); ++i)
      if (index[i].rfind(pid, 0) == 0) {
        std::string record = index[i];
        record[column - 1] = code;
        return index.Set(i, record);
      }
    FAIL() << pid;
  }

  template <class Model>
  void Then(std::function<void(Model&)> act) {
    fake.ui.modalActions.push_back([act](DialogModel& model) { act(dynamic_cast<Model&>(model)); });
  }
  void Type(const char* typeOption, std::size_t stability) {
    Then<dlgTypeControl>([=](dlgTypeControl& types) {
      types.SetOption1(static_cast<std::size_t>(std::stoi(typeOption)));
      types.SetOption2(stability);
      types.cmdOkay_Click();
    });
  }
  void Run(const char* command) {
    BuildCommandTable().Run(command, session, fake.platform);
    EXPECT_TRUE(fake.ui.modalActions.empty()) << "a dialog was not shown";
    EXPECT_FALSE(fake.ui.hourglass);
  }
  frmListings& Listings() { return session.forms.Get<frmListings>(); }
};

TEST_F(MarkListsTest, CountyOffersItsMarksAndHandsOnTheChosenOnesTheKeepRuleLetsThrough) {
  session.config.state = "NC NORTH CAROLINA";
  SetLocalOrder("FY3210", 10, '2');  // the list has "." for its vertical order
  Then<frmOptions>([](frmOptions& states) {
    EXPECT_EQ(states.caption, "Select State:");
    EXPECT_EQ(states.cboChoices, "NC NORTH CAROLINA");
    EXPECT_NE(std::find(states.cboChoicesList.begin(), states.cboChoicesList.end(), "MD MARYLAND"),
              states.cboChoicesList.end());
    states.filterKey(13);
  });
  Then<frmOptions>([](frmOptions& counties) {
    EXPECT_EQ(counties.caption, "Select County:");
    EXPECT_EQ(counties.cboChoicesList.at(0), "ALAMANCE");
    counties.cboChoices = "ORANGE";
    counties.cmdOkay_Click();
  });
  Type("2", 1);
  Then<frmListings>([](frmListings& listings) {
    EXPECT_EQ(listings.caption, "Select Station(s) to import:");
    ASSERT_EQ(listings.lstChoices.size(), 29u);
    EXPECT_EQ(listings.lstChoices[0], "FY3210 1 .  HILLSBORO" + std::string(21, ' '));
    for (const std::size_t i : {0, 5, 10, 23}) listings.selected[i] = true;  // FY3210 EZ1203 FY0871 DH7204
    listings.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::No);  // goes on all the same
  Run("mnuUpdateByCounty");

  EXPECT_EQ(Log(), kList + "1=COUNTY&2=NC&3=135&4=H-0-A HTTP/1.1\n"
                   "GET /cgi-bin/ds_pids.prl?1=EZ1203&2=FY0871&3=DH7204 HTTP/1.1\n");
  ASSERT_EQ(fake.ui.messages.size(), 2u);
  EXPECT_EQ(fake.ui.messages[1].text, "1 Descriptions were not updated because\r\n"
                                       "additional data was in the original description.\r\n"
                                       "3 Descriptions were updated.");
  EXPECT_EQ(fake.ui.messages[0].text, " 3 stations found.\r\nContinue?");
  EXPECT_EQ(fake.ui.messages[0].title, "Get Descriptions from OCO");
  EXPECT_EQ(fake.ui.messages[0].buttons, MsgButtons::YesNo);
}

TEST_F(MarkListsTest, CountyEndsBeforeAskingTheService) {
  // Esc at the state, a county the file does not hold, a read-only dataset.
  Then<frmOptions>([](frmOptions& states) { states.filterKey(27); });
  Run("mnuUpdateByCounty");
  EXPECT_TRUE(fake.ui.messages.empty());

  Then<frmOptions>([](frmOptions& states) { states.cboChoices = "NC"; });
  Then<frmOptions>([](frmOptions& counties) { counties.cboChoices = "NOWHERE"; });
  Run("mnuUpdateByCounty");
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Invalid Fips Code!"});

  std::filesystem::permissions(session.dataset.DatFile, std::filesystem::perms::owner_read);
  Run("mnuUpdateByCounty");
  ASSERT_EQ(fake.ui.messages.size(), 2u);
  EXPECT_EQ(fake.ui.messages[1].text, ".dat file is read-only");
  EXPECT_EQ(fake.ui.messages[1].title, "Update from Internet");
  EXPECT_EQ(fake.ui.messages[1].icon, MsgIcon::Critical);
  EXPECT_EQ(Log(), "");
}

TEST_F(MarkListsTest, RadiusAsksAroundThePointAsTyped) {
  Then<dlgLatLonRad>([](dlgLatLonRad& point) {
    EXPECT_EQ(point.Text1[0], "N");  // the configured hemispheres
    EXPECT_EQ(point.Text1[1], "W");
    point.Text1 = {"N360342", "W0790718", "1"};
    point.OKButton_Click();
  });
  Type("0", 0);
  Then<frmListings>([](frmListings& listings) {
    ASSERT_EQ(listings.lstChoices.size(), 3u);
    EXPECT_EQ(listings.lstChoices[2], "FY0895 . 2  OCCONEECHEE" + std::string(19, ' '));
    listings.selected.assign(3, true);
    listings.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  session.config.hemi1 = "N";
  session.config.hemi2 = "W";
  Run("mnuUpdtLatLonRad");
  EXPECT_EQ(Log(), kList + "1=RADIUS&2=N360342&3=W0790718&4=1&5=X-0-0 HTTP/1.1\n"
                   "GET /cgi-bin/ds_pids.prl?1=FY3210&2=FY3209&3=FY0895 HTTP/1.1\n");
  EXPECT_EQ(fake.ui.MessageTexts(),
            (std::vector<std::string>{" 3 stations found.\r\nContinue?", "3 Descriptions were updated."}));
  EXPECT_EQ(fake.shell.trashed.size(), 1u);  // the dataset as it stood
  EXPECT_EQ(KeptSelection(session.dataset.markIndex, Listings()).pids,
            (std::vector<std::string>{"FY3210", "FY3209", "FY0895"}));
}

TEST_F(MarkListsTest, RadiusCancelGoesOnAndRefusalsEndIt) {
  // Cancel in both dialogs: the lone hemisphere letters pass, and the service is asked with an empty
  // radius and type code (which it refuses).
  session.config.hemi1 = "N";
  session.config.hemi2 = "W";
  Then<dlgLatLonRad>([](dlgLatLonRad& point) { point.CancelButton_Click(); });
  Then<dlgTypeControl>([](dlgTypeControl& types) { types.CancelButton_Click(); });
  Run("mnuUpdtLatLonRad");
  EXPECT_EQ(Log(), kList + "1=RADIUS&2=N&3=W&4=&5= HTTP/1.1\n");
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Invalid input data!"});

  const std::array<std::array<const char*, 4>, 3> refused{{{"N910000", "W0790718", "1", "Invalid latitude!"},
                                                            {"N360342", "W400000000", "1", "Invalid longitude!"},
                                                            {"N360342", "W0790718", "20.1", "Invalid Radius!"}}};
  for (const auto& texts : refused) {
    Then<dlgLatLonRad>([texts](dlgLatLonRad& point) {
      point.Text1 = {texts[0], texts[1], texts[2]};
      point.OKButton_Click();
    });
    Run("mnuUpdtLatLonRad");
    EXPECT_EQ(fake.ui.messages.back().text, texts[3]);
    EXPECT_EQ(fake.ui.messages.back().title, "Import by Lat, Lon, Radius");
    EXPECT_EQ(fake.ui.messages.back().icon, MsgIcon::Critical);
  }
  EXPECT_EQ(Log(), kList + "1=RADIUS&2=N&3=W&4=&5= HTTP/1.1\n");
}

TEST_F(MarkListsTest, ProjectTakesEveryMarkTheKeepRuleLetsThrough) {
  SetLocalOrder("DH7204", 10, '1');  // the list has "." for its vertical order
  fake.ui.inputAnswers = {"dh1234", "zz1"};
  Type("2", 1);
  fake.ui.msgAnswers.push_back(MsgResult::No);
  Run("mnuUpdtbyProj");
  Type("13", 0);
  Run("mnuUpdtbyProj");
  EXPECT_EQ(Log(), kList + "1=PROJECT&2=DH1234&3=N&4=H-0-A HTTP/1.1\n" + kList +
                       "1=PROJECT&2=ZZ1&3=N&4=COR-0 HTTP/1.1\n");
  ASSERT_EQ(fake.ui.messages.size(), 2u);
  EXPECT_EQ(fake.ui.messages[0].text, " 5 stations found.\r\nContinue?");
  EXPECT_EQ(fake.ui.messages[1].text, "No stations found!");
  EXPECT_EQ(fake.ui.messages[1].title, "Import From Internet");
}

}  // namespace
}  // namespace benchlog::testing
