// The Qt platform services offscreen: where and how settings are stored, the file filters, colour
// numbers, the progress window and the single-instance lock. The code page's conversions are
// checked through the viewer's text (frm_view_test.cpp).
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QProgressBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/qt/progress_window.hpp"
#include "platform/qt/qt_settings_store.hpp"
#include "platform/qt/qt_ui.hpp"
#include "platform/qt/single_instance.hpp"
#include "platform/qt/text_codec.hpp"

using namespace benchlog;

class PlatformQtTest : public QObject {
  Q_OBJECT
  QTemporaryDir config_;

 private slots:
  void initTestCase() {
    QVERIFY(config_.isValid());
    qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
  }

  void settingsLiveInOneIniFileWithAGroupPerSection() {
    qt::QtSettingsStore store;
    QCOMPARE(store.FileName(), config_.path() + "/Benchlog/Benchlog.conf");
    QCOMPARE(store.GetSetting("frmMain", "Top", "dflt"), std::string("dflt"));
    store.SaveSetting("frmMain", "Top", "1500");
    store.SaveSetting("MRUList", "Name1", "/home/u/data/caf\xE9.dat");  // a Windows-1252 byte
    QCOMPARE(store.GetSetting("frmMain", "Top", "dflt"), std::string("1500"));
    QCOMPARE(store.GetSetting("MRUList", "Name1", ""), std::string("/home/u/data/caf\xE9.dat"));

    QFile file(store.FileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY2(text.contains("[frmMain]\nTop=1500"), qPrintable(text));
    QVERIFY2(text.contains("[MRUList]"), qPrintable(text));

    // A value seeded by hand is read back.
    QSettings seed(store.FileName(), QSettings::IniFormat);
    seed.setValue("Settings/LastDatFullName", "/srv/marks.dat");
    seed.sync();
    qt::QtSettingsStore reread;
    QCOMPARE(reread.GetSetting("Settings", "LastDatFullName", ""), std::string("/srv/marks.dat"));
  }

  void classicFiltersBecomeQtNameFilters() {
    QCOMPARE(qt::QtNameFilters("Data Files (*.dat)|*.dat"), QStringList{"Data Files (*.dat)"});
    QCOMPARE(qt::QtNameFilters("County Files (County.*)|County.*"), QStringList{"County Files (County.*)"});
    QCOMPARE(qt::QtNameFilters("Text (*.txt;*.rpt)|*.txt;*.rpt|All Files|*.*"),
             (QStringList{"Text (*.txt *.rpt)", "All Files (*.*)"}));
    QCOMPARE(qt::QtNameFilters(""), QStringList{});
  }

  void colourNumbersAreBlueGreenRed() {
    QCOMPARE(qt::ColorNumber(QColor(255, 0, 0)), 255u);
    QCOMPARE(qt::ColorNumber(QColor(0, 0, 255)), 16711680u);
    QCOMPARE(qt::ColorOfNumber(16777215), QColor(255, 255, 255));
    QCOMPARE(qt::ColorOfNumber(0x00336699), QColor(0x99, 0x66, 0x33));
  }

  void progressWindowMirrorsItsModel() {
    Progress model;
    qt::ProgressWindow window(model);
    model.caption = "Compress MKDATA file";
    model.lblProcessing = "Compressing File";
    model.lblInfo = "Please wait...";
    model.max = 12;
    model.value = 3;
    model.Show();
    QVERIFY(window.isVisible());
    QCOMPARE(window.windowTitle(), QString("Compress MKDATA file"));
    QCOMPARE(window.findChild<QLabel*>("lblProcessing")->text(), QString("Compressing File"));
    QCOMPARE(window.findChild<QLabel*>("lblInfo")->text(), QString("Please wait..."));
    QCOMPARE(window.findChild<QProgressBar*>("Prgb")->maximum(), 12);
    QCOMPARE(window.findChild<QProgressBar*>("Prgb")->value(), 3);
    model.Hide();
    QVERIFY(!window.isVisible());
  }

  void messageBoxIsWideEnoughForItsTitle() {
    const QString title = "Create Combined Dat File: a title longer than its text";
    int width = 0;
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      QVERIFY(box);
      width = box->width();
      box->buttons().front()->click();
    });
    qt::QtUi ui;
    ui.MsgBox(MessageRequest{"Done.", MsgButtons::Ok, MsgIcon::None, qt::FromQt(title)});
    QFont bold = QApplication::font("QMdiSubWindowTitleBar");
    bold.setBold(true);
    QVERIFY2(width > QFontMetrics(bold).horizontalAdvance(title), qPrintable(QString::number(width)));
  }

  void secondInstanceIsRefused() {
    const QString name = "benchlog-test-" + QString::number(QCoreApplication::applicationPid());
    qt::SingleInstance first(name);
    QVERIFY(first.IsFirst());
    qt::SingleInstance second(name);
    QVERIFY(!second.IsFirst());
  }
};

QTEST_MAIN(PlatformQtTest)
#include "platform_qt_test.moc"
