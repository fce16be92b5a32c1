#include "export/database_output.hpp"

#include "common/files.hpp"
#include "export/database_row.hpp"

namespace benchlog {

DatabaseOutput::DatabaseOutput(Database& database, const std::string& path, const frmCDT& cdt,
                               const Ellipsoid& ellipsoid)
    : database_(database), cdt_(cdt), block_(RowBlockOf(cdt)), ellipsoid_(ellipsoid) {
  DeleteFileIfExists(path);
  database_.Create(path, kPointDataTable, PointDataColumns(cdt));
  open_ = true;
}

DatabaseOutput::~DatabaseOutput() {
  if (!open_) return;
  try {
    database_.Close();  // keeps the rows added before the export ended
  } catch (...) {
  }
}

void DatabaseOutput::WriteMark(MarkRecord& record, std::string_view, MarkValues& values) {
  if (BlockTakes(block_, values)) database_.AddRow(PointDataRow(cdt_, block_, ellipsoid_, record, values));
}

void DatabaseOutput::Finish() {
  open_ = false;
  database_.Close();
}

}  // namespace benchlog
