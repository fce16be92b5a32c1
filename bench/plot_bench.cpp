// plot_bench [--mb N] [--dir FOLDER]: times the plot's two costs on a generated dataset of N
// megabytes (100 by default), the best of five runs each:
//   - preparing the plot files (every mark of the index and the towns of its extent projected into
//     one UTM zone), target under 0.5 s;
//   - drawing the full view of 9,999 marks (the store's limit) into the primitive list and painting
//     it into an off-screen 1200 x 900 image, target under 50 ms; the image is left in FOLDER as
//     plot_view.png;
//   - the nearest-mark pick among those 9,999 marks, as every click on the plot makes it, target
//     under 1 ms a pick.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"
#include "plot/frm_plot.hpp"
#include "plot/nearest_mark.hpp"
#include "plot/plot_files.hpp"
#include "plot/ui/plot_painter.hpp"

namespace benchlog::bench {
namespace {

constexpr double kPrepareTarget = 0.5;
constexpr double kDrawTarget = 0.050;
constexpr double kPickTarget = 0.001;
constexpr int kPicks = 1000;

// One pick's time, from the best of five rounds of 1,000 picks spread over the store's extent.
double TimePick(const PlotStore& store) {
  std::int16_t point = 0;
  std::vector<std::int16_t> samePlace;
  long picked = 0;
  const double round = Best(5, [&] {
    return Seconds([&] {
      for (int i = 0; i < kPicks; ++i) {
        FindNearestPoint(store, 600000 + (i * 7877) % 60000, 4000000 + (i * 3571) % 45000, point, samePlace);
        picked += point;
      }
    });
  });
  if (picked == 0) throw std::runtime_error("the pick found no mark");
  return round / kPicks;
}

// 9,999 marks of every class over about 60 x 45 km, in the plot file's columns.
void WriteFullStore(const std::string& path) {
  static const char* const kHorz[] = {"A", "S", "0", "B", "1", "2", "3", "X", " ", "1"};
  static const char* const kVert[] = {"1", " ", "2", " ", "3", " ", " ", "1", " ", "2"};
  LineWriter file(path);
  for (int n = 1; n <= 9999; ++n) {
    char line[80];
    std::snprintf(line, sizeof line, "%04d %08d %08d %-30s %s %s %s %s%04d", n, 4000000 + (n * 7919) % 45000,
                  600000 + (n * 104729) % 60000, ("MARK " + std::to_string(n)).c_str(), kHorz[n % 10], kVert[n % 10],
                  n % 97 == 0 ? "L" : " ", "BP", n);
    file.WriteLine(line);
  }
  file.Close();
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/bench.dat";
  const GeneratedDataset made = GenerateBenchDataset(dat, megabytes);

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  testing::TestSession session;
  session.config.ellipsoidA = 6378137;
  session.config.ellipsoidE2 = 0.00669438002290;
  session.config.ellipsoidEp2 = 0.00669438002290 / (1 - 0.00669438002290);
  if (!BuildMarkIndex(dat, folder + "/bench.ndx", session.dataset.markIndex, fake.platform))
    throw std::runtime_error("the index build failed");
  const Ellipsoid ellipsoid{session.config.ellipsoidA, session.config.ellipsoidE2, session.config.ellipsoidEp2};
  const std::string support = BENCHLOG_SOURCE_DIR "/support/";

  const double prepare = Best(5, [&] {
    return Seconds([&] { PreparePlotFiles(session.dataset.markIndex, ellipsoid, folder, support); });
  });
  const std::uint64_t coordsBytes = FileLength(folder + "/UTMCoords.dat");
  std::printf("%zu Descriptions, %llu bytes of UTMCoords.dat\n", made.pids.size(),
              static_cast<unsigned long long>(coordsBytes));
  std::printf("PreparePlotFiles %.3f s (target under %.1f s): %s\n", prepare, kPrepareTarget,
              prepare < kPrepareTarget ? "met" : "NOT MET");

  WriteFullStore(folder + "/UTMCoords.dat");
  frmPlot form;
  form.Load(fake.settings);
  form.clientWidth = 1200;
  form.clientHeight = 900;
  form.Plot(session, fake.platform);  // the fresh layout loads the store
  if (form.store.LastPoint != 9999 || !fake.ui.messages.empty()) throw std::runtime_error("the plot failed");
  QImage image(1200, 900, QImage::Format_RGB32);
  const double draw = Best(5, [&] {
    return Seconds([&] {
      form.Plot(session, fake.platform);
      QPainter painter(&image);
      qt::PaintPlot(painter, form.canvas, QRectF(0, 0, 1200, 900));
    });
  });
  const double build = Best(5, [&] { return Seconds([&] { form.Plot(session, fake.platform); }); });
  const double paint = Best(5, [&] {
    return Seconds([&] {
      QPainter painter(&image);
      qt::PaintPlot(painter, form.canvas, QRectF(0, 0, 1200, 900));
    });
  });
  // Kept for a look, and to compare the picture of one version with another's.
  image.save(QString::fromStdString(folder + "/plot_view.png"));
  std::printf("%zu primitives at level %d; building them %.1f ms, painting them %.1f ms\n",
              form.canvas.Primitives().size(), form.ZoomLevel, build * 1000, paint * 1000);
  std::printf("Plot and paint of 9,999 marks %.1f ms (target under %.0f ms): %s\n", draw * 1000, kDrawTarget * 1000,
              draw < kDrawTarget ? "met" : "NOT MET");
  const double pick = TimePick(form.store);
  std::printf("Nearest-mark pick among 9,999 marks %.3f ms (target under %.0f ms): %s\n", pick * 1000,
              kPickTarget * 1000, pick < kPickTarget ? "met" : "NOT MET");
  return prepare < kPrepareTarget && draw < kDrawTarget && pick < kPickTarget ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  return benchlog::bench::RunBenchmark(argc, argv, "plot_bench", benchlog::bench::Run);
}
