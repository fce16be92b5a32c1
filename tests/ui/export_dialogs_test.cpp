// The export's two dialogs offscreen: their controls and captions, and their buttons pressed,
// checked through the models.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include "export/frm_cdt.hpp"
#include "export/frm_output_options.hpp"
#include "export/ui/frm_cdt_window.hpp"
#include "export/ui/frm_output_options_window.hpp"
#include "fakes/fakes.hpp"
#include "fakes/test_paths.hpp"

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

class ExportDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void optionsShowTheModelWithTheirCaptions() {
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

    QVERIFY(Find<QRadioButton>(window, "optAllSta")->isChecked());
    QVERIFY(Find<QRadioButton>(window, "optUTM")->isChecked());
    QVERIFY(!Find<QRadioButton>(window, "optMeters")->isChecked());
    QVERIFY(Find<QCheckBox>(window, "chkVert")->isChecked());
    QVERIFY(!Find<QCheckBox>(window, "chkHoriz")->isChecked());
    QCOMPARE(Find<QComboBox>(window, "cboProjZone")->currentText(), QString("MD    1900"));
    QCOMPARE(Find<QComboBox>(window, "cboProjZone")->count(), 124);
    QCOMPARE(Find<QComboBox>(window, "cboScale")->currentText(), QString("5280"));
    QVERIFY(!Find<QGroupBox>(window, "fraScale")->isVisible());
  }

  void optionsEditsReachTheModelAndOkaySavesThem() {
    testing::MemorySettings settings;
    frmOutputOptions model;
    const auto opened = Opened<qt::FrmOutputOptionsWindow>(model, settings);
    auto& window = *opened;

    Find<QCheckBox>(window, "chkMicrostation")->click();
    QCOMPARE(model.chkMicrostation, 1);
    QVERIFY(model.fraScaleVisible);
    QVERIFY(Find<QGroupBox>(window, "fraScale")->isVisible());
    Find<QCheckBox>(window, "chkHoriz")->click();
    Find<QRadioButton>(window, "optSelectedSta")->click();
    Find<QRadioButton>(window, "optFeet")->click();
    Find<QRadioButton>(window, "optElFeet")->click();
    Find<QComboBox>(window, "cboScale")->setEditText("2000");
    auto* zones = Find<QComboBox>(window, "cboProjZone");
    zones->setCurrentIndex(zones->findText("NC    3200"));
    QVERIFY(!model.optAllSta && model.optSelectedSta);
    QVERIFY(model.optFeet && !model.optMeters && !model.optUTM);
    QVERIFY(model.optElFeet && !model.optElM);
    QCOMPARE(model.cboScale, std::string("2000"));
    QCOMPARE(model.cboProjZone, std::string("NC    3200"));

    Find<QCheckBox>(window, "chkMicrostation")->click();
    QVERIFY(!Find<QGroupBox>(window, "fraScale")->isVisible());

    Find<QPushButton>(window, "cmdOkay")->click();
    QVERIFY(!window.isVisible());
    QCOMPARE(model.Tag, std::string(""));
    QCOMPARE(settings.GetSetting("frmOutputOptions", "FileTypes", ""), std::string("100000"));
    QCOMPARE(settings.GetSetting("frmOutputOptions", "Feet", ""), std::string("True"));
    QCOMPARE(settings.GetSetting("frmOutputOptions", "Zone", ""), std::string("NC    3200"));
    QCOMPARE(settings.GetSetting("frmOutputOptions", "Scale", ""), std::string("2000"));
    QVERIFY(settings.Has("frmOutputOptions", "Top"));
  }

  void optionsCancelAndEscapeSetTheTag() {
    testing::MemorySettings settings;
    frmOutputOptions model;
    const auto opened = Opened<qt::FrmOutputOptionsWindow>(model, settings);
    auto& window = *opened;
    Find<QPushButton>(window, "cmdCancel")->click();
    QCOMPARE(model.Tag, std::string("Canceled"));
    QVERIFY(!window.isVisible());
    QVERIFY(!settings.Has("frmOutputOptions", "FileTypes"));

    model.Tag.clear();
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(model.Tag, std::string("Canceled"));
  }

  void cdtButtonsChangeTheModel() {
    testing::MemorySettings settings;
    frmCDT model;
    const auto opened = Opened<qt::FrmCdtWindow>(model, settings);
    auto& window = *opened;
    QCOMPARE(window.windowTitle(), QString("Create Microsoft Access Database"));
    QCOMPARE(Find<QCheckBox>(window, "chkUTM")->text(), QString("UTM Coord (meters)"));
    QCOMPARE(Find<QCheckBox>(window, "chkMarkCode")->toolTip(), QString("*80* & *86* records"));
    QVERIFY(Find<QCheckBox>(window, "chkDesig")->isChecked());
    QVERIFY(Find<QRadioButton>(window, "OptHoriz")->isChecked());
    QCOMPARE(Find<QComboBox>(window, "cboUTMZone")->count(), 24);
    QCOMPARE(Find<QComboBox>(window, "cboUTMZone")->currentText(), QString("18"));

    Find<QRadioButton>(window, "Optvert")->click();
    QVERIFY(model.Optvert);
    for (const char* hidden : {"chkHorizO", "chkX", "chk27LatLon", "chkSPCScale"})
      QVERIFY2(!Find<QCheckBox>(window, hidden)->isVisible(), hidden);
    QVERIFY(Find<QCheckBox>(window, "chkSPC")->isVisible());

    Find<QPushButton>(window, "cmdCheckAll")->click();
    QVERIFY(model.optBoth);
    QVERIFY(Find<QRadioButton>(window, "optBoth")->isChecked());
    QVERIFY(Find<QCheckBox>(window, "chkHorizO")->isVisible());
    for (const auto& box : frmCDT::Boxes()) QVERIFY2(Find<QCheckBox>(window, box.name)->isChecked(), box.name);

    Find<QPushButton>(window, "cmdClearAll")->click();
    for (const auto& box : frmCDT::Boxes()) QCOMPARE(model.*box.value, 0);
    QVERIFY(model.optBoth);

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
    QVERIFY(!window.isVisible());
    QCOMPARE(settings.GetSetting("Settings", "UTMZone", ""), std::string("17"));

    window.show();
    Find<QPushButton>(window, "cmdCancel")->click();
    QCOMPARE(model.Tag, std::string("Canceled"));
  }
};

QTEST_MAIN(ExportDialogsTest)
#include "export_dialogs_test.moc"
