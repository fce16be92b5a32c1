// delete_bench [--mb N] [--dir FOLDER]: times Delete Descriptions of 1,000 marks spread over a
// generated dataset of N megabytes (100 by default): the blanking, the compression and the index
// build that the command runs, as the user sees it from "Yes" to the closing message.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "session/dataset_paths.hpp"
#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"
#include "session/frm_select_points.hpp"

namespace benchlog::bench {
namespace {

constexpr std::size_t kDeleted = 1000;

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string source = folder + "/delete_source.dat";
  if (!FileExists(source) || FileLength(source) < BenchDatasetBytes(megabytes) || !FitsSizeLimit(FileLength(source)))
    GenerateDataset(source, BenchDatasetBytes(megabytes));

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  testing::TestSession session;
  session.dataset.DatFile = folder + "/delete_work.dat";
  std::filesystem::copy_file(source, session.dataset.DatFile, std::filesystem::copy_options::overwrite_existing);
  SetDerivedPaths(session, folder);
  if (!BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform))
    throw std::runtime_error("index build failed");

  std::size_t descriptions = 0;
  fake.ui.modalActions.push_back([&](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    descriptions = list.lstPoints.size();
    const std::size_t step = descriptions / kDeleted;
    for (std::size_t k = 0; k < kDeleted; ++k) list.selected[k * step] = true;
    list.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  const CommandTable table = BuildCommandTable();

  const double seconds = Seconds([&] { table.Run("mnuDelDesc", session, fake.platform); });

  const std::string message = fake.ui.messages.empty() ? "" : fake.ui.messages.back().text;
  std::printf("dataset %.1f MB, %zu list items\n", static_cast<double>(FileLength(source)) / 1e6, descriptions);
  std::printf("Delete Descriptions of %zu marks: %.2f s (target under 10 s) %s\n", kDeleted, seconds,
              seconds < 10 ? "met" : "MISSED");
  std::printf("closing message: %s\n", message.c_str());
  return message == "1000 description(s) deleted!" && seconds < 10 ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  return benchlog::bench::RunBenchmark(argc, argv, "delete_bench", benchlog::bench::Run);
}
