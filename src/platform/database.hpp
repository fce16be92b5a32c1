#pragma once
// The database engine as the export needs it: a new file with one table of typed and sized text
// columns and a point geometry, rows added by field name inside one transaction, and a close that
// keeps every row added. The program's engine writes a GeoPackage (platform/qt/qt_database).
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace benchlog {

enum class ColumnType { kText, kMemo };

struct DatabaseColumn {
  std::string name;
  ColumnType type = ColumnType::kText;
  int size = 0;  // in characters
  bool operator==(const DatabaseColumn&) const = default;
};

// A position in decimal degrees, east and north positive.
struct GeoPoint {
  double longitude = 0;
  double latitude = 0;
};

// One row: the fields that are set, by name; every other column stays null. Values are kept whole
// even when they are longer than their column.
struct DatabaseRow {
  std::vector<std::pair<std::string, std::string>> fields;
  std::optional<GeoPoint> point;  // none: the geometry stays null
  void Set(const char* name, std::string value) { fields.emplace_back(name, std::move(value)); }
};

class Database {
 public:
  virtual ~Database() = default;
  // Creates the file at `path` (which must not exist) with the table `table` of `columns` in
  // their order and starts the one transaction. Throws RuntimeFailure when the file or the table
  // cannot be made; a table without columns is refused.
  virtual void Create(const std::string& path, const std::string& table, const std::vector<DatabaseColumn>& columns) = 0;
  // Adds one row. A name that is no column of the table throws RuntimeFailure.
  virtual void AddRow(const DatabaseRow& row) = 0;
  // Commits the rows added so far and closes the file. Does nothing when nothing is open.
  virtual void Close() = 0;
};

}  // namespace benchlog
