// replace_bench [--mb N] [--dir FOLDER]: times the replacement of 1,000 Descriptions spread over a
// generated dataset of N megabytes (100 by default), from the last answer of the service to the new
// index in place: the blanking, the new lines, the compression, the index build and the commit.
// The service's answers come from memory (the marks' own Descriptions, 10 batches of 100), so
// the transfer is not counted.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/description_file.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"
#include "session/dataset_paths.hpp"
#include "web/replacement_sequence.hpp"

namespace benchlog::bench {
namespace {

constexpr std::size_t kReplaced = 1000;
constexpr std::size_t kBatch = 100;

// The scripted service that notes when it hands out its last answer.
class TimedService final : public HttpTransport {
 public:
  explicit TimedService(testing::ScriptedHttp& script) : script_(script) {}
  std::string OpenURL() override {
    script_.URL = URL;
    std::string body = script_.OpenURL();
    if (script_.answers.empty()) lastAnswer = std::chrono::steady_clock::now();
    return body;
  }
  std::chrono::steady_clock::time_point lastAnswer;

 private:
  testing::ScriptedHttp& script_;
};

// Every (records / 1000)th mark of the index.
std::vector<std::string> SpreadPids(const MarkIndex& index) {
  std::vector<std::string> all;
  for (const auto& record : index.Elements())
    if (record.size() > 6 && record[0] != ' ') all.push_back(record.substr(0, 6));
  std::vector<std::string> pids;
  for (std::size_t k = 0; k < kReplaced; ++k) pids.push_back(all[k * (all.size() / kReplaced)]);
  return pids;
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string source = folder + "/replace_source.dat";
  if (!FileExists(source) || FileLength(source) < BenchDatasetBytes(megabytes) || !FitsSizeLimit(FileLength(source)))
    GenerateDataset(source, BenchDatasetBytes(megabytes));

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  DatasetState dataset;
  dataset.DatFile = folder + "/replace_work.dat";
  dataset.IndexFile = IndexPathFor(folder, dataset.DatFile);
  std::filesystem::copy_file(source, dataset.DatFile, std::filesystem::copy_options::overwrite_existing);
  if (!BuildMarkIndex(dataset.DatFile, dataset.IndexFile, dataset.markIndex, fake.platform))
    throw std::runtime_error("index build failed");

  const std::vector<std::string> pids = SpreadPids(dataset.markIndex);
  for (std::size_t b = 0; b < kReplaced; b += kBatch) {
    std::string answer;
    for (std::size_t k = b; k < b + kBatch; ++k) {
      std::string text;
      GetDescription(dataset.markIndex, dataset.DatFile, pids[k], text);
      answer += ReplaceAll(text, "\r\n", "\n");
    }
    fake.http.answers.push_back(answer);
  }
  TimedService service(fake.http);
  fake.platform.http = &service;

  ReplaceDescriptionsOf(ReplaceCommand::kCounty, pids, 0, dataset, fake.platform);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - service.lastAnswer).count();

  const std::string message = fake.ui.messages.empty() ? "" : fake.ui.messages.back().text;
  std::printf("dataset %.1f MB, %zu marks\n", static_cast<double>(FileLength(source)) / 1e6, dataset.markIndex.Size());
  std::printf("Replacing %zu Descriptions, last answer to new index: %.2f s (target under 1.5 s) %s\n", kReplaced,
              seconds, seconds < 1.5 ? "met" : "MISSED");
  std::printf("closing message: %s\n", message.c_str());
  return message == "1000 Descriptions were updated." && seconds < 1.5 ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  return benchlog::bench::RunBenchmark(argc, argv, "replace_bench", benchlog::bench::Run);
}
