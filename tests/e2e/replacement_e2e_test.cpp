// The replacement of Descriptions end to end: By PID and CORS by state against oco-sim through the
// program's Qt transfer, on a copy of the sample dataset; the result byte for byte, its index as a
// fresh build makes it; and a failing download or disk that leaves dataset and index as they were.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/files.hpp"
#include "e2e/sim_get.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "fakes/fakes.hpp"
#include "fakes/file_size_limit.hpp"
#include "fakes/oco_sim_process.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "platform/qt/qt_http_transport.hpp"
#include "session/dataset_paths.hpp"
#include "session/frm_view.hpp"
#include "web/frm_options.hpp"
#include "web/town_update.hpp"
#include "web/update_by_pid.hpp"

namespace benchlog::testing {
namespace {

// The Qt transfer that, just before request number `faultAt`, tells oco-sim to answer the next five
// requests for Descriptions with an empty body.
class FaultingTransport final : public HttpTransport {
 public:
  FaultingTransport(HttpTransport& inner, std::string simUrl, int faultAt)
      : inner_(inner), simUrl_(std::move(simUrl)), faultAt_(faultAt) {}
  std::string OpenURL() override {
    if (++requests_ == faultAt_) {
      EXPECT_EQ(SimGet(simUrl_ + "/sim/fault?path=/cgi-bin/ds_pids.prl&kind=empty&count=5"), "OK\n");
    }
    inner_.URL = URL;
    return inner_.OpenURL();
  }

 private:
  HttpTransport& inner_;
  std::string simUrl_;
  int faultAt_;
  int requests_ = 0;
};

struct UpdateRun {
  OcoSimProcess sim{TestData("web/replace/service.dat")};
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  qt::QtHttpTransport transport{fake.settings};
  TestSession session;
  std::string oldDataset, oldIndex;

  UpdateRun() {
    fake.settings.SaveSetting("Settings", "ServiceAddress", sim.BaseUrl());
    fake.settings.SaveSetting("Settings", "RetryWait", "0.05");
    fake.settings.SaveSetting("Settings", "RequestTimeout", "2");
    fake.platform.http = &transport;
    oldDataset = ReadWholeFile(SampleDataset());
    session.dataset.DatFile = folder.Write("sample.dat", oldDataset);
    SetDerivedPaths(session, folder.Path());
    EXPECT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex,
                               fake.platform));
    oldIndex = ReadWholeFile(session.dataset.IndexFile);
  }

  std::string Messages() const {
    std::vector<std::string> shown;
    for (const auto& m : fake.ui.messages)
      shown.push_back((m.icon == MsgIcon::Critical ? "C/" : "-/") + m.title + "/" + m.text);
    return Join(shown, " + ");
  }

  // The dataset is `expected` byte for byte, and its index file and the index in memory are what a
  // fresh build of it makes.
  void ExpectDataset(const std::string& expected) {
    EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), ReadWholeFile(TestData(expected)));
    MarkIndex fresh;
    const std::string freshPath = folder.File("fresh.ndx");
    ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, freshPath, fresh, fake.platform));
    EXPECT_EQ(ReadWholeFile(session.dataset.IndexFile), ReadWholeFile(freshPath));
    EXPECT_EQ(session.dataset.markIndex.Elements(), fresh.Elements());
  }

  void ExpectUnchanged() {
    EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), oldDataset);
    EXPECT_EQ(ReadWholeFile(session.dataset.IndexFile), oldIndex);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2);  // no work file left
  }
};

TEST(ReplacementOverHttp, ByPidReplacesTheTypedMarks) {
  UpdateRun run;
  run.fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& view = dynamic_cast<frmView&>(model);
    EXPECT_EQ(view.Caption, "Enter list of PIDs (1000 Maximum):");
    view.txtViewFile = "FY3209\r\nEZ1203\r\nFX2230";
  });
  mnuUpdateByPID(run.session, run.fake.platform);
  EXPECT_EQ(run.Messages(), "-/Benchlog/Done!");
  run.ExpectDataset("web/replace/by_pid_expected.dat");
}

TEST(ReplacementOverHttp, CorsByStateAddsTheStationsOfTheState) {
  UpdateRun run;
  run.fake.platform.paths.supportPath = SourceSupport();
  run.session.config.state = "NC NORTH CAROLINA";
  run.fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& states = dynamic_cast<frmOptions&>(model);
    EXPECT_EQ(states.caption + "|" + states.cboChoices, "Select State:|NC NORTH CAROLINA");
    states.filterKey(13);
  });
  mnuCORSbyST(run.session, run.fake.platform);
  EXPECT_EQ(run.Messages(), "-/Benchlog/Done!");
  run.ExpectDataset("web/replace/cors_expected.dat");
}

// The county and project updates of the same marks end in the same dataset as By PID (all three
// compress); only their closing messages differ.
TEST(ReplacementOverHttp, CountyAndProjectUpdatesGiveTheSameDataset) {
  const std::pair<ReplaceCommand, const char*> cases[] = {
      {ReplaceCommand::kCounty, "-/Benchlog/3 Descriptions were updated."},
      {ReplaceCommand::kProject, "-/Benchlog/Done!"},
  };
  for (const auto& [command, message] : cases) {
    UpdateRun run;
    ReplaceDescriptionsOf(command, {"FY3209", "EZ1203", "FX2230"}, 0, run.session.dataset, run.fake.platform);
    EXPECT_EQ(run.Messages(), message);
    run.ExpectDataset("web/replace/by_pid_expected.dat");
  }
}

