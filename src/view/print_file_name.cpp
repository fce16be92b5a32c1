#include "view/print_file_name.hpp"

#include "common/line_input.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "view/print_array.hpp"

namespace benchlog {
namespace {

constexpr int kBodyLinesPerPage = 55;
const std::string kIndent(8, ' ');

}  // namespace

PrintDocument LayOutFile(const std::vector<std::string>& fileLines, const std::string& header) {
  if (fileLines.size() < 2) throw RuntimeFailure(62, "Input past end of file");
  PrintDocument doc;
  doc.fontSize = 8;
  doc.orientation = PageOrientation::Landscape;
  doc.linesPerPage = 11 + kBodyLinesPerPage;
  doc.pageWidth = 140;
  const long lead = 70 - static_cast<long>(RoundHalfEven(static_cast<double>(header.size()) / 2));
  const std::string title = Space(static_cast<std::size_t>(lead > 0 ? lead : 0)) + header;
  const std::vector<std::string> head = {"", "", "", "", "", "", "", title, "", kIndent + fileLines[0], ""};

  doc.pages.push_back(head);
  int count = 0;
  for (std::size_t i = 2; i < fileLines.size(); ++i) {
    doc.pages.back().push_back(kIndent + fileLines[i]);
    if (++count == kBodyLinesPerPage) {
      doc.pages.push_back(head);
      count = 0;
    }
  }
  return doc;
}

void PrintFileName(Platform& platform, const std::string& fileName, const std::string& header) {
  ChoosePrinterOrCancel(platform);
  platform.dlgProcessing.lblProcessing = "Printing " + fileName;
  platform.dlgProcessing.lblInfo = "Please wait...";
  platform.dlgProcessing.Show();
  platform.ui.DoEvents();

  std::vector<std::string> lines;
  LineReader reader(fileName);
  for (std::string line; reader.ReadLine(line);) lines.push_back(line);
  const PrintDocument doc = LayOutFile(lines, header);
  PlatformPrinter(platform).PrintText(doc);
  platform.dlgProcessing.Hide();
  platform.ui.MsgBox("Printing complete");
}

}  // namespace benchlog
