#pragma once
// The Street Atlas file ("_sa6.txt"): comma-separated points for import as map symbols, up to two
// lines a mark, one from its vertical and one from its horizontal order, in the order of the
// export, with no heading. The listing flags play no part: a hand-held position gets no
// horizontal line, but its blank vertical order gives one.
#include <optional>
#include <string>

#include "common/line_writer.hpp"
#include "export/export_output.hpp"

namespace benchlog {

// The tails (",symbol,1,colour") of the mark's vertical and horizontal lines; none where the mark
// gets no line. A mark reported not recovered gets colour 0 when `notRecovered` is kept, else no
// line.
std::optional<std::string> VerticalTail(const MarkRecord& record, bool notRecovered);
std::optional<std::string> HorizontalTail(const MarkRecord& record, bool notRecovered);

class StreetAtlasFile final : public ExportOutput {
 public:
  StreetAtlasFile(const std::string& path, bool notRecovered) : out_(path), notRecovered_(notRecovered) {}
  // Hemisphere and latitude text, hemisphere and longitude text, the trimmed name (already cut
  // to 30 characters when a listing took the mark), the tail; no quoting.
  void WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) override;
  void Finish() override { out_.Close(); }

 private:
  LineWriter out_;
  bool notRecovered_;
};

}  // namespace benchlog
