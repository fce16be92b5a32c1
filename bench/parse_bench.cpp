// parse_bench [--mb N] [--dir FOLDER] [--parse-only RUNS]: times the reading of every Description of a generated
// dataset of N megabytes (100 by default) into the working record, against the index build of
// the same file measured in the same run. The parse is timed as the export runs it: the file read
// whole, cut into lines at CR LF, the Descriptions found by their header lines, and for each
// ClearMarkRecord and ParseDescription with all three groups. Each figure is the best of three
// runs, with the file in the page cache.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset_generator.hpp"
#include "export/mark_record.hpp"
#include "export/parse_description.hpp"
#include "fakes/fakes.hpp"

namespace benchlog::bench {
namespace {

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Best(int runs, const std::function<double()>& run) {
  double best = 1e300;
  for (int i = 0; i < runs; ++i) best = std::min(best, run());
  return best;
}

// The text cut at every CR LF, as views into it.
std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t from = 0;
  for (std::size_t end; (end = text.find("\r\n", from)) != std::string_view::npos; from = end + 2)
    lines.push_back(text.substr(from, end - from));
  lines.push_back(text.substr(from));
  return lines;
}

struct ParseOutcome {
  std::size_t descriptions = 0;
  std::size_t failures = 0;
  std::size_t pidMismatches = 0;
  double readSeconds = 0;   // reading the file whole and cutting it into lines
  double parseSeconds = 0;  // the loop over the Descriptions
};

// The export's loop over the Descriptions of the text cut into `lines`; the PIDs read must be
// `pids` in order (when `pids` is not empty).
void ParseLoop(const std::vector<std::string_view>& lines, const std::vector<std::string>& pids,
               const std::string& support, ParseOutcome& outcome) {
  MarkRecord record;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    if (lines[i].empty() || lines[i].front() != '1') continue;
    const std::string_view pid = lines[i + 1].substr(1, 6);
    std::string ErrMsg;
    ClearMarkRecord(record);
    ParseDescription(pid, lines, i + 1, ParseGroups{}, ErrMsg, record, support);
    if (!ErrMsg.empty()) ++outcome.failures;
    if (!pids.empty() && (outcome.descriptions >= pids.size() || record.Pid.View() != pids[outcome.descriptions]))
      ++outcome.pidMismatches;
    ++outcome.descriptions;
  }
}

// One pass as the export makes it: the file read whole, cut into lines, the loop.
ParseOutcome ParseAll(const std::string& dat, const std::vector<std::string>& pids, const std::string& support) {
  ParseOutcome outcome;
  std::string text;
  std::vector<std::string_view> lines;
  outcome.readSeconds = Seconds([&] {
    text = ReadWholeFile(dat);
    lines = SplitLines(text);
  });
  outcome.parseSeconds = Seconds([&] { ParseLoop(lines, pids, support, outcome); });
  return outcome;
}

// --parse-only N: the file of an earlier run read once and parsed N times, for a profiler.
int ParseOnly(const std::string& folder, int runs) {
  const std::string support = std::string(BENCHLOG_SOURCE_DIR) + "/support/";
  const std::string text = ReadWholeFile(folder + "/bench.dat");
  const std::vector<std::string_view> lines = SplitLines(text);
  for (int i = 0; i < runs; ++i) {
    ParseOutcome outcome;
    const double seconds = Seconds([&] { ParseLoop(lines, {}, support, outcome); });
    std::printf("%zu Descriptions: parse %.3f ms\n", outcome.descriptions, seconds * 1000);
  }
  return 0;
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/bench.dat";
  const std::string ndx = folder + "/bench.ndx";
  const std::string support = std::string(BENCHLOG_SOURCE_DIR) + "/support/";
  std::printf("Generating %llu MB in %s ...\n", static_cast<unsigned long long>(megabytes), folder.c_str());
  const GeneratedDataset made = GenerateDataset(dat, megabytes * 1000 * 1000);
  std::printf("%llu bytes, %zu Descriptions\n\n", static_cast<unsigned long long>(made.bytes), made.pids.size());
  ReadWholeFile(dat);  // into the page cache

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  MarkIndex index;
  const double build = Best(3, [&] { return Seconds([&] { BuildMarkIndex(dat, ndx, index, fake.platform); }); });
  if (!fake.ui.messages.empty()) throw std::runtime_error("build: " + fake.ui.messages.front().text);

  ParseOutcome outcome;
  double read = 1e300, loop = 1e300;
  const double parse = Best(3, [&] {
    return Seconds([&] {
      outcome = ParseAll(dat, made.pids, support);
      read = std::min(read, outcome.readSeconds);
      loop = std::min(loop, outcome.parseSeconds);
    });
  });
  if (outcome.descriptions != made.pids.size() || outcome.failures != 0 || outcome.pidMismatches != 0)
    throw std::runtime_error("parse: " + std::to_string(outcome.descriptions) + " Descriptions, " +
                             std::to_string(outcome.failures) + " not found, " +
                             std::to_string(outcome.pidMismatches) + " PIDs not the generator's");

  const bool met = parse <= 2 * build;
  std::printf("%-34s %10s\n", "Operation", "figure");
  std::printf("%-34s %10.3f ms\n", "BuildMarkIndex", build * 1000);
  std::printf("%-34s %10.3f ms\n", "Parse every Description", parse * 1000);
  std::printf("%-34s %10.3f ms\n", "  of which reading and cutting", read * 1000);
  std::printf("%-34s %10.3f ms\n", "  of which the parser's loop", loop * 1000);
  std::printf("%-34s %10.3f x   target <= 2  %s\n", "  ratio to the index build", parse / build,
              met ? "met" : "NOT MET");
  std::printf("\n%zu Descriptions parsed, PIDs as generated\n", outcome.descriptions);
  return 0;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  try {
    std::uint64_t megabytes = 100;
    std::string folder = (std::filesystem::temp_directory_path() / "benchlog-parse-bench").string();
    int parseRuns = 0;
    for (int i = 1; i + 1 < argc; i += 2) {
      if (std::strcmp(argv[i], "--mb") == 0) megabytes = std::strtoull(argv[i + 1], nullptr, 10);
      if (std::strcmp(argv[i], "--dir") == 0) folder = argv[i + 1];
      if (std::strcmp(argv[i], "--parse-only") == 0) parseRuns = std::atoi(argv[i + 1]);
    }
    if (parseRuns > 0) return benchlog::bench::ParseOnly(folder, parseRuns);
    return benchlog::bench::Run(megabytes, folder);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "parse_bench: %s\n", failure.what());
    return 1;
  }
}
