// The replacement of Descriptions: which answer lines reach the dataset, the closing messages, the
// refusals before a command, the outcomes of the five commands against a scripted service, and a
// run killed between its steps, which must leave the old dataset or the new one, never a mix.
#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <set>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "common/files.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "session/dataset_paths.hpp"
#include "web/replacement_sequence.hpp"
#include "web/response_lines.hpp"
#include "web/town_update.hpp"

namespace benchlog::testing {
namespace {

ReplaceCommand CommandNamed(const std::string& name) {
  const std::map<std::string, ReplaceCommand> commands = {{"county", ReplaceCommand::kCounty},
                                                          {"radius", ReplaceCommand::kRadius},
                                                          {"project", ReplaceCommand::kProject},
                                                          {"bypid", ReplaceCommand::kByPid},
                                                          {"cors", ReplaceCommand::kCorsByState}};
  return commands.at(name);
}

std::string Describe(const MessageRequest& m) {
  return std::string(m.icon == MsgIcon::Critical ? "C" : "-") + "/" + m.title + "/" + m.text;
}

// The sheets of the service's test dataset as the service sends them, LF-separated.
std::string Sheets() { return ReplaceAll(ReadWholeFile(TestData("web/replace/service.dat")), "\r\n", "\n"); }

// A copy of the sample dataset with its index, in a folder that is also App.Path.
struct SampleCopy {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  DatasetState dataset;
  std::string old;
  SampleCopy() {
    old = ReadWholeFile(SampleDataset());
    dataset.DatFile = folder.Write("sample.dat", old);
    dataset.IndexFile = IndexPathFor(folder.Path(), dataset.DatFile);
    EXPECT_TRUE(BuildMarkIndex(dataset.DatFile, dataset.IndexFile, dataset.markIndex, fake.platform));
    fake.progressHistory.clear();
  }
};

TEST(Replacement, AnswerLinesThatReachTheDataset) {
  for (const auto& row : ReadRows("web/response_lines.txt", 25, '|'))
    EXPECT_EQ(IsDescriptionLine(row[0]), row[1] == "1") << "[" << row[0] << "]";
}

TEST(Replacement, ClosingMessages) {
  for (const auto& row : ReadRows("web/final_messages.txt", 8, '|')) {
    const MessageRequest m = FinalMessageOf(RulesFor(CommandNamed(row[0])), std::stoul(row[1]), std::stoul(row[2]));
    EXPECT_EQ(m.title + "|" + m.text, row[3] + "|" + row[4]) << row[0] << " " << row[1] << " " << row[2];
  }
}

TEST(Replacement, TownLinesAndTheirMerge) {
  for (const auto& row : ReadRows("web/town_rows.txt", 9, '|')) EXPECT_EQ(TownTextOfRow(row[0]), row[1]) << row[0];
  for (const auto& row : ReadRows("web/town_merge.txt", 7, '|')) {
    const MergedTowns merged = MergeTowns(row[0]);
    EXPECT_EQ(merged.lines.empty() ? "<none>" : Join(merged.lines, ";"), row[1]) << row[0];
    EXPECT_EQ(merged.dropped, std::stoul(row[2])) << row[0];
  }
}

// A read-only dataset is refused in the command's words where it has a test; a dataset with LF
// line ends by every command.
TEST(Replacement, RefusalsBeforeAnything) {
  for (const auto& c : ReadRows("web/refusals.txt", 7, '|')) {
    TempFolder folder;
    FakePlatform fake;
    const std::string path = folder.Write("d.dat", c[1] == "lf" ? "1      a\n x\n" : "1      a\r\n");
    if (c[1] == "readonly") chmod(path.c_str(), 0444);
    EXPECT_EQ(RefusedForReplacement(CommandNamed(c[0]), path, fake.ui), !c[2].empty()) << c[0] << " " << c[1];
    const std::string shown = fake.ui.messages.empty() ? "" : Describe(fake.ui.messages[0]);
    EXPECT_EQ(shown.substr(0, c[2].size()), c[2]) << c[0] << " " << c[1];
  }
}

TEST(Replacement, OutcomesOfTheFiveCommands) {
  const std::string sheets = Sheets();
  for (const auto& row : ReadRows("web/replacement_runs.txt", 13, '|')) {
    const std::string name = row[0] + " " + row[1] + " " + row[2];
    SampleCopy copy;
    const std::string oldIndex = ReadWholeFile(copy.dataset.IndexFile);
    for (const std::string& kind : Split(row[2], ",")) {
      if (kind == "-") continue;
      const std::map<std::string, std::string> answers = {{"sheets", sheets},
                                                          {"exact", sheets.substr(0, 3000)},
                                                          {"short", sheets.substr(0, 2999)},
                                                          {"empty", ""},
                                                          {"incomplete", "INPUT INCOMPLETE"}};
      copy.fake.http.answers.push_back(answers.at(kind));
    }
    const std::vector<std::string> pids = row[1].empty() ? std::vector<std::string>{} : Split(row[1], ";");
    ReplaceDescriptionsOf(CommandNamed(row[0]), pids, 0, copy.dataset, copy.fake.platform);

    std::vector<std::string> shown;
    for (const auto& m : copy.fake.ui.messages) shown.push_back(Describe(m));
    EXPECT_EQ(Join(shown, " + "), row[3]) << name;
    const std::string now = ReadWholeFile(copy.dataset.DatFile);
    EXPECT_EQ(now != copy.old, row[4] == "1") << name;
    if (now == copy.old) {
      EXPECT_EQ(ReadWholeFile(copy.dataset.IndexFile), oldIndex) << name;
    } else {
      // The old Description is gone; the new one stands once where the answer held it.
      const bool answered = row[2] == "sheets" || row[2] == "exact";
      EXPECT_EQ(Split(now, " FY3209  PID         -  FY3209").size(), answered ? 2u : 1u) << name;
    }
    EXPECT_EQ(copy.fake.shell.trashed.size(), row[5] == "1" ? 1u : 0u) << name;
    if (row[5] == "1" && !copy.fake.shell.trashed.empty()) {
      EXPECT_EQ(ReadWholeFile(copy.fake.shell.trashed[0]), copy.old) << name;
    }
    EXPECT_FALSE(copy.fake.progress.Visible()) << name;
    EXPECT_FALSE(copy.fake.ui.hourglass) << name;
    // No work file is left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(copy.folder.Path()), {}),
              2 + (row[5] == "1" ? 1 : 0)) << name;
  }
}

// Kills a run in a child process at each step and checks that the dataset is the old one or the
// new one, with either its own index or none.
TEST(Replacement, KilledBetweenStepsLeavesTheOldDatasetOrTheNew) {
  SampleCopy done;
  done.fake.http.answers.push_back(Sheets());
  ReplaceDescriptionsOf(ReplaceCommand::kCounty, {"FY3209"}, 0, done.dataset, done.fake.platform);
  const std::string newDataset = ReadWholeFile(done.dataset.DatFile);
  const std::string newIndex = ReadWholeFile(done.dataset.IndexFile);
  ASSERT_NE(newDataset, done.old);

  const char* const steps[] = {"downloaded", "blankings planned", "work dataset written", "compressed", "indexed",
                               "before removing the index", "index removed", "dataset renamed", "index renamed"};
  std::set<std::string> outcomes;
  for (const char* step : steps) {
    SampleCopy copy;
    const std::string oldIndex = ReadWholeFile(copy.dataset.IndexFile);
    copy.fake.http.answers.push_back(Sheets());
    ReplacementOptions options;
    options.betweenSteps = [step](const char* name) {
      if (std::string(name) == step) ::kill(::getpid(), SIGKILL);
    };
    const pid_t child = ::fork();
    if (child == 0) {
      ReplaceDescriptionsOf(ReplaceCommand::kCounty, {"FY3209"}, 0, copy.dataset, copy.fake.platform, options);
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << step;
    const std::string dataset = ReadWholeFile(copy.dataset.DatFile);
    const bool isNew = dataset == newDataset;
    EXPECT_TRUE(isNew || dataset == copy.old) << step;
    if (FileExists(copy.dataset.IndexFile)) {
      EXPECT_EQ(ReadWholeFile(copy.dataset.IndexFile), isNew ? newIndex : oldIndex) << step;
    }
    outcomes.insert(std::string(isNew ? "new" : "old") + (FileExists(copy.dataset.IndexFile) ? "" : " unindexed"));
  }
  EXPECT_EQ(Join({outcomes.begin(), outcomes.end()}, ","), "new,new unindexed,old,old unindexed");

  // A writer stopped half-way leaves its file beside the dataset; the next run removes it.
  SampleCopy again;
  const std::string stray = again.folder.Write("sample.dat.replacing.~123.0", "half");
  again.fake.http.answers.push_back(Sheets());
  ReplaceDescriptionsOf(ReplaceCommand::kCounty, {"FY3209"}, 0, again.dataset, again.fake.platform);
  EXPECT_FALSE(FileExists(stray));
  EXPECT_EQ(ReadWholeFile(again.dataset.DatFile), newDataset);
}

}  // namespace
}  // namespace benchlog::testing
