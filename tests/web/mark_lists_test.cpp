// The pieces of the mark-list commands: the position check, the keep rule, the list lines and the
// dialogs' key filters.
#include <gtest/gtest.h>

#include <random>

#include "common/number_text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "session/index_record.hpp"
#include "web/dlg_lat_lon_rad.hpp"
#include "web/dlg_type_control.hpp"
#include "web/frm_listings.hpp"
#include "web/frm_options.hpp"
#include "web/keep_rule.hpp"
#include "web/mark_list_lines.hpp"
#include "web/position_text.hpp"
#include "web/update_by_radius.hpp"

using namespace benchlog;

namespace {

std::string Record(const std::string& pid, const std::string& horz, const std::string& vert,
                   const std::string& designation = "") {
  IndexRecord record;
  record.Pid = pid;
  record.HorzOrder = horz;
  record.VertOrder = vert;
  record.Designation = designation;
  return FormatIndexRecord(record);
}

// A list line as the service sends it: PID at 7, order codes at 14 and 16, "|N" at 29, name at 52.
std::string ListLine(const std::string& first, const std::string& pid, const char* orders, const std::string& name) {
  std::string line = first + pid + " " + orders + " N360342.568|N W0790718.559";
  line.resize(50, ' ');
  return line + "|" + name;
}

}  // namespace

TEST(PositionText, PassesByItsDegreesMinutesAndSeconds) {
  for (const auto& row : benchlog::testing::ReadRows("web/position_texts.txt", 20, '|'))
    EXPECT_EQ(ValidPositionText(row[0], Val(row[1])), row[2] == "1") << "\"" << row[0] << "\" limit " << row[1];
}

TEST(KeepRule, KeepsLocalOrdersTheListLacks) {
  MarkIndex index;
  index.Assign({Record("AA1111", "1", "2"), Record("BB2222", " ", "P"), Record("CC3333", " ", " "),
                Record("EE5555", " ", " ", "DD4444"), Record("DD4444", "A", "1")});
  for (const auto& row : benchlog::testing::ReadRows("web/keep_rule.txt", 9, '|'))
    EXPECT_EQ(KeepRuleFetches(index, row[0], row[1], row[2]), row[3] == "1") << row[0] << " " << row[1] << row[2];
}

TEST(MarkListLines, RecordsOfEachListBecomeChoiceEntries) {
  const std::string heading = "|    |PID    H V LATITUDE   |F LONGITUDE          |DESIGNATION";
  const std::string rule = "|----|------|-|-|-----------|---------------------|------";
  const std::string county = "<PRE>\n" + rule + "\n" + heading + "\n" + ListLine("|....|", "FY3210", "1 .", "HILLSBORO") +
                             "\n" + ListLine("|....|", "FY0871", ". 1", "K 123") + "\n" + rule + "\n</PRE>\n";
  const std::vector<std::string> entries{"FY3210 1 .  HILLSBORO", "FY0871 . 1  K 123"};
  EXPECT_EQ(ChoiceEntries(county, IsCountyRecord), entries);

  const std::string radius = "|dist|PID    H V\n" + rule + "\n" + ListLine("| 0.6|", "FY0895", ". 2", "OCCONEECHEE") +
                             "\n" + ListLine("|12.5|", "EZ1203", "1 3", "CHAPEL HILL") + "\n|";
  EXPECT_EQ(ChoiceEntries(radius, IsRadiusRecord),
            (std::vector<std::string>{"FY0895 . 2  OCCONEECHEE", "EZ1203 1 3  CHAPEL HILL", " "}));

  EXPECT_EQ(ChoiceEntries(county, IsProjectRecord), entries);  // the project list's mark is "|N" at 29
  EXPECT_FALSE(IsProjectRecord(heading));
  EXPECT_FALSE(IsCountyRecord(ListLine("| 0.6|", "FY0895", ". 2", "")));
}

