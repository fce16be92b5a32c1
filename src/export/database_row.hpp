#pragma once
// The row of one mark in the table PointData. The three blocks (horizontal, vertical, all
// control) form the same columns in different ways, column by column, and those differences are
// kept: a vertical row keeps its stored texts with their blanks, "88EL_M" of a vertical or full
// row is the elevation as the vertical listing left it (feet when that listing was in feet), and
// "X", "Y", "Z" stay null in a vertical row.
#include "export/database_table.hpp"
#include "export/mark_values.hpp"
#include "export/parser/mark_record.hpp"
#include "platform/database.hpp"

namespace benchlog {

// The fields of the mark's row for the ticked boxes (only columns the table has), and its point
// when the mark has a position. The record is read as the listings left it (the name cut to 30
// characters when a listing line was written).
DatabaseRow PointDataRow(const frmCDT& cdt, RowBlock block, const Ellipsoid& ellipsoid, const MarkRecord& record,
                         const MarkValues& values);

// Whether the block writes a row for the mark: H needs horizontal control, V vertical control,
// A takes every Description.
bool BlockTakes(RowBlock block, const MarkValues& values);

}  // namespace benchlog
