// The Export command with a scripted user: its stops, the choice of marks, the output names, the
// read-only files, the order in which outputs are opened, the progress dialog and its end; viewing
// the listings; and whole exports against the golden listings.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <tuple>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "export/export_commands.hpp"
#include "export/export_run_support.hpp"
#include "export/export_test_support.hpp"
#include "fakes/file_size_limit.hpp"
#include "fakes/folder_snapshot.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog::testing {
namespace {

namespace fs = std::filesystem;

class ExportCommand : public ExportRunTest {
 protected:
  void SetUp() override {
    ExportRunTest::SetUp();
    OpenDataset("fixture.dat");
    Choose("NC    3200", false, false);
  }
  static void MakeReadOnly(const std::string& path) {
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  }
};

// The commands run through the program's table here, so they are on the menu.
TEST_F(ExportCommand, WithoutADatasetSaysSoAndAsksNothing) {
  session.dataset.DatFile.clear();
  BuildCommandTable().Run("mnuExport", session, fake.platform);
  EXPECT_EQ(Messages(), std::vector<std::string>{"No mkdata file open!"});
  EXPECT_TRUE(fake.ui.modals.empty());
}

// Okay leaves the tag alone, so after one Cancel every later export of the run ends at the
// options, whichever button is pressed.
TEST_F(ExportCommand, ACancelInTheOptionsEndsEveryLaterExport) {
  fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmOutputOptions&>(m).cmdCancel_Click(); });
  mnuExport(session, fake.platform);
  RunExport(Out("export.out"));
  EXPECT_EQ(fake.ui.modals.size(), 2u);
  EXPECT_TRUE(fake.ui.fileDialogs.empty());
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(FileExists(Out("export.hcl")));
}

TEST_F(ExportCommand, AsksForTheOutputNameBesideTheLastDataset) {
  for (const bool saved : {false, true}) {
    fake.ui.fileDialogs.clear();
    if (saved) fake.settings.SaveSetting("Settings", "LastDatDirectory", "/data/marks/");
    RunExport("");  // cancelled
    ASSERT_EQ(fake.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(Describe(fake.ui.fileDialogs[0]), std::string("save|Choose Output File Name||") + (saved ? "/data/marks/" : "c:\\"));
    EXPECT_EQ(fake.ui.fileDialogs[0].fileName, "fixture");
  }
  // Cancelling the save dialog ends the command without a word.
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(fake.progress.Visible());
}

// Both listings are opened before either is written: a read-only ".hcl" or ".vcl" stops the
// export with the menu as it was, and so does a listing that cannot be written whole (a full
// disk). Both old listings stay as they were, with no work file, and the command names the file
// and why.
TEST_F(ExportCommand, AListingThatCannotBeWrittenLeavesTheOldOnes) {
  for (const std::string stem : {"a", "b", "c"}) {
    folder.Write(stem + ".hcl", "old horizontal listing\r\n");
    folder.Write(stem + ".vcl", "old vertical listing\r\n");
    if (stem != "c") MakeReadOnly(Out(stem == "a" ? "a.vcl" : "b.hcl"));
    session.menu["mnuViewHcl"].enabled = true;
    session.menu["mnuViewVcl"].enabled = false;
    fake.ui.messages.clear();
    const auto before = FolderSnapshot(folder.Path());
    std::optional<FileSizeLimit> limit;
    if (stem == "c") limit.emplace(64);
    RunExport(Out(stem + ".txt"));
    limit.reset();
    ASSERT_EQ(fake.ui.messages.size(), 1u);
    EXPECT_EQ(fake.ui.messages[0].text, stem == "a"   ? Out("a.vcl") + " exists and is read-only!"
                                        : stem == "b" ? Out("b.hcl") + " exists and is read-only!"
                                                      : "Path/File access error: could not write " + Out("c.hcl") + " (File too large)");
    EXPECT_EQ(fake.ui.messages[0].title, "Export Files");
    EXPECT_EQ(FolderSnapshot(folder.Path()), before);
    EXPECT_FALSE(fake.progress.Visible());
    EXPECT_TRUE(stem == "c" || (session.menu["mnuViewHcl"].enabled && !session.menu["mnuViewVcl"].enabled));
  }
}

TEST_F(ExportCommand, WithNoBoxTickedRunsThroughEveryDescriptionAndWritesNothing) {
  Choose("NC    3200", false, false, false, false);
  fake.progress.observer = [this](const Progress& p) { fake.progressHistory.push_back(p); };
  RunExport(Out("export.txt"));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Processing complete!"});
  EXPECT_EQ(fake.ui.messages[0].title, "Create File(s)");
  EXPECT_FALSE(FileExists(Out("export.hcl")));
  EXPECT_FALSE(FileExists(Out("export.vcl")));
  // Shown with its labels, run up to the count of Descriptions, hidden at the end.
  ASSERT_FALSE(fake.progressHistory.empty());
  EXPECT_EQ(fake.progressHistory.front().caption, "Benchlog");
  EXPECT_EQ(Describe(fake.progressHistory.front()).substr(0, 26), "Processing |Please wait...");
  EXPECT_EQ(Describe(fake.progress), "hidden: Processing |Please wait...|19/19");
}

// The database box brings up frmCDT, whose Cancel ends the command; its Okay adds the database,
// the Street Atlas file and the script to the listings.
TEST_F(ExportCommand, TheDatabaseBoxAsksForItsColumns) {
  Options().chkDB = 1;
  Options().chkStreetAtlas = 1;
  Options().chkMicrostation = 1;
  fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmOutputOptions&>(m).cmdOkay_Click(); });
  fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmCDT&>(m).cmdCancel_Click(); });
  mnuExport(session, fake.platform);
  EXPECT_TRUE(fake.ui.fileDialogs.empty());

  RunExport(Out("export.txt"));
  ASSERT_EQ(fake.ui.modals.size(), 4u);
  EXPECT_NE(dynamic_cast<frmCDT*>(fake.ui.modals[3]), nullptr);
  EXPECT_TRUE(Completed());
  EXPECT_EQ(ReadWholeFile(Out("export.hcl")), ListingFixture("nc_meters.hcl"));
  EXPECT_EQ(fake.database.path, Out("export.gpkg"));
  EXPECT_FALSE(fake.database.open);
  for (const char* written : {"export_sa6.txt", "export.msf"}) EXPECT_TRUE(FileExists(Out(written)));
}

