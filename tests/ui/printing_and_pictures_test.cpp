// The Qt printer to a PDF file read back by pdftotext, the picture reader's edge cases, and the
// picture window's scroll bars and F10 list.
#include <QComboBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTest>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "platform/qt/qt_picture_reader.hpp"
#include "platform/qt/qt_printer.hpp"
#include "plot/frm_image.hpp"
#include "plot/ui/frm_image_window.hpp"
#include "plot/ui/map_image_view.hpp"
#include "view/print_array.hpp"

using namespace benchlog;

class PrintingAndPicturesTest : public QObject {
  Q_OBJECT

 private:
  // The text of one page of a PDF, with its layout kept.
  static QString PageText(const QString& pdf, int page) {
    QProcess run;
    run.start("pdftotext", {"-layout", "-f", QString::number(page), "-l", QString::number(page), pdf, "-"});
    run.waitForFinished(30000);
    return QString::fromUtf8(run.readAllStandardOutput());
  }

  // The failure number and text of reading a picture; 0 and the size when it reads.
  static std::pair<int, std::string> Read(qt::QtPictureReader& reader, const std::string& path) {
    try {
      const PictureSize size = reader.Read(path);
      return {0, std::to_string(size.width) + "x" + std::to_string(size.height)};
    } catch (const RuntimeFailure& failure) {
      return {failure.number, failure.description};
    }
  }

 private slots:
  void aListingPrintsToPdfWithItsHeadAndLastLineOnTheRightPage() {
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
      QSKIP("pdftotext (Debian package poppler-utils) is not installed: the printed PDF cannot be read back");
    testing::TempFolder folder;
    const std::string pdf = folder.File("listing.pdf");
    std::vector<std::string> lines;
    for (int n = 1; n <= 100; ++n) lines.push_back("MARK " + std::to_string(n) + " OAK RIDGE");
    qt::QtPrinter printer;
    printer.PrintToPdf(pdf);
    printer.PrintText(LayOutArray(lines, "ALDER COUNTY CA VERTICAL CONTROL", "Station", 5, 130));
    // 62 lines a page: a head of 7 and 53 body lines reach 60, so MARK 53 ends page 1.
    const QString one = PageText(QString::fromStdString(pdf), 1);
    const QString two = PageText(QString::fromStdString(pdf), 2);
    QVERIFY2(one.contains("ALDER COUNTY CA VERTICAL CONTROL"), qPrintable(one));
    QVERIFY(one.contains("MARK 53 OAK RIDGE"));
    QVERIFY(!one.contains("MARK 54 OAK RIDGE"));
    QVERIFY(one.contains("Page 1"));
    QVERIFY(two.contains("MARK 100 OAK RIDGE"));
    QVERIFY(two.contains("Page 2"));
    QVERIFY(!two.contains("VERTICAL CONTROL"));
    QVERIFY(PageText(QString::fromStdString(pdf), 3).trimmed().isEmpty());
  }

