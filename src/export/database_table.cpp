#include "export/database_table.hpp"

namespace benchlog {
namespace {

void Add(std::vector<DatabaseColumn>& columns, std::initializer_list<const char*> names, int size) {
  for (const char* name : names) columns.push_back({name, ColumnType::kText, size});
}

}  // namespace

RowBlock RowBlockOf(const frmCDT& cdt) {
  if (cdt.Optvert) return RowBlock::kVertical;
  if (cdt.optBoth) return RowBlock::kAll;
  return RowBlock::kHorizontal;
}

std::vector<DatabaseColumn> PointDataColumns(const frmCDT& c) {
  const bool horizontal = c.OptHoriz || c.optBoth;
  std::vector<DatabaseColumn> t;
  if (c.chkFbnCbn == 1) Add(t, {"NET"}, 8);
  if (c.chkDesig == 1) Add(t, {"DESIGNATION"}, 40);
  if (c.chkPid == 1) Add(t, {"PID"}, 6);
  if (c.chkState == 1) Add(t, {"ST"}, 2);
  if (c.chkCounty == 1) Add(t, {"COUNTY"}, 20);
  if (c.chkQuad == 1) Add(t, {"USGS_QUAD"}, 35);
  if (c.chkLatLon == 1) Add(t, {"83_LATITUDE"}, 14), Add(t, {"83_LONGITUDE"}, 15);
  if (c.chkLatLonDeg == 1) Add(t, {"83_LAT_DEG"}, 13), Add(t, {"83_LON_DEG"}, 15);
  if (c.chkElevM == 1) Add(t, {"88EL_M"}, 8);
  if (c.chkElevF == 1) Add(t, {"88EL_FT"}, 9);
  if (c.chkElevF == 1 || c.chkElevM == 1) Add(t, {"EL_SOURCE"}, 8);
  if (c.chkX == 1) Add(t, {"X", "Y", "Z"}, 14);
  if (c.chkLaplace == 1) Add(t, {"LAPLACE"}, 9);
  if (c.chkEllipht == 1) Add(t, {"ELLIP_HT"}, 10);
  if (c.chkGeoidHt == 1) Add(t, {"GEOID_HT"}, 10);
  if (c.chkDynaHt == 1) Add(t, {"DYNA_HT"}, 9);
  if (c.chkGrav == 1) Add(t, {"GRAVITY"}, 9);
  if (c.chkHorizO == 1 && horizontal) Add(t, {"H_O"}, 2);
  if (c.chkVertO == 1) Add(t, {"V_O", "V_C"}, 1);
  if (c.chkEllipO == 1) Add(t, {"E_O"}, 1);
  if (c.chkNRA == 1) Add(t, {"NRAN", "NRAE", "NRAH"}, 4);
  if (c.chkSPC == 1) Add(t, {"SPC_NORTH", "SPC_EAST"}, 13);
  const bool spcFactors = c.chkSPC == 1 && horizontal;
  if (c.chkSPCScale == 1 && spcFactors) Add(t, {"SCALE"}, 10);
  if (c.chkSPCConv == 1 && spcFactors) Add(t, {"CONV"}, 10);
  if (c.chkSPCCGF == 1 && spcFactors) Add(t, {"SPC_CGF"}, 10);
  if (c.chkUTM == 1) Add(t, {"UTM_NORTH", "UTM_EAST"}, 14);
  const bool utmFactors = c.chkUTM == 1 && horizontal;
  if (c.chkUTMScale == 1 && utmFactors) Add(t, {"UTM_SCALE"}, 10);
  if (c.chkUTMConv == 1 && utmFactors) Add(t, {"UTM_CONV"}, 11);
  if (c.chkutmCGF == 1 && utmFactors) Add(t, {"UTM_CGF"}, 10);
  if (c.chkMarkCode == 1) Add(t, {"MK_CODE"}, 2);
  if (c.chkSetCode == 1) Add(t, {"SET_CODE"}, 2);
  if (c.chkStamping == 1) Add(t, {"STAMPING"}, 50);
  if (c.chkStabCode == 1) Add(t, {"STAB"}, 1);
  if (c.chkSattelite == 1) Add(t, {"SAT"}, 1);
  if (c.chkRecYear == 1) Add(t, {"RECV"}, 4);
  if (c.chkCond == 1) Add(t, {"COND"}, 1);
  if (c.chkDescText == 1) t.push_back({"DESCRIPTIVE_TEXT", ColumnType::kMemo, 5000});
  return t;
}

}  // namespace benchlog
