// The plot window offscreen: it paints the model's primitive list, scaled to its canvas, and its
// Options menu reaches the model and the settings.
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QTest>

#include "fakes/fakes.hpp"
#include "plot/frm_plot.hpp"
#include "plot/ui/frm_plot_window.hpp"
#include "plot/ui/plot_painter.hpp"

using namespace benchlog;

class FrmPlotTest : public QObject {
  Q_OBJECT

 private:
  // Is there a pixel near (x, y) of `image` whose colour is close to `color` (0x00BBGGRR)?
  static bool ColorNear(const QImage& image, int x, int y, std::uint32_t color) {
    const QColor want(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
    for (int dx = -2; dx <= 2; ++dx)
      for (int dy = -2; dy <= 2; ++dy) {
        const QColor got = image.pixelColor(x + dx, y + dy);
        if (std::abs(got.red() - want.red()) < 60 && std::abs(got.green() - want.green()) < 60 &&
            std::abs(got.blue() - want.blue()) < 60)
          return true;
      }
    return false;
  }

 private slots:
  // World 0..1000 east, 0..750 north onto the canvas: a red box, a blue line and a label, each
  // found at its place in the window's own painting; the background is white elsewhere.
  void PaintsTheModelsList() {
    testing::FakePlatform fake;
    frmPlot model;
    model.platform = &fake.platform;
    model.Caption = "Viewing area: 31 X 41 Km";
    model.canvas.SetScale(0, 750, 1000, 0);
    model.canvas.Box(100, 650, 400, 350, kColorRed);
    model.canvas.LineBy(500, 100, 400, 0, kColorBlue);
    model.canvas.foreColor = kColorBlack;
    model.canvas.fontSize = 14;
    model.canvas.currentX = 500;
    model.canvas.currentY = 700;
    model.canvas.Print("WWWWWW");
    qt::FrmPlotWindow window(model);
    window.LoadFromModel();
    window.resize(600, 500);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.windowTitle(), QString("Viewing area: 31 X 41 Km"));
    QWidget* canvas = window.Canvas();
    QCOMPARE(model.clientWidth, double(canvas->width()));
    QCOMPARE(model.clientHeight, double(canvas->height()));
    const QImage image = canvas->grab().toImage();
    const double sx = image.width() / 1000.0;
    const double sy = image.height() / 750.0;
    auto at = [&](double east, double north) { return QPoint(int(east * sx), int((750 - north) * sy)); };
    const QPoint boxLeft = at(100, 500), boxInside = at(250, 500), line = at(700, 100), text = at(520, 690);
    QVERIFY(ColorNear(image, boxLeft.x(), boxLeft.y(), kColorRed));
    QCOMPARE(image.pixelColor(boxInside), QColor(Qt::white));
    QVERIFY(ColorNear(image, line.x(), line.y(), kColorBlue));
    QVERIFY(!ColorNear(image, line.x(), line.y() - 20, kColorBlue));
    bool inked = false;
    for (int x = text.x(); x < text.x() + 40 && !inked; ++x) inked = image.pixelColor(x, text.y() + 6).value() < 128;
    QVERIFY(inked);
  }

