#pragma once
// The help window: the program's manual, HTML pages beside the program, with their links.
#include <QMainWindow>

class QTextBrowser;

namespace benchlog::qt {

class HelpWindow final : public QMainWindow {
 public:
  explicit HelpWindow(QWidget* parent = nullptr);
  void ShowPage(const QString& path);

 private:
  QTextBrowser* browser_;
};

}  // namespace benchlog::qt
