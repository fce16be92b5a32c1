// frmSelectPoints and frmGetFile offscreen: their windows show the model, and the user's picks and
// buttons come back into it.
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include "dataset/ui/frm_get_file_window.hpp"
#include "fakes/temp_folder.hpp"
#include "session/ui/frm_select_points_window.hpp"

using namespace benchlog;

class SelectionDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void selectPointsShowsItemsAndReturnsThePicks() {
    FrmSelectPoints model;
    model.caption = "Select Point(s) to View";
    for (const char* item : {"PINE AB0001", "OAK  AB0002", "ELM  AB0003"}) model.AddItem(item);
    model.Tag = "Canceled";
    qt::FrmSelectPointsWindow window(model, nullptr);
    window.LoadFromModel();
    window.show();
    QCOMPARE(window.windowTitle(), QString("Select Point(s) to View"));
    auto* list = window.findChild<QListWidget*>("lstPoints");
    QCOMPARE(list->count(), 3);
    QCOMPARE(window.findChild<QLabel*>("lblPoints")->text(), QString("Select Point:"));
    QCOMPARE(window.findChild<QPushButton*>("cmdCancel")->toolTip(), QString("Cancel viewing or printing."));
    QCOMPARE(window.findChild<QPushButton*>("cmdOkay")->toolTip(), QString("View or print select points."));

    // Select All leaves the first item as it was.
    QTest::mouseClick(window.findChild<QPushButton*>("cmdSelectAll"), Qt::LeftButton);
    QVERIFY(!list->item(0)->isSelected());
    QVERIFY(list->item(1)->isSelected() && list->item(2)->isSelected());
    list->item(2)->setSelected(false);
    QTest::mouseClick(window.findChild<QPushButton*>("cmdOkay"), Qt::LeftButton);
    QCOMPARE(model.Tag, std::string("Okay"));
    QCOMPARE(model.selected, (std::vector<bool>{false, true, false}));
    QVERIFY(!window.isVisible());
    window.show();
    QTest::mouseClick(window.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
    QCOMPARE(model.Tag, std::string("Canceled"));
    window.show();
    model.Tag = "Okay";
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(model.Tag, std::string("Canceled"));
  }

  void getFileListsDatasetsOfTheFolderInOrder() {
    testing::TempFolder folder;
    folder.Write("b.dat", "");
    folder.Write("A.dat", "");
    folder.Write("c.txt", "");
    folder.Write("other/z.dat", "");
    FrmGetFile model;
    model.caption = "Select .dat Files to Combine";
    model.SetFolder(folder.Path());
    qt::FrmGetFileWindow window(model, nullptr);
    window.LoadFromModel();
    window.show();
    QCOMPARE(window.windowTitle(), QString("Select .dat Files to Combine"));
    QCOMPARE(window.findChild<QLabel*>("lblFolder")->text(), QString::fromStdString(folder.Path()));
    auto* list = window.findChild<QListWidget*>("lstFiles");
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->item(0)->text(), QString("A.dat"));
    QCOMPARE(list->item(1)->text(), QString("b.dat"));
    list->item(1)->setSelected(true);
    QTest::mouseClick(window.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QCOMPARE(model.Tag, std::string("Okay"));
    QCOMPARE(model.SelectedPaths(), std::vector<std::string>{folder.Path() + "/b.dat"});

    // Another folder reloads the list and resets the filter.
    model.filter = "*.*";
    window.ChangeFolder(QString::fromStdString(folder.File("other")));
    QCOMPARE(list->count(), 1);
    QCOMPARE(model.filter, std::string("*.dat"));
    QCOMPARE(window.findChild<QLabel*>("lblFolder")->text(), QString::fromStdString(folder.File("other")));
  }
};

QTEST_MAIN(SelectionDialogsTest)
#include "selection_dialogs_test.moc"
