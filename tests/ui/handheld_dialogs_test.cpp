// dlgDelimAndType offscreen: it shows its model, typing goes through the key filter, and OK and Esc
// reach the model.
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "fakes/fakes.hpp"
#include "handheld/ui/dlg_delim_and_type_window.hpp"

using namespace benchlog;

class HandheldDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void typedSlotsReachTheModelAndOkLeavesTheDelimiter() {
    testing::FakePlatform fake;
    dlgDelimAndType model;
    model.Load(fake.settings, "");
    model.txtSampleData = "aa1234,old mill";
    model.cboDelimChar = "Comma (,)";
    auto* window = new qt::DlgDelimAndTypeWindow(model, fake.platform, nullptr);
    window->LoadFromModel();
    window->show();
    QCOMPARE(window->windowTitle(), QString("Import Delimited File"));
    QCOMPARE(window->findChild<QLineEdit*>("txtSampleData")->text(), QString("aa1234,old mill"));
    QVERIFY(!window->findChild<QGroupBox*>("fraSPC")->isVisible());

    auto* first = window->findChild<QComboBox*>("cboDataType(0)");
    QCOMPARE(first->count(), 36);
    QTest::keyClicks(first->lineEdit(), "pid*");  // small letters capitalised, "*" refused
    QCOMPARE(model.cboDataType[0], std::string("PID"));
    window->findChild<QComboBox*>("cboDataType(1)")->setCurrentText("SPC (NNNNNNN.nnn)");
    QVERIFY(window->findChild<QGroupBox*>("fraSPC")->isVisible());

    QTest::mouseClick(window->findChild<QPushButton*>("OKButton"), Qt::LeftButton);
    QCOMPARE(model.Tag, std::string(","));
    QVERIFY(!window->isVisible());
    QCOMPARE(fake.settings.GetSetting("dlgDelimAndType", "Col 0", ""), std::string("PID"));
    delete window;
  }

  void escapeCancels() {
    testing::FakePlatform fake;
    dlgDelimAndType model;
    model.Tag = "x";
    auto* window = new qt::DlgDelimAndTypeWindow(model, fake.platform, nullptr);
    window->LoadFromModel();
    window->show();
    QTest::keyClick(window->findChild<QComboBox*>("cboDataType(0)")->lineEdit(), Qt::Key_Escape);
    QCOMPARE(model.Tag, std::string());
    QVERIFY(!window->isVisible());
    delete window;
  }
};

QTEST_MAIN(HandheldDialogsTest)
#include "handheld_dialogs_test.moc"