TEST_F(ExportCommand, ListsEveryIndexElementForTheChoiceOfMarks) {
  BuildIndex();
  Options().SetAllStations(false);
  RunExport(Out("export.txt"), {"DH7204"});
  const auto& list = session.forms.Get<FrmSelectPoints>();
  EXPECT_EQ(list.caption, "Select Point(s) to export:");
  ASSERT_EQ(list.lstPoints.size(), session.dataset.markIndex.Size());
  EXPECT_EQ(list.lstPoints[0], "HILLSBORO                      ORANGE                  FY3210");
  EXPECT_EQ(fake.ui.hidden.back(), &list);
  EXPECT_TRUE(Completed());
}

TEST_F(ExportCommand, EndsWhenNoMarkIsChosen) {
  BuildIndex();
  Options().SetAllStations(false);
  RunExport(Out("export.txt"), {});  // Okay with nothing selected
  fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmOutputOptions&>(m).cmdOkay_Click(); });
  fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<FrmSelectPoints&>(m).cmdCancel_Click(); });
  mnuExport(session, fake.platform);
  EXPECT_EQ(fake.ui.fileAnswers.size(), 1u) << "the save dialog was never asked";
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ExportCommand, MoreThanTenThousandChosenMarksEndWithoutAWord) {
  std::vector<std::string> records;  // AA0000 to AA9999, then AA0000 again
  for (int i = 0; i <= 10000; ++i) records.push_back("AA" + std::to_string(100000 + i % 10000).substr(2) + std::string(139, ' '));
  session.dataset.markIndex.Assign(records);
  Options().SetAllStations(false);
  fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmOutputOptions&>(m).cmdOkay_Click(); });
  fake.ui.modalActions.push_back([](DialogModel& m) {
    auto& list = dynamic_cast<FrmSelectPoints&>(m);
    list.selected.assign(list.lstPoints.size(), true);
    list.cmdOkay_Click();
  });
  mnuExport(session, fake.platform);
  EXPECT_TRUE(fake.ui.fileDialogs.empty());
  EXPECT_TRUE(Messages().empty());
}

