#pragma once
// The table PointData of the export's database: which columns it has, in which order, with which
// type and size, as frmCDT's boxes and buttons choose them, and which block forms a mark's row.
#include <vector>

#include "export/frm_cdt.hpp"
#include "platform/database.hpp"

namespace benchlog {

inline constexpr const char* kPointDataTable = "PointData";

// The columns of the ticked boxes, in the table's order. The elevation source comes with either
// elevation; the horizontal order, the plane scale, convergence and combined factor and the UTM
// scale, convergence and combined factor only when horizontal marks are chosen (OptHoriz or
// optBoth), the plane and UTM factors only beside their coordinates. The superseded frame adds
// nothing. Every column is text of its size; "DESCRIPTIVE_TEXT" is a memo of 5000.
std::vector<DatabaseColumn> PointDataColumns(const frmCDT& cdt);

// Which marks get a row, and how their values are formed.
enum class RowBlock {
  kHorizontal,  // OptHoriz: marks that are horizontal control
  kVertical,    // Optvert: marks that are vertical control
  kAll,         // optBoth: every Description
};
RowBlock RowBlockOf(const frmCDT& cdt);

}  // namespace benchlog
