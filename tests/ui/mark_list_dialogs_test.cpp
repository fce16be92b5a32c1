// The four dialogs of the mark-list commands offscreen: they open under their captions, typed keys
// go through the models' filters, and their buttons and Esc hand the result back to the models.
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "fakes/fakes.hpp"
#include "web/ui/dlg_lat_lon_rad_window.hpp"
#include "web/ui/dlg_type_control_window.hpp"
#include "web/ui/frm_listings_window.hpp"
#include "web/ui/frm_options_window.hpp"

using namespace benchlog;

namespace {

template <class Widget>
Widget* Child(QWidget& window, const char* name) {
  auto* widget = window.findChild<Widget*>(name);
  if (!widget) qFatal("no control %s", name);
  return widget;
}

void Open(qt::ModelDialog& window) {
  window.LoadFromModel();
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
}

}  // namespace

class MarkListDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void dialogsOpenTypeAndHandBack() {
    testing::MemorySettings settings;
    frmOptions options;
    options.Load(settings);
    options.cboChoicesList = {"MD MARYLAND", "NC NORTH CAROLINA"};
    options.caption = "Select State:";
    qt::FrmOptionsWindow optionsWindow(options, nullptr);
    Open(optionsWindow);
    QCOMPARE(optionsWindow.windowTitle(), QString("Select State:"));
    QCOMPARE(Child<QPushButton>(optionsWindow, "cmdOkay")->text(), QString("Ok"));
    auto* box = Child<QComboBox>(optionsWindow, "cboChoices");
    QCOMPARE(box->count(), 2);
    QTest::keyClicks(box->lineEdit(), "nc n");
    QCOMPARE(options.cboChoices, std::string("NC N"));
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(options.Tag, std::string("Okay"));
    QVERIFY(!optionsWindow.isVisible());
    Open(optionsWindow);
    QTest::keyClick(&optionsWindow, Qt::Key_Escape);
    QVERIFY(options.cboChoices.empty() && !options.Loaded && !optionsWindow.isVisible());
    QVERIFY(settings.Has("frmOptions", "Top"));

    frmListings listings;
    listings.Load(settings);
    listings.lstChoices = {"FY3210 1 .  HILLSBORO", "FY0871 . 1  K 123", "DH7204 B .  IGX B"};
    listings.selected.assign(3, false);
    listings.SetUpForRun();
    qt::FrmListingsWindow listingsWindow(listings, nullptr);
    Open(listingsWindow);
    QCOMPARE(listingsWindow.windowTitle(), QString("Select Station(s) to import:"));
    QCOMPARE(listingsWindow.height(), 480);
    auto* list = Child<QListWidget>(listingsWindow, "lstChoices");
    auto* ok = Child<QPushButton>(listingsWindow, "cmdOkay");
    QCOMPARE(listingsWindow.width(), 316);  // 4,752 twips
    QCOMPARE(list->width(), 310);            // 4,740 twips less two margins of 40, in whole pixels
    QVERIFY(ok->y() > list->y() + list->height());
    list->item(1)->setSelected(true);
    ok->click();
    QCOMPARE(listings.selected, (std::vector<bool>{false, true, false}));
    QVERIFY(!listingsWindow.isVisible());

    dlgTypeControl types;
    qt::DlgTypeControlWindow typesWindow(types, nullptr);
    Open(typesWindow);
    QCOMPARE(typesWindow.windowTitle(), QString("Type of Control"));
    QCOMPARE(Child<QRadioButton>(typesWindow, "Option1(8)")->text(), QString("Vertical 1order only"));
    QVERIFY(Child<QRadioButton>(typesWindow, "Option2(0)")->isChecked());
    Child<QRadioButton>(typesWindow, "Option1(3)")->click();
    Child<QRadioButton>(typesWindow, "Option2(2)")->click();
    Child<QPushButton>(typesWindow, "cmdOkay")->click();
    QCOMPARE(types.Tag, std::string("H-A-B"));
    Open(typesWindow);
    QTest::keyClick(&typesWindow, Qt::Key_Escape);
    QCOMPARE(types.Tag, std::string());

    dlgLatLonRad point;
    Configuration configuration;
    configuration.hemi1 = "N";
    configuration.hemi2 = "W";
    point.Load(configuration);
    qt::DlgLatLonRadWindow pointWindow(point, nullptr);
    Open(pointWindow);
    QCOMPARE(pointWindow.windowTitle(), QString("Import By Location"));
    auto* latitude = Child<QLineEdit>(pointWindow, "Text1(0)");
    auto* longitude = Child<QLineEdit>(pointWindow, "Text1(1)");
    QCOMPARE(Child<QLineEdit>(pointWindow, "Text1(2)")->toolTip(), QString("Up to 20 miles"));
    QVERIFY(!pointWindow.findChildren<QLabel*>().isEmpty());
    latitude->setFocus();
    latitude->end(false);
    QTest::keyClicks(latitude, "39x1544");
    QTest::keyClick(latitude, Qt::Key_Return);
    QTRY_VERIFY(longitude->hasFocus());
    longitude->end(false);
    QTest::keyClicks(longitude, "0771234.5");
    latitude->setFocus();
    QTRY_COMPARE(latitude->selectedText(), QString("391544"));
    Child<QPushButton>(pointWindow, "OKButton")->click();
    QCOMPARE(point.Tag, std::string("Okay"));
    QCOMPARE(point.Text1[0], std::string("N391544"));
    QCOMPARE(point.Text1[1], std::string("W0771234.5"));
  }
};

QTEST_MAIN(MarkListDialogsTest)
#include "mark_list_dialogs_test.moc"
