#include "view/print_array.hpp"

#include <algorithm>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

// Blanks that centre `text` on a line of `pageWidth` characters, behind the left margin.
std::string Centred(const std::string& text, int pageWidth, int leftMargin) {
  const int lead = (pageWidth - static_cast<int>(text.size())) / 2 + leftMargin;
  return Space(static_cast<std::size_t>(std::max(lead, 0))) + text;
}

class ArrayPager {
 public:
  ArrayPager(PrintDocument& document, const std::string& title, const std::string& colHeader, int leftMargin)
      : doc_(document), title_(title), colHeader_(colHeader), margin_(leftMargin) {
    headLines_ = 7 - (title.empty() ? 1 : 0) - (colHeader.empty() ? 1 : 0);
    doc_.pages.emplace_back();
    PrintHead(true);
  }

  void FormFeed() {
    doc_.pages.emplace_back();
    ++page_;
    PrintHead(false);
  }

  void Body(const std::string& line) {
    Print(Space(static_cast<std::size_t>(margin_)) + line);
    if (count_ >= Limit()) {
      ClosePage();
      doc_.pages.emplace_back();
      ++page_;
      count_ = 0;
      PrintHead(false);
    }
  }

  void Finish() {
    while (count_ < Limit()) Print("");
    ClosePage();
  }

 private:
  int Limit() const { return doc_.linesPerPage - 2; }

  void Print(const std::string& line) {
    doc_.pages.back().push_back(line);
    ++count_;
  }

  // The title stands on the first page alone; every head has its column header on line 6.
  void PrintHead(bool first) {
    for (int n = 1; n <= headLines_; ++n) {
      if (n == 4 && first && !title_.empty()) Print(Centred(title_, doc_.pageWidth, margin_));
      else if (n == 6 && !colHeader_.empty()) Print(Space(static_cast<std::size_t>(margin_)) + colHeader_);
      else Print("");
    }
  }

  void ClosePage() {
    doc_.pages.back().push_back("");
    doc_.pages.back().push_back(Centred("Page " + std::to_string(page_), doc_.pageWidth, margin_));
  }

  PrintDocument& doc_;
  const std::string& title_;
  const std::string& colHeader_;
  int margin_;
  int headLines_ = 7;
  int count_ = 0;
  int page_ = 1;
};

}  // namespace

PrintDocument PageSetupForWidth(int lineWidth) {
  PrintDocument doc;
  if (lineWidth <= 80) {
    doc.orientation = PageOrientation::Portrait, doc.fontSize = 10, doc.linesPerPage = 66, doc.pageWidth = 80;
  } else if (lineWidth <= 120) {
    doc.orientation = PageOrientation::Landscape, doc.fontSize = 10, doc.linesPerPage = 49, doc.pageWidth = 120;
  } else {
    doc.orientation = PageOrientation::Landscape, doc.fontSize = 8, doc.linesPerPage = 62, doc.pageWidth = 132;
  }
  return doc;
}

PrintDocument LayOutArray(const std::vector<std::string>& lines, const std::string& title,
                          const std::string& colHeader, int leftMargin, int lineWidth) {
  PrintDocument doc = PageSetupForWidth(lineWidth);
  ArrayPager pager(doc, title, colHeader, leftMargin);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    // A page break before a repeated agency header line is asked for by comparing the first 10
    // characters with the whole 28-character header, which never holds; no such break is made.
    if (!lines[i].empty() && lines[i][0] == '\f') pager.FormFeed();
    else if (i == 0 && IsBlank(lines[i])) continue;
    else pager.Body(lines[i]);
  }
  pager.Finish();
  return doc;
}

Printer& PlatformPrinter(Platform& platform) {
  if (!platform.printer) throw RuntimeFailure(482, "Printer error");
  return *platform.printer;
}

void ChoosePrinterOrCancel(Platform& platform) {
  if (!PlatformPrinter(platform).ChoosePrinter("Select Printer")) throw CancelError();
}

void PrintArray(Platform& platform, const std::vector<std::string>& lines, const std::string& title,
                const std::string& colHeader, int leftMargin, int lineWidth) {
  PlatformPrinter(platform).PrintText(LayOutArray(lines, title, colHeader, leftMargin, lineWidth));
  platform.ui.MsgBox("Printing complete");
}

}  // namespace benchlog
