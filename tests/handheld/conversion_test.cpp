// The HH conversions: one delimited line at a time from a case table, the dialog's checks, and
// whole files through the commands with a scripted user.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "handheld/delimited_line.hpp"
#include "handheld/dlg_delim_and_type.hpp"
#include "handheld/handheld_commands.hpp"

using namespace benchlog;
using benchlog::testing::FakePlatform;
using benchlog::testing::ReadRows;
using benchlog::testing::TempFolder;
using benchlog::testing::TestData;
using benchlog::testing::TestSession;

namespace {

std::array<std::string, 10> Slots(const std::string& list) {
  std::array<std::string, 10> slots;
  const auto texts = Split(list, ";");
  for (std::size_t i = 0; i < texts.size(); ++i) slots[i] = texts[i];
  return slots;
}

std::string Convert(const std::vector<std::string>& row) {
  std::string agency = "LOCSUR", record;
  try {
    switch (ConvertDelimitedLine(row[4], row[1], IdentifyColumns(Slots(row[0])), {row[2], row[3]}, agency, record)) {
      case LineResult::kRecord: return record;
      case LineResult::kSkipped: return "skip";
      case LineResult::kStop: return "stop";
    }
  } catch (const RuntimeFailure& failure) {
    return "failure " + std::to_string(failure.number);
  }
  return "";
}

// The user of dlgDelimAndType: sets the slots and the delimiter and presses OK.
std::function<void(DialogModel&)> Answer(const std::string& slots, const std::string& delimiter,
                                         const std::string& technique, FakePlatform& fake) {
  return [=, &fake](DialogModel& model) {
    auto& dialog = dynamic_cast<dlgDelimAndType&>(model);
    const auto texts = Slots(slots);
    for (std::size_t i = 0; i < texts.size(); ++i) dialog.SetDataType(i, texts[i]);
    dialog.cboDelimChar = delimiter;
    dialog.cboHTech = technique;
    dialog.OKButton_Click(fake.ui, fake.settings);
  };
}

}  // namespace

TEST(DelimitedLine, EveryAcceptedFormBecomesThePackedRecord) {
  for (const auto& row : ReadRows("handheld/delimited_lines.txt", 26, '^'))
    EXPECT_EQ(Convert(row), row[5]) << row[0] << " / " << row[4] << " / " << row[3];
}

TEST(DlgDelimAndType, DelimiterOfEachEntryAndTheOkChecks) {
  dlgDelimAndType dialog;
  const std::pair<const char*, const char*> delimiters[] = {
      {"Asterisk (*)", "*"}, {"BackSlash (\\)", "\\"}, {"Tab      ", "\t"}, {"Underscore (_)", "_"}, {"Pipe (|)", "|"}};
  for (const auto& [entry, expected] : delimiters) {
    dialog.cboDelimChar = entry;
    EXPECT_EQ(dialog.Delimiter(), expected) << entry;
  }

  FakePlatform fake;
  dialog.cboDelimChar = "Comma (,)";
  dialog.SetDataType(0, "PID");
  dialog.SetDataType(1, "Lat (DD,MM,SS.sssss)");
  dialog.Tag = "before";
  dialog.OKButton_Click(fake.ui, fake.settings);
  EXPECT_EQ(fake.ui.MessageTexts(),
            std::vector<std::string>{"Delimiting character is invalid with this data type:\r\nLat (DD,MM,SS.sssss)"});
  EXPECT_EQ(dialog.Tag, "before");

  // A duplicate: OK stays in the dialog; Cancel empties the tag, yet the settings and the tag follow.
  dialog.SetDataType(1, "PID");
  dialog.SetDataType(2, "Other (ignore)");
  dialog.SetDataType(3, "Other (ignore)");
  fake.ui.msgAnswers = {MsgResult::Ok, MsgResult::Cancel};
  dialog.OKButton_Click(fake.ui, fake.settings);
  EXPECT_EQ(dialog.Tag, "before");
  EXPECT_FALSE(fake.settings.Has("dlgDelimAndType", "Col 0"));
  dialog.OKButton_Click(fake.ui, fake.settings);
  EXPECT_EQ(dialog.Tag, ",");
  EXPECT_EQ(fake.settings.GetSetting("dlgDelimAndType", "Col 1", ""), "PID");
  EXPECT_EQ(fake.settings.GetSetting("dlgDelimAndType", "DelimChar", ""), "Comma (,)");
  EXPECT_EQ(fake.ui.messages.back().title, "Error");
}

