#pragma once
// The Microstation script (".msf"): key-in commands that place a symbol and an abbreviated name
// per mark at its plane coordinates, the marks grouped on levels by their orders, and a legend.
// Lines end in CR LF; the ESC character on a line of its own ends a run of text placement.
#include <string>
#include <vector>

#include "common/line_writer.hpp"
#include "export/export_output.hpp"

namespace benchlog {

// The plot label of a mark: column 1 the horizontal order, 3 the vertical order, 5 to 16 the
// north text, 17 to 28 the east text, from 30 on the trimmed name. Empty for a mark reported not
// recovered unless `notRecovered` is kept, and for a landmark unless `landmarks` are kept.
std::string PlotLabel(const MarkRecord& record, const MarkValues& values, bool notRecovered, bool landmarks);

// The text size of a plotting scale: the scale divided by 12.5, rounded to an integer with halves
// to the even neighbour ("5280" gives 422). Throws TypeMismatch for a text that is no number and
// Overflow beyond the 16-bit range.
int ScriptTextSize(const std::string& scale);

// Writes the mark group of `labels` whose character at `keyColumn` is `key`: the symbols on
// `symbolLevel`, then the abbreviated names on `nameLevel`.
void PlotMarkGroup(LineWriter& out, const std::vector<std::string>& labels, std::size_t keyColumn, char key,
                   int symbolLevel, int nameLevel, const char* symbol);

// The legend of the three symbols, its first symbol at (east, north).
void PlotLegend(LineWriter& out, int textSize, long north, long east);

class MicrostationScript final : public ExportOutput {
 public:
  // Opens the script and writes its head. Throws as ScriptTextSize for a scale that is no number,
  // leaving any old script as it was.
  MicrostationScript(const std::string& path, const std::string& scale);
  // Keeps the mark's plot label (values.PlotLabel) for the groups.
  void WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) override;
  // The eight mark groups and the legend.
  void Finish() override;

 private:
  LineWriter out_;
  int textSize_;
  std::vector<std::string> labels_;
};

}  // namespace benchlog
