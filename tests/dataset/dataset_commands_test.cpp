#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <tuple>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_size_limit.hpp"
#include "dataset/description_file.hpp"
#include "dataset/frm_get_file.hpp"
#include "dataset/load_dataset_index.hpp"
#include "fakes/fakes.hpp"
#include "fakes/file_size_limit.hpp"
#include "fakes/folder_snapshot.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "session/dataset_paths.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;
using namespace std::string_literals;

std::string Fixture(const std::string& name) { return ReadWholeFile(testing::TestData("dataset/" + name)); }

// A folder that is the dataset's and the program's, a session and the commands.
struct Scene {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  testing::TestSession session;
  CommandTable table = BuildCommandTable();

  void Open(const std::string& name, const std::string& text) {
    session.dataset.DatFile = folder.Write(name, text);
    session.dataset.DatFilePath = folder.Path() + "/";
    SetDerivedPaths(session, folder.Path());
    ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform));
  }
  void Run(const std::string& name) { table.Run(name, session, fake.platform); }
  const std::string& Dat() const { return session.dataset.DatFile; }
  const std::string& Ndx() const { return session.dataset.IndexFile; }
  // Plays the user in frmSelectPoints: selects the items whose PID is listed, then Okay.
  void SelectPids(std::vector<std::string> pids) {
    fake.ui.modalActions.push_back([pids](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      for (std::size_t i = 0; i < list.lstPoints.size(); ++i)
        for (const auto& pid : pids) list.selected[i] = list.selected[i] || FrmSelectPoints::PidOfItem(list.lstPoints[i]) == pid;
      list.cmdOkay_Click();
    });
  }
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

struct DatasetCommandsTest : ::testing::Test, Scene {
  using Scene::Run;
};

TEST_F(DatasetCommandsTest, ReindexRebuildsBehindTheProgressDialog) {
  const std::string landmarks = Fixture("landmarks.dat");
  session.dataset.DatFile = folder.Write("three.dat", landmarks + landmarks + landmarks);  // 10,539 bytes
  session.dataset.IndexFile = IndexPathFor(folder.Path(), session.dataset.DatFile);

  Run("mnuReindex");

  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Index file created."});
  ASSERT_GE(fake.progressHistory.size(), 3u);
  EXPECT_EQ(testing::Describe(fake.progressHistory.front()), "Creating Index|Please wait...|1/2");
  EXPECT_EQ(fake.progressHistory[1].value, 2);  // one step, then the bar is full
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_EQ(fake.ui.doEventsCalls, 1);
  EXPECT_EQ(session.dataset.markIndex.Size(), 26u);  // 24 Descriptions, built layout
  EXPECT_TRUE(FileExists(folder.File("three.ndx")));
}

TEST(Reindex, NeedsADataset) {
  for (const auto& [datFile, message] : {std::pair{"", "No mkdata file open!"}, {"/no/such/folder/gone.dat", "File not found"}}) {
    Scene s;
    s.session.dataset.DatFile = datFile;
    s.Run("mnuReindex");
    EXPECT_EQ(s.fake.ui.MessageTexts(), std::vector<std::string>{message}) << datFile;
    EXPECT_FALSE(s.fake.progress.Visible());
  }
}

TEST_F(DatasetCommandsTest, CompressDropsBlanksAndReindexes) {
  Open("blanked.dat", Fixture("blanked.dat"));
  Run("mnuCompDatFile");
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), Fixture("blanked_compressed.dat"));
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"File Compressed!"});
  EXPECT_TRUE(std::any_of(fake.progressHistory.begin(), fake.progressHistory.end(),
                          [](const Progress& p) { return p.Visible() && p.lblProcessing == "Reindexing file"; }));
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_EQ(ReadWholeFile(session.dataset.IndexFile).substr(0, 6), "JK0001");
}

