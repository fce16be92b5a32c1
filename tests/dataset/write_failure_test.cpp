// Writes that fail half-way, as on a full disk, and datasets at the size limit: every command
// leaves the files it would have replaced byte for byte as they were, leaves no work file behind,
// and shows why.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_size_limit.hpp"
#include "dataset/dataset_test_support.hpp"
#include "dataset/frm_get_file.hpp"
#include "dataset/load_dataset_index.hpp"
#include "fakes/fakes.hpp"
#include "fakes/file_size_limit.hpp"
#include "fakes/folder_snapshot.hpp"
#include "session/dataset_paths.hpp"
#include "session/frm_view.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {
using testing::FakePlatform;
using testing::TempFolder;

std::string TooLarge(const std::string& path) { return "Path/File access error: could not write " + path + " (File too large)"; }

struct Scene {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  testing::TestSession session;
  CommandTable table = BuildCommandTable();

  Scene() {
    session.dataset.DatFile = testing::CopyFixture(folder, "blanked.dat");
    session.dataset.DatFilePath = folder.Path() + "/";
    SetDerivedPaths(session, folder.Path());
    EXPECT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform));
  }
  const std::string& Dat() const { return session.dataset.DatFile; }
  const std::string& Ndx() const { return session.dataset.IndexFile; }
  // Plays the user in frmGetFile: every listed file, then OK.
  void CombineAllInto(const std::string& target) {
    fake.ui.fileAnswers.push_back(target);
    fake.ui.modalActions.push_back([](DialogModel& model) {
      auto& dialog = dynamic_cast<FrmGetFile&>(model);
      dialog.selected.assign(dialog.files.size(), true);
      dialog.cmdOK_Click();
    });
  }
};

TEST(WriteFailure, LeavesEveryFileAsItWasAndShowsWhy) {
  struct Case {
    const char* name;
    std::function<void(Scene&)> arrange;  // the old files the command would replace
    std::function<void(Scene&)> act;      // scripts the user and runs the command
    std::function<std::vector<std::string>(Scene&)> messages;
  };
  const Case cases[] = {
      // The compressed text is written whole before the rename, then the index build fails too.
      {"Compress", nullptr, [](Scene& s) { s.table.Run("mnuCompDatFile", s.session, s.fake.platform); },
       [](Scene& s) {
         return std::vector<std::string>{"Unable to write to .dat file.\r\n" + TooLarge(s.Dat()), TooLarge(s.Ndx()),
                                         "Unable to write to .dat file."};
       }},
      {"Reindex", nullptr, [](Scene& s) { s.table.Run("mnuReindex", s.session, s.fake.platform); },
       [](Scene& s) { return std::vector<std::string>{TooLarge(s.Ndx()), "Index file created."}; }},
      // The dataset's own folder holds the dataset and the old combined file.
      {"Combine", [](Scene& s) { s.folder.Write("combined.dat", "old combined\r\n"); },
       [](Scene& s) {
         s.CombineAllInto(s.folder.File("combined.dat"));
         s.table.Run("mnuCombineDat", s.session, s.fake.platform);
       },
       [](Scene& s) { return std::vector<std::string>{TooLarge(s.folder.File("combined.dat"))}; }},
      // Save As over an older file, from the viewer of the index.
      {"SaveAs", [](Scene& s) { s.folder.Write("saved.ndx", "old save\r\n"); },
       [](Scene& s) {
         s.fake.ui.fileAnswers.push_back(s.folder.File("saved.ndx"));
         s.fake.ui.msgAnswers.push_back(MsgResult::Yes);
         s.fake.ui.modalActions.push_back([&s](DialogModel& model) { dynamic_cast<frmView&>(model).mnuFileSaveAs(s.fake.ui); });
         s.table.Run("mnuViewFileIndex", s.session, s.fake.platform);
       },
       [](Scene& s) { return std::vector<std::string>{"File exists.  Overwrite?", TooLarge(s.folder.File("saved.ndx"))}; }},
      // Appending to the dataset, as the updates do: cut back to its old length.
      {"Append", nullptr,
       [](Scene& s) {
         try {
           AppendToFile(s.Dat(), std::string(4096, 'x'));
         } catch (const RuntimeFailure& failure) {
           s.fake.ui.MsgBox(failure.description);
         }
       },
       [](Scene& s) { return std::vector<std::string>{TooLarge(s.Dat())}; }},
  };
  for (const Case& c : cases) {
    Scene scene;
    if (c.arrange) c.arrange(scene);
    const auto before = testing::FolderSnapshot(scene.folder.Path());
    {
      testing::FileSizeLimit limit(64);  // below every file the commands write
      c.act(scene);
    }
    EXPECT_EQ(testing::FolderSnapshot(scene.folder.Path()), before) << c.name;
    EXPECT_EQ(scene.fake.ui.MessageTexts(), c.messages(scene)) << c.name;
    EXPECT_FALSE(scene.fake.progress.Visible()) << c.name;
  }
}

