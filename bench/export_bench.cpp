// export_bench [--mb N] [--dir FOLDER]: times the Export command on every mark of a generated
// dataset of N megabytes (100 by default) to both listings, beside the index build of the same
// file measured in the same run. Each figure is the best of five runs, the two timed in turn, with
// the file in the page cache. The target: the export takes at most 3 times the index build.
// With the program's database engine built in, the same export with the database and every
// column ticked is timed beside the export without it: at most 3 times.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "session/session.hpp"
#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "dataset_generator.hpp"
#include "export/export_commands.hpp"
#include "export/export_forms.hpp"
#include "export/frm_cdt.hpp"
#include "fakes/fakes.hpp"
#ifdef BENCHLOG_BENCH_DATABASE
#include <QCoreApplication>

#include "platform/qt/qt_database.hpp"
#endif

namespace benchlog::bench {
namespace {

// The support files are copied beside the program by the build.
std::string SupportFolder() { return std::filesystem::canonical("/proc/self/exe").parent_path().string(); }

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/bench.dat";
  const std::string ndx = folder + "/bench.ndx";
  const GeneratedDataset made = GenerateBenchDataset(dat, megabytes);
  std::printf("%llu bytes, %zu Descriptions\n\n", static_cast<unsigned long long>(made.bytes), made.pids.size());
  ReadWholeFile(dat);  // into the page cache

  testing::FakePlatform fake(SupportFolder());
  fake.progress.observer = nullptr;
  testing::TestSession session;
  // GRS 80, as the shipped configuration has it.
  session.config.ellipsoidA = 6378137.0;
  session.config.ellipsoidE2 = 0.00669438002290;
  session.config.ellipsoidEp2 = 0.00669438002290 / (1 - 0.00669438002290);
  session.dataset.DatFile = dat;
  session.dataset.DatFilePath = folder + "/";

  // All marks of the dataset (a Colorado one) to both listings in Colorado Central, grid feet.
  frmOutputOptions& options = OutputOptionsForm(session, fake.platform);
  options.SetAllStations(true);
  options.chkHoriz = options.chkVert = 1;
  options.cboProjZone = "CO C  0502";
  options.SetUnits(true, false, false);
  const std::string out = folder + "/bench.out";
  const auto build = [&] { return Seconds([&] { BuildMarkIndex(dat, ndx, session.dataset.markIndex, fake.platform); }); };
  // The Export command itself, the user answering Okay (in frmCDT too when the database is
  // ticked) and the output name.
  const auto exportAll = [&] {
    fake.ui.messages.clear();
    fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<frmOutputOptions&>(model).cmdOkay_Click(); });
    if (options.chkDB == 1)
      fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<frmCDT&>(model).cmdOkay_Click(); });
    fake.ui.fileAnswers.push_back(out);
    const double seconds = Seconds([&] { mnuExport(session, fake.platform); });
    if (fake.ui.MessageTexts() != std::vector<std::string>{"Processing complete!"})
      throw std::runtime_error("the export did not complete");
    return seconds;
  };
  const BestPair best = BestInTurn(5, build, exportAll);
#ifdef BENCHLOG_BENCH_DATABASE
  // The same export with the GeoPackage of every column, all marks in rows.
  qt::QtDatabase engine;
  fake.platform.database = &engine;
  frmCDT& cdt = CdtForm(session, fake.platform);
  cdt.cmdCheckAll_Click();
  const auto exportWithDatabase = [&] {
    options.chkDB = 1;
    const double seconds = exportAll();
    options.chkDB = 0;
    return seconds;
  };
  const BestPair withDatabase = BestInTurn(5, exportAll, exportWithDatabase);
#endif

  const double ratio = best.second / best.first;
  std::printf("%-34s %10.3f ms\n", "BuildMarkIndex", best.first * 1000);
  std::printf("%-34s %10.3f ms\n", "Export to .hcl and .vcl", best.second * 1000);
  std::printf("%-34s %10.3f x    target <= 3: %s\n", "  ratio to the index build", ratio, ratio <= 3 ? "met" : "NOT MET");
#ifdef BENCHLOG_BENCH_DATABASE
  const double databaseRatio = withDatabase.second / withDatabase.first;
  std::printf("%-34s %10.3f ms\n", "Export with the database", withDatabase.second * 1000);
  std::printf("%-34s %10.3f x    target <= 3: %s\n", "  ratio to the export without", databaseRatio,
              databaseRatio <= 3 ? "met" : "NOT MET");
  std::printf("Database: %llu bytes\n", static_cast<unsigned long long>(FileLength(folder + "/bench.gpkg")));
#endif
  std::printf("\nListings: %llu and %llu bytes\n", static_cast<unsigned long long>(FileLength(folder + "/bench.hcl")),
              static_cast<unsigned long long>(FileLength(folder + "/bench.vcl")));
  return 0;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
#ifdef BENCHLOG_BENCH_DATABASE
  QCoreApplication app(argc, argv);  // the database engine's driver is a Qt plugin
#endif
  return benchlog::bench::RunBenchmark(argc, argv, "export_bench", benchlog::bench::Run);
}
