// The main window offscreen: the real menu bar against the expected tree, the keys, the commands
// and the saved geometry; and the Qt platform services it stands on.
#include <QAction>
#include <QFile>
#include <QMenu>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>
#include <fstream>

#include "app/command_registry.hpp"
#include "app/frm_about.hpp"
#include "app/main_window.hpp"
#include "app/ui/about_windows.hpp"
#include "app/menu_tree.hpp"
#include "app/ui/frm_main.hpp"
#include "fakes/fakes.hpp"
#include "fakes/test_paths.hpp"
#include "platform/qt/progress_window.hpp"
#include "platform/qt/qt_settings_store.hpp"
#include "platform/qt/qt_ui.hpp"
#include "platform/qt/single_instance.hpp"
#include "platform/qt/text_codec.hpp"

using namespace benchlog;

namespace {

struct Row {
  QString name, parent, caption;
  bool separator;
};

void Walk(QMenu* menu, QList<Row>& rows) {
  for (QAction* action : menu->actions()) {
    rows.push_back({action->objectName(), menu->objectName(), action->isSeparator() ? "" : action->text(),
                    action->isSeparator()});
    if (action->menu()) Walk(action->menu(), rows);
  }
}

QList<Row> ExpectedRows() {
  QList<Row> rows;
  std::ifstream in(testing::TestData("app/menu_tree.txt"));
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    const QStringList cells = QString::fromStdString(line).split('|');
    const bool separator = cells[2].isEmpty() && !cells[0].startsWith("mnuFileMRUItem");
    rows.push_back({cells[0], cells[1], cells[2], separator});
  }
  return rows;
}

// A session with the menu at its start and the program's commands.
struct Scene {
  testing::FakePlatform fake;
  testing::TestSession session;
  const CommandTable commands = BuildCommandTable();
  Scene() { InitMenuState(session.menu); }
};

}  // namespace

class FrmMainTest : public QObject {
  Q_OBJECT
  QTemporaryDir config_;

 private slots:
  void initTestCase() {
    QVERIFY(config_.isValid());
    qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
  }

  // The Qt platform services: where and how settings are stored, the file filters, colour numbers,
  // the progress window, the message box and the single-instance lock. The code page's conversions
  // are checked through the viewer's text (frm_view_test.cpp).
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

  void menuTreeMatchesTheProgramsTree() {
    Scene s;
    qt::FrmMain window(s.session, s.fake.platform, s.commands);
    QList<Row> actual;
    for (QAction* top : window.menuBar()->actions()) {
      actual.push_back({top->objectName(), "", top->text(), false});
      Walk(top->menu(), actual);
    }
    const QList<Row> expected = ExpectedRows();
    QCOMPARE(actual.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
      QCOMPARE(actual[i].name, expected[i].name);
      QCOMPARE(actual[i].parent, expected[i].parent);
      QCOMPARE(actual[i].separator, expected[i].separator);
      if (!expected[i].name.startsWith("mnuFileMRUItem")) QCOMPARE(actual[i].caption, expected[i].caption);
    }
    // At the start every entry is enabled; only the recent files and their separator are hidden.
    for (const auto& row : expected) {
      QAction* action = window.Action(row.name.toStdString());
      QVERIFY2(action, qPrintable(row.name));
      const bool hidden = row.name.startsWith("mnuFileMRU");
      QCOMPARE(action->isVisible(), !hidden);
      // Qt reports a hidden action as disabled; the menu state keeps it enabled.
      QVERIFY2(s.session.menu[row.name.toStdString()].enabled, qPrintable(row.name));
      if (!hidden) QVERIFY2(action->isEnabled(), qPrintable(row.name));
    }
  }

  void f10RevealsThePositionSearchAndMenusRunCommands() {
    Scene s;
    s.session.menu["mnuLatLoninTxt"].visible = false;
    qt::FrmMain window(s.session, s.fake.platform, s.commands);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(!window.Action("mnuLatLoninTxt")->isVisible());
    QTest::keyClick(&window, Qt::Key_F10);
    QVERIFY(window.Action("mnuLatLoninTxt")->isVisible());

    window.Action("mnuEditSA")->trigger();  // the current dataset has no Street Atlas file
    QCOMPARE(s.fake.ui.MessageTexts(), std::vector<std::string>{"File not found!"});
    s.fake.ui.colorAnswers.push_back(std::uint32_t{0x00FF00});
    window.Action("mnuSetBackColor")->trigger();
    QCOMPARE(window.palette().color(QPalette::Window), QColor(0, 255, 0));
  }

  // The window's placement in twips reaches the screen and comes back at closing; which keys are
  // saved in which state is checked by the main window's model tests.
  void geometryRoundTrip() {
    Scene s;
    const WindowPlacement placements[] = {{kNormal, 1500, 3000, 7500, 9000},
                                          {kMaximized, 1500, 3000, 7500, 9000},  // the normal geometry is kept
                                          {kNormal, 150000, -3000, 60000, 90000}};  // from a larger screen
    for (const WindowPlacement& placement : placements) {
      qt::FrmMain window(s.session, s.fake.platform, s.commands);
      window.ApplyPlacement(placement);
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      QCOMPARE(window.isMaximized(), placement.state == kMaximized);
      const WindowPlacement now = window.CurrentPlacement();
      const bool small = placement.height == 7500;
      if (small && placement.state == kNormal) QCOMPARE(std::pair(now.height, now.width), std::pair(7500L, 9000L));
      const QRect free = window.screen()->availableGeometry(), frame = window.frameGeometry();
      if (placement.state == kNormal) QVERIFY2(free.contains(frame), qPrintable(QString::number(frame.y())));
      window.close();
      QCOMPARE(s.fake.settings.GetSetting("frmMain", "WindowState", ""), std::to_string(placement.state));
      if (small) QCOMPARE(s.fake.settings.GetSetting("frmMain", "Width", ""), std::string("9000"));
    }
  }

  // The About text may wrap anywhere but inside the address, at any width of the window.
  void aboutNeverBreaksTheAddress() {
    FrmAbout model;
    testing::FakePlatform fake;
    qt::FrmAboutWindow window(model, fake.platform, nullptr);
    const auto* label = window.findChild<QLabel*>("lblDescription");
    QTextDocument document;
    document.setDefaultFont(label->font());
    document.setHtml(label->text());
    const QString address(kMaintainerAddress);
    const int at = document.toPlainText().indexOf(address);
    QVERIFY(at > 0);
    for (int width = 120; width <= 900; width += 7) {
      document.setTextWidth(width);
      const QTextBlock block = document.findBlock(at);
      QTextLayout* layout = block.layout();
      const int first = layout->lineForTextPosition(at - block.position()).lineNumber();
      const int last = layout->lineForTextPosition(at - block.position() + address.size() - 1).lineNumber();
      QVERIFY2(first == last, qPrintable(QString::number(width)));
    }
  }
};

QTEST_MAIN(FrmMainTest)
#include "frm_main_test.moc"
