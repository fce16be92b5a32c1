#include "export/export_run_support.hpp"

#include <algorithm>

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "export/export_commands.hpp"
#include "fakes/test_paths.hpp"
#include "session/frm_select_points.hpp"

namespace benchlog::testing {
namespace {

// The photos and sketches the sample dataset ships for its marks.
constexpr const char* kPictures[] = {"DH7190ph.jpg", "DH7190sk.jpg", "EZ1203ph.jpg", "FY0871ph.jpg",
                                     "FY0875ph.jpg", "FY0875sk.jpg", "FY0895ph.jpg", "FY3188sk.jpg",
                                     "FY3209ph.jpg", "FY3210ph.jpg", "FY3210sk.jpg"};

}  // namespace

std::string ListingFixture(const std::string& name) {
  return ReadWholeFile(TestData("export/listings/" + name));
}

ExportRunTest::ExportRunTest() { fake.platform.paths.supportPath = SourceSupport(); }

void ExportRunTest::SetUp() {
  session.config.ellipsoidA = 6378137.0;
  session.config.ellipsoidE2 = 0.00669438002290;
  session.config.ellipsoidEp2 = 0.00669438002290 / (1 - 0.00669438002290);
  fake.progress.observer = nullptr;  // the history of every refresh is not needed here
}

void ExportRunTest::OpenDataset(const std::string& name) {
  session.dataset.DatFile = folder.Write(name, ListingFixture(name));
  session.dataset.DatFilePath = folder.Path() + "/";
  for (const char* picture : kPictures) folder.Write(picture, "");
}

void ExportRunTest::BuildIndex() {
  ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, folder.File("index.ndx"), session.dataset.markIndex, fake.platform));
}

void ExportRunTest::Choose(const std::string& zone, bool feet, bool elevationFeet, bool hcl, bool vcl) {
  frmOutputOptions& options = Options();
  options.cboProjZone = zone;
  options.SetUnits(feet, !feet, false);
  options.SetElevationUnits(elevationFeet, !elevationFeet);
  options.chkHoriz = hcl ? 1 : 0;
  options.chkVert = vcl ? 1 : 0;
}

void ExportRunTest::RunExport(const std::string& outName, const std::set<std::string>& pids) {
  fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<frmOutputOptions&>(model).cmdOkay_Click(); });
  if (Options().optSelectedSta) {
    fake.ui.modalActions.push_back([pids](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      for (std::size_t i = 0; i < list.lstPoints.size(); ++i)
        list.selected[i] = pids.count(FrmSelectPoints::PidOfItem(list.lstPoints[i])) != 0;
      list.cmdOkay_Click();
    });
  }
  if (Options().chkDB == 1)
    fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<frmCDT&>(model).cmdOkay_Click(); });
  fake.ui.fileAnswers.push_back(outName);
  mnuExport(session, fake.platform);
}

bool ExportRunTest::Completed() const {
  const auto messages = Messages();
  return std::find(messages.begin(), messages.end(), "Processing complete!") != messages.end();
}

}  // namespace benchlog::testing
