#pragma once
// Shared ground of the export driver and listing tests: a scratch folder holding a dataset of
// tests/data/export/listings with the photos and sketches of its marks, a session on it, the
// scripted platform with the support files of the source tree, GRS 80 as the ellipsoid, and one
// export run through the Export command.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "export/export_commands.hpp"
#include "export/export_forms.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "session/frm_select_points.hpp"
#include "session/session.hpp"

namespace benchlog::testing {

// The text of tests/data/export/listings/<name>.
inline std::string ListingFixture(const std::string& name) {
  return ReadWholeFile(TestData("export/listings/" + name));
}

class ExportRunTest : public ::testing::Test {
 protected:
  void SetUp() override {
    fake.platform.paths.supportPath = SourceSupport();
    session.config.ellipsoidA = 6378137.0;
    session.config.ellipsoidE2 = 0.00669438002290;
    session.config.ellipsoidEp2 = 0.00669438002290 / (1 - 0.00669438002290);
    fake.progress.observer = nullptr;  // the history of every refresh is not needed here
  }

  // Copies the dataset into the folder as the session's dataset, with the photos and sketches the
  // sample has for its marks (empty files).
  void OpenDataset(const std::string& name) {
    session.dataset.DatFile = folder.Write(name, ListingFixture(name));
    session.dataset.DatFilePath = folder.Path() + "/";
    for (const char* picture : {"DH7190ph.jpg", "DH7190sk.jpg", "EZ1203ph.jpg", "FY0871ph.jpg", "FY0875ph.jpg",
                                "FY0875sk.jpg", "FY0895ph.jpg", "FY3188sk.jpg", "FY3209ph.jpg", "FY3210ph.jpg",
                                "FY3210sk.jpg"})
      folder.Write(picture, "");
  }
  // Builds the dataset's index into the session (for choosing marks).
  void BuildIndex() {
    ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, folder.File("index.ndx"), session.dataset.markIndex,
                               fake.platform));
  }

  frmOutputOptions& Options() { return OutputOptionsForm(session, fake.platform); }
  // Sets the zone, the units and the two listings.
  void Choose(const std::string& zone, bool feet, bool elevationFeet, bool hcl = true, bool vcl = true) {
    Options().cboProjZone = zone;
    Options().SetUnits(feet, !feet, false);
    Options().SetElevationUnits(elevationFeet, !elevationFeet);
    Options().chkHoriz = hcl ? 1 : 0;
    Options().chkVert = vcl ? 1 : 0;
  }

  // Scripts the user: Okay in frmOutputOptions; the marks of `pids` in frmSelectPoints when
  // selected marks are chosen; Okay in frmCDT when the database is ticked; then `outName` in the
  // save dialog ("" cancels it). Runs mnuExport.
  void RunExport(const std::string& outName, const std::set<std::string>& pids = {}) {
    fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmOutputOptions&>(m).cmdOkay_Click(); });
    if (Options().optSelectedSta) {
      fake.ui.modalActions.push_back([pids](DialogModel& m) {
        auto& list = dynamic_cast<FrmSelectPoints&>(m);
        for (std::size_t i = 0; i < list.lstPoints.size(); ++i)
          list.selected[i] = pids.count(FrmSelectPoints::PidOfItem(list.lstPoints[i])) != 0;
        list.cmdOkay_Click();
      });
    }
    if (Options().chkDB == 1)
      fake.ui.modalActions.push_back([](DialogModel& m) { dynamic_cast<frmCDT&>(m).cmdOkay_Click(); });
    fake.ui.fileAnswers.push_back(outName);
    mnuExport(session, fake.platform);
  }

  std::string Out(const std::string& name) const { return folder.File(name); }
  std::vector<std::string> Messages() const { return fake.ui.MessageTexts(); }
  bool Completed() const {  // "Processing complete!" was shown
    const auto messages = Messages();
    return std::find(messages.begin(), messages.end(), "Processing complete!") != messages.end();
  }

  TempFolder folder;
  FakePlatform fake;
  testing::TestSession session;
};

}  // namespace benchlog::testing
