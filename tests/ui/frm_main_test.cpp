// The main window offscreen: the real menu bar against the expected tree, the keys, the commands
// and the saved geometry.
#include <QAction>
#include <QMenu>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
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

}  // namespace

class FrmMainTest : public QObject {
  Q_OBJECT

 private slots:
  void menuTreeMatchesTheProgramsTree() {
    testing::FakePlatform fake;
    testing::TestSession session;
    InitMenuState(session.menu);
    const CommandTable commands = BuildCommandTable();
    qt::FrmMain window(session, fake.platform, commands);

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
      QVERIFY2(session.menu[row.name.toStdString()].enabled, qPrintable(row.name));
      if (!hidden) QVERIFY2(action->isEnabled(), qPrintable(row.name));
    }
  }

  void f10RevealsThePositionSearchAndMenusRunCommands() {
    testing::FakePlatform fake;
    testing::TestSession session;
    InitMenuState(session.menu);
    session.menu["mnuLatLoninTxt"].visible = false;
    const CommandTable commands = BuildCommandTable();
    qt::FrmMain window(session, fake.platform, commands);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(!window.Action("mnuLatLoninTxt")->isVisible());
    QTest::keyClick(&window, Qt::Key_F10);
    QVERIFY(window.Action("mnuLatLoninTxt")->isVisible());

    window.Action("mnuPlot")->trigger();
    QCOMPARE(fake.ui.MessageTexts(), std::vector<std::string>{kNotAvailableYet});
    fake.ui.colorAnswers.push_back(std::uint32_t{0x00FF00});
    window.Action("mnuSetBackColor")->trigger();
    QCOMPARE(window.palette().color(QPalette::Window), QColor(0, 255, 0));
  }

  // The window's placement in twips reaches the screen and comes back at closing; which keys are
  // saved in which state is checked by the main window's model tests.
  void geometryRoundTrip() {
    testing::FakePlatform fake;
    testing::TestSession session;
    InitMenuState(session.menu);
    const CommandTable commands = BuildCommandTable();
    {
      qt::FrmMain window(session, fake.platform, commands);
      window.ApplyPlacement({kNormal, 1500, 3000, 7500, 9000});
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      const WindowPlacement now = window.CurrentPlacement();
      QCOMPARE(now.height, 7500L);
      QCOMPARE(now.width, 9000L);
      window.close();
    }
    QCOMPARE(fake.settings.GetSetting("frmMain", "Width", ""), std::string("9000"));
    {
      // Maximised: the normal geometry is kept, the state is saved.
      qt::FrmMain window(session, fake.platform, commands);
      window.ApplyPlacement({kMaximized, 1500, 3000, 7500, 9000});
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      QVERIFY(window.isMaximized());
      window.close();
    }
    QCOMPARE(fake.settings.GetSetting("frmMain", "WindowState", ""), std::string("2"));
    {
      // Saved on a larger screen: brought inside this one.
      qt::FrmMain window(session, fake.platform, commands);
      window.ApplyPlacement({kNormal, 150000, -3000, 60000, 90000});
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      const QRect free = window.screen()->availableGeometry(), frame = window.frameGeometry();
      QVERIFY2(free.contains(frame), qPrintable(QString("%1 %2 %3 %4").arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height())));
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
