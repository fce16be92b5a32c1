// The export's dialogs and the selection dialogs offscreen: their controls and captions, and
// their buttons pressed, checked through the models.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include "dataset/ui/frm_get_file_window.hpp"
#include "export/frm_cdt.hpp"
#include "export/frm_output_options.hpp"
#include "export/ui/frm_cdt_window.hpp"
#include "export/ui/frm_output_options_window.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "session/ui/frm_select_points_window.hpp"

using namespace benchlog;

namespace {

const std::string kSupport = testing::SourceSupport();

template <class Widget, class Window>
Widget* Find(const Window& window, const char* name) {
  auto* widget = qobject_cast<Widget*>(window.Control(name));
  if (!widget) qFatal("no control %s", name);
  return widget;
}

// Loads `model` from `settings` and the support files, then shows its window.
template <class Window, class Model>
std::unique_ptr<Window> Opened(Model& model, testing::MemorySettings& settings) {
  model.Load(settings, kSupport);
  auto window = std::make_unique<Window>(model, nullptr);
  window->LoadFromModel();
  window->show();
  return window;
}

}  // namespace

class DialogsTest : public QObject {
  Q_OBJECT

 private slots:
  // The options window shows the loaded model under its captions, hands every edit and Okay back
  // to it, and Cancel and Esc set its tag.
  void outputOptionsShowAndHandBackTheModel() {
    testing::MemorySettings settings;
    settings.SaveSetting("frmOutputOptions", "FileTypes", "010000");
    settings.SaveSetting("frmOutputOptions", "UTM", "True");
    frmOutputOptions model;
    const auto opened = Opened<qt::FrmOutputOptionsWindow>(model, settings);
    auto& window = *opened;

    const std::pair<const char*, const char*> captions[] = {
        {"optAllSta", "All"},           {"optSelectedSta", "Selected"},  {"chkHoriz", "Horizontal List"},
        {"chkVert", "Vertical List"},   {"chkDB", "&Database"},           {"chkStreetAtlas", "Street Atlas"},
        {"chkMicrostation", "Microstation Script"}, {"chkNRMarks", "Plot Not Rec Marks"},
        {"chkLandmarks", "Plot Landmarks"}, {"optFeet", "SPCS Feet"}, {"optMeters", "SPCS Meters"},
        {"optUTM", "UTM Meters"},       {"optElFeet", "Feet"},            {"optElM", "Meters"}};
    for (const auto& [name, caption] : captions)
      QCOMPARE(qobject_cast<QAbstractButton*>(window.Control(name))->text(), QString(caption));
    QCOMPARE(Find<QGroupBox>(window, "fraScale")->title(), QString("Plotting Scale"));
    QVERIFY(Find<QRadioButton>(window, "optUTM")->isChecked());
    QVERIFY(Find<QCheckBox>(window, "chkVert")->isChecked() && !Find<QCheckBox>(window, "chkHoriz")->isChecked());
    QCOMPARE(Find<QComboBox>(window, "cboProjZone")->currentText(), QString("MD    1900"));
    QVERIFY(!Find<QGroupBox>(window, "fraScale")->isVisible());

    for (const int ticked : {1, 0, 1}) {  // the scale frame follows every click, by mouse or key
      if (ticked == 0) QTest::keyClick(Find<QCheckBox>(window, "chkMicrostation"), Qt::Key_Space);
      else Find<QCheckBox>(window, "chkMicrostation")->click();
      QCOMPARE(model.chkMicrostation, ticked);
      QCOMPARE(Find<QGroupBox>(window, "fraScale")->isVisible(), ticked == 1);
    }
    Find<QCheckBox>(window, "chkHoriz")->click();
    Find<QRadioButton>(window, "optSelectedSta")->click();
    Find<QRadioButton>(window, "optFeet")->click();
    Find<QRadioButton>(window, "optElFeet")->click();
    Find<QComboBox>(window, "cboScale")->setEditText("2000");
    auto* zones = Find<QComboBox>(window, "cboProjZone");
    zones->setCurrentIndex(zones->findText("NC    3200"));
    QVERIFY(model.chkHoriz == 1 && model.optSelectedSta && model.optFeet && !model.optUTM && model.optElFeet);
    QCOMPARE(model.cboScale, std::string("2000"));
    QCOMPARE(model.cboProjZone, std::string("NC    3200"));

    Find<QPushButton>(window, "cmdOkay")->click();
    QVERIFY(!window.isVisible());
    frmOutputOptions again;  // Okay saved what a later export loads
    again.Load(settings, kSupport);
    QVERIFY(again.chkHoriz == 1 && again.chkMicrostation == 1 && again.optSelectedSta && again.optFeet && again.optElFeet);
    QCOMPARE(again.cboScale, std::string("2000"));
    QCOMPARE(again.cboProjZone, std::string("NC    3200"));
    window.show();
    Find<QPushButton>(window, "cmdCancel")->click();
    QCOMPARE(model.Tag, std::string("Canceled"));
    model.Tag.clear();
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(model.Tag, std::string("Canceled"));
  }

  // The column window shows its boxes as the model has them visible and ticked, and its buttons
  // and Okay reach the model.
  void cdtShowsAndHandsBackTheModel() {
    testing::MemorySettings settings;
    frmCDT model;
    const auto opened = Opened<qt::FrmCdtWindow>(model, settings);
    auto& window = *opened;
    QCOMPARE(window.windowTitle(), QString("Create Microsoft Access Database"));
    QCOMPARE(Find<QCheckBox>(window, "chkUTM")->text(), QString("UTM Coord (meters)"));
    QCOMPARE(Find<QCheckBox>(window, "chkMarkCode")->toolTip(), QString("*80* & *86* records"));
    QVERIFY(Find<QCheckBox>(window, "chkDesig")->isChecked());
    QCOMPARE(Find<QComboBox>(window, "cboUTMZone")->currentText(), QString("18"));

    Find<QRadioButton>(window, "Optvert")->click();
    QVERIFY(model.Optvert);
    for (const auto& box : frmCDT::Boxes())
      QCOMPARE(Find<QCheckBox>(window, box.name)->isVisible(), model.BoxVisible(box));
    Find<QPushButton>(window, "cmdCheckAll")->click();
    QVERIFY(Find<QRadioButton>(window, "optBoth")->isChecked());
    for (const auto& box : frmCDT::Boxes()) QVERIFY2(Find<QCheckBox>(window, box.name)->isChecked(), box.name);
    Find<QPushButton>(window, "cmdClearAll")->click();
    for (const auto& box : frmCDT::Boxes()) QCOMPARE(model.*box.value, 0);
    QVERIFY(model.optBoth);  // Clear All leaves the option buttons

    Find<QCheckBox>(window, "chkUTM")->click();
    QCOMPARE(model.chkUTM, 1);
    auto* utm = Find<QComboBox>(window, "cboUTMZone");
    utm->setCurrentIndex(utm->findText("17"));
    QCOMPARE(model.cboUTMZone, std::string("17"));
    Find<QRadioButton>(window, "optIFt")->click();
    QVERIFY(model.optIFt && !model.optUSFt);
    model.Tag = "Canceled";
    Find<QPushButton>(window, "cmdOkay")->click();
    QCOMPARE(model.Tag, std::string(""));
    QCOMPARE(settings.GetSetting("Settings", "UTMZone", ""), std::string("17"));
    QVERIFY(!window.isVisible());
  }

  // frmSelectPoints and frmGetFile: their windows show the model, and the user's picks and
  // buttons come back into it.
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

QTEST_MAIN(DialogsTest)
#include "dialogs_test.moc"
