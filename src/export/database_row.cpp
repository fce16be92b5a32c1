#include "export/database_row.hpp"

#include <string>

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"
#include "geodesy/geographic.hpp"

namespace benchlog {
namespace {

constexpr double kFeetPerMetre = 3.28083333333333;
constexpr std::size_t kMemoLimit = 255;

using Block = RowBlock;

// Sets the field only when its trimmed text is not empty.
void SetTrim(DatabaseRow& row, const char* name, std::string_view text) {
  const std::string trimmed = Trim(text);
  if (!trimmed.empty()) row.Set(name, trimmed);
}

std::string Convergence(double radians) {
  std::string text;
  RadToDms(radians, text, kDmsBlank, 1, true, false);
  return text;
}

// Earth-centred coordinates of an observed ellipsoid height, for blocks H and A; a position west
// of 90 degrees has a negative X and gives nothing.
void SetCartesian(DatabaseRow& row, const Ellipsoid& ellipsoid, const MarkRecord& r, const MarkValues& v) {
  if (r.EllipSource != "A") return;
  double x = 0, y = 0, z = 0;
  GeodeticToCartesian(ellipsoid, v.LatRadians, v.LonRadians, Val(r.EllipHeight.View()), x, y, z);
  if (x <= 0) return;
  row.Set("X", FormatPadded(x, "#0000000.000"));
  row.Set("Y", FormatPadded(y, "#0000000.000"));
  row.Set("Z", FormatPadded(z, "#0000000.000"));
}

void SetNames(DatabaseRow& row, const frmCDT& c, Block b, const MarkRecord& r) {
  if (c.chkFbnCbn == 1) {
    if (b == Block::kHorizontal) SetTrim(row, "NET", r.Net.View());
    else row.Set("NET", r.Net.Str());
  }
  if (c.chkDesig == 1) {
    if (b == Block::kHorizontal) row.Set("DESIGNATION", Left(r.Designation.View(), 35));
    else if (b == Block::kVertical) row.Set("DESIGNATION", r.Designation.Str());
    else row.Set("DESIGNATION", std::string(r.Designation.Trimmed()));
  }
  if (c.chkPid == 1) row.Set("PID", r.Pid.Str());
  if (c.chkState == 1) row.Set("ST", r.State.Str());
  if (c.chkCounty == 1) {
    if (b == Block::kHorizontal) SetTrim(row, "COUNTY", r.County.View());
    else if (b == Block::kVertical) row.Set("COUNTY", r.County.Str());
    else row.Set("COUNTY", std::string(r.County.Trimmed()));
  }
  if (c.chkQuad == 1) {
    if (b != Block::kVertical) SetTrim(row, "USGS_QUAD", r.Quad.View());
    else if (!r.Quad.Trimmed().empty()) row.Set("USGS_QUAD", r.Quad.Str());
  }
}

void SetPosition(DatabaseRow& row, const frmCDT& c, Block b, const MarkValues& v) {
  if (c.chkLatLon == 1) {
    if (!v.LatText.empty()) row.Set("83_LATITUDE", v.LatText);
    if (!v.LonText.empty()) row.Set("83_LONGITUDE", v.LonText);
  }
  if (c.chkLatLonDeg == 1) {
    // Block H takes the signed degrees; the others read the angle again, without the
    // hemisphere's sign for the latitude and negated for a western longitude.
    row.Set("83_LAT_DEG", Format(b == Block::kHorizontal ? v.LatDeg : DegOfRad(v.LatRadians), "00.0000000000"));
    row.Set("83_LON_DEG", Format(v.LonDeg, "#000.0000000000"));
  }
}

void SetHeights(DatabaseRow& row, const frmCDT& c, Block b, const MarkRecord& r, const MarkValues& v) {
  const bool measured = r.HeightSource == "A";
  if (c.chkElevM == 1) {
    if (b == Block::kHorizontal) SetTrim(row, "88EL_M", r.OrthoHeight.View());
    else if (measured) row.Set("88EL_M", Format(v.Elevation, "##,##0.000"));
  }
  if (c.chkElevF == 1) {
    if (b == Block::kHorizontal) row.Set("88EL_FT", Format(Val(r.OrthoHeight.View()) * kFeetPerMetre, "###0.000"));
    else if (measured) row.Set("88EL_FT", Format(static_cast<double>(v.Elevation) * kFeetPerMetre, "##,##0.000"));
  }
  if (c.chkElevF == 1 || c.chkElevM == 1) row.Set("EL_SOURCE", r.HeightSource.Str());
}

void SetGeodetic(DatabaseRow& row, const frmCDT& c, Block b, const Ellipsoid& e, const MarkRecord& r,
                 const MarkValues& v) {
  if (c.chkX == 1 && b != Block::kVertical) SetCartesian(row, e, r, v);
  if (c.chkLaplace == 1) row.Set("LAPLACE", r.Laplace.Str());
  const auto stored = [&](const char* name, std::string_view text) {
    if (b == Block::kHorizontal) SetTrim(row, name, text);
    else row.Set(name, std::string(text));
  };
  if (c.chkEllipht == 1) stored("ELLIP_HT", r.EllipHeight.View());
  if (c.chkGeoidHt == 1) stored("GEOID_HT", r.GeoidHeight.View());
  if (c.chkDynaHt == 1) stored("DYNA_HT", r.DynamicHeight.View());
  if (c.chkGrav == 1) stored("GRAVITY", r.ModeledGravity.View());
  if (c.chkHorizO == 1 && b != Block::kVertical) row.Set("H_O", r.HorizOrder.Str());
  if (c.chkVertO == 1) row.Set("V_O", r.VertOrder.Str()), row.Set("V_C", r.VertClass.Str());
  if (c.chkEllipO == 1) row.Set("E_O", r.EllipOrder.Str());
  if (c.chkNRA == 1 && b != Block::kVertical) {
    row.Set("NRAN", r.NetworkN.Str());
    row.Set("NRAE", r.NetworkE.Str());
    row.Set("NRAH", r.NetworkH.Str());
  }
}

void SetStatePlane(DatabaseRow& row, const frmCDT& c, Block b, const MarkRecord& r, const MarkValues& v) {
  if (c.chkSPC != 1) return;
  const bool adjusted = r.PosSource == "A";
  if (b == Block::kHorizontal) {
    row.Set("SPC_NORTH", v.NorthText);
    row.Set("SPC_EAST", v.EastText);
  } else {
    const char* pattern = (b == Block::kVertical || adjusted) ? "#,###,###.###" : "#,###,###";
    row.Set("SPC_NORTH", Format(v.SpcNorth, pattern));
    row.Set("SPC_EAST", Format(v.SpcEast, pattern));
  }
  // The factors exist only in a table of horizontal marks.
  if (b == Block::kVertical || (b == Block::kAll && !adjusted)) return;
  if (c.chkSPCScale == 1) row.Set("SCALE", Format(v.SpcScale, "0.000000"));
  if (c.chkSPCConv == 1) row.Set("CONV", Convergence(v.SpcConvergence));
  if (c.chkSPCCGF == 1 && adjusted) row.Set("SPC_CGF", v.SpcCgfText);
}

void SetUtm(DatabaseRow& row, const frmCDT& c, Block b, const MarkRecord& r, const MarkValues& v) {
  if (c.chkUTM != 1) return;
  const bool adjusted = r.PosSource == "A";
  if (b == Block::kVertical || adjusted) {
    if (!v.UtmNorthText.empty()) row.Set("UTM_NORTH", v.UtmNorthText);
    if (!v.UtmEastText.empty()) row.Set("UTM_EAST", v.UtmEastText);
  }
  if (b == Block::kVertical || !adjusted) return;
  if (c.chkUTMScale == 1 && !v.UtmScaleText.empty()) row.Set("UTM_SCALE", v.UtmScaleText);
  if (c.chkUTMConv == 1 && !v.UtmConvText.empty()) row.Set("UTM_CONV", v.UtmConvText);
  if (c.chkutmCGF == 1) row.Set("UTM_CGF", v.UtmCgfText);
}

void SetMonument(DatabaseRow& row, const frmCDT& c, const MarkRecord& r) {
  if (c.chkMarkCode == 1) row.Set("MK_CODE", r.MarkerCode.Str());
  if (c.chkSetCode == 1) row.Set("SET_CODE", r.SettingCode.Str());
  if (c.chkStamping == 1) row.Set("STAMPING", r.Stamping.Str());
  if (c.chkStabCode == 1) row.Set("STAB", r.Stability.Str());
  if (c.chkSattelite == 1) row.Set("SAT", r.SatSuitable.Str());
  if (c.chkRecYear == 1) row.Set("RECV", Left(r.LastDate.View(), 4));
  if (c.chkCond == 1) row.Set("COND", r.Condition.Str());
  if (c.chkDescText == 1) {
    const std::string_view text = r.DescriptiveText.Trimmed();
    if (!text.empty()) row.Set("DESCRIPTIVE_TEXT", std::string(text.substr(0, kMemoLimit)));
  }
}

}  // namespace

bool BlockTakes(RowBlock block, const MarkValues& values) {
  switch (block) {
    case RowBlock::kHorizontal: return values.horizontal;
    case RowBlock::kVertical: return values.vertical;
    case RowBlock::kAll: return true;
  }
  return false;
}

DatabaseRow PointDataRow(const frmCDT& cdt, RowBlock block, const Ellipsoid& ellipsoid, const MarkRecord& record,
                         const MarkValues& values) {
  DatabaseRow row;
  SetNames(row, cdt, block, record);
  SetPosition(row, cdt, block, values);
  SetHeights(row, cdt, block, record, values);
  SetGeodetic(row, cdt, block, ellipsoid, record, values);
  SetStatePlane(row, cdt, block, record, values);
  SetUtm(row, cdt, block, record, values);
  SetMonument(row, cdt, record);
  if (!values.LatText.empty() && !values.LonText.empty()) row.point = GeoPoint{values.LonDeg, values.LatDeg};
  return row;
}

}  // namespace benchlog