TEST_F(DatasetCommandsTest, NewMakesNoFileAndAsksBeforeRemovingOne) {
  Open("layouts.dat", Fixture("layouts.dat"));
  const auto before = session.dataset.markIndex.Elements();
  const std::string dat = Dat(), ndx = Ndx();
  fake.ui.fileAnswers = {folder.File("fresh.dat"), dat, dat};
  fake.ui.msgAnswers = {MsgResult::No, MsgResult::Yes};
  Run("mnuFileNew");
  EXPECT_EQ(testing::Describe(fake.ui.fileDialogs.at(0)), "save|Create Dat File|Data Files (*.dat)|*.dat|" + folder.Path() + "/");
  EXPECT_EQ(session.dataset.DatFile, folder.File("fresh.dat"));
  EXPECT_EQ(session.shell.caption, folder.File("fresh.dat"));
  EXPECT_EQ(session.dataset.IndexFile, folder.File("fresh.ndx"));
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatFullName", ""), folder.File("fresh.dat"));
  EXPECT_FALSE(FileExists(folder.File("fresh.dat")));
  for (const char* view : {"mnuViewHcl", "mnuViewVcl", "mnuViewError"}) EXPECT_FALSE(session.menu[view].enabled) << view;
  EXPECT_TRUE(session.menu["mnuTools"].enabled);
  EXPECT_EQ(session.dataset.markIndex.Elements(), before);  // the old records stay until the next build
  EXPECT_TRUE(fake.ui.messages.empty());

  Run("mnuFileNew");  // No: the file, its index and MarkIndex stay
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  const MessageRequest& asked = fake.ui.messages[0];
  EXPECT_EQ(std::tuple(asked.text, asked.title, asked.buttons),
            std::tuple("File exists.  Overwrite?"s, "Create Mkdata File"s, MsgButtons::YesNo));
  EXPECT_TRUE(FileExists(dat) && FileExists(ndx));
  EXPECT_EQ(session.dataset.markIndex.Elements(), before);

  Run("mnuFileNew");  // Yes: both files go and the index is cleared
  EXPECT_FALSE(FileExists(dat) || FileExists(ndx));
  EXPECT_TRUE(session.dataset.markIndex.Empty());
}

TEST_F(DatasetCommandsTest, CombineCopiesTheSelectedFilesInListOrder) {
  folder.Write("in/b.dat", "B1\r\nB2");  // a last line without its end gets one
  folder.Write("in/a.dat", "A1\r\nA2\nstill A2\r\n");
  folder.Write("in/c.dat", "C1\r\n");
  folder.Write("in/notes.txt", "not listed\r\n");
  session.dataset.DatFilePath = folder.Path() + "/in/";
  folder.Write("out/combined.dat", "old contents");
  fake.ui.fileAnswers.push_back(folder.File("out/combined.dat"));
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& dialog = dynamic_cast<FrmGetFile&>(model);
    EXPECT_EQ(dialog.caption, "Select .dat Files to Combine");
    EXPECT_EQ(dialog.files, (std::vector<std::string>{"a.dat", "b.dat", "c.dat"}));
    dialog.selected = {true, true, false};
    dialog.cmdOK_Click();
  });
  Run("mnuCombineDat");
  EXPECT_EQ(fake.ui.fileDialogs.at(0).title, "Create Combined Dat File");
  EXPECT_EQ(ReadWholeFile(folder.File("out/combined.dat")), "A1\r\nA2\nstill A2\r\nB1\r\nB2\r\n");
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(std::pair(fake.ui.messages[0].text, fake.ui.messages[0].title), std::pair("Files combined."s, "Combine .dat Files"s));
  EXPECT_FALSE(FileExists(folder.File("temp.tmp")));

  fake.ui.fileAnswers.push_back(folder.File("out/other.dat"));
  fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<FrmGetFile&>(model).cmdCancel_Click(); });
  Run("mnuCombineDat");
  EXPECT_FALSE(FileExists(folder.File("out/other.dat")));
  EXPECT_EQ(fake.ui.messages.size(), 1u);
}