TEST(WebDialogs, KeyFiltersTypeSwallowBeepAndClose) {
  benchlog::testing::MemorySettings settings;
  for (const auto& row : benchlog::testing::ReadRows("web/key_filters.txt", 30, '|')) {
    const int key = std::stoi(row[1]);
    // Shows `form` with the tag "before" and its content, presses the key, reads the outcome.
    const auto press = [key](auto&& form, auto fill, auto kept) {
      fill(form);
      form.Visible = true;
      form.Tag = "before";
      const KeyOutcome outcome = form.filterKey(key);
      return std::vector<std::string>{std::to_string(outcome.key), outcome.beep ? "1" : "0",
                                      outcome.nextControl ? "1" : "0", form.Tag, form.Visible ? "1" : "0",
                                      kept(form) ? "1" : "0"};
    };
    std::vector<std::string> actual;
    if (row[0] == "frmOptions")
      actual = press(frmOptions(), [&settings](frmOptions& f) {
                       f.Load(settings);
                       f.cboChoices = "NC";
                     },
                     [](frmOptions& f) { return f.cboChoices == "NC"; });
    else if (row[0] == "frmListings")
      actual = press(frmListings(), [](frmListings& f) { f.AddItem("FY3210"); },
                     [](frmListings& f) { return f.lstChoices.size() == 1; });
    else if (row[0] == "dlgTypeControl")
      actual = press(dlgTypeControl(), [](dlgTypeControl&) {}, [](dlgTypeControl& f) { return f.TypeCode() == "X-0-0"; });
    else
      actual = press(dlgLatLonRad(), [](dlgLatLonRad& f) { f.Text1[0] = "N39"; },
                     [](dlgLatLonRad& f) { return f.Text1[0] == "N39"; });
    EXPECT_EQ(actual, std::vector<std::string>(row.begin() + 2, row.end())) << row[0] << " key " << key;
  }
}

TEST(WebDialogs, TypeCodeTakesTheFirstSetOptionOfEachGroup) {
  dlgTypeControl types;
  EXPECT_EQ(types.TypeCode(), "X-0-0");
  types.SetOption1(13);
  types.SetOption2(4);
  types.Option2[2] = true;
  EXPECT_EQ(types.TypeCode(), "COR-B");
  types.Option1.fill(false);
  types.cmdOkay_Click();
  EXPECT_EQ(types.Tag, "-B");
}

// Whatever the service sends, the radius list is clean or the command ends with its message: an error
// page, a megabyte of noise (its CRs bring the empty message box), an answer cut in the middle of a
// line, and 20,000 records.
TEST(MarkLists, BadAnswersGiveACleanListOrAMessage) {
  std::mt19937 random(7);
  std::string noise(1 << 20, '\0');
  for (char& c : noise) c = static_cast<char>(random() & 0xFF);
  const std::string two = ListLine("| 0.6|", "FY0895", ". 2", "OCCONEECHEE") + "\n" +
                          ListLine("|12.5|", "EZ1203", "1 3", "CHAPEL HILL") + "\n";
  std::string many;
  for (int i = 0; i < 20000; ++i) many += ListLine("| 0.6|", "AB" + std::to_string(1000 + i % 9000), ". 2", "M") + "\n";
  struct Case { std::string answer; std::size_t entries; std::vector<std::string> messages; };
  const Case cases[] = {
      {"<html><body><h1>500 Internal Server Error</h1></body></html>\n", 0, {}},
      {noise, std::string::npos, {""}},
      {two.substr(0, two.size() - 20), 2, {" 2 stations found.\r\nContinue?"}},  // the second line lost its name
      {many, 20000, {" 20000 stations found.\r\nSelect fewer stations!"}},
  };
  for (const auto& c : cases) {
    benchlog::testing::TempFolder folder;
    benchlog::testing::FakePlatform fake(folder.Path());
    benchlog::testing::TestSession session;
    session.dataset.DatFile = folder.Write("marks.dat", "\r\n");
    fake.http.answers.push_back(c.answer);
    fake.ui.modalActions.push_back([](DialogModel& m) {
      auto& point = dynamic_cast<dlgLatLonRad&>(m);
      point.Text1 = {"N360342", "W0790718", "1"};
      point.OKButton_Click();
    });
    fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<dlgTypeControl&>(m).cmdOkay_Click(); });
    std::vector<std::string> entries;
    fake.ui.modalActions.push_back([&entries](DialogModel& m) {
      auto& listings = dynamic_cast<frmListings&>(m);
      entries = listings.lstChoices;
      listings.selected.assign(entries.size(), true);
      listings.cmdOkay_Click();
    });
    fake.ui.msgAnswers.push_back(MsgResult::No);
    mnuUpdtLatLonRad(session, fake.platform);
    if (c.entries != std::string::npos) {
      EXPECT_EQ(entries.size(), c.entries);
    }
    for (const auto& entry : entries) EXPECT_LE(entry.size(), 42u);  // columns 7-17, a blank, 52-81
    if (c.entries == 2) {
      EXPECT_EQ(entries[1], "EZ1203 1 3  ");
    }
    std::vector<std::string> messages = fake.ui.MessageTexts();
    // What follows the first message is the replacement's (and the noise's count is whatever it holds).
    messages.resize(std::min(messages.size(), std::max<std::size_t>(c.messages.size(), 1)));
    EXPECT_EQ(messages, c.messages);
  }
}