TEST(WriteFailure, AFullDiskIsNamedAsSuch) {
  try {
    AppendToFile("/dev/full", "x");
    ADD_FAILURE() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kDiskFull);
    EXPECT_EQ(failure.description, "Disk full: could not write /dev/full (No space left on device)");
  }
}

// The files are sparse: their length costs no disk.
std::string Sized(const TempFolder& folder, const std::string& name, std::uint64_t length) {
  const std::string path = folder.Write(name, "");
  std::filesystem::resize_file(path, length);
  return path;
}

TEST(DatasetSizeLimit, OpeningPastTheLimitWarns) {
  const std::uint64_t lengths[] = {99'999'999, 100'000'000};
  for (const std::uint64_t length : lengths) {
    TempFolder folder;
    FakePlatform fake{folder.Path()};
    testing::TestSession session;
    session.dataset.DatFile = Sized(folder, "big.dat", length);
    folder.Write("big.ndx", SentinelRecord(length) + "\r\n");  // a valid index: nothing is rebuilt
    LoadDatasetIndex(session, fake.platform);
    if (length < 100'000'000) {
      EXPECT_TRUE(fake.ui.messages.empty()) << length;
      continue;
    }
    ASSERT_EQ(fake.ui.messages.size(), 1u);
    EXPECT_EQ(fake.ui.messages[0].icon, MsgIcon::Exclamation);
    const std::string& text = fake.ui.messages[0].text;
    EXPECT_EQ(text.rfind(session.dataset.DatFile + " is 100,000,000 bytes long; a dataset must stay below 100,000,000 bytes.", 0), 0u)
        << text;
    EXPECT_NE(text.find("looking up, viewing or deleting a Description"), std::string::npos) << text;
    EXPECT_NE(text.find("Split it into smaller datasets"), std::string::npos) << text;
  }
}

TEST(DatasetSizeLimit, CombineRefusesBeforeWritingAnything) {
  struct Case {
    const char* name;
    std::vector<std::uint64_t> lengths;
    const char* total;
  };
  const Case cases[] = {
      {"OnePastTheLimit", {100'000'000}, "100,000,000"},
      {"TogetherPastIt", {60'000'000, 39'999'999, 1}, "100,000,000"},
  };
  for (const Case& c : cases) {
    TempFolder folder;
    FakePlatform fake{folder.Path()};
    testing::TestSession session;
    CommandTable table = BuildCommandTable();
    for (std::size_t i = 0; i < c.lengths.size(); ++i) Sized(folder, "in/" + std::to_string(i) + ".dat", c.lengths[i]);
    session.dataset.DatFilePath = folder.File("in/");
    const std::string target = folder.Write("combined.dat", "old combined\r\n");
    fake.ui.fileAnswers.push_back(target);
    fake.ui.modalActions.push_back([](DialogModel& model) {
      auto& dialog = dynamic_cast<FrmGetFile&>(model);
      dialog.selected.assign(dialog.files.size(), true);
      dialog.cmdOK_Click();
    });
    table.Run("mnuCombineDat", session, fake.platform);
    EXPECT_EQ(ReadWholeFile(target), "old combined\r\n") << c.name;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), std::filesystem::directory_iterator()), 2)
        << c.name;  // "in" and the old combined file: no work file
    ASSERT_EQ(fake.ui.messages.size(), 1u) << c.name;
    EXPECT_EQ(fake.ui.messages[0].text, std::string("The dataset would be ") + c.total +
                                            " bytes long; a dataset must stay below 100,000,000 bytes. Nothing was "
                                            "written.\r\n\r\nCombine fewer files, or split the data into datasets by county.")
        << c.name;
    EXPECT_EQ(fake.ui.messages[0].title, "Combine .dat Files") << c.name;
  }
}

}  // namespace
}  // namespace benchlog
