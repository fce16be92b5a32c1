#pragma once
// Shared ground of the export driver and listing tests: a scratch folder holding a dataset of
// tests/data/export/listings with the photos and sketches of its marks, a session on it, the
// scripted platform with the support files of the source tree, GRS 80 as the ellipsoid, and one
// export run through the Export command.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "session/session.hpp"
#include "export/export_forms.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog::testing {

// The text of tests/data/export/listings/<name>.
std::string ListingFixture(const std::string& name);

class ExportRunTest : public ::testing::Test {
 protected:
  ExportRunTest();
  void SetUp() override;

  // Copies the dataset into the folder as the session's dataset, with the photos and sketches the
  // sample has for its marks ("<PID>ph.jpg", "<PID>sk.jpg", empty files).
  void OpenDataset(const std::string& name);
  // Builds the dataset's index into the session (for choosing marks).
  void BuildIndex();

  frmOutputOptions& Options() { return OutputOptionsForm(session, fake.platform); }
  // Sets the zone, the units and the two listings.
  void Choose(const std::string& zone, bool feet, bool elevationFeet, bool hcl = true, bool vcl = true);

  // Scripts the user: Okay in frmOutputOptions; the marks of `pids` in frmSelectPoints when
  // selected marks are chosen; Okay in frmCDT when the database is ticked; then `outName` in the
  // save dialog ("" cancels it). Runs mnuExport.
  void RunExport(const std::string& outName, const std::set<std::string>& pids = {});

  std::string Out(const std::string& name) const { return folder.File(name); }
  std::vector<std::string> Messages() const { return fake.ui.MessageTexts(); }
  bool Completed() const;  // "Processing complete!" was shown

  TempFolder folder;
  FakePlatform fake;
  testing::TestSession session;
};

}  // namespace benchlog::testing
