// parse_bench [--mb N] [--dir FOLDER] [--parse-only RUNS]: times the reading of every Description
// of a generated dataset of N megabytes (100 by default) into the working record, against the
// index build of the same file measured in the same run. Each figure is the best of three runs,
// with the file in the page cache.
//
// The parse is timed from the file to the records, as the index build is: the file is read in
// blocks of 1 MB (the size the index build's line reader reads) into one buffer used again and
// again, each block cut after its last whole Description into lines, and for each Description
// ClearMarkRecord and ParseDescription with all three groups. The parser's loop alone is shown too, and for information the same with the whole
// file read into memory at once and cut into lines, as the export holds it: on this machine most
// of that time goes to the first touch of the freshly allocated memory.
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
#include "dataset/build_mark_index.hpp"
#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "dataset_generator.hpp"
#include "export/parser/mark_record.hpp"
#include "export/parser/parse_description.hpp"
#include "fakes/fakes.hpp"

namespace benchlog::bench {
namespace {

constexpr std::size_t kBlockBytes = 1 << 20;  // as the index build's line reader

// The text cut at every CR LF into `lines` (emptied first), as views into it.
void SplitLines(std::string_view text, std::vector<std::string_view>& lines) {
  lines.clear();
  std::size_t from = 0;
  for (std::size_t end; (end = text.find("\r\n", from)) != std::string_view::npos; from = end + 2)
    lines.push_back(text.substr(from, end - from));
  lines.push_back(text.substr(from));
}

struct ParseOutcome {
  std::size_t descriptions = 0;
  std::size_t failures = 0;
  std::size_t pidMismatches = 0;
  double loopSeconds = 0;  // the parser's loop alone
};

// The export's loop over the Descriptions among `lines`: a line starting with "1" opens one whose
// first line is the next. The PIDs read must be `pids` in order (when `pids` is not empty).
void ParseLoop(const std::vector<std::string_view>& lines, const std::vector<std::string>& pids,
               SupportFiles& support, ParseOutcome& outcome) {
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

// The file read block by block: each block is cut before its last header line (which begins the
// next block), so that it holds whole Descriptions; a Description longer than a block makes the
// buffer grow.
ParseOutcome ParseStreamed(const std::string& dat, const std::vector<std::string>& pids, SupportFiles& support) {
  std::FILE* file = std::fopen(dat.c_str(), "rb");
  if (!file) throw std::runtime_error("cannot open " + dat);
  ParseOutcome outcome;
  std::string buffer(kBlockBytes, '\0');
  std::vector<std::string_view> lines;
  std::size_t filled = 0;
  for (bool end = false; !end;) {
    filled += std::fread(buffer.data() + filled, 1, buffer.size() - filled, file);
    end = filled < buffer.size();
    std::string_view block(buffer.data(), filled);
    if (!end) {
      const auto lastHeader = block.rfind("\r\n1");
      if (lastHeader == std::string_view::npos) {
        buffer.resize(buffer.size() * 2);
        continue;
      }
      block = block.substr(0, lastHeader + 2);
    }
    SplitLines(block, lines);
    outcome.loopSeconds += Seconds([&] { ParseLoop(lines, pids, support, outcome); });
    std::memmove(buffer.data(), buffer.data() + block.size(), filled - block.size());
    filled -= block.size();
  }
  std::fclose(file);
  return outcome;
}

// The whole file read into memory at once and cut into lines, then the loop.
double ParseWhole(const std::string& dat, SupportFiles& support) {
  return Seconds([&] {
    const std::string text = ReadWholeFile(dat);
    std::vector<std::string_view> lines;
    SplitLines(text, lines);
    ParseOutcome outcome;
    ParseLoop(lines, {}, support, outcome);
  });
}

SupportFiles& SourceSupport() {
  static SupportFiles files;
  files.Refresh(std::string(BENCHLOG_SOURCE_DIR) + "/support/", {});
  return files;
}

// --parse-only N: the file of an earlier run read once and parsed N times, for a profiler.
int ParseOnly(const std::string& folder, int runs) {
  const std::string text = ReadWholeFile(folder + "/bench.dat");
  std::vector<std::string_view> lines;
  SplitLines(text, lines);
  for (int i = 0; i < runs; ++i) {
    ParseOutcome outcome;
    const double seconds = Seconds([&] { ParseLoop(lines, {}, SourceSupport(), outcome); });
    std::printf("%zu Descriptions: parse %.3f ms\n", outcome.descriptions, seconds * 1000);
  }
  return 0;
}

void Report(const char* what, double seconds, double build) {
  std::printf("%-38s %10.3f ms %8.2f x\n", what, seconds * 1000, seconds / build);
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/bench.dat";
  const std::string ndx = folder + "/bench.ndx";
  const GeneratedDataset made = GenerateBenchDataset(dat, megabytes);
  std::printf("%llu bytes, %zu Descriptions\n\n", static_cast<unsigned long long>(made.bytes), made.pids.size());
  ReadWholeFile(dat);  // into the page cache

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  MarkIndex index;
  const double build = Best(3, [&] { return Seconds([&] { BuildMarkIndex(dat, ndx, index, fake.platform); }); });
  if (!fake.ui.messages.empty()) throw std::runtime_error("build: " + fake.ui.messages.front().text);

  ParseOutcome outcome;
  double loop = 1e300;
  const double streamed = Best(3, [&] {
    return Seconds([&] {
      outcome = ParseStreamed(dat, made.pids, SourceSupport());
      loop = std::min(loop, outcome.loopSeconds);
    });
  });
  if (outcome.descriptions != made.pids.size() || outcome.failures != 0 || outcome.pidMismatches != 0)
    throw std::runtime_error("parse: " + std::to_string(outcome.descriptions) + " Descriptions, " +
                             std::to_string(outcome.failures) + " not found, " +
                             std::to_string(outcome.pidMismatches) + " PIDs not the generator's");
  const double whole = Best(3, [&] { return ParseWhole(dat, SourceSupport()); });

  std::printf("%-38s %10s    %8s\n", "Operation", "figure", "to build");
  Report("BuildMarkIndex", build, build);
  Report("Parse every Description", streamed, build);
  Report("  of which the parser's loop", loop, build);
  Report("Whole file in memory, then parsed", whole, build);
  std::printf("\nTarget: parsing at most 2 x the index build: %s\n", streamed <= 2 * build ? "met" : "NOT MET");
  std::printf("%zu Descriptions parsed, PIDs as generated\n", outcome.descriptions);
  return 0;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  try {
    const auto options = benchlog::bench::ReadBenchOptions(argc, argv, "benchlog-parse-bench");
    int parseRuns = 0;
    for (int i = 1; i + 1 < argc; i += 2)
      if (std::strcmp(argv[i], "--parse-only") == 0) parseRuns = std::atoi(argv[i + 1]);
    if (parseRuns > 0) return benchlog::bench::ParseOnly(options.folder, parseRuns);
    return benchlog::bench::Run(options.megabytes, options.folder);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "parse_bench: %s\n", failure.what());
    return 1;
  }
}
