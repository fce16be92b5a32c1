#pragma once
// The database engine of the program: a GeoPackage (an SQLite file in the OGC format) written
// through QtSql. Besides the table with its columns it holds the GeoPackage's own tables: the
// spatial reference systems, the contents entry that makes the table a feature layer, and its
// point geometry column "geom" in NAD 83 geographic degrees (EPSG 4269), so that GIS programs
// open the file as a point layer with every column as an attribute. The rows go through one
// prepared statement on the connection's own SQLite handle, bound straight from the row's texts.
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/database.hpp"

struct sqlite3;
struct sqlite3_stmt;

namespace benchlog::qt {

class QtDatabase final : public Database {
 public:
  QtDatabase();
  ~QtDatabase() override;  // closes as Close() does
  void Create(const std::string& path, const std::string& table, const std::vector<DatabaseColumn>& columns) override;
  void AddRow(const DatabaseRow& row) override;
  void Close() override;

 private:
  void Execute(const std::string& statement);
  void Drop() noexcept;

  std::string connection_;  // the QtSql connection's name, one per engine object
  std::string table_;
  bool open_ = false;
  sqlite3* handle_ = nullptr;          // the QtSql connection's SQLite handle
  sqlite3_stmt* insert_ = nullptr;     // the one prepared statement of the rows
  std::unordered_map<std::string, int> columnIndex_;  // name -> bind position
  // The extent of the points, written to the contents entry at the close.
  bool anyPoint_ = false;
  double minX_ = 0, minY_ = 0, maxX_ = 0, maxY_ = 0;
};

// The GeoPackage geometry of a point: the header "GP", version 0, flags (little endian, no
// envelope), the reference system's id, then the point in well-known binary.
std::string GeoPackagePoint(const GeoPoint& point, int srsId);

}  // namespace benchlog::qt
