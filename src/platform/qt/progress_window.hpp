#pragma once
// The window of dlgProcessing: it mirrors the Progress model whenever the model changes, and
// repaints at once, since long work runs on the one thread between refreshes.
#include <QDialog>

#include "platform/progress.hpp"

class QLabel;
class QProgressBar;

namespace benchlog::qt {

class ProgressWindow final : public QDialog {
 public:
  explicit ProgressWindow(Progress& model, QWidget* parent = nullptr);
  void Mirror(const Progress& model);

 private:
  QLabel* lblProcessing_;
  QLabel* lblInfo_;
  QProgressBar* Prgb_;
};

}  // namespace benchlog::qt
