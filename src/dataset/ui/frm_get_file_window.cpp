#include "dataset/ui/frm_get_file_window.hpp"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

FrmGetFileWindow::FrmGetFileWindow(FrmGetFile& model, QWidget* parent)
    : ModelDialog(parent), model_(model), lblFolder_(new QLabel(this)), lstFiles_(new QListWidget(this)) {
  setObjectName("frmGetFile");
  lblFolder_->setObjectName("lblFolder");
  lstFiles_->setObjectName("lstFiles");
  lstFiles_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  auto* folder = new QPushButton("&Folder...", this);
  folder->setObjectName("cmdFolder");
  auto* ok = new QPushButton("OK", this);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("cmdCancel");
  connect(folder, &QPushButton::clicked, this, [this] {
    const QString chosen = QFileDialog::getExistingDirectory(this, "Folder", ToQt(model_.folder));
    if (!chosen.isEmpty()) ChangeFolder(chosen);
  });
  connect(ok, &QPushButton::clicked, this, [this] { Finish(true); });
  connect(cancel, &QPushButton::clicked, this, [this] { Finish(false); });

  auto* top = new QHBoxLayout;
  top->addWidget(lblFolder_, 1);
  top->addWidget(folder);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(lstFiles_, 1);
  layout->addLayout(buttons);
  resize(520, 420);
}

void FrmGetFileWindow::LoadFromModel() {
  setWindowTitle(ToQt(model_.caption));
  lblFolder_->setText(ToQt(model_.folder));
  lstFiles_->clear();
  for (std::size_t i = 0; i < model_.files.size(); ++i) {
    lstFiles_->addItem(ToQt(model_.files[i]));
    lstFiles_->item(static_cast<int>(i))->setSelected(model_.selected[i]);
  }
}

void FrmGetFileWindow::ChangeFolder(const QString& folder) {
  model_.SetFolder(FromQt(folder));
  LoadFromModel();
}

void FrmGetFileWindow::Finish(bool okay) {
  for (int i = 0; i < lstFiles_->count(); ++i) model_.selected[static_cast<std::size_t>(i)] = lstFiles_->item(i)->isSelected();
  if (okay) model_.cmdOK_Click();
  else model_.cmdCancel_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void FrmGetFileWindow::reject() { Finish(false); }

}  // namespace benchlog::qt

namespace benchlog {
void RegisterDatasetDialogs() { qt::RegisterDialog<FrmGetFile, qt::FrmGetFileWindow>(); }
}  // namespace benchlog
