// The web update's windows offscreen: they show their models, and typing and the buttons reach them.
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "fakes/fakes.hpp"
#include "web/ui/frm_service_address_window.hpp"

using namespace benchlog;

class WebDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void serviceAddressStaysOpenOnAFaultAndSavesOnOk() {
    testing::FakePlatform fake;
    FrmServiceAddress model;
    model.Load(fake.settings);
    model.Tag = "Canceled";
    qt::FrmServiceAddressWindow window(model, fake.platform, nullptr);
    window.LoadFromModel();
    window.show();
    QCOMPARE(window.windowTitle(), QString("Web Service Address"));
    auto* address = window.findChild<QLineEdit*>("txtAddress");
    auto* timeout = window.findChild<QLineEdit*>("txtTimeout");
    QCOMPARE(address->text(), QString("http://127.0.0.1:8642"));
    QCOMPARE(timeout->text(), QString("60"));

    address->selectAll();
    QTest::keyClicks(address, "oco.example");
    QTest::mouseClick(window.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QVERIFY(window.isVisible());
    QCOMPARE(fake.ui.messages.size(), std::size_t{1});

    address->selectAll();
    QTest::keyClicks(address, "http://oco.example:8080/");
    timeout->selectAll();
    QTest::keyClicks(timeout, "15");
    QTest::mouseClick(window.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QVERIFY(!window.isVisible());
    QCOMPARE(model.Tag, std::string("Okay"));
    QCOMPARE(fake.settings.GetSetting("Settings", "ServiceAddress", ""), std::string("http://oco.example:8080"));
    QCOMPARE(fake.settings.GetSetting("Settings", "RequestTimeout", ""), std::string("15"));

    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
    QCOMPARE(model.Tag, std::string("Canceled"));
  }
};

QTEST_MAIN(WebDialogsTest)
#include "web_dialogs_test.moc"
