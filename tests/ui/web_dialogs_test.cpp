// The web update's windows offscreen: they show their models, and typing and the buttons reach them.
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <filesystem>

#include "fakes/fakes.hpp"
#include "platform/qt/qt_settings_store.hpp"
#include "web/ui/frm_login_window.hpp"
#include "web/ui/frm_service_address_window.hpp"

using namespace benchlog;
namespace fs = std::filesystem;

class WebDialogsTest : public QObject {
  Q_OBJECT
  QTemporaryDir config_;

 private slots:
  void initTestCase() {
    QVERIFY(config_.isValid());
    qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
  }

  void loginShowsTheStoredLoginMaskedAndKeepsARememberedPasswordPrivate() {
    testing::FakePlatform fake;
    qt::QtSettingsStore store;
    Platform platform{fake.ui, store, fake.clock, fake.shell, fake.progress, {}};
    store.SaveSetting("frmLogin", "UserName", "ann");
    store.SaveSetting("frmLogin", "Password", "pw1");
    QFile::setPermissions(store.FileName(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    frmLogin model;
    model.Activate(store);
    QPointer window = new qt::FrmLoginWindow(model, platform, nullptr);
    window->LoadFromModel();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window));
    QCOMPARE(window->windowTitle(), QString("Internet Access"));
    auto* user = window->findChild<QLineEdit*>("txtUserName");
    auto* password = window->findChild<QLineEdit*>("txtPassword");
    QCOMPARE(user->text(), QString("ann"));
    QCOMPARE(password->displayText(), QString("***"));
    QVERIFY(!window->findChild<QCheckBox*>("chkRember")->isChecked());

    password->setFocus();
    QTRY_COMPARE(password->selectedText(), QString("pw1"));
    QTest::keyClicks(password, "s3cret");
    QTest::mouseClick(window->findChild<QCheckBox*>("chkRember"), Qt::LeftButton);
    QTest::mouseClick(window->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QVERIFY(model.LoginSucceeded);
    QCOMPARE(model.Tag, std::string("Okay"));
    QCOMPARE(store.GetSetting("frmLogin", "Password", ""), std::string("s3cret"));
    const auto mode = [&store] { return fs::status(store.FileName().toStdString()).permissions(); };
    QCOMPARE(mode(), fs::perms::owner_read | fs::perms::owner_write);
    store.SaveSetting("frmLogin", "UserName", "bea");  // a later save keeps the file private
    QCOMPARE(mode(), fs::perms::owner_read | fs::perms::owner_write);
    QTRY_VERIFY(window.isNull());  // one window per request: it goes with its model
  }

  void loginCancelAndEscRefuse() {
    testing::FakePlatform fake;
    for (const bool escape : {false, true}) {
      frmLogin model;
      model.LoginSucceeded = true;
      QPointer window = new qt::FrmLoginWindow(model, fake.platform, nullptr);
      window->LoadFromModel();
      window->show();
      if (escape) QTest::keyClick(window, Qt::Key_Escape);
      else QTest::mouseClick(window->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
      QVERIFY(!model.LoginSucceeded);
      QVERIFY(fake.settings.values.empty());
      QTRY_VERIFY(window.isNull());
    }
  }

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