TEST_F(DatasetCommandsTest, DeleteBlanksCompressesAndRebuilds) {
  // landmarks.dat: CD0001..CD0008 at offsets 1, 467, 889, 1318, 1799, 2214, 2634, 3091; 3513 bytes.
  const std::string dat = Fixture("landmarks.dat");
  Open("landmarks.dat", dat);
  SelectPids({"CD0002", "CD0005"});
  fake.ui.msgAnswers.push_back(MsgResult::No);
  Run("mnuDelDesc");
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), dat);  // answered No: nothing changes
  SelectPids({"CD0002", "CD0005"});
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  Run("mnuDelDesc");
  const std::string asked = "This will permanently remove these discriptions.\r\nContinue?";
  EXPECT_EQ(fake.ui.MessageTexts(), (std::vector<std::string>{asked, asked, "2 description(s) deleted!"}));
  EXPECT_EQ(fake.ui.messages.at(1).defaultButton, 2);
  for (const auto& m : fake.ui.messages) EXPECT_EQ(m.title, "Delete Descriptions");
  // The others survive byte for byte.
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), dat.substr(0, 466) + dat.substr(888, 1799 - 889) + dat.substr(2213));
  std::string text;
  EXPECT_EQ(GetDescription(session.dataset.markIndex, session.dataset.DatFile, "CD0005", text), "PID not found!");
  EXPECT_EQ(GetDescription(session.dataset.markIndex, session.dataset.DatFile, "CD0006", text), "");
  EXPECT_EQ(text, dat.substr(2213, 2634 - 2214));
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_FALSE(fake.ui.hourglass);
}

TEST_F(DatasetCommandsTest, TheSentinelsBlankItemDeletesTheFirstDescription) {
  const std::string dat = Fixture("layouts.dat");
  Open("layouts.dat", dat);
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    EXPECT_EQ(list.caption, "Select Points to Delete");
    ASSERT_FALSE(list.lstPoints.empty());
    EXPECT_TRUE(list.lstPoints.back().find_first_not_of(' ') == std::string::npos);  // the sentinel's item
    list.selected.back() = true;
    list.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  Run("mnuDelDesc");
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), dat.substr(2234));
}

TEST_F(DatasetCommandsTest, MoreThanAThousandDeletionsStopAtTheListsBound) {
  // 1001 small Descriptions of 3 lines each.
  std::string dat;
  for (int n = 0; n < 1001; ++n) {
    const std::string pid = "QQ" + std::to_string(10000 + n).substr(1);
    dat += std::string("1        header\r\n ") + pid + "  DESIGNATION -  MARK " + std::to_string(n) + "\r\n " + pid +
           "  PID         -  " + pid + "\r\n";
  }
  Open("many.dat", dat);
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    for (std::size_t i = 0; i + 1 < list.lstPoints.size(); ++i) list.selected[i] = true;  // all but the sentinel
    list.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  Run("mnuDelDesc");
  EXPECT_EQ(fake.ui.MessageTexts().back(), "Subscript out of range");
  // The first 1000 are blanks now (the file keeps its length); the last one is untouched.
  const std::string after = ReadWholeFile(session.dataset.DatFile);
  EXPECT_EQ(after.size(), dat.size());
  EXPECT_EQ(after.find("QQ0999"), std::string::npos);
  EXPECT_NE(after.find(" QQ1000  PID"), std::string::npos);
}

TEST_F(DatasetCommandsTest, FileIndexViewShowsTheIndexInSmallType) {
  Open("layouts.dat", Fixture("layouts.dat"));
  frmView& view = ViewForm(session, fake.platform);
  view.FontSize = 10;
  int sizeWhileShown = 0;
  fake.ui.modalActions.push_back([&](DialogModel& model) { sizeWhileShown = dynamic_cast<frmView&>(model).FontSize; });
  Run("mnuViewFileIndex");
  EXPECT_EQ(view.txtViewFile, ReadWholeFile(session.dataset.IndexFile));
  EXPECT_EQ(view.Tag, "ndx");
  EXPECT_EQ(view.strFileType, "ndx");
  EXPECT_EQ(sizeWhileShown, 8);
  EXPECT_EQ(view.FontSize, 10);
}

std::string TooLarge(const std::string& path) { return "Path/File access error: could not write " + path + " (File too large)"; }

