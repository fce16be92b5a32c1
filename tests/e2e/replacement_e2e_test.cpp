// The replacement of Descriptions end to end: the five update commands against oco-sim through the
// program's Qt transfer, on a copy of the sample dataset; the result byte for byte, its index as a
// fresh build makes it; and a failing download or disk that leaves dataset and index as they were.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "common/files.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "e2e/sim_client.hpp"
#include "fakes/file_size_limit.hpp"
#include "session/dataset_paths.hpp"
#include "session/frm_view.hpp"
#include "app/command_registry.hpp"
#include "dataset/description_file.hpp"
#include "dataset/mark_lookup.hpp"
#include "web/dlg_lat_lon_rad.hpp"
#include "web/dlg_type_control.hpp"
#include "web/frm_listings.hpp"
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

struct UpdateRun : SimClient {
  OcoSimProcess sim{TestData("web/replace/service.dat")};
  std::string oldDataset, oldIndex;

  UpdateRun() {
    UseService(sim.BaseUrl());
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
    EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), expected);
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

// By PID with the typed marks, and the CORS of a state, against datasets built by hand.
TEST(ReplacementOverHttp, ByPidAndCorsByStateGiveTheHandBuiltDatasets) {
  for (const bool byPid : {true, false}) {
    UpdateRun run;
    run.fake.platform.paths.supportPath = SourceSupport();
    run.session.config.state = "NC NORTH CAROLINA";
    run.fake.ui.modalActions.push_back([byPid](DialogModel& model) {
      if (byPid) {
        auto& view = dynamic_cast<frmView&>(model);
        EXPECT_EQ(view.Caption, "Enter list of PIDs (1000 Maximum):");
        view.txtViewFile = "FY3209\r\nEZ1203\r\nFX2230";
        return;
      }
      auto& states = dynamic_cast<frmOptions&>(model);
      EXPECT_EQ(states.caption + "|" + states.cboChoices, "Select State:|NC NORTH CAROLINA");
      states.filterKey(13);
    });
    if (byPid) mnuUpdateByPID(run.session, run.fake.platform);
    else mnuCORSbyST(run.session, run.fake.platform);
    EXPECT_EQ(run.Messages(), "-/Benchlog/Done!");
    run.ExpectDataset(ReadWholeFile(TestData(byPid ? "web/replace/by_pid_expected.dat" : "web/replace/cors_expected.dat")));
  }
}

// What a replacement must leave: the old dataset with the Descriptions of `pids` blanked (blanks and a
// line end in their place) and the service's Descriptions of `pids` behind it, compressed unless the
// command is the radius update. Checked against the hand-built By PID file below.
std::string ReplacedDataset(UpdateRun& run, const std::vector<std::string>& pids, bool compress) {
  std::string text = run.oldDataset;
  for (const auto& pid : pids) {
    const MarkLocation at = LocateMark(run.session.dataset.markIndex, pid);
    if (at.position == 0) continue;
    const auto length = static_cast<std::size_t>(at.next - at.start);
    text.replace(static_cast<std::size_t>(at.start - 1), length, std::string(length - 2, ' ') + "\r\n");
  }
  const std::string service = run.folder.Write("service.dat", ReadWholeFile(TestData("web/replace/service.dat")));
  MarkIndex serviceIndex;
  EXPECT_TRUE(BuildMarkIndex(service, run.folder.File("service.ndx"), serviceIndex, run.fake.platform));
  for (const auto& pid : pids) {
    std::string description;
    EXPECT_EQ(GetDescription(serviceIndex, service, pid, description), "") << pid;
    text += description;
  }
  const std::string expected = run.folder.Write("expected.dat", text);
  if (compress) CompressDataset(expected, run.fake.platform);
  return ReadWholeFile(expected);
}

TEST(ReplacementOverHttp, TheExpectedDatasetRuleGivesTheHandBuiltByPidFile) {
  UpdateRun run;
  EXPECT_EQ(ReplacedDataset(run, {"FY3209", "EZ1203", "FX2230"}, true),
            ReadWholeFile(TestData("web/replace/by_pid_expected.dat")));
}

// County, radius and project from the menu to the dataset, the dialogs played by a script. The service
// holds FY3209 (ORANGE), FX2230 (DURHAM), EZ1203 (ORANGE) and the CORS DN7001 (ORANGE); the sample has
// all but DN7001. Every listed mark is chosen (the project update lists none: it takes them all).
TEST(ReplacementOverHttp, CountyRadiusAndProjectFromTheMenu) {
  struct Case {
    const char* command;
    std::function<void(UpdateRun&)> script;
    std::vector<std::string> pids;
    const char* message;
  };
  const auto okay = [](DialogModel& model) {
    if (auto* listings = dynamic_cast<frmListings*>(&model)) {
      listings->selected.assign(listings->lstChoices.size(), true);
      listings->cmdOkay_Click();
    } else if (auto* types = dynamic_cast<dlgTypeControl*>(&model)) {
      types->cmdOkay_Click();  // any type, any stability
    }
  };
  const Case cases[] = {
      {"mnuUpdateByCounty", [](UpdateRun& run) {
         run.fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmOptions&>(m).filterKey(13); });
         run.fake.ui.modalActions.push_back([](DialogModel& m) {
           auto& counties = dynamic_cast<frmOptions&>(m);
           counties.cboChoices = "ORANGE";
           counties.cmdOkay_Click();
         });
       }, {"FY3209", "EZ1203", "DN7001"}, "3 Descriptions were updated."},
      {"mnuUpdtLatLonRad", [](UpdateRun& run) {
         run.fake.ui.modalActions.push_back([](DialogModel& m) {
           auto& point = dynamic_cast<dlgLatLonRad&>(m);
           point.Text1 = {"N355300", "W0790300", "5"};  // beside EZ1203; the others lie 9 miles and more away
           point.OKButton_Click();
         });
       }, {"EZ1203"}, "1 Descriptions were updated."},
      {"mnuUpdtbyProj", [](UpdateRun& run) { run.fake.ui.inputAnswers = {"FX0001"}; }, {"FX2230"}, "Done!"},
  };
  for (const Case& c : cases) {
    UpdateRun run;
    run.fake.platform.paths.supportPath = SourceSupport();
    run.session.config.state = "NC NORTH CAROLINA";
    c.script(run);
    run.fake.ui.modalActions.push_back(okay);  // the type of control
    if (c.command != std::string("mnuUpdtbyProj")) run.fake.ui.modalActions.push_back(okay);  // the list of marks
    run.fake.ui.msgAnswers.push_back(MsgResult::Yes);
    const std::string expected = ReplacedDataset(run, c.pids, c.command != std::string("mnuUpdtLatLonRad"));
    BuildCommandTable().Run(c.command, run.session, run.fake.platform);
    EXPECT_TRUE(run.fake.ui.modalActions.empty()) << c.command;
    EXPECT_EQ(run.fake.ui.messages.back().text, c.message) << c.command;
    std::string query;
    for (std::size_t i = 0; i < c.pids.size(); ++i) query += (i ? "&" : "") + std::to_string(i + 1) + "=" + c.pids[i];
    const std::string log = SimGet(run.sim.BaseUrl() + "/sim/log");
    EXPECT_NE(log.find("GET /cgi-bin/ds_pids.prl?" + query + " HTTP"), std::string::npos) << log;
    run.ExpectDataset(expected);
    const bool radius = c.command == std::string("mnuUpdtLatLonRad");  // its backup, the old dataset, is trashed
    EXPECT_EQ(run.fake.shell.trashed.size(), radius ? 1u : 0u) << c.command;
  }
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