  // Labels stamped into a 32-bit image look as Qt draws them (into a byte-ordered image, which Qt
  // paints its own way), at one and two device pixels a logical pixel: overlapping, in two sizes
  // and colours, with code-page bytes, and cut at the target's edge, outside which nothing changes.
  void StampedLabelsLookAsQtDrawsThem() {
    PlotCanvas canvas;
    canvas.SetScale(0, 300, 400, 0);
    const auto print = [&](double x, double y, double size, std::uint32_t color, const char* text) {
      canvas.currentX = x, canvas.currentY = y, canvas.fontSize = size, canvas.foreColor = color;
      canvas.Print(text);
    };
    print(10, 290, 8, kColorBlack, "FY3210 W 21 \xb0 gjpqy");
    print(20, 285, 14, kColorRed, "OVERLAP @#%&");
    print(250, 120, 10, kColorBlue, "CUT AT THE EDGE");
    for (const double ratio : {1.0, 2.0}) {
      QImage stamped(int(400 * ratio), int(300 * ratio), QImage::Format_RGB32);
      QImage drawn(stamped.size(), QImage::Format_RGBX8888);
      long inked = 0;
      int worst = 0;
      for (QImage* image : {&stamped, &drawn}) {
        image->fill(QColor(200, 220, 240));
        image->setDevicePixelRatio(ratio);
        QPainter painter(image);
        qt::PaintPlot(painter, canvas, QRectF(0, 0, 300, 250));
      }
      const QImage reference = drawn.convertToFormat(QImage::Format_RGB32);
      for (int y = 0; y < stamped.height(); ++y)
        for (int x = 0; x < stamped.width(); ++x) {
          const QRgb a = stamped.pixel(x, y), b = reference.pixel(x, y);
          worst = std::max({worst, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
          inked += qGray(a) < 128;
        }
      QVERIFY2(worst <= 2, qPrintable(QString("ratio %1: a channel differs by %2").arg(ratio).arg(worst)));
      QVERIFY(inked > 300 * ratio * ratio);
      QCOMPARE(stamped.pixelColor(int(310 * ratio), int(122 * ratio)), QColor(200, 220, 240));
    }
  }

  // Point numbers and PIDs turn each other off in the window and the model; a label turned off so
  // keeps its setting.
  void OptionsReachTheModelAndTheSettings() {
    testing::FakePlatform fake;
    frmPlot model;
    model.Load(fake.settings);
    model.platform = &fake.platform;
    qt::FrmPlotWindow window(model);
    window.LoadFromModel();
    const auto checked = [&](const char* name) { return window.Action(name)->isChecked(); };
    QVERIFY(checked("mnuPltNum") && checked("mnuPltPID") && checked("mnuPltDes") && checked("mnuPlotGridTks"));
    QVERIFY(!checked("mnuPlotCities"));
    for (const char* name : {"mnuPltPID", "mnuPltNum", "mnuPltPID"}) window.Action(name)->trigger();
    QVERIFY(checked("mnuPltPID") && !checked("mnuPltNum"));  // PIDs on again: numbers stay off
    window.Action("mnuPltNum")->trigger();  // on: PIDs off
    QVERIFY(checked("mnuPltNum") && !checked("mnuPltPID") && !model.mnuPltPID);
    const auto setting = [&](const char* key) { return QString::fromStdString(fake.settings.GetSetting("frmPlot", key, "")); };
    QCOMPARE(setting("PlotPid") + setting("PlotNum"), QString("TrueTrue"));
    window.Action("mnuPlotCities")->trigger();
    QVERIFY(model.mnuPlotCities);
    QCOMPARE(setting("PlotCities"), QString("True"));
  }

  // The canvas shows 1000 x 750 m with two marks on its middle line; the mouse picks, drags a band
  // that is painted over the drawing and gone after the release, and opens the popup.
  void MouseActsReachTheModel() {
    testing::FakePlatform fake;
    frmPlot model;
    model.platform = &fake.platform;
    model.store.FirstPoint = 1, model.store.LastPoint = 2;
    model.store.PtNorth[1] = model.store.PtNorth[2] = 4000375;
    model.store.PtEast[1] = 600250, model.store.PtEast[2] = 600750;
    model.ZoomLevel = model.BaseLevel = 5;
    model.canvas.SetScale(600000, 4000750, 601000, 4000000);
    qt::FrmPlotWindow window(model);
    window.LoadFromModel();
    window.resize(600, 500);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QWidget* canvas = window.Canvas();
    auto at = [&](double east, double north) {
      return QPoint(int((east - 600000) / 1000 * canvas->width()), int((4000750 - north) / 750 * canvas->height()));
    };
    const QPoint corner = at(600100, 4000600), far = at(600400, 4000100);
    const QImage before = canvas->grab().toImage();
    QCOMPARE(before.pixelColor(far.x(), corner.y()), QColor(Qt::white));

    QTest::mousePress(canvas, Qt::LeftButton, {}, corner);
    QTest::mouseMove(canvas, far);
    QVERIFY(model.BandActive);
    QVERIFY(window.windowTitle().startsWith("UTM  North=4,000,"));
    QVERIFY(window.windowTitle().endsWith("  Zoom factor= 5"));
    const QImage banded = canvas->grab().toImage();
    QVERIFY(banded.pixelColor(far.x(), corner.y()).value() < 128);  // the band's top right corner, inverted
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, far);
    QVERIFY(!model.BandActive);
    QVERIFY(std::abs(model.CenterEast - 600250) < 5);
    QVERIFY(std::abs(model.CenterNorth - 4000350) < 5);
    QCOMPARE(canvas->grab().toImage().pixelColor(far.x(), corner.y()), QColor(Qt::white));

    QTest::mousePress(canvas, Qt::RightButton, {}, at(600700, 4000400));
    QCOMPARE(model.PickedPoint, std::int16_t(2));
    QVERIFY(window.Popup()->isVisible());
    window.Action("mnuInverse")->trigger();
    window.Popup()->hide();
    QVERIFY(model.InverseMode);
    QCOMPARE(model.FromPoint, std::int16_t(2));
    QCOMPARE(canvas->cursor().shape(), Qt::CrossCursor);
  }
};

QTEST_MAIN(FrmPlotTest)
#include "frm_plot_test.moc"
