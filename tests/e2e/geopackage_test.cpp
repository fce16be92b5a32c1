// The export's database through the program's own engine: the GeoPackage read back through
// SQLite (its columns, every value the export formed, nulls as nulls, the point layer), opened by
// GDAL's ogrinfo as a point layer, and an export that ends on the way keeping its rows.
#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <cstdio>
#include <cstdlib>

#include "export/database_support.hpp"
#include "export/database_table.hpp"
#include "export/export_run_support.hpp"
#include "fakes/test_rows.hpp"
#include "platform/qt/qt_database.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::testing {
namespace {

// The output of a shell command, or nothing when it could not run.
std::string CommandOutput(const std::string& command) {
  std::string out;
  if (FILE* pipe = popen(command.c_str(), "r")) {
    char buffer[4096];
    for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    pclose(pipe);
  }
  return out;
}

class GeoPackageExport : public ExportRunTest {
 protected:
  void SetUp() override {
    ExportRunTest::SetUp();
    OpenDataset("fixture.dat");
    Choose("NC    3200", false, false, false, false);
    Options().chkDB = 1;
    const auto tables = ReadRows("export/database_tables.txt", 9, '|');
    ChooseColumns(CdtForm(session, fake.platform), "both", "all");
    expectedColumns = tables[2][3];  // AllBoth
  }
  void TearDown() override {
    if (QSqlDatabase::contains("reader")) QSqlDatabase::removeDatabase("reader");
  }
  QSqlDatabase Open(const std::string& path) {
    QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "reader");
    db.setDatabaseName(QString::fromStdString(path));
    EXPECT_TRUE(db.open());
    return db;
  }
  static long Count(QSqlDatabase& db, const char* sql) {
    QSqlQuery query(sql, db);
    return query.next() ? query.value(0).toLongLong() : -1;
  }

  qt::QtDatabase engine;
  std::string expectedColumns;
};

TEST_F(GeoPackageExport, HoldsEveryRowAndValueAsAPointLayer) {
  RunExport(Out("fake.txt"));  // the recording engine: what the export hands over
  const RecordingDatabase handed = fake.database;
  fake.platform.database = &engine;
  RunExport(Out("marks.txt"));
  ASSERT_TRUE(Completed());
  {
    QSqlDatabase db = Open(Out("marks.gpkg"));
    // The columns in order, declared with their sizes, behind the feature id and the point.
    std::string declared;
    for (QSqlQuery info("PRAGMA table_info(\"PointData\")", db); info.next();)
      declared += (declared.empty() ? "" : ",") + qt::FromQt(info.value(1).toString()) + " " + qt::FromQt(info.value(2).toString());
    std::string expected = "fid INTEGER,geom POINT";
    for (const std::string& column : Split(expectedColumns, ","))
      expected += "," + column.substr(0, column.find(' ')) + " TEXT(" + column.substr(column.find_last_of(" o") + 1) + ")";
    EXPECT_EQ(declared, expected);

    // Every value as formed, nulls as nulls, some longer than their columns.
    ASSERT_EQ(Count(db, "SELECT count(*) FROM PointData"), static_cast<long>(handed.rows.size()));
    ASSERT_EQ(handed.rows.size(), 19u);
    QSqlQuery rows("SELECT * FROM PointData ORDER BY fid", db);
    int longer = 0;
    for (std::size_t i = 0; rows.next(); ++i) {
      for (const DatabaseColumn& column : handed.columns) {
        const QVariant value = rows.value(QString::fromStdString(column.name));
        const auto expectedValue = handed.Field(i, column.name);
        EXPECT_EQ(value.isNull(), !expectedValue) << i << " " << column.name;
        if (!expectedValue) continue;
        EXPECT_EQ(qt::FromQt(value.toString()), *expectedValue) << i << " " << column.name;
        longer += static_cast<int>(expectedValue->size()) > column.size;
      }
      EXPECT_EQ(rows.value("geom").toByteArray().size(), 29) << i;  // every fixture mark has a position
    }
    EXPECT_GT(longer, 0) << "the convergences are longer than their columns";

    // The GeoPackage's own tables make it a point layer in NAD 83.
    EXPECT_EQ(Count(db, "PRAGMA application_id"), 0x47504B47);
    EXPECT_EQ(Count(db, "SELECT count(*) FROM gpkg_contents WHERE table_name = 'PointData' AND "
                        "data_type = 'features' AND srs_id = 4269 AND min_x < -78.8 AND max_y > 36.5"), 1);
    EXPECT_EQ(Count(db, "SELECT count(*) FROM gpkg_geometry_columns WHERE geometry_type_name = 'POINT'"), 1);
  }

  const std::string ogrinfo = CommandOutput("ogrinfo -ro -so -al '" + Out("marks.gpkg") + "' 2>&1");
  if (ogrinfo.find("Layer name") == std::string::npos)
    GTEST_SKIP() << "ogrinfo (Debian gdal-bin) is not installed: the GeoPackage was not opened by GDAL";
  EXPECT_NE(ogrinfo.find("Geometry: Point"), std::string::npos) << ogrinfo;
  EXPECT_NE(ogrinfo.find("Feature Count: 19"), std::string::npos) << ogrinfo;
  EXPECT_NE(ogrinfo.find("83_LATITUDE: String (14.0)"), std::string::npos) << ogrinfo;
  EXPECT_EQ(ogrinfo.find("ERROR"), std::string::npos) << ogrinfo;
}

// A Description without a position fails the NC zone's coordinate text: the export ends without
// a word, and the rows of the marks before it stay in the file.
TEST_F(GeoPackageExport, AnExportThatEndsOnTheWayKeepsItsRows) {
  folder.Write("fixture.dat", ListingFixture("fixture.dat") + ListingFixture("nopos.dat"));
  fake.platform.database = &engine;
  RunExport(Out("stopped.txt"));
  EXPECT_FALSE(Completed());
  EXPECT_TRUE(Messages().empty());
  QSqlDatabase db = Open(Out("stopped.gpkg"));
  EXPECT_EQ(Count(db, "SELECT count(*) FROM PointData"), 19);
}

}  // namespace
}  // namespace benchlog::testing
