// The viewer's window offscreen: text, photo and sketch, a click, typing, Esc and Save As, each
// reaching the model.
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTest>

#include "session/session.hpp"
#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "session/frm_view.hpp"
#include "session/ui/display_text.hpp"
#include "session/ui/frm_view_window.hpp"

using namespace benchlog;

class FrmViewTest : public QObject {
  Q_OBJECT

 private:
  // Three Descriptions, three lines each, every line 78 characters and CR LF, so line n starts
  // at byte 80 * n: PQ0001 has a photo (40x30) and a sketch (20x50), NO0002 nothing, BA0003 a
  // photo file that is no picture.
  static std::string Text() {
    const auto line = [](std::string text) { return text + std::string(78 - text.size(), ' ') + "\r\n"; };
    std::string text;
    for (const std::string pid : {"PQ0001", "NO0002", "BA0003"}) {
      text += line("1      Orbis Control Office");
      for (int n = 0; n < 2; ++n) text += line(" " + pid + "  DESIGNATION -  MARK " + pid);
    }
    return text;
  }

  struct Fixture {
    testing::TempFolder folder;
    testing::FakePlatform fake;
    testing::TestSession session;
    frmView* model = nullptr;
    std::unique_ptr<qt::FrmViewWindow> window;
    Fixture() {
      QImage(40, 30, QImage::Format_RGB32).save(QString::fromStdString(folder.File("PQ0001ph.jpg")), "JPG");
      QImage(20, 50, QImage::Format_RGB32).save(QString::fromStdString(folder.File("PQ0001sk.jpg")), "JPG");
      folder.Write("BA0003ph.jpg", "not a picture");
      session.dataset.DatFilePath = folder.Path() + "/";
      model = &ViewForm(session, fake.platform);
      model->txtViewFile = Text();
      model->Tag = "PQ0001";
      model->Caption = "View Desc PQ0001";
      window = std::make_unique<qt::FrmViewWindow>(*model);
      window->LoadFromModel();
      window->show();
      QEvent activate(QEvent::WindowActivate);
      QApplication::sendEvent(window.get(), &activate);
    }
    QString Title() const { return window->windowTitle(); }
    // Clicks the text box at a byte position of the model's text.
    void ClickAt(std::size_t modelPosition) {
      QPlainTextEdit* box = window->TextBox();
      QTextCursor cursor(box->document());
      cursor.setPosition(qt::DisplayPosition(model->txtViewFile, modelPosition));
      const QPoint point = box->cursorRect(cursor).center() + QPoint(1, 0);
      QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, point);
    }
  };

 private slots:
  // Opens the window on PQ0001, shows its photo at the picture's size, follows a click to the mark
  // under it, saves through the menu, takes typing into the model and closes on Esc. The model's
  // own rules (captions, which pictures are offered) are checked by the frmView model tests.
  void showsTheModelAndHandsTheUserBack() {
    Fixture f;
    QVERIFY(f.window->TextBox()->isVisible());
    QCOMPARE(f.window->TextBox()->toPlainText().count('\n'), 9);
    QVERIFY(f.window->mnuViewSketch()->isVisible());
    f.window->resize(500, 400);
    f.window->mnuViewPhoto()->trigger();
    QVERIFY(f.window->Image()->isVisible() && !f.window->TextBox()->isVisible());
    QCOMPARE(f.window->Image()->pixmap().size(), QSize(40, 30));
    QCOMPARE(f.window->Image()->geometry(), f.window->TextBox()->geometry());
    QCOMPARE(f.Title(), QString("View Photo for point PQ0001"));
    f.window->mnuViewSketch()->trigger();
    QCOMPARE(f.window->Image()->pixmap().size(), QSize(20, 50));
    f.window->mnuViewDesc()->trigger();
    QVERIFY(f.window->TextBox()->isVisible() && !f.window->Image()->isVisible());

    f.ClickAt(7 * 80 + 19);  // the second line of BA0003, column 20
    QCOMPARE(f.model->SelStart, std::size_t(7 * 80 + 19));
    QCOMPARE(f.Title(), QString("Description for BA0003"));
    f.window->mnuViewPhoto()->trigger();  // not a picture: a message, and the text stays
    QCOMPARE(f.fake.ui.MessageTexts(), std::vector<std::string>{"Invalid picture"});
    QVERIFY(f.window->TextBox()->isVisible());

    const std::string path = f.folder.File("saved.dat");
    f.fake.ui.fileAnswers.push_back(path);
    f.window->mnuFileSaveAs()->trigger();
    QCOMPARE(ReadWholeFile(path), Text());

    f.model->txtViewFile.clear();
    f.window->LoadFromModel();
    f.window->TextBox()->setFocus();
    QTest::keyClicks(f.window->TextBox(), "AB1234");
    QTest::keyClick(f.window->TextBox(), Qt::Key_Return);
    QTest::keyClicks(f.window->TextBox(), "CD5678");
    QCOMPARE(f.model->txtViewFile, std::string("AB1234\r\nCD5678"));
    QCOMPARE(f.model->SelStart, std::size_t(14));

    QTest::keyClick(f.window.get(), Qt::Key_Escape);
    QVERIFY(!f.window->isVisible());
    QCOMPARE(f.model->Tag, std::string());
  }

  // A class view maximises the viewer over its saved normal state, every time it shows; a saved
  // size and position from a larger screen are brought inside this one; the PID list stands centred.
  void opensMaximisedWhenTheCommandSaysAndInsideTheScreen() {
    testing::FakePlatform fake;
    testing::TestSession session;
    fake.settings.SaveSetting("frmView", "Windowstate", "0");
    fake.settings.SaveSetting("frmView", "Left", "-30000");
    fake.settings.SaveSetting("frmView", "Top", "150000");
    fake.settings.SaveSetting("frmView", "Width", "60000");  // 4000 pixels
    fake.settings.SaveSetting("frmView", "Height", "45000");
    frmView& model = ViewForm(session, fake.platform);
    qt::FrmViewWindow window(model);
    model.placement.state = kMaximized;
    window.LoadFromModel();
    window.show();
    QVERIFY(window.isMaximized());
    QTest::keyClick(&window, Qt::Key_Escape);
    window.LoadFromModel();
    window.show();
    QVERIFY(window.isMaximized());
    window.close();  // unloads: the saved normal placement is read again at the next show

    frmView& again = ViewForm(session, fake.platform);
    QCOMPARE(again.placement.state, int(kMaximized));
    again.placement.state = kNormal;
    window.LoadFromModel();
    window.show();
    const QRect free = window.screen()->availableGeometry();
    QVERIFY(!window.isMaximized());
    QVERIFY2(free.contains(window.frameGeometry()), "the saved window lies inside the screen");

    again.placement.height = 2000;  // the PID list: centred at its own height, once
    again.centreOnce = true;
    window.LoadFromModel();
    QCOMPARE(window.height(), 2000 / 15);
    QVERIFY(std::abs(window.frameGeometry().center().y() - free.center().y()) <= 1);
    QVERIFY(!again.centreOnce);
  }

  // The screen shows one line break per CR LF and the code page's characters; positions map back.
  void displayTextConversion() {
    const std::string bytes = "A\r\nB\x80\xE9\rC";
    const QString shown = qt::ToDisplayText(bytes);
    QCOMPARE(shown, QString::fromUtf8("A\nB\u20AC\u00E9\nC"));
    QCOMPARE(qt::FromDisplayText(shown), std::string("A\r\nB\x80\xE9\r\nC"));
    QCOMPARE(qt::FromDisplayText(QString::fromUtf8("\u4E2D")), std::string("?"));
    const std::pair<int, std::size_t> positions[] = {{0, 0}, {1, 1}, {2, 3}, {5, 6}, {6, 7}, {7, 8}};
    for (const auto& [display, model] : positions) {
      QCOMPARE(qt::ModelPosition(bytes, display), model);
      QCOMPARE(qt::DisplayPosition(bytes, model), display);
    }
  }

  // The text is the file's bytes: edits elsewhere and Save As keep lone CRs and LFs, CR LFs and
  // the code page's upper half byte for byte; a line break typed becomes CR LF.
  void anEditKeepsEveryOtherByte() {
    Fixture f;
    std::string bytes = "AB\rCD\nEF\r\nGH ";
    for (int c = 0x80; c <= 0xFF; ++c) bytes += static_cast<char>(c);
    bytes += "\r\nend";
    f.model->txtViewFile = bytes;
    f.window->LoadFromModel();
    QPlainTextEdit* box = f.window->TextBox();
    box->setFocus();
    QTest::keyClicks(box, "x");  // at the start
    QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClicks(box, "yz");
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(f.model->txtViewFile, "x" + bytes + "\r\ny");
    const std::string path = f.folder.File("saved.txt");
    f.fake.ui.fileAnswers.push_back(path);
    f.window->mnuFileSaveAs()->trigger();
    QCOMPARE(ReadWholeFile(path), "x" + bytes + "\r\ny");
  }
};

QTEST_MAIN(FrmViewTest)
#include "frm_view_test.moc"