  void picturesThatCannotBeShownSayWhy() {
    testing::TempFolder folder;
    QImage(1, 1, QImage::Format_RGB32).save(QString::fromStdString(folder.File("one.png")));
    QImage big(12000, 12000, QImage::Format_Mono);
    big.fill(0);
    big.save(QString::fromStdString(folder.File("big.png")));
    QImage huge(20000, 14000, QImage::Format_Mono);
    huge.fill(0);
    huge.save(QString::fromStdString(folder.File("huge.png")));
    QImage noisy(200, 150, QImage::Format_RGB32);
    for (int y = 0; y < 150; ++y)
      for (int x = 0; x < 200; ++x) noisy.setPixel(x, y, qRgb(x * 7 % 256, y * 13 % 256, (x * y) % 256));
    noisy.save(QString::fromStdString(folder.File("whole.jpg")));
    const std::string whole = ReadWholeFile(folder.File("whole.jpg"));
    folder.Write("cut.jpg", whole.substr(0, whole.size() * 6 / 10));
    folder.Write("text.jpg", "not a picture at all");

    qt::QtPictureReader reader;
    const std::tuple<const char*, int, const char*> cases[] = {
        {"one.png", 0, "1x1"},
        {"whole.jpg", 0, "200x150"},
        {"big.png", 0, "12000x12000"},
        {"huge.png", 481, "is too large to show (20000 x 14000 pixels)."},
        {"cut.jpg", 481, "is damaged: the file is cut short."},
        {"text.jpg", 481, "is not a picture file that can be shown."},
        {"missing.jpg", 53, ""},
    };
    for (const auto& [name, number, text] : cases) {
      QElapsedTimer clock;
      clock.start();
      const auto [gotNumber, gotText] = Read(reader, folder.File(name));
      QVERIFY2(clock.elapsed() < 3000, name);
      QCOMPARE(gotNumber, number);
      QVERIFY2(gotText.find(text) != std::string::npos, gotText.c_str());
    }
  }

  void theWindowScrollsThePictureAndF10ListsTheJpgFiles() {
    testing::TempFolder folder;
    QImage(600, 400, QImage::Format_RGB32).save(QString::fromStdString(folder.File("a.jpg")), "JPG");
    QImage(10, 10, QImage::Format_RGB32).save(QString::fromStdString(folder.File("b.JPG")), "JPG");
    folder.Write("c.jpeg", "x");
    testing::FakePlatform fake;
    qt::QtPictureReader reader;
    fake.platform.pictures = &reader;
    fake.settings.SaveSetting("Settings", "LastDatDirectory", folder.Path());
    frmImage model;
    model.LoadPic(reader, folder.File("a.jpg"));
    qt::FrmImageWindow window(model, fake.platform);
    window.LoadFromModel();
    window.resize(300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QScrollBar* h = window.Picture()->HScroll1();
    QCOMPARE(h->maximum(), 600 - model.view.picture1Width);
    QVERIFY(model.view.picture1Width < 300);
    h->setValue(50);
    QCOMPARE(window.Picture()->Picture2()->x(), -50);
    QCOMPARE(model.view.picture2Left, -50);

    QTest::keyClick(&window, Qt::Key_F10);
    QVERIFY(window.cboPicViewer()->isVisible());
    QCOMPARE(window.cboPicViewer()->count(), 2);
    QVERIFY(window.cboPicViewer()->itemText(1).endsWith("b.JPG"));
    emit window.cboPicViewer()->activated(1);
    QCOMPARE(model.view.picture2Width, 10);
    QVERIFY(model.view.HScroll1.Max < 0);  // smaller than the viewport
    QCOMPARE(window.Picture()->HScroll1()->maximum(), 0);
  }

  void theMapFillsTheMainWindowAndFollowsItsSize() {
    testing::TempFolder folder;
    QImage(900, 700, QImage::Format_RGB32).save(QString::fromStdString(folder.File("map.bmp")), "BMP");
    testing::FakePlatform fake;
    qt::QtPictureReader reader;
    fake.platform.pictures = &reader;
    QMainWindow main;
    MapImage model;
    model.view.Load(reader, folder.File("map.bmp"));
    auto* view = new qt::MapImageView(model, fake.platform, &main);
    QCOMPARE(main.centralWidget(), view);
    view->LoadFromModel();
    main.resize(500, 400);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    const int bar = view->Picture()->VBarWidth();
    QCOMPARE(model.view.picture1Width, view->width() - bar);
    QCOMPARE(view->Picture()->VScroll1()->maximum(), 700 - (view->height() - bar));
    main.resize(700, 500);
    QTRY_COMPARE(model.view.picture1Width, view->width() - bar);
    QCOMPARE(view->Picture()->HScroll1()->maximum(), 900 - model.view.picture1Width);
  }
};

QTEST_MAIN(PrintingAndPicturesTest)
#include "printing_and_pictures_test.moc"
