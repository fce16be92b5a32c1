#pragma once
// The printer through Qt: the standard print dialog (which also prints to a PDF file), a print
// preview before each document, and the page set-up (orientation) the document asks for. Text is
// set in Liberation Mono, metric-compatible with Courier New, so the fixed line counts fill the page.
#include <QPrinter>
#include <functional>
#include <memory>
#include <string>

#include "platform/printer.hpp"

class QWidget;

namespace benchlog::qt {

class QtPrinter final : public Printer {
 public:
  explicit QtPrinter(QWidget* owner = nullptr);
  ~QtPrinter() override;

  // Prints every document to this PDF file with no dialog and no preview.
  void PrintToPdf(const std::string& path);

  bool ChoosePrinter(const std::string& title) override;
  void PrintText(const PrintDocument& document) override;
  void PrintPicture(const std::string& path) override;

  // Paints the pages of a document on a printer that is set up for it.
  static void PaintText(QPrinter& printer, const PrintDocument& document);

 private:
  void Print(const std::function<void(QPrinter&)>& paint);

  QWidget* owner_;
  std::unique_ptr<QPrinter> printer_;
  bool pdfOnly_ = false;
};

}  // namespace benchlog::qt
