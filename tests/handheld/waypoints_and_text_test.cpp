// The waypoint conversions on receivers' files, and the search for positions in a dataset's text.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "handheld/handheld_commands.hpp"
#include "handheld/text_positions.hpp"
#include "session/frm_view.hpp"

using namespace benchlog;
using benchlog::testing::FakePlatform;
using benchlog::testing::ReadRows;
using benchlog::testing::TempFolder;
using benchlog::testing::TestData;
using benchlog::testing::TestSession;

namespace {

struct Outcome {
  std::string output;   // the HH file, "(none)" when it was not made
  std::string message;  // the last message shown
  MsgIcon icon = MsgIcon::None;
};

Outcome Convert(void (*command)(Session&, Platform&), const std::string& input, const std::string& agency) {
  FakePlatform fake;
  TestSession session;
  fake.ui.fileAnswers = {input};
  fake.ui.inputAnswers = {agency};
  command(session, fake.platform);
  const std::string output = input.substr(0, input.rfind('.')) + "_hh.txt";
  Outcome run{FileExists(output) ? ReadWholeFile(output) : "(none)", "", MsgIcon::None};
  if (!fake.ui.messages.empty()) run.message = fake.ui.messages.back().text, run.icon = fake.ui.messages.back().icon;
  return run;
}

std::string Copy(const TempFolder& folder, const std::string& name) {
  return folder.Write(name, ReadWholeFile(TestData("handheld/" + name)));
}

}  // namespace

TEST(TextPositions, EachPatternIsCutAndPacked) {
  for (const auto& row : ReadRows("handheld/text_patterns.txt", 14, '^')) {
    EXPECT_EQ(FindLatitudeInText(row[0]), row[1]) << row[0];
    EXPECT_EQ(FindLongitudeInText(row[0]), row[2]) << row[0];
  }
}

TEST(ConvgpxToHH, WaypointsWithACommentBecomeRecords) {
  TempFolder folder;
  const Outcome run = Convert(mnuConvgpxToHH, Copy(folder, "waypoints.gpx"), "geocac");
  EXPECT_EQ(run.output, ReadWholeFile(TestData("handheld/waypoints_hh.expected")));
  EXPECT_EQ(run.message, "Conversion complete!");

  // The whole file on one line: no tag starts a line, so no record.
  const std::string oneLine = folder.Write("flat.gpx", "<gpx><wpt lat=\"39.5\" lon=\"-77.5\"><name>AB1234</name>"
                                                       "<cmt>x</cmt></wpt></gpx>\n<cmt>lf only</cmt>\n");
  EXPECT_EQ(Convert(mnuConvgpxToHH, oneLine, "geocac").output, "");
}

TEST(ConvertGarminToHH, ChecksTheFormBeforeEachWaypoint) {
  TempFolder folder;
  Outcome run = Convert(mnuConvertGarminToHH, Copy(folder, "garmin_waypoints.txt"), "zjplq");
  EXPECT_EQ(run.output, ReadWholeFile(TestData("handheld/garmin_waypoints_hh.expected")));
  EXPECT_EQ(run.message, "Conversion complete!");

  // The receivers' own exports use minutes with decimals and WGS 84: refused at the first waypoint.
  for (const char* sample : {"waypoints_garmin_txt.txt", "waypoints_garmin_txt_reorder.txt"}) {
    run = Convert(mnuConvertGarminToHH, Copy(folder, sample), "zjplq");
    EXPECT_EQ(run.message, "Invalid grid!") << sample;
    EXPECT_EQ(run.icon, MsgIcon::Critical);
    EXPECT_EQ(run.output, "") << sample;
  }

  const std::string grid = "Grid\tLat/Lon hddd\xB0mm'ss.s\"\r\n";
  const std::string header = "Header\tName\tDescription\tType\tPosition\r\n";
  const std::string waypoint = "Waypoint\tAB1234\tMill\tUser\tN39 15 44.5 W77 12 34.5\r\n";
  const std::pair<std::string, std::string> cases[] = {
      {"Datum\tNAD83\r\n" + header + waypoint + grid, "Invalid grid!"},
      {grid + "Datum\tWGS 84\r\n" + header + waypoint, "Invalid datum!"},
      {grid + "Datum\tNAD83\r\nHeader\tDescription\tName\tType\tPosition\r\n" + waypoint, "Invalid data format!"},
      {grid + "Datum\tNAD83\r\n" + header, "Conversion complete!"},
  };
  int number = 0;
  for (const auto& [text, message] : cases) {
    run = Convert(mnuConvertGarminToHH, folder.Write("case" + std::to_string(++number) + ".txt", text), "zjplq");
    EXPECT_EQ(run.message, message) << text;
    EXPECT_EQ(run.output, "");
  }
}

TEST(LatLoninTxt, FindsCloseAndFarPositionsInTheText) {
  TempFolder folder;
  FakePlatform fake;
  TestSession session;
  session.dataset.DatFile = Copy(folder, "text_positions.dat");
  session.dataset.DatFilePath = folder.Path() + "/";
  const std::string hhPath = folder.File("found.txt");
  fake.ui.fileAnswers = {hhPath};
  std::string shown;
  fake.ui.modalActions = {[&shown](DialogModel& model) {
    auto& view = dynamic_cast<frmView&>(model);
    EXPECT_EQ(view.Caption, "Handheld File");
    EXPECT_EQ(view.FontSize, 8);
    EXPECT_EQ(view.Tag, "View listing");
    shown = view.txtViewFile;
  }};
  mnuLatLoninTxt(session, fake.platform);
  EXPECT_EQ(ReadWholeFile(hhPath), ReadWholeFile(TestData("handheld/text_positions_hh.expected")));
  EXPECT_EQ(shown, ReadWholeFile(TestData("handheld/text_positions_report.expected")));
  EXPECT_EQ(ReadWholeFile(folder.File("foundGeoPos.Rpt")), shown);
  EXPECT_EQ(session.forms.Get<frmView>().FontSize, 10);
  EXPECT_FALSE(fake.progress.Visible());
}

TEST(LatLoninTxt, NoFindLeavesNoHhFileButAnEmptyReport) {
  TempFolder folder;
  FakePlatform fake;
  TestSession session;
  session.dataset.DatFile = folder.Write("plain.dat", "1      AB0001\r\n AB0001'NOTHING HERE\r\n");
  fake.ui.fileAnswers = {folder.File("found.txt")};
  std::string shown = "not shown";
  fake.ui.modalActions = {[&shown](DialogModel& model) { shown = dynamic_cast<frmView&>(model).txtViewFile; }};
  mnuLatLoninTxt(session, fake.platform);
  EXPECT_FALSE(FileExists(folder.File("found.txt")));
  EXPECT_EQ(shown, "");
}
