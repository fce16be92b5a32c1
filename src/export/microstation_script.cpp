#include "export/microstation_script.hpp"

#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "export/abbreviate_name.hpp"

namespace benchlog {
namespace {

constexpr std::string_view kEsc = "\x1b";

std::string Column(const std::string& label, std::size_t start, std::size_t length) {
  return Trim(Mid(label, start, length));
}

std::string XyLine(const std::string& x, const std::string& y) { return "XY=" + x + "," + y + ",0"; }
std::string XyLine(long x, long y) { return XyLine(std::to_string(x), std::to_string(y)); }

void WriteLines(LineWriter& out, std::initializer_list<std::string_view> lines) {
  for (const std::string_view line : lines) out.WriteLine(line);
}

// Which labels form which group: key column, key, symbol, symbol level, name level.
struct Group {
  std::size_t keyColumn;
  char key;
  const char* symbol;
  int symbolLevel, nameLevel;
};
constexpr Group kGroups[] = {
    {1, 'A', "C", 1, 11}, {1, 'B', "C", 2, 12}, {1, '1', "C", 3, 13}, {1, '2', "C", 4, 14},
    {1, '3', "B", 5, 15}, {3, '1', "E", 21, 31}, {3, '2', "E", 22, 32}, {3, '3', "E", 23, 33},
};

}  // namespace

std::string PlotLabel(const MarkRecord& r, const MarkValues& v, bool notRecovered, bool landmarks) {
  if ((r.Condition == "N" && !notRecovered) || (r.Category == "L" && !landmarks)) return {};
  return r.HorizOrder.Str() + " " + r.VertOrder.Str() + " " + v.NorthText + v.EastText + " " +
         std::string(r.Designation.Trimmed());
}

int ScriptTextSize(const std::string& scale) {
  if (!IsNumeric(scale)) throw TypeMismatch();
  return CInt(Val(scale) / 12.5);
}

void PlotMarkGroup(LineWriter& out, const std::vector<std::string>& labels, std::size_t keyColumn, char key,
                   int symbolLevel, int nameLevel, const char* symbol) {
  const auto member = [&](const std::string& label) { return label.size() >= keyColumn && label[keyColumn - 1] == key; };
  const auto xy = [](const std::string& label) { return XyLine(Column(label, 17, 11), Column(label, 5, 11)); };
  WriteLines(out, {"WT=3", "CO=0", "LV=" + std::to_string(symbolLevel), "FT=91", "PLACE TEXT", symbol, kEsc});
  for (const std::string& label : labels)
    if (member(label)) out.WriteLine(xy(label));
  WriteLines(out, {"PLACE LINE", "RESET", "FT=1", "LV=" + std::to_string(nameLevel), "PLACE TEXT"});
  for (const std::string& label : labels) {
    if (!member(label)) continue;
    std::string name = Mid(label, 29, 35);
    AbbreviateName(name);
    WriteLines(out, {"  " + name, kEsc, xy(label), "RESET"});
  }
  WriteLines(out, {kEsc, "PLACE LINE", "RESET"});
}

void PlotLegend(LineWriter& out, int s, long north, long east) {
  WriteLines(out, {"WT=3", "CO=0", "LV=1", "FT=91", "PLACE TEXT"});
  WriteLines(out, {"C", kEsc, XyLine(east, north), "RESET"});
  WriteLines(out, {"B", kEsc, XyLine(east, north - 2 * s), "RESET"});
  WriteLines(out, {"E", kEsc, XyLine(east, north - 4 * s)});
  WriteLines(out, {"PLACE LINE", "RESET", "FT=1", "PLACE TEXT"});
  WriteLines(out, {"A - 2 ORDER HORIZONTAL MARK", kEsc, XyLine(east + 2 * s, north), "RESET"});
  WriteLines(out, {"3 ORDER HORIZONTAL MARK", kEsc, XyLine(east + 2 * s, north - 2 * s), "RESET"});
  WriteLines(out, {"VERTICAL CONTROL MARK", kEsc, XyLine(east + 2 * s, north - 4 * s)});
  WriteLines(out, {"PLACE LINE", "RESET"});
}

MicrostationScript::MicrostationScript(const std::string& path, const std::string& scale)
    : out_(path), textSize_(0) {
  out_.WriteLine("SET PARSEALL OFF");
  textSize_ = ScriptTextSize(scale);
  WriteLines(out_, {"TX=" + std::to_string(textSize_), "CO=0", "ACTIVE TXJ LC"});
}

void MicrostationScript::WriteMark(MarkRecord&, std::string_view, MarkValues& values) {
  labels_.push_back(values.PlotLabel);
}

void MicrostationScript::Finish() {
  for (const Group& g : kGroups) PlotMarkGroup(out_, labels_, g.keyColumn, g.key, g.symbolLevel, g.nameLevel, g.symbol);
  // The legend's corner comes from working values that stay 0 in an export: just below the
  // drawing's origin, whatever the marks' coordinates.
  PlotLegend(out_, textSize_, -10L * textSize_, 0);
  out_.Close();
}

}  // namespace benchlog
