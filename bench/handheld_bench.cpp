// handheld_bench [--mb N] [--dir FOLDER]: times the delimited conversion of a file of 1,000,000
// lines (positions in several of the accepted forms) and the search for positions in the text of a
// generated dataset of N megabytes (100 by default), each the best of three runs, and checks the
// count of records written.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "common/text.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"
#include "handheld/dlg_delim_and_type.hpp"
#include "handheld/handheld_commands.hpp"

namespace benchlog::bench {
namespace {

constexpr int kLines = 1000000;
constexpr double kDelimitedTarget = 2.0;
constexpr double kTextTarget = 3.0;

void WriteDelimitedFile(const std::string& path) {
  const char* forms[] = {"N39 15 44.123,W77 12 34.567", "39.262361,77.209602", "39-15-44.123,077-12-34.567",
                         "391544.123,0771234.567"};
  LineWriter out(path);
  char line[128];
  for (int i = 0; i < kLines; ++i) {
    std::snprintf(line, sizeof line, "AB%04d,MARK %d,%s", i % 10000, i, forms[i % 4]);
    out.WriteLine(line);
  }
  out.Close();
}

double ConvertDelimited(const std::string& path) {
  testing::FakePlatform fake;
  testing::TestSession session;
  fake.ui.fileAnswers = {path};
  fake.ui.modalActions = {[&fake](DialogModel& model) {
    auto& dialog = dynamic_cast<dlgDelimAndType&>(model);
    dialog.SetDataType(0, "PID");
    dialog.SetDataType(1, "Designation");
    dialog.SetDataType(2, "Lat (NDD MM SS.sssss)");
    dialog.SetDataType(3, "Lon (WDDD MM SS.sssss)");
    dialog.cboDelimChar = "Comma (,)";
    dialog.cboHTech = "X";
    dialog.OKButton_Click(fake.ui, fake.settings);
  }};
  fake.ui.msgAnswers = {MsgResult::Yes};  // the output of the run before
  fake.ui.inputAnswers = {"OCOFLD"};
  const std::clock_t cpuStart = std::clock();
  const double seconds = Seconds([&] { mnuConvDelimtoHH(session, fake.platform); });
  std::printf("  one conversion: %.3f s, of which %.3f s on the processor\n", seconds,
              static_cast<double>(std::clock() - cpuStart) / CLOCKS_PER_SEC);
  return seconds;
}

double SearchText(const std::string& dat, const std::string& hh) {
  testing::FakePlatform fake;
  testing::TestSession session;
  fake.progress.observer = nullptr;
  session.dataset.DatFile = dat;
  fake.ui.fileAnswers = {hh};
  fake.ui.modalActions = {[](DialogModel&) {}};
  return Seconds([&] { mnuLatLoninTxt(session, fake.platform); });
}

std::size_t CountLines(const std::string& path) {
  if (!FileExists(path)) return 0;
  const std::string text = ReadWholeFile(path);
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string csv = folder + "/positions.csv";
  WriteDelimitedFile(csv);
  const double delimited = Best(3, [&] { return ConvertDelimited(csv); });
  const std::size_t records = CountLines(folder + "/positions_hh.txt");
  std::printf("delimited: %d lines, %zu records, %.3f s (target under %.1f s): %s\n", kLines, records, delimited,
              kDelimitedTarget, delimited < kDelimitedTarget ? "met" : "NOT MET");
  if (records != static_cast<std::size_t>(kLines)) throw std::runtime_error("a line was not converted");

  const std::string dat = folder + "/bench.dat";
  GenerateBenchDataset(dat, megabytes);
  const double text = Best(3, [&] { return SearchText(dat, folder + "/found.txt"); });
  std::printf("positions in text: %zu report lines, %zu HH records, %.3f s (target under %.1f s): %s\n",
              CountLines(folder + "/foundGeoPos.Rpt"), CountLines(folder + "/found.txt"), text, kTextTarget,
              text < kTextTarget ? "met" : "NOT MET");
  return delimited < kDelimitedTarget && text < kTextTarget ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  return benchlog::bench::RunBenchmark(argc, argv, "handheld_bench", benchlog::bench::Run);
}
