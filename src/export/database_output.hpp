#pragma once
// The database as an output of the export: a new file with the table PointData as frmCDT defines
// it, one row per mark that the chosen block takes, all in one transaction. An export that ends on
// the way keeps the rows added so far: the file is closed, not dropped.
#include <string>
#include <vector>

#include "export/database_table.hpp"
#include "export/export_output.hpp"
#include "platform/database.hpp"

namespace benchlog {

class DatabaseOutput final : public ExportOutput {
 public:
  // Deletes an old file at `path` (the caller has checked that it is not read-only) and creates
  // the database. Throws RuntimeFailure when the engine refuses, as it does a table without
  // columns.
  DatabaseOutput(Database& database, const std::string& path, const frmCDT& cdt, const Ellipsoid& ellipsoid);
  ~DatabaseOutput() override;
  void WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) override;
  void Finish() override;

 private:
  Database& database_;
  const frmCDT& cdt_;
  RowBlock block_;
  Ellipsoid ellipsoid_;
  bool open_ = false;
};

}  // namespace benchlog
