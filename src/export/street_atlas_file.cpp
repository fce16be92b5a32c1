#include "export/street_atlas_file.hpp"

namespace benchlog {
namespace {

// `colour` for a mark in good standing; 0, or no line, for one reported not recovered.
std::optional<std::string> Tail(const char* symbol, const char* colour, const MarkRecord& r, bool notRecovered) {
  if (r.Condition == "N") {
    if (!notRecovered) return std::nullopt;
    colour = "0";
  }
  return std::string(",") + symbol + ",1," + colour;
}

}  // namespace

std::optional<std::string> VerticalTail(const MarkRecord& r, bool notRecovered) {
  const char order = r.VertOrder.View()[0];
  if (order == '1') return Tail("46", "2", r, notRecovered);
  if (order == '2') return Tail("46", "1", r, notRecovered);
  if (order == '3' || order == ' ') return Tail("46", "4", r, notRecovered);
  return std::nullopt;
}

std::optional<std::string> HorizontalTail(const MarkRecord& r, bool notRecovered) {
  switch (r.HorizOrder.View()[0]) {
    case 'A': case 'B': return Tail("47", "2", r, notRecovered);
    case '0': case '1': return Tail("51", "2", r, notRecovered);
    case '2': return Tail("51", "1", r, notRecovered);
    case '3': return Tail("51", "4", r, notRecovered);
    default: return std::nullopt;
  }
}

void StreetAtlasFile::WriteMark(MarkRecord& r, std::string_view, MarkValues& v) {
  const std::string point =
      r.LatHemi.Str() + v.LatText + "," + r.LonHemi.Str() + v.LonText + "," + std::string(r.Designation.Trimmed());
  for (const auto& tail : {VerticalTail(r, notRecovered_), HorizontalTail(r, notRecovered_)})
    if (tail) out_.WriteLine(point + *tail);
}

}  // namespace benchlog
