#include "platform/qt/qt_printer.hpp"

#include <QFontMetricsF>
#include <QImageReader>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <algorithm>

#include "common/runtime_failure.hpp"
#include "platform/page_geometry.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

QPageLayout::Orientation QtOrientation(PageOrientation orientation) {
  return orientation == PageOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

RuntimeFailure PrinterError() { return RuntimeFailure(482, "Printer error"); }

// The face of the document: Courier New's metric twin where the system has it.
QFont PrintFont(const PrintDocument& document) {
  QFont font;
  font.setFamilies({"Liberation Mono", qt::ToQt(document.fontName), "Courier", "monospace"});
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSizeF(document.fontSize);
  return font;
}

}  // namespace

QtPrinter::QtPrinter(QWidget* owner) : owner_(owner), printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {}
QtPrinter::~QtPrinter() = default;

void QtPrinter::PrintToPdf(const std::string& path) {
  printer_->setOutputFormat(QPrinter::PdfFormat);
  printer_->setOutputFileName(qt::ToQt(path));
  pdfOnly_ = true;
}

bool QtPrinter::ChoosePrinter(const std::string& title) {
  if (pdfOnly_) return true;
  QPrintDialog dialog(printer_.get(), owner_);
  dialog.setWindowTitle(qt::ToQt(title));
  return dialog.exec() == QDialog::Accepted;
}

void QtPrinter::Print(const std::function<void(QPrinter&)>& paint) {
  if (pdfOnly_) {
    paint(*printer_);
    return;
  }
  QPrintPreviewDialog preview(printer_.get(), owner_);
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&paint](QPrinter* p) { paint(*p); });
  preview.exec();
}

namespace {
// The page set-up of a document; set before a preview opens, so the preview shows the pages as printed.
void SetUp(QPrinter& printer, QPageLayout::Orientation orientation) {
  printer.setFullPage(true);
  if (printer.pageLayout().orientation() != orientation) printer.setPageOrientation(orientation);
}
}  // namespace

void QtPrinter::PaintText(QPrinter& printer, const PrintDocument& document) {
  SetUp(printer, QtOrientation(document.orientation));
  QPainter painter;
  if (!painter.begin(&printer)) throw PrinterError();
  const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Point).size();
  const PageGeometry geometry =
      LayOutPage(PaperSize{std::min(paper.width(), paper.height()), std::max(paper.width(), paper.height())}, document);
  const double dots = printer.resolution() / 72.0;  // device units per point
  const QFont font = PrintFont(document);
  painter.setFont(font);
  const double ascent = QFontMetricsF(font, &printer).ascent();
  for (std::size_t page = 0; page < document.pages.size(); ++page) {
    if (page > 0 && !printer.newPage()) throw PrinterError();
    const auto& lines = document.pages[page];
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (lines[i].empty()) continue;
      const double top = (kPrintMargin + static_cast<double>(i) * geometry.lineHeight) * dots;
      painter.drawText(QPointF(kPrintMargin * dots, top + ascent), qt::ToQt(lines[i]));
    }
  }
  painter.end();
}

void QtPrinter::PrintText(const PrintDocument& document) {
  SetUp(*printer_, QtOrientation(document.orientation));
  Print([&document](QPrinter& printer) { PaintText(printer, document); });
}

void QtPrinter::PrintPicture(const std::string& path) {
  QImageReader reader(qt::ToQt(path));
  const QImage picture = reader.read();
  if (picture.isNull()) throw RuntimeFailure(481, "Invalid picture: " + path);
  SetUp(*printer_, QPageLayout::Landscape);
  Print([&picture](QPrinter& printer) {
    SetUp(printer, QPageLayout::Landscape);
    QPainter painter;
    if (!painter.begin(&printer)) throw PrinterError();
    // The picture's natural size is its size on a 96-dpi screen; what the page cannot hold is cut off.
    const double scale = printer.resolution() / 96.0;
    painter.drawImage(QRectF(0, 0, picture.width() * scale, picture.height() * scale), picture);
    painter.end();
  });
}

}  // namespace benchlog::qt