// Writes that fail half-way, as on a full disk, and datasets at the size limit: every command
// leaves the files it would have replaced byte for byte as they were, leaves no work file behind,
// and shows why.
TEST(WriteFailure, LeavesEveryFileAsItWasAndShowsWhy) {
  struct Case {
    const char* name;
    std::function<void(Scene&)> arrange;  // the old files the command would replace
    std::function<void(Scene&)> act;      // scripts the user and runs the command
    std::function<std::vector<std::string>(Scene&)> messages;
  };
  const Case cases[] = {
      // The compressed text is written whole before the rename, then the index build fails too.
      {"Compress", nullptr, [](Scene& s) { s.Run("mnuCompDatFile"); },
       [](Scene& s) {
         return std::vector<std::string>{"Unable to write to .dat file.\r\n" + TooLarge(s.Dat()), TooLarge(s.Ndx()),
                                         "Unable to write to .dat file."};
       }},
      {"Reindex", nullptr, [](Scene& s) { s.Run("mnuReindex"); },
       [](Scene& s) { return std::vector<std::string>{TooLarge(s.Ndx()), "Index file created."}; }},
      // The dataset's own folder holds the dataset and the old combined file.
      {"Combine", [](Scene& s) { s.folder.Write("combined.dat", "old combined\r\n"); },
       [](Scene& s) {
         s.CombineAllInto(s.folder.File("combined.dat"));
         s.Run("mnuCombineDat");
       },
       [](Scene& s) { return std::vector<std::string>{TooLarge(s.folder.File("combined.dat"))}; }},
      // Save As over an older file, from the viewer of the index.
      {"SaveAs", [](Scene& s) { s.folder.Write("saved.ndx", "old save\r\n"); },
       [](Scene& s) {
         s.fake.ui.fileAnswers.push_back(s.folder.File("saved.ndx"));
         s.fake.ui.msgAnswers.push_back(MsgResult::Yes);
         s.fake.ui.modalActions.push_back([&s](DialogModel& model) { dynamic_cast<frmView&>(model).mnuFileSaveAs(s.fake.ui); });
         s.Run("mnuViewFileIndex");
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
    scene.Open("blanked.dat", Fixture("blanked.dat"));
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
  for (const std::uint64_t length : {99'999'999u, 100'000'000u}) {
    Scene s;
    s.session.dataset.DatFile = Sized(s.folder, "big.dat", length);
    s.folder.Write("big.ndx", SentinelRecord(length) + "\r\n");  // a valid index: nothing is rebuilt
    LoadDatasetIndex(s.session, s.fake.platform);
    ASSERT_EQ(s.fake.ui.messages.size(), length < 100'000'000 ? 0u : 1u) << length;
    if (length < 100'000'000) continue;
    EXPECT_EQ(s.fake.ui.messages[0].icon, MsgIcon::Exclamation);
    const std::string& text = s.fake.ui.messages[0].text;
    EXPECT_EQ(text.rfind(s.session.dataset.DatFile + " is 100,000,000 bytes long; a dataset must stay below 100,000,000 bytes.", 0), 0u)
        << text;
    EXPECT_NE(text.find("looking up, viewing or deleting a Description"), std::string::npos) << text;
    EXPECT_NE(text.find("Split it into smaller datasets"), std::string::npos) << text;
  }
}

TEST(DatasetSizeLimit, CombineRefusesBeforeWritingAnything) {
  // One file past the limit, or three together: 100,000,000 bytes either way.
  for (const auto& lengths : {std::vector<std::uint64_t>{100'000'000}, {60'000'000, 39'999'999, 1}}) {
    SCOPED_TRACE(lengths.size());
    Scene s;
    for (std::size_t i = 0; i < lengths.size(); ++i) Sized(s.folder, "in/" + std::to_string(i) + ".dat", lengths[i]);
    s.session.dataset.DatFilePath = s.folder.File("in/");
    const std::string target = s.folder.Write("combined.dat", "old combined\r\n");
    s.CombineAllInto(target);
    s.Run("mnuCombineDat");
    EXPECT_EQ(ReadWholeFile(target), "old combined\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(s.folder.Path()), {}), 2);  // "in" and the target
    ASSERT_EQ(s.fake.ui.messages.size(), 1u);
    EXPECT_EQ(s.fake.ui.messages[0].text, "The dataset would be 100,000,000 bytes long; a dataset must stay below 100,000,000 "
                                          "bytes. Nothing was written.\r\n\r\nCombine fewer files, or split the data into "
                                          "datasets by county.");
    EXPECT_EQ(s.fake.ui.messages[0].title, "Combine .dat Files");
  }
}

}  // namespace
}  // namespace benchlog
