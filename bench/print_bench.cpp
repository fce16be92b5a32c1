// print_bench [--dir FOLDER]: prints a listing of 100 pages (landscape, size 8, 62 lines a page,
// 132 characters a line) through the program's Qt printer to a PDF file, the best of three runs,
// and checks that the file holds 100 pages.
#include <QGuiApplication>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_timing.hpp"
#include "common/files.hpp"
#include "platform/qt/qt_printer.hpp"
#include "view/print_array.hpp"

namespace benchlog::bench {
namespace {

constexpr double kTargetSeconds = 5.0;
constexpr int kPages = 100;

// Listing lines of 132 characters: with a head of 7 lines, 53 body lines fill each page.
std::vector<std::string> ListingLines() {
  std::vector<std::string> lines;
  for (int n = 1; n < kPages * 53; ++n) {  // one fewer: the last page is not followed by an empty one
    std::string line = "MARK " + std::to_string(n) + " ALDER RIDGE   37 12 45.12345 N  122 05 10.12345 W   1  P";
    line.resize(132, ' ');
    lines.push_back(line);
  }
  return lines;
}

std::size_t PdfPages(const std::string& text) {
  std::size_t pages = 0;
  for (std::size_t at = text.find("/Type /Page"); at != std::string::npos; at = text.find("/Type /Page", at + 1))
    if (text.compare(at, 12, "/Type /Pages") != 0) ++pages;
  return pages;
}

int Run(const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string pdf = folder + "/listing.pdf";
  const PrintDocument document = LayOutArray(ListingLines(), "ALDER COUNTY CA VERTICAL CONTROL", "Station", 0, 132);
  const double seconds = Best(3, [&] {
    return Seconds([&] {
      qt::QtPrinter printer;
      printer.PrintToPdf(pdf);
      printer.PrintText(document);
    });
  });
  const std::size_t pages = PdfPages(ReadWholeFile(pdf));
  std::printf("%zu pages laid out, %zu pages in %s (%llu bytes)\n", document.pages.size(), pages, pdf.c_str(),
              static_cast<unsigned long long>(FileLength(pdf)));
  std::printf("100-page listing to PDF %.3f s (target under %.1f s): %s\n", seconds, kTargetSeconds,
              seconds < kTargetSeconds ? "met" : "NOT MET");
  return pages == kPages && seconds < kTargetSeconds ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  std::string folder = std::filesystem::temp_directory_path().string() + "/benchlog-bench";
  for (int i = 1; i + 1 < argc; ++i)
    if (std::string(argv[i]) == "--dir") folder = argv[i + 1];
  return benchlog::bench::Run(folder);
}
