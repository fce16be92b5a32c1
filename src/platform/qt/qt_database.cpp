#include "platform/qt/qt_database.hpp"

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include <sqlite3.h>

#include "common/runtime_failure.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

constexpr int kSrsId = 4269;  // NAD 83, geographic degrees
constexpr const char* kGeometryColumn = "geom";

const char* const kSchema[] = {
    "PRAGMA application_id = 1196444487",  // "GPKG"
    "PRAGMA user_version = 10200",
    "CREATE TABLE gpkg_spatial_ref_sys (srs_name TEXT NOT NULL, srs_id INTEGER NOT NULL PRIMARY KEY, "
    "organization TEXT NOT NULL, organization_coordsys_id INTEGER NOT NULL, definition TEXT NOT NULL, "
    "description TEXT)",
    "CREATE TABLE gpkg_contents (table_name TEXT NOT NULL PRIMARY KEY, data_type TEXT NOT NULL, "
    "identifier TEXT UNIQUE, description TEXT DEFAULT '', "
    "last_change DATETIME NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ','now')), min_x DOUBLE, min_y DOUBLE, "
    "max_x DOUBLE, max_y DOUBLE, srs_id INTEGER, "
    "CONSTRAINT fk_gc_r_srs_id FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys(srs_id))",
    "CREATE TABLE gpkg_geometry_columns (table_name TEXT NOT NULL, column_name TEXT NOT NULL, "
    "geometry_type_name TEXT NOT NULL, srs_id INTEGER NOT NULL, z TINYINT NOT NULL, m TINYINT NOT NULL, "
    "CONSTRAINT pk_geom_cols PRIMARY KEY (table_name, column_name), "
    "CONSTRAINT uk_gc_table_name UNIQUE (table_name), "
    "CONSTRAINT fk_gc_tn FOREIGN KEY (table_name) REFERENCES gpkg_contents(table_name), "
    "CONSTRAINT fk_gc_srs FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys (srs_id))",
    "INSERT INTO gpkg_spatial_ref_sys VALUES ('Undefined cartesian SRS', -1, 'NONE', -1, 'undefined', "
    "'undefined cartesian coordinate reference system')",
    "INSERT INTO gpkg_spatial_ref_sys VALUES ('Undefined geographic SRS', 0, 'NONE', 0, 'undefined', "
    "'undefined geographic coordinate reference system')",
    "INSERT INTO gpkg_spatial_ref_sys VALUES ('WGS 84 geodetic', 4326, 'EPSG', 4326, "
    "'GEOGCS[\"WGS 84\",DATUM[\"WGS_1984\",SPHEROID[\"WGS 84\",6378137,298.257223563,AUTHORITY[\"EPSG\",\"7030\"]],"
    "AUTHORITY[\"EPSG\",\"6326\"]],PRIMEM[\"Greenwich\",0,AUTHORITY[\"EPSG\",\"8901\"]],"
    "UNIT[\"degree\",0.0174532925199433,AUTHORITY[\"EPSG\",\"9122\"]],AUTHORITY[\"EPSG\",\"4326\"]]', "
    "'longitude/latitude coordinates in decimal degrees on the WGS 84 spheroid')",
    "INSERT INTO gpkg_spatial_ref_sys VALUES ('NAD83', 4269, 'EPSG', 4269, "
    "'GEOGCS[\"NAD83\",DATUM[\"North_American_Datum_1983\",SPHEROID[\"GRS 1980\",6378137,298.257222101,"
    "AUTHORITY[\"EPSG\",\"7019\"]],AUTHORITY[\"EPSG\",\"6269\"]],PRIMEM[\"Greenwich\",0,AUTHORITY[\"EPSG\",\"8901\"]],"
    "UNIT[\"degree\",0.0174532925199433,AUTHORITY[\"EPSG\",\"9122\"]],AUTHORITY[\"EPSG\",\"4269\"]]', "
    "'longitude/latitude coordinates in decimal degrees on NAD 83')",
};

std::string Quoted(const std::string& name) { return "\"" + name + "\""; }

std::string ColumnDeclaration(const DatabaseColumn& column) {
  // Text and memo alike are SQLite text; the size is declared and not enforced, so a value longer
  // than its column is kept whole.
  return Quoted(column.name) + " TEXT(" + std::to_string(column.size) + ")";
}

RuntimeFailure EngineFailure(const QSqlError& error) {
  return RuntimeFailure(75, "Path/File access error: " + FromQt(error.text()));
}

RuntimeFailure EngineFailure(sqlite3* handle) {
  return RuntimeFailure(75, std::string("Path/File access error: ") + sqlite3_errmsg(handle));
}

// The text as SQLite keeps it, in UTF-8: plain ASCII as it is, other bytes through the code page.
std::string_view Utf8(const std::string& text, std::string& scratch) {
  if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) return text;
  scratch = ToQt(text).toUtf8().toStdString();
  return scratch;
}

template <typename T>
void PutLittleEndian(std::string& out, T value) {
  char bytes[sizeof(T)];
  std::memcpy(bytes, &value, sizeof(T));
  if constexpr (std::endian::native == std::endian::big) std::reverse(std::begin(bytes), std::end(bytes));
  out.append(bytes, sizeof(T));
}

}  // namespace

std::string GeoPackagePoint(const GeoPoint& point, int srsId) {
  std::string blob = {'G', 'P', 0, 1};  // magic, version 0, flags: little endian, no envelope
  PutLittleEndian<std::int32_t>(blob, srsId);
  blob.push_back(1);  // well-known binary, little endian
  PutLittleEndian<std::uint32_t>(blob, 1);  // Point
  PutLittleEndian<double>(blob, point.longitude);
  PutLittleEndian<double>(blob, point.latitude);
  return blob;
}

