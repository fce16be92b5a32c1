#include <gtest/gtest.h>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "dataset/dataset_test_support.hpp"
#include "dataset/load_dataset_index.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::Fixture;
using testing::TempFolder;

// A dataset folder and a separate program folder (App.Path), as on a real installation.
struct Opening {
  TempFolder data, app;
  FakePlatform fake{app.Path()};
  testing::TestSession session;
  Opening() {
    session.dataset.DatFile = data.File("landmarks.dat");
    session.dataset.DatFilePath = data.Path() + "/";
    session.shell.caption = "Benchlog Version 1.0.0";
  }
  bool Load() { return LoadDatasetIndex(session, fake.platform); }
  bool ProgressWasShown() const {
    for (const auto& p : fake.progressHistory)
      if (p.Visible()) return true;
    return false;
  }
};

TEST(LoadDatasetIndex, SetsTheDerivedPaths) {
  Opening o;
  o.Load();
  const std::string stem = o.data.File("landmarks");
  EXPECT_EQ(o.session.outputs.HclFile, stem + ".hcl");
  EXPECT_EQ(o.session.outputs.VclFile, stem + ".vcl");
  EXPECT_EQ(o.session.outputs.MsfFile, stem + ".msf");
  EXPECT_EQ(o.session.outputs.ErrFile, stem + ".err");
  EXPECT_EQ(o.session.outputs.SA6File, stem + "_SA6.txt");
  EXPECT_EQ(o.session.dataset.IndexFile, o.app.File("landmarks.ndx"));
}

TEST(LoadDatasetIndex, AMissingDatasetChangesNothingElse) {
  Opening o;
  o.session.dataset.markIndex.Assign({"previous"});
  o.session.menu["mnuViewHcl"].enabled = false;
  EXPECT_FALSE(o.Load());
  EXPECT_EQ(o.session.shell.caption, "Benchlog Version 1.0.0");
  EXPECT_EQ(o.session.dataset.markIndex.Elements(), std::vector<std::string>{"previous"});
  EXPECT_TRUE(o.fake.ui.messages.empty());
  EXPECT_FALSE(o.session.menu["mnuViewHcl"].enabled);
}

TEST(LoadDatasetIndex, BuildsAMissingIndexBehindTheProgressDialog) {
  Opening o;
  CopyFixture(o.data, "landmarks.dat");
  o.data.Write("landmarks.hcl", "");
  o.data.Write("landmarks.err", "");
  EXPECT_TRUE(o.Load());
  ASSERT_FALSE(o.fake.progressHistory.empty());
  const Progress& shown = o.fake.progressHistory.front();
  EXPECT_TRUE(shown.Visible());
  EXPECT_EQ(shown.lblProcessing, "Creating index...");
  EXPECT_EQ(shown.lblInfo, "Please wait...");
  EXPECT_EQ(shown.max, 0);  // 3513 bytes / 5000
  EXPECT_EQ(shown.value, 1);
  EXPECT_FALSE(o.fake.progress.Visible());
  EXPECT_EQ(o.fake.ui.MessageTexts(), std::vector<std::string>{"Index file created."});
  EXPECT_EQ(ReadWholeFile(o.session.dataset.IndexFile), Fixture("landmarks.ndx"));
  EXPECT_EQ(o.session.shell.caption, o.session.dataset.DatFile);
  EXPECT_TRUE(o.session.menu["mnuViewHcl"].enabled);
  EXPECT_FALSE(o.session.menu["mnuViewVcl"].enabled);
  EXPECT_TRUE(o.session.menu["mnuViewError"].enabled);
}

// The index is judged by its sentinel alone: the dataset's length.
TEST(LoadDatasetIndex, ValidOrStaleBySentinel) {
  struct Case {
    const char* name;
    std::string index;
    bool rebuilt;
  };
  const std::string garbage = "not a record\r\n" + std::string(134, ' ') + "000003513 |\r\n";
  const Case cases[] = {
      {"valid", Fixture("landmarks.ndx"), false},
      {"other dataset's length", Fixture("layouts.ndx"), true},
      {"same length, other content", garbage, false},
      {"empty file", "", true},
      {"records only, no sentinel", Fixture("landmarks.ndx").substr(0, 147 * 3), true},
  };
  for (const auto& c : cases) {
    Opening o;
    CopyFixture(o.data, "landmarks.dat");
    o.app.Write("landmarks.ndx", c.index);
    EXPECT_EQ(o.Load(), c.rebuilt) << c.name;
    EXPECT_FALSE(o.ProgressWasShown()) << c.name;
    EXPECT_EQ(o.session.shell.caption, o.session.dataset.DatFile) << c.name;
    const std::string onDisk = ReadWholeFile(o.session.dataset.IndexFile);
    EXPECT_EQ(onDisk, c.rebuilt ? Fixture("landmarks.ndx") : c.index) << c.name;
    if (c.rebuilt) {
      EXPECT_EQ(o.fake.ui.MessageTexts(), std::vector<std::string>{"Index file created."}) << c.name;
      EXPECT_EQ(o.session.dataset.markIndex.Size(), 10u) << c.name;  // built layout: 8 Descriptions
      EXPECT_EQ(o.session.dataset.markIndex[7], "") << c.name;
    } else {
      EXPECT_TRUE(o.fake.ui.messages.empty()) << c.name;
      EXPECT_EQ(o.session.dataset.markIndex.Elements(), SplitCrLf(c.index)) << c.name;
    }
  }
}

}  // namespace
}  // namespace benchlog