// A coordinate text wider than its 12 columns (eight integer digits with decimals) ends the
// export through its error handling: no report, and the old listings stay as they were.
TEST_F(ExportCommand, ACoordinateTooWideForItsColumnEndsTheExport) {
  OpenDataset("tx.dat");
  Choose("TX SC 4204", true, false);
  folder.Write("export.vcl", "old vertical listing\r\n");
  const auto before = FolderSnapshot(folder.Path());
  RunExport(Out("export.txt"));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(FolderSnapshot(folder.Path()), before);
  EXPECT_FALSE(fake.progress.Visible());
}

// Each listing command shows its file at font size 8 and goes back to 10; a missing file has
// its own message.
TEST_F(ExportCommand, ViewsTheListingsAtTheirPitch) {
  const CommandTable table = BuildCommandTable();
  // command, listing, caption head, file type, message when missing
  for (const auto& [command, path, captionHead, fileType, missing] :
       {std::tuple{"mnuViewHcl", &ExportOutputs::HclFile, "Hcl File - ", "hcl", "Hcl file not found!"},
        std::tuple{"mnuViewVcl", &ExportOutputs::VclFile, "Vcl File - ", "vcl", "File not found!"}}) {
    fake.ui.messages.clear();
    session.outputs.*path = Out("missing.lst");
    table.Run(command, session, fake.platform);
    EXPECT_EQ(Messages(), std::vector<std::string>{missing});

    session.outputs.*path = folder.Write("shown.lst", "LISTING\r\n");
    int fontDuringShow = 0;
    fake.ui.modalActions.push_back([&fontDuringShow](DialogModel& m) { fontDuringShow = dynamic_cast<frmView&>(m).FontSize; });
    table.Run(command, session, fake.platform);
    const frmView& view = session.forms.Get<frmView>();
    EXPECT_EQ(fontDuringShow, 8);
    EXPECT_EQ(view.FontSize, 10);
    EXPECT_EQ(view.txtViewFile, "LISTING\r\n");
    EXPECT_EQ(view.Caption, captionHead + Out("shown.lst"));
    EXPECT_EQ(view.Tag, "View listing");
    EXPECT_EQ(view.strFileType, fileType);
  }
}

// Whole exports compared byte for byte with listings worked out independently
// (tests/data/export/listings/make_golden.py: fields transcribed by hand, plane coordinates from
// PROJ, lines laid out by the listing rules), for the option sets of golden_cases.txt.
using Row = std::vector<std::string>;
std::vector<Row> GoldenCases() { return ReadRows("export/golden_cases.txt", 6, '|'); }

TEST(GoldenCases, AreAllRead) { EXPECT_EQ(GoldenCases().size(), 6u); }

class GoldenListings : public ExportRunTest, public ::testing::WithParamInterface<Row> {};

TEST_P(GoldenListings, MatchTheListingsWorkedOutByHand) {
  const Row& c = GetParam();
  OpenDataset(c[1]);
  Choose(c[2], c[3] == "feet", c[4] == "feet");
  if (c[3] == "utm") Options().SetUnits(false, false, true);
  std::set<std::string> chosen;
  if (!c[5].empty()) {
    for (const std::string& pid : Split(c[5], " ")) chosen.insert(pid);
    BuildIndex();
    Options().SetAllStations(false);
  }
  RunExport(Out("export.out"), chosen);

  EXPECT_EQ(Messages(), std::vector<std::string>{"Processing complete!"});
  EXPECT_EQ(ReadWholeFile(Out("export.hcl")), ListingFixture(c[6] + ".hcl"));
  EXPECT_EQ(ReadWholeFile(Out("export.vcl")), ListingFixture(c[6] + ".vcl"));
  // The session keeps the names made from the chosen one (the ExportNames cases check the names).
  const ExportOutputs& o = session.outputs;
  EXPECT_EQ(Join({o.HclFile, o.VclFile, o.SA6File, o.ErrFile}, "|"),
            Join({Out("export.hcl"), Out("export.vcl"), Out("export_sa6.txt"), Out("export.err")}, "|"));
  EXPECT_FALSE(FileExists(Out("export.err"))) << "no error listing is written";
}

INSTANTIATE_TEST_SUITE_P(OptionSets, GoldenListings, ::testing::ValuesIn(GoldenCases()),
                         [](const ::testing::TestParamInfo<Row>& info) { return info.param[0]; });

}  // namespace
}  // namespace benchlog::testing
