// The editor's window offscreen: a file saved untouched keeps its bytes, typed letters reach the
// model as capitals, undo and the closing question go through the window, and a locked text
// hides the edit menus and takes no typing.
#include <QAction>
#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>

#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "view/frm_edit.hpp"
#include "view/ui/frm_edit_window.hpp"

using namespace benchlog;

class FrmEditTest : public QObject {
  Q_OBJECT

 private:
  // Windows-1252 bytes that differ from Latin-1 (0x80, 0x9F), a degree sign, a lone LF and a
  // lone CR: the bytes a round trip through Unicode and one kind of line break would change.
  static std::string Bytes() { return std::string("\x80 OCO \xB0\x9F\nLF\rCR\r\nBAY 12\r\n"); }

  struct Fixture {
    testing::TempFolder folder;
    testing::FakePlatform fake;
    testing::TestSession session;
    frmEdit* model = nullptr;
    std::unique_ptr<qt::FrmEditWindow> window;
    std::string file = folder.Write("bay_SA6.txt", Bytes());
    explicit Fixture(bool edit) {
      model = &EditForm(session, fake.platform);
      model->ViewFile(fake.ui, file, edit);
      window = std::make_unique<qt::FrmEditWindow>(*model);
      window->LoadFromModel();
      window->show();
    }
  };

 private slots:
  void savesTypesUndoesAndAsksAtClosing() {
    Fixture f(true);
    QVERIFY(f.window->Command("mnuSaveFile")->isVisible());
    QVERIFY(!f.window->TextBox()->isReadOnly());
    f.window->Command("mnuSaveFile")->trigger();
    QCOMPARE(ReadWholeFile(f.file), Bytes());
    QVERIFY(f.model->ChangesSaved);

    f.window->Command("mnuEnd")->trigger();
    QTest::keyClicks(f.window->TextBox(), "ab");
    QCOMPARE(f.model->txtEdit, Bytes() + "AB");
    QVERIFY(!f.model->ChangesSaved);
    f.window->Command("mnuBackSpace")->trigger();
    QCOMPARE(f.model->txtEdit, Bytes() + "A");
    f.window->Command("mnuUndo")->trigger();  // the text before the backspace
    QCOMPARE(f.model->txtEdit, Bytes() + "AB");
    QCOMPARE(f.window->TextBox()->toPlainText().right(3), QString("\nAB"));

    f.fake.ui.msgAnswers.push_back(MsgResult::Yes);
    f.window->Command("mnuCloseEditor")->trigger();
    QCOMPARE(f.fake.ui.MessageTexts(), std::vector<std::string>{"Save Changes?"});
    QCOMPARE(ReadWholeFile(f.file), Bytes() + "AB\r\n");
    QVERIFY(!f.window->isVisible());
  }

  void aLockedTextHidesTheEditMenusAndTakesNoTyping() {
    Fixture f(false);
    for (const char* name : {"mnuSaveFile", "mnuSearchReplace", "mnuBackSpace", "mnuUndo"})
      QVERIFY2(!f.window->Command(name)->isVisible(), name);
    QVERIFY(f.window->Command("mnuSearchFind")->isVisible());
    QTest::keyClicks(f.window->TextBox(), "ab");
    QCOMPARE(f.model->txtEdit, Bytes());
    f.window->Command("mnuExit")->trigger();
    QVERIFY(f.fake.ui.messages.empty());
    QCOMPARE(ReadWholeFile(f.file), Bytes());
  }
};

QTEST_MAIN(FrmEditTest)
#include "frm_edit_test.moc"