TEST(DlgDelimAndType, KeysAndTheStatePlaneFrame) {
  dlgDelimAndType dialog;
  const std::tuple<int, int, bool, bool> keys[] = {
      {'a', 'A', false, false}, {'Z', 'Z', false, false}, {'7', '7', false, false}, {'/', '/', false, false},
      {' ', ' ', false, false}, {8, 8, false, false},     {13, 0, false, true},     {'*', 0, true, false},
      {'(', 0, true, false},
  };
  for (const auto& [key, typed, beep, next] : keys) {
    const DialogKey outcome = dialog.filterKey(key);
    EXPECT_EQ(outcome.key, typed) << key;
    EXPECT_EQ(outcome.beep, beep) << key;
    EXPECT_EQ(outcome.nextControl, next) << key;
  }
  dialog.Tag = "x";
  EXPECT_EQ(dialog.filterKey(27).key, 0);
  EXPECT_EQ(dialog.Tag, "");

  EXPECT_FALSE(dialog.fraSPCVisible);
  dialog.SetDataType(4, "SPC (EEEEEEE.eee)");
  EXPECT_TRUE(dialog.fraSPCVisible);
  dialog.SetSpcZone("MD    1900", benchlog::testing::SourceSupport());
  EXPECT_EQ(dialog.cboUnits, "sFT");
  dialog.SetSpcZone("AK 2  5002", benchlog::testing::SourceSupport());
  EXPECT_EQ(dialog.cboUnits, "M");
}

TEST(ConvDelimtoHH, ConvertsTheFileAndAsksOnlyWhatItMust) {
  TempFolder folder;
  const std::string input = folder.Write("marks.csv",
                                         "pid,name,lat,lon\r\naa1234,old mill,N39 15 44.123,W77 12 34.567\r\n"
                                         "ab12,short,N39 15 44.123,W77 12 34.567\r\nab0001,tower,39.5,77.1234\r\n");
  FakePlatform fake;
  TestSession session;
  fake.ui.fileAnswers = {input};
  fake.ui.modalActions = {Answer("PID;Designation;Lat (NDD MM SS.sssss);Lon (WDDD MM SS.sssss)", "Comma (,)", "X", fake)};
  fake.ui.inputAnswers = {"ocofld"};
  mnuConvDelimtoHH(session, fake.platform);
  EXPECT_EQ(ReadWholeFile(folder.File("marks_hh.txt")),
            "AA1234|OLD MILL|N391544.12|W0771234.56|HH1|OCOFLD\r\nAB0001|TOWER|N0393000.0|W0770724.24|HH1|OCOFLD\r\n");
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Conversion complete!"});
  EXPECT_EQ(fake.settings.GetSetting("Settings", "RecAgcy", ""), "OCOFLD");
  const auto& dialog = session.forms.Get<dlgDelimAndType>();
  EXPECT_EQ(dialog.txtSampleData, "pid,name,lat,lon");
  EXPECT_EQ(dialog.cboHOrder, "4");
  EXPECT_EQ(dialog.cboHSource, "O");

  // Again: the output exists, and No ends the command before the agency is asked.
  fake.ui.fileAnswers = {input};
  fake.ui.modalActions = {Answer("PID;Designation", "Comma (,)", "W", fake)};
  fake.ui.msgAnswers = {MsgResult::No};
  mnuConvDelimtoHH(session, fake.platform);
  EXPECT_EQ(fake.ui.messages.back().title, "Convert Garmin to HH");
  EXPECT_TRUE(fake.ui.inputAnswers.empty());
}

TEST(ConvDelimtoHH, BadInputGivesAMessageOrAResult) {
  TempFolder folder;
  const std::string longLine = "ab1234," + std::string(100000, 'x') + ",N39 15 44.123,W77 12 34.567\r\n";
  std::string binary;
  for (int i = 0; i < 4096; ++i)
    if ((i * 37) % 256 != ',') binary += static_cast<char>((i * 37) % 256);  // no delimiter: every line is short
  struct Case {
    std::string name, bytes, slots, message, output;
  } cases[] = {
      {"missing.csv", "", "", "File not found!", ""},
      {"empty.csv", "", "", "Input file is empty!", ""},
      {"long.csv", longLine, "PID;Designation;Lat (NDD MM SS.sssss);Lon (WDDD MM SS.sssss)", "Conversion complete!",
       "AB1234|" + std::string(100000, 'X') + "|N391544.12|W0771234.56|HH1|LOCSUR\r\n"},
      {"binary.csv", binary, "PID;Designation;Lat (NDD MM SS.sssss);Lon (WDDD MM SS.sssss)", "Conversion complete!", ""},
      {"nodesig.csv", "ab1234,N39 15 44.1,W77 12 34.5\r\n", "PID;Lat (NDD MM SS.sssss);Lon (WDDD MM SS.sssss)",
       "Subscript out of range", ""},
  };
  for (const auto& c : cases) {
    const std::string path = c.name == "missing.csv" ? folder.File(c.name) : folder.Write(c.name, c.bytes);
    FakePlatform fake;
    TestSession session;
    fake.ui.fileAnswers = {path};
    if (!c.slots.empty()) {
      fake.ui.modalActions = {Answer(c.slots, "Comma (,)", "X", fake)};
      fake.ui.inputAnswers = {"locsur"};
    }
    mnuConvDelimtoHH(session, fake.platform);
    ASSERT_FALSE(fake.ui.messages.empty()) << c.name;
    EXPECT_EQ(fake.ui.messages.back().text, c.message) << c.name;
    if (!c.slots.empty()) {
      EXPECT_EQ(ReadWholeFile(folder.File(Left(c.name, c.name.size() - 4) + "_hh.txt")), c.output) << c.name;
    }
  }
}
