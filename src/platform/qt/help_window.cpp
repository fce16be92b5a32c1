#include "platform/qt/help_window.hpp"

#include <QFileInfo>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

#include "platform/qt/screen_fit.hpp"

namespace benchlog::qt {

HelpWindow::HelpWindow(QWidget* parent) : QMainWindow(parent), browser_(new QTextBrowser(this)) {
  setObjectName("frmHelp");
  setWindowTitle("Benchlog Help");
  browser_->setOpenExternalLinks(true);
  setCentralWidget(browser_);
  auto* bar = addToolBar("Navigation");
  bar->addAction("Back", browser_, &QTextBrowser::backward);
  bar->addAction("Forward", browser_, &QTextBrowser::forward);
  bar->addAction("Contents", browser_, &QTextBrowser::home);
  PlaceOnScreen(this, QRect(QPoint(80, 60), QSize(760, 640)));
}

void HelpWindow::ShowPage(const QString& path) {
  if (QFileInfo::exists(path)) {
    browser_->setSource(QUrl::fromLocalFile(path));
  } else {
    browser_->setPlainText("The manual was not found: " + path);
  }
  show();
  raise();
  activateWindow();
}

}  // namespace benchlog::qt
