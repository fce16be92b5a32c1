// The table PointData and its rows: the columns of each choice in frmCDT, the values of the three
// blocks through whole exports of the listing fixture, and the edge cases of one row.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "export/database_row.hpp"
#include "export/database_support.hpp"
#include "export/database_table.hpp"
#include "export/export_run_support.hpp"
#include "fakes/test_rows.hpp"
#include "geodesy/angles.hpp"

namespace benchlog::testing {
namespace {

TEST(PointDataTable, HasTheColumnsOfTheTickedBoxesInOrder) {
  for (const auto& row : ReadRows("export/database_tables.txt", 9, '|')) {
    frmCDT cdt;
    ChooseColumns(cdt, row[1], row[2]);
    EXPECT_EQ(ColumnsText(PointDataColumns(cdt)), row[3]) << row[0];
  }
}

class DatabaseExport : public ExportRunTest {
 protected:
  void SetUp() override {
    ExportRunTest::SetUp();
    OpenDataset("fixture.dat");
  }
  // Every box ticked, the block's button, the listings as asked.
  RecordingDatabase Run(const std::string& button, bool hcl, bool vcl, bool elevationFeet) {
    Choose("NC    3200", false, elevationFeet, hcl, vcl);
    Options().chkDB = 1;
    ChooseColumns(CdtForm(session, fake.platform), button, "all");
    RunExport(Out(button + ".txt"));
    EXPECT_TRUE(Completed()) << button;
    return fake.database;
  }
};

TEST_F(DatabaseExport, EachBlockFormsItsColumnsItsOwnWay) {
  std::map<std::string, RecordingDatabase> runs;
  runs["H"] = Run("horizontal", false, false, false);
  runs["V"] = Run("vertical", false, false, false);
  runs["A"] = Run("both", false, false, false);
  runs["HCut"] = Run("horizontal", true, false, false);
  runs["VFeet"] = Run("vertical", false, true, true);
  EXPECT_EQ(runs["H"].rows.size(), 13u);
  EXPECT_EQ(runs["V"].rows.size(), 11u);
  EXPECT_EQ(runs["A"].rows.size(), 19u);
  for (const auto& row : ReadRows("export/database_rows.txt", 43, '|')) {
    const RecordingDatabase& run = runs.at(row[0]);
    std::string actual = "NOROW";
    for (std::size_t i = 0; i < run.rows.size(); ++i)
      if (run.Field(i, "PID") == row[1]) actual = run.Field(i, row[2]).value_or("NULL");
    EXPECT_EQ(actual, row[3]) << row[0] << " " << row[1] << " " << row[2];
  }
}

// With every box empty the table cannot be made: the export ends without a word.
TEST_F(DatabaseExport, WithEveryBoxEmptyTheExportEndsSilently) {
  Choose("NC    3200", false, false, false, false);
  Options().chkDB = 1;
  CdtForm(session, fake.platform).cmdClearAll_Click();
  RunExport(Out("empty.txt"));
  EXPECT_TRUE(Messages().empty());
  EXPECT_TRUE(fake.database.path.empty());
  EXPECT_FALSE(fake.progress.Visible());
}

// A read-only database stops the export before anything is written, as a read-only listing does.
TEST_F(DatabaseExport, ARefusedFileIsNamed) {
  Choose("NC    3200", false, false, false, false);
  Options().chkDB = 1;
  folder.Write("locked.gpkg", "old");
  std::filesystem::permissions(Out("locked.gpkg"), std::filesystem::perms::owner_read);
  RunExport(Out("locked.txt"));
  EXPECT_EQ(Messages(), std::vector<std::string>{Out("locked.gpkg") + " exists and is read-only!"});
  EXPECT_TRUE(fake.database.path.empty());
  EXPECT_EQ(ReadWholeFile(Out("locked.gpkg")), "old");
}

// A mark without a position keeps its text columns null and has no point; one west of 90 degrees
// has a negative X, so "X", "Y", "Z" stay null.
TEST(PointDataRow, LeavesWhatAMarkCannotGiveNull) {
  frmCDT cdt;
  cdt.cmdCheckAll_Click();
  const Ellipsoid grs80{6378137.0, 0.00669438002290, 0.00669438002290 / (1 - 0.00669438002290)};
  MarkRecord record;
  record.EllipSource = "A";
  record.EllipHeight = "100.0";
  MarkValues values;
  const DatabaseRow empty = PointDataRow(cdt, RowBlock::kAll, grs80, record, values);
  EXPECT_FALSE(empty.point);
  for (const auto& [name, value] : empty.fields) EXPECT_TRUE(name != "83_LATITUDE" && name != "83_LONGITUDE") << name;

  struct Case {
    double westDegrees;
    bool hasX;
  };
  for (const Case c : {Case{79, true}, Case{90.5, false}, Case{98, false}}) {
    values.LatText = "30 00 00", values.LonText = "0" + std::to_string(static_cast<int>(c.westDegrees)) + " 30 00";
    values.LatRadians = 30 * kPi / 180, values.LonRadians = c.westDegrees * kPi / 180;
    const DatabaseRow row = PointDataRow(cdt, RowBlock::kHorizontal, grs80, record, values);
    int cartesian = 0;
    for (const auto& [name, value] : row.fields) cartesian += name == "X" || name == "Y" || name == "Z";
    EXPECT_EQ(cartesian, c.hasX ? 3 : 0) << c.westDegrees;
    EXPECT_TRUE(row.point);
  }
}

}  // namespace
}  // namespace benchlog::testing