QtDatabase::QtDatabase() {
  static std::atomic<int> next{0};
  connection_ = "benchlog-database-" + std::to_string(next++);
}

QtDatabase::~QtDatabase() {
  try {
    Close();
  } catch (...) {
    Drop();
  }
}

void QtDatabase::Execute(const std::string& statement) {
  QSqlQuery query(QSqlDatabase::database(ToQt(connection_), false));
  if (!query.exec(ToQt(statement))) throw EngineFailure(query.lastError());
}

void QtDatabase::Create(const std::string& path, const std::string& table, const std::vector<DatabaseColumn>& columns) {
  Close();
  if (columns.empty()) throw InvalidProcedureCall();  // a table needs a column
  {
    QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", ToQt(connection_));
    db.setDatabaseName(QString::fromStdString(path));
    if (!db.open()) {
      const QSqlError error = db.lastError();
      db = QSqlDatabase();
      QSqlDatabase::removeDatabase(ToQt(connection_));
      throw EngineFailure(error);
    }
  }
  open_ = true;
  table_ = table;
  try {
    // The tables and the rows in one transaction: one write to the disk at the close.
    QSqlDatabase db = QSqlDatabase::database(ToQt(connection_), false);
    if (!db.transaction()) throw EngineFailure(db.lastError());
    for (const char* statement : kSchema) Execute(statement);
    std::string create = "CREATE TABLE " + Quoted(table) + " (fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL, " +
                         kGeometryColumn + " POINT";
    std::string insert = "INSERT INTO " + Quoted(table) + " (" + kGeometryColumn;
    std::string marks = "?";
    columnIndex_.clear();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      create += ", " + ColumnDeclaration(columns[i]);
      insert += ", " + Quoted(columns[i].name);
      marks += ", ?";
      columnIndex_[columns[i].name] = static_cast<int>(i) + 1;
    }
    Execute(create + ")");
    Execute("INSERT INTO gpkg_contents (table_name, data_type, identifier, srs_id) VALUES ('" + table +
            "', 'features', '" + table + "', " + std::to_string(kSrsId) + ")");
    Execute("INSERT INTO gpkg_geometry_columns VALUES ('" + table + "', '" + kGeometryColumn + "', 'POINT', " +
            std::to_string(kSrsId) + ", 0, 0)");
    const QVariant handle = db.driver()->handle();
    if (!handle.isValid() || std::strcmp(handle.typeName(), "sqlite3*") != 0) throw InvalidProcedureCall();
    handle_ = *static_cast<sqlite3* const*>(handle.constData());
    const std::string sql = insert + ") VALUES (" + marks + ")";
    if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &insert_, nullptr) != SQLITE_OK) throw EngineFailure(handle_);
  } catch (...) {
    Drop();
    throw;
  }
  anyPoint_ = false;
}

void QtDatabase::AddRow(const DatabaseRow& row) {
  if (!open_) throw InvalidProcedureCall();
  sqlite3_reset(insert_);
  sqlite3_clear_bindings(insert_);  // every column null until set
  std::string blob;
  if (row.point) {
    blob = GeoPackagePoint(*row.point, kSrsId);
    sqlite3_bind_blob(insert_, 1, blob.data(), static_cast<int>(blob.size()), SQLITE_STATIC);
    const GeoPoint& p = *row.point;
    if (!anyPoint_) minX_ = maxX_ = p.longitude, minY_ = maxY_ = p.latitude;
    minX_ = std::min(minX_, p.longitude), maxX_ = std::max(maxX_, p.longitude);
    minY_ = std::min(minY_, p.latitude), maxY_ = std::max(maxY_, p.latitude);
    anyPoint_ = true;
  }
  // Converted texts live until the step; the row's own texts are bound where they are.
  std::vector<std::string> scratch(row.fields.size());
  for (std::size_t i = 0; i < row.fields.size(); ++i) {
    const auto& [name, value] = row.fields[i];
    const auto at = columnIndex_.find(name);
    if (at == columnIndex_.end()) throw RuntimeFailure(3265, "Item not found in this collection: " + name);
    const std::string_view text = Utf8(value, scratch[i]);
    sqlite3_bind_text(insert_, at->second + 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
  }
  if (sqlite3_step(insert_) != SQLITE_DONE) throw EngineFailure(handle_);
}

void QtDatabase::Close() {
  if (!open_) return;
  sqlite3_finalize(insert_);
  insert_ = nullptr;
  try {
    if (anyPoint_) {
      QSqlQuery extent(QSqlDatabase::database(ToQt(connection_), false));
      extent.prepare("UPDATE gpkg_contents SET min_x = ?, min_y = ?, max_x = ?, max_y = ? WHERE table_name = ?");
      for (const double value : {minX_, minY_, maxX_, maxY_}) extent.addBindValue(value);
      extent.addBindValue(ToQt(table_));
      if (!extent.exec()) throw EngineFailure(extent.lastError());
    }
    QSqlDatabase db = QSqlDatabase::database(ToQt(connection_), false);
    if (!db.commit()) throw EngineFailure(db.lastError());
  } catch (...) {
    Drop();
    throw;
  }
  Drop();
}

void QtDatabase::Drop() noexcept {
  sqlite3_finalize(insert_);  // nothing for a null statement
  insert_ = nullptr;
  handle_ = nullptr;
  if (QSqlDatabase::contains(ToQt(connection_))) {
    {
      QSqlDatabase db = QSqlDatabase::database(ToQt(connection_), false);
      db.close();
    }
    QSqlDatabase::removeDatabase(ToQt(connection_));
  }
  open_ = false;
}

}  // namespace benchlog::qt
