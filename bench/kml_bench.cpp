// kml_bench [--mb N] [--dir FOLDER]: times the Google Earth command (the KML file of every mark of
// the index, written beside the dataset) on the index of a generated dataset of N megabytes (100
// by default), the best of five runs, and checks that every mark became a placemark.
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "common/files.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "kml/kml_export.hpp"
#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"

namespace benchlog::bench {
namespace {

constexpr double kTargetSeconds = 0.5;

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t n = 0;
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
  return n;
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/bench.dat";
  const GeneratedDataset made = GenerateBenchDataset(dat, megabytes);

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  testing::TestSession session;
  session.dataset.DatFile = dat;
  if (!BuildMarkIndex(dat, folder + "/bench.ndx", session.dataset.markIndex, fake.platform))
    throw std::runtime_error("the index build failed");

  const double seconds = Best(5, [&] { return Seconds([&] { mnuViewGE(session, fake.platform); }); });
  const std::string kml = ReadWholeFile(KmlPathFor(dat));
  const std::size_t placemarks = Count(kml, "<Placemark>");
  std::printf("%zu Descriptions, %zu placemarks, %llu bytes of KML\n", made.pids.size(), placemarks,
              static_cast<unsigned long long>(kml.size()));
  std::printf("mnuViewGE %.3f s (target under %.1f s): %s\n", seconds, kTargetSeconds,
              seconds < kTargetSeconds ? "met" : "NOT MET");
  if (placemarks != made.pids.size()) throw std::runtime_error("a mark is missing from the KML file");
  return seconds < kTargetSeconds ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  return benchlog::bench::RunBenchmark(argc, argv, "kml_bench", benchlog::bench::Run);
}