// The radius update does not compress: the old text stays with the three Descriptions blanked (blanks
// and line ends) and the new ones behind it, which compressed give By PID's dataset; a copy of the
// old dataset goes to the trash.
TEST(ReplacementOverHttp, RadiusKeepsTheBlanksAndTrashesTheOldDataset) {
  UpdateRun run;
  ReplaceDescriptionsOf(ReplaceCommand::kRadius, {"FY3209", "EZ1203", "FX2230"}, 0, run.session.dataset,
                        run.fake.platform);
  EXPECT_EQ(run.Messages(), "-/Benchlog/3 Descriptions were updated.");
  const std::string result = ReadWholeFile(run.session.dataset.DatFile);
  ASSERT_GT(result.size(), run.oldDataset.size());
  std::size_t blanked = 0;
  for (std::size_t i = 0; i < run.oldDataset.size(); ++i) {
    if (result[i] == run.oldDataset[i]) continue;
    ++blanked;
    ASSERT_TRUE(result[i] == ' ' || result[i] == '\r' || result[i] == '\n') << i;  // blanks and line ends
  }
  EXPECT_GT(blanked, 3 * 1000u);  // three whole Descriptions
  const std::string compressed = run.folder.Write("compressed.dat", result);
  CompressDataset(compressed, run.fake.platform);
  EXPECT_EQ(ReadWholeFile(compressed), ReadWholeFile(TestData("web/replace/by_pid_expected.dat")));
  EXPECT_EQ(run.fake.shell.trashed, std::vector<std::string>{run.session.dataset.DatFile + ".before-update"});
}

// A project update stops at a failure of its download; here the second of two batches fails.
TEST(ReplacementOverHttp, AFailingSecondBatchLeavesTheDatasetAsItWas) {
  UpdateRun run;
  FaultingTransport faulting(run.transport, run.sim.BaseUrl(), 2);
  run.fake.platform.http = &faulting;
  std::vector<std::string> pids(101, "EZ1203");
  pids[0] = "FY3209";
  ReplaceDescriptionsOf(ReplaceCommand::kProject, pids, 0, run.session.dataset, run.fake.platform);
  EXPECT_EQ(run.Messages(), "C/Import from Internet by Project/Request timeout.\r\nNo response received.");
  run.ExpectUnchanged();
}

// By PID goes on whatever the download says, so the disk is what fails: a write stops half-way.
TEST(ReplacementOverHttp, AWriteThatFailsHalfWayLeavesTheDatasetAsItWas) {
  UpdateRun run;
  run.fake.ui.modalActions.push_back(
      [](DialogModel& model) { dynamic_cast<frmView&>(model).txtViewFile = "FY3209\r\nEZ1203"; });
  {
    FileSizeLimit limit(run.oldDataset.size() / 2);
    mnuUpdateByPID(run.session, run.fake.platform);
  }
  ASSERT_EQ(run.fake.ui.messages.size(), 1u);
  EXPECT_EQ(run.fake.ui.messages[0].title, "Error 75");
  EXPECT_EQ(run.fake.ui.messages[0].icon, MsgIcon::Critical);
  EXPECT_NE(run.fake.ui.messages[0].text.find("sample.dat"), std::string::npos);
  run.ExpectUnchanged();
}

// The towns of a state fetched twice: the second time adds none and leaves the file as it was.
TEST(ReplacementOverHttp, TownsOfAStateFetchedTwice) {
  UpdateRun run;
  run.folder.Write("Country.dat", ReadWholeFile(SourceSupport() + "Country.dat"));
  for (const int key : {27, 13})  // Esc ends the command at once; Enter takes the preset state
    run.fake.ui.modalActions.push_back([key](DialogModel& model) {
      auto& states = dynamic_cast<frmOptions&>(model);
      states.cboChoices = "NC NORTH CAROLINA";
      states.filterKey(key);
    });
  mnuGetTownOCO(run.session, run.fake.platform);
  EXPECT_FALSE(FileExists(run.folder.File("Towns.txt")));
  mnuGetTownOCO(run.session, run.fake.platform);
  const std::string towns = ReadWholeFile(run.folder.File("Towns.txt"));
  const std::vector<std::string> lines = Split(towns, "\r\n");
  ASSERT_EQ(lines.size(), 4u);  // three quads, and nothing behind the last CR LF
  EXPECT_EQ(lines[0].substr(0, 29), "CHAPEL HILL                  ");  // the quad of EZ1203, first in order
  GetTownsOfState("NC", run.fake.platform);
  EXPECT_EQ(run.Messages(), "-/Benchlog/" + std::to_string(lines.size() - 1) + " New towns added. + -/Benchlog/0 New towns added.");
  EXPECT_EQ(ReadWholeFile(run.folder.File("Towns.txt")), towns);
}

}  // namespace
}  // namespace benchlog::testing
