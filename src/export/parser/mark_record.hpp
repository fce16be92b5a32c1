#pragma once
// MarkRecord: the working record of one mark that the export fills from a Description
// (ParseDescription) and writes its listings, database rows and script lines from. Every field is
// a fixed-width, left-justified, blank-padded text (FixedText): storing cuts or pads to the
// field's width, a cleared field is blank. Widths are in characters.
//
// Fields are read by name in code (record.Latitude.View(), record.HorizOrder == "A"), or by their
// name as text through FieldText() where a caller picks fields at run time.
#include <optional>
#include <string_view>

#include "export/parser/fixed_text.hpp"

namespace benchlog {

struct MarkRecord {
  FixedText<1> RecordKind;       // "R" after parsing
  FixedText<4> Serial;           // sequence number in the export, "0000"
  FixedText<6> Pid;              // value of the "PID" line
  FixedText<1> Condition;        // at the last recovery: "G", "P", "S", "N", "O" or blank
  FixedText<50> Designation;     // name of the mark
  FixedText<50> Stamping;        // text stamped on the mark
  FixedText<35> Quad;            // USGS quad name
  FixedText<4> QuadDate;         // the quad's date
  FixedText<1> SatSuitable;      // "Y", "N" or blank
  FixedText<8> SatDate;          // date of the satellite report, yyyymmdd
  FixedText<2> State;            // state abbreviation
  FixedText<25> County;          // county name
  FixedText<1> Category;         // monument category; "L" is a landmark
  FixedText<2> MarkerCode;       // marker code
  FixedText<2> SettingCode;      // setting code, two digits
  FixedText<32> SettingText;     // text of a special setting
  FixedText<1> Stability;        // stability class
  FixedText<1> Magnetic;         // magnetic property
  FixedText<1> ProjectionKind;   // "P" projecting, "R" recessed or flush
  FixedText<4> ProjectionAmount; // amount of projection or recess
  FixedText<2> ProjectionUnit;   // "FT" or "CM"
  FixedText<6> Logo;             // logo of the setting agency
  FixedText<6> FirstAgency;      // who first observed or monumented the mark
  FixedText<8> FirstDate;        // when, as the history line writes it
  FixedText<6> LastAgency;       // last recovery's agency
  FixedText<8> LastDate;         // last recovery's date as written; the first 4 are the year
  FixedText<3> LastReporter;     // initials of the last note that matched its history row
  FixedText<4> CorsId;           // CORS station identifier
  FixedText<6> DatumTag;         // datum tag of the position, "1986", "NSRS20"
  FixedText<2> HorizDatum;       // "83" when a position line was read
  FixedText<12> Latitude;        // DDMMSS.SSSSS, blanks for absent decimals
  FixedText<1> LatHemi;          // hemisphere letter
  FixedText<13> Longitude;       // DDDMMSS.SSSSS
  FixedText<1> LonHemi;          // hemisphere letter
  FixedText<1> PosSource;        // "A" adjusted, "O" hand-held, "S" anything else
  FixedText<8> AdjDate;          // horizontal adjustment's date, yyyymmdd
  FixedText<6> AdjAgency;        // horizontal adjustment's agency code
  FixedText<1> HorizOrder;       // "A", "B", "0" to "4" or blank
  FixedText<1> HorizType;        // "G" GPS, "V" VLBI, "X", "W" hand-held, "F", "E", "I" marker
  FixedText<1> NoHorizCheck;     // "N" without a horizontal observational check
  FixedText<10> OrthoHeight;     // orthometric height in metres, trimmed text
  FixedText<1> HeightSource;     // source letter of the height line
  FixedText<2> VertDatum;        // "29", "88", "AS", "PR", "GU", "LT"
  FixedText<1> VertOrder;        // "1" to "4"
  FixedText<1> VertClass;        // "0", "1", "2", "?"
  FixedText<1> HeightMethod;     // "N", "G", "T" or blank
  FixedText<8> VertAdjDate;      // vertical adjustment's date, yyyymmdd
  FixedText<6> VertAdjAgency;    // vertical adjustment's agency code
  FixedText<1> NoVertCheck;      // "N" without a vertical observational check
  FixedText<10> EllipHeight;     // ellipsoid height, metres
  FixedText<8> EllipDate;        // its observation date, yyyymmdd
  FixedText<1> EllipSource;      // "A" for an observed height
  FixedText<1> EllipMethod;      // "G" for an observed height
  FixedText<2> EllipDatum;       // the two characters the ellipsoid height is referenced to
  FixedText<1> EllipOrder;       // as VertOrder
  FixedText<1> EllipClass;       // as VertClass, without "?"
  FixedText<10> GeoidHeight;     // metres
  FixedText<1> GeoidSource;      // "A"
  FixedText<4> GeoidModel;       // "EG96", or the model year's two digits and two blanks
  FixedText<6> Laplace;          // Laplace correction, seconds
  FixedText<2> DeflectionModel;  // year digits of the deflection model
  FixedText<8> DynamicHeight;    // metres
  FixedText<8> ModeledGravity;   // mgal, without thousands commas
  FixedText<5> SpcZone1;         // labels of the first five distinct state plane lines
  FixedText<5> SpcZone2;
  FixedText<5> SpcZone3;
  FixedText<5> SpcZone4;
  FixedText<5> SpcZone5;
  FixedText<5> Net;              // one letter per network class line
  FixedText<1> Superseded;       // "Y"
  FixedText<1> SpecialStatus;    // "Y"
  FixedText<4> LocalN;           // local accuracy, cm
  FixedText<4> LocalE;
  FixedText<4> LocalH;
  FixedText<4> NetworkN;         // network accuracy, cm
  FixedText<4> NetworkE;
  FixedText<4> NetworkH;
  FixedText<9> Epoch;            // epoch date
  FixedText<4900> DescriptiveText;  // the last 4900 characters of the descriptive text
  FixedText<900> HistoryTable;   // history rows of 18 characters, at most 50
  FixedText<1344> BoxScore;      // the last box score row read
};

// Width of a history row: date 8, condition letter 1, agency 6, reporter's initials 3.
inline constexpr std::size_t kHistoryRowWidth = 18;
inline constexpr std::size_t kHistoryRowLimit = 50;

// Calls visit(name, field) for every field of the record, in the record's order. The one list of
// the fields by name: FieldText, ClearMarkRecord and the tests go through it.
template <typename Record, typename Visitor>
void VisitFields(Record& r, Visitor&& visit) {
  visit("RecordKind", r.RecordKind);
  visit("Serial", r.Serial);
  visit("Pid", r.Pid);
  visit("Condition", r.Condition);
  visit("Designation", r.Designation);
  visit("Stamping", r.Stamping);
  visit("Quad", r.Quad);
  visit("QuadDate", r.QuadDate);
  visit("SatSuitable", r.SatSuitable);
  visit("SatDate", r.SatDate);
  visit("State", r.State);
  visit("County", r.County);
  visit("Category", r.Category);
  visit("MarkerCode", r.MarkerCode);
  visit("SettingCode", r.SettingCode);
  visit("SettingText", r.SettingText);
  visit("Stability", r.Stability);
  visit("Magnetic", r.Magnetic);
  visit("ProjectionKind", r.ProjectionKind);
  visit("ProjectionAmount", r.ProjectionAmount);
  visit("ProjectionUnit", r.ProjectionUnit);
  visit("Logo", r.Logo);
  visit("FirstAgency", r.FirstAgency);
  visit("FirstDate", r.FirstDate);
  visit("LastAgency", r.LastAgency);
  visit("LastDate", r.LastDate);
  visit("LastReporter", r.LastReporter);
  visit("CorsId", r.CorsId);
  visit("DatumTag", r.DatumTag);
  visit("HorizDatum", r.HorizDatum);
  visit("Latitude", r.Latitude);
  visit("LatHemi", r.LatHemi);
  visit("Longitude", r.Longitude);
  visit("LonHemi", r.LonHemi);
  visit("PosSource", r.PosSource);
  visit("AdjDate", r.AdjDate);
  visit("AdjAgency", r.AdjAgency);
  visit("HorizOrder", r.HorizOrder);
  visit("HorizType", r.HorizType);
  visit("NoHorizCheck", r.NoHorizCheck);
  visit("OrthoHeight", r.OrthoHeight);
  visit("HeightSource", r.HeightSource);
  visit("VertDatum", r.VertDatum);
  visit("VertOrder", r.VertOrder);
  visit("VertClass", r.VertClass);
  visit("HeightMethod", r.HeightMethod);
  visit("VertAdjDate", r.VertAdjDate);
  visit("VertAdjAgency", r.VertAdjAgency);
  visit("NoVertCheck", r.NoVertCheck);
  visit("EllipHeight", r.EllipHeight);
  visit("EllipDate", r.EllipDate);
  visit("EllipSource", r.EllipSource);
  visit("EllipMethod", r.EllipMethod);
  visit("EllipDatum", r.EllipDatum);
  visit("EllipOrder", r.EllipOrder);
  visit("EllipClass", r.EllipClass);
  visit("GeoidHeight", r.GeoidHeight);
  visit("GeoidSource", r.GeoidSource);
  visit("GeoidModel", r.GeoidModel);
  visit("Laplace", r.Laplace);
  visit("DeflectionModel", r.DeflectionModel);
  visit("DynamicHeight", r.DynamicHeight);
  visit("ModeledGravity", r.ModeledGravity);
  visit("SpcZone1", r.SpcZone1);
  visit("SpcZone2", r.SpcZone2);
  visit("SpcZone3", r.SpcZone3);
  visit("SpcZone4", r.SpcZone4);
  visit("SpcZone5", r.SpcZone5);
  visit("Net", r.Net);
  visit("Superseded", r.Superseded);
  visit("SpecialStatus", r.SpecialStatus);
  visit("LocalN", r.LocalN);
  visit("LocalE", r.LocalE);
  visit("LocalH", r.LocalH);
  visit("NetworkN", r.NetworkN);
  visit("NetworkE", r.NetworkE);
  visit("NetworkH", r.NetworkH);
  visit("Epoch", r.Epoch);
  visit("DescriptiveText", r.DescriptiveText);
  visit("HistoryTable", r.HistoryTable);
  visit("BoxScore", r.BoxScore);
}

// Blanks every field.
void ClearMarkRecord(MarkRecord& record);

// The whole text of the field called `name` (as in the structure, e.g. "Latitude"), or nothing
// for an unknown name. The view lives as long as the record.
std::optional<std::string_view> FieldText(const MarkRecord& record, std::string_view name);

// Horizontal control: a horizontal order other than "4", and no hand-held position ("W", "X").
bool HasHorizontalControl(const MarkRecord& record);
// Vertical control: any vertical order.
bool HasVerticalControl(const MarkRecord& record);

}  // namespace benchlog
